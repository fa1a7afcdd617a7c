#pragma once
#include <QWidget>

// The splash: a picture in the middle of the screen while the program starts.
class frmSplashScreen : public QWidget {
    Q_OBJECT
public:
    explicit frmSplashScreen(QWidget* parent = nullptr);
    void CentralizaFormTela();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
};

// Shows the splash, holds the screen for `segundos` without processing events, then takes it away.
void MostraSplash(int segundos = 3);

// Busy wait: leaves when the whole seconds between now and the start plus `segundos` are past, so 3 lasts
// more than three and up to four seconds. Window events are not processed meanwhile.
void Espera(int segundos);
