#include "app/RegistroTelas.h"
#include "gui/shell/Main.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/MsgBox.h"
#include "gui/widgets/MessageBoxHandler.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("VRT"));
    QApplication::setOrganizationName(QStringLiteral("VRT"));
    InstalaManipuladorMsg(ShowMessageBox);
    RegistraTelas();
    Execucao run = Main(QApplication::applicationDirPath());
    if (!run.iniciada())
        return 1;
    return app.exec();
}
