#pragma once
// Where the reader stores something other than what a field's own rule gives (CampoLayout::leitura), as the
// system does. Each exception is named for the behaviour and tested under that name; the readers apply them
// to the values of a generated insert (InsercaoRegistro) and hold no other rule of their own.
#include <QString>
#include <QVariantList>

class InsercaoRegistro;
class RegistroLido;

namespace ExcecoesLeitura {

// Records 11 and 33: an aliquot is stored only beside its justification; a blank justification leaves the
// aliquot empty whatever its digits say.
void aliquotaSoComJustificativa(const RegistroLido& r, const InsercaoRegistro& insercao, QVariantList& valores);

// Monthly record 34: the value of the input is stored only under DL 288/67 ("S"); otherwise empty.
void valorInsumoSoComDl288(const RegistroLido& r, const InsercaoRegistro& insercao, QVariantList& valores);

// Records 21: the number of the basic process and its type, "1" for a DCR-E (positions 7-16) and "2" for a
// DCR (positions 32-40); with both filled the DCR wins; with neither, both empty.
struct NumeroPpb {
    QString tipo;
    QString numero;
};
NumeroPpb numeroPpb(const RegistroLido& r);

// Individual record 11: the justification row is written when positions 110-362 or 368-620 are not all blank.
// Each span covers an aliquot's digits, so it is true for every record this system writes and false only for a
// file from elsewhere with blanks there.
bool temJustificativaIndividual(const RegistroLido& r);

// VRT: IND_RESTITUICAO is always "N" on reading.
QString indicadorRestituicao();
// VRT: IND_RETIFICACAO is "S" when record 03 names the declaration it rectifies (NR_VRT not all zeros), else
// "N"; only then are the values of record 03 read.
QString indicadorRetificacao(const RegistroLido& r03);

// Record 02: the flag of a slot decides, not its value; a flagged value of zeros is stored "0,00", not empty.
QString valorMandado(const RegistroLido& r02, const QString& campo);
// Record 03 has no flags: a slot of zeros gives no row, so a rectification value of zero is lost on reading.
bool temValorRetif(const RegistroLido& r03, const QString& campo);

}  // namespace ExcecoesLeitura
