// The DSI of a foreign product: the DI's frame without the Decreto-Lei 288/67 and the obsolescence, a "Número do
// bem" in place of adição and item, and the three value blocks in the line itself, open only under suspension.
#include "gui/items/MembrosFamilia.h"

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString MaiorQueZero = t("Campo deve ser maior que zero.");
const QString Invalido = t("Campo inválido.");
const QString SeisDigitos = t("Informe número de 6 dígitos.");

// Unlike the DI, a monthly year of zero passes; the individual editor bounds the year by 50 and 99.
QMap<Papel, RegraDigitos> regras(bool individual)
{
    if (individual)
        return {{Papel::Ano, {2, QString(), Invalido, 50, 99, true}},
                {Papel::Orgao, {7, MaiorQueZero, Invalido, -1, -1, true}},
                {Papel::Sequencial, {6, MaiorQueZero, SeisDigitos, -1, -1, true}},
                {Papel::NumeroBem, {0, MaiorQueZero, QString(), -1, -1, true, 3}}};
    return {{Papel::Ano, {2, QString(), Invalido}},
            {Papel::Orgao, {7, t("O campo orgão não pode ser igual a zero."), Invalido}},
            {Papel::Sequencial, {6, t("O campo seqüencial não pode ser igual a zeros."), SeisDigitos}},
            {Papel::NumeroBem, {0, t("O número do bem não pode ser zero."), Invalido, -1, -1, false, 3}}};
}

QStringList colunasLinha(bool individual)
{
    const QStringList valores{t("CD_MOEDA_NEG"), t("VL_PROD_UNID_PROD"), t("CD_MOEDA_FRETE"), t("VL_FRETE_UNID_INT"),
                              t("CD_MOEDA_SEGURO"), t("VL_SEGURO_UNID_INT")};
    if (individual)
        return QStringList{t("NR_DSI"), t("NR_BEM"), t("NR_DSI_ANTIGA"), t("QT_PROD_UNID_NFS"), t("IND_SUSP_PIS_COFINS")}
               + valores;
    return QStringList{t("NR_DSI"), t("NR_DSI_ANTIGA"), t("NR_BEM"), t("QT_PROD_UNID_PROD"), t("IND_SUSP_PIS_COFINS")}
           + valores;
}

}  // namespace

namespace MembrosFamilia {

MembroDocumento dsiProduto(bool individual)
{
    MembroDocumento m;
    m.tipo = TipoDocumento::DSI;
    m.origem = Origem::Produto;
    m.individual = individual;
    const QString quantidade = individual ? t("QT_PROD_UNID_NFS") : t("QT_PROD_UNID_PROD");
    m.dados = {individual ? t("ITEM_DSI_PE_IND") : t("ITEM_DSI_PE_MEN"), t("ID_ITEM_DSI"),
               {individual ? t("ID_ITEM") : t("ID_DEST_PRODUTO")}, colunasLinha(individual)};
    m.nomes = {{Papel::Sim, t("optPosterior1997_tabProdutoEstrangeiro_DSI")},
               {Papel::Nao, t("optAnterior1997_tabProdutoEstrangeiro_DSI")},
               {Papel::Suspensao, t("chk_Suspensao_DSI_TabPE")},
               {Papel::Moeda0, t("txtMoedaDSI_PE(0)")},
               {Papel::Moeda1, t("txtMoedaDSI_PE(1)")},
               {Papel::Moeda2, t("txtMoedaDSI_PE(2)")},
               {Papel::Valor0, t("mskVlUnitMedidaDSI_PE(0)")},
               {Papel::Valor1, t("mskVlUnitMedidaDSI_PE(1)")},
               {Papel::Valor2, t("mskVlUnitMedidaDSI_PE(2)")}};
    if (individual) {
        m.nomes.insert(Papel::Numero, t("mskProdutoEstrangeiroDSI(0)"));
        m.nomes.insert(Papel::Ano, t("txtProdutoEstrangeiroDSI(0)"));
        m.nomes.insert(Papel::Orgao, t("txtProdutoEstrangeiroDSI(1)"));
        m.nomes.insert(Papel::Sequencial, t("txtProdutoEstrangeiroDSI(2)"));
        m.nomes.insert(Papel::NumeroBem, t("txtProdutoEstrangeiroDSI(3)"));
        m.nomes.insert(Papel::Quantidade, t("mskProdutoEstrangeiroDSI(1)"));
    } else {
        m.nomes.insert(Papel::Numero, t("txtNumDSI_PE"));
        m.nomes.insert(Papel::Ano, t("txtAnoDSI_PE"));
        m.nomes.insert(Papel::Orgao, t("txtOrgaoDSI_PE"));
        m.nomes.insert(Papel::Sequencial, t("txtSequencialDSI_PE"));
        m.nomes.insert(Papel::NumeroBem, t("txtNumBemDSI_PE"));
        m.nomes.insert(Papel::Quantidade, t("mskQtUnidMedComDSI_PE"));
    }
    m.colunas = {{Papel::Numero, t("NR_DSI")},
                 {Papel::NumeroBem, t("NR_BEM")},
                 {Papel::Quantidade, quantidade},
                 {Papel::Suspensao, t("IND_SUSP_PIS_COFINS")},
                 {Papel::Moeda0, t("CD_MOEDA_NEG")},
                 {Papel::Valor0, t("VL_PROD_UNID_PROD")},
                 {Papel::Moeda1, t("CD_MOEDA_FRETE")},
                 {Papel::Valor1, t("VL_FRETE_UNID_INT")},
                 {Papel::Moeda2, t("CD_MOEDA_SEGURO")},
                 {Papel::Valor2, t("VL_SEGURO_UNID_INT")}};
    m.colunaNumeroAntiga = t("NR_DSI_ANTIGA");
    m.regras = regras(individual);
    m.rotulos = {{Papel::Suspensao, t("DSI com suspensão de PIS/PASEP e COFINS (Lei n° 10.865/2004)")},
                 {Papel::Quantidade, t("Quant. comercial em ")}};
    m.msgZeroDecimal = individual ? MaiorQueZero : t("Este campo não pode ser igual a zero.");
    m.tipoDigito = t("DSI");
    m.msgNumeroInvalido = t("Número da DSI inválido.");
    if (individual) {
        m.msgNumeroIncompleto = t("Número deve ter 10 dígitos.");
        m.prefixoRecusado = {50, 98};
        m.msgPrefixoRecusado = Invalido;
    }
    m.msgNumeroVazio = t("O campo número da DSI deve ser preenchido.");
    m.msgNumeroZero = t("DSI não pode ser igual a zeros.");
    m.msgNumeroCurto = t("DSI incorreta");
    m.msgAntigaVazia = t("Os campos ano, órgão e seqüencial devem ser preenchidos.");
    m.passos = {{Teste::Vazio, Papel::NumeroBem, t("Este campo não pode ser nulo.")},
                {Teste::Vazio, Papel::Quantidade, t("Este campo não pode ser nulo")}};
    m.chaveDuplicado = {Papel::NumeroBem};
    if (individual) {
        m.msgDuplicadoEletronica = t("DSI já incluída.");
        m.msgDuplicadoAntiga = t("DSI já incluída.");
        m.msgSemPai = t("Não foi escolhido produto para documento de origem.");
        m.msgSemSelecaoAlterar = t("Inclua ou selecione um documento.");
        m.msgSemSelecaoExcluir = t("Inclua ou selecione um documento.");
    } else {
        m.msgDuplicadoEletronica = t("O conjunto Número/Número do Bem da DSI eletrônica já foi incluído.");
        m.msgDuplicadoAntiga = t("O conjunto Ano/Orgão/Seqüencial/Número do Bem da DSI já foi incluído.");
        m.msgDuplicadoAlteracao = t("DSI já incluída.");
        m.msgSemSelecaoAlterar = t("Inclua um documento ou selecione no grid");
        m.msgSemSelecaoExcluir = t("Inclua um documento ou selecione no grid");
    }
    m.habilitacao = Condicao::Suspensao;
    m.esvaziaBlocosAoMudar = true;
    m.chavesMoeda = individual
                        ? QStringList{t("produtoPEDSIProd"), t("produtoPEDSIFI"), t("produtoPEDSISI")}
                        : QStringList{t("produtoPEMensalDSIProd"), t("produtoPEMensalDSIFI"), t("produtoPEMensalDSISI")};
    m.titulosBlocos = {t("Produto"), t("Frete Internacional"), t("Seguro Internacional")};
    m.nomeQuadro = t("fraDSI_tabProdutoEstrangeiro");
    m.nomeRotuloQuantidade = t("lblQuantidadeDSI_PE");
    m.nomeGrade = t("grdConsultaDSI_tabProdutoEstrangeiro");
    if (individual)
        m.grade = {{t("Item"), t("#item"), QString(), 40},
                   {t("Código do Produto"), t("#produto"), QString(), 110},
                   {t("Núm. DSI"), t("NR_DSI"), t("@@/@@@@@@@-@"), 100},
                   {t("Núm. DSI Antiga"), t("NR_DSI_ANTIGA"), QString(), 120},
                   {t("Número do Bem"), t("NR_BEM"), QString(), 90}};
    else
        m.grade = {{t("Código do produto"), t("#produto"), QString(), 110},
                   {t("Local de destino"), t("#local"), QString(), 130},
                   {t("Nº DSI"), t("NR_DSI"), t("@@/@@@@@@@-@"), 100},
                   {t("Nº DSI Antiga"), t("NR_DSI_ANTIGA"), QString(), 120},
                   {t("Nº do Bem"), t("NR_BEM"), QString(), 70},
                   {t("Quantidade"), quantidade, t("#,##0.00000"), 110}};
    return m;
}

}  // namespace MembrosFamilia
