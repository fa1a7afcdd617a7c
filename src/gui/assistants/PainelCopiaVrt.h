#pragma once
// The chooser's copy panel (FraAssistenteVRT_Copia): the source declaration, the identification the copy is
// expected to get, "Retificadora" with its declaration number or "Original", and the progress of the copy. It
// takes the place of the list while a copy is being prepared and says `fechado` when it gives the place back,
// after a copy or a cancel.
#include <QGroupBox>

class MaskedField;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

class PainelCopiaVrt : public QGroupBox {
    Q_OBJECT
public:
    explicit PainelCopiaVrt(QWidget* pai = nullptr);

    // Fills the panel from the chooser's current row and shows it, both options cleared.
    void abre(const QString& identificacao, const QString& tipo, const QString& internador, const QString& criacao);

    QLineEdit* txtIdentificador;
    QLineEdit* txtTipo;
    QLineEdit* txtInternador;
    QLineEdit* txtData;
    QLineEdit* txtIdentificadorNovaVRT;
    MaskedField* mskNumVRT;
    QRadioButton* OptRetificacao;
    QRadioButton* OptNormal;
    QPushButton* cmdOKCopia;
    QPushButton* cmdCancelaCopia;
    QProgressBar* ProgBarCopia;
    QLabel* lblCopiaAnd;

signals:
    void fechado();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void cmdOKCopia_Click();
    void fecha();
    void escolheOpcao();
    void mskNumVRT_Change();
    void copia();
};
