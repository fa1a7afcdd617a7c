// Every field of the head records 00 to 03 that the reader stores reaches its column: a head file with a distinct
// value in each field is read, and each column is compared with the value written here by hand. A case list that
// misses a field the layouts map to a column fails too, so a field cannot be lost from the reader unnoticed.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/layout/RegistrosCabeca.h"

#include <QSet>
#include <QtTest>

using namespace ArquivoTeste;

namespace {

struct Caso {
    const char* arquivo;  // "individual" or "mensal"
    const char* tabela;
    const char* coluna;
    const char* esperado;
};

// Record 01 repeats in positions 3 to 49 what record 00 says; here its copies differ, and record 00 wins.
QStringList cabecaIndividual()
{
    const QString r00 = Linha(61)
                            .poe(1, QStringLiteral("00VRT/PLN3"))
                            .poe(11, QStringLiteral("02.00"))
                            .poe(16, QStringLiteral("1"))
                            .zeros(17, 6)
                            .poe(23, QStringLiteral("00000123456789"))
                            .poe(37, QStringLiteral("AB 1 "))
                            .poe(42, QStringLiteral("004321"))
                            .poe(48, Cnpj);
    const QString r01 = Linha(113)
                            .poe(1, QStringLiteral("0121"))
                            .poe(5, QStringLiteral("199901"))
                            .poe(11, QStringLiteral("99888777000166"))
                            .poe(25, QStringLiteral("55555555555555"))
                            .poe(39, QStringLiteral("ZZZZZ"))
                            .poe(44, QStringLiteral("777777"))
                            .poe(50, QStringLiteral("20090315"))
                            .poe(58, QStringLiteral("20090316"))
                            .poe(66, QStringLiteral("6101"))
                            .poe(70, QStringLiteral("2"))
                            .poe(71, QStringLiteral("    1234567890"))
                            .poe(85, QStringLiteral("RR"))
                            .poe(87, QStringLiteral("S"))
                            .poe(88, QStringLiteral("001"))
                            .poe(91, QStringLiteral("3344"))
                            .poe(95, QStringLiteral("0000000000012345678"));
    // A judicial order with slot 1 (import tax) of 1.234,56; the rectification of 0912345678 with slot 2 of 10,00.
    const QString r02 = Linha(563).poe(1, registro02()).poe(3, QStringLiteral("S")).poe(4, QStringLiteral("S000000000123456"));
    const QString r03 = Linha(524)
                            .poe(1, registro03())
                            .poe(3, QStringLiteral("0912345678"))
                            .poe(13, QStringLiteral("00000000000004321"))
                            .poe(45, QStringLiteral("000000000001000"));
    return {r00, r01, r02, r03};
}

QStringList cabecaMensal()
{
    return {registro00Mensal(QLatin1Char('3'), QStringLiteral("200907")), registro01Mensal(QStringLiteral("201112")),
            registro02(), registro03()};
}

const QVector<Caso>& casos()
{
    static const QVector<Caso> lista = {
        {"individual", "VRT", "CD_TIPO_VRT", "1"},
        {"individual", "VRT", "NR_CNPJ_INTERNADOR", "12345678000195"},
        {"individual", "VRT", "NR_INSCRICAO_EST", "00000123456789"},
        {"individual", "VRT", "NR_BANCO_ARREC", "001"},
        {"individual", "VRT", "NR_AG_BCO_ARREC", "3344"},
        {"individual", "VRT", "NR_CC_AG_BCO_ARREC", "0000000000012345678"},
        {"individual", "VRT", "IND_MANDADO_JUDIC", "S"},
        {"individual", "VRT", "NR_VRT", "0912345678"},
        {"individual", "VRT", "NR_PROC_ADM_FISCAL", "00000000000004321"},
        {"individual", "VRT", "IND_RESTITUICAO", "N"},
        {"individual", "VRT", "IND_RETIFICACAO", "S"},
        {"individual", "VRT_INDIVIDUAL", "IN_SAIDA_ALC_AO", "S"},
        {"individual", "NOTA_FISCAL_SAIDA", "NR_SERIE_NF_SAIDA", "AB 1 "},
        {"individual", "NOTA_FISCAL_SAIDA", "NR_NF_SAIDA", "004321"},
        {"individual", "NOTA_FISCAL_SAIDA", "DT_EMISS_NF_SAIDA", "15032009"},
        {"individual", "NOTA_FISCAL_SAIDA", "DT_SAIDA_NF_SAIDA", "16032009"},
        {"individual", "NOTA_FISCAL_SAIDA", "CD_OP_FISCAL", "6101"},
        {"individual", "NOTA_FISCAL_SAIDA", "CD_TIPO_DESTINAT", "2"},
        {"individual", "NOTA_FISCAL_SAIDA", "NR_DESTINAT", "1234567890"},
        {"individual", "NOTA_FISCAL_SAIDA", "CD_UF_DESTINO", "RR"},
        {"individual", "VALORES_DIVER_MANDADO", "VL_TOTAL_DIVER_MANDADO", "1234,56"},
        {"individual", "VALORES_DIVER_RETIF", "VL_TOTAL_DIVER_RETIF", "10,00"},
        {"mensal", "VRT", "CD_TIPO_VRT", "2"},
        {"mensal", "VRT_MENSAL", "DT_REFERENCIA_VRT", "072009"},
        {"mensal", "VRT", "NR_VRT", ""},
        {"mensal", "VRT", "IND_RETIFICACAO", "N"},
        {"mensal", "VRT", "NR_PROC_ADM_FISCAL", "00000000000000000"},
    };
    return lista;
}

}  // namespace

class TstCamposDaCabeca : public QObject {
    Q_OBJECT

private slots:
    void init() { m_banco = new BancoTeste; }
    void cleanup()
    {
        delete m_banco;
        m_banco = nullptr;
    }

    void cadaCampoChegaASuaColuna_data()
    {
        QTest::addColumn<QString>("arquivo");
        QTest::addColumn<QString>("tabela");
        QTest::addColumn<QString>("coluna");
        QTest::addColumn<QString>("esperado");
        for (const Caso& c : casos())
            QTest::newRow(qPrintable(QStringLiteral("%1 %2.%3").arg(c.arquivo, c.tabela, c.coluna)))
                << QString::fromLatin1(c.arquivo) << QString::fromLatin1(c.tabela) << QString::fromLatin1(c.coluna)
                << QString::fromLatin1(c.esperado);
    }
    void cadaCampoChegaASuaColuna()
    {
        QFETCH(QString, arquivo);
        QFETCH(QString, tabela);
        QFETCH(QString, coluna);
        QFETCH(QString, esperado);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(leDaMemoria(bytes(arquivo == QStringLiteral("individual") ? cabecaIndividual() : cabecaMensal())));
        QCOMPARE(BancoTeste::conta(tabela), 1);
        const QVariant v = BancoTeste::valor(QStringLiteral("SELECT %1 FROM %2").arg(coluna, tabela));
        QVERIFY2(!v.isNull(), qPrintable(coluna + QStringLiteral(" ficou Null")));
        QCOMPARE(v.toString(), esperado);
    }

    // Each column that a field of records 00 to 03 maps to, and that the reader takes, has its case above.
    void osCasosCobremTodoCampoLidoDaCabeca()
    {
        QSet<QString> cobertas;
        for (const Caso& c : casos())
            cobertas.insert(QString::fromLatin1(c.tabela) + QLatin1Char('.') + QString::fromLatin1(c.coluna));
        int campos = 0;
        for (int numero = 1; numero <= 4; ++numero) {
            const LayoutRegistro& layout = RegistrosCabeca::layout(numero);
            for (const CampoLayout& c : layout.campos) {
                if (c.coluna.isEmpty() || c.tipo == TipoCampo::K || c.leitura == LeituraCampo::Ignorado)
                    continue;
                ++campos;
                const QString chave = c.tabelaDe(layout.tabela) + QLatin1Char('.') + c.coluna;
                QVERIFY2(cobertas.contains(chave), qPrintable(layout.tipo + QLatin1Char(' ') + chave));
            }
        }
        // 00: type, month, registration, series, number, CNPJ; 01: dates, CFOP, recipient, UF, ALC, bank;
        // 02: the indicator and 35 values; 03: the two numbers and 33 values.
        QCOMPARE(campos, 6 + 10 + 36 + 35);
    }

    // A blank registration, invoice number or CFOP is stored as zeros at its width, as ZeroEsquerda gives it.
    void numerosEmBrancoViramZeros()
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QStringList l = cabecaIndividual();
        l[0] = Linha(61).poe(1, l[0]).poe(23, QString(14, QLatin1Char(' '))).poe(42, QString(6, QLatin1Char(' ')));
        l[1] = Linha(113).poe(1, l[1]).poe(66, QStringLiteral("    "));
        QVERIFY(leDaMemoria(bytes(l)));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_INSCRICAO_EST FROM VRT")).toString(),
                 QStringLiteral("00000000000000"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_NF_SAIDA || '|' || CD_OP_FISCAL FROM NOTA_FISCAL_SAIDA"))
                     .toString(),
                 QStringLiteral("000000|0000"));
    }

private:
    BancoTeste* m_banco = nullptr;
};

QTEST_GUILESS_MAIN(TstCamposDaCabeca)
#include "tst_camposDaCabeca.moc"
