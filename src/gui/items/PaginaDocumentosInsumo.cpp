#include "gui/items/PaginaDocumentosInsumo.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/ItensPIsemPPB.h"
#include "core/store/DocumentoEntrada.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/QuadroDocumento.h"
#include "gui/widgets/DecimalField.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
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
    botoes = new QuatroBotoes(QStringLiteral("cmd%1_tabPIsemPPB"), this);
    botoes->cmdLimpar->setObjectName(QStringLiteral("cmdLimpar_TabPIsemPPB"));
    coluna->addWidget(botoes);
    for (int tipo = 0; tipo < 3; ++tipo) {
        const MembroDocumento* m = Membro(static_cast<TipoDocumento>(tipo), Origem::Insumo, individual);
        if (!m)
            continue;
        auto* q = new QuadroDocumento(*m, this);
        m_quadros.insert(tipo, q);
        coluna->addWidget(q, 1);
        connect(q, &QuadroDocumento::selecaoMudou, botoes, &QuatroBotoes::habilitaSelecao);
    }
    coluna->addStretch(0);
    connect(botoes->cmdIncluir, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual())
            q->incluir();
    });
    connect(botoes->cmdAlterar, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual())
            q->alterar();
    });
    connect(botoes->cmdExcluir, &QPushButton::clicked, this, &PaginaDocumentosInsumo::excluir);
    connect(botoes->cmdLimpar, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual()) {
            q->limpa();
            q->carrega();
        }
    });
    reinicia();

    connect(cboInsumo, &QComboBox::activated, this, &PaginaDocumentosInsumo::escolheInsumo);
    connect(total, &DecimalField::leaveAccepted, this, &PaginaDocumentosInsumo::gravaTotal);
}

QString PaginaDocumentosInsumo::codigo() const
{
    return cboInsumo->currentIndex() >= 0 ? cboInsumo->currentText().trimmed() : QString();
}

bool PaginaDocumentosInsumo::entra()
{
    reinicia();
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
    reinicia();
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
                for (QuadroDocumento* q : std::as_const(m_quadros))
                    q->defineUnidade(i.value(6));
        definePai();
        if (QuadroDocumento* q = atual())
            q->carrega();
        return;
    }
    reinicia();
    const QString unidade = Itens::UnidadeDoInsumo(m_idVrt(), codigo());
    rotuloQuantidade->setText(QStringLiteral("Quant. comercial em ") + unidade);
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->defineUnidade(unidade);
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
    const char* nomesPE[3] = {"optDI_tabProdutoEstrangeiro", "optDSI_tabProdutoEstrangeiro",
                              "optNFA_tabProdutoEstrangeiro"};
    for (int tipo = 0; tipo < 3; ++tipo) {
        auto* o = window()->findChild<QRadioButton*>(QString::fromLatin1(nomesPE[tipo]));
        if (o && o->isChecked() && m_quadros.contains(tipo))
            m_quadros.value(tipo)->carrega();
    }
}

void PaginaDocumentosInsumo::escolheTipo(int tipo)
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
    if (!falta.isEmpty()) {
        MsgBox(falta, m_individual ? Msg::OKOnly : Msg::OKOnly | Msg::Information);
        reinicia();
        return;
    }
    mostraTipo(tipo);
}

// No kind chosen: the three choices off, the frames and the buttons hidden.
void PaginaDocumentosInsumo::reinicia()
{
    m_tipo = -1;
    for (QRadioButton* o : opcoes) {
        o->setAutoExclusive(false);
        o->setChecked(false);
        o->setAutoExclusive(true);
    }
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->hide();
    botoes->hide();
}

void PaginaDocumentosInsumo::mostraTipo(int tipo)
{
    m_tipo = tipo;
    for (auto i = m_quadros.cbegin(); i != m_quadros.cend(); ++i)
        i.value()->setVisible(i.key() == tipo);
    botoes->show();
    if (QuadroDocumento* q = atual()) {
        q->limpa();
        q->carrega();
    }
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
    }
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->definePai(pai, textos);
}

void PaginaDocumentosInsumo::excluir()
{
    QuadroDocumento* q = atual();
    if (!q || !q->excluir() || m_individual)
        return;
    // A place left with no document of any kind shows the page as when it was entered.
    QList<TabelaDocumento> tabelas;
    for (const QuadroDocumento* outro : std::as_const(m_quadros))
        tabelas << outro->membro().dados;
    if (!DocumentoEntrada::TemLinhas(tabelas, {m_idVrt(), codigo(), cboLocal->currentData()}))
        reinicia();
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
