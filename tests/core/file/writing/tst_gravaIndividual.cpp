#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/GravaVrt.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace CenariosGravacao;

class tst_gravaIndividual : public QObject {
    Q_OBJECT
private slots:
    void declaracaoIndividualCompletaIgualAoArquivoDeReferencia();
    void cfopNuloSaiComoTresZerosEUmBranco();
    void cnpjNuloSaiComoZeros();
    void codigoDeDestinoPelaUfEPelaSaidaParaAlc_data();
    void codigoDeDestinoPelaUfEPelaSaidaParaAlc();
    void registro13SoTemValorDeObsolescenciaDepoisDeUmaMensalComS();
    void registro13SozinhoDeixaOValorDeObsolescenciaEmZeros();
    void registro13DepoisDeMensalComNDeixaZeros();
    void ultimoRegistro12DeixaOArquivoSemCrLfNoFim();
    void declaracaoSemNotaEscreveSoOsRegistrosDeCabecalho();

private:
    QList<QByteArray> linhasDe(const QString& caminho, QByteArray* bytes = nullptr);
    void insereDeclaracao(const QString& id, const QVariant& uf, const QVariant& alc, const QVariant& cfop);
    QTemporaryDir m_pasta;
};

namespace {
QString Z(const QString& s, int n) { return QString(n - s.size(), u'0') + s; }
QString B(const QString& s, int n) { return s + QString(n - s.size(), u' '); }
QByteArray L(const QString& s) { return s.toLatin1(); }

// Positions 118-132 of the first record 13 of a file.
QByteArray valorObsolescencia(const QList<QByteArray>& linhas)
{
    for (const QByteArray& l : linhas) {
        if (l.startsWith("13"))
            return l.mid(117, 15);
    }
    return QByteArray("sem registro 13");
}
}  // namespace

QList<QByteArray> tst_gravaIndividual::linhasDe(const QString& caminho, QByteArray* bytes)
{
    const QByteArray b = conteudo(caminho);
    if (bytes)
        *bytes = b;
    QList<QByteArray> linhas;
    for (const QByteArray& l : b.split('\n'))
        linhas << (l.endsWith('\r') ? l.chopped(1) : l);
    return linhas;
}

void tst_gravaIndividual::insereDeclaracao(const QString& id, const QVariant& uf, const QVariant& alc,
                                           const QVariant& cfop)
{
    insere(QStringLiteral("VRT"), {{"ID_VRT_MICRO", id}, {"NR_CNPJ_INTERNADOR", "12345678000195"},
                                   {"CD_TIPO_VRT", "1"}, {"IND_MANDADO_JUDIC", "N"}});
    insere(QStringLiteral("VRT_INDIVIDUAL"), {{"ID_VRT_MICRO", id}, {"IN_SAIDA_ALC_AO", alc}});
    const qint64 nfs = insere(QStringLiteral("NOTA_FISCAL_SAIDA"),
                              {{"ID_VRT_MICRO", id}, {"NR_NF_SAIDA", "1"}, {"NR_SERIE_NF_SAIDA", "1"},
                               {"DT_EMISS_NF_SAIDA", "05012009"}, {"DT_SAIDA_NF_SAIDA", "05012009"},
                               {"CD_OP_FISCAL", cfop}, {"CD_TIPO_DESTINAT", "1"}, {"NR_DESTINAT", "123"},
                               {"CD_UF_DESTINO", uf}});
    const qint64 item = insere(QStringLiteral("ITEM_NFS"),
                               {{"ID_NFS", nfs}, {"NR_ITEM_NF_SAIDA", "1"}, {"CD_INT_PROD", "PE-1"},
                                {"NM_INT_PROD", "Relógio"}, {"NM_UNID_MED_PROD", "PECA"},
                                {"CD_NCM_PROD", "91021100"}, {"IND_MOD_INTERNACAO", "1"}});
    insere(QStringLiteral("ITEM_NFS_PE"), {{"ID_ITEM", item}, {"QT_INT_UNID_NFS", "1,00000"}});
    const qint64 di = insere(QStringLiteral("ITEM_DI_PE_IND"),
                             {{"ID_ITEM", item}, {"NR_DI", "0812345678"}, {"NR_DI_ANTIGA", ""}, {"NR_ADICAO_DI", "1"},
                              {"NR_ITEM_ADICAO", "1"}, {"IND_DL_288_67", "N"}, {"IND_OBSOLE_RESIDUO", "S"},
                              {"QT_PROD_UNID_NFS", "1,00000"}, {"IND_SUSP_PIS_COFINS", "N"}});
    insere(QStringLiteral("ITEM_IMPORT_288_PE"), {{"ID_ITEM_DI", di}, {"VL_TOT_PROD_INT", "12,34"}});
    insere(QStringLiteral("ITEM_NFA_PE_IND"),
           {{"ID_ITEM", item}, {"NR_NF_AQUIS", "1"}, {"IND_DL_288_67", "N"}, {"IND_OBSOLE_RESIDUO", "N"}});
}

void tst_gravaIndividual::declaracaoIndividualCompletaIgualAoArquivoDeReferencia()
{
    BancoTeste banco;
    insereIndividualCompleta();
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00013/09")}, m_pasta.path(), ModoGravacao::Transmissao);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Arquivo gerado.")});
    QVERIFY(mesmosBytes(conteudo(r.arquivos.value(0)), esperado(QStringLiteral("individual_completa.txt"))));
}

void tst_gravaIndividual::cfopNuloSaiComoTresZerosEUmBranco()
{
    BancoTeste banco;
    insereDeclaracao(QStringLiteral("00001/09"), QStringLiteral("AM"), QStringLiteral("N"), QVariant());
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, m_pasta.path(), ModoGravacao::Transmissao);
    const QList<QByteArray> l = linhasDe(r.arquivos.value(0));
    QCOMPARE(l.at(1).mid(65, 4), QByteArray("000 "));
    QCOMPARE(l.at(1).size(), 113);
}

void tst_gravaIndividual::cnpjNuloSaiComoZeros()
{
    BancoTeste banco;
    insere(QStringLiteral("VRT"), {{"ID_VRT_MICRO", "00001/09"}, {"CD_TIPO_VRT", "1"}});
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, m_pasta.path(), ModoGravacao::Transmissao);
    const QList<QByteArray> l = linhasDe(r.arquivos.value(0));
    QCOMPARE(l.at(0), L(QStringLiteral("00VRT/PLN") + "1" + "02.00" + "1" + "000000" + Z("", 14) + B("", 5) + "000000"
                        + Z("", 14)));
    QCOMPARE(l.at(1).mid(10, 14), QByteArray(14, '0'));
}

void tst_gravaIndividual::codigoDeDestinoPelaUfEPelaSaidaParaAlc_data()
{
    QTest::addColumn<QVariant>("uf");
    QTest::addColumn<QVariant>("alc");
    QTest::addColumn<QString>("destino");
    QTest::newRow("AC com saída para ALC") << QVariant("AC") << QVariant("S") << "3";
    QTest::newRow("AM sem saída para ALC") << QVariant("AM") << QVariant("N") << "1";
    QTest::newRow("RO com indicador nulo") << QVariant("RO") << QVariant() << "1";
    QTest::newRow("RR com saída para ALC") << QVariant("RR") << QVariant("S") << "3";
    QTest::newRow("SP sem saída para ALC") << QVariant("SP") << QVariant("N") << "2";
    QTest::newRow("SP com saída para ALC") << QVariant("SP") << QVariant("S") << "4";
    QTest::newRow("SP com indicador nulo") << QVariant("SP") << QVariant() << "4";
    QTest::newRow("UF nula sem saída para ALC") << QVariant() << QVariant("N") << "2";
}

void tst_gravaIndividual::codigoDeDestinoPelaUfEPelaSaidaParaAlc()
{
    QFETCH(QVariant, uf);
    QFETCH(QVariant, alc);
    QFETCH(QString, destino);
    QCOMPARE(CabecalhoVrt::codigoDestino(uf.isNull() ? QStringLiteral("  ") : uf.toString(),
                                         alc.isNull() ? QStringLiteral(" ") : alc.toString()),
             destino);
    BancoTeste banco;
    insereDeclaracao(QStringLiteral("00001/09"), uf, alc, QStringLiteral("6101"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, m_pasta.path(), ModoGravacao::Transmissao);
    const QList<QByteArray> l = linhasDe(r.arquivos.value(0));
    QVERIFY(l.at(4).startsWith("11"));
    QCOMPARE(QString::fromLatin1(l.at(4).mid(28, 1)), destino);
    QCOMPARE(l.at(1).mid(84, 3), L(B(uf.toString(), 2) + (alc.isNull() ? QStringLiteral(" ") : alc.toString())));
}

void tst_gravaIndividual::registro13SoTemValorDeObsolescenciaDepoisDeUmaMensalComS()
{
    BancoTeste banco;
    // The monthly declaration's last record 13 has IND_OBSOLE_RESIDUO "S".
    insereMensalCompleta(QStringLiteral("00001/09"));
    insereDeclaracao(QStringLiteral("00002/09"), QStringLiteral("SP"), QStringLiteral("N"), QStringLiteral("6101"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09"), QStringLiteral("00002/09")}, m_pasta.path(),
                                         ModoGravacao::Transmissao);
    QCOMPARE(r.arquivos.size(), 2);
    QCOMPARE(valorObsolescencia(linhasDe(r.arquivos.at(1))), QByteArray("000000000001234"));
}

void tst_gravaIndividual::registro13SozinhoDeixaOValorDeObsolescenciaEmZeros()
{
    BancoTeste banco;
    insereMensalCompleta(QStringLiteral("00001/09"));
    insereDeclaracao(QStringLiteral("00002/09"), QStringLiteral("SP"), QStringLiteral("N"), QStringLiteral("6101"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    // The individual declaration first, then the monthly one: each run holds its own working value.
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00002/09"), QStringLiteral("00001/09")}, m_pasta.path(),
                                         ModoGravacao::Transmissao);
    QCOMPARE(valorObsolescencia(linhasDe(r.arquivos.at(0))), QByteArray(15, '0'));
    const ResultadoGravacao outra = GravaVrt({QStringLiteral("00002/09")}, m_pasta.path(), ModoGravacao::Backup);
    QCOMPARE(valorObsolescencia(linhasDe(outra.arquivos.at(0))), QByteArray(15, '0'));
}

void tst_gravaIndividual::registro13DepoisDeMensalComNDeixaZeros()
{
    BancoTeste banco;
    insereMensalCompleta(QStringLiteral("00001/09"));
    BancoTeste::executa(QStringLiteral("UPDATE ITEM_DI_PE_MEN SET IND_OBSOLE_RESIDUO = 'N'"));
    insereDeclaracao(QStringLiteral("00002/09"), QStringLiteral("SP"), QStringLiteral("N"), QStringLiteral("6101"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09"), QStringLiteral("00002/09")}, m_pasta.path(),
                                         ModoGravacao::Transmissao);
    QCOMPARE(valorObsolescencia(linhasDe(r.arquivos.at(1))), QByteArray(15, '0'));
}

void tst_gravaIndividual::ultimoRegistro12DeixaOArquivoSemCrLfNoFim()
{
    BancoTeste banco;
    insereDeclaracao(QStringLiteral("00001/09"), QStringLiteral("SP"), QStringLiteral("N"), QStringLiteral("6101"));
    BancoTeste::executa(QStringLiteral("DELETE FROM ITEM_DI_PE_IND"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, m_pasta.path(), ModoGravacao::Transmissao);
    QByteArray bytes;
    const QList<QByteArray> l = linhasDe(r.arquivos.value(0), &bytes);
    QCOMPARE(l.size(), 6);
    QCOMPARE(l.at(5), L(QStringLiteral("12") + Z("", 14) + B("", 5) + Z("1", 6) + "000" + Z("", 8) + "0000" + "N" + "N"
                        + Z("", 14) + Z("", 20) + Z("", 15)));
    QVERIFY(!bytes.endsWith("\r\n"));
}

void tst_gravaIndividual::declaracaoSemNotaEscreveSoOsRegistrosDeCabecalho()
{
    BancoTeste banco;
    insere(QStringLiteral("VRT"), {{"ID_VRT_MICRO", "00001/09"}, {"CD_TIPO_VRT", "1"},
                                   {"NR_CNPJ_INTERNADOR", "12345678000195"}});
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({QStringLiteral("00001/09")}, m_pasta.path(), ModoGravacao::Transmissao);
    const QList<QByteArray> l = linhasDe(r.arquivos.value(0));
    QCOMPARE(l.size(), 5);
    // Without an invoice the defaults stand: UF blanks and no ALC indicator make destination "4".
    QCOMPARE(l.at(1), L(QStringLiteral("01") + "1" + "1" + "000000" + "12345678000195" + Z("", 14) + B("", 5)
                        + "000000" + Z("", 8) + Z("", 8) + "0000" + "0" + B("", 14) + "  " + " " + "000" + "0000"
                        + Z("", 19)));
}

QTEST_GUILESS_MAIN(tst_gravaIndividual)
#include "tst_gravaIndividual.moc"
