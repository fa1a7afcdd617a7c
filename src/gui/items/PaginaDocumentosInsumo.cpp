#include "gui/items/PaginaDocumentosInsumo.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/ItensPIsemPPB.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/EscolhaDocumento.h"
#include "gui/items/QuadroDocumento.h"
#include "gui/widgets/DecimalField.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace Itens = ItensPIsemPPB;

PaginaDocumentosInsumo::PaginaDocumentosInsumo(bool individual, std::function<QString()> idVrt,
                                               std::function<qint64()> idNfs, QWidget* parent)
    : QWidget(parent), m_individual(individual), m_idVrt(std::move(idVrt)), m_idNfs(std::move(idNfs))
{
    auto* coluna = new QVBoxLayout(this);
    coluna->addWidget(constroiQuadro());
    m_docs = new EscolhaDocumento({Origem::Insumo, individual, QStringLiteral("Documento Entrada"),
                                   QStringLiteral("fraDocumentoEntrada_tabPIsemPPB"), QStringLiteral("cmd%1_tabPIsemPPB"),
                                   QStringLiteral("cmdLimpar_TabPIsemPPB")},
                                  this);
    for (int i = 0; i < 3; ++i)
        opcoes[i] = m_docs->opcoes[i];
    botoes = m_docs->botoes;
    coluna->addWidget(m_docs->tipos);
    coluna->addWidget(botoes);
    m_docs->poeQuadros(coluna);
    m_docs->podeEscolher = [this] { return podeEscolher(); };
    if (!individual)
        m_docs->paiDasLinhas = [this] { return QVariantList{m_idVrt(), codigo(), cboLocal->currentData()}; };
    connect(cboInsumo, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheInsumo);
    connect(total, &DecimalField::leaveAccepted, this, &PaginaDocumentosInsumo::gravaTotal);
}

// The frame "Insumo": the item (individual), the input, its statistical total, and (monthly) the place with the
// input's quantity there.
QWidget* PaginaDocumentosInsumo::constroiQuadro()
{
    const bool individual = m_individual;
    auto* quadro = new QGroupBox(QStringLiteral("Insumo"), this);
    auto* g = new QGridLayout(quadro);
    int c = 0;
    auto poe = [&](QWidget* rotulo, QWidget* w) {
        g->addWidget(rotulo, 0, c);
        g->addWidget(w, 1, c++);
    };
    if (individual) {
        cboItem = new QComboBox(quadro);
        cboItem->setObjectName(QStringLiteral("cmdItem_TabPIsemPPB_Documento"));
        poe(new QLabel(QStringLiteral("Item"), quadro), cboItem);
        connect(cboItem, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheItem);
    }
    cboInsumo = new QComboBox(quadro);
    cboInsumo->setObjectName(individual ? QStringLiteral("cmbCodigoControleInternoInsumo") : QStringLiteral("cboCCIInsumoPIsemPPB"));
    cboInsumo->setMinimumWidth(140);
    poe(new QLabel(QStringLiteral("Código do insumo"), quadro), cboInsumo);
    total = new DecimalField(DecimalField::Quantity, individual ? QStringLiteral("mskPIsemPPB") : QStringLiteral("mskPIsemPPB(0)"),
                             individual ? ZeroMessage::GreaterThanZero : ZeroMessage::NotZero, quadro);
    total->setDisplayFormat(QStringLiteral("###,###,##0.00000"));
    poe(new QLabel(individual ? QStringLiteral("Quantidade Estatística") : QStringLiteral("Quant. Estatística Total"), quadro),
        total);
    if (!individual) {
        cboLocal = new QComboBox(quadro);
        cboLocal->setObjectName(QStringLiteral("cboLocalDestinoInsumo"));
        cboLocal->setMinimumWidth(150);
        poe(new QLabel(QStringLiteral("Local de destino"), quadro), cboLocal);
        txtQuantidadeTotalInsumo = new QLineEdit(quadro);
        txtQuantidadeTotalInsumo->setObjectName(QStringLiteral("txtQuantidadeTotalInsumo"));
        txtQuantidadeTotalInsumo->setReadOnly(true);
        rotuloQuantidade = new QLabel(QStringLiteral("Quant. Comercial"), quadro);
        poe(rotuloQuantidade, txtQuantidadeTotalInsumo);
        connect(cboLocal, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheLocal);
    }
    g->setColumnStretch(c, 1);
    return quadro;
}

QString PaginaDocumentosInsumo::codigo() const
{
    return cboInsumo->currentIndex() >= 0 ? cboInsumo->currentText().trimmed() : QString();
}

bool PaginaDocumentosInsumo::entra()
{
    m_docs->reinicia();
    cboInsumo->clear();
    total->clear();
    m_existe = false;
    definePai();
    if (m_individual) {
        cboItem->clear();
        const QList<QStringList> itens = Itens::LinhasProdutosNota(m_idNfs());
        if (itens.isEmpty()) {
            MsgBox(QStringLiteral("Não existem produtos cadastrados!"), Msg::OKOnly | Msg::Information);
            emit voltaProduto();
            return false;
        }
        for (const QStringList& i : itens)
            cboItem->addItem(i.value(1), i.value(0));
        cboItem->setCurrentIndex(-1);
        return true;
    }
    cboLocal->clear();
    txtQuantidadeTotalInsumo->clear();
    const QStringList insumos = Itens::InsumosConsolidados(m_idVrt());
    if (insumos.isEmpty()) {
        MsgBox(QStringLiteral("Não existem insumos cadastrados"), Msg::OKOnly | Msg::Information);
        emit voltaProduto();
        return false;
    }
    cboInsumo->addItems(insumos);
    cboInsumo->setCurrentIndex(-1);
    return true;
}

void PaginaDocumentosInsumo::escolheItem()
{
    cboInsumo->clear();
    total->clear();
    m_existe = false;
    for (const QStringList& i : Itens::LinhasInsumosNota(cboItem->currentData().toLongLong()))
        cboInsumo->addItem(i.value(1), i.value(0));
    cboInsumo->setCurrentIndex(-1);
    m_docs->reinicia();
    definePai();
}

void PaginaDocumentosInsumo::escolheInsumo()
{
    const auto t = Itens::TotalInsumo(m_idVrt(), codigo(), m_individual);
    m_existe = t.has_value();
    total->setText(t && !t->isEmpty() ? Funcoes::FormataNumero(*t, total->displayFormat()) : QString());
    m_textoAoEntrar = total->text();
    if (m_individual) {
        for (const QStringList& i : Itens::LinhasInsumosNota(cboItem->currentData().toLongLong()))
            if (i.value(0) == cboInsumo->currentData().toString())
                m_docs->defineUnidade(i.value(6));
        definePai();
        m_docs->recarrega();
        return;
    }
    m_docs->reinicia();
    const QString unidade = Itens::UnidadeDoInsumo(m_idVrt(), codigo());
    rotuloQuantidade->setText(QStringLiteral("Quant. comercial em ") + unidade);
    m_docs->defineUnidade(unidade);
    cboLocal->clear();
    txtQuantidadeTotalInsumo->clear();
    for (const QStringList& l : Itens::LocaisDoInsumo(m_idVrt(), codigo()))
        cboLocal->addItem(l.value(1), l.value(0));
    cboLocal->setCurrentIndex(-1);
    definePai();
}

void PaginaDocumentosInsumo::escolheLocal()
{
    for (const QStringList& l : Itens::LocaisDoInsumo(m_idVrt(), codigo()))
        if (l.value(0) == cboLocal->currentData().toString())
            txtQuantidadeTotalInsumo->setText(Funcoes::FormataNumero(l.value(2), QStringLiteral("#,##0.00000")));
    definePai();
    // The grid that reloads is the one of the kind chosen on the foreign product's page, as it always was; with no
    // choice kept there, no grid reloads.
    for (TipoDocumento tipo : {TipoDocumento::DI, TipoDocumento::DSI, TipoDocumento::NFA}) {
        auto* o = window()->findChild<QRadioButton*>(EscolhaDocumento::NomeOpcao(tipo, Origem::Produto));
        if (o && o->isChecked())
            m_docs->quadro(tipo)->carrega();
    }
}

bool PaginaDocumentosInsumo::podeEscolher()
{
    QString falta;
    if (m_individual)
        falta = cboItem->currentIndex() < 0      ? QStringLiteral("Selecione um item.")
                : cboInsumo->currentIndex() < 0 ? QStringLiteral("Selecione um insumo.")
                                                : QString();
    else
        falta = cboInsumo->currentIndex() < 0  ? QStringLiteral("Selecione um código de produto antes")
                : cboLocal->currentIndex() < 0 ? QStringLiteral("Selecione um local de destino antes")
                                               : QString();
    if (falta.isEmpty())
        return true;
    MsgBox(falta, m_individual ? Msg::OKOnly : Msg::OKOnly | Msg::Information);
    return false;
}

// The parent of the lines: declaration, input and place (monthly) or the input row (individual).
void PaginaDocumentosInsumo::definePai()
{
    QVariantList pai;
    QMap<QString, QString> textos;
    if (m_individual) {
        if (cboInsumo->currentIndex() >= 0) {
            pai << cboInsumo->currentData();
            textos.insert(QStringLiteral("#produto"), codigo());
        }
    } else if (cboInsumo->currentIndex() >= 0 && cboLocal->currentIndex() >= 0) {
        pai << m_idVrt() << codigo() << cboLocal->currentData();
        textos.insert(QStringLiteral("#produto"), codigo());
        textos.insert(QStringLiteral("#local"), cboLocal->currentText());
        textos.insert(QStringLiteral("#nome"), Itens::NomeDoInsumo(m_idVrt(), codigo()));
    }
    m_docs->definePai(pai, textos);
}

// The total is written when the field is left, not on a button; a row written once is updated afterwards.
void PaginaDocumentosInsumo::gravaTotal()
{
    if (codigo().isEmpty())
        return;
    Itens::GravaTotalInsumo(m_idVrt(), codigo(), total->value(), m_existe, m_individual);
    m_existe = true;
    if (total->text() != m_textoAoEntrar)
        modVRTPLN::AlteracaoPendente = true;
    m_textoAoEntrar = total->text();
}

QuadroDocumento* PaginaDocumentosInsumo::quadro(TipoDocumento tipo) const
{
    return m_docs->quadro(tipo);
}
