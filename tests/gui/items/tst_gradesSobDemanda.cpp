// The item grids of a stored declaration are read when their tab is first shown (or when something asks for their
// rows), and a grid is not read again by Salvar while nothing was written. These tests check that a grid read late
// shows the same rows as one read at once, and that after Incluir, Alterar, Excluir and Salvar a grid equals what
// a fresh opening of the declaration shows.
#include "ItensTeste.h"

#include "gui/assistants/frmAssistenteVRT.h"
#include "core/store/modBancoDados.h"

#include <QRadioButton>

#include <algorithm>

using namespace ItensTeste;

namespace {

const QString Id = QStringLiteral("00001/09");
const QString Nacional = QStringLiteral("grdConsulta100NacionalMensal");
const QString Estrangeiro = QStringLiteral("grdConsultaCodigoControleInterno");
const QString Dcre = QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal");

// A monthly declaration with national items, foreign products and DCR-E items, each at two places.
void montaDeclaracao()
{
    cadastraProdutos();
    BancoTeste::executa(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, "
                                       "IND_MANDADO_JUDIC, IND_RESTITUICAO, IND_RETIFICACAO) VALUES (?, '2', ?, "
                                       "'N', 'N', 'N')"),
                        {Id, Cnpj});
    BancoTeste::executa(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '052009')"),
                        {Id});
    for (int i = 0; i < 30; ++i) {
        const QString modalidade = QString::number(i % 3 == 0 ? 4 : i % 3 == 1 ? 1 : 2);
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, 'Produto')"),
                            {QStringLiteral("P%1").arg(100 - i)});
        BancoTeste::executa(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                           "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_EST, "
                                           "QT_PROD_UNID_PROD, VL_PROD_UNID_PROD) VALUES (?, ?, 'Produto', ?, 'UN', ?, "
                                           "'1,50000', ?, '10,00')"),
                            {Id, QStringLiteral("P%1").arg(100 - i), Ncm1, modalidade, QStringLiteral("%1,25000").arg(1000 + i)});
        const QVariant item = BancoTeste::valor(QStringLiteral("SELECT max(ID_ITEM_VRT) FROM ITEM_VRT_MEN"));
        if (modalidade == QLatin1String("2"))
            BancoTeste::executa(QStringLiteral("INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR, "
                                               "CD_TIPO_COEF_REDUCAO) VALUES (?, ?, '1')"),
                                {item, QStringLiteral("2009%1").arg(50 - i, 5, 10, QLatin1Char('0'))});
        for (const char* local : {"1", "2"})
            BancoTeste::executa(QStringLiteral("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, "
                                               "QT_PROD_LOC_DEST) VALUES (?, ?, '3,00000')"),
                                {item, QLatin1String(local)});
    }
}

EditorDeclaracao* abre(Ambiente& a)
{
    frmAssistenteVRT::IdVrtAbrir = Id;
    a.janela.abreTela(modVRTPLN::Mensal);
    a.editor()->FuncaoForm(2);
    QCoreApplication::processEvents();
    return a.editor();
}

QList<QStringList> linhas(Ambiente& a, const QString& grade)
{
    auto* g = a.campo<ConsultGrid>(grade);
    QList<QStringList> l;
    for (int i = 0; i < g->dataRowCount(); ++i)
        l << g->rowTexts(i);
    return l;
}

// What a grid shows and how it stands: its rows, the current row, whether a row is highlighted.
struct Estado {
    QList<QStringList> linhas;
    int atual = -1;
    bool realcada = false;
    bool operator==(const Estado& o) const
    {
        return linhas == o.linhas && atual == o.atual && realcada == o.realcada;
    }
};

Estado estado(Ambiente& a, const QString& grade)
{
    auto* g = a.campo<ConsultGrid>(grade);
    return {linhas(a, grade), g->currentRow(), g->selectionModel()->hasSelection()};
}

// The grid of the tab as a fresh opening of the declaration shows it (after what was saved).
Estado aoReabrir(Ambiente& a, int aba, const QString& grade)
{
    a.fechar();
    abre(a);
    a.vaiParaAba(aba);
    return estado(a, grade);
}

void incluiNacional(Ambiente& a, const QString& produto)
{
    a.digita(QStringLiteral("mskNumNCM100"), Ncm1);
    a.digita(QStringLiteral("txtCodProd100N"), produto);
    a.digita(QStringLiteral("msk100N(2)"), QStringLiteral("4"));
    a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
    a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("2,5"));
    a.digita(QStringLiteral("msk100N(1)"), QStringLiteral("99"));
    a.sai(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
    a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
}

}  // namespace

class tst_gradesSobDemanda : public QObject {
    Q_OBJECT
private slots:
    void abertaSoLeAsGradesDaAbaQueSeMostra()
    {
        Ambiente a;
        montaDeclaracao();
        abre(a);
        for (const QString& g : {Nacional, Estrangeiro, Dcre})
            QVERIFY2(a.campo<ConsultGrid>(g)->fillPending(), qPrintable(g));
        // The option of PI com PPB is chosen from the store, without reading its grid.
        QVERIFY(a.campo<QRadioButton>(QStringLiteral("optDCRE_tabPIcomPPB_Mensal"))->isChecked());
        a.vaiParaAba(4);
        QVERIFY(!a.campo<ConsultGrid>(Nacional)->fillPending());
        QVERIFY(a.campo<ConsultGrid>(Estrangeiro)->fillPending());
        QCOMPARE(a.campo<ConsultGrid>(Nacional)->dataRowCount(), 10);
    }

    // Each grid read when its tab comes up equals the same grid read at once, while its tab is still hidden.
    void gradeLidaAoMostrarIgualAGradeLidaDeUmaVez_data()
    {
        QTest::addColumn<int>("aba");
        QTest::addColumn<QString>("grade");
        QTest::addColumn<int>("linhas");
        QTest::newRow("100% Nacional") << 4 << Nacional << 10;
        QTest::newRow("Produto Estrangeiro") << 1 << Estrangeiro << 20;
        QTest::newRow("PI com PPB, DCR-E") << 2 << Dcre << 20;
    }
    void gradeLidaAoMostrarIgualAGradeLidaDeUmaVez()
    {
        QFETCH(int, aba);
        QFETCH(QString, grade);
        QFETCH(int, linhas);
        Ambiente a;
        montaDeclaracao();
        abre(a);
        const Estado deUmaVez = estado(a, grade);
        QVERIFY(!a.campo<ConsultGrid>(grade)->isVisible());
        QCOMPARE(deUmaVez.linhas.size(), linhas);
        a.fechar();
        abre(a);
        QVERIFY(a.campo<ConsultGrid>(grade)->fillPending());
        a.vaiParaAba(aba);
        QVERIFY(a.campo<ConsultGrid>(grade)->isVisible());
        QCOMPARE(estado(a, grade), deUmaVez);
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    void gradeDepoisDeIncluirAlterarExcluirESalvarIgualAUmaAberturaNova()
    {
        Ambiente a;
        montaDeclaracao();
        abre(a);
        a.vaiParaAba(4);
        incluiNacional(a, QStringLiteral("P002"));
        escolheLinha(a, Nacional, 4);
        a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("7"));
        a.clica(QStringLiteral("cmdAlterar_tab100Nacional_Mensal"));
        escolheLinha(a, Nacional, 2);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tab100Nacional_Mensal"));
        // All three writes went through: the only box is Excluir's question.
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Deseja realmente excluir?")});
        const Estado aposGravar = estado(a, Nacional);
        QCOMPARE(aposGravar.linhas.size(), 10);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("CD_INT_PRODUTO = 'P002'")), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("QT_PROD_UNID_EST = '7,00000'")), 1);
        QVERIFY(std::any_of(aposGravar.linhas.cbegin(), aposGravar.linhas.cend(),
                            [](const QStringList& l) { return l.contains(QStringLiteral("P002")); }));
        a.salvar();
        const Estado aposSalvar = estado(a, Nacional);
        QCOMPARE(aposSalvar, aposGravar);
        QCOMPARE(aoReabrir(a, 4, Nacional), aposSalvar);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("IND_MOD_INTERNACAO = '4'")), 10);
    }

    // A row written by other means than the grid's own block (another tab, a cascade) reaches the grid on Salvar.
    void salvarLeDeNovoAGradeQuandoOutraEscritaAMudou()
    {
        Ambiente a;
        montaDeclaracao();
        abre(a);
        a.vaiParaAba(4);
        const Estado antes = estado(a, Nacional);
        modBancoDados::ExecutaSql(QStringLiteral("DELETE FROM ITEM_VRT_MEN WHERE CD_INT_PRODUTO = 'P100'"));
        modVRTPLN::AlteracaoPendente = true;
        QCOMPARE(estado(a, Nacional), antes);
        a.salvar();
        const Estado depois = estado(a, Nacional);
        QCOMPARE(depois.linhas.size(), antes.linhas.size() - 1);
        QCOMPARE(depois.linhas, antes.linhas.mid(1));
        QCOMPARE(aoReabrir(a, 4, Nacional), depois);
    }

    // Salvar with nothing written to the grid's rows keeps the grid as it stands, back on its first row, as a
    // fresh opening shows it.
    void salvarSemEscritaNaGradeDeixaAGradeComoUmaAberturaNova()
    {
        Ambiente a;
        montaDeclaracao();
        abre(a);
        a.vaiParaAba(4);
        escolheLinha(a, Nacional, 3);
        modBancoDados::ExecutaSql(QStringLiteral("UPDATE VRT SET NR_BANCO_ARREC = '001' WHERE ID_VRT_MICRO = ?"), {Id});
        modVRTPLN::AlteracaoPendente = true;
        a.salvar();
        QVERIFY(!a.campo<QPushButton>(QStringLiteral("cmdAlterar_tab100Nacional_Mensal"))->isEnabled());
        const Estado aposSalvar = estado(a, Nacional);
        QCOMPARE(aposSalvar.atual, 0);
        QVERIFY(!aposSalvar.realcada);
        QCOMPARE(aoReabrir(a, 4, Nacional), aposSalvar);
    }
};

QTEST_MAIN(tst_gradesSobDemanda)
#include "tst_gradesSobDemanda.moc"
