#include "gui/items/AliquotaDiferente.h"

#include "gui/widgets/DecimalField.h"
#include "gui/widgets/TextField.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

AliquotaDiferente::AliquotaDiferente(const QString& nomeCheck, const QString& legenda, const QString& nomeTaxa,
                                     const QString& rotuloTaxa, const QString& nomeJustificativa,
                                     const QString& impostoDoCampo, QWidget* parent)
    : QWidget(parent), imposto(impostoDoCampo)
{
    auto* g = new QGridLayout(this);
    g->setContentsMargins(0, 0, 0, 0);
    check = new QCheckBox(legenda, this);
    check->setObjectName(nomeCheck);
    campoTaxa = new DecimalField(DecimalField::Rate, nomeTaxa, QString(), this);
    campoJustificativa = new TextField(nomeJustificativa, 253, this);
    campoJustificativa->refuseCharacters(QStringLiteral("'"));
    g->addWidget(check, 0, 0, 1, 3);
    g->addWidget(new QLabel(rotuloTaxa, this), 1, 0);
    g->addWidget(campoTaxa, 1, 1);
    g->addWidget(new QLabel(QStringLiteral("%"), this), 1, 2);
    g->addWidget(new QLabel(QStringLiteral("Fundamentação legal"), this), 1, 3);
    g->addWidget(campoJustificativa, 1, 4);
    g->setColumnStretch(4, 1);
    connect(check, &QCheckBox::clicked, this, [this](bool ligada) {
        aplica(ligada);
        if (ligada)
            campoTaxa->setFocus(Qt::OtherFocusReason);
    });
    aplica(false);
}

void AliquotaDiferente::aplica(bool ligada)
{
    if (!ligada) {
        campoTaxa->clear();
        campoJustificativa->clear();
    }
    campoTaxa->setEnabled(ligada);
    campoJustificativa->setEnabled(ligada);
}

bool AliquotaDiferente::marcada() const
{
    return check->isChecked();
}

void AliquotaDiferente::marca(bool ligada)
{
    check->setChecked(ligada);
    aplica(ligada);
}

QString AliquotaDiferente::taxa() const
{
    return campoTaxa->value();
}

QString AliquotaDiferente::justificativa() const
{
    return campoJustificativa->text();
}

void AliquotaDiferente::mostra(const QString& taxaGuardada, const QString& justificativaGuardada)
{
    campoTaxa->setValue(taxaGuardada);
    campoJustificativa->setText(justificativaGuardada);
}

void AliquotaDiferente::limpa()
{
    marca(false);
}

QList<RegraBloco> AliquotaDiferente::regras() const
{
    const QString taxa = QString::fromUtf8("É obrigatório o preenchimento da alíquota de %1.").arg(imposto);
    const QString fundamento =
        QString::fromUtf8("O campo fundamentação legal para a alíquota de %1 deve ser preenchido.").arg(imposto);
    return {{[this, taxa](const ExecutorBloco&, Operacao) {
                 return marcada() && campoTaxa->text().trimmed().isEmpty() ? taxa : QString();
             },
             campoTaxa->objectName()},
            {[this, fundamento](const ExecutorBloco&, Operacao) {
                 return marcada() && campoJustificativa->text().trimmed().isEmpty() ? fundamento : QString();
             },
             campoJustificativa->objectName()}};
}

void AliquotaDiferente::entregaA(ExecutorBloco& bloco)
{
    bloco.adotaQuadro(this);
    for (QWidget* w : std::initializer_list<QWidget*>{check, campoTaxa, campoJustificativa})
        bloco.adotaCampo(w->objectName(), w);
}
