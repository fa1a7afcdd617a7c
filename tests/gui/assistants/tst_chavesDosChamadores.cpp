// Every caller key of the product, NCM and currency pickers has a field in the editor that leaves it: a key
// without one would let the user pick a row that lands nowhere. The keys are written out here as the editors
// leave them, not taken from the pickers' own list.
#include "../items/ItensTeste.h"

#include "gui/assistants/DestinosEscolha.h"
#include "gui/assistants/frmAssistNCM.h"
#include "gui/assistants/frmAssistenteCCI.h"

#include <QTimer>

#include <QtTest>

namespace {

QStringList lista(std::initializer_list<const char*> nomes)
{
    QStringList r;
    for (const char* n : nomes)
        r << QString::fromLatin1(n);
    return r;
}

// The twelve currency keys of one editor: product or input, DI or DSI, sale, insurance or freight.
QStringList chavesMoeda(const QString& mensal)
{
    QStringList r;
    for (const char* doc : {"DI", "DSI"})
        for (const char* valor : {"Prod", "SI", "FI"})
            r << QStringLiteral("produtoPE") + mensal + QString::fromLatin1(doc) + QString::fromLatin1(valor);
    for (const char* doc : {"DI", "DSI"})
        for (const char* valor : {"Ins", "SI", "FI"})
            r << QStringLiteral("InsumoPISemPPB") + mensal + QString::fromLatin1(doc) + QString::fromLatin1(valor);
    return r;
}

// The keys that have no field, joined so that a failure names them.
QString semCampo(const DestinosEscolha& destinos, const QStringList& chaves)
{
    QStringList faltam;
    for (const QString& c : chaves)
        if (!destinos.registrada(c))
            faltam << c;
    return faltam.join(QLatin1Char(' '));
}

// Hands `codigo` to each key as a picker does, and names the keys whose code field does not show it afterwards.
QString naoRecebem(const DestinosEscolha& destinos, const QStringList& chaves, const QString& codigo,
                   const QString& complemento)
{
    QStringList faltam;
    for (const QString& c : chaves) {
        destinos.entrega(c, codigo, complemento);
        QString visto = destinos.valorAtual(c);
        visto.remove(QLatin1Char('.'));
        if (visto != codigo)
            faltam << c;
    }
    return faltam.join(QLatin1Char(' '));
}

// Every key of the editor is registered, and its code field takes what the picker hands it.
void confereChaves(const QStringList& produto, const QStringList& ncm, const QStringList& moeda)
{
    QCOMPARE(semCampo(DestinosEscolha::produto(), produto), QString());
    QCOMPARE(semCampo(DestinosEscolha::ncm(), ncm), QString());
    QCOMPARE(semCampo(DestinosEscolha::moeda(), moeda), QString());
    QCOMPARE(naoRecebem(DestinosEscolha::produto(), produto, QStringLiteral("P002"), QStringLiteral("Produto dois")),
             QString());
    QCOMPARE(naoRecebem(DestinosEscolha::ncm(), ncm, ItensTeste::Ncm1, ItensTeste::UnidadeEst), QString());
    QCOMPARE(naoRecebem(DestinosEscolha::moeda(), moeda, QStringLiteral("220"), QString()), QString());
}

// The index of the editor's tab that holds the control `nome`.
int abaCom(EditorTeste::Ambiente& a, const QString& nome)
{
    QWidget* w = a.campo(nome);
    for (int i = 0; w && i < a.abas()->count(); ++i)
        if (a.abas()->widget(i)->isAncestorOf(w))
            return i;
    return -1;
}

// Double-clicks the row of the open modal picker's grid whose code column, without its points, is `codigo`.
template <class Tela>
void escolheNaLista(const QString& codigo, bool& escolheu)
{
    auto* tela = qobject_cast<Tela*>(QApplication::activeModalWidget());
    if (!tela)
        return;
    auto* g = tela->template findChild<ConsultGrid*>();
    for (int i = 0; i < g->dataRowCount(); ++i) {
        if (g->cellText(i, 1).remove(QLatin1Char('.')) == codigo) {
            QTest::mouseDClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(i, 1)).center());
            escolheu = true;
            return;
        }
    }
}

}  // namespace

class tst_chavesDosChamadores : public QObject {
    Q_OBJECT
private slots:
    void editorMensalTemCampoParaCadaChave()
    {
        EditorTeste::Ambiente a;
        ItensTeste::naAba(a, false, 0);
        QCOMPARE(chavesMoeda(QStringLiteral("Mensal")).value(0), QStringLiteral("produtoPEMensalDIProd"));
        confereChaves(lista({"produto100NacionalMensal", "produtoDCREPIcomPPBMensal", "produtoDCRPIcomPPBMensal",
                             "produtoPEMensal", "produtoPIsemPPBMensal", "InsumoPIsemPPBMensal"}),
                      lista({"produto100NacionalMensal", "produtoPEMensal", "produtoPIsemPPBMensal",
                             "InsumoPIsemPPBMensal"}),
                      chavesMoeda(QStringLiteral("Mensal")));
    }

    void editorIndividualTemCampoParaCadaChave()
    {
        EditorTeste::Ambiente a;
        ItensTeste::naAba(a, true, 0);
        confereChaves(lista({"produto", "insumo", "produtoPE", "produtoPIcomPPBDCRE", "produtoPIcomPPBDCR",
                             "produto100Nacional"}),
                      lista({"produtoPE", "produto", "insumo", "produto100Nacional"}), chavesMoeda(QString()));
    }

    // On the foreign-product tab the NCM picker fills the NCM, its description and unit, and the product picker the
    // code and the description, in each editor.
    void abaProdutoEstrangeiroRecebeNcmEProduto_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("ncm");
        QTest::addColumn<QString>("unidadeEst");
        QTest::addColumn<QString>("produto");
        QTest::addColumn<QString>("descricao");
        QTest::addColumn<QString>("editor");
        QTest::newRow("mensal") << false << "mskNumNCMPE" << "txtUnidMedEstatisticaPE" << "txtCodProdPE"
                                << "txtDescrProdPE" << "Mensal";
        QTest::newRow("individual") << true << "mskProdutoEstrangeiroNFS(0)" << "txtdisplayPE" << "txtCodProdPE"
                                    << "txtDescrProdPE" << "Individual";
    }

    void abaProdutoEstrangeiroRecebeNcmEProduto()
    {
        QFETCH(bool, individual);
        QFETCH(QString, ncm);
        QFETCH(QString, unidadeEst);
        QFETCH(QString, produto);
        QFETCH(QString, descricao);
        QFETCH(QString, editor);
        EditorTeste::Ambiente a;
        ItensTeste::naAba(a, individual, 0);
        const int aba = abaCom(a, produto);
        QVERIFY(aba > 0);
        a.vaiParaAba(aba);

        bool escolheu = false;
        QTimer::singleShot(50, this, [&] { escolheNaLista<frmAssistNCM>(ItensTeste::Ncm1, escolheu); });
        a.clica(QStringLiteral("cmdAssistenteNCM_tabProdutoEstrangeiro_") + editor);
        QVERIFY(escolheu);
        QCOMPARE(a.campo<QLineEdit>(ncm)->text(), QStringLiteral("3925.20.00"));
        QCOMPARE(a.campo<QLineEdit>(unidadeEst)->text(), ItensTeste::UnidadeEst);

        escolheu = false;
        QTimer::singleShot(50, this, [&] { escolheNaLista<frmAssistenteCCI>(QStringLiteral("P002"), escolheu); });
        a.clica(QStringLiteral("cmdAssistenteCCI_tabProdutoEstrangeiro_") + editor);
        QVERIFY(escolheu);
        QCOMPARE(a.campo<QLineEdit>(produto)->text(), QStringLiteral("P002"));
        QCOMPARE(a.campo<QLineEdit>(descricao)->text(), QStringLiteral("Produto dois"));
    }
};

QTEST_MAIN(tst_chavesDosChamadores)
#include "tst_chavesDosChamadores.moc"
