// The old version's database brought in: every table with its values, the constants for the columns the old
// version lacked, the questions and messages, and all-or-nothing on every refusal and failure. The old files are
// written by the test writer of Jet 4 files and checked with mdb-export before each test trusts them.
#include "BancoVersao1.h"
#include "TestUtil.h"
#include "core/legacy/ImportaBancoAnterior.h"

#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

using namespace BancoVersao1;

namespace {

const QString Nome = QStringLiteral("pln_vrt.mdb");
const QString NaoPertence = QStringLiteral("O banco de dados apontado não pertence a versão 1.0 do sistema!");

// A value for every column of a row of declaration `n`: the keys all `n`, so that every reference holds.
QVariant valor(const QString& coluna, ColunaJet::Tipo tipo, int largura, int n)
{
    if (coluna == "ID_VRT_MICRO")
        return QString("%1/08").arg(n, 5, 10, QChar('0'));
    if (tipo == ColunaJet::Longo)
        return n;
    if (tipo == ColunaJet::DataHora)
        return QString("2008-12-%1").arg(n + 10);
    const QString texto = QString::number(n) + coluna;
    return largura > 0 ? texto.left(largura) : texto;
}

// One row of declaration `n` in every table.
void preenche(QList<TabelaJet>& banco, int n)
{
    for (TabelaJet& t : banco) {
        const QHash<QString, int> larguras = Larguras(t.nome);
        QVariantList linha;
        for (const ColunaJet& c : t.colunas)
            linha << valor(c.nome, c.tipo, larguras.value(c.nome), n);
        t.linhas << linha;
    }
}

// What the present table must hold for a column the old version lacked.
QString constante(const QString& coluna)
{
    if (coluna == "IND_SUSP_PIS_COFINS")
        return "N";
    if (coluna.startsWith("CD_MOEDA_"))
        return "";
    return "0,0000000";
}

// Every row of a present table, its columns as text, in the order the rows went in.
QList<QStringList> linhas(const QString& tabela, QStringList* colunas)
{
    QSqlQuery q(modBancoDados::ConexaoBanco());
    q.exec("SELECT * FROM " + tabela + " ORDER BY rowid");
    const QSqlRecord r = q.record();
    colunas->clear();
    for (int i = 0; i < r.count(); ++i)
        *colunas << r.fieldName(i);
    QList<QStringList> saida;
    while (q.next()) {
        QStringList l;
        for (int i = 0; i < r.count(); ++i)
            l << (q.value(i).isNull() ? "<null>" : q.value(i).toString());
        saida << l;
    }
    return saida;
}

// A fingerprint of the whole present database, to show that a refused import changed nothing.
QString estado()
{
    QString s;
    for (const QString& t : BancoAnterior::TabelasImportadas()) {
        QStringList colunas;
        for (const QStringList& l : linhas(t, &colunas))
            s += t + ":" + l.join('|') + "\n";
    }
    return s;
}

}  // namespace

class tst_importaBancoAnterior : public QObject {
    Q_OBJECT

    QString gravaAntigo(const QList<TabelaJet>& banco, const QString& nome = Nome)
    {
        const QString caminho = m_pasta.filePath(nome);
        const QString diferenca = Grava(banco, caminho);
        if (!diferenca.isEmpty())
            qWarning("%s", qPrintable(diferenca));
        return diferenca.isEmpty() ? caminho : QString();
    }

    // A declaration of the present database, made the way the editors make one.
    void declaracaoPresente()
    {
        BancoTeste::executa("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, NR_VRT, IND_RETIFICACAO) "
                            "VALUES ('00077/26', '2', '12345678000195', ' ', 'N')");
        BancoTeste::executa("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES ('00077/26', '122008')");
    }

    QTemporaryDir m_pasta;

private slots:
    void escritorLidoPeloMdbExport()
    {
        BancoTeste banco;
        QList<TabelaJet> antigo = Vazio();
        preenche(antigo, 1);
        preenche(antigo, 2);
        QCOMPARE(antigo.size(), 48);
        QCOMPARE(Grava(antigo, m_pasta.filePath(Nome)), QString());
    }

    // Every table the import names comes across with its values, and the columns the old version lacked with
    // their constants.
    void todasAsTabelasComSeusValores()
    {
        BancoTeste banco;
        QList<TabelaJet> antigo = Vazio();
        preenche(antigo, 1);
        preenche(antigo, 2);
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::Yes);
        QList<int> progresso;
        QVERIFY(BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome, [&](int p) { progresso << p; }));
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(progresso.last(), 100);

        for (const TabelaJet& t : antigo) {
            QStringList colunas;
            const QList<QStringList> presentes = linhas(t.nome, &colunas);
            QCOMPARE(presentes.size(), 2);
            for (int n = 0; n < 2; ++n) {
                for (int c = 0; c < colunas.size(); ++c) {
                    QString esperado = constante(colunas.at(c));
                    for (int k = 0; k < t.colunas.size(); ++k) {
                        if (t.colunas.at(k).nome == colunas.at(c))
                            esperado = t.linhas.at(n).at(k).toString();
                    }
                    QVERIFY2(presentes.at(n).at(c) == esperado,
                             qPrintable(t.nome + "." + colunas.at(c) + ": " + presentes.at(n).at(c) + " em vez de "
                                        + esperado));
                }
            }
        }
    }

    void asPerguntasEOsTextos()
    {
        BancoTeste banco;
        declaracaoPresente();
        const int ufs = BancoTeste::conta("UNIDADE_FEDERATIVA");
        const int unidades = BancoTeste::conta("UNIDADE_MEDIDA");
        const int moedas = BancoTeste::conta("MOEDA");
        const int ncms = BancoTeste::conta("NCM_ITEM");
        const int produtos = BancoTeste::conta("PRODUTO");
        QList<TabelaJet> antigo = Vazio();
        for (int n = 1; n <= 3; ++n)
            preenche(antigo, n);
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::Yes).responde(Msg::Yes);
        QVERIFY(BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.caixas.size(), 3);
        QCOMPARE(msgs.caixas.at(0).texto,
                 "Existem 3 registros de VRT(s) no banco de dados da versão 1.0. Confirma importação?");
        QCOMPARE(msgs.caixas.at(0).botoes(), Msg::YesNo);
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Question);
        QCOMPARE(msgs.caixas.at(1).texto,
                 "O banco de dados da versão 2.0 já possui 1 registros de VRT!\n"
                 "Para poder executar a importação dos dados existentes no \n"
                 "banco de dados da versão 1.0 será necessário excluí-los!\n"
                 "Confirma a exclusão de 1 registros de VRT existentes no banco de dados da versão 2.0?");
        QCOMPARE(msgs.caixas.at(1).botoes(), Msg::YesNo);
        QCOMPARE(msgs.caixas.at(2).texto,
                 QString("Foram localizados registros nas tabelas do banco de dados da versão 2.0!\n"
                         "- %1 registros de Unidade Federativa.\n- %2 registros de Unidade Medida.\n"
                         "- %3 registros de Moeda.\n- %4 registros de NCM.\n- %5 registros de Produtos.\n"
                         "Para que a importação seja realizada com sucesso, estes registros devem ser substituídos "
                         "pelos existentes no banco de dados da versão 1.0. Confirma a substituição?")
                     .arg(ufs).arg(unidades).arg(moedas).arg(ncms).arg(produtos));
        QCOMPARE(msgs.caixas.at(2).botoes(), Msg::YesNo);
        // The present declaration went; the old ones came.
        QCOMPARE(BancoTeste::conta("VRT", "ID_VRT_MICRO = '00077/26'"), 0);
        QCOMPARE(BancoTeste::conta("VRT"), 3);
        QCOMPARE(BancoTeste::conta("MOEDA"), 3);
    }

    void naoEmQualquerPerguntaDeixaOBancoComoEstava_data()
    {
        QTest::addColumn<int>("perguntasSim");
        QTest::newRow("confirma importação") << 0;
        QTest::newRow("exclusão das VRTs") << 1;
        QTest::newRow("substituição das tabelas") << 2;
    }
    void naoEmQualquerPerguntaDeixaOBancoComoEstava()
    {
        QFETCH(int, perguntasSim);
        BancoTeste banco;
        declaracaoPresente();
        const QString antes = estado();
        QList<TabelaJet> antigo = Vazio();
        preenche(antigo, 1);
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        for (int i = 0; i < perguntasSim; ++i)
            msgs.responde(Msg::Yes);
        msgs.responde(Msg::No);
        QVERIFY(!BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.caixas.size(), perguntasSim + 1);
        QCOMPARE(estado(), antes);
    }

    void semRegistrosDeVrtNadaMuda()
    {
        BancoTeste banco;
        const QString antes = estado();
        QList<TabelaJet> antigo = Vazio();
        Insere(antigo, "MOEDA", {{"CD_MOEDA", "220"}, {"NM_MOEDA", "DOLAR"}});
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.caixas.size(), 1);
        QCOMPARE(msgs.caixas.at(0).texto, "Não existem registros de VRT(s) no banco de dados da versão antiga!\n"
                                          "O processo de importação não será realizado!");
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
        QCOMPARE(estado(), antes);
    }

    void bancoPresenteVazioSoAPrimeiraPergunta()
    {
        BancoTeste banco;
        for (const char* t : {"MOEDA", "UNIDADE_MEDIDA", "UNIDADE_FEDERATIVA", "NCM_ITEM", "PRODUTO"})
            BancoTeste::executa(QString("DELETE FROM ") + t);
        QList<TabelaJet> antigo = Vazio();
        preenche(antigo, 1);
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes);
        QVERIFY(BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.caixas.size(), 1);
        QCOMPARE(BancoTeste::conta("VRT"), 1);
    }

    void semTabelaVrtNaoPertenceAVersao1()
    {
        BancoTeste banco;
        const QString antes = estado();
        QList<TabelaJet> antigo = Vazio();
        antigo.removeIf([](const TabelaJet& t) { return t.nome == "VRT"; });
        QVERIFY(EscreveJet4(m_pasta.filePath(Nome), antigo));

        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.caixas.size(), 1);
        QCOMPARE(msgs.caixas.at(0).texto, NaoPertence);
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
        QCOMPARE(msgs.caixas.at(0).botoes(), Msg::OKCancel);
        QCOMPARE(estado(), antes);
    }

    void arquivoQueNaoEAccessNaoPertenceAVersao1()
    {
        BancoTeste banco;
        QFile f(m_pasta.filePath(Nome));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("00VRT/PLN isto não é um banco de dados\r\n");
        f.close();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.textos(), QStringList{NaoPertence});
    }

    // A table whose definition page is damaged stops the import after the questions: the message of the
    // routine's own handler, and the present data as they were.
    void tabelaDanificadaDeixaOBancoComoEstava()
    {
        BancoTeste banco;
        declaracaoPresente();
        const QString antes = estado();
        QList<TabelaJet> antigo = Vazio();
        preenche(antigo, 1);
        const QString caminho = gravaAntigo(antigo);
        QVERIFY(!caminho.isEmpty());
        // Tables are written in the order the import reads them, each as its definition page and then its data:
        // the last definition page of the file (past the catalog's, page 2) is that of ITEM_NFS_100.
        QFile f(caminho);
        QVERIFY(f.open(QIODevice::ReadWrite));
        QByteArray bytes = f.readAll();
        int danificadas = 0;
        for (int p = int(bytes.size() / 4096) - 1; p > 2 && danificadas == 0; --p) {
            if (bytes.at(p * 4096) == 0x02) {
                bytes[p * 4096] = 0x7F;
                ++danificadas;
            }
        }
        QCOMPARE(danificadas, 1);
        f.seek(0);
        f.write(bytes);
        f.close();

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::Yes).responde(Msg::Yes).responde(Msg::OK);
        QVERIFY(!BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(msgs.caixas.size(), 4);
        QCOMPARE(msgs.caixas.at(3).texto, "Ocorreu um erro durente a importação do banco de dados da versão 1.0!\n"
                                          "A tabela ITEM_NFS_100 não existe ou não pode ser lida.");
        QCOMPARE(msgs.caixas.at(3).icone(), Msg::Critical);
        QCOMPARE(estado(), antes);
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    void itemMensalDoArquivoAntigoTemVlPisZero()
    {
        BancoTeste banco;
        QList<TabelaJet> antigo = Vazio();
        Insere(antigo, "VRT", {{"ID_VRT_MICRO", "00001/08"}, {"CD_TIPO_VRT", "2"}, {"NR_VRT", " "}});
        Insere(antigo, "VRT_MENSAL", {{"ID_VRT_MICRO", "00001/08"}, {"DT_REFERENCIA_VRT", "122008"}});
        Insere(antigo, "ITEM_VRT_MEN", {{"ID_ITEM_VRT", 41}, {"ID_VRT_MICRO", "00001/08"}, {"IND_MOD_INTERNACAO", "1"}});
        Insere(antigo, "DESTINO_ITEM_VRT_MEN", {{"ID_DEST_PRODUTO", 9}, {"ID_ITEM_VRT", 41}, {"CD_LOCAL_DESTINO", "1"}});
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::Yes);
        QVERIFY(BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(BancoTeste::valor("SELECT VL_PIS FROM DESTINO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = 41").toString(),
                 "0,0000000");
        QCOMPARE(BancoTeste::valor("SELECT VL_COFINS FROM DESTINO_ITEM_VRT_MEN WHERE ID_DEST_PRODUTO = 9").toString(),
                 "0,0000000");
    }

    // The fiscal operations are not emptied before the old file's go in: a code the database already holds keeps
    // its row, and a code it lacks comes from the old file.
    void operacaoFiscalPresenteFicaEANovaEntra()
    {
        BancoTeste banco;
        BancoTeste::executa("INSERT OR REPLACE INTO OPERACAO_FISCAL (CD_OP_FISCAL, IN_ENTRADA_SAIDA, DESCR_OP_FISCAL) "
                            "VALUES ('5101', 'S', 'Venda presente')");
        const int antes = BancoTeste::valor("SELECT count(*) FROM OPERACAO_FISCAL").toInt();
        QList<TabelaJet> antigo = Vazio();
        Insere(antigo, "VRT", {{"ID_VRT_MICRO", "00001/08"}, {"CD_TIPO_VRT", "1"}, {"NR_VRT", " "}});
        Insere(antigo, "OPERACAO_FISCAL", {{"CD_OP_FISCAL", "5101"}, {"IN_ENTRADA_SAIDA", "S"},
                                           {"DESCR_OP_FISCAL", "Venda antiga"}});
        Insere(antigo, "OPERACAO_FISCAL", {{"CD_OP_FISCAL", "9Z9Z"}, {"IN_ENTRADA_SAIDA", "E"},
                                           {"DESCR_OP_FISCAL", "Só no arquivo antigo"}});
        QVERIFY(!gravaAntigo(antigo).isEmpty());

        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::Yes);
        QVERIFY(BancoAnterior::ImportaBancoAnterior(m_pasta.path(), Nome));
        QCOMPARE(BancoTeste::valor("SELECT DESCR_OP_FISCAL FROM OPERACAO_FISCAL WHERE CD_OP_FISCAL = '5101'").toString(),
                 "Venda presente");
        QCOMPARE(BancoTeste::valor("SELECT DESCR_OP_FISCAL FROM OPERACAO_FISCAL WHERE CD_OP_FISCAL = '9Z9Z'").toString(),
                 "Só no arquivo antigo");
        QCOMPARE(BancoTeste::valor("SELECT count(*) FROM OPERACAO_FISCAL").toInt(), antes + 1);
    }
};

QTEST_GUILESS_MAIN(tst_importaBancoAnterior)
#include "tst_importaBancoAnterior.moc"
