// vrt-cli as a user runs it: the built binary driven by QProcess on a fresh copy of the delivered database.
#include "ArquivoTeste.h"
#include "TestUtil.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
struct Execucao {
    int status = -1;
    QString saida;
    QString erros;
};
}  // namespace

class TstVrtCli : public QObject {
    Q_OBJECT

private:
    std::optional<BancoDeLeitura> m_banco;
    Execucao roda(QStringList argumentos, bool comBanco = true)
    {
        if (comBanco)
            argumentos << t("--banco") << m_banco->arquivo();
        QProcess p;
        p.setWorkingDirectory(m_banco->pasta());
        p.start(t(VRT_BINARY_DIR "/vrt-cli"), argumentos);
        p.waitForFinished(120000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }
    QString arquivo(const QString& nome, const QStringList& linhas)
    {
        const QString caminho = m_banco->pasta() + QLatin1Char('/') + nome;
        grava(caminho, bytes(linhas));
        return caminho;
    }
    QStringList declaracao() { return cabecalhoMensal() + QStringList{r41(t("P4"), t("Caneca D'Ávila “€”"), t("UN"))}; }

private slots:
    void init() { m_banco.emplace(); }
    void cleanup() { m_banco.reset(); }

    void ajudaEmPortugues()
    {
        const Execucao e = roda({t("--help")}, false);
        QCOMPARE(e.status, 0);
        QVERIFY(e.saida.startsWith(t("uso: vrt-cli COMANDO")));
        QVERIFY(e.saida.contains(t("importar ARQUIVO [--restaurar] [--substituir]")));
    }

    void errosDeUsoSaemCom2_data()
    {
        QTest::addColumn<QStringList>("argumentos");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("sem comando") << QStringList{} << t("vrt-cli: falta o comando");
        QTest::newRow("comando desconhecido") << QStringList{t("apagar")} << t("vrt-cli: comando desconhecido: apagar");
        QTest::newRow("opção desconhecida") << QStringList{t("listar"), t("--tudo")} << t("vrt-cli: opção desconhecida: --tudo");
        QTest::newRow("importar sem arquivo") << QStringList{t("importar")}
                                              << t("vrt-cli: importar precisa de exatamente um ARQUIVO");
        QTest::newRow("gravar sem pasta") << QStringList{t("gravar"), t("00001/09")}
                                          << t("vrt-cli: gravar precisa de --pasta DIR");
        QTest::newRow("banco sem valor") << QStringList{t("listar"), t("--banco")}
                                         << t("vrt-cli: a opção --banco precisa de um valor");
        QTest::newRow("substituir fora de importar") << QStringList{t("listar"), t("--substituir")}
                                                     << t("vrt-cli: --substituir serve só a importar e banco-anterior");
    }
    void errosDeUsoSaemCom2()
    {
        QFETCH(QStringList, argumentos);
        QFETCH(QString, mensagem);
        const Execucao e = roda(argumentos, false);
        QCOMPARE(e.status, 2);
        QVERIFY2(e.erros.startsWith(mensagem + t("\n")), qPrintable(e.erros));
    }

    void verificarArquivoBomNaoTocaNoBanco()
    {
        const QString caminho = arquivo(t("boa"), declaracao());
        // A database that does not exist: the check never opens one.
        const Execucao e = roda({t("verificar"), caminho, t("--banco"), t("/nao/existe.mdb")}, false);
        QCOMPARE(e.status, 0);
        QCOMPARE(e.saida, t("Nenhum problema encontrado (5 registros).\n"));
    }

    void verificarListaTodosOsProblemas()
    {
        QStringList l = declaracao();
        l[0] = Linha(61).poe(1, l[0]).poe(11, t("01.00")).texto();
        l << Linha(184).poe(1, r41(t("P5"), t("Fio"), t("M"))).poe(6, t("8471A012")).texto();
        l << t("99");
        l << r12();
        l << Linha(93).poe(1, r12()).texto() + t("X");
        l << Linha(184).poe(1, r41(t("P6"), t("Fita"), t("M"))).poe(94, t("0000000000000X")).texto();
        const Execucao e = roda({t("verificar"), arquivo(t("ruim"), l)}, false);
        QCOMPARE(e.status, 1);
        QCOMPARE(e.saida.split(QLatin1Char('\n'), Qt::SkipEmptyParts),
                 (QStringList{
                     t("linha 1, posições 11-15 (VERSAO_LAYOUT): Erro no registro 00 - Versão do sistema!"),
                     t("linha 6, posições 6-13 (CD_NCM_PRODUTO): campo numérico com \"8471A012\": só dígitos são aceitos"),
                     t("linha 7, posições 1-2: Registro inesperado (tipo \"99\")"),
                     t("linha 8, posições 1-2: registro 12 sem o registro 11 do seu produto antes"),
                     t("linha 9: Erro no 9º registro (registro 12) - Tamanho inválido! (94 caracteres, esperados 93)"),
                     t("linha 9, posições 1-2: registro 12 sem o registro 11 do seu produto antes"),
                     t("linha 10, posições 94-107 (ZEROS_94): esperado \"00000000000000\", encontrado \"0000000000000X\""),
                     t("7 problemas encontrados.")}));
    }

    void verificarDataInvalida()
    {
        QStringList l = cabecalhoMensal();
        l << r11(t("1"), t("P1"), t("N"), t("00000000100000"), t("00000000100000"), t("UN"));
        l << Linha(93).poe(1, r12()).poe(31, t("20080231")).texto();
        const Execucao e = roda({t("verificar"), arquivo(t("data"), l)}, false);
        QCOMPARE(e.status, 1);
        QCOMPARE(e.saida, t("linha 6, posições 31-38 (DT_EMISS_NF_AQUIS): data inválida \"20080231\" (esperado aaaammdd)\n"
                            "1 problema encontrado.\n"));
    }

    void importarEDepoisRecusarADuplicada()
    {
        const QString caminho = arquivo(t("decl"), declaracao());
        Execucao e = roda({t("importar"), caminho});
        QCOMPARE(e.status, 0);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: Relatório da importação:\n\n- 5 registros importados.\n"
                            "- 1 produtos cadastrados.\n\nO arquivo foi importado com sucesso! \n"
                            "Número de identificação: ") + identificacao(1) + t("\n"));
        QCOMPARE(BancoTeste::valor(t("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'P4'")).toString(),
                 t("Caneca D'Ávila “€”"));

        e = roda({t("importar"), caminho});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: Existe uma VRT para este CNPJ/Data de Referência, "
                            "deseja substituí-la? [Não] (use --substituir para substituir)\n"));

        e = roda({t("importar"), caminho, t("--substituir")});
        QCOMPARE(e.status, 0);
        QVERIFY(e.erros.contains(t("deseja substituí-la? [Sim]\n")));
        QVERIFY(e.erros.endsWith(t("Número de identificação: ") + identificacao(1) + t("\n")));
        QCOMPARE(BancoTeste::conta(t("VRT")), 1);
    }

    void importarComErroNaoDeixaNada()
    {
        QStringList l = declaracao();
        l[4] = r41(t("P4"), t("Cabo"), t("UN"), t("11111111"));
        const Execucao e = roda({t("importar"), arquivo(t("ruim"), l)});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: Erro no 5º registro (registro 41) - NCM não cadastrada!\n"));
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
        QCOMPARE(BancoTeste::conta(t("PRODUTO")), 0);
    }

    void restaurarRespondeSimAOrigem()
    {
        QStringList l = declaracao();
        l[0] = registro00Mensal(QLatin1Char('1'));
        const Execucao e = roda({t("importar"), arquivo(t("transmitida"), l), t("--restaurar")});
        QCOMPARE(e.status, 0);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: Esta VRT foi gravada para transmissão. Deseja continuar a "
                            "restaurar backup? [Sim]\nVRT - Vistoria de Remessa Tributada: Backup restaurado com o nome ") +
                              identificacao(1) + t("\n"));
    }

    void listarComoAEscolha()
    {
        roda({t("importar"), arquivo(t("a"), declaracao())});
        QStringList outra = cabecalhoIndividual();
        roda({t("importar"), arquivo(t("b"), outra)});
        const Execucao e = roda({t("listar")});
        QCOMPARE(e.status, 0);
        const QStringList linhas = e.saida.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(linhas.size(), 3);
        QVERIFY(linhas.at(0).startsWith(t("Identificação  Internador")));
        QVERIFY(linhas.at(0).endsWith(t("Situação")));
        // Newest identification first; the individual row shows invoice and series, the monthly its month.
        QVERIFY2(linhas.at(1).startsWith(identificacao(2) + t("       12.345.678/0001-95")), qPrintable(linhas.at(1)));
        QVERIFY(linhas.at(1).contains(t("Individual")));
        QVERIFY(linhas.at(1).contains(t("004321")));
        QVERIFY(linhas.at(2).startsWith(identificacao(1)));
        QVERIFY(linhas.at(2).contains(t("Mensal ")));
        QVERIFY(linhas.at(2).contains(t(" 12/2008 ")));
        QVERIFY(linhas.at(2).endsWith(t("Original")));
    }

    void gravarParaTransmissaoEComoBackup()
    {
        roda({t("importar"), arquivo(t("decl"), declaracao())});
        const QString pasta = m_banco->pasta() + t("/saida");
        QDir().mkpath(pasta);
        Execucao e = roda({t("gravar"), identificacao(1), t("--pasta"), pasta});
        QCOMPARE(e.status, 0);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: Arquivo gerado.\n"));
        const QString nome = pasta + t("/") + identificacao(1).remove(QLatin1Char('/'));
        QCOMPARE(e.saida, nome + t("\n"));
        QFile f(nome);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray transmissao = f.readAll();
        f.close();
        QCOMPARE(transmissao.left(10), QByteArray("00VRT/PLN1"));

        e = roda({t("gravar"), identificacao(1), t("--pasta"), pasta, t("--backup")});
        QCOMPARE(e.status, 0);
        QCOMPARE(e.erros, t("VRT - Vistoria de Remessa Tributada: Backup realizado com sucesso.\n"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray backup = f.readAll();
        QCOMPARE(backup.size(), transmissao.size());
        QCOMPARE(backup.at(9), '3');
        QCOMPARE(backup.mid(10), transmissao.mid(10));

        // What the program writes passes the check.
        e = roda({t("verificar"), nome}, false);
        QCOMPARE(e.status, 0);
        QCOMPARE(e.saida, t("Nenhum problema encontrado (5 registros).\n"));

        // An unknown identification refuses the run: nothing is written and no success text is printed.
        QVERIFY(QFile::remove(nome));
        e = roda({t("gravar"), identificacao(1), t("99999/99"), t("--pasta"), pasta});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, t("vrt-cli: identificação não encontrada: 99999/99\n"));
        QCOMPARE(e.saida, QString());
        QVERIFY(!QFile::exists(nome));
    }

    void gravarEmPastaInexistente()
    {
        const Execucao e = roda({t("gravar"), t("00001/09"), t("--pasta"), m_banco->pasta() + t("/nao")});
        QCOMPARE(e.status, 1);
        QVERIFY(e.erros.startsWith(t("vrt-cli: pasta não encontrada: ")));
    }

    void bancoAoLadoDoExecutavelPorPadrao()
    {
        // Without --banco the command uses the delivered database beside the executable.
        const Execucao e = roda({t("listar")}, false);
        QCOMPARE(e.status, 0);
        QVERIFY(e.saida.startsWith(t("Identificação")));
        const Execucao f = roda({t("listar"), t("--banco"), m_banco->pasta() + t("/nada.mdb")}, false);
        QCOMPARE(f.status, 1);
        QVERIFY(f.erros.startsWith(t("vrt-cli: banco de dados não encontrado: ")));
    }
};

QTEST_GUILESS_MAIN(TstVrtCli)
#include "tst_vrtCli.moc"
