#include "gui/shell/frmSplashScreen.h"

#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"

#include <QApplication>
#include <QDateTime>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>
#include <QThread>

frmSplashScreen::frmSplashScreen(QWidget* parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmSplashScreen"));
    setFixedSize(480, 260);
    setAttribute(Qt::WA_DeleteOnClose);
    CentralizaFormTela();
}

void frmSplashScreen::CentralizaFormTela()
{
    QScreen* tela = screen() ? screen() : QGuiApplication::primaryScreen();
    if (!tela)
        return;
    const QRect area = tela->geometry();
    move(area.x() + (area.width() - width()) / 2, area.y() + (area.height() - height()) / 2);
}

void frmSplashScreen::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    QLinearGradient fundo(0, 0, 0, height());
    fundo.setColorAt(0, QColor(0, 82, 147));
    fundo.setColorAt(1, QColor(0, 128, 96));
    p.fillRect(rect(), fundo);
    p.setPen(Qt::white);
    QFont f = font();
    f.setPointSize(36);
    f.setBold(true);
    p.setFont(f);
    p.drawText(QRect(0, 40, width(), 80), Qt::AlignCenter, QStringLiteral("VRT"));
    f.setPointSize(13);
    f.setBold(false);
    p.setFont(f);
    p.drawText(QRect(0, 120, width(), 40), Qt::AlignCenter, QStringLiteral("Vistoria de Remessa Tributada"));
    f.setPointSize(10);
    p.setFont(f);
    p.drawText(QRect(0, 200, width() - 16, 40), Qt::AlignRight | Qt::AlignVCenter,
               QStringLiteral("Versão ") + modVRTPLN::VersaoPrograma);
}

void frmSplashScreen::mousePressEvent(QMouseEvent*)
{
    close();
}

void Espera(int segundos)
{
    const qint64 inicio = QDateTime::currentSecsSinceEpoch();
    while (inicio + segundos - QDateTime::currentSecsSinceEpoch() >= 0)
        QThread::msleep(20);  // nothing is yielded to the window system; the sleep only spares the processor
}

void MostraSplash(int segundos)
{
    // The splash can never stop the program from starting: whatever fails here is passed over.
    auto* splash = new frmSplashScreen;
    splash->show();
    QApplication::processEvents();
    splash->setWindowFlag(Qt::WindowStaysOnTopHint, true);
    splash->show();
    Espera(segundos);
    splash->setWindowFlag(Qt::WindowStaysOnTopHint, false);
    splash->close();
}
