#include "CaixaDaRegra.h"
#include "TestUtil.h"

#include "core/rules/NumerosDocumento.h"

#include <QtTest>

using namespace Funcoes;
Q_DECLARE_METATYPE(Funcoes::SituacaoNumero)
Q_DECLARE_METATYPE(Funcoes::CampoBancario)

class tst_NumerosDocumento : public QObject {
    Q_OBJECT
private slots:
    void confereNumeroDocumento_data();
    void confereNumeroDocumento();
    void numeroDCRE_data();
    void numeroDCRE();
    void numeroDCR_data();
    void numeroDCR();
    void inscricaoEstadual_data();
    void inscricaoEstadual();
    void campoBancario_data();
    void campoBancario();
};

void tst_NumerosDocumento::confereNumeroDocumento_data()
{
    QTest::addColumn<QString>("digitos");
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<Funcoes::SituacaoNumero>("situacao");
    QTest::newRow("vazio nao e testado") << "" << "VRT" << SituacaoNumero::Vazio;
    QTest::newRow("nove digitos") << "051234567" << "DI" << SituacaoNumero::TamanhoInvalido;
    QTest::newRow("com letra") << "05123456A2" << "DI" << SituacaoNumero::TamanhoInvalido;
    QTest::newRow("zerado") << "0000000000" << "VRT" << SituacaoNumero::Zerado;
    QTest::newRow("zerado tem digito zero mas e recusado antes") << "0000000000" << "DSI" << SituacaoNumero::Zerado;
    QTest::newRow("digito errado") << "0512345675" << "VRT" << SituacaoNumero::DigitoInvalido;
    QTest::newRow("VRT valida") << "0512345674" << "VRT" << SituacaoNumero::Valido;
    QTest::newRow("DI valida") << "0512345672" << "DI" << SituacaoNumero::Valido;
    QTest::newRow("digito da DI nao serve na DSI") << "0512345672" << "DSI" << SituacaoNumero::DigitoInvalido;
}

void tst_NumerosDocumento::confereNumeroDocumento()
{
    QFETCH(QString, digitos);
    QFETCH(QString, tipo);
    QFETCH(Funcoes::SituacaoNumero, situacao);
    MensagensRoteiro msgs;
    QCOMPARE(ConfereNumeroDocumento(digitos, tipo), situacao);
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_NumerosDocumento::numeroDCRE_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("valido");
    QTest::addColumn<QString>("exibicao");
    QTest::addColumn<QString>("mensagem");
    QTest::addColumn<int>("icone");
    QTest::newRow("vazio passa") << "" << true << "" << "" << 0;
    QTest::newRow("mascara vazia passa") << "    /     - " << true << "" << "" << 0;
    QTest::newRow("dez digitos corretos") << "2001/12345-5" << true << "2001/12345-5" << "" << 0;
    QTest::newRow("dez digitos com DV errado") << "2001/12345-6" << false << "" << "Número de Registro DCR-E com DV Inválido"
                                               << Msg::Exclamation;
    QTest::newRow("nove digitos de 2001 passam") << "2001/12345" << true << "2001/12345" << "" << 0;
    QTest::newRow("nove digitos de 2000 recusados") << "2000/12345" << false << ""
                                                   << "Ano deve ser maior ou igual a 2001." << Msg::Critical;
    QTest::newRow("nove digitos com sequencia zero") << "2005/00000" << false << "" << "Número DCR-E inválido !"
                                                    << Msg::Critical;
    QTest::newRow("oito digitos") << "2001/1234" << false << "" << "Número DCR-E inválido !" << Msg::Critical;
    QTest::newRow("onze digitos") << "20011234567" << false << "" << "Número DCR-E inválido !" << Msg::Critical;
}

void tst_NumerosDocumento::numeroDCRE()
{
    QFETCH(QString, texto);
    QFETCH(bool, valido);
    QFETCH(QString, exibicao);
    QFETCH(QString, mensagem);
    QFETCH(int, icone);
    MensagensRoteiro msgs;
    if (!mensagem.isEmpty())
        msgs.responde(Msg::OK);
    QString mostrado = QStringLiteral("intocado");
    QCOMPARE(ValidaNumeroDCRE(texto, &mostrado), valido);
    if (valido)
        QCOMPARE(mostrado, exibicao);
    CONFERE_CAIXA_DA_REGRA(msgs, mensagem, icone);
}

void tst_NumerosDocumento::numeroDCR_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("valido");
    QTest::addColumn<QString>("exibicao");
    QTest::addColumn<QString>("mensagem");
    QTest::newRow("vazio passa") << "" << true << "" << "";
    QTest::newRow("de 2001 passa") << "12345/2001" << true << "12345/2001" << "";
    QTest::newRow("de 1990 passa") << "123451990" << true << "12345/1990" << "";
    QTest::newRow("de 2002 recusado") << "12345/2002" << false << ""
                                      << "Ano deve ser menor ou igual a 2001 e maior ou igual a 1990.";
    QTest::newRow("de 1989 recusado") << "12345/1989" << false << ""
                                      << "Ano deve ser menor ou igual a 2001 e maior ou igual a 1990.";
    QTest::newRow("sequencia zero") << "00000/1995" << false << "" << "Número DCR inválido !";
    QTest::newRow("oito digitos") << "1234/1995" << false << "" << "Número DCR inválido !";
    QTest::newRow("dez digitos") << "123456/1995" << false << "" << "Número DCR inválido !";
}

void tst_NumerosDocumento::numeroDCR()
{
    QFETCH(QString, texto);
    QFETCH(bool, valido);
    QFETCH(QString, exibicao);
    QFETCH(QString, mensagem);
    MensagensRoteiro msgs;
    if (!mensagem.isEmpty())
        msgs.responde(Msg::OK);
    QString mostrado;
    QCOMPARE(ValidaNumeroDCR(texto, &mostrado), valido);
    if (valido)
        QCOMPARE(mostrado, exibicao);
    CONFERE_CAIXA_DA_REGRA(msgs, mensagem, Msg::Critical);
}

void tst_NumerosDocumento::inscricaoEstadual_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("obrigatoria");
    QTest::addColumn<bool>("valido");
    QTest::addColumn<QString>("mensagem");
    QTest::newRow("vazia obrigatoria") << "" << true << false << "Inscrição estadual deve ser preenchida.";
    QTest::newRow("vazia opcional") << "" << false << true << "";
    QTest::newRow("zerada") << "00000000" << true << false << "Inscrição Estadual não pode ser zerada.";
    QTest::newRow("zerada curta e zerada antes de curta") << "000" << true << false
                                                           << "Inscrição Estadual não pode ser zerada.";
    QTest::newRow("sete caracteres") << "1234567" << true << false << "Inscrição Estadual Inválida.";
    QTest::newRow("oito caracteres") << "12345678" << true << true << "";
    QTest::newRow("quatorze caracteres") << "12345678901234" << true << true << "";
}

void tst_NumerosDocumento::inscricaoEstadual()
{
    QFETCH(QString, texto);
    QFETCH(bool, obrigatoria);
    QFETCH(bool, valido);
    QFETCH(QString, mensagem);
    MensagensRoteiro msgs;
    if (!mensagem.isEmpty())
        msgs.responde(Msg::OK);
    QCOMPARE(ValidaInscricaoEstadual(texto, obrigatoria), valido);
    QCOMPARE(msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
    for (const CaixaMsg& c : msgs.caixas) {
        QCOMPARE(c.icone(), Msg::Critical);
        QCOMPARE(c.titulo, TituloPadrao);
    }
}

void tst_NumerosDocumento::campoBancario_data()
{
    QTest::addColumn<Funcoes::CampoBancario>("campo");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("testaNumerico");
    QTest::addColumn<bool>("valido");
    QTest::addColumn<QString>("mensagem");
    QTest::newRow("banco em branco") << CampoBancario::Banco << "" << true << true << "";
    QTest::newRow("banco valido") << CampoBancario::Banco << "001" << true << true << "";
    QTest::newRow("banco zero") << CampoBancario::Banco << "000" << true << false << "Banco inválido.";
    QTest::newRow("banco nao numerico") << CampoBancario::Banco << "1A" << true << false << "Campo inválido.";
    QTest::newRow("banco nao numerico sem o teste numerico") << CampoBancario::Banco << "1A" << false << true << "";
    QTest::newRow("agencia valida") << CampoBancario::Agencia << "1234" << true << true << "";
    QTest::newRow("agencia zero") << CampoBancario::Agencia << "0000" << true << false << "Agência inválida.";
    QTest::newRow("agencia zero sem o teste numerico") << CampoBancario::Agencia << "0" << false << false
                                                       << "Agência inválida.";
    QTest::newRow("agencia nao numerica") << CampoBancario::Agencia << "12-3" << true << false << "Campo inválido.";
    QTest::newRow("conta valida") << CampoBancario::ContaCorrente << "123456" << true << true << "";
    QTest::newRow("conta com X passa") << CampoBancario::ContaCorrente << "12345X" << true << true << "";
    QTest::newRow("conta com x minusculo passa") << CampoBancario::ContaCorrente << "12345x" << true << true << "";
    QTest::newRow("conta zero") << CampoBancario::ContaCorrente << "0000000" << true << false
                                << "Conta-Corrente inválida.";
    QTest::newRow("conta zero sem o teste numerico") << CampoBancario::ContaCorrente << "0" << false << false
                                                     << "Conta-Corrente inválida.";
    // Only a numeric zero is refused in the account: any other text passes, the check letter alone included.
    QTest::newRow("conta nao numerica passa") << CampoBancario::ContaCorrente << "12A45" << true << true << "";
    QTest::newRow("conta so X passa") << CampoBancario::ContaCorrente << "X" << true << true << "";
    QTest::newRow("conta zeros e X passa") << CampoBancario::ContaCorrente << "000X" << true << true << "";
    QTest::newRow("conta so X passa no individual") << CampoBancario::ContaCorrente << "X" << false << true << "";
    // The zero test comes before the numeric one: a zero bank is "Banco inválido.", never "Campo inválido.".
    QTest::newRow("banco zero com espacos") << CampoBancario::Banco << " 00 " << true << false << "Banco inválido.";
}

void tst_NumerosDocumento::campoBancario()
{
    QFETCH(Funcoes::CampoBancario, campo);
    QFETCH(QString, texto);
    QFETCH(bool, testaNumerico);
    QFETCH(bool, valido);
    QFETCH(QString, mensagem);
    MensagensRoteiro msgs;
    if (!mensagem.isEmpty())
        msgs.responde(Msg::OK);
    QCOMPARE(ValidaCampoBancario(campo, texto, testaNumerico), valido);
    QCOMPARE(msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
    for (const CaixaMsg& c : msgs.caixas) {
        QCOMPARE(c.icone(), Msg::Critical);
        QCOMPARE(c.titulo, TituloPadrao);
    }
}

QTEST_GUILESS_MAIN(tst_NumerosDocumento)
#include "tst_NumerosDocumento.moc"
