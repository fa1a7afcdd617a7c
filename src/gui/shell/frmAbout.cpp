#include "gui/shell/frmAbout.h"

#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QVBoxLayout>

frmAbout::frmAbout(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("Sobre o VRT"));
    lblTitle = new QLabel(TituloPadrao, this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont fonte = lblTitle->font();
    fonte.setPointSizeF(fonte.pointSizeF() * 1.3);
    fonte.setBold(true);
    lblTitle->setFont(fonte);
    lblVersion = new QLabel(QStringLiteral("Versão ") + modVRTPLN::VersaoPrograma, this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblDescription = new QLabel(QStringLiteral("Programa gerador de dados para a Vistoria de Remessa Tributada"), this);
    lblDescription->setObjectName(QStringLiteral("lblDescription"));
    lblDescription->setWordWrap(true);
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdSysInfo = new QPushButton(QStringLiteral("&Informações"), this);
    cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));

    auto* icone = new QLabel(this);
    icone->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(48, 48));
    auto* textos = new QVBoxLayout;
    textos->addWidget(lblTitle);
    textos->addWidget(lblVersion);
    textos->addSpacing(8);
    textos->addWidget(lblDescription);
    textos->addStretch();
    auto* topo = new QHBoxLayout;
    topo->addWidget(icone, 0, Qt::AlignTop);
    topo->addLayout(textos, 1);
    auto* botoes = new QVBoxLayout;
    botoes->addWidget(cmdOK);
    botoes->addWidget(cmdSysInfo);
    botoes->addStretch();
    topo->addLayout(botoes);
    setLayout(topo);
    setMinimumWidth(480);

    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::informacoesSistema);
}

void frmAbout::informacoesSistema()
{
    const QStringList programas = {QStringLiteral("hardinfo"), QStringLiteral("gnome-system-monitor"),
                                   QStringLiteral("plasma-systemmonitor"), QStringLiteral("ksysguard")};
    for (const QString& p : programas) {
        const QString caminho = QStandardPaths::findExecutable(p);
        if (!caminho.isEmpty() && QProcess::startDetached(caminho, {}))
            return;
    }
    MsgBox(QStringLiteral("Informações do sistema não está disponível"), Msg::OKOnly);
}
