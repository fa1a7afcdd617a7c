// Items of "100% Nacional" and "PI com PPB" typed into the editors travel to the file written for transmission:
// records 21 and 41 carry what was typed, field by field.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "ItensTeste.h"

#include "core/file/writing/GravaVrt.h"

#include <QTemporaryDir>

using namespace ItensTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString Local1 = t("Estados AC, AM, RO e RR");
const QString Local2 = t("Demais Unidades da Federação");

QByteArray escreve(const QString& id, const QString& pasta)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, ModoGravacao::Transmissao);
    return r.arquivos.isEmpty() ? QByteArray() : CenariosGravacao::conteudo(r.arquivos.first());
}

// The lines of one record type, keyed by the product code at `posicao`.
QMap<QString, QString> registros(const QByteArray& arquivo, const char* tipo, int posicao)
{
    QMap<QString, QString> r;
    for (const QString& l : QString::fromLatin1(arquivo).split(QRegularExpression(t("\r?\n"))))
        if (l.startsWith(QLatin1String(tipo)))
            r.insert(l.mid(posicao - 1, 15).trimmed(), l);
    return r;
}

// A field of a line by its first column (counted from 1) and width.
QString de(const QString& linha, int posicao, int tamanho)
{
    return linha.mid(posicao - 1, tamanho);
}

QString x(const QString& s, int tamanho)
{
    return s.leftJustified(tamanho, u' ');
}

QString zeros(int n)
{
    return QString(n, u'0');
}

// Every row of every grid named, all columns.
QList<QStringList> grades(Ambiente& a, const QStringList& nomes)
{
    QList<QStringList> r;
    for (const QString& nome : nomes) {
        auto* g = a.campo<ConsultGrid>(nome);
        for (int i = 0; i < g->dataRowCount(); ++i)
            r << (QStringList{nome} + g->rowTexts(i));
    }
    return r;
}

void nacionalMensal(Ambiente& a)
{
    a.digita(t("mskNumNCM100"), Ncm1);
    a.digita(t("txtCodProd100N"), t("P001"));
    a.digita(t("msk100N(2)"), t("10"));
    a.escolhe(t("cboUnidade100"), t("UN"));
    a.digita(t("msk100N(0)"), t("2,5"));
    a.digita(t("msk100N(1)"), t("1234,56"));
    a.sai(t("cmdIncluir_tab100Nacional_Mensal"));
    a.clica(t("cmdIncluir_tab100Nacional_Mensal"));
}

void dcrMensal(Ambiente& a)
{
    a.clica(t("optDCR_tabPIcomPPB_Mensal"));
    a.digita(t("mskDCRPIcomPPB"), t("00012/1999"));
    a.digita(t("txtCodProdDCRPIcomPPB"), t("P002"));
    a.escolhe(t("cboLocalDCR"), Local1);
    a.digita(t("mskPIcomPPB(1)"), t("2,5"));
    a.digita(t("mskPIcomPPB(2)"), t("40"));
    a.digita(t("mskPIcomPPB(3)"), t("6"));
    a.escolhe(t("cboUnidadeDCR"), t("UN"));
    a.sai(t("cmdIncluir_tabPIcomPPB"));
    a.clica(t("cmdIncluir_tabPIcomPPB"));
}

void dcreMensal(Ambiente& a)
{
    a.clica(t("optDCRE_tabPIcomPPB_Mensal"));
    a.digita(t("mskDCREPIcomPPB"), t("2005/00001"));
    a.digita(t("txtCodProdDCREPIcomPPB"), t("Q9"));
    a.escolhe(t("cboLocalDCRE"), Local2);
    a.digita(t("mskPIcomPPB(0)"), t("4"));
    a.sai(t("cmdIncluir_tabPIcomPPB"));
    a.clica(t("cmdIncluir_tabPIcomPPB"));
}

void nacionalIndividual(Ambiente& a)
{
    a.digita(t("txt100NacionalIndividual(0)"), t("2"));
    a.digita(t("msk100NacionalIndividual(0)"), Ncm2);
    a.digita(t("txtCodProd100N"), t("P002"));
    a.escolhe(t("cboUnidade100"), t("KG"));
    a.digita(t("msk100NacionalIndividual(1)"), t("3"));
    a.digita(t("msk100NacionalIndividual(2)"), t("7,25"));
    a.digita(t("msk100NacionalIndividual(3)"), t("1,5"));
    a.sai(t("cmdIncluir_tab100NacionalIndividual"));
    a.clica(t("cmdIncluir_tab100NacionalIndividual"));
}

void dcrIndividual(Ambiente& a)
{
    a.clica(t("optDCR_tabPIcomPPB_Individual"));
    a.digita(t("txtPIcomPPBIndividual(0)"), t("1"));
    a.digita(t("mskPIcomPPBIndividual(2)"), t("00012/1999"));
    a.digita(t("txtCodProdDCRPIcomPPB"), t("P001"));
    a.digita(t("mskPIcomPPBIndividual(3)"), t("6"));
    a.digita(t("mskPIcomPPBIndividual(4)"), t("2,5"));
    a.digita(t("mskPIcomPPBIndividual(5)"), t("40"));
    a.escolhe(t("cboUnidadeDCR"), t("UN"));
    a.sai(t("cmdIncluir_tabPIcomPPB_Individual"));
    a.clica(t("cmdIncluir_tabPIcomPPB_Individual"));
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
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = naAba(a, false, 4);
        nacionalMensal(a);
        a.vaiParaAba(2);
        dcrMensal(a);
        dcreMensal(a);
        QCOMPARE(a.msgs.caixas.size(), 0);
        const QList<QStringList> antes = grades(a, GradesMensal);
        QCOMPARE(antes.size(), 3);
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.inesperadas, 0);
        const QByteArray arquivo = escreve(id, pasta.path());
        QVERIFY(!arquivo.isEmpty());

        const auto r41 = registros(arquivo, "41", 14);
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

        const auto r21 = registros(arquivo, "21", 17);
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

    }

    void individualComItensNacionalEPPBNoArquivoEDeVolta()
    {
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = naAba(a, true, 2);
        dcrIndividual(a);
        a.vaiParaAba(4);
        nacionalIndividual(a);
        QCOMPARE(a.msgs.caixas.size(), 0);
        a.vaiParaAba(2);
        const QList<QStringList> antes = grades(a, GradesIndividual);
        QCOMPARE(antes.size(), 2);
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.inesperadas, 0);
        const QByteArray arquivo = escreve(id, pasta.path());
        QVERIFY(!arquivo.isEmpty());

        const auto r41 = registros(arquivo, "41", 14);
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

        const auto r21 = registros(arquivo, "21", 17);
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

    }
};

QTEST_MAIN(tst_itensArquivo)
#include "tst_itensArquivo.moc"
