#include "gui/widgets/ScreenFocus.h"

#include <QApplication>
#include <QWidget>

ScreenFocus::ScreenFocus(QWidget* screen) : QObject(screen), m_screen(screen)
{
    connect(qApp, &QApplication::focusChanged, this, &ScreenFocus::onFocusChanged);
}

bool ScreenFocus::inside(const QWidget* w) const
{
    return w && m_screen && (w == m_screen || m_screen->isAncestorOf(w));
}

// A modal box or dialog, or a popup, that the screen's own work puts in front for a moment.
bool ScreenFocus::transient(const QWidget* now)
{
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return true;
    if (!now)
        return false;
    const QWidget* janela = now->window();
    return janela->isModal() || janela->windowType() == Qt::Popup;
}

void ScreenFocus::onFocusChanged(QWidget* old, QWidget* now)
{
    if (!m_screen || !m_screen->isVisible())
        return;
    // Only another window counts: inside the screen's own window the focus may pass to the toolbar, or to none
    // for a moment while a tab hides the field that had it.
    const QWidget* janela = now ? now->window() : QApplication::activeWindow();
    const bool outraJanela = janela != m_screen->window();
    if (!m_away && inside(old) && !inside(now) && outraJanela && !transient(now)) {
        m_away = true;
        emit left();
    } else if (m_away && inside(now)) {
        m_away = false;
        emit returned();
    }
}
