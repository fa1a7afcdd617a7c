#include "gui/items/PaginaProdutoIndividual.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/ItemProdutoEstrangeiro.h"
#include "core/store/ItensDeclaracao.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/AliquotaDiferente.h"
#include "gui/items/CabecalhoProduto.h"
#include "gui/widgets/ConsultGrid.h"
#include "gui/widgets/DecimalField.h"
#include "gui/widgets/DigitField.h"
#include "gui/widgets/NcmField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace ItemProdutoEstrangeiro;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The grid's columns after the empty first one: four visible, then what choosing a row needs.
const QStringList Colunas{t("NR_ITEM_NF_SAIDA"),  t("CD_INT_PROD"),       t("QT_INT_UNID_NFS"),   t("CD_NCM_PROD"),
                          t("NM_UNID_MED_PROD"),  t("VL_INT_UNID_NFS"),   t("QT_INT_UNID_EST"),   t("ID_ITEM"),
                          t("NM_INT_PROD"),       t("ALIQ_II_DIF_TEC"),   t("ALIQ_IPI_DIF_TIPI"), t("JUST_II_DIF_TEC"),
                          t("JUST_IPI_DIF_TIPI"), t("VL_IPI_DESTACADO")};

QString taxa(const QString& v)
{
    return Funcoes::FormataNumero(v, t("##0.00"));
}

}  // namespace

PaginaProdutoIndividual::PaginaProdutoIndividual(std::function<QString()> idVrt, std::function<qint64()> idNfs,
                                                 QWidget* parent)
    : QWidget(parent), m_idVrt(std::move(idVrt)), m_idNfs(std::move(idNfs))
{
    auto* coluna = new QVBoxLayout(this);
    auto* quadro = new QGroupBox(t("Produto"), this);
    quadro->setObjectName(t("fraProduto_tabProdutoEstrangeiro"));
    auto* g = new QGridLayout(quadro);
    txtItem = new DigitField(t("txtProdutoEstrangeiroNFS(0)"), 3, quadro);
    txtItem->setZeroMessage(ZeroMessage::GreaterThanZero).setPadWidth(3);
    g->addWidget(new QLabel(t("Item"), quadro), 0, 0);
    g->addWidget(txtItem, 1, 0);
    cabecalho = new CabecalhoProduto({t("mskProdutoEstrangeiroNFS(0)"), t("txtProdutoEstrangeiroNFS(6)"),
                                      t("txtdisplayPE"), t("txtCodProdPE"), t("txtDescrProdPE"), t("cboUnidadePE"),
                                      t("produtoPE"), t("Unidade de medida comercial"), t("cmdAssistenteNCM_tabProdutoEstrangeiro_Individual"), t("cmdAssistenteCCI_tabProdutoEstrangeiro_Individual")},
                                     quadro);
    g->addWidget(cabecalho, 2, 0, 1, 4);
    const QList<std::tuple<int, DecimalField::Family, const char*>> valores{
        {1, DecimalField::Quantity, "Quant. Comercial"},
        {2, DecimalField::UnitValue, "Valor unit. na unid. med. comercial"},
        {3, DecimalField::Quantity, "Quant. Estatística"},
        {5, DecimalField::TotalValue, "IPI destacado"}};
    int c = 0;
    for (const auto& [i, familia, rotulo] : valores) {
        mskProdutoEstrangeiroNFS[i] =
            new DecimalField(familia, t("mskProdutoEstrangeiroNFS(%1)").arg(i),
                             i == 5 ? QString() : ZeroMessage::GreaterThanZero, quadro);
        g->addWidget(new QLabel(t(rotulo), quadro), 3, c);
        g->addWidget(mskProdutoEstrangeiroNFS[i], 4, c++);
    }
    aliquotaII = new AliquotaDiferente(t("chk_AliquotaTEC_tabPE"), t("Em caso de alíquota diferente da normal da TEC"),
                                       t("mskProdutoEstrangeiroNFS(6)"), t("Alíquota II"),
                                       t("txtProdutoEstrangeiroNFS(4)"), t("II"), quadro);
    aliquotaIPI = new AliquotaDiferente(t("chk_AliquotaTIPI_tabPE"), t("Em caso de alíquota diferente da normal da TIPI"),
                                        t("mskProdutoEstrangeiroNFS(7)"), t("Alíquota IPI"),
                                        t("txtProdutoEstrangeiroNFS(5)"), t("IPI"), quadro);
    g->addWidget(aliquotaII, 5, 0, 1, 4);
    g->addWidget(aliquotaIPI, 6, 0, 1, 4);
    coluna->addWidget(quadro);
    botoes = new QuatroBotoes(t("cmd%1_tabProdutoEstrangeiro"), this);
    coluna->addWidget(botoes);
    grdConsultaNotaFiscalSaida = new ConsultGrid(this);
    grdConsultaNotaFiscalSaida->setObjectName(t("grdConsultaNotaFiscalSaida"));
    QList<ConsultGrid::Column> colunas{{QString(), 20},
                                       {t("Item"), 50},
                                       {t("Código do Produto"), 120},
                                       {t("Quantidade"), 110, Qt::AlignRight | Qt::AlignVCenter},
                                       {t("NCM"), 80}};
    for (int i = 4; i < Colunas.size(); ++i)
        colunas.append({Colunas.at(i), 0});
    grdConsultaNotaFiscalSaida->setColumns(colunas);
    coluna->addWidget(grdConsultaNotaFiscalSaida, 1);

    connect(grdConsultaNotaFiscalSaida, &ConsultGrid::rowChosen, this, &PaginaProdutoIndividual::escolheLinha);
    connect(botoes->cmdIncluir, &QPushButton::clicked, this, &PaginaProdutoIndividual::incluir);
    connect(botoes->cmdAlterar, &QPushButton::clicked, this, &PaginaProdutoIndividual::alterar);
    connect(botoes->cmdExcluir, &QPushButton::clicked, this, &PaginaProdutoIndividual::excluir);
    connect(botoes->cmdLimpar, &QPushButton::clicked, this, [this] {
        LimpaCamposPENFS();
        CarregaGridPE();
    });
}

bool PaginaProdutoIndividual::recusa(const QString& texto, QWidget* foco)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
    emit mostraPagina();
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    return false;
}

bool PaginaProdutoIndividual::ValidaDadosPE()
{
    if (txtItem->text().trimmed().isEmpty())
        return recusa(t("O campo item deve ser preenchido."), txtItem);
    if (!cabecalho->valida()) {
        emit mostraPagina();
        return false;
    }
    const QList<QPair<int, const char*>> exigidos{{1, "O campo quantidade deve ser preenchido."},
                                                  {2, "O campo valor unitário deve ser preenchido."},
                                                  {3, "O campo quantidade deve ser preenchido."}};
    for (const auto& [i, msg] : exigidos)
        if (mskProdutoEstrangeiroNFS[i]->text().trimmed().isEmpty())
            return recusa(t(msg), mskProdutoEstrangeiroNFS[i]);
    if (!aliquotaII->valida() || !aliquotaIPI->valida()) {
        emit mostraPagina();
        return false;
    }
    return true;
}

void PaginaProdutoIndividual::CarregaGridPE()
{
    QList<QStringList> linhas;
    for (const QVariantMap& m : LinhasNota(m_idNfs())) {
        QStringList l{QString()};
        for (const QString& c : Colunas)
            l << m.value(c).toString();
        l[3] = Funcoes::FormataNumero(l.at(3), t("#,##0.00000"));
        l[4] = Funcoes::FormataMascara(l.at(4), t("@@@@.@@.@@"));
        linhas << l;
    }
    grdConsultaNotaFiscalSaida->setRows(linhas);
    m_linha = -1;
    botoes->habilitaSelecao(false);
}

void PaginaProdutoIndividual::LimpaCamposPENFS()
{
    txtItem->clear();
    cabecalho->limpa();
    for (DecimalField* d : mskProdutoEstrangeiroNFS)
        if (d)
            d->clear();
    aliquotaII->limpa();
    aliquotaIPI->limpa();
}

QString PaginaProdutoIndividual::celula(const QString& coluna) const
{
    return grdConsultaNotaFiscalSaida->cellText(m_linha, Colunas.indexOf(coluna) + 1);
}

void PaginaProdutoIndividual::escolheLinha(int linha)
{
    if (linha < 0 || linha >= grdConsultaNotaFiscalSaida->dataRowCount())
        return;
    m_linha = linha;
    txtItem->setText(celula(t("NR_ITEM_NF_SAIDA")));
    cabecalho->mostra(Funcoes::SoDigitos(celula(t("CD_NCM_PROD"))), celula(t("CD_INT_PROD")), celula(t("NM_INT_PROD")),
                      celula(t("NM_UNID_MED_PROD")));
    mskProdutoEstrangeiroNFS[1]->setValue(celula(t("QT_INT_UNID_NFS")));
    mskProdutoEstrangeiroNFS[2]->setValue(celula(t("VL_INT_UNID_NFS")));
    mskProdutoEstrangeiroNFS[3]->setValue(celula(t("QT_INT_UNID_EST")));
    mskProdutoEstrangeiroNFS[5]->setValue(celula(t("VL_IPI_DESTACADO")));
    aliquotaII->marca(!celula(t("ALIQ_II_DIF_TEC")).trimmed().isEmpty());
    if (aliquotaII->marcada())
        aliquotaII->mostra(celula(t("ALIQ_II_DIF_TEC")), celula(t("JUST_II_DIF_TEC")));
    aliquotaIPI->marca(!celula(t("ALIQ_IPI_DIF_TIPI")).trimmed().isEmpty());
    if (aliquotaIPI->marcada())
        aliquotaIPI->mostra(celula(t("ALIQ_IPI_DIF_TIPI")), celula(t("JUST_IPI_DIF_TIPI")));
    botoes->habilitaSelecao(true);
}

// Against the first other item of the product in the declaration: NCM, unit and, when that item has a row of
// rates, the rates. An item without such a row compares no rate, so a later item may bring one.
bool PaginaProdutoIndividual::confereProduto(qint64 excetoId)
{
    const QList<Item> outros = ItensDoProduto(m_idVrt(), cabecalho->codigo(), excetoId);
    if (outros.isEmpty())
        return true;
    const Item& primeiro = outros.first();
    if (primeiro.ncm != cabecalho->ncm())
        return recusa(t("A NCM informada deve ser igual a %1, que foi informada em outro(s) registro(s) deste produto.")
                          .arg(Funcoes::FormataMascara(primeiro.ncm, t("@@@@.@@.@@"))),
                      cabecalho->cmdNcm);
    if (primeiro.unidade != cabecalho->unidade())
        return recusa(t("A unidade de medida informada deve ser %1, que foi informada em outro(s) registro(s) deste "
                        "produto.").arg(primeiro.unidade),
                      cabecalho->cboUnidade);
    const Aliquotas guardadas = AliquotasNota(primeiro.id);
    if (!guardadas.existe)
        return true;
    for (AliquotaDiferente* a : {aliquotaII, aliquotaIPI}) {
        const QString guardada = a == aliquotaII ? guardadas.aliqII : guardadas.aliqIPI;
        if (taxa(guardada) == taxa(a->taxa()))
            continue;
        recusa(t("A alíquota do %1 deve ser %2%, que foi informada em outro(s) registro(s) deste produto.")
                   .arg(a->imposto, taxa(guardada)),
               nullptr);
        a->marca(true);
        return false;
    }
    return true;
}

void PaginaProdutoIndividual::incluir()
{
    if (!ValidaDadosPE() || !confereProduto(0))
        return;
    if (ItensDeclaracao::NumeroItemUsado(m_idNfs(), txtItem->text())) {
        recusa(t("O número de item informado já foi incluído anteriormente."), txtItem);
        return;
    }
    modVRTPLN::AlteracaoPendente = true;
    const qint64 id = InsereItemNota(
        m_idNfs(), txtItem->text(),
        {0, cabecalho->codigo(), cabecalho->descricao(), cabecalho->ncm(), cabecalho->unidade(), QString()},
        {mskProdutoEstrangeiroNFS[1]->value(), mskProdutoEstrangeiroNFS[2]->value(),
         mskProdutoEstrangeiroNFS[3]->value(), mskProdutoEstrangeiroNFS[5]->value()});
    if (!aliquotaII->taxa().isEmpty() || !aliquotaIPI->taxa().isEmpty())
        GravaAliquotasNota(id, {true, aliquotaII->taxa(), aliquotaII->justificativa(), aliquotaIPI->taxa(),
                                aliquotaIPI->justificativa()});
    CarregaGridPE();
    LimpaCamposPENFS();
    emit itensMudaram();
}

void PaginaProdutoIndividual::alterar()
{
    if (m_linha < 0)
        return;
    const qint64 id = celula(t("ID_ITEM")).toLongLong();
    if (!ValidaDadosPE() || !confereProduto(id))
        return;
    if (txtItem->text() != celula(t("NR_ITEM_NF_SAIDA")) && ItensDeclaracao::NumeroItemUsado(m_idNfs(), txtItem->text())) {
        recusa(t("O número de item informado já foi incluído anteriormente."), txtItem);
        return;
    }
    modVRTPLN::AlteracaoPendente = true;
    AlteraItemNota(id, txtItem->text(),
                   {id, cabecalho->codigo(), cabecalho->descricao(), cabecalho->ncm(), cabecalho->unidade(), QString()},
                   {mskProdutoEstrangeiroNFS[1]->value(), mskProdutoEstrangeiroNFS[2]->value(),
                    mskProdutoEstrangeiroNFS[3]->value(), mskProdutoEstrangeiroNFS[5]->value()});
    const bool comTaxa = !aliquotaII->taxa().isEmpty() || !aliquotaIPI->taxa().isEmpty();
    if (comTaxa)
        GravaAliquotasNota(id, {true, aliquotaII->taxa(), aliquotaII->justificativa(), aliquotaIPI->taxa(),
                                aliquotaIPI->justificativa()});
    else
        ExcluiAliquotasNota(id);
    CarregaGridPE();
    LimpaCamposPENFS();
    emit itensMudaram();
}

void PaginaProdutoIndividual::excluir()
{
    if (m_linha < 0)
        return;
    if (MsgBox(t("Deseja realmente excluir?"), Msg::YesNo | Msg::Information) != Msg::Yes)
        return;
    modVRTPLN::AlteracaoPendente = true;
    ExcluiItemNota(celula(t("ID_ITEM")).toLongLong());
    CarregaGridPE();
    LimpaCamposPENFS();
    emit itensMudaram();
}
