#include "shell/MsgBox.h"
#include "widgets/MessageBoxHandler.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    InstalaManipuladorMsg(ShowMessageBox);
    return 0;
}
