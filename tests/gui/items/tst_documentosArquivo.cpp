// Declarations of both types whose foreign products carry all three kinds of entry document (DI, DSI and the
// acquisition invoice), typed into the real screens, written through "Gravar para transmissão", checked record by
// record against what was typed (records 11 to 14), read back into an empty database and opened again with the
// same rows in the document grids.
#include "ProdutoTeste.h"
#include "VoltaArquivoTeste.h"

#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/assistants/frmManipulaArquivo.h"

#include <QFile>
#include <QTemporaryDir>

using namespace ProdutoTeste;
using namespace DocumentoTeste;
using namespace VoltaArquivo;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString OutroFornecedor = t("44555666000181");

// The open declaration saved and closed, then written for transmission through the menu, the chooser's only row
// and the file screen pointed at `pasta`; the file's bytes.
QByteArray gravaParaTransmissao(Ambiente& a, const QString& pasta)
{
    const QString id = a.editor()->idVrt();
    a.msgs.responde(Msg::Yes);
    a.fechar();
    a.janela.acao(t("mnuDeclaracaoGravarVRTTransmissao"))->trigger();
    auto* escolha = qobject_cast<frmAssistenteVRT*>(a.janela.telaAberta());
    if (!escolha)
        return QByteArray();
    QTest::mouseClick(escolha->cmdOk, Qt::LeftButton);
    auto* tela = qobject_cast<frmManipulaArquivo*>(a.janela.telaAberta());
    if (!tela)
        return QByteArray();
    tela->selecionaPasta(pasta);
    a.msgs.limpa();
    a.msgs.responde(Msg::OK);
    QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
    if (a.msgs.textos() != QStringList{t("Arquivo gerado.")})
        return QByteArray();
    QFile arquivo(pasta + QLatin1Char('/') + QString(id).remove(QLatin1Char('/')));
    return arquivo.open(QIODevice::ReadOnly) ? arquivo.readAll() : QByteArray();
}

// The record types 11 to 14 in the order of the file.
QStringList tiposDosProdutos(const QByteArray& arquivo)
{
    QStringList vistos;
    for (const QString& l : registros(arquivo, t("1")))
        vistos << l.left(2);
    return vistos;
}

// Fields of the records in the units of the layout: a quantity with 5 decimals in 14 digits, a unit value with 7 in
// 20, a total with 2 in 15.
QString d5(const char* inteiros) { return zeros(9 - int(qstrlen(inteiros))) + t(inteiros) + zeros(5); }
QString d7(const char* inteiros, const char* decimais)
{
    return zeros(13 - int(qstrlen(inteiros))) + t(inteiros) + (t(decimais) + zeros(7)).left(7);
}
QString d2(const char* inteiros, const char* decimais)
{
    return zeros(13 - int(qstrlen(inteiros))) + t(inteiros) + (t(decimais) + zeros(2)).left(2);
}

// The lines typed under the first destination (or item) and under the second; `individual` picks the editor's own
// wants: an individual invoice asks for everything and keeps its unit value open under obsolescence.
struct Documentos {
    LinhaNFA nfaObsoleta, nfaUnitario, nfaSemDecreto;
    LinhaDI diEletronica, diAntiga;
    LinhaDSI dsiSuspensa, dsiAntiga;

    explicit Documentos(bool individual)
    {
        nfaObsoleta.decreto = true;
        nfaObsoleta.obsolescencia = true;
        nfaObsoleta.valorTotal = t("321,5");
        if (individual)
            nfaObsoleta.valorUnitario = t("1,75");
        nfaUnitario.numero = t("5678");
        nfaUnitario.serie = t("B");
        nfaUnitario.item = t("2");
        nfaUnitario.data = t("31122002");
        nfaUnitario.cfop = t("510");
        nfaUnitario.quantidade = t("6");
        nfaUnitario.decreto = true;
        nfaUnitario.valorUnitario = t("2,5");
        nfaSemDecreto.numero = t("42");
        nfaSemDecreto.serie = t("C");
        nfaSemDecreto.item = t("3");
        nfaSemDecreto.cnpj = OutroFornecedor;
        nfaSemDecreto.quantidade = t("8");
        diEletronica.decreto = true;
        diEletronica.blocos = {{t("220"), t("978"), QString()}, {t("10"), t("2"), QString()}};
        diAntiga.numero.clear();
        diAntiga.ano = t("95");
        diAntiga.orgao = t("1234567");
        diAntiga.sequencial = t("654321");
        diAntiga.adicao = t("2");
        diAntiga.item = t("3");
        diAntiga.quantidade = t("8");
        dsiSuspensa.suspensao = true;
        dsiSuspensa.blocos = {{t("220"), t("978"), t("790")}, {t("3,25"), t("1"), t("0,5")}};
        dsiAntiga.numero.clear();
        dsiAntiga.ano = t("97");
        dsiAntiga.orgao = t("7654321");
        dsiAntiga.sequencial = t("123456");
        dsiAntiga.bem = t("2");
        dsiAntiga.quantidade = t("8");
    }

    // Under the first destination (or item) two invoices, an electronic DI and a DSI under suspension; under the
    // second an invoice without the Decreto-Lei, an old DI and an old DSI. Every Incluir passes.
    void inclui(Cenario& c) const
    {
        c.abre(TipoDocumento::NFA, 0);
        c.inclui(nfaObsoleta);
        c.inclui(nfaUnitario);
        c.abre(TipoDocumento::DI, 0);
        c.inclui(diEletronica);
        c.abre(TipoDocumento::DSI, 0);
        c.inclui(dsiSuspensa);
        c.abre(TipoDocumento::NFA, 1);
        c.inclui(nfaSemDecreto);
        c.abre(TipoDocumento::DI, 1);
        c.inclui(diAntiga);
        c.abre(TipoDocumento::DSI, 1);
        c.inclui(dsiAntiga);
    }
};

// Record 12 of an invoice, whole, from the parts that differ between the lines.
QString registro12(const QString& cnpj, const char* serie, const char* numero, const char* item, const char* data,
                   const char* cfop, const char* indicadores, const QString& quantidade, const QString& unitario,
                   const QString& total)
{
    return t("12") + cnpj + x(t(serie), 5) + t(numero) + t(item) + t(data) + t(cfop) + t(indicadores) + quantidade
           + unitario + total;
}

// The records 12, 13 and 14 both types write alike for the lines of Documentos; `valoresDI` and `totalObsoleto`
// are where they part.
void confereDocumentos(const QByteArray& arquivo, const QString& valoresDI, const QString& totalObsoleto)
{
    const QStringList r12 = registros(arquivo, t("12"));
    QCOMPARE(r12.size(), 3);
    QCOMPARE(r12.at(0), registro12(CnpjFornecedor, "A1", "001234", "001", "20080115", "5102", "SS", d5("4"), zeros(20),
                                   totalObsoleto));
    QCOMPARE(r12.at(1), registro12(CnpjFornecedor, "B", "005678", "002", "20021231", "0510", "SN", d5("6"),
                                   d7("2", "5"), zeros(15)));
    QCOMPARE(r12.at(2), registro12(OutroFornecedor, "C", "000042", "003", "20080115", "5102", "NN", d5("8"), zeros(20),
                                   zeros(15)));

    const QStringList r13 = registros(arquivo, t("13"));
    QCOMPARE(r13.size(), 2);
    QCOMPARE(r13.at(0), t("13") + numeroDI() + zeros(15) + t("00101") + t("SN") + d5("4") + valoresDI + zeros(15) + t("N"));
    QCOMPARE(r13.at(1), t("13") + zeros(10) + t("951234567654321") + t("00203") + t("NN") + d5("8") + zeros(69)
                            + zeros(15) + t("N"));

    const QStringList r14 = registros(arquivo, t("14"));
    QCOMPARE(r14.size(), 2);
    QCOMPARE(r14.at(0), t("14") + numeroDSI() + zeros(15) + t("001") + d5("4") + d7("3", "25") + t("220") + d7("1", "")
                            + t("978") + d7("0", "5") + t("790") + t("S"));
    QCOMPARE(r14.at(1), t("14") + zeros(10) + t("977654321123456") + t("002") + d5("8") + zeros(69) + t("N"));
}

// The DI's values as both writers put them when the Decreto-Lei is on without obsolescence.
QString valoresDIComDecreto()
{
    return d7("10", "") + t("220") + d7("2", "") + t("978") + zeros(20) + t("000");
}

// The document grids of the two destinations (or items), each kind in turn, in their visible columns.
QList<QList<QStringList>> gradesDosDocumentos(Cenario& c)
{
    QList<QList<QStringList>> grades;
    for (int destino = 0; destino < 2; ++destino)
        for (TipoDocumento tipo : {TipoDocumento::NFA, TipoDocumento::DI, TipoDocumento::DSI}) {
            c.abre(tipo, destino);
            grades << c.linhasVisiveis();
        }
    return grades;
}

// A new declaration of the kind with two products: monthly PROD1 at both places (12 and 8), individual items 1
// (PROD1) and 2 (PROD2, 3 units); left on the foreign-product tab.
void incluiProdutos(Ambiente& a, bool individual)
{
    cadastraProdutos();
    if (individual) {
        a.novaIndividual();
        a.preencheIndividual();
        a.vaiParaAba(1);
        ProdutoIndividual p;
        incluiIndividual(a, p);
        p.item = t("2");
        p.codigo = t("PROD2");
        p.quantidade = t("3");
        incluiIndividual(a, p);
    } else {
        a.novaMensal();
        a.preencheMensal(t("5"), t("2009"));
        a.vaiParaAba(1);
        ProdutoMensal p;
        incluiMensal(a, p);
        p.local = Local2;
        p.quantidade = t("8");
        incluiMensal(a, p);
    }
}

// Records 11 of the two products.
void confereProdutos(const QByteArray& arquivo, bool individual)
{
    const QStringList r11 = registros(arquivo, t("11"));
    QCOMPARE(r11.size(), 2);
    if (individual) {
        QCOMPARE(de(r11.at(0), 3, 26), t("001") + t("84713012") + x(t("PROD1"), 15));
        QCOMPARE(de(r11.at(1), 3, 26), t("002") + t("84713012") + x(t("PROD2"), 15));
        QCOMPARE(de(r11.at(1), 611, 14), d5("3"));
        return;
    }
    for (int i = 0; i < 2; ++i)
        QCOMPARE(r11.at(i), t("11000") + t("84713012") + x(t("PROD1"), 15) + (i == 0 ? t("1") : t("2"))
                                + x(t("Produto um"), 45) + x(QString(), 253) + t("00000") + x(QString(), 253)
                                + t("00000") + x(QString(), 20) + zeros(14) + d5("20") + zeros(20) + zeros(15)
                                + (i == 0 ? d5("12") : d5("8")) + x(t("UN"), 20));
}

// The document grids as the lines of Documentos were typed. Each row starts with its destination's product and
// place (monthly) or its item and product (individual); the monthly grids end with the quantity, the individual
// invoice grid with the supplier.
QList<QList<QStringList>> gradesDigitadas(bool individual)
{
    const QList<QStringList> donos = individual
        ? QList<QStringList>{{t("001"), t("PROD1")}, {t("002"), t("PROD2")}}
        : QList<QStringList>{{t("PROD1"), Local1}, {t("PROD1"), Local2}};
    const auto fim = [individual](const QString& quantidade, const QString& fornecedor) {
        return individual ? (fornecedor.isEmpty() ? QStringList() : QStringList{fornecedor}) : QStringList{quantidade};
    };
    const QString q4 = t("4,00000");
    const QString q8 = t("8,00000");
    const QString di = t("09/1234567-") + numeroDI().right(1);
    const QString dsi = t("09/1234567-") + numeroDSI().right(1);
    return {{donos[0] + QStringList{t("001234"), t("A1"), t("001")} + fim(q4, t("11.222.333/0001-81")),
             donos[0] + QStringList{t("005678"), t("B"), t("002")} + fim(t("6,00000"), t("11.222.333/0001-81"))},
            {donos[0] + QStringList{di, QString(), t("001"), t("01")} + fim(q4, QString())},
            {donos[0] + QStringList{dsi, QString(), t("001")} + fim(q4, QString())},
            {donos[1] + QStringList{t("000042"), t("C"), t("003")} + fim(q8, t("44.555.666/0001-81"))},
            {donos[1] + QStringList{QString(), t("951234567654321"), t("002"), t("03")} + fim(q8, QString())},
            {donos[1] + QStringList{QString(), t("977654321123456"), t("002")} + fim(q8, QString())}};
}

}  // namespace

class tst_documentosArquivo : public QObject {
    Q_OBJECT
private slots:
    void comOsTresDocumentosVoltaDoArquivo_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::newRow("mensal") << false;
        QTest::newRow("individual") << true;
    }

    void comOsTresDocumentosVoltaDoArquivo()
    {
        QFETCH(bool, individual);
        QTemporaryDir pasta;
        const Documentos docs(individual);
        QByteArray arquivo;
        QList<QList<QStringList>> digitadas;
        {
            Ambiente a;
            incluiProdutos(a, individual);
            Cenario c(a, individual);
            docs.inclui(c);
            QCOMPARE(a.msgs.textos(), QStringList());
            digitadas = gradesDosDocumentos(c);
            arquivo = gravaParaTransmissao(a, pasta.path());
            QCOMPARE(a.msgs.inesperadas, 0);
        }
        QVERIFY(!arquivo.isEmpty());
        QCOMPARE(tiposDosProdutos(arquivo), (QStringList{t("11"), t("12"), t("12"), t("13"), t("14"), t("11"), t("12"),
                                                          t("13"), t("14")}));
        confereProdutos(arquivo, individual);
        // The monthly invoice keeps the obsolete product's total; its indicator at position 44 is the letter. The
        // individual invoice never stores the total it shows, so its record carries zeros there; position 44 is
        // zero-filled, which leaves the letter of a typed line as it is.
        confereDocumentos(arquivo, valoresDIComDecreto(), individual ? zeros(15) : d2("321", "5"));

        Ambiente b;
        reabre(b, arquivo, pasta.path());
        if (QTest::currentTestFailed())
            return;
        b.vaiParaAba(1);
        Cenario d(b, individual);
        QList<QList<QStringList>> esperadas = gradesDigitadas(individual);
        QCOMPARE(digitadas, esperadas);
        if (individual) {
            // The individual reader stores record 14 as it stands, where it empties the zeros of records 12 and 13:
            // the number a DSI does not have comes back as zeros, the old number's fifteen and the electronic one's
            // ten.
            esperadas[2][0][3] = zeros(15);
            esperadas[5][0][2] = t("00/0000000-0");
        }
        QCOMPARE(gradesDosDocumentos(d), esperadas);
        QCOMPARE(b.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_documentosArquivo)
#include "tst_documentosArquivo.moc"
