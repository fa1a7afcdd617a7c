// The reference table import: header, the five line types, replace or merge, the shared flag, the messages.
#include "ArquivoTabela.h"
#include "TestUtil.h"

#include "core/refdata/modImportacao.h"
#include "core/session/modVRTPLN.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

using modImportacao::ImportaTabela;
using modImportacao::Resultado;
namespace T = ArquivoTabela;

Q_DECLARE_METATYPE(modImportacao::Resultado)

class tst_modImportacao : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_pasta;
    // Writes the lines into a table file of the test folder and imports it.
    Resultado importa(const QStringList& linhas, modImportacao::Progresso progresso = {})
    {
        const QString nome = QStringLiteral("tabela.txt");
        if (!T::grava(m_pasta.filePath(nome), linhas))
            qFatal("não foi possível gravar o arquivo de tabela");
        return ImportaTabela(m_pasta.path(), nome, progresso);
    }

private slots:
    void init() { modVRTPLN::ArquivoImportaTabela = QStringLiteral("SIM"); }
    void cleanup() { modVRTPLN::ArquivoImportaTabela = QStringLiteral("NAO"); }

    void cabecalho_data()
    {
        QTest::addColumn<QString>("cabecalho");
        QTest::addColumn<bool>("aceito");
        QTest::newRow("arquivo de declaração para transmissão") << "00VRT/PLN102.00" << false;
        QTest::newRow("arquivo de estrutura própria") << "00VRT/PLN202.00" << false;
        QTest::newRow("arquivo de backup") << "00VRT/PLN302.00" << false;
        QTest::newRow("posição 10 zero") << "00VRT/PLN0" << true;
        QTest::newRow("posição 10 em branco e texto livre depois") << "00VRT/PLN Tabelas de maio" << true;
        QTest::newRow("posição 10 letra") << "00VRT/PLNT" << true;
        QTest::newRow("só as nove posições") << "00VRT/PLN" << true;
        QTest::newRow("nome do sistema errado") << "00VRT/PLX0" << false;
        QTest::newRow("minúsculas") << "00vrt/pln0" << false;
        QTest::newRow("linha de moeda no lugar do cabeçalho") << "01220DOLAR DOS EUA" << false;
        QTest::newRow("cabeçalho vazio") << "" << false;
    }
    void cabecalho()
    {
        QFETCH(QString, cabecalho);
        QFETCH(bool, aceito);
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        const int moedas = BancoTeste::conta(QStringLiteral("MOEDA"));
        const Resultado r = importa({cabecalho, T::moeda(QStringLiteral("X99"), QStringLiteral("MOEDA TESTE"))});
        QCOMPARE(msgs.caixas.size(), 1);
        if (aceito) {
            QCOMPARE(r, Resultado::Sucesso);
            QCOMPARE(msgs.caixas[0].texto, QStringLiteral("Tabela de moeda importada com sucesso."));
            QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 1);
        } else {
            QCOMPARE(r, Resultado::FormatoErrado);
            QCOMPARE(msgs.caixas[0].texto, QStringLiteral("Erro - Arquivo com formato errado!"));
            QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
            QCOMPARE(msgs.caixas[0].titulo, QStringLiteral("VRT - Vistoria de Remessa Tributada"));
            QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), moedas);
        }
        QCOMPARE(msgs.inesperadas, 0);
    }

    void arquivoQueNaoEhImportacaoDeTabelaTemFormatoErrado()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        modVRTPLN::ArquivoImportaTabela = QStringLiteral("NAO");
        QCOMPARE(importa({T::cabecalho(), T::moeda(QStringLiteral("X99"), QStringLiteral("X"))}),
                 Resultado::FormatoErrado);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Erro - Arquivo com formato errado!")});
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA"), QStringLiteral("CD_MOEDA = 'X99'")), 0);
    }

    void arquivoVazioNaoTemRegistros()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QFile f(m_pasta.filePath(QStringLiteral("vazio.txt")));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        QCOMPARE(ImportaTabela(m_pasta.path(), QStringLiteral("vazio.txt")), Resultado::SemRegistros);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Erro no Header - Arquivo sem registros!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    }

    void soCabecalhoNaoLimpaNadaENaoNomeiaTabela()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("INSERT INTO MOEDA (CD_MOEDA, NM_MOEDA) VALUES ('X98', 'X')"));
        const int moedas = BancoTeste::conta(QStringLiteral("MOEDA"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho()}), Resultado::Sucesso);
        // Two blanks: no line named a table.
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Tabela de  importada com sucesso.")});
        QCOMPARE(msgs.caixas[0].icone(), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), moedas);
    }

    void mensagemFinalNomeiaATabelaDaUltimaLinha_data()
    {
        QTest::addColumn<QStringList>("linhas");
        QTest::addColumn<QString>("texto");
        QTest::newRow("moeda") << QStringList{T::cabecalho(), T::moeda("001", "A")}
                               << "Tabela de moeda importada com sucesso.";
        QTest::newRow("NCM") << QStringList{T::cabecalho(), T::ncm("01012100", "Cavalos", "UNIDADE")}
                             << "Tabela de NCM importada com sucesso.";
        QTest::newRow("produto") << QStringList{T::cabecalho(), T::produto("P1", "Produto")}
                                 << "Tabela de produto importada com sucesso.";
        QTest::newRow("UF") << QStringList{T::cabecalho(), T::uf("AM", "AMAZONAS")}
                            << "Tabela de unidade da federação importada com sucesso.";
        QTest::newRow("unidade") << QStringList{T::cabecalho(), T::unidade("01", "UNIDADE")}
                                 << "Tabela de unidade de medida comercial importada com sucesso.";
        QTest::newRow("NCM e depois produto")
            << QStringList{T::cabecalho(), T::ncm("01012100", "Cavalos", "UN"), T::produto("P1", "Produto")}
            << "Tabela de produto importada com sucesso.";
        QTest::newRow("produto e depois NCM")
            << QStringList{T::cabecalho(), T::produto("P1", "Produto"), T::ncm("01012100", "Cavalos", "UN")}
            << "Tabela de NCM importada com sucesso.";
    }
    void mensagemFinalNomeiaATabelaDaUltimaLinha()
    {
        QFETCH(QStringList, linhas);
        QFETCH(QString, texto);
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa(linhas), Resultado::Sucesso);
        QCOMPARE(msgs.textos(), QStringList{texto});
        QCOMPARE(msgs.caixas[0].icone(), 0);
        QCOMPARE(msgs.caixas[0].botoes(), Msg::OKOnly);
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    void moedaSubstituiATabelaInteiraComBrancosNoNome()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("INSERT INTO MOEDA (CD_MOEDA, NM_MOEDA) VALUES ('X98', 'ANTIGA')"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho(), T::moeda("220", "DOLAR DOS EUA"), T::moeda("978", "EURO")}),
                 Resultado::Sucesso);
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 2);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_MOEDA FROM MOEDA WHERE CD_MOEDA = '220'")).toString(),
                 QStringLiteral("DOLAR DOS EUA").leftJustified(35, QLatin1Char(' ')));
    }

    void ufEUnidadeSubstituemATabelaInteira_data()
    {
        QTest::addColumn<QString>("tabela");
        QTest::addColumn<QStringList>("linhas");
        QTest::addColumn<QString>("nomeGravado");
        QTest::addColumn<QString>("consulta");
        QTest::newRow("UF") << "UNIDADE_FEDERATIVA"
                            << QStringList{T::cabecalho(), T::uf("AM", "AMAZONAS"), T::uf("RR", "RORAIMA")}
                            << QString("AMAZONAS").leftJustified(25, ' ')
                            << "SELECT NM_UF FROM UNIDADE_FEDERATIVA WHERE CD_UF_DESTINO = 'AM'";
        QTest::newRow("unidade de medida")
            << "UNIDADE_MEDIDA" << QStringList{T::cabecalho(), T::unidade("01", "UNIDADE"), T::unidade("02", "KG")}
            << QString("UNIDADE").leftJustified(50, ' ')
            << "SELECT NM_MEDIDA FROM UNIDADE_MEDIDA WHERE CD_UNID_MEDIDA = '01'";
    }
    void ufEUnidadeSubstituemATabelaInteira()
    {
        QFETCH(QString, tabela);
        QFETCH(QStringList, linhas);
        QFETCH(QString, nomeGravado);
        QFETCH(QString, consulta);
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QVERIFY(importa(linhas) == Resultado::Sucesso);
        QCOMPARE(BancoTeste::conta(tabela), 2);
        QCOMPARE(BancoTeste::valor(consulta).toString(), nomeGravado);
    }

    void ncmEProdutoSaoMescladosSemApagarNada_data()
    {
        QTest::addColumn<bool>("ncm");
        QTest::newRow("NCM") << true;
        QTest::newRow("produto") << false;
    }
    void ncmEProdutoSaoMescladosSemApagarNada()
    {
        QFETCH(bool, ncm);
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        const QString velho = QStringLiteral("11111111");
        const QString comum = QStringLiteral("22222222");
        const QString novo = QStringLiteral("33333333");
        if (ncm) {
            BancoTeste::executa(QStringLiteral("INSERT INTO NCM_ITEM VALUES (?, 'VELHO', 'KG')"), {velho});
            BancoTeste::executa(QStringLiteral("INSERT INTO NCM_ITEM VALUES (?, 'ANTES', 'KG')"), {comum});
        } else {
            // Codes imported before are stored with their blanks, as the file gives them.
            BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES (?, 'VELHO')"), {T::fixo(velho, 15)});
            BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES (?, 'ANTES')"), {T::fixo(comum, 15)});
        }
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        const QStringList linhas = ncm ? QStringList{T::cabecalho(), T::ncm(comum, "DEPOIS", "UNIDADE"),
                                                     T::ncm(novo, "NOVO", "LITRO")}
                                       : QStringList{T::cabecalho(), T::produto(comum, "DEPOIS"),
                                                     T::produto(novo, "NOVO")};
        QCOMPARE(importa(linhas), Resultado::Sucesso);
        const QString tabela = ncm ? QStringLiteral("NCM_ITEM") : QStringLiteral("PRODUTO");
        const QString chave = ncm ? QStringLiteral("CD_NCM_PRODUTO") : QStringLiteral("CD_INT_PRODUTO");
        const QString nome = ncm ? QStringLiteral("DESCR_NCM_PRODUTO") : QStringLiteral("NM_INT_PRODUTO");
        const int largura = ncm ? 8 : 15;
        QCOMPARE(BancoTeste::conta(tabela), 3);
        const QString sql = QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(nome, tabela, chave);
        QCOMPARE(BancoTeste::valor(sql, {T::fixo(velho, largura)}).toString(), QStringLiteral("VELHO"));
        QCOMPARE(BancoTeste::valor(sql, {T::fixo(comum, largura)}).toString(),
                 T::fixo(QStringLiteral("DEPOIS"), 80));
        QCOMPARE(BancoTeste::valor(sql, {T::fixo(novo, largura)}).toString(), T::fixo(QStringLiteral("NOVO"), 80));
        if (ncm)
            QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_UNID_MED_EST FROM NCM_ITEM WHERE CD_NCM_PRODUTO = ?"),
                                       {comum})
                         .toString(),
                     T::fixo(QStringLiteral("UNIDADE"), 50));
    }

    void codigoDeProdutoComparadoComSeusBrancos()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        // Typed by hand, without blanks: the file's code with its blanks is another product.
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('ABC', 'DIGITADO')"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho(), T::produto("ABC", "DO ARQUIVO")}), Resultado::Sucesso);
        QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 2);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'ABC'"))
                     .toString(),
                 QStringLiteral("DIGITADO"));
        // Nor does a code differing in case match.
        QCOMPARE(importa({T::cabecalho(), T::produto("abc", "MINUSCULO")}), Resultado::Sucesso);
        QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 3);
    }

    void mesmoProdutoDuasVezesNoArquivoFicaComONomeDaUltima()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho(), T::produto("P1", "PRIMEIRO"), T::produto("P1", "SEGUNDO")}),
                 Resultado::Sucesso);
        QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 1);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO")).toString().trimmed(),
                 QStringLiteral("SEGUNDO"));
    }

    // One flag serves the three replaced tables: only the first type met is cleared.
    void umaSoMarcaParaAsTresTabelasSubstituidas()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM UNIDADE_MEDIDA"));
        BancoTeste::executa(QStringLiteral("INSERT INTO UNIDADE_MEDIDA VALUES ('90', 'ANTIGA')"));
        BancoTeste::executa(QStringLiteral("INSERT INTO MOEDA (CD_MOEDA, NM_MOEDA) VALUES ('X98', 'ANTIGA')"));
        const int ufs = BancoTeste::conta(QStringLiteral("UNIDADE_FEDERATIVA"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho(), T::moeda("220", "DOLAR"), T::unidade("01", "UNIDADE"),
                          T::uf("ZZ", "TESTE")}),
                 Resultado::Sucesso);
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 1);
        QCOMPARE(BancoTeste::conta(QStringLiteral("UNIDADE_MEDIDA")), 2);
        QCOMPARE(BancoTeste::conta(QStringLiteral("UNIDADE_MEDIDA"), QStringLiteral("CD_UNID_MEDIDA = '90'")), 1);
        QCOMPARE(BancoTeste::conta(QStringLiteral("UNIDADE_FEDERATIVA")), ufs + 1);
        QCOMPARE(msgs.textos(),
                 QStringList{QStringLiteral("Tabela de unidade da federação importada com sucesso.")});
    }

    // A line over an existing key of a table the flag did not clear is refused by the database, which ends the
    // run; the import's transaction goes with it and the tables are as before.
    void falhaDoBancoDesfazOArquivoInteiro()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM UNIDADE_MEDIDA"));
        BancoTeste::executa(QStringLiteral("INSERT INTO UNIDADE_MEDIDA VALUES ('01', 'ANTIGA')"));
        BancoTeste::executa(QStringLiteral("INSERT INTO MOEDA (CD_MOEDA, NM_MOEDA) VALUES ('X98', 'ANTIGA')"));
        const int moedas = BancoTeste::conta(QStringLiteral("MOEDA"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        const QString numero = numeroDoFim([&] {
            importa({T::cabecalho(), T::moeda("220", "DOLAR"), T::unidade("01", "UNIDADE")});
        });
        QVERIFY(!numero.isEmpty());
        QVERIFY(!modBancoDados::TransacaoAberta());
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas[0].texto.startsWith(QStringLiteral("Error #")));
        QCOMPARE(msgs.caixas[0].titulo, QStringLiteral("BDTrataErro"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), moedas);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_MEDIDA FROM UNIDADE_MEDIDA WHERE CD_UNID_MEDIDA = '01'"))
                     .toString(),
                 QStringLiteral("ANTIGA"));
    }

    void linhaDeTipoInesperado_data()
    {
        QTest::addColumn<QString>("linha");
        QTest::newRow("tipo 06") << "06XX NADA";
        QTest::newRow("tipo 00 no meio") << "00VRT/PLN0";
        QTest::newRow("linha vazia no meio") << "";
        QTest::newRow("um só caractere") << "0";
        QTest::newRow("tipo com branco") << " 1220DOLAR";
    }
    // A currency file with a bad line at line 5 leaves MOEDA holding just the first three lines.
    void linhaDeTipoInesperado()
    {
        QFETCH(QString, linha);
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QList<int> progresso;
        const Resultado r = importa({T::cabecalho(), T::moeda("001", "UM"), T::moeda("002", "DOIS"),
                                     T::moeda("003", "TRES"), linha, T::moeda("004", "QUATRO")},
                                    [&](int p) { progresso << p; });
        QCOMPARE(r, Resultado::RegistroInesperado);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Registro inesperado!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 3);
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA"), QStringLiteral("CD_MOEDA IN ('001','002','003')")), 3);
        QVERIFY(!modBancoDados::TransacaoAberta());
        QVERIFY(!progresso.isEmpty());
        QCOMPARE(progresso.last(), 0);  // the bar is reset
    }

    void apostrofoNoNomeViraAcento_data()
    {
        QTest::addColumn<QString>("nome");
        QTest::addColumn<QString>("gravado");
        QTest::newRow("apóstrofo") << "CAIXA D'AGUA" << "CAIXA D´AGUA";
        QTest::newRow("dois apóstrofos") << "'A' E 'B'" << "´A´ E ´B´";
        QTest::newRow("acento já presente fica igual") << "CAIXA D´AGUA" << "CAIXA D´AGUA";
        QTest::newRow("letras acentuadas do Windows-1252") << "AÇÃO É “BOA” €" << "AÇÃO É “BOA” €";
    }
    void apostrofoNoNomeViraAcento()
    {
        QFETCH(QString, nome);
        QFETCH(QString, gravado);
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho(), T::produto("P'1", nome)}), Resultado::Sucesso);
        // Only the name goes through the replacement; the code is stored as the file gives it.
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = ?"),
                                   {T::fixo(QStringLiteral("P'1"), 15)})
                     .toString(),
                 T::fixo(gravado, 80));
    }

    void linhaCurtaGravaOQueTem()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(importa({T::cabecalho(), QStringLiteral("01220DOLAR")}), Resultado::Sucesso);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_MOEDA FROM MOEDA WHERE CD_MOEDA = '220'")).toString(),
                 QStringLiteral("DOLAR"));
    }

    void linhasTerminadasSoComLFOuCR()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        for (const QByteArray& fim : {QByteArray("\n"), QByteArray("\r")}) {
            QFile f(m_pasta.filePath(QStringLiteral("fim.txt")));
            QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write("00VRT/PLN0" + fim + "01220DOLAR" + fim + "01978EURO");
            f.close();
            QCOMPARE(ImportaTabela(m_pasta.path(), QStringLiteral("fim.txt")), Resultado::Sucesso);
            QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 2);
        }
    }

    void progressoAvancaAteOFim()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QStringList linhas{T::cabecalho()};
        for (int i = 0; i < 500; ++i)
            linhas << T::produto(QStringLiteral("P%1").arg(i), QStringLiteral("PRODUTO %1").arg(i));
        QList<int> progresso;
        QCOMPARE(importa(linhas, [&](int p) { progresso << p; }), Resultado::Sucesso);
        QVERIFY(progresso.size() >= 50);
        QVERIFY(progresso.size() <= 101);
        QVERIFY(std::is_sorted(progresso.begin(), progresso.end()));
        QCOMPARE(progresso.last(), 100);
    }

    void arquivoInexistente()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QCOMPARE(ImportaTabela(m_pasta.path(), QStringLiteral("nao-existe.txt")), Resultado::ArquivoInacessivel);
        QCOMPARE(msgs.caixas.size(), 1);
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    }

    // The Comex Stat NCM table of the fixtures, converted to a table file, goes in whole, twice (the second
    // time every line is an update), each as one transaction.
    void tabelaNcmReal()
    {
        const QList<T::Ncm> ncms = T::ncmReal(QStringLiteral(VRT_REFDATA_DIR));
        QCOMPARE(ncms.size(), 13726);
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK).responde(Msg::OK);
        QElapsedTimer relogio;
        relogio.start();
        QCOMPARE(importa(T::linhasNcm(ncms)), Resultado::Sucesso);
        qInfo("NCM real, %lld linhas: %lld ms", qlonglong(ncms.size()), relogio.elapsed());
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Tabela de NCM importada com sucesso.")});
        QCOMPARE(BancoTeste::conta(QStringLiteral("NCM_ITEM")), 13726);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_UNID_MED_EST FROM NCM_ITEM WHERE CD_NCM_PRODUTO = "
                                                  "'60063130'"))
                     .toString(),
                 T::fixo(QStringLiteral("QUILOGRAMA LIQUIDO"), 50));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT DESCR_NCM_PRODUTO FROM NCM_ITEM WHERE CD_NCM_PRODUTO = "
                                                  "'84463020'"))
                     .toString(),
                 T::fixo(QStringLiteral("Teares para tecidos de largura superior a 30 cm, sem lançadeira, a jato d´água"),
                         80));
        msgs.limpa();
        msgs.responde(Msg::OK);
        QCOMPARE(importa(T::linhasNcm(ncms)), Resultado::Sucesso);
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("NCM_ITEM")), 13726);
    }
};

QTEST_GUILESS_MAIN(tst_modImportacao)
#include "tst_modImportacao.moc"
