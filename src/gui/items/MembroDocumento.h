#pragma once
// The entry-document family as data. A member is one document kind (DI, DSI, acquisition invoice) of one
// origin (a foreign product or an input of PI sem PPB) in one editor (monthly or individual). Everything that
// differs between members is a field of MembroDocumento: the store description, the names of the controls,
// the rules of the digit fields, the messages, the enabling and child-row conditions, the currency picker
// keys, the grid. QuadroDocumento runs any member; no member has code of its own.
//
// The twelve members (three kinds, two origins, two editors) are built in MembrosDI.cpp, MembrosDSI.cpp and
// MembrosNFA.cpp, each kind from one table of its four members' control names, columns and messages.
#include "core/store/DocumentoEntrada.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

enum class TipoDocumento { DI, DSI, NFA };
enum class Origem { Produto, Insumo };

// The part a control plays in a document frame. A member names the control of each part it has.
enum class Papel {
    Sim, Nao,                      // "Eletrônica"
    Numero, Ano, Orgao, Sequencial,
    Adicao, ItemAdicao, NumeroBem,
    NumeroNF, Serie, ItemNF, CFOP, Data, CNPJ,   // an acquisition invoice
    Quantidade,
    ValorUnitario,                 // the unit value kept in the invoice line itself
    DecretoLei, Obsolescencia, Suspensao,
    ValorTotal,
    Moeda0, Moeda1, Moeda2,        // the currency of the product (input), freight and insurance blocks
    Valor0, Valor1, Valor2,
};

// When the value blocks are open, or when a line keeps its child row of values.
enum class Condicao {
    Decreto,                              // Decreto-Lei 288/67 on
    DecretoOuSuspensao,                   // Decreto-Lei or suspension on
    DecretoSemObsolescenciaOuSuspensao,   // Decreto-Lei on and obsolescence off, or suspension on
    Suspensao,                            // suspension on
    Obsolescencia,                        // obsolescence on
};

// A test of the validation, on one field.
enum class Teste {
    Vazio,          // blank
    VazioSeAtivo,   // enabled and blank
    Zero,           // a number of zeros
    Regra,          // the field's own rule on leaving, when it is not blank
};

struct Passo {
    Teste teste;
    Papel papel;
    QString msg;
};

// What a digit field checks when it is left filled.
struct RegraDigitos {
    int largura = 0;           // digits it must have; 0: any count
    QString msgZero;           // a value of zero; empty: no such test
    QString msgFormato;        // not numeric, another count of digits, or outside the bounds
    int minimo = -1;           // bounds of the value; -1: none
    int maximo = -1;
    bool formatoAntes = false; // the format test runs before the zero test
    int completa = 0;          // rewritten with zeros in front to this width; 0: kept as typed
};

// A visible column of a document grid: a column of the line, or the page's product, location or item.
struct ColunaDocumento {
    QString titulo;
    QString fonte;             // a column name, or "#produto", "#local", "#item"
    QString formato;           // a mask ("@@/@@@@@@@-@") or a number format, or none
    int largura = 90;
};

struct MembroDocumento {
    TipoDocumento tipo = TipoDocumento::DI;
    Origem origem = Origem::Produto;
    bool individual = false;

    TabelaDocumento dados;
    QMap<Papel, QString> nomes;    // objectName of each control the member has
    QMap<Papel, QString> colunas;  // the column each value goes to, in the line or in its child row
    // Columns of the line written from what the page chose rather than from a field: column -> the page's text
    // ("#nome", the input's name).
    QMap<QString, QString> colunasDoPai;
    QString colunaNumeroAntiga;    // year, issuing body and sequence run together
    QMap<Papel, RegraDigitos> regras;
    QMap<Papel, QString> rotulos;  // labels that differ between members

    QString msgZeroDecimal;        // a quantity or value of zero on leaving its field

    QString tipoDigito;            // the check digit's kind of the electronic number ("DI", "DSI")
    QString msgNumeroInvalido;     // a complete number of zeros or with a wrong check digit
    // Leaving a filled electronic number: fewer digits than the mask, and a number whose first two digits lie
    // in prefixoRecusado (a year before the electronic document). Empty: no such test.
    QString msgNumeroIncompleto;
    QPair<int, int> prefixoRecusado{-1, -1};
    QString msgPrefixoRecusado;

    // Validation, in this order: the electronic number (blank, zero, short) or the old number's parts, then
    // `passos`, then the value blocks.
    QString msgNumeroVazio;
    QString msgNumeroZero;         // empty: no such test
    QString msgNumeroCurto;        // fewer digits than the mask; empty: no such test
    QString msgAntigaVazia;
    QList<Passo> passos;

    // The same line under the same parent: the number (or old number) and these parts.
    QList<Papel> chaveDuplicado;
    QString msgDuplicadoEletronica;
    QString msgDuplicadoAntiga;
    QString msgDuplicadoAlteracao; // empty: Alterar does not search
    QString msgSemPai;             // Incluir with no product or item chosen (individual editor)
    QString msgSemSelecaoAlterar;  // empty: Alterar with no row chosen does nothing
    QString msgSemSelecaoExcluir;

    Condicao habilitacao = Condicao::DecretoOuSuspensao;
    Condicao filhaNaInclusao = Condicao::DecretoOuSuspensao;
    Condicao filhaNaAlteracao = Condicao::DecretoOuSuspensao;
    bool esvaziaBlocosAoMudar = false;  // every change of the suspension empties the value blocks
    // The invoice's unit value: enabled, or emptied and disabled, when the Decreto-Lei check changes and when the
    // obsolescence check changes.
    Condicao unitarioAoMudarDecreto = Condicao::Decreto;
    Condicao unitarioAoMudarObsolescencia = Condicao::Decreto;

    // The invoice's series: capitals and no special characters (monthly), or letters and digits only.
    bool serieMaiuscula = false;
    QString msgSerieZero;          // a numeric series of value zero, on leaving
    QString msgDataAno;            // a year of the date before 1970

    QStringList chavesMoeda;       // the currency picker's caller key of each value block
    QStringList titulosBlocos;     // "Produto" (inputs "Insumo"), "Frete Internacional", "Seguro Internacional"
    QString nomeQuadro;            // the frame of the fields
    QString nomeRotuloQuantidade;  // the quantity's label, which names the product's unit
    QString nomeGrade;
    QList<ColunaDocumento> grade;
};

// Every member of the family.
const QList<MembroDocumento>& MembrosDocumento();
// The member of that kind, origin and editor.
const MembroDocumento* Membro(TipoDocumento tipo, Origem origem, bool individual);
