// The old version's database brought in the way a user does it: the menu item, the file chooser, a click on the
// file, Ok, every question answered; then the database. The old file is a small one written by the tests' Access
// writer, and a file made by Access itself that is not the old version's database.
#include "BancoVersao1.h"
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "core/session/modVRTPLN.h"
#include "gui/assistants/frmManipulaArquivo.h"
#include "gui/shell/frmVRTPLN.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

namespace {

const QString Antigo = QStringLiteral("00001/08");

frmManipulaArquivo* abreImportacao(frmVRTPLN& janela)
{
    janela.acao(QStringLiteral("mnuImportarBancoAnterior"))->trigger();
    return qobject_cast<frmManipulaArquivo*>(janela.telaAberta());
}

// Clicks a file of the list once the list has read its folder.
bool clicaArquivo(frmManipulaArquivo* tela, const QString& nome)
{
    tela->selecionaPasta(modVRTPLN::CaminhoDados);
    auto* modelo = qobject_cast<QFileSystemModel*>(tela->File1->model());
    const QString caminho = QDir(tela->pastaAtual()).filePath(nome);
    QModelIndex indice;
    const bool achou = QTest::qWaitFor(
        [&] {
            indice = modelo->index(caminho);
            return indice.isValid() && !tela->File1->visualRect(indice).isEmpty();
        },
        5000);
    if (!achou)
        return false;
    QTest::mouseClick(tela->File1->viewport(), Qt::LeftButton, {}, tela->File1->visualRect(indice).center());
    return true;
}

// A monthly declaration of the old version with one item of modality "1" and its destination.
QString gravaAntigo(const QString& pasta)
{
    using namespace BancoVersao1;
    QList<TabelaJet> antigo = Vazio();
    Insere(antigo, QStringLiteral("VRT"), {{"ID_VRT_MICRO", Antigo}, {"CD_TIPO_VRT", "2"}, {"NR_VRT", " "}});
    Insere(antigo, QStringLiteral("VRT_MENSAL"), {{"ID_VRT_MICRO", Antigo}, {"DT_REFERENCIA_VRT", "122008"}});
    Insere(antigo, QStringLiteral("ITEM_VRT_MEN"), {{"ID_ITEM_VRT", 41}, {"ID_VRT_MICRO", Antigo}, {"IND_MOD_INTERNACAO", "1"}});
    Insere(antigo, QStringLiteral("DESTINO_ITEM_VRT_MEN"), {{"ID_DEST_PRODUTO", 9}, {"ID_ITEM_VRT", 41}, {"CD_LOCAL_DESTINO", "1"}});
    Insere(antigo, QStringLiteral("MOEDA"), {{"CD_MOEDA", "220"}, {"NM_MOEDA", "DOLAR DOS EUA"}});
    return Grava(antigo, QDir(pasta).filePath(QStringLiteral("PLN_VRT.mdb")));
}

// The declarations and currencies of the present database, to show that a refused import changed nothing.
QString estado()
{
    QString s;
    QSqlQuery q(modBancoDados::ConexaoBanco());
    q.exec(QStringLiteral("SELECT ID_VRT_MICRO FROM VRT UNION ALL SELECT CD_MOEDA FROM MOEDA ORDER BY 1"));
    while (q.next())
        s += q.value(0).toString() + QLatin1Char('\n');
    return s;
}

}  // namespace

class tst_importaBancoAnteriorPeloMenu : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { RegistraTelas(); }
    void init()
    {
        modVRTPLN::TelaAtual = 0;
        frmManipulaArquivo::NomeArquivo.clear();
        frmManipulaArquivo::ImportaBancoAnterior = nullptr;
    }

    void importaPelaTelaComTodasAsPerguntas()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, NR_VRT, "
                                           "IND_RETIFICACAO) VALUES ('00077/26', '2', '12345678000195', ' ', 'N')"));
        QCOMPARE(gravaAntigo(banco.pasta()), QString());
        frmVRTPLN janela;
        janela.show();
        QVERIFY(QTest::qWaitForWindowActive(&janela));
        frmManipulaArquivo* tela = abreImportacao(janela);
        QVERIFY(tela);
        QCOMPARE(tela->windowTitle(), QStringLiteral("Importar Banco de Dados da Versão 1.0"));
        QVERIFY(clicaArquivo(tela, QStringLiteral("PLN_VRT.mdb")));
        QList<int> progresso;
        connect(tela->ProgBarCopia, &QProgressBar::valueChanged, this, [&](int v) { progresso << v; });

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::Yes).responde(Msg::Yes).responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        const QStringList textos = msgs.textos();
        QCOMPARE(textos.size(), 4);
        QCOMPARE(textos.at(0), QStringLiteral("Existem 1 registros de VRT(s) no banco de dados da versão 1.0. "
                                              "Confirma importação?"));
        QVERIFY(textos.at(1).startsWith(QStringLiteral("O banco de dados da versão 2.0 já possui 1 registros de VRT!")));
        QVERIFY(textos.at(2).startsWith(QStringLiteral("Foram localizados registros nas tabelas do banco de dados da "
                                                       "versão 2.0!")));
        QCOMPARE(textos.at(3), QStringLiteral("Importação realizada com sucesso!"));
        QVERIFY(progresso.contains(100));

        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT group_concat(ID_VRT_MICRO) FROM VRT")).toString(), Antigo);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT group_concat(CD_MOEDA) FROM MOEDA")).toString(),
                 QStringLiteral("220"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT VL_PIS FROM DESTINO_ITEM_VRT_MEN WHERE ID_DEST_PRODUTO = 9"))
                     .toString(),
                 QStringLiteral("0,0000000"));
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    // A file made by Access that is no database of the old version, under the old database's name: the first
    // message, and the present data as they were.
    void arquivoDoAccessSemTabelaVrtNaoPertence()
    {
        BancoTeste banco;
        const QString destino = QDir(banco.pasta()).filePath(QStringLiteral("pln_vrt.mdb"));
        QVERIFY(QFile::copy(QDir(QStringLiteral(VRT_REFDATA_DIR)).filePath(QStringLiteral("nwind.mdb")), destino));
        const QString antes = estado();
        frmVRTPLN janela;
        janela.show();
        QVERIFY(QTest::qWaitForWindowActive(&janela));
        frmManipulaArquivo* tela = abreImportacao(janela);
        QVERIFY(clicaArquivo(tela, QStringLiteral("pln_vrt.mdb")));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(),
                 QStringList{QStringLiteral("O banco de dados apontado não pertence a versão 1.0 do sistema!")});
        QCOMPARE(msgs.caixas.at(0).icone(), int(Msg::Critical));
        QCOMPARE(estado(), antes);
    }
};

QTEST_MAIN(tst_importaBancoAnteriorPeloMenu)
#include "tst_importaBancoAnteriorPeloMenu.moc"
