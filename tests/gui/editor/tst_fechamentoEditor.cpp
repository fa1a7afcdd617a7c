// Closing an editor: what the answer to "Deseja salvar a VRT?" leaves in the database and in status panel 2.
#include "EditorTeste.h"

#include "gui/editor/EditorDeclaracao.h"

#include <QLabel>

using namespace EditorTeste;

namespace {

enum class Fim { Sim, Nao, SemMudanca };

// A declaration of the kind, numbered by leaving its general data; with SemMudanca saved first, so that closing
// asks nothing.
void declaracaoNumerada(Ambiente& a, bool individual, Fim fim)
{
    if (individual) {
        a.novaIndividual();
        a.preencheIndividual();
    } else {
        a.novaMensal();
        a.preencheMensal();
    }
    a.vaiParaAba(1);
    if (fim == Fim::SemMudanca)
        a.salvar();
}

}  // namespace

class tst_fechamentoEditor : public QObject {
    Q_OBJECT
private slots:
    void simComDadosInvalidosDepoisDeCorrigidosGuardaOQueFoiDigitado()
    {
        Ambiente a;
        a.novaMensal();
        a.digita(QStringLiteral("mskDadosGerais(1)"), Cnpj);
        a.sai(QStringLiteral("txtDadosGerais(1)"));
        a.msgs.responde(Msg::Yes).responde(Msg::OK);
        a.fechar();
        QVERIFY(a.editor());
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("Deseja salvar a VRT?"),
                                               QStringLiteral("O campo mês de referência deve ser preenchido.")}));
        a.msgs.limpa();
        a.digita(QStringLiteral("txtDadosGeraisMensal(0)"), QStringLiteral("3"));
        a.digita(QStringLiteral("txtDadosGeraisMensal(1)"), QStringLiteral("2009"));
        a.sai(QStringLiteral("txtDadosGerais(1)"));
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Deseja salvar a VRT?")});
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_CNPJ_INTERNADOR FROM VRT")).toString(), Cnpj);
        QCOMPARE(a.comprometido(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL")).toString(),
                 QStringLiteral("032009"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // Only the individual editor empties the panel when it closes: the monthly one leaves the identification of
    // the declaration it showed there, whichever way it closes.
    void soOIndividualLimpaOPainel2AoFechar_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<int>("fim");
        for (bool individual : {false, true}) {
            const char* tipo = individual ? "individual" : "mensal";
            QTest::addRow("%s, sim", tipo) << individual << int(Fim::Sim);
            QTest::addRow("%s, não", tipo) << individual << int(Fim::Nao);
            QTest::addRow("%s, sem mudança", tipo) << individual << int(Fim::SemMudanca);
        }
    }

    void soOIndividualLimpaOPainel2AoFechar()
    {
        QFETCH(bool, individual);
        QFETCH(int, fim);
        Ambiente a;
        declaracaoNumerada(a, individual, Fim(fim));
        const QString id = a.editor()->idVrt();
        QVERIFY(!id.isEmpty());
        QCOMPARE(a.janela.painel(2)->text(), id);
        if (Fim(fim) != Fim::SemMudanca)
            a.msgs.responde(Fim(fim) == Fim::Sim ? Msg::Yes : Msg::No);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.janela.painel(2)->text(), individual ? QString() : id);
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_fechamentoEditor)
#include "tst_fechamentoEditor.moc"
