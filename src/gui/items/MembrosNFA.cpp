// The acquisition invoice of a foreign product: no electronic number, no currency, no freight and insurance and
// no suspension; number, series, item, date, CFOP and supplier's CNPJ, and a unit value or an obsolete product's
// total chosen by the Decreto-Lei 288/67 and obsolescence checks.
#include "gui/items/MembrosFamilia.h"

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString MaiorQueZero = t("Campo deve ser maior que zero.");

QStringList colunasLinha(bool individual)
{
    const QStringList nota{t("NR_NF_AQUIS"),      t("NR_SERIE_NF_AQUIS"),  t("NR_ITEM_NF_AQUIS"), t("DT_EMISS_NF_AQUIS"),
                           t("CD_CFOP_NF_AQUIS"), t("NR_CNPJ_FORNECEDOR"), t("IND_DL_288_67")};
    // The individual editor never writes VL_TOT_PROD_INT: the value typed in its total is not stored.
    if (individual)
        return nota + QStringList{t("IND_OBSOLE_RESIDUO"), t("VL_INS_PROD_UNID_NFS"), t("QT_PROD_UNID_NFS")};
    return nota + QStringList{t("IND_OBSOLE_RESIDUO"), t("VL_TOT_PROD_OBSOLE"), t("VL_PROD_UNID_PROD"),
                              t("QT_PROD_UNID_PROD")};
}

void nomes(MembroDocumento& m)
{
    m.nomes = {{Papel::DecretoLei, t("chkDecretoLei28867_tabProdutoEstrangeiro_NFA")},
               {Papel::Obsolescencia, t("chkObsolescenciaouResiduo_tabProdutoEstrangeiro_NFA")}};
    const QList<QPair<Papel, const char*>> mensal{
        {Papel::NumeroNF, "mskPIsemPPBNFA(4)"},       {Papel::Serie, "txtSerieNFA_PE"},
        {Papel::ItemNF, "txtItemNFA_PE"},             {Papel::CFOP, "txtCFOP_NFA_PE"},
        {Papel::Data, "mskPEDocOrigemMensal"},        {Papel::CNPJ, "mskCNPJEmissorNFA_PE"},
        {Papel::Quantidade, "mskQtUnidMedComNFA_PE"}, {Papel::ValorUnitario, "mskVlUnitMedComNFA_PE"},
        {Papel::ValorTotal, "mskVlTotalVendaProdObsNFA_PE"}};
    const QList<QPair<Papel, const char*>> individual{
        {Papel::NumeroNF, "mskProdutoEstrangeiroNFA(7)"},   {Papel::Serie, "txtProdutoEstrangeiroNFA(1)"},
        {Papel::ItemNF, "txtProdutoEstrangeiroNFA(2)"},     {Papel::CFOP, "txtProdutoEstrangeiroNFA(3)"},
        {Papel::Data, "mskProdutoEstrangeiroNFA(0)"},       {Papel::CNPJ, "mskProdutoEstrangeiroNFA(1)"},
        {Papel::Quantidade, "mskProdutoEstrangeiroNFA(2)"}, {Papel::ValorUnitario, "mskProdutoEstrangeiroNFA(3)"},
        {Papel::ValorTotal, "mskProdutoEstrangeiroNFA(6)"}};
    for (const auto& [p, nome] : m.individual ? individual : mensal)
        m.nomes.insert(p, t(nome));
}

void colunas(MembroDocumento& m)
{
    m.colunas = {{Papel::NumeroNF, t("NR_NF_AQUIS")},        {Papel::Serie, t("NR_SERIE_NF_AQUIS")},
                 {Papel::ItemNF, t("NR_ITEM_NF_AQUIS")},     {Papel::Data, t("DT_EMISS_NF_AQUIS")},
                 {Papel::CFOP, t("CD_CFOP_NF_AQUIS")},       {Papel::CNPJ, t("NR_CNPJ_FORNECEDOR")},
                 {Papel::DecretoLei, t("IND_DL_288_67")},    {Papel::Obsolescencia, t("IND_OBSOLE_RESIDUO")}};
    if (m.individual) {
        m.colunas.insert(Papel::Quantidade, t("QT_PROD_UNID_NFS"));
        m.colunas.insert(Papel::ValorUnitario, t("VL_INS_PROD_UNID_NFS"));
    } else {
        m.colunas.insert(Papel::Quantidade, t("QT_PROD_UNID_PROD"));
        m.colunas.insert(Papel::ValorUnitario, t("VL_PROD_UNID_PROD"));
        m.colunas.insert(Papel::ValorTotal, t("VL_TOT_PROD_OBSOLE"));
    }
}

// Series, CFOP and CNPJ are not required in a monthly line; the individual editor asks for everything.
QList<Passo> passos(bool individual)
{
    if (individual)
        return {{Teste::Vazio, Papel::NumeroNF, t("O campo número da NF de entrada deve ser preenchido.")},
                {Teste::Vazio, Papel::Serie, t("O campo série deve ser preenchido.")},
                {Teste::Vazio, Papel::Data, t("O campo data deve ser preenchido.")},
                {Teste::Vazio, Papel::ItemNF, t("O campo item deve ser preenchido.")},
                {Teste::Vazio, Papel::CFOP, t("O campo CFOP deve ser preenchido.")},
                {Teste::Regra, Papel::CFOP, QString()},
                {Teste::Vazio, Papel::CNPJ, t("O campo CNPJ deve ser preenchido.")},
                {Teste::Vazio, Papel::Quantidade, t("O campo quantidade comercial deve ser preenchido.")},
                {Teste::VazioSeAtivo, Papel::ValorUnitario,
                 t("O campo valor unit. na unid. de medida comercial deve ser preenchido.")}};
    // The quantity's and the values' message has no full stop, the item's has one. Between the number's blank and
    // zero tests the monthly editor refuses a number whose text has 8 or more characters ("Número da NFA inválido").
    // That test never fires: the field takes six digits and shows them as "000.000", seven characters, and the
    // column holds six, so it is left out.
    return {{Teste::Vazio, Papel::NumeroNF, t("O campo número da NF de entrada deve ser preenchido.")},
            {Teste::Zero, Papel::NumeroNF, t("Este campo não pode ser zero.")},
            {Teste::Vazio, Papel::Quantidade, t("Este campo não pode ser nulo")},
            {Teste::VazioSeAtivo, Papel::ValorTotal, t("Este campo não pode ser nulo")},
            {Teste::VazioSeAtivo, Papel::ValorUnitario, t("Este campo não pode ser nulo")},
            {Teste::Vazio, Papel::Data, t("Data de emissão ausente.")},
            {Teste::Vazio, Papel::ItemNF, t("Este campo não pode ser nulo.")},
            {Teste::Regra, Papel::CFOP, QString()}};
}

void mensagens(MembroDocumento& m)
{
    if (m.individual) {
        m.msgDuplicadoEletronica = t("NF de entrada já incluída.");
        m.msgSemPai = t("Não foi escolhido produto para documento de origem.");
        m.msgSemSelecaoAlterar = t("Inclua ou selecione um documento.");
        m.msgSemSelecaoExcluir = t("Inclua ou selecione um documento.");
        m.msgSerieZero = t("Série da Nota Fiscal inválida.");
    } else {
        m.msgDuplicadoEletronica = t("O conjunto Número/Série(Subsérie)/Item da NF de entrada já foi incluído.");
        m.msgSemPai = t("O campo código do produto deve ser selecionado.");
        m.msgSemSelecaoAlterar = t("Inclua um documento ou selecione no grid");
        m.msgSemSelecaoExcluir = t("Inclua um documento ou selecione no grid");
        m.msgSerieZero = t("O número da série não pode ser zero.");
    }
    // Unlike the DI and the DSI, both editors search again on Alterar.
    m.msgDuplicadoAlteracao = t("NF de entrada já incluída.");
    m.msgDataAno = t("Ano da Nota Fiscal deve ser igual ou superior a 1970.");
}

}  // namespace

namespace MembrosFamilia {

MembroDocumento nfaProduto(bool individual)
{
    MembroDocumento m;
    m.tipo = TipoDocumento::NFA;
    m.origem = Origem::Produto;
    m.individual = individual;
    m.dados = {individual ? t("ITEM_NFA_PE_IND") : t("ITEM_NFA_PE_MEN"), t("ID_ITEM_NFA"),
               {individual ? t("ID_ITEM") : t("ID_DEST_PRODUTO")}, colunasLinha(individual)};
    nomes(m);
    colunas(m);
    const QString numeroZero = individual ? t("Número da Nota Fiscal de entrada inválido.")
                                          : t("Número da nota fiscal de entrada inválido.");
    m.regras = {{Papel::NumeroNF, {0, numeroZero, QString(), -1, -1, false, 6}},
                {Papel::ItemNF, {0, individual ? MaiorQueZero : t("O número do item não pode ser zero."), QString(),
                                 -1, -1, false, 3}}};
    m.rotulos = {{Papel::Obsolescencia, individual ? t("Obsolescência, Resíduo ou Sucata") : t("Obsolescência ou Resíduo")},
                 {Papel::Quantidade, t("Quant. comercial em ")},
                 {Papel::ValorUnitario, individual ? t("Valor unit. na unid. de medida comercial")
                                                   : t("Valor unitário na medida comercial")},
                 {Papel::ValorTotal, individual ? t("Valor total do produto (R$)")
                                                : t("Valor total venda prod. obsoleto (R$)")}};
    m.msgZeroDecimal = individual ? MaiorQueZero : t("Este campo não pode ser igual a zero.");
    m.passos = passos(individual);
    m.chaveDuplicado = {Papel::NumeroNF, Papel::Serie, Papel::ItemNF};
    // Two suppliers may share a number in the individual editor.
    if (individual)
        m.chaveDuplicado << Papel::CNPJ;
    mensagens(m);
    // The monthly editor opens the unit value only with the Decreto-Lei on and the obsolescence off; the
    // individual one opens it with the Decreto-Lei and lets each change of the obsolescence decide.
    m.unitarioAoMudarDecreto = individual ? Condicao::Decreto : Condicao::DecretoSemObsolescenciaOuSuspensao;
    m.unitarioAoMudarObsolescencia = individual ? Condicao::Obsolescencia : Condicao::DecretoSemObsolescenciaOuSuspensao;
    m.serieMaiuscula = !individual;
    m.nomeQuadro = t("fraNFA_tabProdutoEstrangeiro");
    m.nomeRotuloQuantidade = t("lblQuantidadeNFA_PE");
    m.nomeGrade = t("grdConsultaNFA_tabProdutoEstrangeiro");
    if (individual)
        m.grade = {{t("Item"), t("#item"), QString(), 40},
                   {t("Código do Produto"), t("#produto"), QString(), 110},
                   {t("NF"), t("NR_NF_AQUIS"), QString(), 70},
                   {t("Série"), t("NR_SERIE_NF_AQUIS"), QString(), 60},
                   {t("Item"), t("NR_ITEM_NF_AQUIS"), QString(), 40},
                   {t("CNPJ"), t("NR_CNPJ_FORNECEDOR"), t("@@.@@@.@@@/@@@@-@@"), 130}};
    else
        m.grade = {{t("Código do produto"), t("#produto"), QString(), 110},
                   {t("Local de destino"), t("#local"), QString(), 130},
                   {t("NF"), t("NR_NF_AQUIS"), QString(), 70},
                   {t("Série"), t("NR_SERIE_NF_AQUIS"), QString(), 60},
                   {t("Item"), t("NR_ITEM_NF_AQUIS"), QString(), 40},
                   {t("Quantidade"), t("QT_PROD_UNID_PROD"), t("#,##0.00000"), 110}};
    return m;
}

}  // namespace MembrosFamilia
