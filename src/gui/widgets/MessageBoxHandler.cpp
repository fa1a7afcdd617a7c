#include "gui/widgets/MessageBoxHandler.h"

#include "core/session/MsgBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox::Icon iconOf(int style)
{
    switch (style & Msg::MascaraIcone) {
    case Msg::Critical: return QMessageBox::Critical;
    case Msg::Question: return QMessageBox::Question;
    case Msg::Exclamation: return QMessageBox::Warning;
    case Msg::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

struct ButtonSpec {
    int answer;
    QString caption;
    QMessageBox::ButtonRole role;
};

QList<ButtonSpec> buttonsOf(int style)
{
    const ButtonSpec ok{Msg::OK, QStringLiteral("OK"), QMessageBox::AcceptRole};
    const ButtonSpec cancel{Msg::Cancel, QStringLiteral("Cancelar"), QMessageBox::RejectRole};
    const ButtonSpec yes{Msg::Yes, QStringLiteral("&Sim"), QMessageBox::YesRole};
    const ButtonSpec no{Msg::No, QStringLiteral("&Não"), QMessageBox::NoRole};
    switch (style & Msg::MascaraBotoes) {
    case Msg::OKCancel: return {ok, cancel};
    case Msg::YesNoCancel: return {yes, no, cancel};
    case Msg::YesNo: return {yes, no};
    default: return {ok};
    }
}

}  // namespace

int ShowMessageBox(const QString& text, int style, const QString& title)
{
    // Texts break their lines with CR, LF or CR LF, as the old boxes accepted; a label breaks only on LF.
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QMessageBox box(iconOf(style), title, shown, QMessageBox::NoButton, QApplication::activeWindow());
    const QList<ButtonSpec> specs = buttonsOf(style);
    QList<QPushButton*> buttons;
    for (const ButtonSpec& s : specs)
        buttons << box.addButton(s.caption, s.role);
    const int defaultIndex = qMin(int((style & Msg::MascaraPadrao) / Msg::DefaultButton2), int(buttons.size()) - 1);
    box.setDefaultButton(buttons[defaultIndex]);
    // Escape answers Cancel where there is one, else the only button.
    if (specs.size() == 1)
        box.setEscapeButton(buttons[0]);
    for (int i = 0; i < specs.size(); ++i)
        if (specs[i].answer == Msg::Cancel)
            box.setEscapeButton(buttons[i]);
    box.exec();
    for (int i = 0; i < buttons.size(); ++i)
        if (box.clickedButton() == buttons[i])
            return specs[i].answer;
    return RespostaPadrao(style);
}
