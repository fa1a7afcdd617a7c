#include "CaixaDaRegra.h"
#include "TestUtil.h"

#include "core/rules/DigitoVerificador.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Funcoes;

namespace {

// The published rule, written independently of the program: the weighted sum from the right with weights 2..9
// (wrapping), and the check digit (10 * sum mod 11) mod 10.
int digitoPublicado(const QString& digitos)
{
    int soma = 0;
    int peso = 2;
    for (int i = digitos.size() - 1; i >= 0; --i) {
        soma += (digitos.at(i).unicode() - '0') * peso;
        peso = peso == 9 ? 2 : peso + 1;
    }
    return (soma * 10) % 11 % 10;
}

// CPF weights go 2, 3, ... 10 (11) without wrapping.
int digitoCPFPublicado(const QString& digitos)
{
    int soma = 0;
    for (int i = 0; i < digitos.size(); ++i)
        soma += (digitos.at(i).unicode() - '0') * (digitos.size() + 1 - i);
    return (soma * 10) % 11 % 10;
}

QString numeroAleatorio(QRandomGenerator& gerador, int tamanho)
{
    QString s;
    for (int i = 0; i < tamanho; ++i)
        s += QChar('0' + gerador.bounded(10));
    return s;
}

const QString preencha = QStringLiteral("Preencha novamente o campo.");

}  // namespace

class tst_DigitoVerificador : public QObject {
    Q_OBJECT
private slots:
    void digitoModulo11_data();
    void digitoModulo11();
    void validaDigito_data();
    void validaDigito();
    void diEDsiDaoDigitosDiferentesParaOMesmoNumero();
    void pesoVoltaADoisNoNonoDigito();
    void validaDigitoNaoMostraMensagem();
    void validaCPF_data();
    void validaCPF();
    void validaCNPJ_data();
    void validaCNPJ();
    void validaDCRE_data();
    void validaDCRE();
    void cpfConfereComORegraPublicadaEmCemMilNumeros();
    void cnpjConfereComORegraPublicadaEmCemMilNumeros();
};

void tst_DigitoVerificador::digitoModulo11_data()
{
    QTest::addColumn<int>("soma");
    QTest::addColumn<int>("digito");
    QTest::newRow("resto zero da zero") << 22 << 0;
    QTest::newRow("resto um da zero") << 23 << 0;
    QTest::newRow("resto dois da nove") << 24 << 9;
    QTest::newRow("resto dez da um") << 21 << 1;
}

void tst_DigitoVerificador::digitoModulo11()
{
    QFETCH(int, soma);
    QFETCH(int, digito);
    QCOMPARE(DigitoModulo11(soma), digito);
}

void tst_DigitoVerificador::validaDigito_data()
{
    QTest::addColumn<QString>("numero");
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<bool>("valido");
    QTest::newRow("VRT correta") << "0512345674" << "VRT" << true;
    QTest::newRow("VRT com digito errado") << "0512345675" << "VRT" << false;
    QTest::newRow("DI correta") << "0512345672" << "DI" << true;
    QTest::newRow("DSI correta") << "0512345677" << "DSI" << true;
    QTest::newRow("DI com resto um tem digito zero") << "0500000080" << "DI" << true;
    QTest::newRow("DI com resto zero tem digito zero") << "0500000020" << "DI" << true;
    QTest::newRow("DSI com resto um tem digito zero") << "0500000050" << "DSI" << true;
    QTest::newRow("VRT com resto zero tem digito zero") << "0500000030" << "VRT" << true;
    QTest::newRow("VRT com resto um tem digito zero") << "0500000090" << "VRT" << true;
    QTest::newRow("VRT com resto um e digito um recusada") << "0500000091" << "VRT" << false;
    QTest::newRow("DSI de 99 com resto um") << "9900000000" << "DSI" << true;
    // Without a prefix only the nine digits left of the check digit count: 1*2 = 2, resto 2, digit 9.
    QTest::newRow("outro tipo soma sem prefixo") << "0000000019" << "X" << true;
    QTest::newRow("outro tipo nao usa o prefixo da VRT") << "0000000015" << "X" << false;
    QTest::newRow("vazio") << "" << "VRT" << false;
}

void tst_DigitoVerificador::validaDigito()
{
    QFETCH(QString, numero);
    QFETCH(QString, tipo);
    QFETCH(bool, valido);
    QCOMPARE(ValidaDigito(numero, tipo), valido);
}

void tst_DigitoVerificador::diEDsiDaoDigitosDiferentesParaOMesmoNumero()
{
    const QString nove = QStringLiteral("051234567");
    int validosDI = 0;
    int validosDSI = 0;
    for (int d = 0; d <= 9; ++d) {
        const QString numero = nove + QChar('0' + d);
        validosDI += ValidaDigito(numero, QStringLiteral("DI"));
        validosDSI += ValidaDigito(numero, QStringLiteral("DSI"));
        QVERIFY(!(ValidaDigito(numero, QStringLiteral("DI")) && ValidaDigito(numero, QStringLiteral("DSI"))));
    }
    QCOMPARE(validosDI, 1);
    QCOMPARE(validosDSI, 1);
}

// Right to left the weights are 2..9 and then 2 again for the ninth digit: raising that digit by one raises
// the sum by 2, and the prefix digit carries weight 3.
void tst_DigitoVerificador::pesoVoltaADoisNoNonoDigito()
{
    for (int primeiro = 0; primeiro <= 9; ++primeiro) {
        const QString nove = QChar('0' + primeiro) + QStringLiteral("51234567");
        for (const QString& tipo : {QStringLiteral("VRT"), QStringLiteral("DI"), QStringLiteral("DSI")}) {
            const QChar prefixo = tipo == QLatin1String("VRT") ? '5' : (tipo == QLatin1String("DI") ? '2' : '4');
            const int dv = digitoPublicado(prefixo + nove);
            QVERIFY2(ValidaDigito(nove + QChar('0' + dv), tipo), qPrintable(tipo + nove));
        }
    }
}

void tst_DigitoVerificador::validaDigitoNaoMostraMensagem()
{
    MensagensRoteiro msgs;
    QVERIFY(!ValidaDigito(QStringLiteral("0512345675"), QStringLiteral("VRT")));
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_DigitoVerificador::validaCPF_data()
{
    QTest::addColumn<QString>("cpf");
    QTest::addColumn<bool>("valido");
    QTest::addColumn<QString>("mensagem");
    QTest::newRow("vazio passa sem mensagem") << "" << true << "";
    QTest::newRow("nulo passa sem mensagem") << QString() << true << "";
    QTest::newRow("correto") << "52998224725" << true << "";
    QTest::newRow("digitos repetidos que calculam passam") << "11111111111" << true << "";
    QTest::newRow("noves repetidos tambem") << "99999999999" << true << "";
    QTest::newRow("primeiro digito zero por resto menor que dois") << "00000000191" << true << "";
    QTest::newRow("dez digitos") << "5299822472" << false
                                 << "CPF com tamanho inválido (11 dígitos é o correto). " + preencha;
    QTest::newRow("doze digitos") << "529982247250" << false
                                  << "CPF com tamanho inválido (11 dígitos é o correto). " + preencha;
    QTest::newRow("zerado") << "00000000000" << false << "CPF zerado. Preencha novamente o campo.";
    QTest::newRow("primeiro digito errado") << "52998224735" << false
                                            << "CPF com DV (Dígito de Verificação) inválido. " + preencha;
    QTest::newRow("segundo digito errado") << "52998224726" << false
                                           << "CPF com DV (Dígito de Verificação) inválido. " + preencha;
}

void tst_DigitoVerificador::validaCPF()
{
    QFETCH(QString, cpf);
    QFETCH(bool, valido);
    QFETCH(QString, mensagem);
    MensagensRoteiro msgs;
    QCOMPARE(ValidaCPF(cpf), valido);
    if (mensagem.isEmpty()) {
        QCOMPARE(msgs.caixas.size(), 0);
        return;
    }
    QCOMPARE(msgs.textos(), QStringList{mensagem});
    QCOMPARE(msgs.caixas.at(0).icone(), Msg::Exclamation);
    QCOMPARE(msgs.caixas.at(0).botoes(), Msg::OKOnly);
    QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
}

void tst_DigitoVerificador::validaCNPJ_data()
{
    QTest::addColumn<QString>("cnpj");
    QTest::addColumn<bool>("valido");
    QTest::newRow("vazio passa sem mensagem") << "" << true;
    QTest::newRow("nulo passa sem mensagem") << QString() << true;
    QTest::newRow("correto") << "11222333000181" << true;
    QTest::newRow("correto com digitos zero") << "11444777000161" << true;
    QTest::newRow("treze digitos") << "1122233300018" << false;
    QTest::newRow("quinze digitos") << "112223330001811" << false;
    QTest::newRow("zerado") << "00000000000000" << false;
    QTest::newRow("primeiro digito errado") << "11222333000191" << false;
    QTest::newRow("segundo digito errado") << "11222333000182" << false;
}

void tst_DigitoVerificador::validaCNPJ()
{
    QFETCH(QString, cnpj);
    QFETCH(bool, valido);
    MensagensRoteiro msgs;
    QCOMPARE(ValidaCNPJ(cnpj), valido);
    if (valido) {
        QCOMPARE(msgs.caixas.size(), 0);
        return;
    }
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("CNPJ inválido.")});
    QCOMPARE(msgs.caixas.at(0).icone(), Msg::Exclamation);
    QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
}

void tst_DigitoVerificador::validaDCRE_data()
{
    QTest::addColumn<QString>("numero");
    QTest::addColumn<bool>("valido");
    QTest::addColumn<QString>("mensagem");
    QTest::addColumn<int>("icone");
    QTest::newRow("vazio") << "" << false << "Campo deve ser maior que zero." << Msg::Critical;
    QTest::newRow("so brancos") << "   " << false << "Campo deve ser maior que zero." << Msg::Critical;
    QTest::newRow("oito digitos") << "20011234" << false << "Tamanho Invalido" << Msg::Critical;
    QTest::newRow("nove digitos passam sem conta") << "000000000" << true << "" << 0;
    QTest::newRow("nove digitos quaisquer") << "999999999" << true << "" << 0;
    // 2*2+0*9+0*8+1*7+1*6+2*5+3*4+4*3+5*2 = 61, resto 6, digit 5.
    QTest::newRow("dez digitos corretos") << "2001123455" << true << "" << 0;
    QTest::newRow("dez digitos com brancos em volta") << " 2001123455 " << true << "" << 0;
    QTest::newRow("dez digitos errados") << "2001123456" << false << "Número de Registro DCR-E com DV Inválido"
                                         << Msg::Exclamation;
    QTest::newRow("onze digitos passam") << "20011234567" << true << "" << 0;
}

void tst_DigitoVerificador::validaDCRE()
{
    QFETCH(QString, numero);
    QFETCH(bool, valido);
    QFETCH(QString, mensagem);
    QFETCH(int, icone);
    MensagensRoteiro msgs;
    QCOMPARE(ValidaDCRE(numero), valido);
    CONFERE_CAIXA_DA_REGRA(msgs, mensagem, icone);
}

void tst_DigitoVerificador::cpfConfereComORegraPublicadaEmCemMilNumeros()
{
    int caixas = 0;
    const ManipuladorMsg anterior = InstalaManipuladorMsg([&](const QString&, int, const QString&) {
        ++caixas;
        return Msg::OK;
    });
    QRandomGenerator gerador(20240611);
    int validos = 0;
    for (int n = 0; n < 100000; ++n) {
        QString cpf;
        if (n % 10 < 5) {  // half built with good digits, half left to chance
            cpf = numeroAleatorio(gerador, 9);
            cpf += QChar('0' + digitoCPFPublicado(cpf));
            cpf += QChar('0' + digitoCPFPublicado(cpf));
        } else if (n % 10 == 5) {
            cpf = QString(11, QChar('0' + gerador.bounded(10)));
        } else {
            cpf = numeroAleatorio(gerador, 11);
        }
        const QString nove = cpf.left(9);
        const bool esperado = cpf != QString(11, QLatin1Char('0'))
                              && cpf.at(9).unicode() - '0' == digitoCPFPublicado(nove)
                              && cpf.at(10).unicode() - '0' == digitoCPFPublicado(cpf.left(10));
        const int antes = caixas;
        QVERIFY2(ValidaCPF(cpf) == esperado, qPrintable(cpf));
        QCOMPARE(caixas - antes, esperado ? 0 : 1);
        validos += esperado;
    }
    InstalaManipuladorMsg(anterior);
    QVERIFY(validos > 50000);
    QVERIFY(validos < 70000);
}

void tst_DigitoVerificador::cnpjConfereComORegraPublicadaEmCemMilNumeros()
{
    int caixas = 0;
    const ManipuladorMsg anterior = InstalaManipuladorMsg([&](const QString&, int, const QString&) {
        ++caixas;
        return Msg::OK;
    });
    QRandomGenerator gerador(19990101);
    int validos = 0;
    for (int n = 0; n < 100000; ++n) {
        QString cnpj;
        if (n % 2 == 0) {
            cnpj = numeroAleatorio(gerador, 12);
            cnpj += QChar('0' + digitoPublicado(cnpj));
            cnpj += QChar('0' + digitoPublicado(cnpj));
        } else {
            cnpj = numeroAleatorio(gerador, 14);
        }
        const bool esperado = cnpj != QString(14, QLatin1Char('0'))
                              && cnpj.at(12).unicode() - '0' == digitoPublicado(cnpj.left(12))
                              && cnpj.at(13).unicode() - '0' == digitoPublicado(cnpj.left(13));
        const int antes = caixas;
        QVERIFY2(ValidaCNPJ(cnpj) == esperado, qPrintable(cnpj));
        QCOMPARE(caixas - antes, esperado ? 0 : 1);
        validos += esperado;
    }
    InstalaManipuladorMsg(anterior);
    QVERIFY(validos > 45000);
    QVERIFY(validos < 60000);
}

QTEST_GUILESS_MAIN(tst_DigitoVerificador)
#include "tst_DigitoVerificador.moc"
