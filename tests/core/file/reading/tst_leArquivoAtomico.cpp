// Reading a declaration file is one transaction: the replace question answered Yes and No, a failure after
// Yes that leaves the old declaration whole, a failure that consumes no number.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
}  // namespace

class TstLeArquivoAtomico : public QObject {
    Q_OBJECT

private:
    std::optional<BancoDeLeitura> m_banco;
    bool le(const QStringList& linhas)
    {
        return leDaMemoria(bytes(linhas));
    }
    // The first declaration: December 2008, two products.
    void primeiraDeclaracao()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le(cabecalhoMensal() + QStringList{r41(t("P1"), t("Cabo antigo"), t("M")), r41(t("P2"), t("Fio"), t("M"))}));
        QCOMPARE(msgs.inesperadas, 0);
    }

private slots:
    void init() { m_banco.emplace(); }
    void cleanup() { m_banco.reset(); }

    void substituirRespondidoSimGuardaAIdentificacao()
    {
        primeiraDeclaracao();
        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::OK);
        QVERIFY(le(cabecalhoMensal() + QStringList{r41(t("P3"), t("Fita"), t("M"))}));
        QCOMPARE(msgs.caixas.at(0).texto, t("Existe uma VRT para este CNPJ/Data de Referência, deseja substituí-la?"));
        QCOMPARE(msgs.caixas.at(0).estilo, Msg::YesNo);
        QVERIFY(msgs.caixas.at(1).texto.endsWith(t("Número de identificação: ") + identificacao(1)));
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(BancoTeste::conta(t("VRT")), 1);
        QCOMPARE(BancoTeste::valor(t("SELECT group_concat(CD_INT_PRODUTO) FROM ITEM_VRT_MEN")).toString(), t("P3"));
        QCOMPARE(BancoTeste::valor(t("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")).toInt(), 1);
    }

    void substituirRespondidoNaoDeixaTudoComoEstava()
    {
        primeiraDeclaracao();
        const QStringList antes = retratoDoBanco();
        MensagensRoteiro msgs;
        msgs.responde(Msg::No);
        QVERIFY(!le(cabecalhoMensal() + QStringList{r41(t("P3"), t("Fita"), t("M"))}));
        QCOMPARE(msgs.textos(), QStringList{t("Existe uma VRT para este CNPJ/Data de Referência, deseja substituí-la?")});
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(retratoDoBanco(), antes);
    }

    void falhaNaLinha50DepoisDoSimDeixaAAntigaInteira()
    {
        primeiraDeclaracao();
        const QStringList antes = retratoDoBanco();
        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::OK);
        QStringList linhas = cabecalhoMensal();
        // New names for the products already there, new products and a new unit: none of it may stay.
        linhas << r41(t("P1"), t("Cabo novo"), t("ROLO"));
        for (int i = 6; i < 50; ++i)
            linhas << r41(t("N") + QString::number(i), t("Novo"), t("M"));
        linhas << r41(t("P2"), t("Fio"), t("M")).left(183);
        QCOMPARE(linhas.size(), 50);
        QVERIFY(!le(linhas));
        QCOMPARE(msgs.textos(), (QStringList{t("Existe uma VRT para este CNPJ/Data de Referência, deseja substituí-la?"),
                                             t("Erro no 50º registro (registro 41) - Tamanho inválido!")}));
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(retratoDoBanco(), antes);
    }

    void falhaNaoConsomeNumero()
    {
        primeiraDeclaracao();
        {
            MensagensRoteiro msgs;
            msgs.responde(Msg::OK);
            QStringList outroMes = cabecalhoMensal();
            outroMes[0] = registro00Mensal(QLatin1Char('3'), t("200901"));
            QVERIFY(!le(outroMes + QStringList{t("77")}));
            QCOMPARE(BancoTeste::valor(t("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")).toInt(), 1);
        }
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList outroMes = cabecalhoMensal();
        outroMes[0] = registro00Mensal(QLatin1Char('3'), t("200901"));
        QVERIFY(le(outroMes));
        QVERIFY(msgs.caixas.at(0).texto.endsWith(identificacao(2)));
    }

    void mesmaNotaDeOutraInscricaoNaoEhDuplicada()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::Yes).responde(Msg::OK).responde(Msg::OK);
        QVERIFY(le(cabecalhoIndividual()));
        // The same invoice again: the individual question, without an icon.
        QVERIFY(le(cabecalhoIndividual()));
        QCOMPARE(msgs.caixas.at(1).texto,
                 t("Existe uma VRT para Nota Fiscal deste CNPJ/Inscrição Estadual, deseja substituí-la?"));
        QCOMPARE(msgs.caixas.at(1).estilo, Msg::YesNo);
        // Another state registration: a new declaration.
        QStringList outra = cabecalhoIndividual();
        outra[0] = registro00Individual(QLatin1Char('3'), t("00000999999999"));
        QVERIFY(le(outra));
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(BancoTeste::conta(t("VRT")), 2);
        QVERIFY(msgs.caixas.at(3).texto.endsWith(identificacao(2)));
    }
};

QTEST_GUILESS_MAIN(TstLeArquivoAtomico)
#include "tst_leArquivoAtomico.moc"
