#include "core/file/layout/LayoutRegistro.h"
#include "core/file/writing/LinhaRegistro.h"
#include "core/rules/Formatadores.h"

#include <QtTest>

Q_DECLARE_METATYPE(TipoCampo)

class tst_linhaRegistro : public QObject {
    Q_OBJECT
private slots:
    void campoFormatadoPeloTipo_data();
    void campoFormatadoPeloTipo();
    void camposNaoPreenchidosFicamVaziosPeloTipo();
    void valorLongoDemaisEmpurraOCampoSeguinteParaNovaLinha();
    void valorCurtoComoEstaELevadoAteAColunaSeguinte();
    void constanteDoRegistroPodeSerEscolhida();
    void formatacaoSegueAsRotinasDoFormato_data();
    void formatacaoSegueAsRotinasDoFormato();
    void bytesDoBancoFormatadosComoOTexto_data();
    void bytesDoBancoFormatadosComoOTexto();
    void textoForaDoAsciiFicaComOTexto();
    void campoDeOutraLarguraDesfazALinhaEmCampos();
};

namespace {
CampoLayout campo(TipoCampo tipo, int tamanho)
{
    CampoLayout c;
    c.posicao = 1;
    c.tamanho = tamanho;
    c.tipo = tipo;
    c.constante = QString(tamanho, u'K');
    return c;
}
}  // namespace

void tst_linhaRegistro::campoFormatadoPeloTipo_data()
{
    QTest::addColumn<TipoCampo>("tipo");
    QTest::addColumn<int>("tamanho");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("campo");
    using T = TipoCampo;
    QTest::newRow("N com zeros à esquerda") << T::N << 6 << "123" << "000123";
    QTest::newRow("N nulo vira zeros") << T::N << 3 << QString() << "000";
    QTest::newRow("N longo não é cortado") << T::N << 3 << "123456" << "123456";
    QTest::newRow("X com brancos à direita") << T::X << 5 << "AB" << "AB   ";
    QTest::newRow("X nulo vira brancos") << T::X << 3 << QString() << "   ";
    QTest::newRow("R com brancos à esquerda") << T::R << 6 << "123" << "   123";
    QTest::newRow("D2 sem a vírgula") << T::D2 << 15 << "1234,56" << "000000000123456";
    QTest::newRow("D5 com menos casas leva só os seus dígitos") << T::D5 << 14 << "5,5" << "00000000000055";
    QTest::newRow("D7 vazio vira zeros") << T::D7 << 20 << "" << "00000000000000000000";
    QTest::newRow("D2 com ponto de milhar guarda o ponto") << T::D2 << 15 << "1.234,56" << "000000001.23456";
    QTest::newRow("DT de ddmmaaaa para aaaammdd") << T::DT << 8 << "31122008" << "20081231";
    QTest::newRow("DT de zeros") << T::DT << 8 << "00000000" << "00000000";
    QTest::newRow("DT nula vira zeros") << T::DT << 8 << QString() << "00000000";
    QTest::newRow("K nulo dá a constante") << T::K << 2 << QString() << "KK";
    QTest::newRow("A como está, sem preencher") << T::A << 14 << "123" << "123";
}

void tst_linhaRegistro::campoFormatadoPeloTipo()
{
    QFETCH(TipoCampo, tipo);
    QFETCH(int, tamanho);
    QFETCH(QString, valor);
    QFETCH(QString, campo);
    QCOMPARE(LinhaRegistro::formata(::campo(tipo, tamanho), valor), campo);
}

void tst_linhaRegistro::camposNaoPreenchidosFicamVaziosPeloTipo()
{
    const LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Individual, QStringLiteral("34")));
    QCOMPARE(l.texto(), QStringLiteral("34") + QString(14, u'0') + QString(5, u' ') + QString(6, u'0')
                            + QString(3, u'0') + QString(8, u'0') + QString(4, u'0') + QStringLiteral(" ")
                            + QString(14, u'0') + QString(20, u'0') + QString(15, u' ') + QStringLiteral("0"));
    QCOMPARE(l.texto().size(), 93);
}

void tst_linhaRegistro::valorLongoDemaisEmpurraOCampoSeguinteParaNovaLinha()
{
    LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("00")));
    l.poeComoEsta(QStringLiteral("ORIGEM"), QStringLiteral("1"));
    l.poe(QStringLiteral("CD_TIPO_VRT"), QStringLiteral("2"));
    // Seven digits in the six positions 17-22: the next field, at 23, starts a new line at column 23.
    l.poe(QStringLiteral("DT_REFERENCIA_VRT"), QStringLiteral("2008121"));
    l.poe(QStringLiteral("NR_CNPJ_INTERNADOR"), QStringLiteral("12345678000195"));
    QCOMPARE(l.texto(), QStringLiteral("00VRT/PLN102.0022008121\r\n") + QString(22, u' ') + QString(14, u'0')
                            + QString(5, u' ') + QStringLiteral("000000") + QStringLiteral("12345678000195"));
    QString texto;
    // The column after the record is the one after its last field, on the line where that field stands.
    QCOMPARE(l.compoeEm(texto, 1), 62);
}

void tst_linhaRegistro::valorCurtoComoEstaELevadoAteAColunaSeguinte()
{
    LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("00")));
    l.poeComoEsta(QStringLiteral("ORIGEM"), QStringLiteral("3"));
    l.poe(QStringLiteral("CD_TIPO_VRT"), QString());
    l.poe(QStringLiteral("NR_CNPJ_INTERNADOR"), QStringLiteral("123"));
    // An empty "as stored" field leaves a blank at its column; a short one at the end leaves the line short.
    QCOMPARE(l.texto(), QStringLiteral("00VRT/PLN302.00 000000") + QString(14, u'0') + QString(5, u' ')
                            + QStringLiteral("000000123"));
}

void tst_linhaRegistro::constanteDoRegistroPodeSerEscolhida()
{
    LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("31")));
    QCOMPARE(l.valor(QStringLiteral("CD_LOCAL_DESTINO_2")), QStringLiteral("2"));
    QCOMPARE(l.valor(QStringLiteral("TIPO_REGISTRO")), QStringLiteral("31"));
    QCOMPARE(l.valor(QStringLiteral("ZEROS_3")), QStringLiteral("000"));
    QVERIFY(l.layout().semFimDeLinha);
}

namespace {
// The formatting rule of each kind, written with the shared formatting routines.
QString pelasRotinas(const CampoLayout& c, const QString& v)
{
    using namespace Funcoes;
    switch (c.tipo) {
    case TipoCampo::N: return ZeroEsquerda(v, c.tamanho);
    case TipoCampo::X: return BrancoDireita(v, c.tamanho);
    case TipoCampo::R: return BrancoEsquerda(v, c.tamanho);
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7: return ZeroEsquerda(TiraCaractere(v, QStringLiteral(",")), c.tamanho);
    case TipoCampo::DT: return ZeroEsquerda(v.mid(4, 4) + v.mid(2, 2) + v.mid(0, 2), 8);
    case TipoCampo::K: return v.isNull() ? c.constante : v;
    case TipoCampo::A: return v;
    }
    return QString();
}

void valoresDeAmostra()
{
    QTest::addColumn<QString>("valor");
    QTest::newRow("nulo") << QString();
    QTest::newRow("vazio") << QStringLiteral("");
    QTest::newRow("um branco") << QStringLiteral(" ");
    QTest::newRow("tabulação e brancos") << QStringLiteral(" \t ");
    QTest::newRow("só a vírgula") << QStringLiteral(",");
    QTest::newRow("vírgulas seguidas") << QStringLiteral(",,");
    QTest::newRow("brancos e vírgula") << QStringLiteral(" , ");
    QTest::newRow("decimal") << QStringLiteral("12,50");
    QTest::newRow("vírgula no fim") << QStringLiteral("12,");
    QTest::newRow("vírgula no começo") << QStringLiteral(",5");
    QTest::newRow("milhar e decimal") << QStringLiteral("1.234,56");
    QTest::newRow("duas vírgulas") << QStringLiteral("1,2,3");
    QTest::newRow("com brancos em volta") << QStringLiteral(" 42 ");
    QTest::newRow("data") << QStringLiteral("31122008");
    QTest::newRow("data curta") << QStringLiteral("3112");
    QTest::newRow("data de cinco") << QStringLiteral("31120");
    QTest::newRow("data de brancos e dígitos") << QStringLiteral("  12    ");
    QTest::newRow("texto") << QStringLiteral("Produto de teste");
    QTest::newRow("longo") << QString(300, u'9');
}
}  // namespace

void tst_linhaRegistro::formatacaoSegueAsRotinasDoFormato_data()
{
    valoresDeAmostra();
    // Outside ASCII: accents, and spaces that only the text knows as spaces.
    QTest::newRow("acentos") << QStringLiteral("Maçã");
    QTest::newRow("branco rígido") << QStringLiteral("\u00a0");
    QTest::newRow("decimal com espaço largo") << QStringLiteral("\u2003,\u2003");
    QTest::newRow("número e espaço largo") << QStringLiteral("7\u2003");
}

void tst_linhaRegistro::formatacaoSegueAsRotinasDoFormato()
{
    QFETCH(QString, valor);
    for (const TipoCampo tipo : {TipoCampo::N, TipoCampo::X, TipoCampo::R, TipoCampo::D2, TipoCampo::D5,
                                 TipoCampo::D7, TipoCampo::DT, TipoCampo::K, TipoCampo::A}) {
        for (const int tamanho : {0, 1, 3, 8, 14}) {
            const CampoLayout c = campo(tipo, tamanho);
            QCOMPARE(LinhaRegistro::formata(c, valor), pelasRotinas(c, valor));
        }
    }
}

void tst_linhaRegistro::bytesDoBancoFormatadosComoOTexto_data()
{
    valoresDeAmostra();
}

void tst_linhaRegistro::bytesDoBancoFormatadosComoOTexto()
{
    QFETCH(QString, valor);
    const QByteArray utf8 = valor.toUtf8();
    const QByteArrayView bytes = valor.isNull() ? QByteArrayView() : QByteArrayView(utf8);
    for (const TipoCampo tipo : {TipoCampo::N, TipoCampo::X, TipoCampo::R, TipoCampo::D2, TipoCampo::D5,
                                 TipoCampo::D7, TipoCampo::DT, TipoCampo::K, TipoCampo::A}) {
        for (const int tamanho : {0, 1, 3, 8, 14}) {
            const CampoLayout c = campo(tipo, tamanho);
            QByteArray saida;
            QVERIFY(LinhaRegistro::formataAscii(c, bytes, saida));
            QCOMPARE(QString::fromLatin1(saida), LinhaRegistro::formata(c, valor));
        }
    }
    // Put into a record, field by field of every kind a column fills, as the text would be.
    const LayoutRegistro& layout = LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("12"));
    for (int i = 0; i < layout.campos.size(); ++i) {
        if (layout.campos.at(i).tipo == TipoCampo::K)
            continue;
        LinhaRegistro deBytes(layout);
        LinhaRegistro deTexto(layout);
        deBytes.poeUtf8(i, bytes);
        deTexto.poe(i, valor);
        QCOMPARE(deBytes.texto(), deTexto.texto());
    }
}

void tst_linhaRegistro::textoForaDoAsciiFicaComOTexto()
{
    QByteArray saida;
    QVERIFY(!LinhaRegistro::formataAscii(campo(TipoCampo::X, 10), QByteArrayView("Ma\xc3\xa7\xc3\xa3"), saida));
    // Through the text the record still takes it, a character per position.
    LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("41")));
    l.poe(QStringLiteral("NM_INT_PRODUTO"), QStringLiteral("Maçã"));
    QCOMPARE(l.texto().mid(28, 45), QStringLiteral("Maçã") + QString(41, u' '));
    QCOMPARE(l.bytes().mid(28, 4), QByteArray("Ma\xe7\xe3"));
}

void tst_linhaRegistro::campoDeOutraLarguraDesfazALinhaEmCampos()
{
    LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("41")));
    QCOMPARE(l.bytes().size(), 184);
    l.poe(QStringLiteral("CD_NCM_PRODUTO"), QStringLiteral("123456789"));
    // Nine digits in eight positions: the record is no longer one line of its width.
    QVERIFY(l.bytes().isNull());
    QCOMPARE(l.texto().left(14), QStringLiteral("41000123456789"));
    // The next field, at column 14, starts a new line at its column.
    QCOMPARE(l.texto().mid(14, 15), QStringLiteral("\r\n") + QString(13, u' '));
    l.limpa();
    QCOMPARE(l.bytes().size(), 184);
}

QTEST_GUILESS_MAIN(tst_linhaRegistro)
#include "tst_linhaRegistro.moc"
