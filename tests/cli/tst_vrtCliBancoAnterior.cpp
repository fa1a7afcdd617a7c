// vrt-cli banco-anterior as a user runs it: the built binary, an old database written by the test writer of Jet 4
// files, and a fresh copy of the delivered database, whose reference rows make the replacement question come.
#include "BancoVersao1.h"
#include "TestUtil.h"

#include <QProcess>
#include <QtTest>

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
struct Execucao {
    int status = -1;
    QString erros;
};
}  // namespace

class tst_vrtCliBancoAnterior : public QObject {
    Q_OBJECT

    Execucao roda(const BancoTeste& banco, QStringList argumentos)
    {
        argumentos << t("--banco") << banco.arquivo();
        QProcess p;
        p.start(t(VRT_BINARY_DIR "/vrt-cli"), argumentos);
        p.waitForFinished(120000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
                QString::fromUtf8(p.readAllStandardError())};
    }

    // An old database of one monthly declaration, written to `pasta` under `nome`.
    QString antigo(const QTemporaryDir& pasta, const QString& nome = t("PLN_VRT.mdb"))
    {
        QList<TabelaJet> banco = BancoVersao1::Vazio();
        BancoVersao1::Insere(banco, t("VRT"), {{t("ID_VRT_MICRO"), t("00004/07")}, {t("CD_TIPO_VRT"), t("2")}});
        BancoVersao1::Insere(banco, t("MOEDA"), {{t("CD_MOEDA"), t("220")}, {t("NM_MOEDA"), t("DOLAR DOS EUA")}});
        const QString caminho = pasta.filePath(nome);
        return BancoVersao1::Grava(banco, caminho).isEmpty() ? caminho : QString();
    }

private slots:
    void semSubstituirNadaMuda()
    {
        BancoTeste banco;
        QTemporaryDir pasta;
        const QString arquivo = antigo(pasta);
        QVERIFY(!arquivo.isEmpty());
        const int moedas = BancoTeste::conta(t("MOEDA"));
        const Execucao e = roda(banco, {t("banco-anterior"), arquivo});
        QCOMPARE(e.status, 1);
        QVERIFY2(e.erros.contains(t("Confirma a substituição? [Não] (use --substituir para substituir)")),
                 qPrintable(e.erros));
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
        QCOMPARE(BancoTeste::conta(t("MOEDA")), moedas);
    }

    void comSubstituirImporta()
    {
        BancoTeste banco;
        QTemporaryDir pasta;
        const QString arquivo = antigo(pasta);
        QVERIFY(!arquivo.isEmpty());
        const Execucao e = roda(banco, {t("banco-anterior"), arquivo, t("--substituir")});
        QCOMPARE(e.status, 0);
        QVERIFY2(e.erros.startsWith(t("VRT - Vistoria de Remessa Tributada: Existem 1 registros de VRT(s) no banco "
                                      "de dados da versão 1.0. Confirma importação? [Sim]\n")),
                 qPrintable(e.erros));
        QVERIFY(e.erros.endsWith(t("VRT - Vistoria de Remessa Tributada: Importação realizada com sucesso!\n")));
        QCOMPARE(BancoTeste::conta(t("VRT"), t("ID_VRT_MICRO = '00004/07'")), 1);
        QCOMPARE(BancoTeste::conta(t("MOEDA")), 1);
    }

    // A file of another name is refused before it is opened, whatever it holds.
    void outroNomeRecusadoAntesDeAbrir()
    {
        BancoTeste banco;
        QTemporaryDir pasta;
        const QString arquivo = antigo(pasta, t("dados.mdb"));
        QVERIFY(!arquivo.isEmpty());
        const Execucao e = roda(banco, {t("banco-anterior"), arquivo, t("--substituir")});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: O arquivo localizado não é o banco de dados da "
                            "versão 1.0 do sistema!\nO arquivo a ser localizado é:\nC:\\PROJETOS\\VRT-PLN\\PLN_VRT.mdb\n"));
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
    }
};

QTEST_GUILESS_MAIN(tst_vrtCliBancoAnterior)
#include "tst_vrtCliBancoAnterior.moc"
