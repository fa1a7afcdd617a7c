#include "shell/Main.h"
#include "shell/MsgBox.h"
#include "shell/frmVRTPLN.h"
#include "widgets/MessageBoxHandler.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("VRT"));
    QApplication::setOrganizationName(QStringLiteral("VRT"));
    InstalaManipuladorMsg(ShowMessageBox);
    Execucao run = Main(QApplication::applicationDirPath());
    if (!run.iniciada())
        return 1;
    return app.exec();
}
