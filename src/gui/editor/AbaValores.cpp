#include "gui/editor/AbaValores.h"

#include "gui/editor/BlocosValores.h"
#include "gui/blocks/ExecutorBloco.h"
#include "gui/blocks/QuatroBotoes.h"

#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

AbaValores::AbaValores(std::function<QVariant()> idVrt, std::function<bool()> temProcesso,
                       QWidget* quadroRetificacao, QWidget* parent)
    : QWidget(parent)
{
    auto* coluna = new QVBoxLayout(this);
    coluna->setContentsMargins(0, 0, 0, 0);
    tabValores = new QTabWidget(this);
    tabValores->setObjectName(QStringLiteral("tabValores"));
    coluna->addWidget(tabValores);
    const char* legendas[] = {" Mandado Judicial", "Retificação"};
    for (int i = 0; i < 2; ++i) {
        auto* pagina = new QWidget;
        pagina->setObjectName(QStringLiteral("tabValores(%1)").arg(i));
        auto* paginaLayout = new QVBoxLayout(pagina);
        if (i == 1) {
            quadroRetificacao->setParent(pagina);
            quadroRetificacao->show();
            paginaLayout->addWidget(quadroRetificacao);
        }
        auto* area = new QWidget(pagina);
        area->setObjectName(i == 0 ? QStringLiteral("fraValoresMandado") : QStringLiteral("fraValoresRetificacao"));
        m_blocos[i] = new ExecutorBloco(BlocosValores::Descricao(i, temProcesso), idVrt, this);
        m_blocos[i]->constroi(area);
        paginaLayout->addWidget(area, 1);
        tabValores->addTab(pagina, QString::fromUtf8(legendas[i]));
    }
}

void AbaValores::inicia()
{
    tabValores->setCurrentIndex(0);
    tabValores->setTabVisible(0, false);
    tabValores->setTabVisible(1, false);
    tabValores->setEnabled(false);
    for (int i = 0; i < 2; ++i)
        abreEntrada(i, false);
}

void AbaValores::carrega(int indice)
{
    m_blocos[indice]->carrega();
}

void AbaValores::limpa(int indice)
{
    m_blocos[indice]->limpa();
}

void AbaValores::abreEntrada(int indice, bool aberta)
{
    m_blocos[indice]->botoes()->cmdIncluir->setEnabled(aberta);
    m_blocos[indice]->habilitaCampos(aberta);
}
