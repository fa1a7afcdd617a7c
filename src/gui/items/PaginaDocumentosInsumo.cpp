#include "gui/items/PaginaDocumentosInsumo.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/ItensPIsemPPB.h"
#include "gui/widgets/DecimalField.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
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
    auto* quadro = new QGroupBox(QStringLiteral("Insumo"), this);
    auto* g = new QGridLayout(quadro);
    int c = 0;
    auto poe = [&](const QString& rotulo, QWidget* w) {
        g->addWidget(new QLabel(rotulo, quadro), 0, c);
        g->addWidget(w, 1, c++);
    };
    if (individual) {
        cboItem = new QComboBox(quadro);
        cboItem->setObjectName(QStringLiteral("cmdItem_TabPIsemPPB_Documento"));
        poe(QStringLiteral("Item"), cboItem);
        connect(cboItem, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheItem);
    }
    cboInsumo = new QComboBox(quadro);
    cboInsumo->setObjectName(individual ? QStringLiteral("cmbCodigoControleInternoInsumo") : QStringLiteral("cboCCIInsumoPIsemPPB"));
    cboInsumo->setMinimumWidth(140);
    poe(QStringLiteral("Código do insumo"), cboInsumo);
    total = new DecimalField(DecimalField::Quantity, individual ? QStringLiteral("mskPIsemPPB") : QStringLiteral("mskPIsemPPB(0)"),
                             individual ? ZeroMessage::GreaterThanZero : ZeroMessage::NotZero, quadro);
    total->setDisplayFormat(QStringLiteral("###,###,##0.00000"));
    poe(individual ? QStringLiteral("Quantidade Estatística") : QStringLiteral("Quant. Estatística Total"), total);
    if (!individual) {
        cboLocal = new QComboBox(quadro);
        cboLocal->setObjectName(QStringLiteral("cboLocalDestinoInsumo"));
        cboLocal->setMinimumWidth(150);
        poe(QStringLiteral("Local de destino"), cboLocal);
        txtQuantidadeTotalInsumo = new QLineEdit(quadro);
        txtQuantidadeTotalInsumo->setObjectName(QStringLiteral("txtQuantidadeTotalInsumo"));
        txtQuantidadeTotalInsumo->setReadOnly(true);
        rotuloQuantidade = new QLabel(QStringLiteral("Quant. Comercial"), quadro);
        g->addWidget(rotuloQuantidade, 0, c);
        g->addWidget(txtQuantidadeTotalInsumo, 1, c++);
        connect(cboLocal, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheLocal);
    }
    g->setColumnStretch(c, 1);
    coluna->addWidget(quadro);

    auto* tipos = new QGroupBox(QStringLiteral("Documento Entrada"), this);
    auto* linha = new QHBoxLayout(tipos);
    const char* nomes[3] = {"DI", "DSI", "NFA"};
    const char* textos[3] = {"DI", "DSI", "NF"};
    for (int i = 0; i < 3; ++i) {
        opcoes[i] = new QRadioButton(QString::fromLatin1(textos[i]), tipos);
        opcoes[i]->setObjectName(QStringLiteral("opt%1_tabPIsemPPB").arg(QLatin1String(nomes[i])));
        linha->addWidget(opcoes[i]);
        connect(opcoes[i], &QRadioButton::clicked, this, [this, i] { escolheTipo(i); });
    }
    linha->addStretch();
    coluna->addWidget(tipos);
    coluna->addStretch(1);

    connect(cboInsumo, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheInsumo);
    connect(total, &DecimalField::leaveAccepted, this, &PaginaDocumentosInsumo::gravaTotal);
}

QString PaginaDocumentosInsumo::codigo() const
{
    return cboInsumo->currentIndex() >= 0 ? cboInsumo->currentText().trimmed() : QString();
}

bool PaginaDocumentosInsumo::entra()
{
    cboInsumo->clear();
    total->clear();
    m_existe = false;
    for (QRadioButton* o : opcoes) {
        o->setAutoExclusive(false);
        o->setChecked(false);
        o->setAutoExclusive(true);
    }
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
}

void PaginaDocumentosInsumo::escolheInsumo()
{
    const auto t = Itens::TotalInsumo(m_idVrt(), codigo(), m_individual);
    m_existe = t.has_value();
    total->setText(t && !t->isEmpty() ? Funcoes::FormataNumero(*t, total->displayFormat()) : QString());
    m_textoAoEntrar = total->text();
    if (m_individual)
        return;
    rotuloQuantidade->setText(QStringLiteral("Quant. comercial em ") + Itens::UnidadeDoInsumo(m_idVrt(), codigo()));
    cboLocal->clear();
    txtQuantidadeTotalInsumo->clear();
    for (const QStringList& l : Itens::LocaisDoInsumo(m_idVrt(), codigo()))
        cboLocal->addItem(l.value(1), l.value(0));
    cboLocal->setCurrentIndex(-1);
}

void PaginaDocumentosInsumo::escolheLocal()
{
    for (const QStringList& l : Itens::LocaisDoInsumo(m_idVrt(), codigo()))
        if (l.value(0) == cboLocal->currentData().toString())
            txtQuantidadeTotalInsumo->setText(Funcoes::FormataNumero(l.value(2), QStringLiteral("#,##0.00000")));
}

void PaginaDocumentosInsumo::escolheTipo(int)
{
    if (m_individual) {
        if (cboItem->currentIndex() < 0)
            MsgBox(QStringLiteral("Selecione um item."), Msg::OKOnly);
        else if (cboInsumo->currentIndex() < 0)
            MsgBox(QStringLiteral("Selecione um insumo."), Msg::OKOnly);
        return;
    }
    if (cboInsumo->currentIndex() < 0)
        MsgBox(QStringLiteral("Selecione um código de produto antes"), Msg::OKOnly | Msg::Information);
    else if (cboLocal->currentIndex() < 0)
        MsgBox(QStringLiteral("Selecione um local de destino antes"), Msg::OKOnly | Msg::Information);
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
