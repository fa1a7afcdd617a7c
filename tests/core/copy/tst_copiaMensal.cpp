#include "CopiaTeste.h"

#include "core/copy/CopiaVrt.h"
#include "core/file/numbering/IdentificacaoPrevista.h"

#include <QtTest>

using namespace CenariosGravacao;
using namespace CopiaTeste;

class tst_copiaMensal : public QObject {
    Q_OBJECT
private slots:
    void retificadoraGravaOArquivoDaOrigemComONumeroNovoEOProcessoVazio();
    void originalGravaOArquivoSemMesSemRetificacaoESemSeusValores();
    void originalTemMesDeReferenciaVazio();
    void retificadoraMantemOMesDeReferencia();
    void valoresDeRetificacaoSoNaRetificadora_data();
    void valoresDeRetificacaoSoNaRetificadora();
    void numeroDaVrtEhODadoNosDoisCasos_data();
    void numeroDaVrtEhODadoNosDoisCasos();
    void cabecaCopiaSuasColunasEDeixaProcessoERestituicao();
    void numeradorSomaUmSemOlharOAno();
    void semLinhaNoNumeradorONumeroNaoAvanca();
    void documentoSem288NaoLevaSuaLinhaDeImportacao();
    void itensDeMesmoNcmEInsumoNaoRepetemTotais();
    void mensagemSituacaoEProgresso();
    void falhaDeixaOBancoComoEstava();

private:
    QTemporaryDir m_pasta;
};

namespace {
const QString ORIGEM = QStringLiteral("00012/09");
const QString NOVA = QStringLiteral("00013/09");

void copia(CopiaVrt::Tipo tipo, const QString& numero = QStringLiteral("0912345670"),
           const CopiaVrt::Acompanhamento& a = {})
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    CopiaVrt::ExecutaCopiaVrtMensal({ORIGEM, QStringLiteral(" ") + NOVA + QStringLiteral(" "), numero, tipo}, a);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("VRT Mensal copiada com sucesso!")});
}
}  // namespace

void tst_copiaMensal::retificadoraGravaOArquivoDaOrigemComONumeroNovoEOProcessoVazio()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Retificadora);
    ArquivoEmCampos esperado = campos(QStringLiteral("mensal_completa.txt"));
    esperado.troca(3, 1, QStringLiteral("0912345670"));          // NR_VRT: the number given
    esperado.troca(3, 2, QString(17, u'0'));                       // NR_PROC_ADM_FISCAL: empty
    // IND_RETIFICACAO is not in the file. The document of item B's destination 3 is not of Decreto-Lei 288/67 nor of suspended PIS/COFINS: its
    // import row stays behind, and with it the obsolescence value of its record 13.
    esperado.troca(10, 14, QString(15, u'0'));
    QVERIFY(mesmosBytes(gravada(NOVA, m_pasta.path()), esperado.bytes()));
}

void tst_copiaMensal::originalGravaOArquivoSemMesSemRetificacaoESemSeusValores()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Original);
    ArquivoEmCampos esperado = campos(QStringLiteral("mensal_completa.txt"));
    esperado.troca(0, 5, QStringLiteral("000000"));  // no reference month
    esperado.troca(1, 3, QStringLiteral("000000"));
    esperado.troca(3, 1, QStringLiteral("0912345670"));
    esperado.troca(3, 2, QString(17, u'0'));
    esperado.troca(3, 4, QString(15, u'0'));         // no VALORES_DIVER_RETIF
    esperado.troca(3, 35, QString(15, u'0'));
    esperado.troca(10, 14, QString(15, u'0'));
    QVERIFY(mesmosBytes(gravada(NOVA, m_pasta.path()), esperado.bytes()));
}

void tst_copiaMensal::originalTemMesDeReferenciaVazio()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Original);
    QCOMPARE(banco.valor(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?"), {NOVA})
                 .toString(),
             QString());
    QCOMPARE(banco.conta(QStringLiteral("VRT_MENSAL"), QStringLiteral("DT_REFERENCIA_VRT = '122008'")), 1);
}

void tst_copiaMensal::retificadoraMantemOMesDeReferencia()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Retificadora);
    QCOMPARE(banco.valor(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?"), {NOVA})
                 .toString(),
             QStringLiteral("122008"));
}

void tst_copiaMensal::valoresDeRetificacaoSoNaRetificadora_data()
{
    QTest::addColumn<int>("tipo");
    QTest::addColumn<int>("retificacao");
    QTest::addColumn<QString>("indicador");
    QTest::newRow("Retificadora") << int(CopiaVrt::Tipo::Retificadora) << 2 << QStringLiteral("S");
    QTest::newRow("Original") << int(CopiaVrt::Tipo::Original) << 0 << QStringLiteral("N");
}

void tst_copiaMensal::valoresDeRetificacaoSoNaRetificadora()
{
    QFETCH(int, tipo);
    QFETCH(int, retificacao);
    QFETCH(QString, indicador);
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo(tipo));
    const QString daCopia = QStringLiteral("ID_VRT_MICRO = ?");
    QCOMPARE(banco.conta(QStringLiteral("VALORES_DIVER_RETIF"), daCopia, {NOVA}), retificacao);
    QCOMPARE(banco.conta(QStringLiteral("VALORES_DIVER_MANDADO"), daCopia, {NOVA}), 3);
    QCOMPARE(banco.valor(QStringLiteral("SELECT IND_RETIFICACAO FROM VRT WHERE ID_VRT_MICRO = ?"), {NOVA}).toString(),
             indicador);
    if (retificacao)
        QCOMPARE(banco.valor(QStringLiteral("SELECT group_concat(VL_TOTAL_DIVER_RETIF, ';') FROM VALORES_DIVER_RETIF "
                                            "WHERE ID_VRT_MICRO = ?"),
                             {NOVA})
                     .toString(),
                 QStringLiteral("10,00;5,5"));
}

void tst_copiaMensal::numeroDaVrtEhODadoNosDoisCasos_data()
{
    QTest::addColumn<int>("tipo");
    QTest::newRow("Retificadora") << int(CopiaVrt::Tipo::Retificadora);
    QTest::newRow("Original") << int(CopiaVrt::Tipo::Original);
}

void tst_copiaMensal::numeroDaVrtEhODadoNosDoisCasos()
{
    QFETCH(int, tipo);
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo(tipo), QStringLiteral(" 0555555555 "));
    QCOMPARE(banco.valor(QStringLiteral("SELECT NR_VRT FROM VRT WHERE ID_VRT_MICRO = ?"), {NOVA}).toString(),
             QStringLiteral("0555555555"));
}

void tst_copiaMensal::cabecaCopiaSuasColunasEDeixaProcessoERestituicao()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    banco.executa(QStringLiteral("UPDATE VRT SET NR_SEQ_RETIF_VRT = '3', NR_CPF_REPR_LEGAL = '12345678909', "
                                 "DT_REGISTRO_VRT_MICRO = '2009-01-02', DT_REGISTRO_VRT = '2009-01-03', "
                                 "HO_REGISTRO_VRT = '10:11', NR_TRANSMISSAO = '77', IND_VRT_CANCELADA = 'N', "
                                 "NR_MANDADO_JUDIC = '999', IND_RESTITUICAO = 'S'"));
    copia(CopiaVrt::Tipo::Original);
    const QString copiadas = QStringLiteral(
        "NR_SEQ_RETIF_VRT || NR_CNPJ_INTERNADOR || NR_INSCRICAO_EST || NR_CPF_REPR_LEGAL || DT_REGISTRO_VRT_MICRO || "
        "DT_REGISTRO_VRT || HO_REGISTRO_VRT || IND_MANDADO_JUDIC || NR_TRANSMISSAO || NR_BANCO_ARREC || "
        "NR_AG_BCO_ARREC || NR_CC_AG_BCO_ARREC || CD_TIPO_VRT || IND_VRT_CANCELADA");
    const QString sql = QStringLiteral("SELECT %1 FROM VRT WHERE ID_VRT_MICRO = ?").arg(copiadas);
    QVERIFY(!banco.valor(sql, {ORIGEM}).toString().isEmpty());
    QCOMPARE(banco.valor(sql, {NOVA}).toString(), banco.valor(sql, {ORIGEM}).toString());
    QCOMPARE(banco.valor(QStringLiteral("SELECT NR_PROC_ADM_FISCAL || '|' || IND_RESTITUICAO FROM VRT "
                                        "WHERE ID_VRT_MICRO = ?"),
                         {NOVA})
                 .toString(),
             QStringLiteral("|N"));
    // The writ's number is not among the columns a copy takes.
    QVERIFY(banco.valor(QStringLiteral("SELECT NR_MANDADO_JUDIC FROM VRT WHERE ID_VRT_MICRO = ?"), {NOVA}).isNull());
}

void tst_copiaMensal::numeradorSomaUmSemOlharOAno()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    banco.executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    banco.executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (12, 9)"));
    QCOMPARE(Funcoes::IdentificacaoPrevista(QDate(2009, 5, 1)), NOVA);
    copia(CopiaVrt::Tipo::Original);
    QCOMPARE(banco.valor(QStringLiteral("SELECT NUM_ULTIMA_VRT || '/' || ANO FROM ARQUIVO_NUMERADOR")).toString(),
             QStringLiteral("13/9"));
}

// The monthly copy only adds one to the counter: with no row nothing is stored, and the next declaration is
// shown the same identification.
void tst_copiaMensal::semLinhaNoNumeradorONumeroNaoAvanca()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    banco.executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    copia(CopiaVrt::Tipo::Original);
    QCOMPARE(banco.conta(QStringLiteral("ARQUIVO_NUMERADOR")), 0);
    QCOMPARE(banco.conta(QStringLiteral("VRT"), QStringLiteral("ID_VRT_MICRO = ?"), {NOVA}), 1);
}

void tst_copiaMensal::documentoSem288NaoLevaSuaLinhaDeImportacao()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Retificadora);
    const QString porDeclaracao = QStringLiteral(
        "SELECT count(*) FROM ITEM_IMPORT_288_PE_MEN x JOIN ITEM_DI_PE_MEN d ON d.ID_ITEM_DI = x.ID_ITEM_DI "
        "JOIN DESTINO_ITEM_VRT_MEN t ON t.ID_DEST_PRODUTO = d.ID_DEST_PRODUTO "
        "JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = t.ID_ITEM_VRT WHERE i.ID_VRT_MICRO = ?");
    QCOMPARE(banco.valor(porDeclaracao, {ORIGEM}).toInt(), 2);
    QCOMPARE(banco.valor(porDeclaracao, {NOVA}).toInt(), 1);
    QCOMPARE(banco.conta(QStringLiteral("ITEM_DI_PE_MEN")), 4);
    QCOMPARE(banco.conta(QStringLiteral("ITEM_IMPORT_288_INS_MEN")), 2);
}

void tst_copiaMensal::itensDeMesmoNcmEInsumoNaoRepetemTotais()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    insere(QStringLiteral("NCM_VRT"), {{"ID_VRT_MICRO", ORIGEM}, {"IN_MOD_INTERNACAO", "3"},
                                       {"CD_NCM_PRODUTO", "87120010"}, {"QT_TOTAL_NCM", "0"}});
    const qint64 outro = insere(QStringLiteral("ITEM_VRT_MEN"),
                                {{"ID_VRT_MICRO", ORIGEM}, {"CD_INT_PRODUTO", "PI-4"}, {"CD_NCM_PRODUTO", "87120010"},
                                 {"IND_MOD_INTERNACAO", "3"}});
    insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"), {{"NR_ORDEM", 1}, {"ID_ITEM_VRT", outro}, {"CD_INT_INSUMO", "INS-1"}});
    copia(CopiaVrt::Tipo::Retificadora);
    const QString daCopia = QStringLiteral("ID_VRT_MICRO = ?");
    QCOMPARE(banco.conta(QStringLiteral("NCM_VRT"), daCopia, {NOVA}), 1);
    QCOMPARE(banco.valor(QStringLiteral("SELECT CD_INT_INSUMO || '=' || QT_TOT_INS_EST FROM INSUMO_VRT WHERE "
                                        "ID_VRT_MICRO = ?"),
                         {NOVA})
                 .toString(),
             QStringLiteral("INS-1=100,00000"));
    QCOMPARE(banco.conta(QStringLiteral("ITEM_VRT_MEN"), daCopia, {NOVA}), 6);
}

void tst_copiaMensal::mensagemSituacaoEProgresso()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    QStringList eventos;
    QList<int> valores;
    CopiaVrt::Acompanhamento a;
    a.inicio = [&] { eventos << QStringLiteral("inicio"); };
    a.progresso = [&](int v) { valores << v; };
    a.situacao = [&](const QString& t) { eventos << t; };
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    CopiaVrt::ExecutaCopiaVrtMensal({ORIGEM, NOVA, QStringLiteral("0912345670"), CopiaVrt::Tipo::Original}, a);
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas.at(0).texto, QStringLiteral("VRT Mensal copiada com sucesso!"));
    QCOMPARE(msgs.caixas.at(0).icone(), int(Msg::Information));
    QCOMPARE(eventos, (QStringList{QStringLiteral("inicio"), QString::fromUtf8("** Cópia concluída **")}));
    QVERIFY(valores.size() >= 5);
    QVERIFY(std::is_sorted(valores.begin(), valores.end()));
    QCOMPARE(valores.last(), 100);
    QVERIFY(!modBancoDados::TransacaoAberta());
}

// A statement that fails (here the new identification is taken already) ends the run: the number and every
// row copied before it are lost with the transaction.
void tst_copiaMensal::falhaDeixaOBancoComoEstava()
{
    BancoTeste banco;
    insereMensalCompleta(ORIGEM);
    insereIndividualCompleta(NOVA);
    banco.executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    banco.executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (12, 9)"));
    const int linhas = banco.conta(QStringLiteral("ITEM_VRT_MEN"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    QVERIFY(!numeroDoFim([&] {
                 CopiaVrt::ExecutaCopiaVrtMensal({ORIGEM, NOVA, QStringLiteral("0912345670"), CopiaVrt::Tipo::Original});
             }).isEmpty());
    modBancoDados::ConectaBanco(banco.arquivo());
    QCOMPARE(banco.valor(QStringLiteral("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")).toInt(), 12);
    QCOMPARE(banco.conta(QStringLiteral("ITEM_VRT_MEN")), linhas);
    QCOMPARE(banco.conta(QStringLiteral("VRT_MENSAL")), 1);
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas.at(0).titulo, QStringLiteral("BDTrataErro"));
}

QTEST_GUILESS_MAIN(tst_copiaMensal)
#include "tst_copiaMensal.moc"
