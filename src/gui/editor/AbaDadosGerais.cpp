#include "gui/editor/AbaDadosGerais.h"

#include "gui/editor/AbaNotaSaida.h"
#include "gui/editor/LarguraCampo.h"
#include "core/rules/DigitoVerificador.h"
#include "core/rules/FormatoNumero.h"
#include "core/rules/NumerosDocumento.h"
#include "core/session/MsgBox.h"
#include "gui/widgets/DigitField.h"
#include "gui/widgets/FieldFocus.h"
#include "gui/widgets/MaskedField.h"
#include "gui/blocks/RegraSaida.h"

#include <QCheckBox>
#include <QDate>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Funcoes;

namespace {

const QString MascaraCnpj = QStringLiteral("##.###.###/####-##");

QString sn(const QCheckBox* caixa)
{
    return caixa->isChecked() ? QStringLiteral("S") : QStringLiteral("N");
}

// A month of one digit takes a leading zero: in the field after its check, and in the stored reference.
QString mesDeDoisDigitos(const QString& mes)
{
    return mes.size() == 1 ? QLatin1Char('0') + mes : mes;
}

void critica(const QString& texto)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
}

}  // namespace

AbaDadosGerais::AbaDadosGerais(bool individual, const bool* carregando, QWidget* parent)
    : QWidget(parent), m_individual(individual), m_carregando(carregando)
{
    setObjectName(QStringLiteral("tabDadosGerais"));
    auto* coluna = new QVBoxLayout(this);
    coluna->setContentsMargins(0, 0, 0, 0);
    auto* linha = new QHBoxLayout;
    constroiInternador(this);
    linha->addWidget(findChild<QGroupBox*>(QStringLiteral("fraInternador")));
    if (!individual) {
        fraDGMensal = new QGroupBox(QStringLiteral("Referência"), this);
        fraDGMensal->setObjectName(QStringLiteral("fraDGMensal"));
        auto* f = new QFormLayout(fraDGMensal);
        for (int i = 0; i < 2; ++i) {
            txtDadosGeraisMensal[i] =
                new DigitField(QStringLiteral("txtDadosGeraisMensal(%1)").arg(i), i == 0 ? 2 : 4, fraDGMensal);
            larguraParaTexto(txtDadosGeraisMensal[i], QStringLiteral("00000"), true);
        }
        f->addRow(QStringLiteral("Mês"), txtDadosGeraisMensal[0]);
        f->addRow(QStringLiteral("Ano"), txtDadosGeraisMensal[1]);
        linha->addWidget(fraDGMensal);
    }
    constroiPagamento(this);
    linha->addWidget(findChild<QGroupBox*>(QStringLiteral("fraPagamento")), 1);
    // The two boxes stand beside the frames, one above the other.
    auto* caixas = new QVBoxLayout;
    const char* legendas[] = {"Mandado Judicial", "Retificação"};
    for (int i = 0; i < 2; ++i) {
        ChkMand_Retif[i] = new QCheckBox(QString::fromUtf8(legendas[i]), this);
        ChkMand_Retif[i]->setObjectName(QStringLiteral("ChkMand_Retif(%1)").arg(i));
        caixas->addWidget(ChkMand_Retif[i]);
    }
    caixas->addStretch(1);
    linha->addLayout(caixas);
    coluna->addLayout(linha);
    constroiRetificacao();
    ligaRegras();
}

void AbaDadosGerais::constroiInternador(QWidget* area)
{
    auto* quadro = new QGroupBox(QStringLiteral("Internador"), area);
    quadro->setObjectName(QStringLiteral("fraInternador"));
    auto* f = new QFormLayout(quadro);
    mskDadosGerais[1] = new MaskedField(MascaraCnpj, QStringLiteral("mskDadosGerais(1)"), quadro);
    larguraParaTexto(mskDadosGerais[1], QStringLiteral("00.000.000/0000-000"));
    f->addRow(QStringLiteral("CNPJ"), mskDadosGerais[1]);
    if (m_individual) {
        mskInscricaoEstadual = new DigitField(QStringLiteral("mskDadosGerais(2)"), 14, quadro);
        f->addRow(QStringLiteral("Inscrição Estadual"), mskInscricaoEstadual);
    }
}

void AbaDadosGerais::constroiPagamento(QWidget* area)
{
    auto* quadro = new QGroupBox(QStringLiteral("Pagamento"), area);
    quadro->setObjectName(QStringLiteral("fraPagamento"));
    auto* f = new QFormLayout(quadro);
    const int larguras[] = {0, 3, 4, 19};
    const char* rotulos[] = {"", "Banco", "Agência s/ DV", "Conta corrente c/ DV"};
    for (int i = 1; i <= 3; ++i) {
        txtDadosGerais[i] = new DigitField(QStringLiteral("txtDadosGerais(%1)").arg(i), larguras[i], quadro);
        f->addRow(QString::fromUtf8(rotulos[i]), txtDadosGerais[i]);
    }
    larguraParaTexto(txtDadosGerais[1], QStringLiteral("0000"));
    larguraParaTexto(txtDadosGerais[2], QStringLiteral("00000"));
    larguraParaTexto(txtDadosGerais[3], QStringLiteral("00000000000000000000"));
    txtDadosGerais[3]->setExtraCharacters(QStringLiteral("Xx"));
    // The individual editor turns the account to capitals as it is typed.
    txtDadosGerais[3]->setUpperCase(m_individual);
}

void AbaDadosGerais::constroiRetificacao()
{
    m_retificacao = new QWidget(this);
    m_retificacao->setObjectName(QStringLiteral("fraNumeroRetificacao"));
    auto* linha = new QHBoxLayout(m_retificacao);
    linha->setContentsMargins(0, 0, 0, 0);
    auto* f = new QFormLayout;
    mskDadosGerais[0] = new MaskedField(QStringLiteral("##/#######-#"), QStringLiteral("mskDadosGerais(0)"),
                                        m_retificacao);
    larguraParaTexto(mskDadosGerais[0], QStringLiteral("00/0000000-00"));
    f->addRow(QStringLiteral("Número VRT"), mskDadosGerais[0]);
    linha->addLayout(f);
    fraProcessoAdministrativo = new QGroupBox(QStringLiteral("Processo Administrativo"), m_retificacao);
    fraProcessoAdministrativo->setObjectName(QStringLiteral("fraProcessoAdministrativo"));
    auto* p = new QHBoxLayout(fraProcessoAdministrativo);
    chkSimRest = new QCheckBox(QStringLiteral("Restituição"), fraProcessoAdministrativo);
    chkSimRest->setObjectName(QStringLiteral("chkSimRest"));
    mskDadosGerais[3] = new MaskedField(QStringLiteral("#####.######/####-##"), QStringLiteral("mskDadosGerais(3)"),
                                        fraProcessoAdministrativo);
    mskDadosGerais[3]->setEnabled(false);
    larguraParaTexto(mskDadosGerais[3], QStringLiteral("00000.000000/0000-000"));
    auto* rotulo = new QLabel(QStringLiteral("Número do processo"), fraProcessoAdministrativo);
    rotulo->setBuddy(mskDadosGerais[3]);
    p->addWidget(chkSimRest);
    p->addSpacing(12);
    p->addWidget(rotulo);
    p->addWidget(mskDadosGerais[3], 1);
    linha->addWidget(fraProcessoAdministrativo, 1);
    m_retificacao->hide();
}

// The handlers of the fields; none of them runs while a stored declaration is being loaded.
void AbaDadosGerais::ligaRegras()
{
    const bool* carregando = m_carregando;
    auto livre = [carregando] { return !*carregando; };
    connect(mskDadosGerais[1], &QLineEdit::textChanged, this, [this, livre] {
        if (livre() && mskDadosGerais[1]->isComplete())
            ValidaCNPJ(mskDadosGerais[1]->digits());
    });
    aoSair(mskDadosGerais[1], [this] { return mskDadosGerais[1]->isBlank() || ValidaCNPJ(mskDadosGerais[1]->digits()); });
    connect(mskDadosGerais[0], &QLineEdit::textChanged, this, [this, livre] {
        if (livre() && mskDadosGerais[0]->isComplete())
            validaNumeroVrt(false);
    });
    aoSair(mskDadosGerais[0], [this] { return mskDadosGerais[0]->isBlank() || validaNumeroVrt(true); });
    const CampoBancario campos[] = {CampoBancario::Banco, CampoBancario::Agencia, CampoBancario::ContaCorrente};
    for (int i = 1; i <= 3; ++i) {
        aoSair(txtDadosGerais[i], [this, i, c = campos[i - 1]] {
            return ValidaCampoBancario(c, txtDadosGerais[i]->text(), !m_individual);
        });
    }
    if (m_individual) {
        connect(mskInscricaoEstadual, &QLineEdit::textChanged, this, [this, livre] {
            if (livre() && mskInscricaoEstadual->text().size() == 14 && EhZero(mskInscricaoEstadual->text()))
                critica(QStringLiteral("Inscrição Estadual não pode ser zerada."));
        });
        aoSair(mskInscricaoEstadual, [this] { return ValidaInscricaoEstadual(mskInscricaoEstadual->text(), false); });
        aoSair(mskDadosGerais[3], [this] {
            if (!mskDadosGerais[3]->isBlank() && EhZero(mskDadosGerais[3]->digits())) {
                critica(QStringLiteral("O número de processo não pode ser zero"));
                return false;
            }
            return true;
        });
        return;
    }
    connect(txtDadosGeraisMensal[0], &QLineEdit::textChanged, this, [this, livre](const QString& t) {
        if (livre() && t.size() == 2)
            txtDadosGeraisMensal[1]->setFocus(Qt::TabFocusReason);
    });
    connect(mskDadosGerais[3], &QLineEdit::textChanged, this, [this, livre] {
        if (livre() && mskDadosGerais[3]->isComplete())
            ValidaProcessoRestituicao();
    });
}

bool AbaDadosGerais::falha(const QString& texto, QWidget* campo)
{
    showFieldTab(campo);
    if (!texto.isEmpty())
        critica(texto);
    campo->setFocus(Qt::OtherFocusReason);
    return false;
}

bool AbaDadosGerais::validaNumeroVrt(bool aoSair)
{
    const QString d = mskDadosGerais[0]->digits();
    if (!m_individual) {
        if (!ValidaDigito(d, QStringLiteral("VRT"))) {
            critica(QStringLiteral("Número da VRT inválido."));
            return false;
        }
        return true;
    }
    if (aoSair && d.size() != 10) {
        critica(QStringLiteral("Número deve ter 10 dígitos."));
        return false;
    }
    if (EhZero(d)) {
        critica(QStringLiteral("Número da VRT não pode ser zerado."));
        return false;
    }
    if (!ValidaDigito(d, QStringLiteral("VRT"))) {
        critica(QStringLiteral("Dígito verificador inválido."));
        return false;
    }
    return true;
}

bool AbaDadosGerais::ValidaCNPJInternador()
{
    if (mskDadosGerais[1]->isBlank())
        return falha(QStringLiteral("O campo CNPJ do internador deve ser preenchido."), mskDadosGerais[1]);
    if (!ValidaCNPJ(mskDadosGerais[1]->digits()))
        return falha(QString(), mskDadosGerais[1]);
    return true;
}

bool AbaDadosGerais::ValidaMesReferencia()
{
    DigitField* mes = txtDadosGeraisMensal[0];
    if (mes->text().trimmed().isEmpty())
        return falha(QStringLiteral("O campo mês de referência deve ser preenchido."), mes);
    const int n = mes->text().toInt();
    if (n < 1 || n > 12)
        return falha(QStringLiteral("Mês de referência invalido!"), mes);
    if (mes->text().size() == 1)
        mes->setText(mesDeDoisDigitos(mes->text()));
    return true;
}

bool AbaDadosGerais::ValidaAnoReferencia()
{
    DigitField* ano = txtDadosGeraisMensal[1];
    if (ano->text().trimmed().isEmpty())
        return falha(QStringLiteral("O campo ano de referência deve ser preenchido."), ano);
    const int limite = QDate::currentDate().year() + 10;
    const int n = ano->text().toInt();
    // The text says "menor que" and yet lets the limit itself pass.
    if (n < 2002 || n > limite)
        return falha(QStringLiteral("Ano de referência inválido!\n\nO ano de referência deve ser maior ou igual a "
                                    "2002\ne menor que %1")
                         .arg(limite),
                     ano);
    return true;
}

bool AbaDadosGerais::ValidaProcessoRestituicao()
{
    if (!chkSimRest->isChecked())
        return true;
    if (mskDadosGerais[3]->isBlank())
        return falha(QStringLiteral("O indicador de restituição encontra-se marcado, portanto o número do processo o "
                                    "número do processo deve ser informado!"),
                     mskDadosGerais[3]);
    if (EhZero(mskDadosGerais[3]->digits()))
        return falha(QStringLiteral("O número de processo não pode ser zero!"), mskDadosGerais[3]);
    return true;
}

bool AbaDadosGerais::ValidaDadosGerais()
{
    if (m_individual)
        return validaIndividual();
    return ValidaCNPJInternador() && ValidaMesReferencia() && ValidaAnoReferencia() && ValidaProcessoRestituicao();
}

bool AbaDadosGerais::validaBancarios()
{
    const char* textos[] = {"", "Banco inválido.", "Agência inválida.", "Conta-Corrente inválida."};
    for (int i = 1; i <= 3; ++i) {
        const QString t = txtDadosGerais[i]->text().trimmed();
        if (!t.isEmpty() && EhZero(t))
            return falha(QString::fromUtf8(textos[i]), txtDadosGerais[i]);
    }
    return true;
}

bool AbaDadosGerais::validaIndividual()
{
    const QString cnpj = mskDadosGerais[1]->digits();
    if (cnpj.isEmpty())
        return falha(QStringLiteral("O campo CNPJ do internador deve ser preenchido."), mskDadosGerais[1]);
    if (EhZero(cnpj))
        return falha(QStringLiteral("CNPJ inválido."), mskDadosGerais[1]);
    if (!ValidaCNPJ(cnpj))
        return falha(QString(), mskDadosGerais[1]);
    if (!ValidaInscricaoEstadual(mskInscricaoEstadual->text(), true))
        return falha(QString(), mskInscricaoEstadual);
    if (m_nota && !m_nota->validaCabecalho())
        return false;
    if (!validaBancarios())
        return false;
    return !m_nota || m_nota->validaRegras();
}

DadosGerais AbaDadosGerais::daTela() const
{
    DadosGerais d;
    d.tipo = m_individual ? QStringLiteral("1") : QStringLiteral("2");
    d.nrVrt = mskDadosGerais[0]->digits();
    d.cnpj = mskDadosGerais[1]->digits();
    d.indMandado = sn(ChkMand_Retif[0]);
    d.indRetificacao = sn(ChkMand_Retif[1]);
    d.banco = txtDadosGerais[1]->text();
    d.agencia = txtDadosGerais[2]->text();
    d.conta = txtDadosGerais[3]->text();
    d.processo = mskDadosGerais[3]->digits();
    d.indRestituicao = sn(chkSimRest);
    if (m_individual)
        d.inscricao = mskInscricaoEstadual->text();
    else
        d.referencia = mesDeDoisDigitos(txtDadosGeraisMensal[0]->text().trimmed())
                       + txtDadosGeraisMensal[1]->text().trimmed();
    return d;
}

void AbaDadosGerais::mostra(const DadosGerais& d)
{
    mskDadosGerais[0]->setDigits(d.nrVrt);
    mskDadosGerais[1]->setDigits(d.cnpj);
    ChkMand_Retif[0]->setChecked(d.indMandado == QLatin1String("S"));
    ChkMand_Retif[1]->setChecked(d.indRetificacao == QLatin1String("S"));
    txtDadosGerais[1]->setText(d.banco);
    txtDadosGerais[2]->setText(d.agencia);
    txtDadosGerais[3]->setText(d.conta);
    mskDadosGerais[3]->setDigits(d.processo);
    chkSimRest->setChecked(d.indRestituicao == QLatin1String("S"));
    mskDadosGerais[3]->setEnabled(chkSimRest->isChecked());
    if (m_individual) {
        mskInscricaoEstadual->setText(d.inscricao);
        return;
    }
    txtDadosGeraisMensal[0]->setText(d.referencia.left(2));
    txtDadosGeraisMensal[1]->setText(d.referencia.mid(2));
}

bool AbaDadosGerais::difere(const DadosGerais& c) const
{
    const DadosGerais t = daTela();
    // A CNPJ counts as changed only once all its digits stand.
    const bool cnpjMudou = t.cnpj != c.cnpj && t.cnpj.size() == 14;
    return t.referencia != c.referencia || cnpjMudou || t.banco != c.banco || t.agencia != c.agencia
           || t.conta != c.conta || t.nrVrt != c.nrVrt || t.indMandado != c.indMandado
           || t.indRetificacao != c.indRetificacao || t.processo != c.processo
           || (chkSimRest->isChecked() && t.indRestituicao != c.indRestituicao) || t.inscricao != c.inscricao;
}
