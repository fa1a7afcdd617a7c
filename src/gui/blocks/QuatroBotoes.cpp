#include "gui/blocks/QuatroBotoes.h"

#include <QHBoxLayout>
#include <QPushButton>

QuatroBotoes::QuatroBotoes(const QString& padraoNome, QWidget* parent) : QWidget(parent)
{
    auto* linha = new QHBoxLayout(this);
    linha->setContentsMargins(0, 0, 0, 0);
    auto cria = [&](const QString& palavra) {
        auto* b = new QPushButton(palavra, this);
        b->setObjectName(padraoNome.arg(palavra));
        b->setAutoDefault(false);
        linha->addWidget(b);
        return b;
    };
    cmdIncluir = cria(QStringLiteral("Incluir"));
    cmdAlterar = cria(QStringLiteral("Alterar"));
    cmdExcluir = cria(QStringLiteral("Excluir"));
    cmdLimpar = cria(QStringLiteral("Limpar"));
    linha->addStretch(1);
    habilitaSelecao(false);
}

void QuatroBotoes::habilitaSelecao(bool ligado)
{
    cmdAlterar->setEnabled(ligado);
    cmdExcluir->setEnabled(ligado);
    cmdLimpar->setEnabled(ligado);
}
