// Reading an individual declaration file: the invoice, one item per record 11, 21, 31 and 41 (even for one
// product twice), DCR-E and DCR, the product renamed by its second input, the justification test on its
// offset stretches, and every record's rows.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
QString um(const QString& sql)
{
    return BancoTeste::valor(sql).toString();
}
QString i11(const QString& item, const QString& codigo, const QString& nome)
{
    return Linha(707).poe(1, t("11") + item).poe(6, t("84713012")).poe(14, codigo).poe(29, t("1")).poe(30, nome)
        .poe(75, t("Redução por ex-tarifário")).poe(328, t("00200")).poe(586, t("00000")).poe(591, t("UN"))
        .poe(611, t("00000000300000")).poe(625, t("00000000030000")).poe(639, t("00000000000045000000"))
        .poe(659, t("000000000012345")).zeros(674, 14);
}
QString i21(const QString& item, const QString& dcre, const QString& dcr, const QString& unidade)
{
    return Linha(198).poe(1, t("21") + item + t("1")).poe(7, dcre).poe(17, t("P2")).poe(32, dcr).poe(41, t("Monitor"))
        .poe(86, t("00000000000001000000")).poe(106, t("05000")).poe(111, t("00000000200000")).zeros(125, 14)
        .poe(139, unidade).poe(159, t("00000000000000110000")).poe(179, t("00000000000000220000"));
}
QString i31()
{
    return Linha(187).poe(1, t("31005P3")).poe(21, t("Placa")).poe(66, t("UN")).poe(86, t("84713012"))
        .poe(94, t("00000000100000")).poe(108, t("00000000000099000000")).poe(128, t("1")).zeros(129, 14)
        .poe(143, t("0")).zeros(144, 14).poe(158, t("0")).zeros(159, 14).poe(173, t("0")).zeros(174, 14);
}
QString i32(const QString& insumo, const QString& nome)
{
    return Linha(122).poe(1, t("32005P3")).poe(21, insumo).poe(36, t("39269090")).poe(44, nome).poe(89, t("CX 10"))
        .poe(109, t("00000000400000"));
}
QString i33(const QString& insumo)
{
    return Linha(565).poe(1, t("33005")).poe(6, insumo).poe(21, t("00000000800000")).poe(35, t("1"))
        .poe(289, t("00000")).poe(294, t("IPI reduzido")).poe(547, t("00150")).zeros(552, 14);
}
QString i34()
{
    return Linha(93).poe(1, t("34")).poe(3, t("11222333000181")).poe(17, t("C")).poe(22, t("000789"))
        .poe(28, t("003")).poe(31, t("20090301")).poe(39, t("5102")).poe(43, t("N")).poe(44, t("00000000100000"))
        .zeros(58, 20).poe(93, t("0"));
}
QString i35()
{
    return Linha(133).poe(1, t("35")).poe(3, t("0933333333")).zeros(13, 15).poe(28, t("001")).poe(31, t("03"))
        .poe(33, t("S")).poe(34, t("00000000100000")).poe(48, t("00000000000002000000")).poe(68, t("220"))
        .poe(71, t("00000000000000100000")).poe(91, t("220")).zeros(94, 20).zeros(114, 3).poe(132, t("0"))
        .poe(133, t("N"));
}
QString i36()
{
    return Linha(130).poe(1, t("36")).poe(3, t("0944444444")).zeros(13, 15).poe(28, t("002"))
        .poe(31, t("00000000050000")).poe(60, t("0")).poe(61, t("00000000000003000000")).poe(81, t("978"))
        .zeros(84, 20).zeros(104, 3).zeros(107, 20).zeros(127, 3).poe(130, t("N"));
}
QString i41()
{
    return Linha(184).poe(1, t("41006")).poe(6, t("84713012")).poe(14, t("P4")).poe(29, t("Cabo")).poe(74, t("M"))
        .poe(94, t("00000001000000")).poe(108, t("00000000100000")).poe(122, t("00000000000001500000")).zeros(142, 43);
}
}  // namespace

class TstLeArquivoIndividual : public QObject {
    Q_OBJECT

private:
    std::optional<BancoDeLeitura> m_banco;
    bool le(const QStringList& itens)
    {
        return leDaMemoria(bytes(cabecalhoIndividual() + itens));
    }

private slots:
    void init() { m_banco.emplace(); }
    void cleanup() { m_banco.reset(); }

    void leCadaRegistroNasSuasLinhas()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le({i11(t("001"), t("P1"), t("Notebook")), r12(), r13(), r14(), i11(t("002"), t("P1"), t("Notebook")),
                    i21(t("003"), t("0000012345"), t("000000000"), QString()),
                    i21(t("004"), t("0000000000"), t("000054321"), t("PC")), i31(), i32(t("I1"), t("Parafuso")),
                    i33(t("I1")), i34(), i35(), i36(), i32(t("I2"), t("Arruela")), i41()}));
        QCOMPARE(msgs.inesperadas, 0);
        const QString nfs = um(t("SELECT ID_NFS FROM NOTA_FISCAL_SAIDA"));
        // One item per record, even for the same product twice; the destination code is not read.
        QCOMPARE(um(t("SELECT group_concat(x, ';') FROM (SELECT ID_NFS || '/' || NR_ITEM_NF_SAIDA || '/' || CD_INT_PROD "
                      "|| '/' || IFNULL(CD_NCM_PROD, '<nulo>') || '/' || IND_MOD_INTERNACAO || '/' || NM_UNID_MED_PROD AS x "
                      "FROM ITEM_NFS ORDER BY ID_ITEM)")),
                 nfs + t("/001/P1/84713012/1/UN;") + nfs + t("/002/P1/84713012/1/UN;") + nfs + t("/003/P2/<nulo>/2/;") +
                     nfs + t("/004/P2/<nulo>/2/PC;") + nfs + t("/005/P3/84713012/3/UN;") + nfs +
                     t("/006/P4/84713012/4/M"));
        QCOMPARE(um(t("SELECT QT_INT_UNID_NFS || '|' || QT_INT_UNID_EST || '|' || VL_INT_UNID_NFS || '|' || "
                      "VL_IPI_DESTACADO FROM ITEM_NFS_PE LIMIT 1")),
                 t("3,00000|0,30000|4,5000000|123,45"));
        // Every record this system writes has aliquot digits inside the two stretches tested: a row each.
        QCOMPARE(BancoTeste::conta(t("JUST_DIF_ALIQ_PROD_VRT_IND")), 2);
        QCOMPARE(um(t("SELECT JUST_II_DIF_TEC || '|' || ALIQ_II_DIF_TEC || '|' || JUST_IPI_DIF_TIPI || '|' || "
                      "ALIQ_IPI_DIF_TIPI FROM JUST_DIF_ALIQ_PROD_VRT_IND LIMIT 1")),
                 t("Redução por ex-tarifário|2,00||"));
        QCOMPARE(um(t("SELECT NR_DI || '|' || NR_DI_ANTIGA || '|' || QT_PROD_UNID_NFS FROM ITEM_DI_PE_IND")),
                 t("0812345678||1,00000"));
        QCOMPARE(um(t("SELECT VL_INS_PROD_UNID_NFS || '|' || CD_MOEDA_NEG || '|' || VL_FRETE_UNID_NFS FROM ITEM_IMPORT_288_PE")),
                 t("1,2500000|220|0,0500000"));
        QCOMPARE(um(t("SELECT CD_CFOP_NF_AQUIS || '|' || QT_PROD_UNID_NFS || '|' || VL_INS_PROD_UNID_NFS FROM ITEM_NFA_PE_IND")),
                 t("102|1,50000|2,5000000"));
        QCOMPARE(BancoTeste::conta(t("ITEM_DSI_PE_IND")), 1);
        // Record 21: type 1 keeps no unit, type 2 has its DCR.
        QCOMPARE(um(t("SELECT group_concat(x, ';') FROM (SELECT CD_TIPO_COEF_REDUCAO || '|' || VL_PIS || '|' || "
                      "VL_COFINS AS x FROM ITEM_NFS_PI_COM_PPB ORDER BY ID_ITEM)")),
                 t("1|0,0110000|0,0220000;2|0,0110000|0,0220000"));
        QCOMPARE(um(t("SELECT NR_DCRE || '|' || QT_PRODUTO FROM DCRE")), t("12345|2,00000"));
        QCOMPARE(um(t("SELECT NR_DCR || '|' || PC_COEF_REDUCAO_II || '|' || QT_PRODUTO || '|' || VL_II_UNIT_DOLAR FROM DCR")),
                 t("54321|50,00|2,00000|0,1000000"));
        // Records 31 to 36.
        QCOMPARE(um(t("SELECT QT_INT_UNID_NFS || '|' || VL_INT_UNID_NFS FROM ITEM_NFS_PI_SEM_PPB")), t("1,00000|9,9000000"));
        QCOMPARE(um(t("SELECT group_concat(CD_INT_INSUMO || '|' || CD_NCM_INSUMO || '|' || trim(NM_INT_INSUMO) || '|' || "
                      "NM_UNID_MED_INSUMO || '|' || QT_INSUMO_POR_PROD, ';') FROM INSUMO_ITEM_NFS")),
                 t("I1|39269090|Parafuso|CX 10|4,00000;I2|39269090|Arruela|CX 10|4,00000"));
        QCOMPARE(um(t("SELECT JUST_II_DIF_TEC || '|' || ALIQ_II_DIF_TEC || '|' || JUST_IPI_DIF_TIPI || '|' || "
                      "ALIQ_IPI_DIF_TIPI FROM JUST_DIF_ALIQ_INS_VRT_IND")),
                 t("||IPI reduzido|1,50"));
        QCOMPARE(um(t("SELECT CD_INT_INSUMO || '|' || QT_TOT_INS FROM INSUMO_VRT_IND")), t("I1|8,00000"));
        QCOMPARE(um(t("SELECT NR_NF_AQUIS || '|' || NR_SERIE_NF_AQUIS || '|' || DT_EMISS_NF_AQUIS || '|' || "
                      "CD_CFOP_NF_AQUIS || '|' || QT_INSUMO_UNID_NFS FROM ITEM_NFA_INS_IND")),
                 t("000789|C    |01032009|5102|1,00000"));
        QCOMPARE(um(t("SELECT NR_DI || '|' || NR_DI_ANTIGA || '|' || QT_INSUMO_UNID_NFS FROM ITEM_DI_INS_IND")),
                 t("0933333333|000000000000000|1,00000"));
        QCOMPARE(um(t("SELECT VL_INS_PROD_UNID_NFS || '|' || CD_MOEDA_NEG || '|' || VL_FRETE_UNID_NFS || '|' || "
                      "CD_MOEDA_FRETE FROM ITEM_IMPORT_288_INS")),
                 t("0,2000000|220|0,0100000|220"));
        QCOMPARE(um(t("SELECT NR_DSI || '|' || NR_BEM || '|' || QT_INSUMO_UNID_NFS || '|' || VL_INS_UNID_PROD || '|' || "
                      "CD_MOEDA_NEG FROM ITEM_DSI_INS_IND")),
                 t("0944444444|002|0,50000|0,3000000|978"));
        QCOMPARE(um(t("SELECT QT_INT_UNID_NFS || '|' || QT_INT_UNID_EST || '|' || VL_INT_UNID_NFS FROM ITEM_NFS_100")),
                 t("10,00000|1,00000|0,1500000"));
        // The second input renamed the product to the first input's name, as the system does.
        QCOMPARE(um(t("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'P3'")), t("Parafuso"));
    }

    void registro21ComOsDoisNumerosOuNenhum_data()
    {
        QTest::addColumn<QString>("dcre");
        QTest::addColumn<QString>("dcr");
        QTest::addColumn<QString>("tipo");
        QTest::addColumn<int>("dcres");
        QTest::addColumn<QString>("dcrs");
        // Positions 7-16 give type 1, then positions 32-40 give type 2 over it.
        QTest::newRow("os dois preenchidos: o DCR vence") << t("0000012345") << t("000054321") << t("2") << 0
                                                          << t("54321|50,00|2,00000|0,1000000");
        // No type: the item and its PI com PPB row, and no document row.
        QTest::newRow("os dois zerados: nenhum documento") << t("0000000000") << t("000000000") << t("") << 0 << t("");
    }
    void registro21ComOsDoisNumerosOuNenhum()
    {
        QFETCH(QString, dcre);
        QFETCH(QString, dcr);
        QFETCH(QString, tipo);
        QFETCH(int, dcres);
        QFETCH(QString, dcrs);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(le({i21(t("001"), dcre, dcr, t("PC"))}));
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS"), t("IND_MOD_INTERNACAO = '2'")), 1);
        QCOMPARE(um(t("SELECT IFNULL(CD_TIPO_COEF_REDUCAO, '') || '|' || VL_PIS FROM ITEM_NFS_PI_COM_PPB")),
                 tipo + t("|0,0110000"));
        QCOMPARE(BancoTeste::conta(t("DCRE")), dcres);
        QCOMPARE(um(t("SELECT group_concat(NR_DCR || '|' || PC_COEF_REDUCAO_II || '|' || QT_PRODUTO || '|' || "
                      "VL_II_UNIT_DOLAR, ';') FROM DCR")),
                 dcrs);
    }

    void caractere160NasPontasFicaNoCodigoNaUnidadeENoNome()
    {
        const QString nbsp(QChar(160));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        const QString linha = Linha(707).poe(1, i11(t("001"), nbsp + t("P9") + nbsp, nbsp + t("Teclado") + nbsp))
                                  .poe(591, (nbsp + t("CX") + nbsp).leftJustified(20));
        QVERIFY(le({linha}));
        QCOMPARE(um(t("SELECT CD_INT_PROD || '|' || NM_UNID_MED_PROD FROM ITEM_NFS")),
                 nbsp + t("P9") + nbsp + t("|") + nbsp + t("CX") + nbsp);
        QCOMPARE(um(t("SELECT NM_INT_PROD FROM ITEM_NFS")), (nbsp + t("Teclado") + nbsp).leftJustified(45));
        // The product is registered with its code and name cut of blanks only.
        QCOMPARE(um(t("SELECT CD_INT_PRODUTO || '|' || NM_INT_PRODUTO FROM PRODUTO")),
                 nbsp + t("P9") + nbsp + t("|") + nbsp + t("Teclado") + nbsp);
        // The unit is looked up and registered without any character 160.
        QCOMPARE(BancoTeste::conta(t("UNIDADE_MEDIDA"), t("NM_MEDIDA = 'CX'")), 1);
        QCOMPARE(BancoTeste::conta(t("UNIDADE_MEDIDA"), t("instr(NM_MEDIDA, ?) > 0"), {nbsp}), 0);
    }

    void justificativaSoComBrancosNosTrechosTestadosNaoEhGravada()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        // The row is left out only when positions 110-362 and 368-620 are all blank: a file from other
        // software with no justification, no aliquots, no unit and no quantity on the invoice there.
        const QString semAliquotas = Linha(707).poe(1, i11(t("001"), t("P1"), t("Notebook")))
                                         .poe(75, QString(550, QLatin1Char(' '))).texto();
        QVERIFY(le({semAliquotas}));
        QCOMPARE(BancoTeste::conta(t("JUST_DIF_ALIQ_PROD_VRT_IND")), 0);
    }

    void mensagensDoIndividual_data()
    {
        QTest::addColumn<QStringList>("itens");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("11 com NCM não cadastrada")
            << QStringList{Linha(707).poe(1, i11(t("001"), t("P1"), t("N"))).poe(6, t("11111111")).texto()}
            << t("Erro no 5º registro (registro 11) - NCM não cadastrada!");
        QTest::newRow("21 com 199 caracteres") << QStringList{i21(t("003"), t("0000012345"), t("000000000"), t("UN")) + t(" ")}
                                               << t("Erro no 5º registro (registro 21) - Tamanho inválido!");
        QTest::newRow("32 com NCM não cadastrada")
            << QStringList{i31(), Linha(122).poe(1, i32(t("I1"), t("P"))).poe(36, t("11111111")).texto()}
            << t("Erro no 6º registro (registro 32) - NCM não cadastrada!");
        QTest::newRow("41 com 185 caracteres") << QStringList{i41() + t(" ")}
                                               << t("Erro no 5º registro (registro 41) - Tamanho inválido!");
    }
    void mensagensDoIndividual()
    {
        QFETCH(QStringList, itens);
        QFETCH(QString, mensagem);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!le(itens));
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
        QCOMPARE(BancoTeste::conta(t("NOTA_FISCAL_SAIDA")), 0);
    }
};

QTEST_GUILESS_MAIN(TstLeArquivoIndividual)
#include "tst_leArquivoIndividual.moc"
