// The database as delivered: its reference rows, read back against the source files they were made from, and
// the registration date that a new declaration gets by itself.
#include "TestUtil.h"

#include "core/store/modBancoDados.h"

#include <QCryptographicHash>
#include <QDate>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

using namespace modBancoDados;

namespace {

QString fonte(const QString& nome)
{
    return QStringLiteral(VRT_SOURCE_DIR "/src/core/store/dados/fontes/") + nome;
}

QByteArray conteudo(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        qFatal("não foi possível ler %s", qPrintable(caminho));
    return f.readAll();
}

// "code|name" of every row of a two-column table, in key order.
QStringList linhas(const QString& sql)
{
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, sql);
    QStringList l;
    while (rs.next())
        l << rs.value(0).toString() + QLatin1Char('|') + rs.value(1).toString();
    return l;
}

}  // namespace

class tst_bancoEntregue : public QObject {
    Q_OBJECT
private slots:
    void novaDeclaracaoRecebeADataDeHojeSemNomearAColuna();
    void dataDeRegistroRecusaOQueNaoEhData();
    void locaisDeDestinoSaoOsQuatroComSeusNomes_data();
    void locaisDeDestinoSaoOsQuatroComSeusNomes();
    void fontesSaoCopiasFieisDosArquivosPublicos_data();
    void fontesSaoCopiasFieisDosArquivosPublicos();
    void unidadesFederativasSaoAsVinteESeteDoArquivo();
    void moedasSaoAsDoArquivoDoBancoCentral();
    void unidadesDeMedidaSaoOsCodigosComerciaisDoArquivo();
    void numeradorComecaVazio();
};

void tst_bancoEntregue::novaDeclaracaoRecebeADataDeHojeSemNomearAColuna()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, NR_VRT, CD_TIPO_VRT) VALUES (?, ?, ?)"),
               {QStringLiteral("00001/24"), QStringLiteral(" "), QStringLiteral("2")});
    const QString hoje = QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"));
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT DT_REGISTRO_VRT_MICRO FROM VRT WHERE ID_VRT_MICRO = ?"),
                               {QStringLiteral("00001/24")}).toString(),
             hoje);
    // It is a real date: the engine reads it as one.
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT julianday('now', 'localtime', 'start of day') - "
                                              "julianday(DT_REGISTRO_VRT_MICRO) FROM VRT")).toDouble(),
             0.0);
}

void tst_bancoEntregue::dataDeRegistroRecusaOQueNaoEhData()
{
    BancoTeste banco;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const QString numero = numeroDoFim([] {
        ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, DT_REGISTRO_VRT_MICRO) VALUES (?, ?)"),
                   {QStringLiteral("00001/24"), QStringLiteral("31122024")});
    });
    QCOMPARE(numero, QStringLiteral("275"));
    QCOMPARE(msgs.inesperadas, 0);
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, DT_REGISTRO_VRT_MICRO) VALUES (?, ?)"),
               {QStringLiteral("00001/24"), QStringLiteral("2024-12-31")});
    QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 1);
}

void tst_bancoEntregue::locaisDeDestinoSaoOsQuatroComSeusNomes_data()
{
    QTest::addColumn<QString>("codigo");
    QTest::addColumn<QString>("nome");
    QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("Estados AC, AM, RO e RR");
    QTest::newRow("2") << QStringLiteral("2") << QStringLiteral("Demais Unidades da Federação");
    QTest::newRow("3") << QStringLiteral("3") << QStringLiteral("Área de livre comércio em AC, AM, RO ou RR");
    QTest::newRow("4") << QStringLiteral("4") << QStringLiteral("Área de livre comércio em outra UF");
}

void tst_bancoEntregue::locaisDeDestinoSaoOsQuatroComSeusNomes()
{
    QFETCH(QString, codigo);
    QFETCH(QString, nome);
    BancoTeste banco;
    QCOMPARE(BancoTeste::conta(QStringLiteral("LOCAL_DESTINO")), 4);
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_LOCAL_DESTINO FROM LOCAL_DESTINO WHERE CD_LOCAL_DESTINO = ?"),
                               {codigo}).toString(),
             nome);
}

void tst_bancoEntregue::fontesSaoCopiasFieisDosArquivosPublicos_data()
{
    QTest::addColumn<QString>("arquivo");
    QTest::addColumn<QByteArray>("sha256");
    QTest::newRow("moedas") << QStringLiteral("moedas_bcb_2011.yml")
                            << QByteArray("9564b51cf04ac2a8707500ef940b4d7cf53cb1c15a13a960810a78a132336077");
    QTest::newRow("estados") << QStringLiteral("uf_estados_ibge.csv")
                             << QByteArray("395c7b797b85592d71c686a0b537ba05349dee36c19b26a4b0d89494ff71448a");
    QTest::newRow("unidades") << QStringLiteral("unidades_medida_comercial_sefaz2016_odoo.xml")
                              << QByteArray("ce36a89ac311752471fbb8a4d850f35fe7a713e02c2e4f657d75b722ec9c44a6");
}

void tst_bancoEntregue::fontesSaoCopiasFieisDosArquivosPublicos()
{
    QFETCH(QString, arquivo);
    QFETCH(QByteArray, sha256);
    QCOMPARE(QCryptographicHash::hash(conteudo(fonte(arquivo)), QCryptographicHash::Sha256).toHex(), sha256);
}

void tst_bancoEntregue::unidadesFederativasSaoAsVinteESeteDoArquivo()
{
    BancoTeste banco;
    // codigo_uf,uf,nome,latitude,longitude,regiao
    QStringList esperado;
    const QStringList linhasArquivo = QString::fromUtf8(conteudo(fonte(QStringLiteral("uf_estados_ibge.csv"))))
                                          .remove(QChar(0xFEFF))
                                          .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                          .mid(1);
    for (const QString& l : linhasArquivo)
        esperado << l.section(QLatin1Char(','), 1, 1) + QLatin1Char('|') + l.section(QLatin1Char(','), 2, 2);
    esperado.sort();
    QCOMPARE(esperado.size(), 27);
    QCOMPARE(linhas(QStringLiteral("SELECT CD_UF_DESTINO, NM_UF FROM UNIDADE_FEDERATIVA ORDER BY CD_UF_DESTINO")), esperado);
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_UF FROM UNIDADE_FEDERATIVA WHERE CD_UF_DESTINO = 'AM'")).toString(),
             QStringLiteral("Amazonas"));
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_UF FROM UNIDADE_FEDERATIVA WHERE CD_UF_DESTINO = 'SP'")).toString(),
             QStringLiteral("São Paulo"));
}

void tst_bancoEntregue::moedasSaoAsDoArquivoDoBancoCentral()
{
    BancoTeste banco;
    // In each entry the block ":dados:" begins with the code and the name, one line each.
    const QString texto = QString::fromUtf8(conteudo(fonte(QStringLiteral("moedas_bcb_2011.yml"))));
    const QRegularExpression dados(QStringLiteral(":dados:\\n\\s+:codigo: '(\\d{3})'\\n\\s+:nome: ([^\\n]+)\\n"));
    QStringList esperado;
    for (auto it = dados.globalMatch(texto); it.hasNext();) {
        const auto m = it.next();
        esperado << m.captured(1) + QLatin1Char('|') + m.captured(2).trimmed();
    }
    esperado.sort();
    QCOMPARE(esperado.size(), int(texto.count(QStringLiteral(":codigo:"))));
    QCOMPARE(esperado.size(), 161);
    QCOMPARE(linhas(QStringLiteral("SELECT CD_MOEDA, NM_MOEDA FROM MOEDA ORDER BY CD_MOEDA")), esperado);
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_MOEDA FROM MOEDA WHERE CD_MOEDA = '220'")).toString(),
             QStringLiteral("DOLAR DOS EUA"));
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_MOEDA FROM MOEDA WHERE CD_MOEDA = '978'")).toString(),
             QStringLiteral("EURO"));
}

void tst_bancoEntregue::unidadesDeMedidaSaoOsCodigosComerciaisDoArquivo()
{
    BancoTeste banco;
    // Every code field of the file, in order, less the lower-case codes (imperial and time units of the source,
    // no commercial unit of an invoice) and repetitions.
    const QString texto = QString::fromUtf8(conteudo(fonte(QStringLiteral("unidades_medida_comercial_sefaz2016_odoo.xml"))));
    const QRegularExpression campo(QStringLiteral("<field name=\"code\">([^<]+)</field>"));
    QStringList codigos;
    for (auto it = campo.globalMatch(texto); it.hasNext();) {
        const QString c = it.next().captured(1);
        if (c == c.toUpper() && !codigos.contains(c))
            codigos << c;
    }
    QStringList esperado;
    for (int i = 0; i < codigos.size(); ++i)
        esperado << QStringLiteral("%1|%2").arg(i + 1, 2, 10, QLatin1Char('0')).arg(codigos[i]);
    QCOMPARE(esperado.size(), 62);
    QCOMPARE(linhas(QStringLiteral("SELECT CD_UNID_MEDIDA, NM_MEDIDA FROM UNIDADE_MEDIDA ORDER BY CD_UNID_MEDIDA")), esperado);
    for (const QString& u : {QStringLiteral("UN"), QStringLiteral("KG"), QStringLiteral("CX"), QStringLiteral("PÇ"),
                            QStringLiteral("M2"), QStringLiteral("LITRO")})
        QVERIFY2(BancoTeste::conta(QStringLiteral("UNIDADE_MEDIDA"), QStringLiteral("NM_MEDIDA = ?"), {u}) == 1, qPrintable(u));
    QCOMPARE(BancoTeste::conta(QStringLiteral("UNIDADE_MEDIDA"), QStringLiteral("NM_MEDIDA = ?"), {QStringLiteral("km")}), 0);
    // Every name fits the unit column of an item, so a picked unit is never cut.
    QVERIFY(BancoTeste::valor(QStringLiteral("SELECT MAX(length(NM_MEDIDA)) FROM UNIDADE_MEDIDA")).toInt() <= 20);
    // A declaration read in numbers its new units from the first free code up to 99: room is left.
    QVERIFY(codigos.size() < 99);
}

void tst_bancoEntregue::numeradorComecaVazio()
{
    BancoTeste banco;
    QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("NCM_ITEM")), 0);
}

QTEST_GUILESS_MAIN(tst_bancoEntregue)
#include "tst_bancoEntregue.moc"
