#pragma once
// The document number rules that the screens share around the check digits: the declaration, DI and DSI
// numbers (whose messages each screen chooses), the DCR-E and DCR numbers of the PI com PPB items, the state
// registration and the bank data.
#include <QString>

namespace Funcoes {

// How a declaration, DI or DSI number stands. The screens differ in the texts they show for each case, so the
// rule only classifies and the caller speaks.
enum class SituacaoNumero { Vazio, TamanhoInvalido, Zerado, DigitoInvalido, Valido };

// `digitos` is the field's text without its mask; tipo is "VRT", "DI" or "DSI". Tested in this order: empty,
// not ten digits, value zero, check digit.
SituacaoNumero ConfereNumeroDocumento(const QString& digitos, const QString& tipo);

// DCR-E number of `mskDCREPIcomPPB` when the field is left. "/", "-" and blanks are taken out. Ten digits go
// through ValidaDCRE; nine digits are a year of at least 2001 and a non-zero sequence; empty passes; any other
// length is refused. On success `exibicao` gets the text to show ("####/#####-#" or "####/#####").
bool ValidaNumeroDCRE(const QString& texto, QString* exibicao = nullptr);

// DCR number of `mskDCRPIcomPPB` when the field is left: nine digits, a non-zero sequence followed by a year from
// 1990 to 2001; empty passes. Shown by "@@@@@/@@@@". DCR has no check digit.
bool ValidaNumeroDCR(const QString& texto, QString* exibicao = nullptr);

// State registration (`NR_INSCRICAO_EST`): no check digit; not zero, at least 8 characters; when `obrigatoria`,
// not empty. Shows the critical box of the failing test.
enum class SituacaoInscricao { Vazia, Zerada, Curta, Valida };
SituacaoInscricao ConfereInscricaoEstadual(const QString& texto);
bool ValidaInscricaoEstadual(const QString& texto, bool obrigatoria);

// Bank data of the general data (`txtDadosGerais` 1, 2 and 3), when the field is left and not blank.
// In this order: a value of zero is refused with the field's own text; then, for the bank and the agency only
// and when `testaNumerico` is true, a text that is not numeric with "Campo inválido.". `testaNumerico` false is
// the individual editor, which has only the zero tests. The account takes "X" (its check digit): only a numeric
// text of value zero is refused there.
enum class CampoBancario { Banco, Agencia, ContaCorrente };
bool ValidaCampoBancario(CampoBancario campo, const QString& texto, bool testaNumerico = true);

}  // namespace Funcoes
