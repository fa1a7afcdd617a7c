#include "TestUtil.h"

#include "core/file/layout/LayoutRegistro.h"
#include "core/file/layout/SlotsValores.h"

#include <QtTest>

Q_DECLARE_METATYPE(TipoDeclaracao)
Q_DECLARE_METATYPE(TipoCampo)

class tst_layout : public QObject {
    Q_OBJECT
private slots:
    void tamanhoDeCadaRegistro_data();
    void tamanhoDeCadaRegistro();
    void camposCobremORegistroSemLacunas_data();
    void camposCobremORegistroSemLacunas();
    void posicaoETipoDosCampos_data();
    void posicaoETipoDosCampos();
    void registrosSemFimDeLinha();
    void constantesDosRegistros();
    void slotsDoRegistro02();
    void slotsDoRegistro03();
    void slotPorCodigos();
    void campoLeDaLinha();
    void tipoDesconhecidoNaoTemLayout();
};

namespace {
const TipoDeclaracao M = TipoDeclaracao::Mensal;
const TipoDeclaracao I = TipoDeclaracao::Individual;
}  // namespace

void tst_layout::tamanhoDeCadaRegistro_data()
{
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<int>("tamanho");
    QTest::addColumn<bool>("exato");
    const struct {
        const char* tipo;
        int tamanho;
        bool exato;
    } tabela[] = {{"00", 61, true},   {"01", 113, true},  {"02", 563, true},  {"03", 524, true},
                  {"11", 707, false}, {"12", 93, true},   {"13", 133, false}, {"14", 114, false},
                  {"21", 198, true},  {"31", 187, true},  {"32", 122, true},  {"33", 565, true},
                  {"34", 93, true},   {"35", 133, false}, {"36", 130, false}, {"41", 184, true}};
    for (const auto& l : tabela)
        QTest::newRow(l.tipo) << QString::fromLatin1(l.tipo) << l.tamanho << l.exato;
}

void tst_layout::tamanhoDeCadaRegistro()
{
    QFETCH(QString, tipo);
    QFETCH(int, tamanho);
    QFETCH(bool, exato);
    for (TipoDeclaracao d : {M, I}) {
        const LayoutRegistro& r = LayoutRegistro::de(d, tipo);
        QCOMPARE(r.tipo, tipo);
        QCOMPARE(r.tamanho, tamanho);
        QCOMPARE(r.tamanhoExato, exato);
    }
    QCOMPARE(LayoutRegistro::tipos().size(), 16);
}

void tst_layout::camposCobremORegistroSemLacunas_data()
{
    QTest::addColumn<TipoDeclaracao>("declaracao");
    QTest::addColumn<QString>("tipo");
    for (const QString& t : LayoutRegistro::tipos()) {
        QTest::newRow(qPrintable(QStringLiteral("mensal %1").arg(t))) << M << t;
        QTest::newRow(qPrintable(QStringLiteral("individual %1").arg(t))) << I << t;
    }
}

void tst_layout::camposCobremORegistroSemLacunas()
{
    QFETCH(TipoDeclaracao, declaracao);
    QFETCH(QString, tipo);
    const LayoutRegistro& r = LayoutRegistro::de(declaracao, tipo);
    int proxima = 1;
    QSet<QString> nomes;
    for (const CampoLayout& c : r.campos) {
        QCOMPARE(c.posicao, proxima);
        QVERIFY2(!nomes.contains(c.nome), qPrintable(c.nome));
        nomes.insert(c.nome);
        if (c.tipo == TipoCampo::K && !c.constante.isEmpty())
            QCOMPARE(c.constante.size(), c.tamanho);
        proxima = c.fim() + 1;
    }
    QCOMPARE(proxima - 1, r.tamanho);
    QCOMPARE(r.campos.first().nome, QStringLiteral("TIPO_REGISTRO"));
    QCOMPARE(r.campos.first().constante, tipo);
}

void tst_layout::posicaoETipoDosCampos_data()
{
    QTest::addColumn<TipoDeclaracao>("declaracao");
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<QString>("nome");
    QTest::addColumn<int>("posicao");
    QTest::addColumn<int>("tamanho");
    QTest::addColumn<TipoCampo>("kind");
    using T = TipoCampo;
    const struct {
        const char* linha;
        TipoDeclaracao d;
        const char* tipo;
        const char* nome;
        int pos;
        int tam;
        TipoCampo kind;
    } tabela[] = {
        {"cabeçalho: versão do leiaute", M, "00", "VERSAO_LAYOUT", 11, 5, T::K},
        {"cabeçalho: mês de referência", M, "00", "DT_REFERENCIA_VRT", 17, 6, T::N},
        {"cabeçalho: CNPJ como está", I, "00", "NR_CNPJ_INTERNADOR", 48, 14, T::A},
        {"01: CFOP", I, "01", "CD_OP_FISCAL", 66, 4, T::N},
        {"01: destinatário alinhado à direita", I, "01", "NR_DESTINAT", 71, 14, T::R},
        {"01: conta", M, "01", "NR_CC_AG_BCO_ARREC", 95, 19, T::N},
        {"02: indicador do slot 35", M, "02", "IND_MANDADO_35", 548, 1, T::X},
        {"02: valor do slot 35", M, "02", "VL_MANDADO_35", 549, 15, T::D2},
        {"03: processo", M, "03", "NR_PROC_ADM_FISCAL", 13, 17, T::N},
        {"03: valor do slot 33", I, "03", "VL_RETIF_33", 510, 15, T::D2},
        {"11 mensal: quantidade do destino", M, "11", "QT_PROD_LOC_DEST", 674, 14, T::D5},
        {"11 mensal: unidade", M, "11", "NM_UNID_MED_PROD", 688, 20, T::X},
        {"11 individual: unidade", I, "11", "NM_UNID_MED_PROD", 591, 20, T::X},
        {"11 individual: IPI destacado", I, "11", "VL_IPI_DESTACADO", 659, 15, T::D2},
        {"11 individual: item da nota", I, "11", "NR_ITEM_NF_SAIDA", 3, 3, T::N},
        {"12 mensal: indicador de obsolescência é texto", M, "12", "IND_OBSOLE_RESIDUO", 44, 1, T::X},
        {"12 individual: indicador de obsolescência com zeros", I, "12", "IND_OBSOLE_RESIDUO", 44, 1, T::N},
        {"13: valor de obsolescência", M, "13", "VL_TOT_PROD_OBSOLE", 118, 15, T::D2},
        {"13 individual: frete", I, "13", "VL_FRETE_UNID_NFS", 72, 20, T::D7},
        {"14: moeda do seguro", M, "14", "CD_MOEDA_SEGURO", 111, 3, T::N},
        {"21: DCR-E", M, "21", "NR_DCRE", 7, 10, T::N},
        {"21: DCR", I, "21", "NR_DCR", 32, 9, T::N},
        {"21 individual: quantidade", I, "21", "QT_PRODUTO", 111, 14, T::D5},
        {"21 mensal: unidade do destino", M, "21", "NM_UNID_MED_DEST", 139, 20, T::X},
        {"31 mensal: destino 4", M, "31", "QT_PROD_LOC_DEST_4", 174, 14, T::D5},
        {"31 individual: marca do destino 2", I, "31", "CD_LOCAL_DESTINO_2", 143, 1, T::N},
        {"32: quantidade por produto", M, "32", "QT_INSUMO_POR_PROD", 109, 14, T::D5},
        {"33 mensal: total por destino", M, "33", "QT_TOT_INS_POR_LOC", 552, 14, T::D5},
        {"33 individual: total", I, "33", "QT_TOT_INS", 21, 14, T::D5},
        {"34 mensal: destino", M, "34", "CD_LOCAL_DESTINO", 93, 1, T::N},
        {"35 mensal: insumo", M, "35", "CD_INT_INSUMO", 117, 15, T::X},
        {"35 individual: indicador de suspensão", I, "35", "IND_SUSP_PIS_COFINS", 133, 1, T::X},
        {"36 individual: valor", I, "36", "VL_INS_UNID_PROD", 61, 20, T::D7},
        {"41 mensal: valor", M, "41", "VL_PROD_UNID_PROD", 142, 15, T::D2},
        {"41 individual: valor", I, "41", "VL_INT_UNID_NFS", 122, 20, T::D7},
    };
    for (const auto& l : tabela) {
        QTest::newRow(l.linha) << l.d << QString::fromLatin1(l.tipo) << QString::fromLatin1(l.nome) << l.pos
                               << l.tam << l.kind;
    }
}

void tst_layout::posicaoETipoDosCampos()
{
    QFETCH(TipoDeclaracao, declaracao);
    QFETCH(QString, tipo);
    QFETCH(QString, nome);
    QFETCH(int, posicao);
    QFETCH(int, tamanho);
    QFETCH(TipoCampo, kind);
    const CampoLayout* c = LayoutRegistro::de(declaracao, tipo).procura(nome);
    QVERIFY(c);
    QCOMPARE(c->posicao, posicao);
    QCOMPARE(c->tamanho, tamanho);
    QCOMPARE(c->tipo, kind);
}

void tst_layout::registrosSemFimDeLinha()
{
    QStringList mensal, individual;
    for (const QString& t : LayoutRegistro::tipos()) {
        if (LayoutRegistro::de(M, t).semFimDeLinha)
            mensal << t;
        if (LayoutRegistro::de(I, t).semFimDeLinha)
            individual << t;
    }
    QCOMPARE(mensal, QStringList({QStringLiteral("31"), QStringLiteral("32")}));
    QCOMPARE(individual, QStringList({QStringLiteral("12")}));
}

void tst_layout::constantesDosRegistros()
{
    const LayoutRegistro& r00 = LayoutRegistro::de(M, QStringLiteral("00"));
    QCOMPARE(r00.campo(QStringLiteral("CABECALHO")).constante, QStringLiteral("VRT/PLN"));
    QCOMPARE(r00.campo(QStringLiteral("ORIGEM")).constante, QString());
    QCOMPARE(r00.campo(QStringLiteral("VERSAO_LAYOUT")).constante, QStringLiteral("02.00"));
    QCOMPARE(LayoutRegistro::de(M, QStringLiteral("01")).campo(QStringLiteral("FIXO_4")).constante,
             QStringLiteral("1"));
    QCOMPARE(LayoutRegistro::de(M, QStringLiteral("31")).campo(QStringLiteral("CD_LOCAL_DESTINO_3")).constante,
             QStringLiteral("3"));
    QCOMPARE(LayoutRegistro::de(M, QStringLiteral("11")).campo(QStringLiteral("ZEROS_3")).constante,
             QStringLiteral("000"));
    QCOMPARE(LayoutRegistro::de(I, QStringLiteral("35")).campo(QStringLiteral("FIXO_132")).constante,
             QStringLiteral("0"));
    QCOMPARE(LayoutRegistro::de(I, QStringLiteral("11")).campo(QStringLiteral("BRANCOS_688")).constante,
             QString(20, u' '));
    // The monthly record 11 has no invoice item number; the individual one has no filler there.
    QVERIFY(!LayoutRegistro::de(M, QStringLiteral("11")).procura(QStringLiteral("NR_ITEM_NF_SAIDA")));
    QVERIFY(!LayoutRegistro::de(I, QStringLiteral("11")).procura(QStringLiteral("ZEROS_3")));
}

void tst_layout::slotsDoRegistro02()
{
    const auto& lista = SlotsValores::mandado();
    QCOMPARE(lista.size(), 35);
    const LayoutRegistro& r = LayoutRegistro::de(M, QStringLiteral("02"));
    for (const SlotValor& s : lista) {
        const QString n = QStringLiteral("%1").arg(s.slot, 2, 10, QLatin1Char('0'));
        QCOMPARE(r.campo(QStringLiteral("IND_MANDADO_") + n).posicao, s.posicaoIndicador);
        QCOMPARE(r.campo(QStringLiteral("VL_MANDADO_") + n).posicao, s.posicaoValor);
    }
    QCOMPARE(lista.at(0).posicaoIndicador, 4);
    QCOMPARE(lista.at(0).nmTipo, QStringLiteral("Imposto Importaçao"));
    QCOMPARE(lista.at(1).nmTipo, QStringLiteral("Multa de Mora de II"));
    QCOMPARE(lista.at(1).cdTipo, 5);
    QCOMPARE(lista.at(12).nmMod, QStringLiteral("VRT - PI com PPB"));
    QCOMPARE(lista.at(12).nmTipo, QStringLiteral("Imposto de Importação"));
    QCOMPARE(lista.at(13).nmTipo, QStringLiteral("Multa de Mora II"));
    QCOMPARE(lista.at(22).nmTipo, QStringLiteral("Multa de Mora de II"));
    QCOMPARE(lista.at(33).posicaoIndicador, 532);
    QCOMPARE(lista.at(33).nmMod, QStringLiteral("VRT"));
    QCOMPARE(lista.at(33).nmTipo, QStringLiteral("Multa por Atraso"));
    QCOMPARE(lista.at(34).posicaoValor, 549);
    QCOMPARE(lista.at(34).cdMod, 9);
    QCOMPARE(lista.at(34).cdTipo, 1);
    QCOMPARE(lista.at(34).nmTipo, QStringLiteral("Taxa de Utilização"));
}

void tst_layout::slotsDoRegistro03()
{
    const auto& lista = SlotsValores::retif();
    QCOMPARE(lista.size(), 33);
    const LayoutRegistro& r = LayoutRegistro::de(I, QStringLiteral("03"));
    for (const SlotValor& s : lista) {
        const QString n = QStringLiteral("%1").arg(s.slot, 2, 10, QLatin1Char('0'));
        QCOMPARE(r.campo(QStringLiteral("VL_RETIF_") + n).posicao, s.posicaoValor);
        QCOMPARE(s.posicaoIndicador, 0);
    }
    QCOMPARE(lista.at(0).posicaoValor, 30);
    QCOMPARE(lista.at(0).cdTipo, 2);
    QCOMPARE(lista.at(15).cdMod, 2);
    QCOMPARE(lista.at(15).cdTipo, 8);
    QCOMPARE(lista.at(15).posicaoValor, 255);
    QCOMPARE(lista.at(32).posicaoValor, 510);
    QCOMPARE(lista.at(32).nmTipo, QStringLiteral("Juros de Mora COFINS"));
}

void tst_layout::slotPorCodigos()
{
    QCOMPARE(SlotsValores::slotMandado(1, 3), 1);
    QCOMPARE(SlotsValores::slotMandado(9, 1), 35);
    // IPI under modality 2 has no slot in either record.
    QCOMPARE(SlotsValores::slotMandado(2, 6), 0);
    QCOMPARE(SlotsValores::slotRetif(2, 5), 0);
    QCOMPARE(SlotsValores::slotRetif(3, 13), 33);
    QCOMPARE(SlotsValores::slotRetif(9, 1), 0);
}

void tst_layout::campoLeDaLinha()
{
    const LayoutRegistro& r = LayoutRegistro::de(M, QStringLiteral("00"));
    const QString linha = QStringLiteral("00VRT/PLN302.002200812");
    QCOMPARE(r.campo(QStringLiteral("ORIGEM")).de(linha), QStringLiteral("3"));
    QCOMPARE(r.campo(QStringLiteral("DT_REFERENCIA_VRT")).de(linha), QStringLiteral("200812"));
    QCOMPARE(r.campo(QStringLiteral("NR_INSCRICAO_EST")).de(linha), QString());
    QCOMPARE(r.indice(QStringLiteral("CD_TIPO_VRT")), 4);
    QCOMPARE(LayoutRegistro::de(M, QStringLiteral("33")).campo(QStringLiteral("ALIQ_II_DIF_TEC")).casas(), 2);
    QCOMPARE(LayoutRegistro::de(M, QStringLiteral("13")).campo(QStringLiteral("VL_FRETE_UNID_INT")).casas(), 7);
    QVERIFY(LayoutRegistro::de(M, QStringLiteral("12")).campo(QStringLiteral("DT_EMISS_NF_AQUIS")).numerico());
    QVERIFY(!LayoutRegistro::de(M, QStringLiteral("12")).campo(QStringLiteral("NR_SERIE_NF_AQUIS")).numerico());
}

void tst_layout::tipoDesconhecidoNaoTemLayout()
{
    QVERIFY(!LayoutRegistro::procura(M, QStringLiteral("15")));
    QVERIFY(!LayoutRegistro::procura(I, QStringLiteral("")));
    QVERIFY(!LayoutRegistro::de(M, QStringLiteral("13")).procura(QStringLiteral("NR_DSI")));
}

QTEST_GUILESS_MAIN(tst_layout)
#include "tst_layout.moc"
