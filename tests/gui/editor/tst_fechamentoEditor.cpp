// Closing an editor: what the answer to "Deseja salvar a VRT?" leaves in the database.
#include "EditorTeste.h"

#include "gui/editor/EditorDeclaracao.h"

using namespace EditorTeste;

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
        QCOMPARE(a.msgs.caixas.at(1).estilo, Msg::OKOnly | Msg::Critical);
        a.msgs.limpa();
        a.digita(QStringLiteral("txtDadosGeraisMensal(0)"), QStringLiteral("3"));
        a.digita(QStringLiteral("txtDadosGeraisMensal(1)"), QStringLiteral("2009"));
        a.sai(QStringLiteral("txtDadosGerais(1)"));
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Deseja salvar a VRT?")});
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_CNPJ_INTERNADOR FROM VRT")).toString(), Cnpj);
        QCOMPARE(a.comprometido(QStringLiteral("SELECT COUNT(*) FROM VRT_MENSAL")).toInt(), 1);
        // The month of one digit is written with its leading zero although the rows are written before the
        // check that pads the field: the reference is always two month digits and four year digits.
        QCOMPARE(a.comprometido(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL")).toString(),
                 QStringLiteral("032009"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_fechamentoEditor)
#include "tst_fechamentoEditor.moc"
