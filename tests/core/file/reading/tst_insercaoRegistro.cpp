// The reader's inserts generated from the record layouts: the statement's columns are the layout's, each field
// is taken by its rule, and the named exceptions of the reader change only the values they name. The slot
// positions of records 02 and 03 are the ones the layouts hold.
#include "ArquivoTeste.h"
#include "core/file/reading/ExcecoesLeitura.h"
#include "core/file/reading/InsercaoRegistro.h"
#include "core/file/layout/LayoutRegistro.h"
#include "core/file/layout/RegistroLido.h"
#include "core/file/layout/SlotsValores.h"

#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
const LayoutRegistro& mensal(int tipo)
{
    return LayoutRegistro::de(TipoDeclaracao::Mensal, tipo);
}
const LayoutRegistro& individual(int tipo)
{
    return LayoutRegistro::de(TipoDeclaracao::Individual, tipo);
}
QStringList textos(const QVariantList& v)
{
    QStringList l;
    for (const QVariant& x : v)
        l << x.toString();
    return l;
}
}  // namespace

class TstInsercaoRegistro : public QObject {
    Q_OBJECT

private slots:
    void colunasDoLayoutNaOrdemDasPosicoes()
    {
        const InsercaoRegistro nfa(mensal(12), t("ITEM_NFA_PE_MEN"), {t("ID_DEST_PRODUTO")});
        QCOMPARE(nfa.sql(), t("INSERT INTO ITEM_NFA_PE_MEN (ID_DEST_PRODUTO, NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, "
                              "NR_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, IND_DL_288_67, "
                              "IND_OBSOLE_RESIDUO, QT_PROD_UNID_PROD, VL_PROD_UNID_PROD, VL_TOT_PROD_OBSOLE) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    }

    void soOsCamposDaTabelaPedida()
    {
        // Record 11 feeds three tables; the destination row takes only its two fields.
        const InsercaoRegistro destino(mensal(11), t("DESTINO_ITEM_VRT_MEN"), {t("ID_ITEM_VRT")});
        QCOMPARE(destino.colunas(), (QStringList{t("ID_ITEM_VRT"), t("CD_LOCAL_DESTINO"), t("QT_PROD_LOC_DEST")}));
        // A field of another table joins when asked for by name.
        const InsercaoRegistro total(mensal(33), t("INSUMO_VRT"), {t("ID_VRT_MICRO")}, {t("CD_INT_INSUMO")});
        QCOMPARE(total.colunas(), (QStringList{t("ID_VRT_MICRO"), t("CD_INT_INSUMO"), t("QT_TOT_INS_EST")}));
    }

    void cadaCampoPelaSuaRegra()
    {
        const InsercaoRegistro nfa(mensal(12), t("ITEM_NFA_PE_MEN"), {t("ID_DEST_PRODUTO")});
        const RegistroLido r(r12(), mensal(12));
        QCOMPARE(textos(nfa.valores(r, {7})),
                 (QStringList{t("7"), t("11222333000181"), t("A1   "), t("000123"), t("001"), t("05112008"), t("102"),
                              t("S"), t("N"), t("1,50000"), t("2,5000000"), QString()}));
    }

    void regrasMarcadasNosLayouts_data()
    {
        QTest::addColumn<QString>("linha");
        QTest::addColumn<int>("tipo");
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("lido");
        QTest::newRow("código do produto aparado")
            << r41(t("P1"), t("Cabo"), t("M")) << 41 << t("CD_INT_PRODUTO") << t("P1");
        QTest::newRow("nome como está") << r41(t("P1"), t("Cabo"), t("M")) << 41 << t("NM_INT_PRODUTO")
                                        << t("Cabo").leftJustified(45);
        QTest::newRow("DI antiga de zeros fica vazia") << r13() << 13 << t("NR_DI_ANTIGA") << QString();
        QTest::newRow("DI preenchida fica como está") << r13() << 13 << t("NR_DI") << t("0812345678");
        QTest::newRow("moeda do registro 13 sem zeros fica") << r13() << 13 << t("CD_MOEDA_NEG") << t("220");
        QTest::newRow("DSI antiga de zeros fica vazia") << r14() << 14 << t("NR_DSI_ANTIGA") << QString();
        QTest::newRow("moeda do registro 14 de zeros fica como está") << r14() << 14 << t("CD_MOEDA_NEG") << t("000");
        QTest::newRow("unidade do destino aparada")
            << r21(t("1"), t("P2"), t("Monitor"), t("PC")) << 21 << t("NM_UNID_MED_DEST") << t("PC");
        QTest::newRow("decimal com a vírgula da escala")
            << r21(t("1"), t("P2"), t("Monitor"), t("PC")) << 21 << t("PC_COEF_REDUCAO_II") << t("88,00");
    }
    void regrasMarcadasNosLayouts()
    {
        QFETCH(QString, linha);
        QFETCH(int, tipo);
        QFETCH(QString, campo);
        QFETCH(QString, lido);
        QCOMPARE(RegistroLido(linha, mensal(tipo)).lido(campo), lido);
    }

    void aliquotaSoComJustificativa()
    {
        const InsercaoRegistro just(mensal(11), t("JUST_DIF_ALIQ_PROD_VRT_MEN"), {t("ID_ITEM_VRT")});
        const QString linha = r11(t("1"), t("P1"), t("Notebook"), t("00000000200000"), t("00000000120000"), t("UN"),
                                  t("Alíquota reduzida"), t("01000"));
        Linha semJustificativa(707);
        semJustificativa.poe(1, linha).poe(75, QString(253, QLatin1Char(' ')));
        const RegistroLido com(linha, mensal(11));
        const RegistroLido sem(semJustificativa, mensal(11));
        QVariantList v = just.valores(com, {1});
        ExcecoesLeitura::aliquotaSoComJustificativa(com, just, v);
        QCOMPARE(v.at(just.posicao(t("ALIQ_II_DIF_TEC"))).toString(), t("10,00"));
        // The IPI aliquot's digits are there, its justification blank: nothing is stored for it.
        QCOMPARE(v.at(just.posicao(t("ALIQ_IPI_DIF_TIPI"))).toString(), QString());
        v = just.valores(sem, {1});
        ExcecoesLeitura::aliquotaSoComJustificativa(sem, just, v);
        QCOMPARE(v.at(just.posicao(t("ALIQ_II_DIF_TEC"))).toString(), QString());
    }

    void valorDoInsumoSoComDl288()
    {
        const InsercaoRegistro nfa(mensal(34), t("ITEM_NFA_INS_MEN"), {t("ID_VRT_MICRO"), t("ID_INSUMO_ITEM")});
        const RegistroLido com(r34(t("I1")), mensal(34));
        QVariantList v = nfa.valores(com, {t("00001/08"), 3});
        ExcecoesLeitura::valorInsumoSoComDl288(com, nfa, v);
        QCOMPARE(v.at(nfa.posicao(t("VL_INSUMO_UNID_INS"))).toString(), t("0,1234567"));
        Linha semDl(93);
        semDl.poe(1, r34(t("I1"))).poe(43, t("N"));
        const RegistroLido sem(semDl, mensal(34));
        v = nfa.valores(sem, {t("00001/08"), 3});
        ExcecoesLeitura::valorInsumoSoComDl288(sem, nfa, v);
        QCOMPARE(v.at(nfa.posicao(t("VL_INSUMO_UNID_INS"))).toString(), QString());
    }

    void numeroPpbDcrVenceDcre_data()
    {
        QTest::addColumn<QString>("dcre");
        QTest::addColumn<QString>("dcr");
        QTest::addColumn<QString>("tipo");
        QTest::addColumn<QString>("numero");
        QTest::newRow("só DCR-E") << t("0000012345") << t("000000000") << t("1") << t("12345");
        QTest::newRow("só DCR") << t("0000000000") << t("000000777") << t("2") << t("777");
        QTest::newRow("os dois: o DCR vence") << t("0000012345") << t("000000777") << t("2") << t("777");
        QTest::newRow("nenhum") << t("0000000000") << t("000000000") << QString() << QString();
    }
    void numeroPpbDcrVenceDcre()
    {
        QFETCH(QString, dcre);
        QFETCH(QString, dcr);
        QFETCH(QString, tipo);
        QFETCH(QString, numero);
        for (TipoDeclaracao d : {TipoDeclaracao::Mensal, TipoDeclaracao::Individual}) {
            const RegistroLido r(r21(t("1"), t("P2"), t("Monitor"), t("PC"), dcre, dcr), LayoutRegistro::de(d, 21));
            const ExcecoesLeitura::NumeroPpb ppb = ExcecoesLeitura::numeroPpb(r);
            QCOMPARE(ppb.tipo, tipo);
            QCOMPARE(ppb.numero, numero);
        }
    }

    void justificativaIndividualPelasPosicoesDasAliquotas()
    {
        Linha brancos(707);
        brancos.poe(1, t("11"));
        QVERIFY(!ExcecoesLeitura::temJustificativaIndividual(RegistroLido(brancos, individual(11))));
        // Blank justifications but aliquot digits inside the spans, as every file this system writes has.
        Linha aliquotas(707);
        aliquotas.poe(1, t("11")).poe(328, t("00000"));
        QVERIFY(ExcecoesLeitura::temJustificativaIndividual(RegistroLido(aliquotas, individual(11))));
    }

    void posicoesDosSlotsSaoAsDosLayouts()
    {
        const LayoutRegistro& r02 = mensal(2);
        for (const SlotValor& s : SlotsValores::mandado()) {
            const QString n = QStringLiteral("%1").arg(s.slot, 2, 10, QLatin1Char('0'));
            QCOMPARE(r02.campo(t("IND_MANDADO_") + n).posicao, s.posicaoIndicador);
            QCOMPARE(r02.campo(t("VL_MANDADO_") + n).posicao, s.posicaoValor);
        }
        const LayoutRegistro& r03 = mensal(3);
        for (const SlotValor& s : SlotsValores::retif()) {
            const QString n = QStringLiteral("%1").arg(s.slot, 2, 10, QLatin1Char('0'));
            QCOMPARE(r03.campo(t("VL_RETIF_") + n).posicao, s.posicaoValor);
        }
        QCOMPARE(SlotsValores::mandado().size(), SlotsValores::QuantidadeMandado);
        QCOMPARE(SlotsValores::retif().size(), SlotsValores::QuantidadeRetif);
    }
};

QTEST_GUILESS_MAIN(TstInsercaoRegistro)
#include "tst_insercaoRegistro.moc"
