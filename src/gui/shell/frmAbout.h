#pragma once
#include <QDialog>

class QLabel;
class QPushButton;

// "Sobre": the title, the version and the program's description.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent = nullptr);

    QLabel* lblTitle;
    QLabel* lblVersion;
    QLabel* lblDescription;
    QPushButton* cmdOK;
    QPushButton* cmdSysInfo;

private:
    void informacoesSistema();
};
