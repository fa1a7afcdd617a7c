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
    grava(pasta + t("/entrada"), arquivo);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    return LeArquivoVrtEm(pasta, t("entrada"), ModoLeitura::Restaurar) && msgs.inesperadas == 0;
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
        QTest::newRow("mensal de todas as modalidades")
            << cabecalhoMensal() +
                   QStringList{r11(t("1"), t("P1"), t("Notebook D'Ávila"), t("00000000200000"), t("00000000120000"),
                                   t("UN"), t("Alíquota “reduzida” €"), t("01000")),
                               r12(), r13(), r14(),
                               r21(t("1"), t("P2"), t("Monitor"), t("PC"), t("0000000000"), t("000054321")),
                               r31(t("P3"), t("Placa mãe"), t("UN"), t("00000000010000"), t("00000000000000"),
                                   t("00000000005000"), t("00000000000000")),
                               r32(t("P3"), t("I1"), t("Parafuso"), t("CX 10")), r33(t("I1"), t("00000000002500")),
                               r34(t("I1")), r35(t("I1")), r36(t("I1")), r41(t("P4"), t("Cabo"), t("M"))};
        QTest::newRow("individual") << cabecalhoIndividual();
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
            BancoTeste::executa(t("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, "
                                  "NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, NR_VRT, NR_PROC_ADM_FISCAL, "
                                  "IND_RESTITUICAO, IND_RETIFICACAO) VALUES (?, '2', '12345678000195', 'N', '001', '3344', "
                                  "'12345678', '0912345678', ' ', 'N', 'S')"),
                                {id});
            BancoTeste::executa(t("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '122008')"), {id});
            // A rectification value of zero and one of ten.
            BancoTeste::executa(t("INSERT INTO VALORES_DIVER_RETIF (ID_VRT_MICRO, CD_MOD_RETIF, CD_TIPO_DIVER_RETIF, "
                                  "VL_TOTAL_DIVER_RETIF, NM_MOD_INT_RETIF, NM_TIPO_DIVER_RETIF) VALUES "
                                  "(?, '1', '2', '0,00', 'VRT - PE', 'Imposto de Importação'), "
                                  "(?, '1', '3', '10,00', 'VRT - PE', 'Multa de Mora II')"),
                                {id, id});
            // Two items of one foreign product, one destination each.
            for (const char* local : {"1", "3"}) {
                BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                      "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_EST) "
                                      "VALUES (?, 'P1', 'Caneca D''Ávila “€”', '84713012', 'UN', '1', '2,00000')"),
                                    {id});
                BancoTeste::executa(t("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                                      "VALUES ((SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN), ?, '1,00000')"),
                                    {t(local)});
            }
            // One item with basic process at two destinations.
            BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                  "IND_MOD_INTERNACAO) VALUES (?, 'P2', 'Monitor', '2')"),
                                {id});
            BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR, CD_TIPO_COEF_REDUCAO) "
                                  "VALUES ((SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN), '54321', '2')"));
            for (const char* local : {"1", "2"}) {
                BancoTeste::executa(t("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST, "
                                      "VL_II_UNIT_DOLAR, PC_COEF_REDUCAO_II, NM_UNID_MED_DEST, VL_PIS, VL_COFINS) VALUES "
                                      "((SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN), ?, '3,00000', '0,3500000', '88,00', "
                                      "'PC', '0,1650000', '0,7600000')"),
                                    {t(local)});
            }
            // A wholly national product whose quantity was stored with one decimal, not five.
            BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, "
                                  "NM_UNID_MED_PROD, IND_MOD_INTERNACAO, VL_PROD_UNID_PROD, QT_PROD_UNID_PROD, "
                                  "QT_PROD_UNID_EST) VALUES (?, 'P4', 'Cabo', '84713012', 'M', '4', '12,50', '1,5', "
                                  "'0,70000')"),
                                {id});
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
