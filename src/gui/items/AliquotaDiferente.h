#pragma once
// A rate that differs from the normal one of the TEC or the TIPI: the check, the rate and its legal grounds.
// Checked: rate and grounds enabled and the focus on the rate. Unchecked: both emptied and disabled.
#include "gui/blocks/ExecutorBloco.h"

#include <QString>
#include <QWidget>

class DecimalField;
class QCheckBox;
class TextField;

class AliquotaDiferente : public QWidget {
    Q_OBJECT
public:
    // `rotuloTaxa` is "Alíquota II" or "Alíquota IPI"; `imposto` "II" or "IPI" for the messages.
    AliquotaDiferente(const QString& nomeCheck, const QString& legenda, const QString& nomeTaxa,
                      const QString& rotuloTaxa, const QString& nomeJustificativa, const QString& imposto,
                      QWidget* parent = nullptr);

    bool marcada() const;
    // The check as the user sets it, with its enabling rule.
    void marca(bool ligada);
    QString taxa() const;          // the store's text, empty when blank
    QString justificativa() const;
    void mostra(const QString& taxa, const QString& justificativa);
    void limpa();
    // Steps of the product validation: a checked rate needs its rate, then its grounds.
    QList<RegraBloco> regras() const;
    // Hands the frame to a block, before it is built: laid out below the block's fields, with the check, the
    // rate and the grounds known to the block by their names (focus targets of its checks).
    void entregaA(ExecutorBloco& bloco);

    QCheckBox* check = nullptr;
    DecimalField* campoTaxa = nullptr;
    TextField* campoJustificativa = nullptr;
    QString imposto;

private:
    void aplica(bool ligada);
};
