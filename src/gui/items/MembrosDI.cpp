// The DI of a foreign product and of an input, in both editors. Inputs have no obsolescence; an input's line keeps
// its child row of values only with the Decreto-Lei when it is included, with the Decreto-Lei or the suspension
// when it is changed; the monthly input's line also keeps the input's name.
#include "gui/items/MembrosFamilia.h"

namespace {

using namespace MembrosFamilia;

const QList<PorPapel> Nomes{
    {Papel::Numero, {"mskNumDI_PE", "mskNumDI_PE", "mskNumDI_PIsemPPBDI", "mskNumDI_PIsemPPBDI"}},
    {Papel::Ano, {"txtAnoDI_PE", "txtProdutoEstrangeiroDI(0)", "txtPIsemPPBDI(1)", "txtPIsemPPBDI(1)"}},
    {Papel::Orgao, {"txtOrgaoDI_PE", "txtProdutoEstrangeiroDI(1)", "txtPIsemPPBDI(2)", "txtPIsemPPBDI(2)"}},
    {Papel::Sequencial, {"txtSequencialDI_PE", "txtProdutoEstrangeiroDI(2)", "txtPIsemPPBDI(3)", "txtPIsemPPBDI(3)"}},
    {Papel::Adicao, {"txtAdicaoDI_PE", "txtProdutoEstrangeiroDI(4)", "txtPIsemPPBDI(4)", "txtPIsemPPBDI(4)"}},
    {Papel::ItemAdicao, {"txtItemDI_PE", "txtProdutoEstrangeiroDI(5)", "txtPIsemPPBDI(5)", "txtPIsemPPBDI(5)"}},
    {Papel::Quantidade, {"mskPE(5)", "mskProdutoEstrangeiroDI(0)", "mskPIsemPPB(7)", "mskPIsemPPBDI(0)"}},
    {Papel::ValorTotal, {"mskPE(7)", nullptr, nullptr, nullptr}},
    {Papel::DecretoLei, {"chkDecretoLei28867_tabProdutoEstrangeiro_DI", "chkDecretoLei28867_tabProdutoEstrangeiro_DI",
                         "chkDecretoLei28867_tabPIsemPPB_DI", "chkDecretoLei28867_tabPIsemPPB_DI"}},
    {Papel::Obsolescencia, {"chkObsolescenciaouResiduo_tabProdutoEstrangeiro_DI",
                            "chkObsolescenciaouResiduo_tabProdutoEstrangeiro_DI", nullptr, nullptr}}};

// The columns of the line; the values of the blocks (and the obsolete product's total) go to the child row.
const QList<PorPapel> Colunas{
    {Papel::Numero, {"NR_DI", "NR_DI", "NR_DI", "NR_DI"}},
    {Papel::Adicao, {"NR_ADICAO_DI", "NR_ADICAO_DI", "NR_ADICAO_DI", "NR_ADICAO_DI"}},
    {Papel::ItemAdicao, {"NR_ITEM_ADICAO", "NR_ITEM_ADICAO", "NR_ITEM_ADICAO", "NR_ITEM_ADICAO"}},
    {Papel::DecretoLei, {"IND_DL_288_67", "IND_DL_288_67", "IND_DL_288_67", "IND_DL_288_67"}},
    {Papel::Obsolescencia, {"IND_OBSOLE_RESIDUO", "IND_OBSOLE_RESIDUO", nullptr, nullptr}},
    {Papel::Suspensao, {"IND_SUSP_PIS_COFINS", "IND_SUSP_PIS_COFINS", "IND_SUSP_PIS_COFINS", "IND_SUSP_PIS_COFINS"}},
    {Papel::Quantidade, ColunaQuantidade}};
const QList<PorPapel> ColunasValores{
    {Papel::Valor0, {"VL_PROD_UNID_PROD", "VL_INS_PROD_UNID_NFS", "VL_INSUMO_UNID_INS", "VL_INS_PROD_UNID_NFS"}},
    {Papel::Valor1, {"VL_FRETE_UNID_INT", "VL_FRETE_UNID_NFS", "VL_FRETE_UNID_INT", "VL_FRETE_UNID_NFS"}},
    {Papel::Valor2, {"VL_SEGURO_UNID_INT", "VL_SEGURO_UNID_NFS", "VL_SEGURO_UNID_INT", "VL_SEGURO_UNID_NFS"}},
    {Papel::ValorTotal, {"VL_TOT_PROD_OBSOLE", nullptr, nullptr, nullptr}}};

// The parts of an old document number and the numbers of a line. The monthly editor: the zero test first, no
// bounds on the year. The individual one: the format test first, and a year of the two-digit years before the
// electronic DI.
QMap<Papel, RegraDigitos> regras(bool individual)
{
    if (individual)
        return {{Papel::Ano, {2, QString(), Invalido, 50, 96, true}},
                {Papel::Orgao, {7, MaiorQueZero, Invalido, -1, -1, true}},
                {Papel::Sequencial, {6, MaiorQueZero, SeisDigitos, -1, -1, true}},
                {Papel::Adicao, {0, MaiorQueZero, Invalido, -1, -1, true, 3}},
                {Papel::ItemAdicao, {0, MaiorQueZero, QString(), -1, -1, true, 2}}};
    return {{Papel::Ano, {2, ZeroIgual, Invalido}},
            {Papel::Orgao, {7, ZeroIgual, Invalido}},
            {Papel::Sequencial, {6, ZeroIgual, SeisDigitos}},
            {Papel::Adicao, {0, ZeroIgual, Invalido, -1, -1, false, 3}},
            {Papel::ItemAdicao, {0, ZeroIgual, Invalido, -1, -1, false, 2}}};
}

// The table, its parent and its columns in the order the statements write them.
TabelaDocumento dados(const MembroDocumento& m, int k)
{
    const QString numeros = m.individual ? t("NR_DI NR_ADICAO_DI NR_ITEM_ADICAO NR_DI_ANTIGA")
                                         : t("NR_DI NR_DI_ANTIGA NR_ADICAO_DI NR_ITEM_ADICAO");
    QStringList linha = numeros.split(u' ');
    for (Papel p : {Papel::DecretoLei, Papel::Obsolescencia, Papel::Suspensao, Papel::Quantidade})
        if (m.colunas.contains(p))
            linha << m.colunas.value(p);
    linha << m.colunasDoPai.keys();
    QStringList valores;
    for (Papel p : {Papel::Moeda0, Papel::Valor0, Papel::Moeda1, Papel::Valor1, Papel::Moeda2, Papel::Valor2,
                    Papel::ValorTotal})
        if (m.colunas.contains(p))
            valores << m.colunas.value(p);
    const Quatro tabelas{"ITEM_DI_PE_MEN", "ITEM_DI_PE_IND", "ITEM_DI_INS_MEN", "ITEM_DI_INS_IND"};
    const Quatro filhas{"ITEM_IMPORT_288_PE_MEN", "ITEM_IMPORT_288_PE", "ITEM_IMPORT_288_INS_MEN",
                                        "ITEM_IMPORT_288_INS"};
    return {Um(tabelas, k), t("ID_ITEM_DI"), ChavePai(k), linha, Um(filhas, k),
            t("ID_ITEM_IMP_288"), valores};
}

QList<Passo> passos(int k)
{
    const Quatro adicao{"O campo adição não pode ser nulo.", "O campo número da adição deve ser preenchido.",
                                        "O campo adição não pode ser nulo.", "O campo número da adição deve ser preenchido."};
    const Quatro item{"O campo Item não pode ser nulo.",
                                      "O campo número do item da adição deve ser preenchido.",
                                      "O campo item não pode ser nulo.",
                                      "O campo número do item da adição deve ser preenchido."};
    const Quatro quantidade{"O campo quantidade comercial não pode ser nulo.",
                                            "O campo quantidade comercial não pode ser nulo.",
                                            "O campo quantidade comercial não pode ser nulo.",
                                            "Quantidade deve ser preenchida."};
    QList<Passo> p{{Teste::Vazio, Papel::Adicao, Um(adicao, k)},
                   {Teste::Vazio, Papel::ItemAdicao, Um(item, k)},
                   {Teste::Vazio, Papel::Quantidade, Um(quantidade, k)}};
    if (k == 0)
        p << Passo{Teste::VazioSeAtivo, Papel::ValorTotal, t("O campo valor total não pode ser nulo.")};
    return p;
}

void mensagens(MembroDocumento& m, int k)
{
    m.tipoDigito = t("DI");
    m.msgNumeroInvalido = t("Número da DI inválido.");
    m.msgNumeroVazio = t("O campo número da DI deve ser preenchido.");
    m.msgNumeroCurto = Um({"DI incorreta.", "DI incorreta.", "Di incorreta!", nullptr}, k);
    m.msgAntigaVazia = AntigaVazia;
    m.msgZeroDecimal = m.individual ? MaiorQueZero : ZeroIgual;
    m.passos = passos(k);
    m.msgDuplicadoEletronica = m.individual ? t("DI já incluída.") : t("O conjunto DI/Adição/Item já encontra-se incluído.");
    m.msgDuplicadoAntiga = m.individual ? t("DI já incluída.")
                                        : t("O conjunto Ano/Órgão/Seqüencial/Adição/Item já encontra-se incluído.");
    m.msgDuplicadoAlteracao = m.individual ? QString() : t("DI já incluída.");
}

QList<ColunaDocumento> grade(const MembroDocumento& m)
{
    QList<ColunaDocumento> g = ColunasDoPai(m.origem, m.individual);
    if (m.individual)
        return g << ColunaDocumento{t("Núm. DI"), t("NR_DI"), t("@@/@@@@@@@-@"), 100}
                 << ColunaDocumento{t("Núm. DI Antiga"), t("NR_DI_ANTIGA"), QString(), 120}
                 << ColunaDocumento{t("Adição"), t("NR_ADICAO_DI"), QString(), 50}
                 << ColunaDocumento{m.origem == Origem::Insumo ? t("Item") : t("Item DI"), t("NR_ITEM_ADICAO"),
                                    QString(), 50};
    return g << ColunaDocumento{t("Nº DI"), t("NR_DI"), t("@@/@@@@@@@-@"), 100}
             << ColunaDocumento{t("Nº DI Antiga"), t("NR_DI_ANTIGA"), QString(), 120}
             << ColunaDocumento{t("Adição"), t("NR_ADICAO_DI"), QString(), 50}
             << ColunaDocumento{t("Item"), t("NR_ITEM_ADICAO"), QString(), 40}
             << ColunaDocumento{t("Quantidade"), m.colunas.value(Papel::Quantidade), t("#,##0.00000"), 110};
}

}  // namespace

namespace MembrosFamilia {

MembroDocumento di(Origem origem, bool individual)
{
    const int k = Indice(origem, individual);
    const bool insumo = origem == Origem::Insumo;
    MembroDocumento m = Inicia(TipoDocumento::DI, origem, individual, t("DI"));
    m.nomes = Mapa(Nomes, k);
    PoeNomesDeclaracao(m, t("DI"));
    m.colunas = Mapa(Colunas + Moedas() + ColunasValores, k);
    if (k == 2)
        m.colunasDoPai.insert(t("NM_INT_INSUMO"), t("#nome"));
    m.dados = dados(m, k);
    m.colunaNumeroAntiga = t("NR_DI_ANTIGA");
    m.regras = regras(individual);
    m.rotulos = {{Papel::Suspensao, t("DI com suspensão de PIS/PASEP e COFINS (Lei n° 10.865/2004)")}};
    if (!insumo)
        m.rotulos.insert(Papel::Obsolescencia,
                         individual ? t("Obsolescência, Resíduo ou Sucata") : t("Obsolescência ou Resíduo"));
    mensagens(m, k);
    m.chaveDuplicado = {Papel::Adicao, Papel::ItemAdicao};
    m.habilitacao = insumo ? Condicao::DecretoOuSuspensao : Condicao::DecretoSemObsolescenciaOuSuspensao;
    // An input's child row of values: with the Decreto-Lei on Incluir, with either check on Alterar.
    m.filhaNaInclusao = insumo ? Condicao::Decreto
                               : individual ? Condicao::DecretoSemObsolescenciaOuSuspensao : Condicao::DecretoOuSuspensao;
    m.filhaNaAlteracao = insumo || !individual ? Condicao::DecretoOuSuspensao
                                               : Condicao::DecretoSemObsolescenciaOuSuspensao;
    m.chavesMoeda = ChavesMoeda(Um({"produtoPEMensalDI", "produtoPEDI", "InsumoPISemPPBMensalDI", "InsumoPISemPPBDI"}, k),
                                origem);
    m.titulosBlocos = TitulosBlocos(origem);
    m.grade = grade(m);
    return m;
}

}  // namespace MembrosFamilia
