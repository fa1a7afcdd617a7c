#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "core/file/layout/LayoutRegistro.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/writing/MapaColunas.h"
#include "core/store/ComandoSqlite.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class tst_mapaColunas : public QObject {
    Q_OBJECT
private slots:
    void colunaDeNomeErradoEApontada();
    void colunasComMotivoNaoSaoApontadas();
    void colunaSemCampoNemMotivoEncerraOProcesso();
    void todosOsMapasDosEscritoresTemSeusCampos();
};

namespace {
const LayoutRegistro& registro13()
{
    return LayoutRegistro::de(TipoDeclaracao::Mensal, 13);
}
}  // namespace

void tst_mapaColunas::colunaDeNomeErradoEApontada()
{
    BancoTeste banco;
    // A misspelt alias and a computed value without a name both name no field of record 13.
    ComandoSqlite c(QStringLiteral("SELECT x.NR_DI AS NR_DII, x.NR_ADICAO_DI, upper(x.NR_DI) "
                                   "FROM ITEM_DI_PE_MEN x"));
    QCOMPARE(MapaColunas::semCampo(registro13(), c), (QStringList{QStringLiteral("NR_DII"),
                                                                 QStringLiteral("upper(x.NR_DI)")}));
}

void tst_mapaColunas::colunasComMotivoNaoSaoApontadas()
{
    BancoTeste banco;
    // A key, a field of another record (record 11's product code), a value the writer reads itself.
    ComandoSqlite c(QStringLiteral("SELECT x.ID_DEST_PRODUTO, 'P1' AS CD_INT_PRODUTO, x.NR_DI, 1 AS _PROPRIO "
                                   "FROM ITEM_DI_PE_MEN x"));
    QCOMPARE(MapaColunas::semCampo(registro13(), c), QStringList());
    const MapaColunas mapa(registro13(), c);
    // Only NR_DI fills record 13.
    QCOMPARE(mapa.pares().size(), 1);
    QCOMPARE(registro13().campos.at(mapa.pares().first().campo).nome, QStringLiteral("NR_DI"));
    QCOMPARE(mapa.pares().first().coluna, 2);
}

void tst_mapaColunas::colunaSemCampoNemMotivoEncerraOProcesso()
{
    // The map of a misnamed column ends the run: shown in a process of its own.
    if (qEnvironmentVariableIsSet("VRT_MAPA_ERRADO")) {
        BancoTeste banco;
        ComandoSqlite c(QStringLiteral("SELECT NR_DI AS NR_DII FROM ITEM_DI_PE_MEN"));
        const MapaColunas mapa(registro13(), c);
        std::exit(0);
    }
    QProcess p;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("VRT_MAPA_ERRADO"), QStringLiteral("1"));
    p.setProcessEnvironment(ambiente);
    p.start(QCoreApplication::applicationFilePath(), {QStringLiteral("colunaSemCampoNemMotivoEncerraOProcesso")});
    QVERIFY(p.waitForFinished(-1));
    QVERIFY(p.exitStatus() == QProcess::CrashExit || p.exitCode() != 0);
    const QByteArray saida = p.readAllStandardOutput() + p.readAllStandardError();
    QVERIFY2(saida.contains("colunas sem campo: NR_DII"), saida.constData());
}

void tst_mapaColunas::todosOsMapasDosEscritoresTemSeusCampos()
{
    // Both writers on declarations with every record type build every map they have against the real schema:
    // a misnamed column in any of their queries would end this run.
    BancoTeste banco;
    CenariosGravacao::insereMensalCompleta(QStringLiteral("00012/09"));
    CenariosGravacao::insereIndividualCompleta(QStringLiteral("00013/09"));
    QTemporaryDir pasta;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r =
        GravaVrt({QStringLiteral("00012/09"), QStringLiteral("00013/09")}, pasta.path(), ModoGravacao::Transmissao);
    QCOMPARE(r.arquivos.size(), 2);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Arquivo gerado.")});
    QCOMPARE(CenariosGravacao::conteudo(r.arquivos.at(0)),
             CenariosGravacao::esperado(QStringLiteral("mensal_completa.txt")));
}

QTEST_GUILESS_MAIN(tst_mapaColunas)
#include "tst_mapaColunas.moc"
