#include "gui/items/EscolhaDocumento.h"

#include "core/store/DocumentoEntrada.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/QuadroDocumento.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

QString EscolhaDocumento::NomeOpcao(TipoDocumento tipo, Origem origem)
{
    const char* nomes[3] = {"DI", "DSI", "NFA"};
    return QStringLiteral("opt") + QLatin1String(nomes[static_cast<int>(tipo)])
           + (origem == Origem::Insumo ? QStringLiteral("_tabPIsemPPB") : QStringLiteral("_tabProdutoEstrangeiro"));
}

EscolhaDocumento::EscolhaDocumento(const Configuracao& c, QWidget* pagina) : QObject(pagina)
{
    tipos = new QGroupBox(c.tituloTipos, pagina);
    tipos->setObjectName(c.nomeTipos);
    auto* linha = new QHBoxLayout(tipos);
    const char* legendas[3] = {"DI", "DSI", "NF"};
    for (int i = 0; i < 3; ++i) {
        opcoes[i] = new QRadioButton(QString::fromLatin1(legendas[i]), tipos);
        opcoes[i]->setObjectName(NomeOpcao(static_cast<TipoDocumento>(i), c.origem));
        linha->addWidget(opcoes[i]);
        connect(opcoes[i], &QRadioButton::clicked, this, [this, i] { escolheTipo(i); });
    }
    linha->addStretch();
    botoes = new QuatroBotoes(c.padraoBotoes, pagina);
    if (!c.nomeLimpar.isEmpty())
        botoes->cmdLimpar->setObjectName(c.nomeLimpar);
    for (int tipo = 0; tipo < 3; ++tipo) {
        auto* q = new QuadroDocumento(*Membro(static_cast<TipoDocumento>(tipo), c.origem, c.individual), pagina);
        m_quadros.insert(tipo, q);
        connect(q, &QuadroDocumento::selecaoMudou, botoes, &QuatroBotoes::habilitaSelecao);
    }
    connect(botoes->cmdIncluir, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual())
            q->incluir();
    });
    connect(botoes->cmdAlterar, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual())
            q->alterar();
    });
    connect(botoes->cmdExcluir, &QPushButton::clicked, this, &EscolhaDocumento::excluir);
    connect(botoes->cmdLimpar, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual()) {
            q->limpa();
            q->carrega();
        }
    });
    reinicia();
}

void EscolhaDocumento::poeQuadros(QBoxLayout* coluna)
{
    for (QuadroDocumento* q : std::as_const(m_quadros))
        coluna->addWidget(q, 1);
    coluna->addStretch(0);
}

void EscolhaDocumento::reinicia()
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

void EscolhaDocumento::definePai(const QVariantList& pai, const QMap<QString, QString>& textos)
{
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->definePai(pai, textos);
}

void EscolhaDocumento::defineUnidade(const QString& unidade)
{
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->defineUnidade(unidade);
}

void EscolhaDocumento::recarrega()
{
    if (QuadroDocumento* q = atual())
        q->carrega();
}

void EscolhaDocumento::escolheTipo(int tipo)
{
    if (podeEscolher && !podeEscolher()) {
        reinicia();
        return;
    }
    m_tipo = tipo;
    for (auto i = m_quadros.cbegin(); i != m_quadros.cend(); ++i)
        i.value()->setVisible(i.key() == tipo);
    botoes->show();
    if (QuadroDocumento* q = atual()) {
        q->limpa();
        q->carrega();
    }
}

void EscolhaDocumento::excluir()
{
    QuadroDocumento* q = atual();
    if (!q || !q->excluir() || !paiDasLinhas)
        return;
    QList<TabelaDocumento> tabelas;
    for (const QuadroDocumento* outro : std::as_const(m_quadros))
        tabelas << outro->membro().dados;
    if (!DocumentoEntrada::TemLinhas(tabelas, paiDasLinhas()))
        reinicia();
}
