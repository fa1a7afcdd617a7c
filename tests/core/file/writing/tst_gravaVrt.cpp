#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "core/file/writing/GravaVrt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace CenariosGravacao;

class tst_gravaVrt : public QObject {
    Q_OBJECT
private slots:
    void tresDeclaracoesFazemTresArquivosEUmaMensagem();
    void backupDifereDaTransmissaoSoNoByte10();
    void arquivoTemONomeDaIdentificacaoSemBarra();
    void arquivoExistenteESubstituidoSemPergunta();
    void identificacaoSemDeclaracaoEIgnorada();
    void nenhumaIdentificacaoSoMostraAMensagem();
    void semIdentificacaoNadaAcontece();
    void gravarNaoAlteraOBanco();
    void textoSaiEmWindows1252();
    void falhaDeArquivo_data();
    void falhaDeArquivo();
    void arquivoEmUsoFicaComoEstava();
    void falhaNaPrimeiraNaoImpedeAsOutras();
    void falhaNaUltimaSuprimeAMensagemDeSucesso();
    void erroDesconhecidoDaMensalPassaPorSucesso();

private:
    void insereMensal(const QString& id, const char* produto = "Arroz");
    void insereIndividual(const QString& id);
};

namespace {

enum Situacao { PastaSomenteLeitura, ArquivoEmUso, DiscoCheio, PastaInexistente };

// A folder where no file can be made: a read-only folder, or, for a user the permissions do not stop,
// a folder of the kernel's that refuses new files. Empty when the platform offers neither.
QString pastaProtegida(QTemporaryDir& dir)
{
    const QString pasta = dir.filePath(QStringLiteral("protegida"));
    QDir().mkpath(pasta);
    QFile::setPermissions(pasta, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup);
    QFile teste(pasta + QStringLiteral("/teste"));
    if (!teste.open(QIODevice::WriteOnly))
        return pasta;
    teste.close();
    teste.remove();
    const int fd = ::open("/sys/vrt-teste", O_WRONLY | O_CREAT, 0666);
    if (fd >= 0) {
        ::close(fd);
        ::unlink("/sys/vrt-teste");
        return QString();
    }
    return errno == EACCES ? QStringLiteral("/sys") : QString();
}

// Holds an exclusive lock on a file for its lifetime, as another program that has the file open would.
struct TravaArquivo {
    explicit TravaArquivo(const QString& caminho)
    {
        fd = ::open(QFile::encodeName(caminho).constData(), O_RDWR | O_CREAT, 0666);
        if (fd >= 0 && ::flock(fd, LOCK_EX | LOCK_NB) != 0) {
            ::close(fd);
            fd = -1;
        }
    }
    ~TravaArquivo()
    {
        if (fd >= 0)
            ::close(fd);
    }
    int fd = -1;
};

}  // namespace

void tst_gravaVrt::insereMensal(const QString& id, const char* produto)
{
    insere(QStringLiteral("VRT"), {{"ID_VRT_MICRO", id}, {"NR_CNPJ_INTERNADOR", "12345678000195"},
                                   {"CD_TIPO_VRT", "2"}, {"IND_MANDADO_JUDIC", "N"}});
    insere(QStringLiteral("VRT_MENSAL"), {{"ID_VRT_MICRO", id}, {"DT_REFERENCIA_VRT", "012009"}});
    insere(QStringLiteral("ITEM_VRT_MEN"),
           {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "NAC"}, {"NM_INT_PRODUTO", produto},
            {"CD_NCM_PRODUTO", "10063021"}, {"NM_UNID_MED_PROD", "KG"}, {"IND_MOD_INTERNACAO", "4"}});
}

void tst_gravaVrt::insereIndividual(const QString& id)
{
    insere(QStringLiteral("VRT"), {{"ID_VRT_MICRO", id}, {"NR_CNPJ_INTERNADOR", "12345678000195"},
                                   {"CD_TIPO_VRT", "1"}, {"IND_MANDADO_JUDIC", "N"}});
}

void tst_gravaVrt::tresDeclaracoesFazemTresArquivosEUmaMensagem()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"));
    insereIndividual(QStringLiteral("00002/09"));
    insereMensal(QStringLiteral("00003/10"));
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r =
        GravaVrt({QStringLiteral("00001/09"), QStringLiteral("00002/09"), QStringLiteral("00003/10")}, pasta.path(),
                 ModoGravacao::Transmissao);
    QCOMPARE(msgs.inesperadas, 0);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Arquivo gerado.")});
    QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
    QCOMPARE(QDir(pasta.path()).entryList(QDir::Files),
             QStringList({QStringLiteral("0000109"), QStringLiteral("0000209"), QStringLiteral("0000310")}));
    QCOMPARE(r.arquivos.size(), 3);
    QVERIFY(!r.erroGravacao);
}

void tst_gravaVrt::backupDifereDaTransmissaoSoNoByte10()
{
    BancoTeste banco;
    insereMensalCompleta();
    QTemporaryDir transmissao, backup;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    const ResultadoGravacao t = GravaVrt({QStringLiteral("00012/09")}, transmissao.path(), ModoGravacao::Transmissao);
    const ResultadoGravacao b = GravaVrt({QStringLiteral("00012/09")}, backup.path(), ModoGravacao::Backup);
    QCOMPARE(msgs.textos(),
             QStringList({QStringLiteral("Arquivo gerado."), QStringLiteral("Backup realizado com sucesso.")}));
    const QByteArray a = conteudo(t.arquivos.at(0));
    QByteArray c = conteudo(b.arquivos.at(0));
    QCOMPARE(a.at(9), '1');
    QCOMPARE(c.at(9), '3');
    c[9] = '1';
    QCOMPARE(c, a);
}

void tst_gravaVrt::arquivoTemONomeDaIdentificacaoSemBarra()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00012/09"));
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00012/09")}, pasta.path(), ModoGravacao::Transmissao);
    QCOMPARE(r.arquivos, QStringList{pasta.filePath(QStringLiteral("0001209"))});
    QVERIFY(QFile::exists(pasta.filePath(QStringLiteral("0001209"))));
}

void tst_gravaVrt::arquivoExistenteESubstituidoSemPergunta()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00012/09"));
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    GravaVrt({QStringLiteral("00012/09")}, pasta.path(), ModoGravacao::Transmissao);
    const QByteArray primeiro = conteudo(pasta.filePath(QStringLiteral("0001209")));
    {
        QFile f(pasta.filePath(QStringLiteral("0001209")));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(5000, 'x'));
    }
    GravaVrt({QStringLiteral("00012/09")}, pasta.path(), ModoGravacao::Transmissao);
    QCOMPARE(conteudo(pasta.filePath(QStringLiteral("0001209"))), primeiro);
    QCOMPARE(msgs.textos(), QStringList({QStringLiteral("Arquivo gerado."), QStringLiteral("Arquivo gerado.")}));
}

void tst_gravaVrt::identificacaoSemDeclaracaoEIgnorada()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"));
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r =
        GravaVrt({QStringLiteral("00099/09"), QStringLiteral("00001/09")}, pasta.path(), ModoGravacao::Transmissao);
    QCOMPARE(r.ignoradas, QStringList{QStringLiteral("00099/09")});
    QCOMPARE(QDir(pasta.path()).entryList(QDir::Files), QStringList{QStringLiteral("0000109")});
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Arquivo gerado.")});
}

void tst_gravaVrt::nenhumaIdentificacaoSoMostraAMensagem()
{
    BancoTeste banco;
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    // Without a row, the run still ends with its message: nothing failed.
    GravaVrt({QStringLiteral("00099/09")}, pasta.path(), ModoGravacao::Backup);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Backup realizado com sucesso.")});
    QVERIFY(QDir(pasta.path()).entryList(QDir::Files).isEmpty());
}

void tst_gravaVrt::semIdentificacaoNadaAcontece()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"));
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    GravaVrt({}, pasta.path(), ModoGravacao::Transmissao);
    GravaVrt({QString()}, pasta.path(), ModoGravacao::Backup);
    QVERIFY(msgs.caixas.isEmpty());
    QVERIFY(QDir(pasta.path()).entryList(QDir::Files).isEmpty());
}

void tst_gravaVrt::gravarNaoAlteraOBanco()
{
    BancoTeste banco;
    insereMensalCompleta();
    const auto estado = [] {
        return BancoTeste::valor(QStringLiteral("SELECT group_concat(coalesce(NR_TRANSMISSAO, '-') || "
                                                "coalesce(IND_VRT_CANCELADA, '-')) FROM VRT"))
                   .toString()
               + QString::number(BancoTeste::conta(QStringLiteral("ITEM_VRT_MEN")))
               + QString::number(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")));
    };
    const QString antes = estado();
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    GravaVrt({QStringLiteral("00012/09")}, pasta.path(), ModoGravacao::Transmissao);
    GravaVrt({QStringLiteral("00012/09")}, pasta.path(), ModoGravacao::Backup);
    QCOMPARE(estado(), antes);
}

void tst_gravaVrt::textoSaiEmWindows1252()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"), "Café “especial” €");
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, pasta.path(), ModoGravacao::Transmissao);
    const QByteArray bytes = conteudo(r.arquivos.at(0));
    const int i = bytes.indexOf("\r\n41");
    QVERIFY(i > 0);
    // One byte per character: é 0xE9, the curly quotes 0x93 and 0x94, the euro 0x80.
    QCOMPARE(bytes.mid(i + 2 + 28, 17), QByteArray("Caf\xE9 \x93" "especial\x94 \x80"));
    QCOMPARE(bytes.mid(i + 2).indexOf("\r\n"), 184);
}

void tst_gravaVrt::falhaDeArquivo_data()
{
    QTest::addColumn<bool>("mensal");
    QTest::addColumn<int>("situacao");
    QTest::addColumn<QString>("mensagem");
    const QString protegido = QStringLiteral("Disco protegido contra gravação!");
    const QString cheio = QStringLiteral("Espaço insuficiente no disco!");
    QTest::newRow("mensal em pasta somente de leitura") << true << int(PastaSomenteLeitura) << protegido;
    QTest::newRow("individual em pasta somente de leitura") << false << int(PastaSomenteLeitura) << protegido;
    QTest::newRow("mensal com disco cheio") << true << int(DiscoCheio) << cheio;
    QTest::newRow("individual com disco cheio") << false << int(DiscoCheio) << cheio;
    QTest::newRow("mensal com arquivo em uso")
        << true << int(ArquivoEmUso) << QStringLiteral("O arquivo a ser gravado encontra-se aberto por outro aplicativo!");
    // The individual writer has no text of its own for a file in use.
    QTest::newRow("individual com arquivo em uso")
        << false << int(ArquivoEmUso) << QStringLiteral("Ocorreu um erro na aplicação!\rArquivo já aberto");
    QTest::newRow("individual em pasta inexistente")
        << false << int(PastaInexistente) << QStringLiteral("Ocorreu um erro na aplicação!\rCaminho não encontrado");
}

void tst_gravaVrt::falhaDeArquivo()
{
    QFETCH(bool, mensal);
    QFETCH(int, situacao);
    QFETCH(QString, mensagem);
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    if (mensal)
        insereMensal(id);
    else
        insereIndividual(id);
    QTemporaryDir dir;
    QString pasta = dir.path();
    std::unique_ptr<TravaArquivo> trava;
    switch (situacao) {
    case PastaSomenteLeitura:
        pasta = pastaProtegida(dir);
        if (pasta.isEmpty())
            QSKIP("nenhuma pasta protegida contra gravação nesta máquina");
        break;
    case ArquivoEmUso:
        trava = std::make_unique<TravaArquivo>(dir.filePath(QStringLiteral("0000109")));
        QVERIFY(trava->fd >= 0);
        break;
    case DiscoCheio:
        if (!QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("sem /dev/full nesta máquina");
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), dir.filePath(QStringLiteral("0000109"))));
        break;
    case PastaInexistente:
        pasta = dir.filePath(QStringLiteral("nao-existe"));
        break;
    }
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, ModoGravacao::Transmissao);
    QCOMPARE(msgs.inesperadas, 0);
    QCOMPARE(msgs.textos(), QStringList{mensagem});
    QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
    QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
    QVERIFY(r.erroGravacao);
}

void tst_gravaVrt::arquivoEmUsoFicaComoEstava()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"));
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("0000109"));
    {
        QFile f(caminho);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("conteudo de outro programa");
    }
    TravaArquivo trava(caminho);
    QVERIFY(trava.fd >= 0);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    GravaVrt({QStringLiteral("00001/09")}, dir.path(), ModoGravacao::Backup);
    QCOMPARE(conteudo(caminho), QByteArray("conteudo de outro programa"));
}

void tst_gravaVrt::falhaNaPrimeiraNaoImpedeAsOutras()
{
    BancoTeste banco;
    insereIndividual(QStringLiteral("00001/09"));
    insereMensal(QStringLiteral("00002/09"));
    QTemporaryDir dir;
    TravaArquivo trava(dir.filePath(QStringLiteral("0000109")));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    const ResultadoGravacao r =
        GravaVrt({QStringLiteral("00001/09"), QStringLiteral("00002/09")}, dir.path(), ModoGravacao::Transmissao);
    // The last writer succeeded, so the run closes with its message after the first one's failure.
    QCOMPARE(msgs.textos(), QStringList({QStringLiteral("Ocorreu um erro na aplicação!\rArquivo já aberto"),
                                         QStringLiteral("Arquivo gerado.")}));
    QVERIFY(conteudo(dir.filePath(QStringLiteral("0000209"))).startsWith("00VRT/PLN1"));
    QVERIFY(!r.erroGravacao);
}

void tst_gravaVrt::falhaNaUltimaSuprimeAMensagemDeSucesso()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"));
    insereMensal(QStringLiteral("00002/09"));
    QTemporaryDir dir;
    TravaArquivo trava(dir.filePath(QStringLiteral("0000209")));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r =
        GravaVrt({QStringLiteral("00001/09"), QStringLiteral("00002/09")}, dir.path(), ModoGravacao::Backup);
    QCOMPARE(msgs.textos(),
             QStringList{QStringLiteral("O arquivo a ser gravado encontra-se aberto por outro aplicativo!")});
    QVERIFY(conteudo(dir.filePath(QStringLiteral("0000109"))).startsWith("00VRT/PLN3"));
    QVERIFY(r.erroGravacao);
}

void tst_gravaVrt::erroDesconhecidoDaMensalPassaPorSucesso()
{
    BancoTeste banco;
    insereMensal(QStringLiteral("00001/09"));
    QTemporaryDir dir;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    // A folder that does not exist is none of the monthly writer's three errors: no message of its own, and the
    // run reports success although no file was made.
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, dir.filePath(QStringLiteral("nao-existe")),
                                         ModoGravacao::Transmissao);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Arquivo gerado.")});
    QVERIFY(!r.erroGravacao);
    QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("nao-existe/0000109"))));
}

QTEST_GUILESS_MAIN(tst_gravaVrt)
#include "tst_gravaVrt.moc"
