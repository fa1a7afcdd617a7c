#include "gui/assistants/PainelCopiaVrt.h"

#include "core/copy/CopiaVrt.h"
#include "core/file/numbering/IdentificacaoPrevista.h"
#include "core/rules/DigitoVerificador.h"
#include "core/session/MsgBox.h"
#include "gui/widgets/MaskedField.h"

#include <QApplication>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QString s(const char* t)
{
    return QString::fromUtf8(t);
}

const char* const TextoAndamento = "Cópia em andamento ... AGUARDE";

QLineEdit* campoFixo(const char* nome, QWidget* pai)
{
    auto* c = new QLineEdit(pai);
    c->setObjectName(QString::fromLatin1(nome));
    c->setEnabled(false);
    return c;
}

// Zero, or a number whose check digit fails.
bool numeroRecusado(const QString& digitos)
{
    return digitos.toLongLong() == 0 || !Funcoes::ValidaDigito(digitos, s("VRT"));
}

}  // namespace

PainelCopiaVrt::PainelCopiaVrt(QWidget* pai) : QGroupBox(pai)
{
    setObjectName(s("FraAssistenteVRT_Copia"));
    auto* principal = new QVBoxLayout(this);

    auto* dados = new QGroupBox(s("Dados VRT"), this);
    auto* formDados = new QFormLayout(dados);
    txtIdentificador = campoFixo("txtIdentificador", dados);
    txtTipo = campoFixo("txtTipo", dados);
    txtInternador = campoFixo("txtInternador", dados);
    txtData = campoFixo("txtData", dados);
    formDados->addRow(s("Identificaçao :"), txtIdentificador);
    formDados->addRow(s("Tipo :"), txtTipo);
    formDados->addRow(s("Internador :"), txtInternador);
    formDados->addRow(s("Data :"), txtData);
    principal->addWidget(dados);

    auto* nova = new QGroupBox(s("Nova VRT"), this);
    auto* formNova = new QFormLayout(nova);
    txtIdentificadorNovaVRT = campoFixo("txtIdentificadorNovaVRT", nova);
    mskNumVRT = new MaskedField(s("##/#######-#"), s("mskNumVRT"), nova);
    mskNumVRT->setEnabled(false);
    mskNumVRT->installEventFilter(this);
    formNova->addRow(s("Identificação :"), txtIdentificadorNovaVRT);
    formNova->addRow(s("Número VRT :"), mskNumVRT);
    auto* transformar = new QGroupBox(s("Transformar a cópia em"), nova);
    auto* opcoes = new QHBoxLayout(transformar);
    OptRetificacao = new QRadioButton(s("Retificadora"), transformar);
    OptRetificacao->setObjectName(s("OptRetificacao"));
    OptNormal = new QRadioButton(s("Original"), transformar);
    OptNormal->setObjectName(s("OptNormal"));
    // Both may stand cleared, as the panel opens: exclusivity is kept by hand.
    OptRetificacao->setAutoExclusive(false);
    OptNormal->setAutoExclusive(false);
    opcoes->addWidget(OptRetificacao);
    opcoes->addWidget(OptNormal);
    formNova->addRow(transformar);
    principal->addWidget(nova);

    lblCopiaAnd = new QLabel(s(TextoAndamento), this);
    lblCopiaAnd->setObjectName(s("lblCopiaAnd"));
    ProgBarCopia = new QProgressBar(this);
    ProgBarCopia->setObjectName(s("ProgBarCopia"));
    ProgBarCopia->setRange(0, 100);
    principal->addWidget(lblCopiaAnd);
    principal->addWidget(ProgBarCopia);

    auto* botoes = new QHBoxLayout;
    cmdOKCopia = new QPushButton(s("OK"), this);
    cmdOKCopia->setObjectName(s("cmdOKCopia"));
    cmdCancelaCopia = new QPushButton(s("Cancela"), this);
    cmdCancelaCopia->setObjectName(s("cmdCancelaCopia"));
    botoes->addStretch();
    botoes->addWidget(cmdOKCopia);
    botoes->addWidget(cmdCancelaCopia);
    principal->addLayout(botoes);

    connect(OptRetificacao, &QRadioButton::clicked, this, [this] {
        OptNormal->setChecked(false);
        OptRetificacao->setChecked(true);
        escolheOpcao();
    });
    connect(OptNormal, &QRadioButton::clicked, this, [this] {
        OptRetificacao->setChecked(false);
        OptNormal->setChecked(true);
        escolheOpcao();
    });
    connect(mskNumVRT, &QLineEdit::textEdited, this, &PainelCopiaVrt::mskNumVRT_Change);
    connect(cmdOKCopia, &QPushButton::clicked, this, &PainelCopiaVrt::cmdOKCopia_Click);
    connect(cmdCancelaCopia, &QPushButton::clicked, this, &PainelCopiaVrt::fecha);
    hide();
}

void PainelCopiaVrt::abre(const QString& identificacao, const QString& tipo, const QString& internador,
                          const QString& criacao)
{
    txtIdentificador->setText(identificacao);
    txtTipo->setText(tipo);
    txtInternador->setText(internador);
    txtData->setText(criacao);
    mskNumVRT->clear();
    // Only a display: each copy routine advances the number by its own rule.
    txtIdentificadorNovaVRT->setText(Funcoes::IdentificacaoPrevista());
    ProgBarCopia->setValue(0);
    ProgBarCopia->hide();
    lblCopiaAnd->hide();
    cmdOKCopia->setEnabled(true);
    cmdCancelaCopia->setEnabled(true);
    OptRetificacao->setChecked(false);
    OptNormal->setChecked(false);
    setEnabled(true);
    show();
}

void PainelCopiaVrt::escolheOpcao()
{
    const bool retificadora = OptRetificacao->isChecked();
    mskNumVRT->setEnabled(retificadora);
    if (retificadora)
        mskNumVRT->setFocus();
}

void PainelCopiaVrt::mskNumVRT_Change()
{
    if (!mskNumVRT->isComplete())
        return;
    const QString digitos = mskNumVRT->digits();
    if (digitos.toLongLong() == 0)
        MsgBox(s("Número da VRT não pode ser zerado."));
    else if (!Funcoes::ValidaDigito(digitos, s("VRT")))
        MsgBox(s("Dígito verificador inválido."));
    else
        return;
    mskNumVRT->setFocus();
}

// Leaving the number with a zero or a wrong check digit empties it, without a message.
bool PainelCopiaVrt::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == mskNumVRT && evento->type() == QEvent::FocusOut && !mskNumVRT->isBlank()
        && numeroRecusado(mskNumVRT->digits()))
        mskNumVRT->clear();
    return QGroupBox::eventFilter(objeto, evento);
}

void PainelCopiaVrt::cmdOKCopia_Click()
{
    if (!OptRetificacao->isChecked() && !OptNormal->isChecked()) {
        MsgBox(s("Escolha qual a opção de cópia."), Msg::Critical);
        return;
    }
    if (MsgBox(s("Deseja realmente copiar essa VRT ?"), Msg::YesNo | Msg::Question) != Msg::Yes)
        return;
    copia();
    fecha();
}

void PainelCopiaVrt::copia()
{
    const CopiaVrt::Pedido pedido{txtIdentificador->text().trimmed(), txtIdentificadorNovaVRT->text(),
                                  mskNumVRT->digits(),
                                  OptRetificacao->isChecked() ? CopiaVrt::Tipo::Retificadora : CopiaVrt::Tipo::Original};
    CopiaVrt::Acompanhamento a;
    a.inicio = [this] {
        lblCopiaAnd->show();
        ProgBarCopia->show();
    };
    a.progresso = [this](int valor) {
        ProgBarCopia->setValue(valor);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    a.situacao = [this](const QString& texto) { lblCopiaAnd->setText(texto); };
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (txtTipo->text().trimmed() == QLatin1String("Individual"))
        CopiaVrt::ExecutaCopiaVrtIndividual(pedido, a);
    else
        CopiaVrt::ExecutaCopiaVrtMensal(pedido, a);
    QApplication::restoreOverrideCursor();
}

void PainelCopiaVrt::fecha()
{
    setEnabled(false);
    hide();
    ProgBarCopia->setValue(0);
    lblCopiaAnd->setText(s(TextoAndamento));
    mskNumVRT->clear();
    mskNumVRT->setEnabled(false);
    emit fechado();
}
