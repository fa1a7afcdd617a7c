// vrt-cli copiar as a user runs it: the built binary on a fresh copy of the delivered database.
#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "core/file/numbering/IdentificacaoPrevista.h"
#include "core/rules/DigitoVerificador.h"

#include <QProcess>
#include <QtTest>

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
struct Execucao {
    int status = -1;
    QString saida;
    QString erros;
};

// A declaration number with a valid check digit.
QString numeroValido()
{
    for (int d = 0; d <= 9; ++d) {
        const QString n = t("091234567") + QString::number(d);
        if (Funcoes::ValidaDigito(n, t("VRT")))
            return n;
    }
    return QString();
}
}  // namespace

class tst_vrtCliCopiar : public QObject {
    Q_OBJECT

private:
    Execucao roda(const BancoTeste& banco, QStringList argumentos)
    {
        argumentos << t("--banco") << banco.arquivo();
        QProcess p;
        p.setWorkingDirectory(banco.pasta());
        p.start(t(VRT_BINARY_DIR "/vrt-cli"), argumentos);
        p.waitForFinished(120000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }

private slots:
    void copiaMensalComoOriginal()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        const QString nova = Funcoes::IdentificacaoPrevista();
        const Execucao e = roda(banco, {t("copiar"), t("00012/09")});
        QCOMPARE(e.status, 0);
        QCOMPARE(e.saida, nova + t("\n"));
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: VRT Mensal copiada com sucesso!\n"));
        QCOMPARE(banco.valor(t("SELECT IND_RETIFICACAO || '|' || NR_VRT || '|' || DT_REFERENCIA_VRT FROM VRT "
                               "JOIN VRT_MENSAL USING (ID_VRT_MICRO) WHERE ID_VRT_MICRO = ?"),
                             {nova})
                     .toString(),
                 t("N||"));
        QCOMPARE(banco.conta(t("ITEM_VRT_MEN"), t("ID_VRT_MICRO = ?"), {nova}), 5);
    }

    void copiaIndividualComoRetificadora()
    {
        BancoTeste banco;
        CenariosGravacao::insereIndividualCompleta(t("00013/09"));
        const QString nova = Funcoes::IdentificacaoPrevista();
        const QString numero = numeroValido();
        QVERIFY(!numero.isEmpty());
        const Execucao e = roda(banco, {t("copiar"), t("00013/09"), t("--retificacao"),
                                        numero.left(2) + t("/") + numero.mid(2, 7) + t("-") + numero.right(1)});
        QCOMPARE(e.status, 0);
        QCOMPARE(e.saida, nova + t("\n"));
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: VRT Individual copiada com sucesso!\n"));
        QCOMPARE(banco.valor(t("SELECT IND_RETIFICACAO || NR_VRT FROM VRT WHERE ID_VRT_MICRO = ?"), {nova}).toString(),
                 t("S") + numero);
        QCOMPARE(banco.conta(t("ITEM_NFS")), 12);
    }

    void numeroRecusadoNaoCopia_data()
    {
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QString>("erro");
        QTest::newRow("zerado") << t("0000000000")
                                << t("VRT - Vistoria de Remessa Tributada: Número da VRT não pode ser zerado.\n");
        QString ruim = numeroValido();
        ruim[9] = QChar(u'0' + (ruim.at(9).digitValue() + 1) % 10);
        QTest::newRow("dígito") << ruim << t("VRT - Vistoria de Remessa Tributada: Dígito verificador inválido.\n");
        QTest::newRow("curto") << t("123") << t("vrt-cli: número da VRT inválido: 123\n");
    }

    void numeroRecusadoNaoCopia()
    {
        QFETCH(QString, numero);
        QFETCH(QString, erro);
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        const QVariant numerador = banco.valor(t("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR"));
        const Execucao e = roda(banco, {t("copiar"), t("00012/09"), t("--retificacao"), numero});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, erro);
        QCOMPARE(e.saida, QString());
        QCOMPARE(banco.conta(t("VRT")), 1);
        QCOMPARE(banco.valor(t("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")), numerador);
    }

    void identificacaoInexistente()
    {
        BancoTeste banco;
        const Execucao e = roda(banco, {t("copiar"), t("99999/99")});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, t("vrt-cli: identificação não encontrada: 99999/99\n"));
    }

    void usoErrado_data()
    {
        QTest::addColumn<QStringList>("argumentos");
        QTest::newRow("sem ID") << QStringList{t("copiar")};
        QTest::newRow("dois IDs") << QStringList{t("copiar"), t("00001/09"), t("00002/09")};
        QTest::newRow("retificacao em listar") << QStringList{t("listar"), t("--retificacao"), t("0912345670")};
        QTest::newRow("retificacao sem valor") << QStringList{t("copiar"), t("00001/09"), t("--retificacao")};
    }

    void usoErrado()
    {
        QFETCH(QStringList, argumentos);
        BancoTeste banco;
        QProcess p;
        p.start(t(VRT_BINARY_DIR "/vrt-cli"), argumentos);
        p.waitForFinished(120000);
        QCOMPARE(p.exitCode(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_vrtCliCopiar)
#include "tst_vrtCliCopiar.moc"
