#include "gui/items/BlocosNacional.h"

#include "core/store/ItensDeclaracao.h"
#include "core/store/ItensNacional.h"
#include "gui/items/CamposItem.h"

using namespace CamposItem;

namespace BlocosNacional {

namespace {

const QString Quantidade = QStringLiteral("###,###,##0.00000");
const QString ValorTotal = QStringLiteral("#,###,###,###,##0.00");
const QString ValorUnitario = QStringLiteral("#,###,###,###,##0.0000000");
QList<OpcaoLista> opcoes(const QString&, const ExecutorBloco&)
{
    return OpcoesUnidade();
}

}  // namespace

DescricaoBloco Mensal()
{
    const QString botaoNcm = QStringLiteral("cmdAssistenteNCM_tab100Nacional_Mensal");
    const QString botaoProduto = QStringLiteral("cmdAssistenteCodigoControleInterno_tab100Nacional_Mensal");
    const QString chave = QStringLiteral("produto100NacionalMensal");
    const QString zero = MsgZero(false);
    DescricaoBloco d;
    d.dados = {QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ID_VRT_MICRO"), {QStringLiteral("ID_ITEM_VRT")}, {}, {}};
    d.tituloCampos = QStringLiteral("Produto");
    d.campos = {
        ncm(QStringLiteral("mskNumNCM100"), QStringLiteral("NCM"), botaoNcm, chave, QStringLiteral("txtDescrNCM100"),
            QStringLiteral("txtUnidMedEstatistica"), false, QStringLiteral("CD_NCM_PRODUTO")),
        descricao(QStringLiteral("txtDescrNCM100"), QStringLiteral("Descrição NCM"), {}),
        produto(QStringLiteral("txtCodProd100N"), QStringLiteral("Código do produto"), botaoProduto, chave,
                QStringLiteral("txtDescrProd100N"), QStringLiteral("CD_INT_PRODUTO"), 1),
        descricao(QStringLiteral("txtDescrProd100N"), QStringLiteral("Descrição do produto"),
                  QStringLiteral("NM_INT_PRODUTO"), 80, 1),
        valor(QStringLiteral("msk100N(2)"), QStringLiteral("Quant. total comercial"), DecimalField::Quantity,
              Quantidade, QStringLiteral("QT_PROD_UNID_PROD"), zero, 2),
        unidade(QStringLiteral("cboUnidade100"), QStringLiteral("Unid. medida comercial"),
                QStringLiteral("NM_UNID_MED_PROD"), 2),
        valor(QStringLiteral("msk100N(0)"), QStringLiteral("Quant. total estatística"), DecimalField::Quantity,
              Quantidade, QStringLiteral("QT_PROD_UNID_EST"), zero, 3),
        descricao(QStringLiteral("txtUnidMedEstatistica"), QStringLiteral("Unidade estatística"),
                  QStringLiteral("NM_UNID_MED_EST"), 20, 3),
        valor(QStringLiteral("msk100N(1)"), QStringLiteral("Valor total internado (R$)"), DecimalField::TotalValue,
              ValorTotal, QStringLiteral("VL_PROD_UNID_PROD"), zero, 3),
    };
    d.nomeGrade = QStringLiteral("grdConsulta100NacionalMensal");
    d.tituloGrade = QStringLiteral("Consulta Produto");
    d.colunasGrade = {
        {QStringLiteral("ID_ITEM_VRT"), QStringLiteral("ID_ITEM_VRT"), 0, {}},
        {QStringLiteral("Código do produto"), QStringLiteral("CD_INT_PRODUTO"), 120, {}},
        {QStringLiteral("Descrição"), QStringLiteral("NM_INT_PRODUTO"), 307, {}},
        {QStringLiteral("Quantidade"), QStringLiteral("QT_PROD_UNID_PROD"), 107, Quantidade},
        {QStringLiteral("NCM"), QStringLiteral("CD_NCM_PRODUTO"), 104, QStringLiteral("@@@@.@@.@@")},
        {QStringLiteral("NM_UNID_MED_PROD"), QStringLiteral("NM_UNID_MED_PROD"), 0, {}},
        {QStringLiteral("QT_PROD_UNID_EST"), QStringLiteral("QT_PROD_UNID_EST"), 0, {}},
        {QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("VL_PROD_UNID_PROD"), 0, {}},
        {QStringLiteral("NM_UNID_MED_EST"), QStringLiteral("NM_UNID_MED_EST"), 0, {}},
    };
    d.padraoBotoes = QStringLiteral("cmd%1_tab100Nacional_Mensal");
    d.msgSemSelecao = QStringLiteral("Inclua um produto ou selecione no grid");
    d.opcoes = opcoes;
    d.regras = regrasProduto(QStringLiteral("mskNumNCM100"), QStringLiteral("txtDescrNCM100"), botaoNcm,
                             QStringLiteral("txtCodProd100N"), QStringLiteral("txtDescrProd100N"), botaoProduto);
    d.regras += {
        vazio(QStringLiteral("msk100N(2)"), QStringLiteral("O campo quantidade total comercial não pode ser nulo")),
        unidadeEscolhida(QStringLiteral("cboUnidade100")),
        vazio(QStringLiteral("msk100N(0)"), QStringLiteral("O campo quantidade total estatística não pode ser nulo")),
        vazio(QStringLiteral("msk100N(1)"), QStringLiteral("O campo valor total internado não pode ser nulo")),
        // Within modality '4' a product stands once; other modalities of the declaration may have it too.
        {[](const ExecutorBloco& b, Operacao op) {
             const QString produto = b.valor(QStringLiteral("txtCodProd100N"));
             if (op == Operacao::Alterar && produto == b.valorEscolhido(QStringLiteral("CD_INT_PRODUTO")))
                 return QString();
             return ItensDeclaracao::ItemMensal(b.pai().toString(), produto, QStringLiteral("4"))
                        ? QStringLiteral("Produto já incluído.")
                        : QString();
         },
         {}},
    };
    d.linhas = [](const QVariant& pai) { return ItensNacional::LinhasMensal(pai.toString()); };
    d.grava = [](const ExecutorBloco& b, const QVariant& pai, Operacao op) {
        QVariantMap v{{QStringLiteral("CD_INT_PRODUTO"), b.valor(QStringLiteral("txtCodProd100N"))},
                      {QStringLiteral("CD_NCM_PRODUTO"), b.valor(QStringLiteral("mskNumNCM100"))},
                      {QStringLiteral("NM_UNID_MED_PROD"), b.valor(QStringLiteral("cboUnidade100"))},
                      {QStringLiteral("QT_PROD_UNID_PROD"), b.valor(QStringLiteral("msk100N(2)"))},
                      {QStringLiteral("QT_PROD_UNID_EST"), b.valor(QStringLiteral("msk100N(0)"))},
                      {QStringLiteral("VL_PROD_UNID_PROD"), b.valor(QStringLiteral("msk100N(1)"))}};
        if (op == Operacao::Alterar) {
            // The name is not rewritten: a product changed here keeps the old name in the row.
            ItensDeclaracao::Altera(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"),
                                    b.chaveSelecionada().value(0), v);
            return;
        }
        v.insert(QStringLiteral("ID_VRT_MICRO"), pai);
        v.insert(QStringLiteral("NM_INT_PRODUTO"), b.valor(QStringLiteral("txtDescrProd100N")));
        v.insert(QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("4"));
        ItensDeclaracao::Insere(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"), v);
    };
    d.apaga = [](const ExecutorBloco& b, const QVariant&) {
        ItensDeclaracao::Exclui(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"),
                                b.chaveSelecionada().value(0));
    };
    ligaEscolhas(d);
    return d;
}

DescricaoBloco Individual()
{
    const QString item = QStringLiteral("txt100NacionalIndividual(0)");
    const QString ncmCampo = QStringLiteral("msk100NacionalIndividual(0)");
    const QString descrNcm = QStringLiteral("txt100NacionalIndividual(4)");
    const QString botaoNcm = QStringLiteral("cmdAssistenteNCM_tab100Nacional_Individual");
    const QString botaoProduto = QStringLiteral("cmdAssistenteCodigoControleInterno_tab100Nacional_Individual");
    const QString chave = QStringLiteral("produto100Nacional");
    const QString zero = MsgZero(true);
    DescricaoBloco d;
    d.dados = {QStringLiteral("ITEM_NFS"), QStringLiteral("ID_NFS"), {QStringLiteral("ID_ITEM")}, {}, {}};
    d.tituloCampos = QStringLiteral("Produto");
    d.campos = {
        numeroItem(item, QStringLiteral("NR_ITEM_NF_SAIDA")),
        ncm(ncmCampo, QStringLiteral("NCM"), botaoNcm, chave, descrNcm, QStringLiteral("txtdisplay100"), true,
            QStringLiteral("CD_NCM_PROD"), 1),
        descricao(descrNcm, QStringLiteral("Descrição NCM"), {}, 80, 1),
        produto(QStringLiteral("txtCodProd100N"), QStringLiteral("Código do produto"), botaoProduto, chave,
                QStringLiteral("txtDescrProd100N"), QStringLiteral("CD_INT_PROD"), 2),
        descricao(QStringLiteral("txtDescrProd100N"), QStringLiteral("Descrição do produto"),
                  QStringLiteral("NM_INT_PROD"), 80, 2),
        unidade(QStringLiteral("cboUnidade100"), QStringLiteral("Unidade de medida comercial"),
                QStringLiteral("NM_UNID_MED_PROD"), 3),
        valor(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("Quant. Comercial"),
              DecimalField::Quantity, Quantidade, QStringLiteral("QT_INT_UNID_NFS"), zero, 3),
        valor(QStringLiteral("msk100NacionalIndividual(2)"), QStringLiteral("Valor unit. na unid. med. comercial"),
              DecimalField::UnitValue, ValorUnitario, QStringLiteral("VL_INT_UNID_NFS"), zero, 3),
        valor(QStringLiteral("msk100NacionalIndividual(3)"), QStringLiteral("Quant. Estatística"),
              DecimalField::Quantity, Quantidade, QStringLiteral("QT_INT_UNID_EST"), zero, 4),
        descricao(QStringLiteral("txtdisplay100"), QStringLiteral("Unidade estatística"), {}, 20, 4),
    };
    d.nomeGrade = QStringLiteral("grdConsultaNotaFiscalSaida_tab100NacionalIndividual");
    d.tituloGrade = QStringLiteral("Consulta Produto");
    d.colunasGrade = {
        {QStringLiteral("Item"), QStringLiteral("NR_ITEM_NF_SAIDA"), 63, {}},
        {QStringLiteral("Código do Produto"), QStringLiteral("CD_INT_PROD"), 127, {}},
        {QStringLiteral("Quantidade"), QStringLiteral("QT_INT_UNID_NFS"), 97, Quantidade},
        {QStringLiteral("NCM"), QStringLiteral("CD_NCM_PROD"), 100, QStringLiteral("@@@@.@@.@@")},
        {QStringLiteral("NM_UNID_MED_PROD"), QStringLiteral("NM_UNID_MED_PROD"), 0, {}},
        {QStringLiteral("VL_INT_UNID_NFS"), QStringLiteral("VL_INT_UNID_NFS"), 0, {}},
        {QStringLiteral("QT_INT_UNID_EST"), QStringLiteral("QT_INT_UNID_EST"), 0, {}},
        {QStringLiteral("VL_INT_UNID_EST"), QStringLiteral("VL_INT_UNID_EST"), 0, {}},
        {QStringLiteral("ID_ITEM"), QStringLiteral("ID_ITEM"), 0, {}},
        {QStringLiteral("NM_INT_PROD"), QStringLiteral("NM_INT_PROD"), 0, {}},
        {QStringLiteral("NR_NF_SAIDA"), QStringLiteral("NR_NF_SAIDA"), 0, {}},
        {QStringLiteral("NR_SERIE_NF_SAIDA"), QStringLiteral("NR_SERIE_NF_SAIDA"), 0, {}},
        {QStringLiteral("ID_NFS"), QStringLiteral("ID_NFS"), 0, {}},
    };
    d.padraoBotoes = QStringLiteral("cmd%1_tab100NacionalIndividual");
    d.msgSemSelecao = QStringLiteral("Inclua um produto ou selecione no grid");
    d.opcoes = opcoes;
    d.regras = {vazio(item, QStringLiteral("O campo item deve ser preenchido."))};
    d.regras += regrasProduto(ncmCampo, descrNcm, botaoNcm, QStringLiteral("txtCodProd100N"),
                              QStringLiteral("txtDescrProd100N"), botaoProduto);
    d.regras += {
        unidadeEscolhida(QStringLiteral("cboUnidade100")),
        vazio(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("O campo quant. comercial deve ser preenchido.")),
        vazio(QStringLiteral("msk100NacionalIndividual(2)"),
              QStringLiteral("O campo valor unit. na unid. med. comercial deve ser preenchido.")),
        vazio(QStringLiteral("msk100NacionalIndividual(3)"), QStringLiteral("O campo quant. estatística deve ser preenchido.")),
        numeroItemLivre(item, QStringLiteral("NR_ITEM_NF_SAIDA")),
    };
    d.linhas = [](const QVariant& pai) { return ItensNacional::LinhasIndividual(pai.toLongLong()); };
    d.grava = [item, ncmCampo](const ExecutorBloco& b, const QVariant& pai, Operacao op) {
        QVariantMap v{{QStringLiteral("NR_ITEM_NF_SAIDA"), b.valor(item)},
                      {QStringLiteral("CD_INT_PROD"), b.valor(QStringLiteral("txtCodProd100N"))},
                      {QStringLiteral("NM_INT_PROD"), b.valor(QStringLiteral("txtDescrProd100N"))},
                      {QStringLiteral("CD_NCM_PROD"), b.valor(ncmCampo)},
                      {QStringLiteral("NM_UNID_MED_PROD"), b.valor(QStringLiteral("cboUnidade100"))}};
        QVariantMap valores{{QStringLiteral("QT_INT_UNID_NFS"), b.valor(QStringLiteral("msk100NacionalIndividual(1)"))},
                            {QStringLiteral("QT_INT_UNID_EST"), b.valor(QStringLiteral("msk100NacionalIndividual(3)"))},
                            {QStringLiteral("VL_INT_UNID_NFS"), b.valor(QStringLiteral("msk100NacionalIndividual(2)"))}};
        if (op == Operacao::Alterar) {
            const QVariant id = b.chaveSelecionada().value(0);
            ItensDeclaracao::Altera(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"), id, v);
            ItensDeclaracao::Altera(QStringLiteral("ITEM_NFS_100"), QStringLiteral("ID_ITEM"), id, valores);
            return;
        }
        v.insert(QStringLiteral("ID_NFS"), pai);
        v.insert(QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("4"));
        valores.insert(QStringLiteral("ID_ITEM"),
                       ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"), v));
        ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS_100"), {}, valores);
    };
    d.apaga = [](const ExecutorBloco& b, const QVariant&) {
        ItensDeclaracao::Exclui(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"), b.chaveSelecionada().value(0));
    };
    ligaEscolhas(d);
    return d;
}

}  // namespace BlocosNacional
