#pragma once
// Tells a screen when the keyboard focus leaves its window for another window of the program or for another
// program (left), and when the focus comes back to it after that (returned). A message box or dialog shown as a modal
// one, and a popup such as a dropped-down list, do not count: the screen is still the one being worked on, and
// the focus goes back where it was without the screen hearing of it.
//     auto* foco = new ScreenFocus(this);
//     connect(foco, &ScreenFocus::left, this, [this] { AtualizaDadosGerais(); });
#include <QObject>
#include <QPointer>

class QWidget;

class ScreenFocus : public QObject {
    Q_OBJECT
public:
    explicit ScreenFocus(QWidget* screen);

signals:
    void left();
    void returned();

private:
    bool inside(const QWidget* w) const;
    static bool transient(const QWidget* now);
    void onFocusChanged(QWidget* old, QWidget* now);

    QPointer<QWidget> m_screen;
    bool m_away = false;
};
