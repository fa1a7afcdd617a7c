// The DSI of a foreign product and of an input, in both editors: the DI's frame without the Decreto-Lei 288/67 and
// the obsolescence, a "Número do bem" in place of adição and item, and the three value blocks in the line itself,
// open only under suspension.
#include "gui/items/MembrosFamilia.h"

namespace {

using namespace MembrosFamilia;

const QList<PorPapel> Nomes{
    {Papel::Numero, {"txtNumDSI_PE", "mskProdutoEstrangeiroDSI(0)", "mskPIsemPPB(21)", "mskPIsemPPBDSI(0)"}},
    {Papel::Ano, {"txtAnoDSI_PE", "txtProdutoEstrangeiroDSI(0)", "txtPIsemPPBDSI(1)", "txtPIsemPPBDSI(0)"}},
    {Papel::Orgao, {"txtOrgaoDSI_PE", "txtProdutoEstrangeiroDSI(1)", "txtPIsemPPBDSI(2)", "txtPIsemPPBDSI(1)"}},
    {Papel::Sequencial, {"txtSequencialDSI_PE", "txtProdutoEstrangeiroDSI(2)", "txtPIsemPPBDSI(3)", "txtPIsemPPBDSI(2)"}},
    {Papel::NumeroBem, {"txtNumBemDSI_PE", "txtProdutoEstrangeiroDSI(3)", "txtPIsemPPBDSI(4)", "txtPIsemPPBDSI(3)"}},
    {Papel::Quantidade, {"mskQtUnidMedComDSI_PE", "mskProdutoEstrangeiroDSI(1)", "mskPIsemPPB(19)", "mskPIsemPPBDSI(1)"}}};

const QList<PorPapel> Colunas{
    {Papel::Numero, {"NR_DSI", "NR_DSI", "NR_DSI", "NR_DSI"}},
    {Papel::NumeroBem, {"NR_BEM", "NR_BEM", "NR_BEM", "NR_BEM"}},
    {Papel::Quantidade, ColunaQuantidade},
    {Papel::Suspensao, {"IND_SUSP_PIS_COFINS", "IND_SUSP_PIS_COFINS", "IND_SUSP_PIS_COFINS", "IND_SUSP_PIS_COFINS"}},
    {Papel::Valor0, {"VL_PROD_UNID_PROD", "VL_PROD_UNID_PROD", "VL_PROD_UNID_PROD", "VL_INS_UNID_PROD"}},
    {Papel::Valor1, {"VL_FRETE_UNID_INT", "VL_FRETE_UNID_INT", "VL_FRETE_UNID_INT", "VL_FRETE_UNID_INT"}},
    {Papel::Valor2, {"VL_SEGURO_UNID_INT", "VL_SEGURO_UNID_INT", "VL_SEGURO_UNID_INT", "VL_SEGURO_UNID_INT"}}};

// Unlike the DI, a monthly year of zero passes; the individual editor bounds the year by 50 and 99. The monthly
// zero messages of the body and the sequence differ between the product and the input.
QMap<Papel, RegraDigitos> regras(int k)
{
    if (k % 2 == 1)
        return {{Papel::Ano, {2, QString(), Invalido, 50, 99, true}},
                {Papel::Orgao, {7, MaiorQueZero, Invalido, -1, -1, true}},
                {Papel::Sequencial, {6, MaiorQueZero, SeisDigitos, -1, -1, true}},
                {Papel::NumeroBem, {0, MaiorQueZero, QString(), -1, -1, true, 3}}};
    const bool insumo = k == 2;
    return {{Papel::Ano, {2, QString(), Invalido}},
            {Papel::Orgao, {7, insumo ? t("O número do orgão não pode ser zero.") : t("O campo orgão não pode ser igual a zero."),
                            Invalido}},
            {Papel::Sequencial, {6, insumo ? t("O número do seqüencial não pode ser zero.")
                                           : t("O campo seqüencial não pode ser igual a zeros."),
                                 SeisDigitos}},
            {Papel::NumeroBem, {0, t("O número do bem não pode ser zero."), Invalido, -1, -1, false, 3}}};
}

TabelaDocumento dados(const MembroDocumento& m, int k)
{
    QStringList linha = m.individual ? QStringList{t("NR_DSI"), t("NR_BEM"), t("NR_DSI_ANTIGA")}
                                     : QStringList{t("NR_DSI"), t("NR_DSI_ANTIGA"), t("NR_BEM")};
    for (Papel p : {Papel::Quantidade, Papel::Suspensao, Papel::Moeda0, Papel::Valor0, Papel::Moeda1, Papel::Valor1,
                    Papel::Moeda2, Papel::Valor2})
        linha << m.colunas.value(p);
    const Quatro tabelas{"ITEM_DSI_PE_MEN", "ITEM_DSI_PE_IND", "ITEM_DSI_INS_MEN", "ITEM_DSI_INS_IND"};
    return {Um(tabelas, k), t("ID_ITEM_DSI"), ChavePai(k), linha, {}, {}, {}};
}

void mensagens(MembroDocumento& m, int k)
{
    m.msgZeroDecimal = m.individual ? MaiorQueZero : ZeroIgual;
    m.tipoDigito = t("DSI");
    m.msgNumeroInvalido = t("Número da DSI inválido.");
    if (m.individual) {
        m.msgNumeroIncompleto = t("Número deve ter 10 dígitos.");
        m.prefixoRecusado = {50, 98};
        m.msgPrefixoRecusado = Invalido;
    }
    m.msgNumeroVazio = t("O campo número da DSI deve ser preenchido.");
    m.msgNumeroZero = Um({"DSI não pode ser igual a zeros.", "DSI não pode ser igual a zeros.", nullptr, nullptr}, k);
    // The product's message has no full stop, the monthly input's has one; the individual input has no such test.
    m.msgNumeroCurto = Um({"DSI incorreta", "DSI incorreta", "DSI incorreta.", nullptr}, k);
    m.msgAntigaVazia = AntigaVazia;
    m.passos = {{Teste::Vazio, Papel::NumeroBem,
                 Um({"Este campo não pode ser nulo.", "Este campo não pode ser nulo.",
                     "O campo número do bem não pode ser nulo.", "O campo número do bem deve ser preenchido."},
                    k)},
                {Teste::Vazio, Papel::Quantidade,
                 Um({"Este campo não pode ser nulo", "Este campo não pode ser nulo",
                     "O campo quantidade comercial não pode ser nulo.", "O campo quantidade deve ser preenchido."},
                    k)}};
    // The monthly input's words speak of adição and item although a DSI has none.
    m.msgDuplicadoEletronica = Um({"O conjunto Número/Número do Bem da DSI eletrônica já foi incluído.", "DSI já incluída.",
                                   "O conjunto DSI/Adição/Item já encontra-se incluído.", "DSI já incluída."},
                                  k);
    m.msgDuplicadoAntiga = Um({"O conjunto Ano/Orgão/Seqüencial/Número do Bem da DSI já foi incluído.", "DSI já incluída.",
                               "O conjunto Ano/Órgão/Seqüencial/Adição/Item já encontra-se incluído.", "DSI já incluída."},
                              k);
    m.msgDuplicadoAlteracao = m.individual ? QString() : t("DSI já incluída.");
}

QList<ColunaDocumento> grade(const MembroDocumento& m)
{
    QList<ColunaDocumento> g = ColunasDoPai(m.origem, m.individual);
    if (m.individual)
        return g << ColunaDocumento{t("Núm. DSI"), t("NR_DSI"), t("@@/@@@@@@@-@"), 100}
                 << ColunaDocumento{t("Núm. DSI Antiga"), t("NR_DSI_ANTIGA"), QString(), 120}
                 << ColunaDocumento{t("Número do Bem"), t("NR_BEM"), QString(), 90};
    return g << ColunaDocumento{t("Nº DSI"), t("NR_DSI"), t("@@/@@@@@@@-@"), 100}
             << ColunaDocumento{t("Nº DSI Antiga"), t("NR_DSI_ANTIGA"), QString(), 120}
             << ColunaDocumento{t("Nº do Bem"), t("NR_BEM"), QString(), 70}
             << ColunaDocumento{t("Quantidade"), m.colunas.value(Papel::Quantidade), t("#,##0.00000"), 110};
}

}  // namespace

namespace MembrosFamilia {

MembroDocumento dsi(Origem origem, bool individual)
{
    const int k = Indice(origem, individual);
    MembroDocumento m = Inicia(TipoDocumento::DSI, origem, individual, t("DSI"));
    m.nomes = Mapa(Nomes, k);
    PoeNomesDeclaracao(m, t("DSI"));
    m.colunas = Mapa(Colunas + Moedas(), k);
    m.dados = dados(m, k);
    m.colunaNumeroAntiga = t("NR_DSI_ANTIGA");
    m.regras = regras(k);
    m.rotulos = {{Papel::Suspensao, t("DSI com suspensão de PIS/PASEP e COFINS (Lei n° 10.865/2004)")},
                 {Papel::Quantidade, t("Quant. comercial em ")}};
    mensagens(m, k);
    m.chaveDuplicado = {Papel::NumeroBem};
    m.habilitacao = Condicao::Suspensao;
    m.esvaziaBlocosAoMudar = true;
    m.chavesMoeda = ChavesMoeda(Um({"produtoPEMensalDSI", "produtoPEDSI", "InsumoPISemPPBMensalDSI", "InsumoPISemPPBDSI"}, k),
                                origem);
    m.titulosBlocos = TitulosBlocos(origem);
    m.grade = grade(m);
    return m;
}

}  // namespace MembrosFamilia
