#include "gui/editor/AbaNotaSaida.h"

#include "core/store/Cadastros.h"

#include "gui/editor/LarguraCampo.h"
#include "core/rules/Datas.h"
#include "core/rules/DigitoVerificador.h"
#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/store/DadosGeraisVrt.h"
#include "core/store/modBancoDados.h"
#include "gui/widgets/DigitField.h"
#include "gui/widgets/FieldFocus.h"
#include "gui/widgets/MaskedField.h"
#include "gui/blocks/RegraSaida.h"
#include "gui/widgets/TextField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSqlQuery>

using namespace Funcoes;

namespace {

const QString MascaraCnpj = QStringLiteral("##.###.###/####-##");
const QString MascaraCpf = QStringLiteral("###.###.###-##");
// A CPF read from a stored row stands under this mask, with a slash, until an option is clicked.
const QString MascaraCpfLido = QStringLiteral("###.###.###/##");

void critica(const QString& texto)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
}

bool comecaPor5ou6(const QString& cfop)
{
    return cfop.startsWith(QLatin1Char('5')) || cfop.startsWith(QLatin1Char('6'));
}

}  // namespace

AbaNotaSaida::AbaNotaSaida(const bool* carregando, QWidget* parent) : QWidget(parent), m_carregando(carregando)
{
    setObjectName(QStringLiteral("fraNotaFiscalSaidaIndividual"));
    auto* linha = new QHBoxLayout(this);
    linha->setContentsMargins(0, 0, 0, 0);
    constroiNota();
    constroiDestino();
    linha->addWidget(findChild<QGroupBox*>(QStringLiteral("fraNotaFiscalSaida")), 3);
    linha->addWidget(findChild<QGroupBox*>(QStringLiteral("fraDestinatario")), 2);
    linha->addWidget(findChild<QGroupBox*>(QStringLiteral("fraDestino")), 2);
    ligaRegras();
}

void AbaNotaSaida::constroiNota()
{
    auto* quadro = new QGroupBox(QStringLiteral("Nota Fiscal de Saída"), this);
    quadro->setObjectName(QStringLiteral("fraNotaFiscalSaida"));
    auto* f = new QGridLayout(quadro);
    txtNumero = new DigitField(QStringLiteral("mskDadosGeraisIndividual(3)"), 6, quadro);
    // Six digits with a group separator once left ("004.567"); the store keeps the digits as typed.
    txtNumero->setDisplayFormat(QStringLiteral("000,000"));
    txtSerie = new TextField(QStringLiteral("txtDadosGeraisIndividual(1)"), 5, quadro);
    txtSerie->acceptLettersAndDigitsOnly().setUpperCase();
    for (int i = 0; i < 2; ++i)
        mskDadosGeraisIndividual[i] =
            new MaskedField(QStringLiteral("##/##/####"), QStringLiteral("mskDadosGeraisIndividual(%1)").arg(i), quadro);
    txtCfop = new DigitField(QStringLiteral("txtDadosGeraisIndividual(2)"), 4, quadro);
    // Two pairs of label and field a row: number and series, the two dates, the CFOP.
    const QList<QPair<const char*, QWidget*>> campos = {{"Número", txtNumero},
                                                        {"Série/Subserie", txtSerie},
                                                        {"Data de emissão", mskDadosGeraisIndividual[0]},
                                                        {"Data de saída", mskDadosGeraisIndividual[1]},
                                                        {"CFOP", txtCfop}};
    larguraParaTexto(txtNumero, QStringLiteral("0000000"));
    larguraParaTexto(txtSerie, QStringLiteral("WWWWW"));
    for (int i = 0; i < 2; ++i)
        larguraParaTexto(mskDadosGeraisIndividual[i], QStringLiteral("00/00/00000"));
    larguraParaTexto(txtCfop, QStringLiteral("00000"));
    for (int i = 0; i < campos.size(); ++i) {
        auto* rotulo = new QLabel(QString::fromUtf8(campos.at(i).first), quadro);
        rotulo->setBuddy(campos.at(i).second);
        f->addWidget(rotulo, i / 2, (i % 2) * 2);
        f->addWidget(campos.at(i).second, i / 2, (i % 2) * 2 + 1);
    }
}

void AbaNotaSaida::constroiDestino()
{
    auto* pessoa = new QGroupBox(QStringLiteral("Destinatário"), this);
    pessoa->setObjectName(QStringLiteral("fraDestinatario"));
    auto* p = new QFormLayout(pessoa);
    optCNPJ_tabDadosGerais_Individual = new QRadioButton(QStringLiteral("CNPJ"), pessoa);
    optCNPJ_tabDadosGerais_Individual->setObjectName(QStringLiteral("optCNPJ_tabDadosGerais_Individual"));
    optCPF_tabDadosGerais_Individual = new QRadioButton(QStringLiteral("CPF"), pessoa);
    optCPF_tabDadosGerais_Individual->setObjectName(QStringLiteral("optCPF_tabDadosGerais_Individual"));
    optCNPJ_tabDadosGerais_Individual->setChecked(true);
    auto* opcoes = new QHBoxLayout;
    opcoes->addWidget(optCNPJ_tabDadosGerais_Individual);
    opcoes->addWidget(optCPF_tabDadosGerais_Individual);
    p->addRow(opcoes);
    lblValorCNPJouCPF_tabDadosGerais_Individual = new QLabel(QStringLiteral("CNPJ"), pessoa);
    lblValorCNPJouCPF_tabDadosGerais_Individual->setObjectName(
        QStringLiteral("lblValorCNPJouCPF_tabDadosGerais_Individual"));
    mskDadosGeraisIndividual[2] = new MaskedField(MascaraCnpj, QStringLiteral("mskDadosGeraisIndividual(2)"), pessoa);
    larguraParaTexto(mskDadosGeraisIndividual[2], QStringLiteral("00.000.000/0000-000"));
    p->addRow(lblValorCNPJouCPF_tabDadosGerais_Individual, mskDadosGeraisIndividual[2]);

    auto* destino = new QGroupBox(QStringLiteral("Destino"), this);
    destino->setObjectName(QStringLiteral("fraDestino"));
    auto* d = new QFormLayout(destino);
    cboUF = new QComboBox(destino);
    cboUF->setObjectName(QStringLiteral("cboUF"));
    txtNomeUf = new TextField(QStringLiteral("txtDadosGeraisIndividual(6)"), 20, destino);
    txtNomeUf->setEnabled(false);
    // The longest name of a state shows whole.
    larguraParaTexto(txtNomeUf, QStringLiteral("Rio Grande do Norte"));
    ChkMand_Retif2 = new QCheckBox(QStringLiteral("ALC"), destino);
    ChkMand_Retif2->setObjectName(QStringLiteral("ChkMand_Retif(2)"));
    d->addRow(QStringLiteral("UF"), cboUF);
    d->addRow(QStringLiteral("Nome da UF"), txtNomeUf);
    d->addRow(ChkMand_Retif2);
}

void AbaNotaSaida::carregaUf()
{
    cboUF->clear();
    cboUF->addItems(Cadastros::CodigosUf());
    cboUF->setCurrentIndex(-1);
}

void AbaNotaSaida::ligaRegras()
{
    connect(optCNPJ_tabDadosGerais_Individual, &QRadioButton::clicked, this, [this] { escolhePessoa(false); });
    connect(optCPF_tabDadosGerais_Individual, &QRadioButton::clicked, this, [this] { escolhePessoa(true); });
    connect(cboUF, &QComboBox::activated, this, &AbaNotaSaida::mostraNomeUf);
    aoSair(cboUF, [this] {
        mostraNomeUf();
        return true;
    });
    connect(mskDadosGeraisIndividual[2], &QLineEdit::textChanged, this, [this] {
        const QString d = mskDadosGeraisIndividual[2]->digits();
        if (!*m_carregando && d.size() == 14 && !EhZero(d))
            ValidaCNPJ(d);
    });
    aoSair(txtNumero, [this] {
        if (!txtNumero->value().isEmpty() && EhZero(txtNumero->value()))
            return falha(QStringLiteral("Número da Nota Fiscal inválido."), nullptr);
        return true;
    });
    aoSair(txtSerie, [this] {
        const QString s = txtSerie->text();
        if (!s.isEmpty() && EhNumerico(s) && EhZero(s))
            return falha(QStringLiteral("Série da Nota Fiscal inválida."), nullptr);
        return true;
    });
    aoSair(mskDadosGeraisIndividual[0], [this] { return regraDataEmissao(); });
    aoSair(mskDadosGeraisIndividual[1], [this] { return regraDataSaida(); });
    aoSair(txtCfop, [this] { return txtCfop->text().isEmpty() || regraCfop(false); });
    aoSair(mskDadosGeraisIndividual[2], [this] { return mskDadosGeraisIndividual[2]->isBlank() || regraPessoa(); });
}

void AbaNotaSaida::escolhePessoa(bool cpf)
{
    lblValorCNPJouCPF_tabDadosGerais_Individual->setText(cpf ? QStringLiteral("CPF") : QStringLiteral("CNPJ"));
    mskDadosGeraisIndividual[2]->setMask(cpf ? MascaraCpf : MascaraCnpj);
}

void AbaNotaSaida::mostraNomeUf()
{
    if (cboUF->currentIndex() >= 0)
        txtNomeUf->setText(DadosGeraisVrt::NomeUf(cboUF->currentText()));
}

// A refusal inside ValidaDadosGerais brings the general data's tab and the field to the front; a field's own
// handler leaves that to the leave rule.
bool AbaNotaSaida::falha(const QString& texto, QWidget* campo)
{
    if (campo)
        showFieldTab(campo);
    if (!texto.isEmpty())
        critica(texto);
    if (campo)
        campo->setFocus(Qt::OtherFocusReason);
    return false;
}

QString AbaNotaSaida::anoEmissao() const
{
    return mskDadosGeraisIndividual[0]->digits().mid(4);
}

bool AbaNotaSaida::regraDataEmissao()
{
    MaskedField* emissao = mskDadosGeraisIndividual[0];
    if (emissao->isBlank())
        return true;
    if (!ValidaAno(anoEmissao()))
        return falha(QStringLiteral("Ano da emissão inválido. Deve ser maior que 2002."), nullptr);
    if (!ValidaData(DataParaValidar(emissao->digits())))
        return falha(QStringLiteral("Data inválida."), nullptr);
    if (!mskDadosGeraisIndividual[1]->isBlank() && !ComparaDatas(emissao->digits(), mskDadosGeraisIndividual[1]->digits()))
        return falha(QStringLiteral("Data de saída não pode ser inferior à data de emissão."), nullptr);
    return txtCfop->text().isEmpty() || regraCfop(true);
}

bool AbaNotaSaida::regraDataSaida()
{
    MaskedField* saida = mskDadosGeraisIndividual[1];
    if (saida->isBlank())
        return true;
    if (!ValidaAno(saida->digits().mid(4)) || !ValidaData(DataParaValidar(saida->digits())))
        return falha(QStringLiteral("Data inválida."), nullptr);
    if (!ComparaDatas(mskDadosGeraisIndividual[0]->digits(), saida->digits()))
        return falha(QStringLiteral("Data de saída não pode ser inferior à data de emissão."), nullptr);
    return true;
}

// The CFOP's own rule; `soAno` leaves out the test of its first digit (the issue date's handler).
bool AbaNotaSaida::regraCfop(bool soAno)
{
    const QString cfop = txtCfop->text();
    if (!soAno && (!EhNumerico(cfop) || !comecaPor5ou6(cfop)))
        return falha(QStringLiteral("Campo inválido! Deve ser númerico e iniciado por 5 ou por 6."), nullptr);
    if (mskDadosGeraisIndividual[0]->isBlank())
        return true;
    const int ano = anoEmissao().toInt();
    if (ano > 2002 && cfop.size() < 4)
        return falha(QStringLiteral("Ano superior a 2002, informar CFOP com 4 dígitos."), nullptr);
    if (ano < 2003 && cfop.size() != 3)
        return falha(QStringLiteral("Ano anterior a 2003, informar CFOP com 3 dígitos."), nullptr);
    return true;
}

bool AbaNotaSaida::regraPessoa()
{
    const QString d = mskDadosGeraisIndividual[2]->digits();
    if (optCPF_tabDadosGerais_Individual->isChecked()) {
        if (EhZero(d))
            return falha(QStringLiteral("Número de CPF não pode ser zerado."), nullptr);
        return ValidaCPF(d);
    }
    return ValidaCNPJ(d);
}

bool AbaNotaSaida::validaCabecalho()
{
    if (txtNumero->value().isEmpty())
        return falha(QStringLiteral("O campo número da nota da fiscal deve ser preenchido."), txtNumero);
    if (EhZero(txtNumero->value()))
        return falha(QStringLiteral("Número da Nota Fiscal inválido."), txtNumero);
    if (txtSerie->text().trimmed().isEmpty())
        return falha(QStringLiteral("O campo série deve ser preenchido."), txtSerie);
    if (EhNumerico(txtSerie->text()) && EhZero(txtSerie->text()))
        return falha(QStringLiteral("Série da Nota Fiscal inválida."), txtSerie);
    if (mskDadosGeraisIndividual[0]->isBlank())
        return falha(QStringLiteral("O campo data de emissão deve ser preenchido."), mskDadosGeraisIndividual[0]);
    if (mskDadosGeraisIndividual[2]->isBlank())
        return falha(optCPF_tabDadosGerais_Individual->isChecked()
                         ? QStringLiteral("O campo CPF do destinatário deve ser preenchido.")
                         : QStringLiteral("O campo CNPJ do destinatário deve ser preenchido."),
                     mskDadosGeraisIndividual[2]);
    if (cboUF->currentIndex() < 0)
        return falha(QStringLiteral("O campo UF deve ser selecionado."), cboUF);
    return true;
}

bool AbaNotaSaida::validaRegras()
{
    const QString cfop = txtCfop->text();
    if (cfop.isEmpty() || !comecaPor5ou6(cfop))
        return falha(QStringLiteral("Campo inválido."), txtCfop);
    const int ano = anoEmissao().toInt();
    if (ano > 2002 && cfop.size() < 4)
        return falha(QStringLiteral("Ano superior a 2002, informar CFOP com 4 dígitos."), txtCfop);
    if (ano < 2003 && cfop.size() != 3)
        return falha(QStringLiteral("Ano anterior a 2003, informar CFOP com 3 dígitos."), txtCfop);
    MaskedField* emissao = mskDadosGeraisIndividual[0];
    if (!ValidaAno(anoEmissao()) || !ValidaData(DataParaValidar(emissao->digits())))
        return falha(QStringLiteral("Data inválida."), emissao);
    MaskedField* saida = mskDadosGeraisIndividual[1];
    if (!saida->isBlank()) {
        if (!ValidaAno(saida->digits().mid(4)) || !ValidaData(DataParaValidar(saida->digits())))
            return falha(QStringLiteral("Data inválida."), saida);
        if (!ComparaDatas(emissao->digits(), saida->digits()))
            return falha(QStringLiteral("Data de saída não pode ser inferior à data de emissão."), saida);
    }
    MaskedField* pessoa = mskDadosGeraisIndividual[2];
    const QString d = pessoa->digits();
    if (optCPF_tabDadosGerais_Individual->isChecked()) {
        if (EhZero(d))
            return falha(QStringLiteral("Número de CPF não pode ser zerado."), pessoa);
        if (!ValidaCPF(d))
            return falha(QString(), pessoa);
        return true;
    }
    if (EhZero(d))
        return falha(QStringLiteral("CNPJ inválido."), pessoa);
    if (!ValidaCNPJ(d))
        return falha(QString(), pessoa);
    return true;
}

NotaSaida AbaNotaSaida::daTela() const
{
    NotaSaida n;
    n.numero = txtNumero->value();
    n.serie = txtSerie->text();
    n.emissao = mskDadosGeraisIndividual[0]->digits();
    n.saida = mskDadosGeraisIndividual[1]->digits();
    n.cfop = txtCfop->text();
    n.tipoDestinatario = optCPF_tabDadosGerais_Individual->isChecked() ? QStringLiteral("2") : QStringLiteral("1");
    n.destinatario = mskDadosGeraisIndividual[2]->digits();
    n.uf = cboUF->currentIndex() >= 0 ? cboUF->currentText() : QString();
    return n;
}

QString AbaNotaSaida::alc() const
{
    return ChkMand_Retif2->isChecked() ? QStringLiteral("S") : QStringLiteral("N");
}

void AbaNotaSaida::mostra(const NotaSaida& n, const QString& alc)
{
    ChkMand_Retif2->setChecked(alc == QLatin1String("S"));
    txtCfop->setText(n.cfop);
    cboUF->setCurrentIndex(-1);
    if (!n.uf.trimmed().isEmpty()) {
        for (int i = 0; i < cboUF->count(); ++i)
            if (cboUF->itemText(i).trimmed() == n.uf.trimmed())
                cboUF->setCurrentIndex(i);
        txtNomeUf->setText(DadosGeraisVrt::NomeUf(n.uf));
    }
    txtNumero->setValue(n.numero);
    txtSerie->setText(n.serie);
    mskDadosGeraisIndividual[0]->setDigits(n.emissao);
    mskDadosGeraisIndividual[1]->setDigits(n.saida);
    const int tamanho = n.destinatario.trimmed().size();
    if (tamanho == 11) {
        optCPF_tabDadosGerais_Individual->setChecked(true);
        lblValorCNPJouCPF_tabDadosGerais_Individual->setText(QStringLiteral("CPF"));
        mskDadosGeraisIndividual[2]->setMask(MascaraCpfLido);
    } else if (tamanho == 14) {
        optCNPJ_tabDadosGerais_Individual->setChecked(true);
        lblValorCNPJouCPF_tabDadosGerais_Individual->setText(QStringLiteral("CNPJ"));
        mskDadosGeraisIndividual[2]->setMask(MascaraCnpj);
    }
    mskDadosGeraisIndividual[2]->setDigits(n.destinatario);
}

bool AbaNotaSaida::difere(const NotaSaida& c, const QString& alcCopia) const
{
    const NotaSaida t = daTela();
    return t.numero != c.numero || t.serie != c.serie || t.emissao != c.emissao || t.saida != c.saida
           || t.cfop != c.cfop || t.tipoDestinatario != c.tipoDestinatario || t.destinatario != c.destinatario
           || t.uf != c.uf || alc() != alcCopia;
}
