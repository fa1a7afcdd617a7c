#include "gui/items/AbaNacional.h"

#include "gui/items/BlocosNacional.h"
#include "gui/items/CamposItem.h"

#include <QVBoxLayout>

AbaNacional::AbaNacional(const ContextoItens& contexto, QWidget* parent)
    : AbaItens(contexto, QStringLiteral("tab100Nacional_Individual"), parent)
{
    setObjectName(contexto.individual ? QStringLiteral("tab100NacionalIndividual")
                                      : QStringLiteral("fra100NacionalMensal"));
    m_bloco = new ExecutorBloco(contexto.individual ? BlocosNacional::Individual() : BlocosNacional::Mensal(),
                                [this] { return pai(); }, this);
    auto* area = new QWidget(this);
    m_bloco->constroi(area);
    corpo()->addWidget(area, 1);
    CamposItem::registraDestinos(*m_bloco);
}

void AbaNacional::carrega()
{
    m_bloco->carrega();
}

void AbaNacional::repopula()
{
    m_bloco->carrega();
    m_bloco->limpa();
}
