// Round trips through the file: written by the writer, read into an empty database, written again. The files
// are equal byte for byte; the rows are equal where the system keeps values, and differ where it does not:
// zero rectification values are lost, a D field stored with fewer decimals comes back smaller, the records 21
// of one item come back as one item per destination, and the records 11 of one product fold into one item.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
QString um(const QString& sql, const QVariantList& v = {})
{
    return BancoTeste::valor(sql, v).toString();
}
void ncm()
{
    cadastraNcmsDosRegistros();
}
QByteArray conteudo(const QString& caminho)
{
    QFile f(caminho);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
// Writes one declaration as backup and gives the file's bytes.
QByteArray escreve(const QString& id, const QString& pasta)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, ModoGravacao::Backup);
    return r.arquivos.isEmpty() ? QByteArray() : conteudo(r.arquivos.first());
}
bool importa(const QByteArray& arquivo, const QString& pasta)
{
    Q_UNUSED(pasta);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    return leDaMemoria(arquivo, ModoLeitura::Restaurar) && msgs.inesperadas == 0;
}
}  // namespace

class TstIdaEVolta : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_saida;

private slots:
    void arquivoLidoEGravadoDeNovoEhIgual_data()
    {
        QTest::addColumn<QStringList>("linhas");
        for (const auto& [nome, linhas] : declaracoesIdaEVolta())
            QTest::newRow(qPrintable(nome)) << linhas;
    }
    void arquivoLidoEGravadoDeNovoEhIgual()
    {
        QFETCH(QStringList, linhas);
        QByteArray primeiro;
        QStringList linhasA;
        {
            BancoTeste a;
            ncm();
            QVERIFY(importa(bytes(linhas), a.pasta()));
            primeiro = escreve(identificacao(1), m_saida.path());
            linhasA = retratoDoBanco();
        }
        QVERIFY(!primeiro.isEmpty());
        BancoTeste b;
        ncm();
        QVERIFY(importa(primeiro, b.pasta()));
        const QByteArray segundo = escreve(identificacao(1), m_saida.path());
        QCOMPARE(segundo, primeiro);
        // The rows of the second reading are those of the first.
        QCOMPARE(retratoDoBanco(), linhasA);
    }

    void assimetriasDaIdaEVolta()
    {
        const QString id = t("00007/09");
        QByteArray arquivo;
        {
            BancoTeste a;
            ncm();
            insereMensalDasAssimetrias(id);
            arquivo = escreve(id, m_saida.path());
        }
        QVERIFY(!arquivo.isEmpty());
        BancoTeste b;
        ncm();
        QVERIFY(importa(arquivo, b.pasta()));
        const QString lido = identificacao(1);

        // The zero rectification value is lost; the other comes back.
        QCOMPARE(um(t("SELECT group_concat(CD_TIPO_DIVER_RETIF || '=' || VL_TOTAL_DIVER_RETIF) FROM VALORES_DIVER_RETIF")),
                 t("3=10,00"));
        // The two items of P1 fold into one with both destinations.
        QCOMPARE(BancoTeste::conta(t("ITEM_VRT_MEN"), t("CD_INT_PRODUTO = 'P1'")), 1);
        QCOMPARE(um(t("SELECT group_concat(CD_LOCAL_DESTINO) FROM (SELECT d.CD_LOCAL_DESTINO FROM DESTINO_ITEM_VRT_MEN d "
                      "JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = d.ID_ITEM_VRT WHERE i.CD_INT_PRODUTO = 'P1' "
                      "ORDER BY d.ID_DEST_PRODUTO)")),
                 t("1,3"));
        // The apostrophe and the accented and Windows-1252 letters come back; the item keeps the file's blanks.
        QCOMPARE(um(t("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'P1'")), t("Caneca D'Ávila “€”"));
        QCOMPARE(um(t("SELECT trim(NM_INT_PRODUTO) FROM ITEM_VRT_MEN WHERE CD_INT_PRODUTO = 'P1'")), t("Caneca D'Ávila “€”"));
        // The item of P2 comes back as one item per destination.
        QCOMPARE(BancoTeste::conta(t("ITEM_VRT_MEN"), t("CD_INT_PRODUTO = 'P2'")), 2);
        QCOMPARE(um(t("SELECT group_concat(x) FROM (SELECT d.CD_LOCAL_DESTINO || ':' || p.CD_TIPO_COEF_REDUCAO || '/' || "
                      "p.NR_DCRE_DCR AS x FROM ITEM_VRT_MEN i JOIN DESTINO_ITEM_VRT_MEN d ON d.ID_ITEM_VRT = i.ID_ITEM_VRT "
                      "JOIN ITEM_VRT_MEN_PI_COM_PPB p ON p.ID_ITEM_VRT = i.ID_ITEM_VRT WHERE i.CD_INT_PRODUTO = 'P2' "
                      "ORDER BY i.ID_ITEM_VRT)")),
                 t("1:2/54321,2:2/54321"));
        // "1,5" went out as the digits 15 at a scale of five decimals.
        QCOMPARE(um(t("SELECT QT_PROD_UNID_PROD || '|' || QT_PROD_UNID_EST FROM ITEM_VRT_MEN WHERE CD_INT_PRODUTO = 'P4'")),
                 t("0,00015|0,70000"));
        // The value of record 41 has two decimals in the file: "12,50" keeps its value.
        QCOMPARE(um(t("SELECT VL_PROD_UNID_PROD FROM ITEM_VRT_MEN WHERE CD_INT_PRODUTO = 'P4'")), t("12,50"));
        // Read under a new identification; the rectification and its number are kept.
        QCOMPARE(um(t("SELECT ID_VRT_MICRO || '|' || IND_RETIFICACAO || '|' || NR_VRT FROM VRT")),
                 lido + t("|S|0912345678"));
    }
};

QTEST_GUILESS_MAIN(TstIdaEVolta)
#include "tst_idaEVolta.moc"
