// Items of "100% Nacional" and "PI com PPB" typed into the editors travel to the file written for transmission:
// records 21 and 41 carry what was typed, field by field.
#include "ItensTeste.h"
#include "VoltaArquivoTeste.h"

#include <QTemporaryDir>

using namespace ItensTeste;
using namespace VoltaArquivo;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The lines of one record type, keyed by the product code at `posicao`.
QMap<QString, QString> porProduto(const QByteArray& arquivo, const char* tipo, int posicao)
{
    QMap<QString, QString> r;
    for (const QString& l : registros(arquivo, QString::fromLatin1(tipo)))
        r.insert(l.mid(posicao - 1, 15).trimmed(), l);
    return r;
}

const QStringList GradesMensal{t("grdConsulta100NacionalMensal"), t("grdConsultaDCR_fraPIcomPPBMensal"),
                               t("grdConsultaDCRE_fraPIcomPPBMensal")};
const QStringList GradesIndividual{t("grdConsultaNotaFiscalSaida_tab100NacionalIndividual"), t("grdConsultaDCR")};

}  // namespace

class tst_itensArquivo : public QObject {
    Q_OBJECT
private slots:
    void mensalComItensNacionalEPPBNoArquivoEDeVolta()
    {
        QTemporaryDir pasta;
        QList<QStringList> antes;
        QByteArray arquivo;
        {
            Ambiente a;
            EditorDeclaracao* e = naAba(a, false, 4);
            incluiItem(a, NacionalMensal{});
            a.vaiParaAba(2);
            incluiItem(a, DcrMensal{});
            incluiItem(a, DcreMensal{});
            QCOMPARE(a.msgs.caixas.size(), 0);
            antes = grades(a, GradesMensal);
            QCOMPARE(antes.size(), 3);
            const QString id = e->idVrt();
            a.salvar();
            a.fechar();
            QVERIFY(!a.editor());
            QCOMPARE(a.msgs.inesperadas, 0);
            arquivo = escreve(id, pasta.path());
        }
        QVERIFY(!arquivo.isEmpty());

        const auto r41 = porProduto(arquivo, "41", 14);
        QCOMPARE(r41.keys(), QStringList{t("P001")});
        const QString n = r41.value(t("P001"));
        QCOMPARE(n.size(), 184);
        QCOMPARE(de(n, 1, 5), t("41000"));
        QCOMPARE(de(n, 6, 8), Ncm1);
        QCOMPARE(de(n, 14, 15), x(t("P001"), 15));
        QCOMPARE(de(n, 29, 45), x(t("Produto um"), 45));
        QCOMPARE(de(n, 74, 20), x(t("UN"), 20));
        QCOMPARE(de(n, 94, 48), zeros(48));
        QCOMPARE(de(n, 142, 15), t("000000000123456"));   // 1234,56
        QCOMPARE(de(n, 157, 14), t("00000001000000"));    // 10
        QCOMPARE(de(n, 171, 14), t("00000000250000"));    // 2,5

        const auto r21 = porProduto(arquivo, "21", 17);
        QCOMPARE(r21.keys(), (QStringList{t("P002"), t("Q9")}));
        const QString dcr = r21.value(t("P002"));
        QCOMPARE(dcr.size(), 198);
        QCOMPARE(de(dcr, 1, 5), t("21000"));
        QCOMPARE(de(dcr, 6, 1), t("1"));
        QCOMPARE(de(dcr, 7, 10), zeros(10));
        QCOMPARE(de(dcr, 17, 15), x(t("P002"), 15));
        QCOMPARE(de(dcr, 32, 9), t("000121999"));
        QCOMPARE(de(dcr, 41, 45), x(t("Produto dois"), 45));
        QCOMPARE(de(dcr, 86, 20), t("00000000000025000000"));   // 2,5
        QCOMPARE(de(dcr, 106, 5), t("04000"));                  // 40
        QCOMPARE(de(dcr, 111, 14), zeros(14));
        QCOMPARE(de(dcr, 125, 14), t("00000000600000"));        // 6
        QCOMPARE(de(dcr, 139, 20), x(t("UN"), 20));
        QCOMPARE(de(dcr, 159, 40), zeros(40));                  // PIS and COFINS
        const QString dcre = r21.value(t("Q9"));
        QCOMPARE(dcre.size(), 198);
        QCOMPARE(de(dcre, 1, 5), t("21000"));
        QCOMPARE(de(dcre, 6, 1), t("2"));
        QCOMPARE(de(dcre, 7, 10), t("0200500001"));
        QCOMPARE(de(dcre, 17, 15), x(t("Q9"), 15));
        QCOMPARE(de(dcre, 32, 9), zeros(9));
        QCOMPARE(de(dcre, 41, 45), x(t("Outro produto"), 45));
        QCOMPARE(de(dcre, 86, 39), zeros(39));
        QCOMPARE(de(dcre, 125, 14), t("00000000400000"));       // 4
        QCOMPARE(de(dcre, 159, 40), zeros(40));

        Ambiente b;
        reabre(b, arquivo, pasta.path());
        b.vaiParaAba(4);
        b.vaiParaAba(2);
        // As the reader stores them: names with their trailing blanks, zero PIS and COFINS as empty texts.
        antes[0][4] = x(antes[0][4], 45);
        for (int i : {1, 2}) {
            antes[i][5] = x(antes[i][5], 45);
            antes[i].last() = QString();
            antes[i][antes[i].size() - 2] = QString();
        }
        confereLinhas(grades(b, GradesMensal), antes);
        // The DCR number, stored without its leading zeros, comes back to its field whole.
        escolheLinha(b, t("grdConsultaDCR_fraPIcomPPBMensal"), 0);
        QCOMPARE(b.campo<QLineEdit>(t("mskDCRPIcomPPB"))->text(), t("00012/1999"));
        QCOMPARE(b.msgs.inesperadas, 0);
    }

    void individualComItensNacionalEPPBNoArquivoEDeVolta()
    {
        QTemporaryDir pasta;
        QList<QStringList> antes;
        QByteArray arquivo;
        {
            Ambiente a;
            EditorDeclaracao* e = naAba(a, true, 2);
            incluiItem(a, DcrIndividual{});
            a.vaiParaAba(4);
            incluiItem(a, NacionalIndividual{});
            QCOMPARE(a.msgs.caixas.size(), 0);
            a.vaiParaAba(2);
            antes = grades(a, GradesIndividual);
            QCOMPARE(antes.size(), 2);
            const QString id = e->idVrt();
            a.salvar();
            a.fechar();
            QVERIFY(!a.editor());
            QCOMPARE(a.msgs.inesperadas, 0);
            arquivo = escreve(id, pasta.path());
        }
        QVERIFY(!arquivo.isEmpty());

        const auto r41 = porProduto(arquivo, "41", 14);
        QCOMPARE(r41.keys(), QStringList{t("P002")});
        const QString n = r41.value(t("P002"));
        QCOMPARE(n.size(), 184);
        QCOMPARE(de(n, 1, 5), t("41002"));
        QCOMPARE(de(n, 6, 8), Ncm2);
        QCOMPARE(de(n, 14, 15), x(t("P002"), 15));
        QCOMPARE(de(n, 29, 45), x(t("Produto dois"), 45));
        QCOMPARE(de(n, 74, 20), x(t("KG"), 20));
        QCOMPARE(de(n, 94, 14), t("00000000300000"));           // 3
        QCOMPARE(de(n, 108, 14), t("00000000150000"));          // 1,5
        QCOMPARE(de(n, 122, 20), t("00000000000072500000"));    // 7,25
        QCOMPARE(de(n, 142, 43), zeros(43));

        const auto r21 = porProduto(arquivo, "21", 17);
        QCOMPARE(r21.keys(), QStringList{t("P001")});
        const QString dcr = r21.value(t("P001"));
        QCOMPARE(dcr.size(), 198);
        QCOMPARE(de(dcr, 1, 5), t("21001"));
        QCOMPARE(de(dcr, 6, 1), t("1"));                         // the invoice's state, AM
        QCOMPARE(de(dcr, 7, 10), zeros(10));
        QCOMPARE(de(dcr, 17, 15), x(t("P001"), 15));
        QCOMPARE(de(dcr, 32, 9), t("000121999"));
        QCOMPARE(de(dcr, 41, 45), x(t("Produto um"), 45));
        QCOMPARE(de(dcr, 86, 20), t("00000000000025000000"));   // 2,5
        QCOMPARE(de(dcr, 106, 5), t("04000"));                  // 40
        QCOMPARE(de(dcr, 111, 14), t("00000000600000"));        // 6
        QCOMPARE(de(dcr, 125, 14), zeros(14));
        QCOMPARE(de(dcr, 139, 20), x(t("UN"), 20));
        QCOMPARE(de(dcr, 159, 40), zeros(40));

        Ambiente b;
        reabre(b, arquivo, pasta.path());
        b.vaiParaAba(4);
        b.vaiParaAba(2);
        // As the reader stores them: item numbers with their leading zeros, names with their trailing blanks,
        // the invoice's number zero-filled to six and its series blank-filled to five, zero PIS and COFINS as
        // empty texts.
        antes[0][2] = t("002");
        antes[0][11] = x(antes[0][11], 45);
        antes[0][12] = t("000123");
        antes[0][13] = t("A1   ");
        antes[1][3] = t("001");
        antes[1][6] = x(antes[1][6], 45);
        antes[1][11] = QString();
        antes[1][12] = QString();
        confereLinhas(grades(b, GradesIndividual), antes);
        escolheLinha(b, t("grdConsultaDCR"), 0);
        QCOMPARE(b.campo<QLineEdit>(t("mskPIcomPPBIndividual(2)"))->text(), t("00012/1999"));
        QCOMPARE(b.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_itensArquivo)
#include "tst_itensArquivo.moc"
