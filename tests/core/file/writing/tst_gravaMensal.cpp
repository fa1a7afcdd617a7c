#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "core/file/layout/LayoutRegistro.h"
#include "core/file/writing/GravaVrt.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace CenariosGravacao;

class tst_gravaMensal : public QObject {
    Q_OBJECT
private slots:
    void declaracaoMensalCompletaIgualAoArquivoDeReferencia();
    void itensSaemOrdenadosPorModalidade();
    void declaracaoSemItensTerminaNoRegistro03();
    void registro35SemDiAntigaPoeOsZerosNoNumeroDaDiEQuebraALinha_data();
    void registro35SemDiAntigaPoeOsZerosNoNumeroDaDiEQuebraALinha();
    void registro35SemDiAntigaNaPrimeiraLinhaDeixaOCampoVazio();
    void registro35ComDiAntigaVaziaTemQuinzeZeros();
    void registro33NaoEscritoSemConsolidacaoMasDocumentosSim();
    void ultimoRegistro31DeixaOArquivoSemCrLfNoFim();
    void ultimoRegistro32DeixaOArquivoSemCrLfNoFim();
    void valorDecimalLongoDemaisQuebraALinha();
    void codigoDeSlotComparadoComoNumeroESegundaLinhaSubstitui();
    void pontoDeMilharFicaNosDigitosDoValor();
    void destinosInsumosEDocumentosSaemNaOrdemEmQueForamFeitos();
    void diComDuasLinhasDeImportacaoSaiUmaVezComAPrimeira();

private:
    // Writes the declaration for transmission and gives its lines (split at CR LF).
    QList<QByteArray> grava(const QString& id, QByteArray* bytes = nullptr);
    void insereCabecalhoMensal(const QString& id);
    // A product of modality 3; with `destino` false it has no destination row at all.
    qint64 insereItemSemPPB(const QString& id, const QVariant& codigoDestino, bool destino = true);
    qint64 insereInsumo(qint64 item, const char* codigo);
    void insereDiInsumo(const QString& id, qint64 insumo, const char* nrDi, const QVariant& antiga);
    QTemporaryDir m_pasta;
};

namespace {
QString Z(const QString& s, int n) { return QString(n - s.size(), u'0') + s; }
QString B(const QString& s, int n) { return s + QString(n - s.size(), u' '); }
QByteArray L(const QString& s) { return s.toLatin1(); }

// The text of a field of a monthly record, by its name.
QByteArray campo(const QByteArray& linha, const char* nome)
{
    const LayoutRegistro& l = LayoutRegistro::de(TipoDeclaracao::Mensal, linha.left(2).toInt());
    const CampoLayout& c = l.campos.at(l.indice(QString::fromLatin1(nome)));
    return linha.mid(c.posicao - 1, c.tamanho);
}

// The record types of the lines, each followed by `nome`'s value where the record has that field.
QString tiposE(const QList<QByteArray>& linhas, const char* nome)
{
    QStringList r;
    for (const QByteArray& l : linhas) {
        if (l.size() < 2)
            continue;
        const LayoutRegistro& layout = LayoutRegistro::de(TipoDeclaracao::Mensal, l.left(2).toInt());
        const bool tem = layout.indice(QString::fromLatin1(nome)) >= 0 && l.left(2).toInt() > 3;
        r << QString::fromLatin1(l.left(2) + (tem ? ":" + campo(l, nome).trimmed() : QByteArray()));
    }
    return r.join(u' ');
}
}  // namespace

QList<QByteArray> tst_gravaMensal::grava(const QString& id, QByteArray* bytes)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, m_pasta.path(), ModoGravacao::Transmissao);
    if (r.arquivos.size() != 1 || msgs.textos() != QStringList{QStringLiteral("Arquivo gerado.")})
        qWarning("gravação sem sucesso: %s", qPrintable(msgs.textos().join(u';')));
    const QByteArray b = conteudo(r.arquivos.value(0));
    if (bytes)
        *bytes = b;
    QList<QByteArray> linhas;
    for (const QByteArray& l : b.split('\n'))
        linhas << (l.endsWith('\r') ? l.chopped(1) : l);
    return linhas;
}

void tst_gravaMensal::insereCabecalhoMensal(const QString& id)
{
    insere(QStringLiteral("VRT"), {{"ID_VRT_MICRO", id}, {"NR_CNPJ_INTERNADOR", "12345678000195"},
                                   {"CD_TIPO_VRT", "2"}, {"IND_MANDADO_JUDIC", "N"}, {"NR_VRT", " "},
                                   {"NR_PROC_ADM_FISCAL", " "}});
    insere(QStringLiteral("VRT_MENSAL"), {{"ID_VRT_MICRO", id}, {"DT_REFERENCIA_VRT", "012009"}});
}

qint64 tst_gravaMensal::insereItemSemPPB(const QString& id, const QVariant& codigoDestino, bool destino)
{
    const qint64 item = insere(QStringLiteral("ITEM_VRT_MEN"),
                               {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "PI-3"}, {"NM_INT_PRODUTO", "Bicicleta"},
                                {"CD_NCM_PRODUTO", "87120010"}, {"NM_UNID_MED_PROD", "UNIDADE"},
                                {"IND_MOD_INTERNACAO", "3"}});
    if (destino)
        insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
               {{"ID_ITEM_VRT", item}, {"CD_LOCAL_DESTINO", codigoDestino}, {"QT_PROD_LOC_DEST", "2,00000"}});
    return item;
}

qint64 tst_gravaMensal::insereInsumo(qint64 item, const char* codigo)
{
    return insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"),
                  {{"NR_ORDEM", 1}, {"ID_ITEM_VRT", item}, {"CD_INT_INSUMO", codigo}, {"NM_INT_INSUMO", "Aro"},
                   {"CD_NCM_INSUMO", "87149990"}, {"QT_INSUMO_POR_PROD", "1,00000"}, {"NM_UNID_MED_INSUMO", "PAR"}});
}

void tst_gravaMensal::insereDiInsumo(const QString& id, qint64 insumo, const char* nrDi, const QVariant& antiga)
{
    insere(QStringLiteral("ITEM_DI_INS_MEN"),
           {{"ID_VRT_MICRO", id}, {"CD_INT_INSUMO", "INS-1"}, {"CD_LOCAL_DESTINO", "1"}, {"ID_INSUMO_ITEM", insumo},
            {"NR_DI", nrDi}, {"NR_DI_ANTIGA", antiga}, {"NR_ADICAO_DI", "1"}, {"NR_ITEM_ADICAO", "1"},
            {"IND_DL_288_67", "N"}, {"QT_INSUMO_UNID_INS", "1,00000"}, {"IND_SUSP_PIS_COFINS", "N"}});
}

void tst_gravaMensal::declaracaoMensalCompletaIgualAoArquivoDeReferencia()
{
    BancoTeste banco;
    insereMensalCompleta();
    QByteArray bytes;
    grava(QStringLiteral("00012/09"), &bytes);
    QVERIFY(mesmosBytes(bytes, esperado(QStringLiteral("mensal_completa.txt"))));
}

void tst_gravaMensal::itensSaemOrdenadosPorModalidade()
{
    BancoTeste banco;
    insereMensalCompleta();
    QStringList tipos;
    for (const QByteArray& l : grava(QStringLiteral("00012/09")))
        tipos << QString::fromLatin1(l.left(2));
    // Made in the order 4, 1, 3, 2, 2; written 1, 2, 2, 3, 4, with records 11 and 21 once per destination.
    QCOMPARE(tipos.join(u' '), QStringLiteral("00 01 02 03 11 12 13 14 11 12 13 21 21 21 31 32 33 34 35 36 33 "
                                              "32 33 33 41 "));
}

void tst_gravaMensal::declaracaoSemItensTerminaNoRegistro03()
{
    BancoTeste banco;
    insereCabecalhoMensal(QStringLiteral("00001/09"));
    QByteArray bytes;
    const QList<QByteArray> linhas = grava(QStringLiteral("00001/09"), &bytes);
    QCOMPARE(linhas.size(), 5);
    QVERIFY(linhas.at(3).startsWith("03"));
    QCOMPARE(linhas.at(4), QByteArray());
    QVERIFY(bytes.endsWith("\r\n"));
    QCOMPARE(linhas.at(0), L(QStringLiteral("00VRT/PLN102.002200901") + Z("", 14) + B("", 5) + "000000"
                             + "12345678000195"));
}

void tst_gravaMensal::registro35SemDiAntigaPoeOsZerosNoNumeroDaDiEQuebraALinha_data()
{
    QTest::addColumn<QVariant>("antiga");
    QTest::newRow("DI antiga nula") << QVariant();
    QTest::newRow("DI antiga com um branco") << QVariant(QStringLiteral(" "));
}

void tst_gravaMensal::registro35SemDiAntigaPoeOsZerosNoNumeroDaDiEQuebraALinha()
{
    QFETCH(QVariant, antiga);
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    const qint64 insumo = insereInsumo(insereItemSemPPB(id, QStringLiteral("1")), "INS-1");
    insereDiInsumo(id, insumo, "0811111111", QStringLiteral("555555555555555"));
    insereDiInsumo(id, insumo, "0822222222", antiga);
    const QList<QByteArray> l = grava(id);
    // 00 01 02 03 31 32 33, then the first record 35 whole.
    const QString resto = QStringLiteral("001") + "01" + "N" + Z("100000", 14) + Z("", 20) + "000" + Z("", 20) + "000"
                          + Z("", 20) + "000" + B("INS-1", 15) + "1" + "N";
    QCOMPARE(l.at(7), L(QStringLiteral("35") + "0811111111" + "555555555555555" + resto));
    // The second one: its DI number is the 15 zeros, the line breaks at column 13, and the old number of the
    // record before it is written again on the new line.
    QCOMPARE(l.at(8), L(QStringLiteral("35") + Z("", 15)));
    QCOMPARE(l.at(9), L(QString(12, u' ') + "555555555555555" + resto));
    QCOMPARE(l.size(), 11);
}

void tst_gravaMensal::registro35SemDiAntigaNaPrimeiraLinhaDeixaOCampoVazio()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    const qint64 insumo = insereInsumo(insereItemSemPPB(id, QStringLiteral("1")), "INS-1");
    insereDiInsumo(id, insumo, "0811111111", QVariant());
    const QList<QByteArray> l = grava(id);
    QCOMPARE(l.at(7), L(QStringLiteral("35") + Z("", 15)));
    // No old number has been written yet: the field is empty and blanks lead to the next column.
    QCOMPARE(l.at(8), L(QString(27, u' ') + "001" + "01" + "N" + Z("100000", 14) + Z("", 20) + "000" + Z("", 20)
                        + "000" + Z("", 20) + "000" + B("INS-1", 15) + "1" + "N"));
}

void tst_gravaMensal::registro35ComDiAntigaVaziaTemQuinzeZeros()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    const qint64 insumo = insereInsumo(insereItemSemPPB(id, QStringLiteral("1")), "INS-1");
    insereDiInsumo(id, insumo, " ", QStringLiteral(""));
    const QList<QByteArray> l = grava(id);
    QCOMPARE(l.at(7), L(QStringLiteral("35") + Z("", 10) + Z("", 15) + "001" + "01" + "N" + Z("100000", 14)
                        + Z("", 20) + "000" + Z("", 20) + "000" + Z("", 20) + "000" + B("INS-1", 15) + "1" + "N"));
    QCOMPARE(l.size(), 9);
}

void tst_gravaMensal::registro33NaoEscritoSemConsolidacaoMasDocumentosSim()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    // A destination row without a code has no row in the consolidation for its code: no record 33 for it.
    const qint64 insumo = insereInsumo(insereItemSemPPB(id, QVariant()), "INS-1");
    insere(QStringLiteral("ITEM_DSI_INS_MEN"),
           {{"ID_VRT_MICRO", id}, {"ID_INSUMO_ITEM", insumo}, {"CD_INT_INSUMO", "INS-1"}, {"CD_LOCAL_DESTINO", ""},
            {"NR_DSI", "2033333333"}, {"NR_BEM", "2"}, {"QT_INSUMO_UNID_INS", "1,00000"},
            {"IND_SUSP_PIS_COFINS", "N"}});
    QStringList tipos;
    for (const QByteArray& l : grava(id))
        tipos << QString::fromLatin1(l.left(2));
    QCOMPARE(tipos.join(u' '), QStringLiteral("00 01 02 03 31 32 36 "));
}

void tst_gravaMensal::ultimoRegistro31DeixaOArquivoSemCrLfNoFim()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    insereItemSemPPB(id, QStringLiteral("2"));
    QByteArray bytes;
    const QList<QByteArray> l = grava(id, &bytes);
    QCOMPARE(l.size(), 5);
    QCOMPARE(l.at(4), L(QStringLiteral("31") + "000" + B("PI-3", 15) + B("Bicicleta", 45) + B("UNIDADE", 20)
                        + "87120010" + Z("", 14) + Z("", 20) + "1" + Z("", 14) + "2" + Z("200000", 14) + "3"
                        + Z("", 14) + "4" + Z("", 14)));
    QVERIFY(!bytes.endsWith("\r\n"));
}

void tst_gravaMensal::ultimoRegistro32DeixaOArquivoSemCrLfNoFim()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    insereInsumo(insereItemSemPPB(id, QVariant(), false), "INS-1");
    QByteArray bytes;
    const QList<QByteArray> l = grava(id, &bytes);
    QCOMPARE(l.size(), 6);
    QVERIFY(l.at(4).startsWith("31"));
    // Record 31 without its own line end: record 32 starts on the next line all the same.
    QCOMPARE(l.at(5), L(QStringLiteral("32") + "000" + B("PI-3", 15) + B("INS-1", 15) + "87149990" + B("Aro", 45)
                        + B("PAR", 20) + Z("100000", 14)));
    QVERIFY(bytes.endsWith(L(Z("100000", 14))));
}

void tst_gravaMensal::valorDecimalLongoDemaisQuebraALinha()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    insere(QStringLiteral("ITEM_VRT_MEN"),
           {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "NAC"}, {"NM_INT_PRODUTO", "Arroz"},
            {"CD_NCM_PRODUTO", "10063021"}, {"NM_UNID_MED_PROD", "KG"}, {"IND_MOD_INTERNACAO", "4"},
            {"QT_PROD_UNID_PROD", "1234567890,12345"}, {"QT_PROD_UNID_EST", "1,00000"},
            {"VL_PROD_UNID_PROD", "1,00"}});
    const QList<QByteArray> l = grava(id);
    // Fifteen digits in the 14 positions from 157: the next field starts a new line at its own column, 171.
    QCOMPARE(l.at(4), L(QStringLiteral("41") + "000" + "10063021" + B("NAC", 15) + B("Arroz", 45) + B("KG", 20)
                        + Z("", 14) + Z("", 14) + Z("", 20) + Z("100", 15) + "123456789012345"));
    QCOMPARE(l.at(5), L(QString(170, u' ') + Z("100000", 14)));
}

void tst_gravaMensal::codigoDeSlotComparadoComoNumeroESegundaLinhaSubstitui()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    insere(QStringLiteral("VALORES_DIVER_MANDADO"), {{"ID_VRT_MICRO", id}, {"CD_MOD_MANDADO", "1"},
                                                     {"CD_TIPO_DIVER_MANDADO", "3"}, {"VL_TOTAL_DIVER_MANDADO", "1,00"}});
    insere(QStringLiteral("VALORES_DIVER_MANDADO"), {{"ID_VRT_MICRO", id}, {"CD_MOD_MANDADO", "1"},
                                                     {"CD_TIPO_DIVER_MANDADO", "03"}, {"VL_TOTAL_DIVER_MANDADO", "2,00"}});
    insere(QStringLiteral("VALORES_DIVER_RETIF"), {{"ID_VRT_MICRO", id}, {"CD_MOD_RETIF", "2"},
                                                   {"CD_TIPO_DIVER_RETIF", "08"}, {"VL_TOTAL_DIVER_RETIF", "3,00"}});
    const QList<QByteArray> l = grava(id);
    QCOMPARE(l.at(2).mid(3, 16), QByteArray("S000000000000200"));
    QCOMPARE(l.at(2).count('S'), 1);
    // Slot 16 of record 03: modality 2, type 8.
    QCOMPARE(l.at(3).mid(254, 15), QByteArray("000000000000300"));
    QCOMPARE(l.at(3).count('3'), 2);
}

void tst_gravaMensal::pontoDeMilharFicaNosDigitosDoValor()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    insere(QStringLiteral("VALORES_DIVER_RETIF"), {{"ID_VRT_MICRO", id}, {"CD_MOD_RETIF", "1"},
                                                   {"CD_TIPO_DIVER_RETIF", "2"}, {"VL_TOTAL_DIVER_RETIF", "1.234,56"}});
    const QList<QByteArray> l = grava(id);
    QCOMPARE(l.at(3).mid(29, 15), QByteArray("000000001.23456"));
}

void tst_gravaMensal::destinosInsumosEDocumentosSaemNaOrdemEmQueForamFeitos()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    const auto item = [&](const char* modalidade, const char* codigo) {
        return insere(QStringLiteral("ITEM_VRT_MEN"),
                      {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", codigo}, {"NM_INT_PRODUTO", "Produto"},
                       {"CD_NCM_PRODUTO", "87120010"}, {"NM_UNID_MED_PROD", "UNIDADE"},
                       {"IND_MOD_INTERNACAO", modalidade}});
    };
    const auto destino = [&](qint64 i, const char* codigo) {
        return insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
                      {{"ID_ITEM_VRT", i}, {"CD_LOCAL_DESTINO", codigo}, {"QT_PROD_LOC_DEST", "1,00000"}});
    };
    // Each item's destinations made with the higher code first: the file follows the order they were made in,
    // not the order of their codes.
    const qint64 pe = item("1", "PE");
    const qint64 pe3 = destino(pe, "3");
    const qint64 pe1 = destino(pe, "1");
    for (const auto& [d, nf] : {std::pair{pe1, "111"}, std::pair{pe3, "333"}, std::pair{pe1, "112"}})
        insere(QStringLiteral("ITEM_NFA_PE_MEN"), {{"ID_DEST_PRODUTO", d}, {"NR_NF_AQUIS", nf},
                                                   {"IND_DL_288_67", "N"}, {"IND_OBSOLE_RESIDUO", "N"}});
    const qint64 ppb = item("2", "PPB");
    destino(ppb, "4");
    destino(ppb, "2");
    // Inputs made with the higher order number first: they too go in the order they were made in.
    const qint64 semPpb = item("3", "SEM");
    destino(semPpb, "4");
    destino(semPpb, "1");
    const qint64 a = insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"),
                            {{"NR_ORDEM", 2}, {"ID_ITEM_VRT", semPpb}, {"CD_INT_INSUMO", "INS-A"},
                             {"QT_INSUMO_POR_PROD", "1,00000"}});
    insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"), {{"NR_ORDEM", 1}, {"ID_ITEM_VRT", semPpb},
                                                   {"CD_INT_INSUMO", "INS-B"}, {"QT_INSUMO_POR_PROD", "1,00000"}});
    for (const auto& [local, nf] : {std::pair{"1", "501"}, std::pair{"4", "504"}, std::pair{"1", "502"}})
        insere(QStringLiteral("ITEM_NFA_INS_MEN"), {{"ID_VRT_MICRO", id}, {"ID_INSUMO_ITEM", a},
                                                    {"CD_INT_INSUMO", "INS-A"}, {"CD_LOCAL_DESTINO", local},
                                                    {"NR_NF_AQUIS", nf}});
    const QList<QByteArray> linhas = grava(id).mid(4);
    QCOMPARE(tiposE(linhas, "CD_LOCAL_DESTINO"),
             QStringLiteral("11:3 12 11:1 12 12 21:4 21:2 31 32 33:4 34:4 33:1 34:1 34:1 32 33:4 33:1"));
    QCOMPARE(tiposE(linhas, "NR_NF_AQUIS"),
             QStringLiteral("11 12:000333 11 12:000111 12:000112 21 21 31 32 33 34:000504 33 34:000501 "
                            "34:000502 32 33 33"));
    QCOMPARE(tiposE(linhas, "CD_INT_INSUMO"),
             QStringLiteral("11 12 11 12 12 21 21 31 32:INS-A 33:INS-A 34:INS-A 33:INS-A 34:INS-A 34:INS-A "
                            "32:INS-B 33:INS-B 33:INS-B"));
}

void tst_gravaMensal::diComDuasLinhasDeImportacaoSaiUmaVezComAPrimeira()
{
    BancoTeste banco;
    const QString id = QStringLiteral("00001/09");
    insereCabecalhoMensal(id);
    const qint64 item = insere(QStringLiteral("ITEM_VRT_MEN"),
                               {{"ID_VRT_MICRO", id}, {"CD_INT_PRODUTO", "PE"}, {"IND_MOD_INTERNACAO", "1"}});
    const qint64 d = insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"), {{"ID_ITEM_VRT", item}, {"CD_LOCAL_DESTINO", "1"}});
    const auto di = [&](const char* numero, std::initializer_list<const char*> moedas) {
        const qint64 k = insere(QStringLiteral("ITEM_DI_PE_MEN"),
                                {{"ID_DEST_PRODUTO", d}, {"NR_DI", numero}, {"NR_DI_ANTIGA", "1"},
                                 {"IND_DL_288_67", "S"}, {"IND_OBSOLE_RESIDUO", "N"}, {"IND_SUSP_PIS_COFINS", "N"}});
        for (const char* moeda : moedas)
            insere(QStringLiteral("ITEM_IMPORT_288_PE_MEN"), {{"ID_ITEM_DI", k}, {"CD_MOEDA_NEG", moeda}});
    };
    di("0811111111", {"978", "840"});
    di("0822222222", {});  // no import row: empty values
    di("0833333333", {"220"});
    const QList<QByteArray> linhas = grava(id).mid(4);
    QCOMPARE(tiposE(linhas, "NR_DI"), QStringLiteral("11 13:0811111111 13:0822222222 13:0833333333"));
    QCOMPARE(tiposE(linhas, "CD_MOEDA_NEG"), QStringLiteral("11 13:978 13:000 13:220"));
}

QTEST_GUILESS_MAIN(tst_gravaMensal)
#include "tst_gravaMensal.moc"
