#include "CopiaTeste.h"

#include "core/copy/CopiaVrt.h"

#include <QtTest>

using namespace CenariosGravacao;
using namespace CopiaTeste;

class tst_copiaIndividual : public QObject {
    Q_OBJECT
private slots:
    void retificadoraGravaOArquivoDaOrigemSemOsTotaisDosInsumos();
    void originalGravaOArquivoSemNumeroSerieEDatasDaNota();
    void originalCopiaOResteDaNotaFiscal();
    void totalDoInsumoVaiParaATabelaDaMensal();
    void valoresDeRetificacaoSoNaRetificadora();
    void numeroDaVrtEhODadoNaOriginal();
    void numeradorDoMesmoAnoSomaUm();
    void numeradorDeOutroAnoRecomecaEmUm();
    void numeradorComAnoDeQuatroDigitosRecomecaEmUm();
    void semLinhaNoNumeradorCriaUmaComUm();
    void copiaEmAnoNovoRecomecaANumeracao();
    void mensagemEProgresso();

private:
    QTemporaryDir m_pasta;
};

namespace {
const QString ORIGEM = QStringLiteral("00013/09");
const QString NOVA = QStringLiteral("00014/09");
const QString DOIS_DIGITOS = QStringLiteral("%1").arg(QDate::currentDate().year() % 100, 2, 10, QLatin1Char('0'));

void copia(CopiaVrt::Tipo tipo, const QString& numero = QStringLiteral("0912345670"))
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    CopiaVrt::ExecutaCopiaVrtIndividual({ORIGEM, NOVA, numero, tipo});
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("VRT Individual copiada com sucesso!")});
}

QString numerador()
{
    return BancoTeste::valor(QStringLiteral("SELECT NUM_ULTIMA_VRT || '/' || ANO FROM ARQUIVO_NUMERADOR")).toString();
}

// The copy makes the items by modality, "4", "2", "1", "3", and the writer writes them in the order they were
// made: the copy's item records come in that order, each item's records as in the original.
void porOrdemDeCopia(ArquivoEmCampos& a)
{
    const QList<QStringList> l = a.linhas;
    a.linhas = l.mid(0, 4) + l.mid(18, 1) + l.mid(9, 2) + l.mid(4, 5) + l.mid(11, 7);
    QCOMPARE(a.linhas.size(), l.size());
}

void numeradorCom(const QString& valores)
{
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    if (!valores.isEmpty())
        BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (%1)").arg(valores));
}
}  // namespace

void tst_copiaIndividual::retificadoraGravaOArquivoDaOrigemSemOsTotaisDosInsumos()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Retificadora);
    ArquivoEmCampos esperado = campos(QStringLiteral("individual_completa.txt"));
    esperado.troca(3, 1, QStringLiteral("0912345670"));   // NR_VRT: the number given
    // INSUMO_VRT_IND stays empty for the copy: the input's record 33 carries no total.
    esperado.troca(13, 3, QString(14, u'0'));
    porOrdemDeCopia(esperado);
    QVERIFY(mesmosBytes(gravada(NOVA, m_pasta.path()), esperado.bytes()));
}

void tst_copiaIndividual::originalGravaOArquivoSemNumeroSerieEDatasDaNota()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Original);
    ArquivoEmCampos esperado = campos(QStringLiteral("individual_completa.txt"));
    esperado.troca(0, 7, QStringLiteral("     "));
    esperado.troca(0, 8, QStringLiteral("000000"));
    esperado.troca(1, 6, QStringLiteral("     "));
    esperado.troca(1, 7, QStringLiteral("000000"));
    esperado.troca(1, 8, QStringLiteral("00000000"));
    esperado.troca(1, 9, QStringLiteral("00000000"));
    esperado.troca(3, 1, QStringLiteral("0912345670"));
    esperado.troca(13, 3, QString(14, u'0'));
    porOrdemDeCopia(esperado);
    QVERIFY(mesmosBytes(gravada(NOVA, m_pasta.path()), esperado.bytes()));
}

void tst_copiaIndividual::originalCopiaOResteDaNotaFiscal()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Original);
    QCOMPARE(banco.valor(QStringLiteral("SELECT NR_NF_SAIDA || '|' || NR_SERIE_NF_SAIDA || '|' || DT_EMISS_NF_SAIDA "
                                        "|| '|' || DT_SAIDA_NF_SAIDA || '|' || CD_OP_FISCAL || '|' || "
                                        "CD_TIPO_DESTINAT || '|' || NR_DESTINAT || '|' || CD_UF_DESTINO "
                                        "FROM NOTA_FISCAL_SAIDA WHERE ID_VRT_MICRO = ?"),
                         {NOVA})
                 .toString(),
             QStringLiteral("||||6101|1|98765432000198|SP"));
    QCOMPARE(banco.valor(QStringLiteral("SELECT IN_SAIDA_ALC_AO FROM VRT_INDIVIDUAL WHERE ID_VRT_MICRO = ?"), {NOVA})
                 .toString(),
             QStringLiteral("N"));
}

// The individual copy writes the input's total into the monthly declaration's table, as the system stands.
void tst_copiaIndividual::totalDoInsumoVaiParaATabelaDaMensal()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Retificadora);
    QCOMPARE(banco.conta(QStringLiteral("INSUMO_VRT_IND"), QStringLiteral("ID_VRT_MICRO = ?"), {NOVA}), 0);
    QCOMPARE(banco.valor(QStringLiteral("SELECT CD_INT_INSUMO || '=' || QT_TOT_INS_EST FROM INSUMO_VRT "
                                        "WHERE ID_VRT_MICRO = ?"),
                         {NOVA})
                 .toString(),
             QStringLiteral("INS-9=2,00000"));
}

void tst_copiaIndividual::valoresDeRetificacaoSoNaRetificadora()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    for (const char* sufixo : {"RETIF", "MANDADO"})
        banco.executa(QStringLiteral("INSERT INTO VALORES_DIVER_%1 (ID_VRT_MICRO, CD_MOD_%1, CD_TIPO_DIVER_%1, "
                                     "VL_TOTAL_DIVER_%1) VALUES (?, '1', '3', '7,00')")
                          .arg(QLatin1String(sufixo)),
                      {ORIGEM});
    copia(CopiaVrt::Tipo::Original);
    QCOMPARE(banco.conta(QStringLiteral("VALORES_DIVER_RETIF"), QStringLiteral("ID_VRT_MICRO = ?"), {NOVA}), 0);
    QCOMPARE(banco.conta(QStringLiteral("VALORES_DIVER_MANDADO"), QStringLiteral("ID_VRT_MICRO = ?"), {NOVA}), 1);
}

void tst_copiaIndividual::numeroDaVrtEhODadoNaOriginal()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    copia(CopiaVrt::Tipo::Original, QStringLiteral("0555555555 "));
    QCOMPARE(banco.valor(QStringLiteral("SELECT NR_VRT || IND_RETIFICACAO FROM VRT WHERE ID_VRT_MICRO = ?"), {NOVA})
                 .toString(),
             QStringLiteral("0555555555N"));
}

void tst_copiaIndividual::numeradorDoMesmoAnoSomaUm()
{
    BancoTeste banco;
    numeradorCom(QStringLiteral("41, ") + DOIS_DIGITOS);
    CopiaVrt::AvancaNumeroIndividual(QDate::currentDate());
    QCOMPARE(numerador(), QStringLiteral("42/") + QString::number(DOIS_DIGITOS.toInt()));
}

void tst_copiaIndividual::numeradorDeOutroAnoRecomecaEmUm()
{
    BancoTeste banco;
    numeradorCom(QStringLiteral("41, 9"));
    CopiaVrt::AvancaNumeroIndividual(QDate(2010, 1, 2));
    QCOMPARE(numerador(), QStringLiteral("1/10"));
}

void tst_copiaIndividual::numeradorComAnoDeQuatroDigitosRecomecaEmUm()
{
    BancoTeste banco;
    numeradorCom(QStringLiteral("41, 2010"));
    CopiaVrt::AvancaNumeroIndividual(QDate(2010, 1, 2));
    QCOMPARE(numerador(), QStringLiteral("1/10"));
}

void tst_copiaIndividual::semLinhaNoNumeradorCriaUmaComUm()
{
    BancoTeste banco;
    numeradorCom(QString());
    CopiaVrt::AvancaNumeroIndividual(QDate(2011, 6, 1));
    QCOMPARE(numerador(), QStringLiteral("1/11"));
    QCOMPARE(banco.conta(QStringLiteral("ARQUIVO_NUMERADOR")), 1);
}

// The same stored number and year: the individual copy restarts the counter in a new year, the monthly copy
// only adds one.
void tst_copiaIndividual::copiaEmAnoNovoRecomecaANumeracao()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    insereMensalCompleta(QStringLiteral("00012/09"));
    const QString anoPassado = QString::number((QDate::currentDate().year() - 1) % 100);
    numeradorCom(QStringLiteral("13, ") + anoPassado);
    copia(CopiaVrt::Tipo::Original);
    QCOMPARE(numerador(), QStringLiteral("1/") + QString::number(DOIS_DIGITOS.toInt()));
    numeradorCom(QStringLiteral("13, ") + anoPassado);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    CopiaVrt::ExecutaCopiaVrtMensal({QStringLiteral("00012/09"), QStringLiteral("00015/09"), QString(),
                                     CopiaVrt::Tipo::Original});
    QCOMPARE(numerador(), QStringLiteral("14/") + anoPassado);
}

void tst_copiaIndividual::mensagemEProgresso()
{
    BancoTeste banco;
    insereIndividualCompleta(ORIGEM);
    QList<int> valores;
    QString situacao;
    CopiaVrt::Acompanhamento a;
    a.progresso = [&](int v) { valores << v; };
    a.situacao = [&](const QString& t) { situacao = t; };
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    CopiaVrt::ExecutaCopiaVrtIndividual({ORIGEM, NOVA, QString(), CopiaVrt::Tipo::Retificadora}, a);
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas.at(0).texto, QStringLiteral("VRT Individual copiada com sucesso!"));
    QCOMPARE(msgs.caixas.at(0).icone(), int(Msg::Information));
    QCOMPARE(situacao, QString::fromUtf8("** Cópia concluída **"));
    QVERIFY(valores.size() >= 5);
    QVERIFY(std::is_sorted(valores.begin(), valores.end()));
    QCOMPARE(valores.last(), 100);
}

QTEST_GUILESS_MAIN(tst_copiaIndividual)
#include "tst_copiaIndividual.moc"
