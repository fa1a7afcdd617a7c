// The acquisition invoice of a foreign product and of an input, in both editors: no electronic number, no currency,
// no freight and insurance and no suspension; number, series, item, date, CFOP and supplier's CNPJ, and a unit value
// (for a foreign product, or an obsolete product's total) opened by the Decreto-Lei 288/67 check.
#include "gui/items/MembrosFamilia.h"

namespace {

using namespace MembrosFamilia;

const QList<PorPapel> Nomes{
    {Papel::DecretoLei, {"chkDecretoLei28867_tabProdutoEstrangeiro_NFA", "chkDecretoLei28867_tabProdutoEstrangeiro_NFA",
                         "chkDecretoLei28867_tabPIsemPPB_NFA", "chkDecretoLei28867_tabPIsemPPB_NFA"}},
    {Papel::Obsolescencia, {"chkObsolescenciaouResiduo_tabProdutoEstrangeiro_NFA",
                            "chkObsolescenciaouResiduo_tabProdutoEstrangeiro_NFA", nullptr, nullptr}},
    {Papel::NumeroNF, {"mskPIsemPPBNFA(4)", "mskProdutoEstrangeiroNFA(7)", "mskPIsemPPBNFA(0)", "mskPIsemPPBNFA(4)"}},
    {Papel::Serie, {"txtSerieNFA_PE", "txtProdutoEstrangeiroNFA(1)", "txtPIsemPPBNFA(1)", "txtPIsemPPBNFA(1)"}},
    {Papel::ItemNF, {"txtItemNFA_PE", "txtProdutoEstrangeiroNFA(2)", "txtPIsemPPBNFA(3)", "txtPIsemPPBNFA(2)"}},
    {Papel::CFOP, {"txtCFOP_NFA_PE", "txtProdutoEstrangeiroNFA(3)", "txtPIsemPPBNFA(4)", "txtPIsemPPBNFA(3)"}},
    {Papel::Data, {"mskPEDocOrigemMensal", "mskProdutoEstrangeiroNFA(0)", "mskEmissaoNFA_PIsemPPB", "mskPIsemPPBNFA(0)"}},
    {Papel::CNPJ, {"mskCNPJEmissorNFA_PE", "mskProdutoEstrangeiroNFA(1)", "mskCNPJEmissorNFA_PIsemPPB", "mskPIsemPPBNFA(1)"}},
    {Papel::Quantidade, {"mskQtUnidMedComNFA_PE", "mskProdutoEstrangeiroNFA(2)", "mskPIsemPPB(15)", "mskPIsemPPBNFA(2)"}},
    {Papel::ValorUnitario, {"mskVlUnitMedComNFA_PE", "mskProdutoEstrangeiroNFA(3)", "mskPIsemPPB(17)", "mskPIsemPPBNFA(3)"}},
    {Papel::ValorTotal, {"mskVlTotalVendaProdObsNFA_PE", "mskProdutoEstrangeiroNFA(6)", nullptr, nullptr}}};

// The individual product's total has no column: the value typed there is never stored (VL_TOT_PROD_INT stays for
// the file reader).
const QList<PorPapel> Colunas{
    {Papel::NumeroNF, {"NR_NF_AQUIS", "NR_NF_AQUIS", "NR_NF_AQUIS", "NR_NF_AQUIS"}},
    {Papel::Serie, {"NR_SERIE_NF_AQUIS", "NR_SERIE_NF_AQUIS", "NR_SERIE_NF_AQUIS", "NR_SERIE_NF_AQUIS"}},
    {Papel::ItemNF, {"NR_ITEM_NF_AQUIS", "NR_ITEM_NF_AQUIS", "NR_ITEM_NF_AQUIS", "NR_ITEM_NF_AQUIS"}},
    {Papel::Data, {"DT_EMISS_NF_AQUIS", "DT_EMISS_NF_AQUIS", "DT_EMISS_NF_AQUIS", "DT_EMISS_NF_AQUIS"}},
    {Papel::CFOP, {"CD_CFOP_NF_AQUIS", "CD_CFOP_NF_AQUIS", "CD_CFOP_NF_AQUIS", "CD_CFOP_NF_AQUIS"}},
    {Papel::CNPJ, {"NR_CNPJ_FORNECEDOR", "NR_CNPJ_FORNECEDOR", "NR_CNPJ_FORNECEDOR", "NR_CNPJ_FORNECEDOR"}},
    {Papel::DecretoLei, {"IND_DL_288_67", "IND_DL_288_67", "IND_DL_288_67", "IND_DL_288_67"}},
    {Papel::Obsolescencia, {"IND_OBSOLE_RESIDUO", "IND_OBSOLE_RESIDUO", nullptr, nullptr}},
    {Papel::ValorTotal, {"VL_TOT_PROD_OBSOLE", nullptr, nullptr, nullptr}},
    {Papel::ValorUnitario, {"VL_PROD_UNID_PROD", "VL_INS_PROD_UNID_NFS", "VL_INSUMO_UNID_INS", "VL_INS_PROD_UNID_NFS"}},
    {Papel::Quantidade, ColunaQuantidade}};

TabelaDocumento dados(const MembroDocumento& m, int k)
{
    QStringList linha;
    for (const PorPapel& p : Colunas)
        if (m.colunas.contains(p.papel))
            linha << m.colunas.value(p.papel);
    const Quatro tabelas{"ITEM_NFA_PE_MEN", "ITEM_NFA_PE_IND", "ITEM_NFA_INS_MEN", "ITEM_NFA_INS_IND"};
    return {Um(tabelas, k), t("ID_ITEM_NFA"), ChavePai(k), linha, {}, {}, {}};
}

// Series, CFOP and CNPJ are not required in a monthly line; the individual editor asks for everything.
QList<Passo> passos(int k)
{
    if (k % 2 == 1)
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
    if (k == 2)
        // The word "campo" stands twice in the unit value's message.
        return {{Teste::Vazio, Papel::NumeroNF, t("O campo número da NF de entrada deve ser preenchido.")},
                {Teste::Zero, Papel::NumeroNF, t("O campo número da NF de entrada não pode ser zero.")},
                {Teste::Vazio, Papel::ItemNF, t("O campo item da NF não pode ser nulo.")},
                {Teste::Vazio, Papel::Data, t("Data de emissão ausente.")},
                {Teste::VazioSeAtivo, Papel::Quantidade, t("O campo quantidade comercial não pode ser nulo.")},
                {Teste::VazioSeAtivo, Papel::ValorUnitario, t("O campo campo valor unitário não pode ser nulo.")},
                {Teste::Regra, Papel::CFOP, QString()}};
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

void mensagens(MembroDocumento& m, int k)
{
    m.msgZeroDecimal = m.individual ? MaiorQueZero : ZeroIgual;
    m.passos = passos(k);
    m.msgDuplicadoEletronica = m.individual ? t("NF de entrada já incluída.")
                                            : t("O conjunto Número/Série(Subsérie)/Item da NF de entrada já foi incluído.");
    // Unlike the DI and the DSI, both editors search again on Alterar.
    m.msgDuplicadoAlteracao = t("NF de entrada já incluída.");
    if (k == 0)
        m.msgSemPai = t("O campo código do produto deve ser selecionado.");
    m.msgSerieZero = m.individual ? t("Série da Nota Fiscal inválida.") : t("O número da série não pode ser zero.");
    m.msgDataAno = t("Ano da Nota Fiscal deve ser igual ou superior a 1970.");
}

QMap<Papel, QString> rotulos(int k)
{
    QMap<Papel, QString> r{{Papel::Quantidade, t("Quant. comercial em ")},
                           {Papel::ValorUnitario, Um({"Valor unitário na medida comercial",
                                                      "Valor unit. na unid. de medida comercial",
                                                      "Valor unitário na medida do insumo",
                                                      "Valor unitário na medida do insumo"},
                                                     k)}};
    if (k < 2) {
        r.insert(Papel::Obsolescencia, k == 1 ? t("Obsolescência, Resíduo ou Sucata") : t("Obsolescência ou Resíduo"));
        r.insert(Papel::ValorTotal, k == 1 ? t("Valor total do produto (R$)") : t("Valor total venda prod. obsoleto (R$)"));
    }
    if (k == 2)
        r.insert(Papel::Data, t("Data"));
    return r;
}

QList<ColunaDocumento> grade(const MembroDocumento& m)
{
    QList<ColunaDocumento> g = ColunasDoPai(m.origem, m.individual);
    const bool insumo = m.origem == Origem::Insumo;
    g << ColunaDocumento{insumo && !m.individual ? t("NFA") : t("NF"), t("NR_NF_AQUIS"), QString(), 70}
      << ColunaDocumento{t("Série"), t("NR_SERIE_NF_AQUIS"), QString(), 60}
      << ColunaDocumento{t("Item"), t("NR_ITEM_NF_AQUIS"), QString(), 40};
    if (m.individual)
        return g << ColunaDocumento{t("CNPJ"), t("NR_CNPJ_FORNECEDOR"), t("@@.@@@.@@@/@@@@-@@"), 130};
    return g << ColunaDocumento{t("Quantidade"), m.colunas.value(Papel::Quantidade), t("#,##0.00000"), 110};
}

}  // namespace

namespace MembrosFamilia {

MembroDocumento nfa(Origem origem, bool individual)
{
    const int k = Indice(origem, individual);
    MembroDocumento m = Inicia(TipoDocumento::NFA, origem, individual, t("NFA"));
    m.nomes = Mapa(Nomes, k);
    m.colunas = Mapa(Colunas, k);
    m.dados = dados(m, k);
    const QString numeroZero = individual ? t("Número da Nota Fiscal de entrada inválido.")
                                          : t("Número da nota fiscal de entrada inválido.");
    m.regras = {{Papel::NumeroNF, {0, numeroZero, QString(), -1, -1, false, 6}},
                {Papel::ItemNF, {0, individual ? MaiorQueZero : t("O número do item não pode ser zero."), QString(),
                                 -1, -1, false, 3}}};
    m.rotulos = rotulos(k);
    mensagens(m, k);
    m.chaveDuplicado = {Papel::NumeroNF, Papel::Serie, Papel::ItemNF};
    // Two suppliers may share a number in the individual editor.
    if (individual)
        m.chaveDuplicado << Papel::CNPJ;
    // The monthly product opens the unit value only with the Decreto-Lei on and the obsolescence off; the
    // individual one opens it with the Decreto-Lei and lets each change of the obsolescence decide; an input's
    // follows the Decreto-Lei alone.
    m.unitarioAoMudarDecreto = k == 0 ? Condicao::DecretoSemObsolescenciaOuSuspensao : Condicao::Decreto;
    m.unitarioAoMudarObsolescencia = k == 0 ? Condicao::DecretoSemObsolescenciaOuSuspensao
                                     : k == 1 ? Condicao::Obsolescencia
                                              : Condicao::Decreto;
    m.serieMaiuscula = !individual;
    m.grade = grade(m);
    return m;
}

}  // namespace MembrosFamilia
