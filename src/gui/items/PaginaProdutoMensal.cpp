#include "gui/items/PaginaProdutoMensal.h"

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
#include "gui/widgets/NcmField.h"
#include "gui/widgets/TextField.h"

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

// The grid's columns after the empty first one: five visible, then what choosing a row needs.
const QStringList Colunas{
    t("CD_INT_PRODUTO"), t("NM_INT_PRODUTO"), t("NM_LOCAL_DESTINO"), t("QT_PROD_LOC_DEST"), t("CD_NCM_PRODUTO"),
    t("ID_ITEM_VRT"), t("ID_DEST_PRODUTO"), t("CD_LOCAL_DESTINO"), t("NM_UNID_MED_PROD"), t("QT_PROD_UNID_PROD"),
    t("QT_PROD_UNID_EST"), t("ALIQ_II_DIF_TEC"), t("JUST_II_DIF_TEC"), t("ALIQ_IPI_DIF_TIPI"), t("JUST_IPI_DIF_TIPI"),
    t("NM_UNID_MED_EST"), t("DESCR_NCM_PRODUTO")};

QString taxa(const QString& v)
{
    return Funcoes::FormataNumero(v, t("##0.00"));
}

QString msgUnidade(const QString& unidade)
{
    return t("A unidade de medida informada deve ser %1, que foi informada em outro(s) registro(s) deste produto.")
        .arg(unidade);
}

}  // namespace

PaginaProdutoMensal::PaginaProdutoMensal(std::function<QString()> idVrt, QWidget* parent)
    : QWidget(parent), m_idVrt(std::move(idVrt))
{
    auto* coluna = new QVBoxLayout(this);
    auto* quadro = new QGroupBox(t("Produto"), this);
    quadro->setObjectName(t("fraProduto_tabProdutoEstrangeiro"));
    auto* g = new QGridLayout(quadro);
    cabecalho = new CabecalhoProduto({t("mskNumNCMPE"), t("txtDescrNCMPE"), t("txtUnidMedEstatisticaPE"),
                                      t("txtCodProdPE"), t("txtDescrProdPE"), t("cboUnidadePE"), t("produtoPEMensal"),
                                      t("Unidade comercial"), t("cmdAssistenteNCM_tabProdutoEstrangeiro_Mensal"), t("cmdAssistenteCCI_tabProdutoEstrangeiro_Mensal")},
                                     quadro);
    g->addWidget(cabecalho, 0, 0, 1, 3);
    mskPE[1] = new DecimalField(DecimalField::Quantity, t("mskPE(1)"), ZeroMessage::NotEqualZeroPoder, quadro);
    cboLocalPE = new QComboBox(quadro);
    cboLocalPE->setObjectName(t("cboLocalPE"));
    for (const QStringList& l : ItensDeclaracao::Locais())
        cboLocalPE->addItem(l.value(1), l.value(0));
    cboLocalPE->setCurrentIndex(-1);
    mskPE[2] = new DecimalField(DecimalField::Quantity, t("mskPE(2)"), ZeroMessage::NotEqualZeroPoder, quadro);
    const QList<QPair<QString, QWidget*>> campos{{t("Quant. total estatística"), mskPE[1]},
                                                 {t("Local de destino"), cboLocalPE},
                                                 {t("Quantidade comercial"), mskPE[2]}};
    for (int i = 0; i < campos.size(); ++i) {
        g->addWidget(new QLabel(campos.at(i).first, quadro), 1, i);
        g->addWidget(campos.at(i).second, 2, i);
    }
    aliquotaII = new AliquotaDiferente(t("chk_Aliquota_tabPE"), t("Em caso de alíquota diferente da normal da TEC"),
                                       t("mskPE(3)"), t("Alíquota II"), t("txtJustifLegalAliqIIPE"), t("II"), quadro);
    aliquotaIPI = new AliquotaDiferente(t("chk_Aliquota_tabP"), t("Em caso de alíquota diferente da normal da TIPI"),
                                        t("mskPE(4)"), t("Alíquota IPI"), t("txtJustifLegalAliqIPIPE"), t("IPI"), quadro);
    g->addWidget(aliquotaII, 3, 0, 1, 3);
    g->addWidget(aliquotaIPI, 4, 0, 1, 3);
    coluna->addWidget(quadro);
    botoes = new QuatroBotoes(t("cmd%1_tabProdutoEstrangeiro_CCI"), this);
    coluna->addWidget(botoes);
    grdConsultaCodigoControleInterno = new ConsultGrid(this);
    grdConsultaCodigoControleInterno->setObjectName(t("grdConsultaCodigoControleInterno"));
    QList<ConsultGrid::Column> colunas{{QString(), 20},
                                       {t("Código do produto"), 110},
                                       {t("Descrição do produto"), 200},
                                       {t("Local"), 160},
                                       {t("Quantidade"), 110, Qt::AlignRight | Qt::AlignVCenter},
                                       {t("NCM"), 80}};
    for (int i = 5; i < Colunas.size(); ++i)
        colunas.append({Colunas.at(i), 0});
    grdConsultaCodigoControleInterno->setColumns(colunas);
    coluna->addWidget(grdConsultaCodigoControleInterno, 1);

    connect(grdConsultaCodigoControleInterno, &ConsultGrid::rowChosen, this, &PaginaProdutoMensal::escolheLinha);
    connect(botoes->cmdIncluir, &QPushButton::clicked, this, &PaginaProdutoMensal::incluir);
    connect(botoes->cmdAlterar, &QPushButton::clicked, this, &PaginaProdutoMensal::alterar);
    connect(botoes->cmdExcluir, &QPushButton::clicked, this, &PaginaProdutoMensal::excluir);
    connect(botoes->cmdLimpar, &QPushButton::clicked, this, [this] {
        LimpaCamposPE();
        CarregaGridPE();
    });
}

bool PaginaProdutoMensal::recusa(const QString& texto, QWidget* foco)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
    emit mostraPagina();
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    return false;
}

bool PaginaProdutoMensal::ValidaDadosPE()
{
    if (!cabecalho->valida()) {
        emit mostraPagina();
        return false;
    }
    if (mskPE[1]->text().trimmed().isEmpty())
        return recusa(t("O campo quantidade total na unidade estatística deve ser preenchido."), mskPE[1]);
    if (cboLocalPE->currentIndex() < 0)
        return recusa(t("O campo local de destino deve ser selecionado."), cboLocalPE);
    if (mskPE[2]->text().trimmed().isEmpty())
        return recusa(t("O campo quantidade por destino deve ser preenchido."), mskPE[2]);
    if (!aliquotaII->valida() || !aliquotaIPI->valida()) {
        emit mostraPagina();
        return false;
    }
    return true;
}

void PaginaProdutoMensal::CarregaGridPE()
{
    QList<QStringList> linhas;
    for (const QVariantMap& m : LinhasMensais(m_idVrt())) {
        QStringList l{QString()};
        for (const QString& c : Colunas)
            l << m.value(c).toString();
        l[4] = Funcoes::FormataNumero(l.at(4), t("#,##0.00000"));
        l[5] = Funcoes::FormataMascara(l.at(5), t("@@@@.@@.@@"));
        linhas << l;
    }
    grdConsultaCodigoControleInterno->setRows(linhas);
    m_linha = -1;
    botoes->habilitaSelecao(false);
}

void PaginaProdutoMensal::LimpaCamposPE()
{
    cabecalho->limpa();
    mskPE[1]->clear();
    mskPE[2]->clear();
    cboLocalPE->setCurrentIndex(-1);
    aliquotaII->limpa();
    aliquotaIPI->limpa();
}

QString PaginaProdutoMensal::celula(const QString& coluna) const
{
    return grdConsultaCodigoControleInterno->cellText(m_linha, Colunas.indexOf(coluna) + 1);
}

void PaginaProdutoMensal::escolheLinha(int linha)
{
    if (linha < 0 || linha >= grdConsultaCodigoControleInterno->dataRowCount())
        return;
    m_linha = linha;
    cabecalho->mostra(Funcoes::SoDigitos(celula(t("CD_NCM_PRODUTO"))), celula(t("CD_INT_PRODUTO")),
                      celula(t("NM_INT_PRODUTO")), celula(t("NM_UNID_MED_PROD")));
    mskPE[1]->setValue(celula(t("QT_PROD_UNID_EST")));
    mskPE[2]->setValue(celula(t("QT_PROD_LOC_DEST")));
    int i = -1;
    for (int k = 0; k < cboLocalPE->count() && i < 0; ++k)
        if (cboLocalPE->itemText(k).trimmed() == celula(t("NM_LOCAL_DESTINO")).trimmed())
            i = k;
    cboLocalPE->setCurrentIndex(i);
    aliquotaII->marca(!celula(t("JUST_II_DIF_TEC")).trimmed().isEmpty());
    if (aliquotaII->marcada())
        aliquotaII->mostra(celula(t("ALIQ_II_DIF_TEC")), celula(t("JUST_II_DIF_TEC")));
    aliquotaIPI->marca(!celula(t("JUST_IPI_DIF_TIPI")).trimmed().isEmpty());
    if (aliquotaIPI->marcada())
        aliquotaIPI->mostra(celula(t("ALIQ_IPI_DIF_TIPI")), celula(t("JUST_IPI_DIF_TIPI")));
    botoes->habilitaSelecao(true);
}

// A rate of a later or changed destination against the one stored for the product: unequal is refused with the
// stored rate; equal, its grounds must be there when they can be typed.
bool PaginaProdutoMensal::confereAliquota(AliquotaDiferente* a, const QString& guardada, QWidget* focoSemCampo,
                                         bool exigeJustificativa)
{
    QWidget* foco = a->campoTaxa->isEnabled() ? static_cast<QWidget*>(a->campoTaxa) : focoSemCampo;
    if (taxa(guardada) != taxa(a->taxa()))
        return recusa(t("A alíquota do %1 deve ser %2%, que foi informada em outro(s) registro(s) deste produto.")
                          .arg(a->imposto, taxa(guardada)),
                      foco);
    if (exigeJustificativa && a->campoJustificativa->isEnabled() && a->justificativa().trimmed().isEmpty())
        return recusa(t("O campo fundamentação legal para a alíquota de %1 deve ser preenchido.").arg(a->imposto),
                      foco);
    return true;
}

void PaginaProdutoMensal::incluir()
{
    if (!ValidaDadosPE())
        return;
    const QString idVrt = m_idVrt();
    const Item novo{0, cabecalho->codigo().trimmed(), cabecalho->descricao(), cabecalho->ncm(), cabecalho->unidade(),
                    mskPE[1]->value()};
    const QString local = cboLocalPE->currentData().toString();
    const bool comTaxa = aliquotaII->marcada() || aliquotaIPI->marcada();
    const Aliquotas taxas{true, aliquotaII->taxa(), aliquotaII->justificativa(), aliquotaIPI->taxa(),
                          aliquotaIPI->justificativa()};
    const std::optional<Item> existente = ItemMensal(idVrt, novo.codigo);
    if (existente) {
        if (cabecalho->unidade() != existente->unidade) {
            recusa(msgUnidade(existente->unidade), cabecalho->cboUnidade);
            return;
        }
        if (Funcoes::FormataMascara(novo.ncm, t("@@@@.@@.@@")) != Funcoes::FormataMascara(existente->ncm, t("@@@@.@@.@@"))) {
            recusa(t("Este produto possui outro(s) registro(s) com NCM diferente!"), cabecalho->cboUnidade);
            return;
        }
        if (LocaisDoItem(existente->id).contains(local)) {
            recusa(t("Produto já incluído para este local de destino."), botoes->cmdIncluir);
            return;
        }
        const Aliquotas guardadas = AliquotasMensais(existente->id);
        if (!guardadas.existe && comTaxa) {
            recusa(t("Alíquota diferente da informada anteriormente para este produto."), nullptr);
            return;
        }
        if (guardadas.existe
            && (!confereAliquota(aliquotaII, guardadas.aliqII, botoes->cmdIncluir, true)
                || !confereAliquota(aliquotaIPI, guardadas.aliqIPI, botoes->cmdIncluir, true)))
            return;
        modVRTPLN::AlteracaoPendente = true;
        InsereDestino(existente->id, local, mskPE[2]->value());
        if (comTaxa && !AliquotasMensais(existente->id).existe)
            GravaAliquotasMensais(existente->id, taxas);
    } else {
        modVRTPLN::AlteracaoPendente = true;
        const qint64 id = InsereItemMensal(idVrt, novo);
        if (comTaxa)
            GravaAliquotasMensais(id, taxas);
        InsereDestino(id, local, mskPE[2]->value());
    }
    CarregaGridPE();
    LimpaCamposPE();
}

void PaginaProdutoMensal::alterar()
{
    if (m_linha < 0) {
        recusa(t("Inclua um produto ou selecione no grid"), nullptr);
        return;
    }
    if (!ValidaDadosPE())
        return;
    if (cabecalho->codigo().trimmed() != celula(t("CD_INT_PRODUTO")).trimmed()) {
        recusa(t("O produto não pode ser alterado."), nullptr);
        return;
    }
    const qint64 item = celula(t("ID_ITEM_VRT")).toLongLong();
    const qint64 destino = celula(t("ID_DEST_PRODUTO")).toLongLong();
    const QStringList locais = LocaisDoItem(item);
    if (locais.size() >= 2) {
        const std::optional<Item> primeiro = ItemMensal(m_idVrt(), cabecalho->codigo().trimmed());
        if (primeiro && cabecalho->unidade() != primeiro->unidade) {
            recusa(msgUnidade(primeiro->unidade), cabecalho->cboUnidade);
            return;
        }
        if (!confereAliquota(aliquotaII, celula(t("ALIQ_II_DIF_TEC")), aliquotaII->check, false)
            || !confereAliquota(aliquotaIPI, celula(t("ALIQ_IPI_DIF_TIPI")), aliquotaIPI->check, false))
            return;
    }
    // The location counts as changed when the first 25 characters of the list's text differ from the grid's:
    // a longer name always does. The row's own destination is not counted as another one.
    const QString local = cboLocalPE->currentData().toString();
    if (cboLocalPE->currentText().left(25) != celula(t("NM_LOCAL_DESTINO")) && locais.size() > 1
        && local != celula(t("CD_LOCAL_DESTINO")) && locais.contains(local)) {
        recusa(t("Local de destino já informado anteriormente para este produto."), botoes->cmdAlterar);
        return;
    }
    modVRTPLN::AlteracaoPendente = true;
    AlteraItemMensal(item, {item, cabecalho->codigo().trimmed(), cabecalho->descricao(), cabecalho->ncm(),
                            cabecalho->unidade(), mskPE[1]->value()});
    if (aliquotaII->marcada() || aliquotaIPI->marcada())
        GravaAliquotasMensais(item, {true, aliquotaII->taxa(), aliquotaII->justificativa(), aliquotaIPI->taxa(),
                                     aliquotaIPI->justificativa()});
    else
        ExcluiAliquotasMensais(item);
    AlteraDestino(destino, local, mskPE[2]->value());
    CarregaGridPE();
    LimpaCamposPE();
    cabecalho->cmdProduto->setFocus(Qt::OtherFocusReason);
}

void PaginaProdutoMensal::excluir()
{
    if (m_linha < 0) {
        recusa(t("Inclua um produto ou selecione no grid"), nullptr);
        return;
    }
    if (MsgBox(t("Deseja realmente excluir?"), Msg::YesNo | Msg::Information) != Msg::Yes)
        return;
    modVRTPLN::AlteracaoPendente = true;
    ItensDeclaracao::ExcluiDestino(celula(t("ID_DEST_PRODUTO")).toLongLong(), celula(t("ID_ITEM_VRT")).toLongLong());
    LimpaCamposPE();
    CarregaGridPE();
}
