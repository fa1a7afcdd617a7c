#include "gui/editor/BlocosValores.h"

namespace BlocosValores {

namespace {

// One line of the value types: the court order's code, the retification's (0: not offered there), and the
// modalities that offer it. The order of the lines is the order of the lists.
struct TipoValor {
    const char* descricao;
    int codigoMandado;
    int codigoRetificacao;
    const char* modalidades;
};

const TipoValor Tipos[] = {
    {"Multa por Atraso", 2, 0, "9"},
    {"Taxa de Utilização", 1, 1, "9"},
    {"Imposto de Importação", 3, 2, "123"},
    {"Juros de Mora II", 4, 4, "123"},
    {"Multa de Mora II", 5, 3, "123"},
    {"Imposto sobre Prod. Industrializados", 6, 5, "13"},
    {"Juros de Mora IPI", 7, 7, "13"},
    {"Multa de Mora IPI", 8, 6, "13"},
    {"PIS/PASEP", 9, 8, "123"},
    {"Juros de Mora PIS/PASEP", 10, 10, "123"},
    {"Multa de Mora PIS/PASEP", 11, 9, "123"},
    {"COFINS", 12, 11, "123"},
    {"Juros de Mora COFINS", 13, 13, "123"},
    {"Multa de Mora COFINS", 14, 12, "123"},
};

}  // namespace

QList<OpcaoLista> Modalidades(int indice, bool temProcesso)
{
    QList<OpcaoLista> l;
    if (indice == 0 || temProcesso)
        l.append({QStringLiteral("VRT"), QStringLiteral("9")});
    l.append({QStringLiteral("VRT - PE"), QStringLiteral("1")});
    l.append({QStringLiteral("VRT - PI com PPB"), QStringLiteral("2")});
    l.append({QStringLiteral("VRT - PI sem PPB"), QStringLiteral("3")});
    return l;
}

QList<OpcaoLista> Descricoes(int indice, const QString& modalidade, bool temProcesso)
{
    QList<OpcaoLista> l;
    if (modalidade.isEmpty())
        return l;
    for (const TipoValor& t : Tipos) {
        const int codigo = indice == 0 ? t.codigoMandado : t.codigoRetificacao;
        if (codigo == 0 || !QString::fromLatin1(t.modalidades).contains(modalidade))
            continue;
        if (indice == 1 && modalidade == QLatin1String("9") && !temProcesso)
            continue;
        l.append({QString::fromUtf8(t.descricao), QString::number(codigo)});
    }
    return l;
}

DescricaoBloco Descricao(int indice, std::function<bool()> temProcesso)
{
    const QString s = indice == 0 ? QStringLiteral("MANDADO") : QStringLiteral("RETIF");
    const QString mod = QStringLiteral("CD_MOD_") + s;
    const QString tipo = QStringLiteral("CD_TIPO_DIVER_") + s;
    const QString nmMod = QStringLiteral("NM_MOD_INT_") + s;
    const QString nmTipo = QStringLiteral("NM_TIPO_DIVER_") + s;
    const QString valor = QStringLiteral("VL_TOTAL_DIVER_") + s;
    const QString i = QString::number(indice);
    const QString modalidade = QStringLiteral("cboModalidade(%1)").arg(i);

    DescricaoBloco d;
    d.dados = {QStringLiteral("VALORES_DIVER_") + s, QStringLiteral("ID_VRT_MICRO"), {mod, tipo},
               {mod, tipo, nmMod, nmTipo, valor},
               // The type is text; two digits make its order numeric.
               {mod, QStringLiteral("printf('%02d', CAST(") + tipo + QStringLiteral(" AS INTEGER))")}};
    d.campos = {
        {modalidade, QStringLiteral("Modalidade"), CampoBloco::Lista, mod, nmMod, 0, DecimalField::TotalValue, {},
         QStringLiteral("O campo modalidade deve ser selecionado."), {}, 160},
        {QStringLiteral("cboDescricao(%1)").arg(i), QStringLiteral("Descrição"), CampoBloco::Lista, tipo, nmTipo, 0,
         DecimalField::TotalValue, {}, QStringLiteral("O campo descrição deve ser selecionado."), modalidade, 260},
        {QStringLiteral("mskValor(%1)").arg(i), QStringLiteral("Valor"), CampoBloco::Decimal, valor, {}, 0,
         DecimalField::TotalValue, QStringLiteral("#,###,###,###,##0.00"),
         QStringLiteral("O campo valor deve ser preenchido."), {}, 140},
    };
    d.nomeGrade = indice == 0 ? QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial")
                              : QStringLiteral("grdValoresRetificacao");
    d.tituloGrade = indice == 0 ? QStringLiteral("Valores Associados ao Mandado Judicial")
                                : QStringLiteral("Valores para Retificação");
    d.colunasGrade = {
        {QStringLiteral("ID_VRT_MICRO"), QStringLiteral("ID_VRT_MICRO"), 0, {}},
        {QStringLiteral("Modalidade"), nmMod, 133, {}, nullptr, QStringLiteral("VRT - PI sem PPB")},
        {QStringLiteral("Descrição"), nmTipo, 200, {}, nullptr, QStringLiteral("Imposto sobre Prod. Industrializados")},
        {QStringLiteral("Valor"), valor, 133, QStringLiteral("#,##0.00"), nullptr, QStringLiteral("9.999.999.999.999,99")},
        {mod, mod, 0, {}},
        {tipo, tipo, 0, {}},
    };
    d.padraoBotoes = QStringLiteral("cmd%1Valores(") + i + QStringLiteral(")");
    d.msgSemSelecao = QStringLiteral("Inclua uma modalidade ou selecione no grid");
    d.msgDuplicado = QStringLiteral("Modalidade já incluída.");
    d.opcoes = [indice, temProcesso, modalidade](const QString& campo, const ExecutorBloco& bloco) {
        if (campo == modalidade)
            return Modalidades(indice, temProcesso());
        const CampoBloco& m = bloco.descricao().campos.at(0);
        return Descricoes(indice, bloco.valorCampo(m).toString(), temProcesso());
    };
    return d;
}

}  // namespace BlocosValores
