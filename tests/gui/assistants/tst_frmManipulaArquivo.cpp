// The file chooser and the file commands of the main window: its two modes, the drive list, the messages of
// cmdOk and cmdCancela, writing one or several declarations from the chooser, restoring and importing a
// declaration, importing a table with the progress bar.
#include "ArquivoTabela.h"
#include "DeclaracoesTeste.h"
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/assistants/frmManipulaArquivo.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "gui/widgets/ConsultGrid.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

using namespace modVRTPLN;
using DeclaracoesTeste::Declaracao;
namespace T = ArquivoTabela;

namespace {

frmManipulaArquivo* telaArquivo(frmVRTPLN& janela)
{
    return qobject_cast<frmManipulaArquivo*>(janela.telaAberta());
}

// Runs a command of the main window that opens the file screen, and gives the screen.
frmManipulaArquivo* abrePeloMenu(frmVRTPLN& janela, const QString& comando)
{
    janela.acao(comando)->trigger();
    return telaArquivo(janela);
}

void vaiParaPasta(frmManipulaArquivo* tela, const QString& pasta)
{
    auto* modelo = qobject_cast<QFileSystemModel*>(tela->Dir1->model());
    tela->Dir1->setCurrentIndex(modelo->index(pasta));
}

// Clicks a file of the list once the list has read its folder.
bool clicaArquivo(frmManipulaArquivo* tela, const QString& nome)
{
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

QStringList arquivosEm(const QString& pasta)
{
    return QDir(pasta).entryList(QDir::Files, QDir::Name);
}

}  // namespace

class tst_frmManipulaArquivo : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { RegistraTelas(); }
    void init()
    {
        TelaAtual = 0;
        frmManipulaArquivo::IdVrtEscolhida.clear();
        frmManipulaArquivo::VrtsSelecionadas.clear();
        frmManipulaArquivo::NomeArquivo.clear();
        ArquivoImportaTabela = QStringLiteral("NAO");
    }

    void comandosAbremATelaComALegenda_data()
    {
        QTest::addColumn<QString>("comando");
        QTest::addColumn<QString>("legenda");
        QTest::addColumn<QString>("importaTabela");
        QTest::newRow("importar VRT") << "mnuDeclaracaoImportar" << "Importar VRT" << "NAO";
        QTest::newRow("restaurar") << "mnuFerramentasRestaurarBackup" << "Restaurar Backup" << "NAO";
        QTest::newRow("moeda") << "mnuFerramentasImportarTabelasMoeda" << "Importar Moeda" << "SIM";
        QTest::newRow("NCM") << "mnuFerramentasImportarTabelasNCM" << "Importar NCM" << "SIM";
        QTest::newRow("produto") << "mnuFerramentasImportarTabelasProduto" << "Importar Produto" << "SIM";
        QTest::newRow("UF") << "mnuFerramentasImportarTabelasUF" << "Importar UF" << "SIM";
        QTest::newRow("unidade") << "mnuFerramentasImportarTabelasUnidadeMedida"
                                 << "Importar Unidade de Medida Comercial" << "SIM";
        QTest::newRow("banco anterior") << "mnuImportarBancoAnterior" << "Importar Banco de Dados da Versão 1.0"
                                        << "NAO";
    }
    void comandosAbremATelaComALegenda()
    {
        QFETCH(QString, comando);
        QFETCH(QString, legenda);
        QFETCH(QString, importaTabela);
        BancoTeste banco;
        frmVRTPLN janela;
        janela.show();
        janela.acao(comando)->trigger();
        QCOMPARE(TelaAtual, int(ManipulaArquivo));
        frmManipulaArquivo* tela = telaArquivo(janela);
        QVERIFY(tela);
        QCOMPARE(tela->windowTitle(), legenda);
        QCOMPARE(TextoPainelStatus(1), legenda);
        QCOMPARE(ArquivoImportaTabela, importaTabela);
        // File mode: every frame in view.
        QVERIFY(tela->fraArquivo->isVisible());
        QCOMPARE(tela->Label1->text(), QStringLiteral("Selecione unidade e pasta de origem."));
        QCOMPARE(tela->Label2->text(), QStringLiteral("Selecione o arquivo para importação."));
        QCOMPARE(tela->cmdOk->text(), QStringLiteral("Ok"));
        QCOMPARE(tela->cmdCancela->text(), QStringLiteral("Cancela"));
        QVERIFY(!tela->lblCopiaAnd->isVisible());
        QCOMPARE(tela->lblCopiaAnd->text(), QStringLiteral("Em andamento... AGUARDE"));
        // It starts at the program's folder, on its drive.
        QCOMPARE(tela->pastaAtual(), banco.pasta());
        QCOMPARE(tela->Drive1->currentData().toString(), QStorageInfo(banco.pasta()).rootPath());
        QTest::mouseClick(tela->cmdCancela, Qt::LeftButton);
    }

    void funcao0DaALegendaImportar()
    {
        BancoTeste banco;
        frmManipulaArquivo tela;
        tela.FuncaoForm(0);
        QCOMPARE(tela.windowTitle(), QStringLiteral("Importar"));
    }

    void cancelaLimpaOEstadoEFecha()
    {
        BancoTeste banco;
        frmVRTPLN janela;
        janela.show();
        frmManipulaArquivo* tela = abrePeloMenu(janela, QStringLiteral("mnuFerramentasImportarTabelasNCM"));
        QVERIFY(clicaArquivo(tela, NomeArquivoBanco));
        QCOMPARE(frmManipulaArquivo::NomeArquivo, NomeArquivoBanco);
        QCOMPARE(frmManipulaArquivo::PastaArquivo, banco.pasta());
        QTest::mouseClick(tela->cmdCancela, Qt::LeftButton);
        QCOMPARE(TelaAtual, 0);
        QCOMPARE(frmManipulaArquivo::NomeArquivo, QString());
        QCOMPARE(ArquivoImportaTabela, QStringLiteral("NAO"));
        QCOMPARE(TextoPainelStatus(1), QString());
    }

    void semArquivoEscolhido_data()
    {
        QTest::addColumn<QString>("comando");
        QTest::newRow("moeda") << "mnuFerramentasImportarTabelasMoeda";
        QTest::newRow("importar VRT") << "mnuDeclaracaoImportar";
        QTest::newRow("restaurar") << "mnuFerramentasRestaurarBackup";
        QTest::newRow("banco anterior") << "mnuImportarBancoAnterior";
    }
    void semArquivoEscolhido()
    {
        QFETCH(QString, comando);
        BancoTeste banco;
        frmVRTPLN janela;
        janela.show();
        janela.acao(comando)->trigger();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(telaArquivo(janela)->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Selecione um arquivo!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QCOMPARE(TelaAtual, int(ManipulaArquivo));
    }

    // A drive without a disk keeps the previous folder and shows the message.
    void unidadeSemDisco()
    {
        BancoTeste banco;
        frmManipulaArquivo tela;
        tela.show();
        const int antes = tela.Drive1->currentIndex();
        tela.Drive1->addItem(QStringLiteral("Z:"), QStringLiteral("/unidade-sem-disco-nenhum"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        tela.Drive1->setCurrentIndex(tela.Drive1->count() - 1);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Não há disco nesta unidade!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QCOMPARE(tela.Drive1->currentIndex(), antes);
        QCOMPARE(tela.pastaAtual(), banco.pasta());
    }

    void trocarDeUnidadeVaiParaSuaRaiz()
    {
        BancoTeste banco;
        frmManipulaArquivo tela;
        tela.show();
        const QString raiz = QDir::rootPath();
        int indice = tela.Drive1->findData(raiz);
        if (indice < 0) {
            tela.Drive1->addItem(raiz, raiz);
            indice = tela.Drive1->count() - 1;
        }
        if (indice == tela.Drive1->currentIndex()) {
            tela.Drive1->addItem(QStringLiteral("tmp"), QDir::tempPath());
            indice = tela.Drive1->count() - 1;
        }
        const QString esperado = tela.Drive1->itemData(indice).toString();
        tela.Drive1->setCurrentIndex(indice);
        QCOMPARE(QDir(tela.pastaAtual()).canonicalPath(), QDir(esperado).canonicalPath());
    }

    void importaTabelaPelaTela()
    {
        BancoTeste banco;
        QVERIFY(T::grava(banco.pasta() + QStringLiteral("/moedas.txt"),
                         {T::cabecalho(), T::moeda("220", "DOLAR DOS EUA"), T::moeda("978", "EURO")}));
        frmVRTPLN janela;
        janela.show();
        frmManipulaArquivo* tela = abrePeloMenu(janela, QStringLiteral("mnuFerramentasImportarTabelasMoeda"));
        QVERIFY(clicaArquivo(tela, QStringLiteral("moedas.txt")));
        QList<int> valores;
        bool aguardeVisivel = false;
        connect(tela->ProgBarCopia, &QProgressBar::valueChanged, this, [&](int v) {
            valores << v;
            aguardeVisivel = aguardeVisivel || tela->lblCopiaAnd->isVisible();
        });
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Tabela de moeda importada com sucesso.")});
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 2);
        QVERIFY(valores.contains(100));
        QVERIFY(aguardeVisivel);
        QVERIFY(!tela->lblCopiaAnd->isVisible());
        QCOMPARE(tela->ProgBarCopia->value(), 0);
        // The file is forgotten: Ok again asks for one.
        QCOMPARE(frmManipulaArquivo::NomeArquivo, QString());
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos().last(), QStringLiteral("Selecione um arquivo!"));
        QCOMPARE(TelaAtual, int(ManipulaArquivo));
    }

    void declaracaoEscolhidaEmImportarMoedaTemFormatoErrado()
    {
        BancoTeste banco;
        QVERIFY(T::grava(banco.pasta() + QStringLiteral("/0000109"), {QStringLiteral("00VRT/PLN302.002")}));
        frmVRTPLN janela;
        janela.show();
        frmManipulaArquivo* tela = abrePeloMenu(janela, QStringLiteral("mnuFerramentasImportarTabelasMoeda"));
        QVERIFY(clicaArquivo(tela, QStringLiteral("0000109")));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Erro - Arquivo com formato errado!")});
    }

    void bancoAnteriorTesteDoNome_data()
    {
        QTest::addColumn<QString>("nome");
        QTest::addColumn<bool>("aceito");
        QTest::newRow("outro nome") << "dados.mdb" << false;
        QTest::newRow("o banco novo") << "PLN_VRT_v2.mdb" << false;
        QTest::newRow("o nome em maiúsculas") << "PLN_VRT.MDB" << true;
        QTest::newRow("o nome em minúsculas") << "pln_vrt.mdb" << true;
    }
    void bancoAnteriorTesteDoNome()
    {
        QFETCH(QString, nome);
        QFETCH(bool, aceito);
        BancoTeste banco;
        QFile f(banco.pasta() + QLatin1Char('/') + nome);
        if (!f.exists()) {
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.close();
        }
        QString pastaRecebida, nomeRecebido;
        frmManipulaArquivo::ImportaBancoAnterior = [&](const QString& pasta, const QString& n) {
            pastaRecebida = pasta;
            nomeRecebido = n;
            return true;
        };
        frmVRTPLN janela;
        janela.show();
        frmManipulaArquivo* tela = abrePeloMenu(janela, QStringLiteral("mnuImportarBancoAnterior"));
        QVERIFY(clicaArquivo(tela, nome));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        frmManipulaArquivo::ImportaBancoAnterior = nullptr;
        if (aceito) {
            QCOMPARE(nomeRecebido, nome);
            QCOMPARE(pastaRecebida, banco.pasta());
            QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Importação realizada com sucesso!")});
        } else {
            QCOMPARE(nomeRecebido, QString());
            QCOMPARE(msgs.textos(),
                     QStringList{QStringLiteral("O arquivo localizado não é o banco de dados da versão 1.0 do sistema!\n"
                                                "O arquivo a ser localizado é:\nC:\\PROJETOS\\VRT-PLN\\PLN_VRT.mdb")});
        }
    }

    // The whole command: the chooser with action 4, a row, the file chooser in folder mode, Ok.
    void gravarBackupPeloEscolhedor()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/09", "2"});
        DeclaracoesTeste::insere({"00002/09", "1"});
        QTemporaryDir destino;
        frmVRTPLN janela;
        janela.show();
        janela.acao(QStringLiteral("mnuFerramentasGravarBackup"))->trigger();
        auto* escolha = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        QVERIFY(escolha);
        // The first row, 00002/09, is current; Ok works on it.
        QTest::mouseClick(escolha->cmdOk, Qt::LeftButton);
        QCOMPARE(TelaAtual, int(ManipulaArquivo));
        frmManipulaArquivo* tela = telaArquivo(janela);
        QCOMPARE(frmManipulaArquivo::IdVrtEscolhida, QStringLiteral("00002/09"));
        QCOMPARE(tela->windowTitle(), QStringLiteral("Gravar Backup"));
        QCOMPARE(TextoPainelStatus(1), QStringLiteral("Gravar Backup"));
        // Folder mode: the file list out of view, the destination label.
        QVERIFY(!tela->fraArquivo->isVisible());
        QCOMPARE(tela->Label1->text(), QStringLiteral("Selecione unidade e pasta de destino"));
        vaiParaPasta(tela, destino.path());
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        // No file is needed.
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Backup realizado com sucesso.")});
        QCOMPARE(arquivosEm(destino.path()), QStringList{"0000209"});
        // The chooser is back with the same action; the state is cleared.
        QCOMPARE(TelaAtual, int(Escolha));
        auto* devolta = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        QVERIFY(devolta);
        QCOMPARE(devolta->acao(), 4);
        QCOMPARE(TextoPainelStatus(1), QStringLiteral("Gravar Backup"));
        QCOMPARE(frmManipulaArquivo::IdVrtEscolhida, QString());
        QCOMPARE(frmManipulaArquivo::PastaDestino, QString());
        QFile f(destino.filePath(QStringLiteral("0000209")));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll().mid(0, 10), QByteArray("00VRT/PLN3"));
    }

    // A selection of three declarations makes three files and one message.
    void tresSelecionadasTresArquivosUmaMensagem()
    {
        BancoTeste banco;
        for (const char* id : {"00001/09", "00002/09", "00003/09", "00004/09"})
            DeclaracoesTeste::insere({QString::fromLatin1(id), "2"});
        QTemporaryDir destino;
        frmVRTPLN janela;
        janela.show();
        janela.acao(QStringLiteral("mnuDeclaracaoGravarVRTTransmissao"))->trigger();
        auto* escolha = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        ConsultGrid* g = escolha->grdAssistenteVRT;
        auto clica = [g](int linha, Qt::KeyboardModifiers m) {
            QTest::mouseClick(g->viewport(), Qt::LeftButton, m, g->visualRect(g->model()->index(linha, 0)).center());
        };
        clica(3, {});
        clica(0, Qt::ControlModifier);
        clica(2, Qt::ControlModifier);
        QTest::mouseClick(escolha->cmdOk, Qt::LeftButton);
        QCOMPARE(frmManipulaArquivo::VrtsSelecionadas, (QStringList{"00001/09", "00004/09", "00002/09"}));
        frmManipulaArquivo* tela = telaArquivo(janela);
        QCOMPARE(tela->windowTitle(), QStringLiteral("Gravar para Transmissão"));
        vaiParaPasta(tela, destino.path());
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Arquivo gerado.")});
        QCOMPARE(arquivosEm(destino.path()), (QStringList{"0000109", "0000209", "0000409"}));
        QCOMPARE(frmManipulaArquivo::VrtsSelecionadas, QStringList());
    }

    void mesmaDeclaracaoDuasVezesSubstituiOArquivo()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/09", "2"});
        QTemporaryDir destino;
        QFile velho(destino.filePath(QStringLiteral("0000109")));
        QVERIFY(velho.open(QIODevice::WriteOnly));
        velho.write(QByteArray(5000, 'x'));
        velho.close();
        frmVRTPLN janela;
        janela.show();
        MensagensRoteiro msgs;
        for (int vez = 0; vez < 2; ++vez) {
            janela.acao(QStringLiteral("mnuDeclaracaoGravarVRTTransmissao"))->trigger();
            QTest::mouseClick(qobject_cast<frmAssistenteVRT*>(janela.telaAberta())->cmdOk, Qt::LeftButton);
            vaiParaPasta(telaArquivo(janela), destino.path());
            msgs.responde(Msg::OK);
            QTest::mouseClick(telaArquivo(janela)->cmdOk, Qt::LeftButton);
        }
        QCOMPARE(msgs.textos(), (QStringList{"Arquivo gerado.", "Arquivo gerado."}));
        QCOMPARE(arquivosEm(destino.path()), QStringList{"0000109"});
        QFile f(destino.filePath(QStringLiteral("0000109")));
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray bytes = f.readAll();
        QVERIFY(bytes.startsWith("00VRT/PLN1"));
        QVERIFY(!bytes.contains("xxxx"));
    }

    // "Gravar Backup" and "Gravar para Transmissão" of the same declaration differ in byte 10 only.
    void backupETransmissaoDiferemNoByte10()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/09", "1"});
        QTemporaryDir transmissao, backup;
        frmVRTPLN janela;
        janela.show();
        MensagensRoteiro msgs;
        const QList<QPair<QString, QString>> comandos = {{"mnuDeclaracaoGravarVRTTransmissao", transmissao.path()},
                                                         {"mnuFerramentasGravarBackup", backup.path()}};
        for (const auto& c : comandos) {
            janela.acao(c.first)->trigger();
            QTest::mouseClick(qobject_cast<frmAssistenteVRT*>(janela.telaAberta())->cmdOk, Qt::LeftButton);
            vaiParaPasta(telaArquivo(janela), c.second);
            msgs.responde(Msg::OK);
            QTest::mouseClick(telaArquivo(janela)->cmdOk, Qt::LeftButton);
        }
        QFile a(transmissao.filePath(QStringLiteral("0000109"))), b(backup.filePath(QStringLiteral("0000109")));
        QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        QByteArray x = a.readAll(), y = b.readAll();
        QCOMPARE(x.size(), y.size());
        QCOMPARE(x.at(9), '1');
        QCOMPARE(y.at(9), '3');
        x[9] = '3';
        QCOMPARE(x, y);
    }

    // A backup written, its declaration eliminated, then restored through the screen under its own name.
    void restaurarEImportarPelaTela()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/09", "2"});
        BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (1, 9)"));
        frmVRTPLN janela;
        janela.show();
        MensagensRoteiro msgs;
        janela.acao(QStringLiteral("mnuFerramentasGravarBackup"))->trigger();
        QTest::mouseClick(qobject_cast<frmAssistenteVRT*>(janela.telaAberta())->cmdOk, Qt::LeftButton);
        vaiParaPasta(telaArquivo(janela), banco.pasta());
        msgs.responde(Msg::OK);
        QTest::mouseClick(telaArquivo(janela)->cmdOk, Qt::LeftButton);
        QVERIFY(QFile::exists(banco.pasta() + QStringLiteral("/0000109")));
        BancoTeste::executa(QStringLiteral("DELETE FROM VRT"));

        msgs.limpa();
        frmManipulaArquivo* tela = abrePeloMenu(janela, QStringLiteral("mnuFerramentasRestaurarBackup"));
        QVERIFY(clicaArquivo(tela, QStringLiteral("0000109")));
        msgs.responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY2(msgs.caixas[0].texto.startsWith(QStringLiteral("Backup restaurado com o nome ")),
                 qPrintable(msgs.caixas[0].texto));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 1);
        QCOMPARE(frmManipulaArquivo::NomeArquivo, QString());

        // Importing the same file again: the replacement question, answered No, leaves all as it was.
        msgs.limpa();
        janela.acao(QStringLiteral("mnuDeclaracaoImportar"))->trigger();
        tela = telaArquivo(janela);
        QVERIFY(clicaArquivo(tela, QStringLiteral("0000109")));
        msgs.responde(Msg::No);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 1);
        QCOMPARE(msgs.caixas[0].texto,
                 QStringLiteral("Existe uma VRT para este CNPJ/Data de Referência, deseja substituí-la?"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 1);

        // And answered Yes, with the report at the end.
        msgs.limpa();
        QVERIFY(clicaArquivo(tela, QStringLiteral("0000109")));
        msgs.responde(Msg::Yes).responde(Msg::OK);
        QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 2);
        QVERIFY2(msgs.caixas[1].texto.startsWith(QStringLiteral("Relatório da importação:")),
                 qPrintable(msgs.caixas[1].texto));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 1);
    }
};

QTEST_MAIN(tst_frmManipulaArquivo)
#include "tst_frmManipulaArquivo.moc"
