// After Incluir, Alterar and Excluir an item grid is brought up to date row by row, not filled again: these tests
// compare it, after each of them, with the same grid filled afresh (same rows, same order, first row current and
// none highlighted), on the item tabs of both editors, with rows that must land in the middle of the grid. They
// also check that quantities and values show in the grid as their fields show them.
#include "ItensTeste.h"

using namespace ItensTeste;

namespace {

const QString Local1 = QStringLiteral("Estados AC, AM, RO e RR");
const QString Local2 = QStringLiteral("Demais Unidades da Federação");

QList<QStringList> linhas(Ambiente& a, const QString& grade)
{
    auto* g = a.campo<ConsultGrid>(grade);
    QList<QStringList> l;
    for (int i = 0; i < g->dataRowCount(); ++i)
        l << g->rowTexts(i);
    return l;
}

// The grid as the write left it equals the grid filled again from the database.
void confereComCarga(Ambiente& a, EditorDeclaracao* e, const QString& grade)
{
    QCOMPARE(a.msgs.caixas.size(), 0);
    auto* g = a.campo<ConsultGrid>(grade);
    const QList<QStringList> aposGravar = linhas(a, grade);
    const int atual = g->currentRow();
    const bool realcada = g->selectionModel()->hasSelection();
    e->RepopulaGrids();
    QCOMPARE(aposGravar, linhas(a, grade));
    QCOMPARE(atual, g->currentRow());
    QCOMPARE(realcada, g->selectionModel()->hasSelection());
    QVERIFY(!realcada);
}

QStringList coluna(Ambiente& a, const QString& grade, int c)
{
    QStringList v;
    for (const QStringList& l : linhas(a, grade))
        v << l.value(c);
    return v;
}

void nacionalMensal(Ambiente& a, const QString& produto, const QString& quantidade)
{
    a.digita(QStringLiteral("mskNumNCM100"), Ncm1);
    a.digita(QStringLiteral("txtCodProd100N"), produto);
    a.digita(QStringLiteral("msk100N(2)"), quantidade);
    a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
    a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("2,5"));
    a.digita(QStringLiteral("msk100N(1)"), QStringLiteral("1234,56"));
    a.sai(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
    a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
}

void nacionalIndividual(Ambiente& a, const QString& item, const QString& produto)
{
    a.digita(QStringLiteral("txt100NacionalIndividual(0)"), item);
    a.digita(QStringLiteral("msk100NacionalIndividual(0)"), Ncm2);
    a.digita(QStringLiteral("txtCodProd100N"), produto);
    a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("KG"));
    a.digita(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("3"));
    a.digita(QStringLiteral("msk100NacionalIndividual(2)"), QStringLiteral("7,25"));
    a.digita(QStringLiteral("msk100NacionalIndividual(3)"), QStringLiteral("1,5"));
    a.sai(QStringLiteral("cmdIncluir_tab100NacionalIndividual"));
    a.clica(QStringLiteral("cmdIncluir_tab100NacionalIndividual"));
}

// A DCR-E line typed without clicking the option again (a click would fill the grid afresh).
void dcreMensal(Ambiente& a, const QString& numero, const QString& produto, const QString& local)
{
    a.digita(QStringLiteral("mskDCREPIcomPPB"), numero);
    a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), produto);
    a.escolhe(QStringLiteral("cboLocalDCRE"), local);
    a.digita(QStringLiteral("mskPIcomPPB(0)"), QStringLiteral("1234"));
    a.sai(QStringLiteral("cmdIncluir_tabPIcomPPB"));
    a.clica(QStringLiteral("cmdIncluir_tabPIcomPPB"));
}

void dcrIndividual(Ambiente& a, const QString& item, const QString& numero, const QString& produto)
{
    a.digita(QStringLiteral("txtPIcomPPBIndividual(0)"), item);
    a.digita(QStringLiteral("mskPIcomPPBIndividual(2)"), numero);
    a.digita(QStringLiteral("txtCodProdDCRPIcomPPB"), produto);
    a.digita(QStringLiteral("mskPIcomPPBIndividual(3)"), QStringLiteral("6"));
    a.digita(QStringLiteral("mskPIcomPPBIndividual(4)"), QStringLiteral("2,5"));
    a.digita(QStringLiteral("mskPIcomPPBIndividual(5)"), QStringLiteral("40"));
    a.escolhe(QStringLiteral("cboUnidadeDCR"), QStringLiteral("UN"));
    a.sai(QStringLiteral("cmdIncluir_tabPIcomPPB_Individual"));
    a.clica(QStringLiteral("cmdIncluir_tabPIcomPPB_Individual"));
}

}  // namespace

class tst_gradeAposGravar : public QObject {
    Q_OBJECT
private slots:
    void nacionalMensal()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, false, 4);
        const QString grade = QStringLiteral("grdConsulta100NacionalMensal");
        ::nacionalMensal(a, QStringLiteral("P001"), QStringLiteral("10"));
        confereComCarga(a, e, grade);
        ::nacionalMensal(a, QStringLiteral("P002"), QStringLiteral("1234,5"));
        confereComCarga(a, e, grade);
        ::nacionalMensal(a, QStringLiteral("Q9"), QStringLiteral("3"));
        confereComCarga(a, e, grade);
        // The quantity shows as its field shows it; choosing the row gives the field the same value.
        QCOMPARE(coluna(a, grade, 4), (QStringList{QStringLiteral("10,00000"), QStringLiteral("1.234,50000"),
                                                   QStringLiteral("3,00000")}));
        escolheLinha(a, grade, 1);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100N(2)"))->text(), QStringLiteral("1.234,50000"));
        a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("7"));
        a.clica(QStringLiteral("cmdAlterar_tab100Nacional_Mensal"));
        confereComCarga(a, e, grade);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"),
                       QStringLiteral("CD_INT_PRODUTO = 'P002' AND QT_PROD_UNID_PROD = '1234,50000' AND "
                                      "QT_PROD_UNID_EST = '7,00000'")),
                 1);
        escolheLinha(a, grade, 0);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tab100Nacional_Mensal"));
        a.msgs.caixas.clear();
        confereComCarga(a, e, grade);
        QCOMPARE(coluna(a, grade, 2), (QStringList{QStringLiteral("P002"), QStringLiteral("Q9")}));
    }

    void nacionalIndividual()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, true, 4);
        const QString grade = QStringLiteral("grdConsultaNotaFiscalSaida_tab100NacionalIndividual");
        ::nacionalIndividual(a, QStringLiteral("3"), QStringLiteral("P001"));
        confereComCarga(a, e, grade);
        ::nacionalIndividual(a, QStringLiteral("1"), QStringLiteral("P002"));
        confereComCarga(a, e, grade);
        escolheLinha(a, grade, 0);
        a.digita(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("2000"));
        a.clica(QStringLiteral("cmdAlterar_tab100NacionalIndividual"));
        confereComCarga(a, e, grade);
        QCOMPARE(coluna(a, grade, 3), (QStringList{QStringLiteral("2.000,00000"), QStringLiteral("3,00000")}));
        escolheLinha(a, grade, 1);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tab100NacionalIndividual"));
        a.msgs.caixas.clear();
        confereComCarga(a, e, grade);
        QCOMPARE(coluna(a, grade, 1), QStringList{QStringLiteral("3")});
    }

    // Rows in order of number: a new number, a second destination and a changed number land in the middle.
    void dcreMensalEmOrdemDeNumero()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, false, 2);
        a.clica(QStringLiteral("optDCRE_tabPIcomPPB_Mensal"));
        const QString grade = QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal");
        dcreMensal(a, QStringLiteral("2005/00003"), QStringLiteral("P001"), Local1);
        confereComCarga(a, e, grade);
        dcreMensal(a, QStringLiteral("2005/00005"), QStringLiteral("Q9"), Local1);
        confereComCarga(a, e, grade);
        dcreMensal(a, QStringLiteral("2005/00001"), QStringLiteral("P002"), Local1);
        confereComCarga(a, e, grade);
        dcreMensal(a, QStringLiteral("2005/00003"), QStringLiteral("P001"), Local2);
        confereComCarga(a, e, grade);
        QCOMPARE(coluna(a, grade, 2), (QStringList{QStringLiteral("2005/00001"), QStringLiteral("2005/00003"),
                                                   QStringLiteral("2005/00003"), QStringLiteral("2005/00005")}));
        QCOMPARE(coluna(a, grade, 6).first(), QStringLiteral("1.234,00000"));
        QCOMPARE(coluna(a, grade, 9).first(), QStringLiteral("0,0000000"));
        // The number of the first line changes: the line moves to the end.
        escolheLinha(a, grade, 0);
        a.digita(QStringLiteral("mskDCREPIcomPPB"), QStringLiteral("2005/00009"));
        a.sai(QStringLiteral("cmdAlterar_tabPIcomPPB"));
        a.clica(QStringLiteral("cmdAlterar_tabPIcomPPB"));
        confereComCarga(a, e, grade);
        QCOMPARE(coluna(a, grade, 2).last(), QStringLiteral("2005/00009"));
        escolheLinha(a, grade, 1);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tabPIcomPPB"));
        a.msgs.caixas.clear();
        confereComCarga(a, e, grade);
        QCOMPARE(coluna(a, grade, 2), (QStringList{QStringLiteral("2005/00003"), QStringLiteral("2005/00005"),
                                                   QStringLiteral("2005/00009")}));
    }

    void dcrIndividual()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, true, 2);
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Individual"));
        const QString grade = QStringLiteral("grdConsultaDCR");
        ::dcrIndividual(a, QStringLiteral("2"), QStringLiteral("00012/1999"), QStringLiteral("P001"));
        confereComCarga(a, e, grade);
        ::dcrIndividual(a, QStringLiteral("1"), QStringLiteral("00013/1999"), QStringLiteral("P002"));
        confereComCarga(a, e, grade);
        escolheLinha(a, grade, 1);
        a.digita(QStringLiteral("mskPIcomPPBIndividual(3)"), QStringLiteral("1500"));
        a.clica(QStringLiteral("cmdAlterar_tabPIcomPPB_Individual"));
        confereComCarga(a, e, grade);
        escolheLinha(a, grade, 0);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tabPIcomPPB_Individual"));
        a.msgs.caixas.clear();
        confereComCarga(a, e, grade);
        QCOMPARE(linhas(a, grade).size(), 1);
    }
};

QTEST_MAIN(tst_gradeAposGravar)
#include "tst_gradeAposGravar.moc"
