// After Incluir, Alterar and Excluir an item grid is brought up to date row by row, not filled again: these tests
// compare it, after each of them, with the same grid filled afresh (same rows, same order, first row current and
// none highlighted), on the item tabs of both editors, with rows that must land in the middle of the grid. They
// also check that quantities and values show in the grid as their fields show them.
#include "ItensTeste.h"

using namespace ItensTeste;

namespace {

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

// A line typed without clicking its option again (a click would fill the grid afresh).
template <class Linha>
Linha semOpcao(Linha l)
{
    l.opcao = false;
    return l;
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
        incluiItem(a, NacionalMensal{QStringLiteral("P001"), QStringLiteral("10")});
        confereComCarga(a, e, grade);
        incluiItem(a, NacionalMensal{QStringLiteral("P002"), QStringLiteral("1234,5")});
        confereComCarga(a, e, grade);
        incluiItem(a, NacionalMensal{QStringLiteral("Q9"), QStringLiteral("3")});
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
        incluiItem(a, NacionalIndividual{QStringLiteral("3"), QStringLiteral("P001")});
        confereComCarga(a, e, grade);
        incluiItem(a, NacionalIndividual{QStringLiteral("1"), QStringLiteral("P002")});
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
        incluiItem(a, semOpcao(DcreMensal{QStringLiteral("2005/00003"), QStringLiteral("P001"), Local1, QStringLiteral("1234")}));
        confereComCarga(a, e, grade);
        incluiItem(a, semOpcao(DcreMensal{QStringLiteral("2005/00005"), QStringLiteral("Q9"), Local1, QStringLiteral("1234")}));
        confereComCarga(a, e, grade);
        incluiItem(a, semOpcao(DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P002"), Local1, QStringLiteral("1234")}));
        confereComCarga(a, e, grade);
        incluiItem(a, semOpcao(DcreMensal{QStringLiteral("2005/00003"), QStringLiteral("P001"), Local2, QStringLiteral("1234")}));
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
        incluiItem(a, semOpcao(DcrIndividual{QStringLiteral("2"), QStringLiteral("00012/1999"), QStringLiteral("P001")}));
        confereComCarga(a, e, grade);
        incluiItem(a, semOpcao(DcrIndividual{QStringLiteral("1"), QStringLiteral("00013/1999"), QStringLiteral("P002")}));
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
