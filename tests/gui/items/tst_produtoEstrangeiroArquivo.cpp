// Declarations of both types with foreign products and their DIs made through the screens, written to a file,
// checked record by record (records 11 and 13), read back and opened again with the same rows.
#include "ProdutoTeste.h"
#include "VoltaArquivoTeste.h"

#include <QTemporaryDir>

using namespace ProdutoTeste;
using namespace DocumentoTeste;
using namespace VoltaArquivo;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The rows a user sees of the declaration's foreign products: the product grid of the page "Produto", then the
// DI grid of each destination (or of the item) on the page "Documento de Origem".
QList<QStringList> linhasDoProduto(Ambiente& a, bool individual)
{
    a.vaiParaAba(1);
    abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(0);
    QList<QStringList> r =
        grades(a, {individual ? t("grdConsultaNotaFiscalSaida") : t("grdConsultaCodigoControleInterno")});
    Cenario c(a, individual);
    for (int destino = 0; destino < (individual ? 1 : 2); ++destino) {
        c.abre(TipoDocumento::DI, destino);
        r += grades(a, {c.quadro()->grade->objectName()});
    }
    abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(0);
    return r;
}

}  // namespace

class tst_produtoEstrangeiroArquivo : public QObject {
    Q_OBJECT
private slots:
    void mensalComProdutoEstrangeiroEDIsVoltaDoArquivo()
    {
        QTemporaryDir pasta;
        QList<QStringList> antes;
        QByteArray arquivo;
        {
            Ambiente a;
            cadastraProdutos();
            a.novaMensal();
            a.preencheMensal(t("5"), t("2009"));
            a.vaiParaAba(1);
            ProdutoMensal p;
            p.aliquotaII = t("5");
            incluiMensal(a, p);
            p.local = Local2;
            p.quantidade = t("8");
            incluiMensal(a, p);
            Cenario c(a, false);
            c.abre(TipoDocumento::DI, 0);
            c.incluiDIComDecreto();
            QCOMPARE(a.msgs.textos(), QStringList());
            c.abre(TipoDocumento::DI, 1);
            c.preencheDIAntiga(t("8"));
            c.incluir();
            QCOMPARE(a.msgs.textos(), QStringList());
            const QString id = a.editor()->idVrt();
            antes = linhasDoProduto(a, false);
            a.msgs.responde(Msg::Yes);
            a.fechar();
            arquivo = escreve(id, pasta.path());
        }
        QVERIFY(!arquivo.isEmpty());
        const QStringList r11 = registros(arquivo, t("11"));
        QCOMPARE(r11.size(), 2);
        for (int i = 0; i < 2; ++i) {
            const QString& l = r11.at(i);
            QCOMPARE(de(l, 6, 8), t("84713012"));
            QCOMPARE(de(l, 14, 15).trimmed(), t("PROD1"));
            QCOMPARE(de(l, 29, 1), i == 0 ? t("1") : t("2"));
            QCOMPARE(de(l, 30, 45).trimmed(), t("Produto um"));
            QCOMPARE(de(l, 75, 253).trimmed(), t("Ex-tarifario"));
            QCOMPARE(de(l, 328, 5), t("00500"));
            QCOMPARE(de(l, 625, 14), t("00000002000000"));
            QCOMPARE(de(l, 674, 14), i == 0 ? t("00000001200000") : t("00000000800000"));
            QCOMPARE(de(l, 688, 20).trimmed(), t("UN"));
        }
        const QStringList r13 = registros(arquivo, t("13"));
        QCOMPARE(r13.size(), 2);
        QCOMPARE(de(r13.at(0), 3, 10), numeroDI());
        QCOMPARE(de(r13.at(0), 28, 3), t("001"));
        QCOMPARE(de(r13.at(0), 31, 2), t("01"));
        QCOMPARE(de(r13.at(0), 33, 2), t("SN"));
        QCOMPARE(de(r13.at(0), 35, 14), t("00000000400000"));
        QCOMPARE(de(r13.at(0), 49, 20), t("00000000000100000000"));
        QCOMPARE(de(r13.at(0), 69, 3), t("220"));
        QCOMPARE(de(r13.at(0), 72, 20), t("00000000000020000000"));
        QCOMPARE(de(r13.at(0), 92, 3), t("978"));
        QCOMPARE(de(r13.at(0), 95, 20), t("00000000000000000000"));
        QCOMPARE(de(r13.at(0), 133, 1), t("N"));
        QCOMPARE(de(r13.at(1), 13, 15), t("951234567654321"));
        QCOMPARE(de(r13.at(1), 28, 5), t("00203"));
        QCOMPARE(de(r13.at(1), 33, 2), t("NN"));
        QCOMPARE(de(r13.at(1), 35, 14), t("00000000800000"));

        Ambiente b;
        reabre(b, arquivo, pasta.path());
        // The reader stores the product's name as record 11 carries it, with its trailing blanks.
        antes[0][3] = x(antes[0][3], 45);
        antes[1][3] = x(antes[1][3], 45);
        confereLinhas(linhasDoProduto(b, false), antes);
        Cenario d(b, false);
        d.abre(TipoDocumento::DI, 0);
        QCOMPARE(d.quadro()->grade->dataRowCount(), 1);
        d.escolheLinha(0);
        QCOMPARE(qobject_cast<MaskedField*>(d.quadro()->campo(Papel::Numero))->digits(), numeroDI());
        QVERIFY(d.marcado(Papel::DecretoLei));
        QCOMPARE(d.texto(Papel::Moeda1), t("978"));
        d.abre(TipoDocumento::DI, 1);
        QCOMPARE(d.quadro()->grade->cellText(0, 4), t("951234567654321"));
        b.fechar();
        QCOMPARE(b.msgs.inesperadas, 0);
    }

    void individualComProdutoEstrangeiroEDIVoltaDoArquivo()
    {
        QTemporaryDir pasta;
        QList<QStringList> antes;
        QByteArray arquivo;
        {
            Ambiente a;
            naAbaProduto(a, true);
            ProdutoIndividual p;
            p.aliquotaIPI = t("2");
            incluiIndividual(a, p);
            QCOMPARE(a.msgs.textos(), QStringList());
            Cenario c(a, true);
            c.abre();
            c.preencheDI();
            c.clica(Papel::Suspensao);
            c.digita(Papel::Moeda0, t("978"));
            c.digita(Papel::Valor0, t("1,5"));
            c.incluir();
            QCOMPARE(a.msgs.textos(), QStringList());
            const QString id = a.editor()->idVrt();
            antes = linhasDoProduto(a, true);
            a.msgs.responde(Msg::Yes);
            a.fechar();
            arquivo = escreve(id, pasta.path());
        }
        QVERIFY(!arquivo.isEmpty());
        const QStringList r11 = registros(arquivo, t("11"));
        QCOMPARE(r11.size(), 1);
        const QString& l = r11.first();
        QCOMPARE(de(l, 3, 3), t("001"));
        QCOMPARE(de(l, 6, 8), t("84713012"));
        QCOMPARE(de(l, 14, 15).trimmed(), t("PROD1"));
        QCOMPARE(de(l, 30, 45).trimmed(), t("Produto um"));
        QCOMPARE(de(l, 333, 253).trimmed(), t("Lei 8387"));
        QCOMPARE(de(l, 586, 5), t("00200"));
        QCOMPARE(de(l, 591, 20).trimmed(), t("UN"));
        QCOMPARE(de(l, 611, 14), t("00000001000000"));
        QCOMPARE(de(l, 625, 14), t("00000001000000"));
        QCOMPARE(de(l, 639, 20), t("00000000000052500000"));
        QCOMPARE(de(l, 659, 15), t("000000000000350"));
        const QStringList r13 = registros(arquivo, t("13"));
        QCOMPARE(r13.size(), 1);
        QCOMPARE(de(r13.first(), 3, 10), numeroDI());
        QCOMPARE(de(r13.first(), 28, 5), t("00101"));
        QCOMPARE(de(r13.first(), 33, 2), t("NN"));
        QCOMPARE(de(r13.first(), 35, 14), t("00000000400000"));
        // The individual record 13 carries the values only under the Decreto-Lei without obsolescence: a DI with
        // suspension alone keeps its values in the database but writes none.
        QCOMPARE(de(r13.first(), 49, 20), t("00000000000000000000"));
        QCOMPARE(de(r13.first(), 69, 3), t("000"));
        QCOMPARE(de(r13.first(), 133, 1), t("S"));

        Ambiente b;
        reabre(b, arquivo, pasta.path());
        // The name as record 11 carries it, with its trailing blanks; the invoice's number and series as the
        // head record carries them, the number zero-filled to six and the series blank-filled to five.
        antes[0][11] = x(antes[0][11], 45);
        antes[0][12] = t("000123");
        antes[0][13] = t("A1   ");
        confereLinhas(linhasDoProduto(b, true), antes);
        Cenario d(b, true);
        d.abre();
        QCOMPARE(d.quadro()->grade->dataRowCount(), 1);
        d.escolheLinha(0);
        QVERIFY(d.marcado(Papel::Suspensao));
        // The values the file did not carry do not come back.
        QCOMPARE(d.texto(Papel::Moeda0), QString());
        b.fechar();
        QCOMPARE(b.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_produtoEstrangeiroArquivo)
#include "tst_produtoEstrangeiroArquivo.moc"
