#include "gui/items/AbaItens.h"

#include <QScrollArea>

#include "gui/items/CabecalhoNota.h"

#include <QVBoxLayout>

AbaItens::AbaItens(const ContextoItens& contexto, const QString& sufixoCabecalho, QWidget* parent)
    : QWidget(parent), m_ctx(contexto)
{
    m_corpo = new QVBoxLayout(this);
    if (m_ctx.individual) {
        m_cabecalho = new CabecalhoNota(sufixoCabecalho, this);
        m_corpo->addWidget(m_cabecalho);
    }
}

void AbaItens::aoEntrar()
{
    if (m_cabecalho && m_ctx.nota)
        m_cabecalho->mostra(m_ctx.nota());
}

QVariant AbaItens::pai() const
{
    if (m_ctx.individual)
        return m_ctx.idNfs ? QVariant(m_ctx.idNfs()) : QVariant();
    return m_ctx.idVrt ? QVariant(m_ctx.idVrt()) : QVariant();
}

QWidget* PaginaRolavel(QWidget* pagina, QWidget* pai)
{
    auto* area = new QScrollArea(pai);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(pagina);
    return area;
}
