// Reading a declaration file: the head records 00 to 03, their messages in order, the questions of
// "Restaurar Backup", the duplicate question, the final report and the values of records 02 and 03.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QtTest>

using namespace ArquivoTeste;

class TstLeArquivoCabecalho : public QObject {
    Q_OBJECT

private:
    QString arquivo(const QByteArray& conteudo)
    {
        const QString caminho = m_banco->pasta() + QStringLiteral("/0000126");
        grava(caminho, conteudo);
        return caminho;
    }
    bool le(const QByteArray& conteudo, ModoLeitura modo = ModoLeitura::Importar)
    {
        arquivo(conteudo);
        return LeArquivoVrtEm(m_banco->pasta(), QStringLiteral("0000126"), modo);
    }
    BancoTeste* m_banco = nullptr;

private slots:
    void init() { m_banco = new BancoTeste; }
    void cleanup()
    {
        delete m_banco;
        m_banco = nullptr;
    }

    void mensagensDoCabecalho_data()
    {
        QTest::addColumn<QStringList>("linhas");
        QTest::addColumn<QString>("mensagem");

        const QStringList cab = cabecalhoMensal();
        auto troca = [&cab](int i, const QString& linha) {
            QStringList l = cab;
            l[i] = linha;
            return l;
        };
        QTest::newRow("registro 00 de 60 caracteres")
            << troca(0, cab[0].left(60)) << QStringLiteral("Erro no registro 00 - Tamanho inválido!");
        QTest::newRow("tamanho testado antes do tipo no 00")
            << troca(0, QStringLiteral("01") + cab[0].mid(2, 57)) << QStringLiteral("Erro no registro 00 - Tamanho inválido!");
        QTest::newRow("registro 00 de outro tipo")
            << troca(0, QStringLiteral("01") + cab[0].mid(2)) << QStringLiteral("Erro no 1º registro - Tipo de registro não é 00!");
        QTest::newRow("origem 4 no cabeçalho")
            << troca(0, Linha(61).poe(1, cab[0]).poe(10, QStringLiteral("4")).texto()) << QStringLiteral("Erro no Header");
        QTest::newRow("cabeçalho sem VRT/PLN")
            << troca(0, Linha(61).poe(1, cab[0]).poe(3, QStringLiteral("VRT-PLN")).texto()) << QStringLiteral("Erro no Header");
        QTest::newRow("versão 01.00")
            << troca(0, Linha(61).poe(1, cab[0]).poe(11, QStringLiteral("01.00")).texto())
            << QStringLiteral("Erro no registro 00 - Versão do sistema!");
        QTest::newRow("tipo de VRT 3")
            << troca(0, Linha(61).poe(1, cab[0]).poe(16, QStringLiteral("3")).texto())
            << QStringLiteral("Erro no registro 00 - Tipo VRT inválido!");
        QTest::newRow("CNPJ de catorze zeros")
            << troca(0, registro00Mensal(QLatin1Char('3'), QStringLiteral("200812"), QString(14, QLatin1Char('0'))))
            << QStringLiteral("Erro no registro 00 - CNPJ inválido!");
        QTest::newRow("só o registro 00") << cab.mid(0, 1)
                                          << QStringLiteral("Erro no arquivo - Não foi localizado o registro 01!");
        QTest::newRow("registro 01 de 112 caracteres")
            << troca(1, cab[1].left(112)) << QStringLiteral("Erro no registro 01 - Tamanho inválido!");
        QTest::newRow("registro 01 de outro tipo")
            << troca(1, QStringLiteral("02") + cab[1].mid(2)) << QStringLiteral("Erro no 2º registro - Tipo de registro não é 01!");
        QTest::newRow("sem registro 02") << cab.mid(0, 2)
                                         << QStringLiteral("Erro no arquivo - Não foi localizado o registro 02!");
        QTest::newRow("registro 02 de 564 caracteres")
            << troca(2, cab[2] + QLatin1Char(' ')) << QStringLiteral("Erro no registro 02 - Tamanho inválido!");
        QTest::newRow("registro 02 de outro tipo")
            << troca(2, QStringLiteral("03") + cab[2].mid(2)) << QStringLiteral("Erro no 3º registro - Tipo de registro não é 02!");
        QTest::newRow("mandado judicial X")
            << troca(2, Linha(563).poe(1, cab[2]).poe(3, QStringLiteral("X")).texto())
            << QStringLiteral("Erro no registro 02 - Indicador de mandado judicial inválido!");
        QTest::newRow("sem registro 03") << cab.mid(0, 3)
                                         << QStringLiteral("Erro no arquivo - Não foi localizado o registro 03!");
        QTest::newRow("registro 03 de 523 caracteres")
            << troca(3, cab[3].left(523)) << QStringLiteral("Erro no registro 03 - Tamanho inválido!");
        QTest::newRow("registro 03 de outro tipo")
            << troca(3, QStringLiteral("02") + cab[3].mid(2)) << QStringLiteral("Erro no 4º registro - Tipo de registro não é 03!");
    }
    void mensagensDoCabecalho()
    {
        QFETCH(QStringList, linhas);
        QFETCH(QString, mensagem);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!le(bytes(linhas)));
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
        QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
        QCOMPARE(msgs.inesperadas, 0);
        // Nothing stays: no declaration, no number taken.
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT_MENSAL")), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 0);
    }

    void arquivoVazioNaoTemRegistros()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!le(QByteArray()));
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Erro - Arquivo sem registros!")});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
    }

    void soOsQuatroRegistrosDeCabecalhoDaoUmaVrtSemItens()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le(bytes(cabecalhoMensal())));
        const QString id = identificacao(1);
        QCOMPARE(msgs.textos(),
                 QStringList{QStringLiteral("Relatório da importação:\r\r- 4 registros importados.\r\r"
                                            "O arquivo foi importado com sucesso! \rNúmero de identificação: ") +
                             id});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Information);
        QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT"), QStringLiteral("ID_VRT_MICRO = ?"), {id}), 1);
        QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_VRT_MEN")), 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")).toInt(), 1);
    }

    void arquivoSemFimDeLinhaNoFimEhLido()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le(bytes(cabecalhoMensal(), false)));
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas.at(0).texto.startsWith(QStringLiteral("Relatório da importação:")));
    }

    void camposDoCabecalhoMensal()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le(bytes(cabecalhoMensal())));
        const QString id = identificacao(1);
        // December 2008: written year first, stored month first.
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?"), {id})
                     .toString(),
                 QStringLiteral("122008"));
        const QString campos = QStringLiteral(
            "SELECT CD_TIPO_VRT || '|' || NR_CNPJ_INTERNADOR || '|' || IND_MANDADO_JUDIC || '|' || NR_BANCO_ARREC || '|' ||"
            " NR_AG_BCO_ARREC || '|' || NR_CC_AG_BCO_ARREC || '|' || NR_INSCRICAO_EST || '|' || NR_VRT || '|' ||"
            " NR_PROC_ADM_FISCAL || '|' || IND_RESTITUICAO || '|' || IND_RETIFICACAO FROM VRT WHERE ID_VRT_MICRO = ?");
        QCOMPARE(BancoTeste::valor(campos, {id}).toString(),
                 QStringLiteral("2|12345678000195|N|001|3344|0000000000012345678|00000000000000||00000000000000000|N|N"));
    }

    void bancoZeradoDaTextoVazio()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecalhoMensal();
        l[1] = Linha(113).poe(1, l[1]).zeros(88, 26).texto();
        QVERIFY(le(bytes(l)));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_BANCO_ARREC || '|' || NR_AG_BCO_ARREC || '|' || "
                                                  "NR_CC_AG_BCO_ARREC FROM VRT"))
                     .toString(),
                 QStringLiteral("||"));
    }

    void camposDoCabecalhoIndividual()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecalhoIndividual();
        // A Null CFOP was written as "000" and a blank.
        l[1] = Linha(113).poe(1, l[1]).poe(66, QStringLiteral("000 ")).texto();
        QVERIFY(le(bytes(l)));
        const QString id = identificacao(1);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT IN_SAIDA_ALC_AO FROM VRT_INDIVIDUAL WHERE ID_VRT_MICRO = ?"), {id})
                     .toString(),
                 QStringLiteral("N"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_INSCRICAO_EST FROM VRT")).toString(),
                 QStringLiteral("00000123456789"));
        const QString nota = QStringLiteral(
            "SELECT NR_NF_SAIDA || '|' || NR_SERIE_NF_SAIDA || '|' || DT_EMISS_NF_SAIDA || '|' || DT_SAIDA_NF_SAIDA ||"
            " '|' || CD_OP_FISCAL || '|' || CD_TIPO_DESTINAT || '|' || NR_DESTINAT || '|' || CD_UF_DESTINO"
            " FROM NOTA_FISCAL_SAIDA WHERE ID_VRT_MICRO = ?");
        QCOMPARE(BancoTeste::valor(nota, {id}).toString(),
                 QStringLiteral("004321|1    |15032009|16032009|000 |1|98765432000198|AM"));
    }

    void restaurarPergunta_data()
    {
        QTest::addColumn<QString>("origem");
        QTest::addColumn<QString>("pergunta");
        QTest::newRow("gravada para transmissão")
            << QStringLiteral("1")
            << QStringLiteral("Esta VRT foi gravada para transmissão. Deseja continuar a restaurar backup?");
        QTest::newRow("gerada por outro programa")
            << QStringLiteral("2")
            << QStringLiteral("Esta VRT foi gerada pela estrutura própria para transmissão. Deseja continuar a "
                              "restaurar backup?");
    }
    void restaurarPergunta()
    {
        QFETCH(QString, origem);
        QFETCH(QString, pergunta);
        {
            MensagensRoteiro msgs;
            msgs.responde(Msg::No);
            QVERIFY(!le(bytes(cabecalhoMensal(origem.at(0))), ModoLeitura::Restaurar));
            QCOMPARE(msgs.textos(), QStringList{pergunta});
            QCOMPARE(msgs.caixas.at(0).botoes(), Msg::YesNo);
            QCOMPARE(msgs.caixas.at(0).icone(), Msg::Question);
            QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
            QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 0);
        }
        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::OK);
        QVERIFY(le(bytes(cabecalhoMensal(origem.at(0))), ModoLeitura::Restaurar));
        QCOMPARE(msgs.textos(), (QStringList{pergunta, QStringLiteral("Backup restaurado com o nome ") + identificacao(1)}));
        QCOMPARE(msgs.inesperadas, 0);
    }

    void restaurarBackupDeOrigem3NaoPergunta()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le(bytes(cabecalhoMensal(QLatin1Char('3'))), ModoLeitura::Restaurar));
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Backup restaurado com o nome ") + identificacao(1)});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Information);
    }

    void importarNuncaPerguntaPelaOrigem()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le(bytes(cabecalhoMensal(QLatin1Char('1')))));
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas.at(0).texto.startsWith(QStringLiteral("Relatório da importação:")));
    }

    void mandadoComValorZeroVoltaComoZeroVirgulaZeroZero()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecalhoMensal();
        // Slot 34 (fine for delay) flagged with a zero value, slot 1 (import tax) with 1.234,56.
        l[2] = Linha(563).poe(1, l[2]).poe(3, QStringLiteral("S")).poe(532, QStringLiteral("S"))
                   .poe(4, QStringLiteral("S000000000123456")).texto();
        QVERIFY(le(bytes(l)));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT IND_MANDADO_JUDIC FROM VRT")).toString(), QStringLiteral("S"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 2);
        QCOMPARE(BancoTeste::valor(QStringLiteral(
                     "SELECT VL_TOTAL_DIVER_MANDADO || '|' || NM_MOD_INT_MANDADO || '|' || NM_TIPO_DIVER_MANDADO "
                     "FROM VALORES_DIVER_MANDADO WHERE CD_MOD_MANDADO = '9' AND CD_TIPO_DIVER_MANDADO = '2'"))
                     .toString(),
                 QStringLiteral("0,00|VRT|Multa por Atraso"));
        QCOMPARE(BancoTeste::valor(QStringLiteral(
                     "SELECT VL_TOTAL_DIVER_MANDADO || '|' || NM_TIPO_DIVER_MANDADO FROM VALORES_DIVER_MANDADO "
                     "WHERE CD_MOD_MANDADO = '1' AND CD_TIPO_DIVER_MANDADO = '3'"))
                     .toString(),
                 QStringLiteral("1234,56|Imposto Importaçao"));
    }

    void retificacaoPerdeValoresZeroELeOsOutros()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecalhoMensal();
        // Rectifies 0912345678; slot 2 (PE fine on II) 10,00; slot 13 explicitly zero.
        l[3] = Linha(524).poe(1, l[3]).poe(3, QStringLiteral("0912345678")).poe(13, QStringLiteral("00000000000004321"))
                   .poe(45, QStringLiteral("000000000001000")).texto();
        QVERIFY(le(bytes(l)));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT IND_RETIFICACAO || '|' || NR_VRT || '|' || NR_PROC_ADM_FISCAL FROM VRT"))
                     .toString(),
                 QStringLiteral("S|0912345678|00000000000004321"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_RETIF")), 1);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT CD_MOD_RETIF || '|' || CD_TIPO_DIVER_RETIF || '|' || "
                                                  "VL_TOTAL_DIVER_RETIF || '|' || NM_TIPO_DIVER_RETIF FROM VALORES_DIVER_RETIF"))
                     .toString(),
                 QStringLiteral("1|3|10,00|Multa de Mora II"));
    }

    void semNumeroDeVrtOsValoresDeRetificacaoNaoSaoLidos()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecalhoMensal();
        l[3] = Linha(524).poe(1, l[3]).poe(45, QStringLiteral("000000000001000")).texto();
        QVERIFY(le(bytes(l)));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT IND_RETIFICACAO || '|' || NR_VRT FROM VRT")).toString(),
                 QStringLiteral("N|"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_RETIF")), 0);
    }

    void registroDesconhecidoEhInesperadoSemIcone()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecalhoMensal();
        l << QStringLiteral("99 qualquer coisa");
        QVERIFY(!le(bytes(l)));
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Registro inesperado")});
        QCOMPARE(msgs.caixas.at(0).icone(), 0);
        QCOMPARE(msgs.caixas.at(0).botoes(), Msg::OKOnly);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
    }

    void progressoChegaAoTotal()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        arquivo(bytes(cabecalhoMensal()));
        LeArquivoVrt leitura(m_banco->pasta(), QStringLiteral("0000126"));
        QList<QPair<qint64, qint64>> avisos;
        leitura.defineProgresso([&](qint64 lidas, qint64 total) { avisos.append({lidas, total}); });
        QVERIFY(leitura.executa());
        QVERIFY(!avisos.isEmpty());
        QCOMPARE(avisos.last(), (QPair<qint64, qint64>(4, 4)));
        QCOMPARE(leitura.resultado().ContaLinhas, 4);
        QCOMPARE(leitura.resultado().IdVrtLida, identificacao(1));
    }

    void arquivoInexistente()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!LeArquivoVrtEm(m_banco->pasta(), QStringLiteral("naoexiste")));
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas.at(0).texto.startsWith(QStringLiteral("Não foi possível abrir o arquivo ")));
    }
};

QTEST_GUILESS_MAIN(TstLeArquivoCabecalho)
#include "tst_leArquivoCabecalho.moc"
