#pragma once
// A small calling screen for the pickers' tests: a code field and the field beside it, registered under a caller
// key as an editor registers its own, and a count of the code field's change steps.
#include "gui/assistants/DestinosEscolha.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

class ChamadorTeste : public QWidget {
public:
    ChamadorTeste(DestinosEscolha& tabela, const QString& chave, bool comComplemento = true)
    {
        auto* l = new QVBoxLayout(this);
        codigo = new QLineEdit(this);
        codigo->setObjectName(QStringLiteral("txtCodigoChamador"));
        complemento = new QLineEdit(this);
        complemento->setObjectName(QStringLiteral("txtComplementoChamador"));
        l->addWidget(codigo);
        l->addWidget(complemento);
        // The change step of an editor's code field: here it only counts and notes what the field held.
        QObject::connect(codigo, &QLineEdit::textChanged, this, [this](const QString& t) {
            ++passosDeMudanca;
            textoNaMudanca = t;
        });
        registrada = tabela.registra(chave, codigo, comComplemento ? complemento : nullptr, this);
    }
    QLineEdit* codigo = nullptr;
    QLineEdit* complemento = nullptr;
    int passosDeMudanca = 0;
    QString textoNaMudanca;
    bool registrada = false;
};
