#include "gui/items/BlocosProdutoEstrangeiro.h"

#include "core/rules/FormatoNumero.h"
#include "core/store/ItemProdutoEstrangeiro.h"
#include "core/store/ItensDeclaracao.h"
#include "gui/items/AliquotaDiferente.h"
#include "gui/items/CamposItem.h"
#include "gui/widgets/DecimalField.h"
#include "gui/widgets/DigitField.h"

#include <QComboBox>

using namespace CamposItem;
using namespace ItemProdutoEstrangeiro;

namespace BlocosProdutoEstrangeiro {

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString Codigo = t("txtCodProdPE");
const QString DescricaoProduto = t("txtDescrProdPE");
const QString Unidade = t("cboUnidadePE");
const QString Quantidade = t("#,##0.00000");
const QString MascaraNcm = t("@@@@.@@.@@");
const QString SemEscolha = t("Inclua um produto ou selecione no grid");

QString taxa(const QString& v)
{
    return Funcoes::FormataNumero(v, t("##0.00"));
}

QString msgUnidade(const QString& unidade)
{
    return t("A unidade de medida informada deve ser %1, que foi informada em outro(s) registro(s) deste produto.")
        .arg(unidade);
}

QString msgAliquota(const AliquotaDiferente* a, const QString& guardada)
{
    return t("A alíquota do %1 deve ser %2%, que foi informada em outro(s) registro(s) deste produto.")
        .arg(a->imposto, taxa(guardada));
}

Aliquotas digitadas(const TaxasProduto& x)
{
    return {true, x.ii->taxa(), x.ii->justificativa(), x.ipi->taxa(), x.ipi->justificativa()};
}

// Columns with a title and a width are shown; the others only keep what choosing a row needs.
ColunaGrade oculta(const QString& coluna)
{
    return {coluna, coluna, 0, {}};
}

// The names of the grid's columns, in which order the core gives the rows.
QStringList nomes(const QList<ColunaGrade>& colunas)
{
    QStringList r;
    for (const ColunaGrade& c : colunas)
        r << c.coluna;
    return r;
}

// The rates of a chosen row: a frame is ticked when the row has what `marcaPor` names.
void mostraTaxas(const ExecutorBloco& b, const TaxasProduto& x, const QString& marcaII, const QString& marcaIPI)
{
    x.ii->marca(!b.valorEscolhido(marcaII).trimmed().isEmpty());
    if (x.ii->marcada())
        x.ii->mostra(b.valorEscolhido(t("ALIQ_II_DIF_TEC")), b.valorEscolhido(t("JUST_II_DIF_TEC")));
    x.ipi->marca(!b.valorEscolhido(marcaIPI).trimmed().isEmpty());
    if (x.ipi->marcada())
        x.ipi->mostra(b.valorEscolhido(t("ALIQ_IPI_DIF_TIPI")), b.valorEscolhido(t("JUST_IPI_DIF_TIPI")));
}

// What both editors describe alike: the rate frames' checks after the fields', the frames emptied with the fields
// and the unit and place lists.
void comum(DescricaoBloco& d, const TaxasProduto& x)
{
    d.regras += x.ii->regras();
    d.regras += x.ipi->regras();
    d.aoLimpar = [x](ExecutorBloco&) {
        x.ii->limpa();
        x.ipi->limpa();
    };
    d.opcoes = [](const QString& campo, const ExecutorBloco&) {
        return campo == QLatin1String("cboLocalPE") ? OpcoesLocal() : OpcoesUnidade();
    };
    d.msgSemSelecao = SemEscolha;
    d.tituloCampos = t("Produto");
    ligaEscolhas(d);
}

// ---- monthly ----------------------------------------------------------------------------------------------------

const QString Local = t("cboLocalPE");
const QString QuantEstatistica = t("mskPE(1)");
const QString QuantDestino = t("mskPE(2)");

std::optional<Item> existente(const ExecutorBloco& b)
{
    return ItemMensal(b.pai().toString(), b.valor(Codigo).trimmed());
}

// A later destination of a stored product: unit, NCM, place and rates against the stored item.
QList<RegraBloco> regrasDestinoNovo(const TaxasProduto& x)
{
    const auto regra = [](std::function<QString(const ExecutorBloco&, const Item&)> teste, const QString& foco) {
        return so(Operacao::Incluir, {[teste](const ExecutorBloco& b, Operacao) {
                                          const std::optional<Item> e = existente(b);
                                          return e ? teste(b, *e) : QString();
                                      },
                                      foco});
    };
    const auto mesmaTaxa = [regra](AliquotaDiferente* a, bool ii) {
        return regra([a, ii](const ExecutorBloco&, const Item& e) {
            const Aliquotas g = AliquotasMensais(e.id);
            const QString guardada = ii ? g.aliqII : g.aliqIPI;
            return g.existe && taxa(guardada) != taxa(a->taxa()) ? msgAliquota(a, guardada) : QString();
        }, a->campoTaxa->objectName());
    };
    return {
        regra([](const ExecutorBloco& b, const Item& e) {
            return b.valor(Unidade) != e.unidade ? msgUnidade(e.unidade) : QString();
        }, Unidade),
        regra([](const ExecutorBloco& b, const Item& e) {
            return Funcoes::FormataMascara(b.valor(t("mskNumNCMPE")), MascaraNcm) != Funcoes::FormataMascara(e.ncm, MascaraNcm)
                       ? t("Este produto possui outro(s) registro(s) com NCM diferente!")
                       : QString();
        }, Unidade),
        regra([](const ExecutorBloco& b, const Item& e) {
            return LocaisDoItem(e.id).contains(b.valor(Local)) ? t("Produto já incluído para este local de destino.")
                                                               : QString();
        }, {}),
        regra([x](const ExecutorBloco&, const Item& e) {
            return !AliquotasMensais(e.id).existe && (x.ii->marcada() || x.ipi->marcada())
                       ? t("Alíquota diferente da informada anteriormente para este produto.")
                       : QString();
        }, {}),
        mesmaTaxa(x.ii, true),
        mesmaTaxa(x.ipi, false),
    };
}

// A changed row: the product stays; with other destinations, the unit and the rates stay too, and the place may
// not be one of the others.
QList<RegraBloco> regrasAlteracao(const TaxasProduto& x)
{
    const auto variosDestinos = [](const ExecutorBloco& b) {
        return LocaisDoItem(b.valorEscolhido(t("ID_ITEM_VRT")).toLongLong()).size() >= 2;
    };
    const auto mesmaTaxa = [variosDestinos](AliquotaDiferente* a, const QString& coluna) {
        return so(Operacao::Alterar, {[=](const ExecutorBloco& b, Operacao) {
                                          const QString guardada = b.valorEscolhido(coluna);
                                          return variosDestinos(b) && taxa(guardada) != taxa(a->taxa())
                                                     ? msgAliquota(a, guardada)
                                                     : QString();
                                      },
                                      a->campoTaxa->objectName()});
    };
    return {
        so(Operacao::Alterar, {[](const ExecutorBloco& b, Operacao) {
                                   return b.valor(Codigo).trimmed() != b.valorEscolhido(t("CD_INT_PRODUTO")).trimmed()
                                              ? t("O produto não pode ser alterado.")
                                              : QString();
                               },
                               {}}),
        so(Operacao::Alterar, {[variosDestinos](const ExecutorBloco& b, Operacao) {
                                   const std::optional<Item> primeiro = existente(b);
                                   return variosDestinos(b) && primeiro && b.valor(Unidade) != primeiro->unidade
                                              ? msgUnidade(primeiro->unidade)
                                              : QString();
                               },
                               Unidade}),
        mesmaTaxa(x.ii, t("ALIQ_II_DIF_TEC")),
        mesmaTaxa(x.ipi, t("ALIQ_IPI_DIF_TIPI")),
        // The place counts as changed when the first 25 characters of the list's text differ from the grid's: a
        // longer name always does. The row's own destination is not counted as another one.
        so(Operacao::Alterar, {[](const ExecutorBloco& b, Operacao) {
                                   const auto* lista = qobject_cast<QComboBox*>(b.campo(Local));
                                   const QString local = b.valor(Local);
                                   const QStringList locais =
                                       LocaisDoItem(b.valorEscolhido(t("ID_ITEM_VRT")).toLongLong());
                                   return lista->currentText().left(25) != b.valorEscolhido(t("NM_LOCAL_DESTINO"))
                                                  && locais.size() > 1
                                                  && local != b.valorEscolhido(t("CD_LOCAL_DESTINO"))
                                                  && locais.contains(local)
                                              ? t("Local de destino já informado anteriormente para este produto.")
                                              : QString();
                               },
                               {}}),
    };
}

void gravaMensal(const ExecutorBloco& b, const QVariant& pai, Operacao op, const TaxasProduto& x)
{
    const Item item{0, b.valor(Codigo).trimmed(), b.valor(DescricaoProduto), b.valor(t("mskNumNCMPE")),
                    b.valor(Unidade), b.valor(QuantEstatistica)};
    const bool comTaxa = x.ii->marcada() || x.ipi->marcada();
    if (op == Operacao::Incluir) {
        const std::optional<Item> e = ItemMensal(pai.toString(), item.codigo);
        const qint64 id = e ? e->id : InsereItemMensal(pai.toString(), item);
        if (comTaxa && !AliquotasMensais(id).existe)
            GravaAliquotasMensais(id, digitadas(x));
        InsereDestino(id, b.valor(Local), b.valor(QuantDestino));
        return;
    }
    const qint64 id = b.valorEscolhido(t("ID_ITEM_VRT")).toLongLong();
    Item alterado = item;
    alterado.id = id;
    AlteraItemMensal(id, alterado);
    if (comTaxa)
        GravaAliquotasMensais(id, digitadas(x));
    else
        ExcluiAliquotasMensais(id);
    AlteraDestino(b.valorEscolhido(t("ID_DEST_PRODUTO")).toLongLong(), b.valor(Local), b.valor(QuantDestino));
}

DescricaoBloco Mensal(const TaxasProduto& x)
{
    const QString botaoNcm = t("cmdAssistenteNCM_tabProdutoEstrangeiro_Mensal");
    const QString botaoProduto = t("cmdAssistenteCCI_tabProdutoEstrangeiro_Mensal");
    const QString chave = t("produtoPEMensal");
    DescricaoBloco d;
    d.dados = {t("DESTINO_ITEM_VRT_MEN"), t("ID_VRT_MICRO"), {t("ID_DEST_PRODUTO")}, {}, {}};
    CampoBloco local = CamposItem::local(Local, t("Local de destino"), t("CD_LOCAL_DESTINO"), 2);
    local.colunaTexto = t("NM_LOCAL_DESTINO");
    d.campos = {
        ncm(t("mskNumNCMPE"), t("NCM"), botaoNcm, chave, t("txtDescrNCMPE"), t("txtUnidMedEstatisticaPE"), false,
            t("CD_NCM_PRODUTO")),
        descricao(t("txtDescrNCMPE"), t("Descrição NCM"), t("DESCR_NCM_PRODUTO")),
        descricao(t("txtUnidMedEstatisticaPE"), t("Unidade estatística"), t("NM_UNID_MED_EST"), 20),
        produto(Codigo, t("Código do produto"), botaoProduto, chave, DescricaoProduto, t("CD_INT_PRODUTO"), 1),
        descricao(DescricaoProduto, t("Descrição do produto"), t("NM_INT_PRODUTO"), 80, 1),
        unidade(Unidade, t("Unidade comercial"), t("NM_UNID_MED_PROD"), 1),
        valor(QuantEstatistica, t("Quant. total estatística"), DecimalField::Quantity, {}, t("QT_PROD_UNID_EST"),
              ZeroMessage::NotEqualZeroPoder, 2),
        local,
        valor(QuantDestino, t("Quantidade comercial"), DecimalField::Quantity, {}, t("QT_PROD_LOC_DEST"),
              ZeroMessage::NotEqualZeroPoder, 2),
    };
    d.nomeGrade = t("grdConsultaCodigoControleInterno");
    d.tituloGrade = t("Consulta Produto");
    d.colunasGrade = {{t("Código do produto"), t("CD_INT_PRODUTO"), 110, {}},
                      {t("Descrição do produto"), t("NM_INT_PRODUTO"), 200, {}},
                      {t("Local"), t("NM_LOCAL_DESTINO"), 160, {}},
                      {t("Quantidade"), t("QT_PROD_LOC_DEST"), 110, Quantidade},
                      {t("NCM"), t("CD_NCM_PRODUTO"), 80, MascaraNcm}};
    for (const char* c : {"ID_ITEM_VRT", "ID_DEST_PRODUTO", "CD_LOCAL_DESTINO", "NM_UNID_MED_PROD",
                          "QT_PROD_UNID_PROD", "QT_PROD_UNID_EST", "ALIQ_II_DIF_TEC", "JUST_II_DIF_TEC",
                          "ALIQ_IPI_DIF_TIPI", "JUST_IPI_DIF_TIPI", "NM_UNID_MED_EST", "DESCR_NCM_PRODUTO"})
        d.colunasGrade << oculta(t(c));
    d.padraoBotoes = t("cmd%1_tabProdutoEstrangeiro_CCI");
    d.regras = regrasProduto(t("mskNumNCMPE"), t("txtDescrNCMPE"), botaoNcm, Codigo, DescricaoProduto, botaoProduto);
    d.regras += {
        unidadeEscolhida(Unidade),
        vazio(QuantEstatistica, t("O campo quantidade total na unidade estatística deve ser preenchido.")),
        vazio(Local, t("O campo local de destino deve ser selecionado.")),
        vazio(QuantDestino, t("O campo quantidade por destino deve ser preenchido.")),
    };
    comum(d, x);
    d.regras += regrasDestinoNovo(x);
    d.regras += regrasAlteracao(x);
    d.linhas = [colunas = nomes(d.colunasGrade)](const QVariant& pai) { return LinhasMensais(pai.toString(), colunas); };
    d.grava = [x](const ExecutorBloco& b, const QVariant& pai, Operacao op) { gravaMensal(b, pai, op, x); };
    d.apaga = [](const ExecutorBloco& b, const QVariant&) {
        ItensDeclaracao::ExcluiDestino(b.valorEscolhido(t("ID_DEST_PRODUTO")).toLongLong(),
                                       b.valorEscolhido(t("ID_ITEM_VRT")).toLongLong());
    };
    d.aoEscolher = [x](ExecutorBloco& b) { mostraTaxas(b, x, t("JUST_II_DIF_TEC"), t("JUST_IPI_DIF_TIPI")); };
    d.depois = [botaoProduto](ExecutorBloco& b, Operacao op) {
        if (op == Operacao::Alterar)
            b.controle(botaoProduto)->setFocus(Qt::OtherFocusReason);
    };
    return d;
}

// ---- individual -------------------------------------------------------------------------------------------------

const QString CampoItem = t("txtProdutoEstrangeiroNFS(0)");
const QString NcmIndividual = t("mskProdutoEstrangeiroNFS(0)");

QString valorNfs(int i)
{
    return t("mskProdutoEstrangeiroNFS(%1)").arg(i);
}

// The item against the first other item of the product in the declaration: NCM, unit and, when that item has a
// row of rates, the rates. An item without such a row compares no rate, so a later item may bring one.
QList<RegraBloco> regrasOutrosItens(const std::function<QString()>& idVrt, const TaxasProduto& x,
                                    const QString& botaoNcm)
{
    const auto primeiro = [idVrt](const ExecutorBloco& b, Operacao op) -> std::optional<ItemProdutoEstrangeiro::Item> {
        const qint64 exceto = op == Operacao::Alterar ? b.valorEscolhido(t("ID_ITEM")).toLongLong() : 0;
        const QList<ItemProdutoEstrangeiro::Item> outros = ItensDoProduto(idVrt(), b.valor(Codigo), exceto);
        if (outros.isEmpty())
            return std::nullopt;
        return outros.first();
    };
    const auto mesmaTaxa = [primeiro](AliquotaDiferente* a, bool ii) -> RegraBloco {
        return {[=](const ExecutorBloco& b, Operacao op) {
                    const auto p = primeiro(b, op);
                    const Aliquotas g = p ? AliquotasNota(p->id) : Aliquotas{};
                    const QString guardada = ii ? g.aliqII : g.aliqIPI;
                    if (!g.existe || taxa(guardada) == taxa(a->taxa()))
                        return QString();
                    a->marca(true);  // ticked, so that the stored rate can be typed at once
                    return msgAliquota(a, guardada);
                },
                {}};
    };
    return {
        {[primeiro](const ExecutorBloco& b, Operacao op) {
             const auto p = primeiro(b, op);
             return p && p->ncm != b.valor(NcmIndividual)
                        ? t("A NCM informada deve ser igual a %1, que foi informada em outro(s) registro(s) deste "
                            "produto.").arg(Funcoes::FormataMascara(p->ncm, MascaraNcm))
                        : QString();
         },
         botaoNcm},
        {[primeiro](const ExecutorBloco& b, Operacao op) {
             const auto p = primeiro(b, op);
             return p && p->unidade != b.valor(Unidade) ? msgUnidade(p->unidade) : QString();
         },
         Unidade},
        mesmaTaxa(x.ii, true),
        mesmaTaxa(x.ipi, false),
    };
}

void gravaIndividual(const ExecutorBloco& b, const QVariant& pai, Operacao op, const TaxasProduto& x)
{
    const ItemProdutoEstrangeiro::Item item{0, b.valor(Codigo), b.valor(DescricaoProduto), b.valor(NcmIndividual),
                                            b.valor(Unidade), QString()};
    const ValoresNota valores{b.valor(valorNfs(1)), b.valor(valorNfs(2)), b.valor(valorNfs(3)), b.valor(valorNfs(5))};
    const bool comTaxa = !x.ii->taxa().isEmpty() || !x.ipi->taxa().isEmpty();
    if (op == Operacao::Incluir) {
        const qint64 id = InsereItemNota(pai.toLongLong(), b.valor(CampoItem), item, valores);
        if (comTaxa)
            GravaAliquotasNota(id, digitadas(x));
        return;
    }
    const qint64 id = b.valorEscolhido(t("ID_ITEM")).toLongLong();
    ItemProdutoEstrangeiro::Item alterado = item;
    alterado.id = id;
    AlteraItemNota(id, b.valor(CampoItem), alterado, valores);
    if (comTaxa)
        GravaAliquotasNota(id, digitadas(x));
    else
        ExcluiAliquotasNota(id);
}

DescricaoBloco Individual(const ContextoItens& contexto, const TaxasProduto& x)
{
    const QString botaoNcm = t("cmdAssistenteNCM_tabProdutoEstrangeiro_Individual");
    const QString botaoProduto = t("cmdAssistenteCCI_tabProdutoEstrangeiro_Individual");
    const QString chave = t("produtoPE");
    const QString zero = MsgZero(true);
    DescricaoBloco d;
    d.dados = {t("ITEM_NFS"), t("ID_NFS"), {t("ID_ITEM")}, {}, {}};
    CampoBloco item = numeroItem(CampoItem, t("NR_ITEM_NF_SAIDA"));
    item.ajusta = [](QWidget* w, ExecutorBloco&) { static_cast<DigitField*>(w)->setPadWidth(3); };
    d.campos = {
        item,
        ncm(NcmIndividual, t("NCM"), botaoNcm, chave, t("txtProdutoEstrangeiroNFS(6)"), t("txtdisplayPE"), false,
            t("CD_NCM_PROD"), 1),
        descricao(t("txtProdutoEstrangeiroNFS(6)"), t("Descrição NCM"), t("DESCR_NCM_PRODUTO"), 80, 1),
        descricao(t("txtdisplayPE"), t("Unidade estatística"), t("NM_UNID_MED_EST"), 20, 1),
        produto(Codigo, t("Código do produto"), botaoProduto, chave, DescricaoProduto, t("CD_INT_PROD"), 2),
        descricao(DescricaoProduto, t("Descrição do produto"), t("NM_INT_PROD"), 80, 2),
        unidade(Unidade, t("Unidade de medida comercial"), t("NM_UNID_MED_PROD"), 2),
        valor(valorNfs(1), t("Quant. Comercial"), DecimalField::Quantity, {}, t("QT_INT_UNID_NFS"), zero, 3),
        valor(valorNfs(2), t("Valor unit. na unid. med. comercial"), DecimalField::UnitValue, {},
              t("VL_INT_UNID_NFS"), zero, 3),
        valor(valorNfs(3), t("Quant. Estatística"), DecimalField::Quantity, {}, t("QT_INT_UNID_EST"), zero, 3),
        valor(valorNfs(5), t("IPI destacado"), DecimalField::TotalValue, {}, t("VL_IPI_DESTACADO"), {}, 3),
    };
    d.nomeGrade = t("grdConsultaNotaFiscalSaida");
    d.tituloGrade = t("Consulta Produto");
    d.colunasGrade = {{t("Item"), t("NR_ITEM_NF_SAIDA"), 50, {}},
                      {t("Código do Produto"), t("CD_INT_PROD"), 120, {}},
                      {t("Quantidade"), t("QT_INT_UNID_NFS"), 110, Quantidade},
                      {t("NCM"), t("CD_NCM_PROD"), 80, MascaraNcm}};
    // The NCM's description and statistical unit, after the row's own columns, fill the fields beside the NCM.
    for (const char* c : {"NM_UNID_MED_PROD", "VL_INT_UNID_NFS", "QT_INT_UNID_EST", "VL_INT_UNID_EST", "ID_ITEM",
                          "NM_INT_PROD", "NR_NF_SAIDA", "NR_SERIE_NF_SAIDA", "ALIQ_II_DIF_TEC", "ALIQ_IPI_DIF_TIPI",
                          "JUST_II_DIF_TEC", "JUST_IPI_DIF_TIPI", "VL_IPI_DESTACADO", "DESCR_NCM_PRODUTO",
                          "NM_UNID_MED_EST"})
        d.colunasGrade << oculta(t(c));
    d.padraoBotoes = t("cmd%1_tabProdutoEstrangeiro");
    d.regras = {vazio(CampoItem, t("O campo item deve ser preenchido."))};
    d.regras += regrasProduto(NcmIndividual, t("txtProdutoEstrangeiroNFS(6)"), botaoNcm, Codigo, DescricaoProduto,
                              botaoProduto);
    d.regras += {
        unidadeEscolhida(Unidade),
        vazio(valorNfs(1), t("O campo quantidade deve ser preenchido.")),
        vazio(valorNfs(2), t("O campo valor unitário deve ser preenchido.")),
        vazio(valorNfs(3), t("O campo quantidade deve ser preenchido.")),
    };
    comum(d, x);
    // Here Alterar and Excluir act on a chosen item only and say nothing without one.
    d.msgSemSelecao.clear();
    d.regras += regrasOutrosItens(contexto.idVrt, x, botaoNcm);
    d.regras << numeroItemLivre(CampoItem, t("NR_ITEM_NF_SAIDA"));
    d.linhas = [colunas = nomes(d.colunasGrade)](const QVariant& pai) { return LinhasNota(pai.toLongLong(), colunas); };
    d.grava = [x](const ExecutorBloco& b, const QVariant& pai, Operacao op) { gravaIndividual(b, pai, op, x); };
    d.apaga = [](const ExecutorBloco& b, const QVariant&) { ExcluiItemNota(b.valorEscolhido(t("ID_ITEM")).toLongLong()); };
    d.aoEscolher = [x](ExecutorBloco& b) { mostraTaxas(b, x, t("ALIQ_II_DIF_TEC"), t("ALIQ_IPI_DIF_TIPI")); };
    return d;
}

}  // namespace

TaxasProduto Taxas(bool individual, QWidget* parent)
{
    const QString tec = t("Em caso de alíquota diferente da normal da TEC");
    const QString tipi = t("Em caso de alíquota diferente da normal da TIPI");
    if (individual)
        return {new AliquotaDiferente(t("chk_AliquotaTEC_tabPE"), tec, t("mskProdutoEstrangeiroNFS(6)"),
                                      t("Alíquota II"), t("txtProdutoEstrangeiroNFS(4)"), t("II"), parent),
                new AliquotaDiferente(t("chk_AliquotaTIPI_tabPE"), tipi, t("mskProdutoEstrangeiroNFS(7)"),
                                      t("Alíquota IPI"), t("txtProdutoEstrangeiroNFS(5)"), t("IPI"), parent)};
    return {new AliquotaDiferente(t("chk_Aliquota_tabPE"), tec, t("mskPE(3)"), t("Alíquota II"),
                                  t("txtJustifLegalAliqIIPE"), t("II"), parent),
            new AliquotaDiferente(t("chk_Aliquota_tabP"), tipi, t("mskPE(4)"), t("Alíquota IPI"),
                                  t("txtJustifLegalAliqIPIPE"), t("IPI"), parent)};
}

DescricaoBloco Descricao(const ContextoItens& contexto, const TaxasProduto& taxas)
{
    return contexto.individual ? Individual(contexto, taxas) : Mensal(taxas);
}

}  // namespace BlocosProdutoEstrangeiro
