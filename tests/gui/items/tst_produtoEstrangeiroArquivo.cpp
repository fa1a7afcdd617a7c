// Declarations of both types with foreign products and their DIs made through the screens, written to a file,
// checked record by record (records 11 and 13), read back and opened again with the same rows.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "ProdutoTeste.h"

#include "core/file/reading/LeArquivoVrt.h"
#include "core/file/writing/GravaVrt.h"

#include <QTemporaryDir>

using namespace ProdutoTeste;
using namespace DocumentoTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

QByteArray escreve(const QString& id, const QString& pasta)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, ModoGravacao::Transmissao);
    return r.arquivos.isEmpty() ? QByteArray() : CenariosGravacao::conteudo(r.arquivos.first());
}

bool importa(const QByteArray& arquivo, const QString& pasta)
{
    ArquivoTeste::grava(pasta + t("/entrada"), arquivo);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    return LeArquivoVrtEm(pasta, t("entrada"), ModoLeitura::Importar);
}

QStringList registros(const QByteArray& arquivo, const QString& tipo)
{
    QStringList r;
    for (const QString& l : QString::fromLatin1(arquivo).split(t("\r\n")))
        if (l.startsWith(tipo))
            r << l;
    return r;
}

// The field at a position of the layout, counted from 1.
QString campo(const QString& linha, int posicao, int tamanho)
{
    return linha.mid(posicao - 1, tamanho);
}

void abrePeloEscolhedor(Ambiente& a)
{
    a.janela.acao(t("mnuDeclaracaoAbrir"))->trigger();
    QTest::mouseClick(a.janela.findChild<QPushButton*>(t("cmdOk")), Qt::LeftButton);
}

void incluiDIEletronica(Ambiente& a, Cenario& c)
{
    c.preencheDI();
    c.clica(Papel::DecretoLei);
    c.digita(Papel::Moeda0, t("220"));
    c.digita(Papel::Valor0, t("10"));
    c.digita(Papel::Moeda1, t("978"));
    c.digita(Papel::Valor1, t("2"));
    c.incluir();
    QCOMPARE(a.msgs.textos(), QStringList());
}

}  // namespace

class tst_produtoEstrangeiroArquivo : public QObject {
    Q_OBJECT
private slots:
    void mensalComProdutoEstrangeiroEDIsVoltaDoArquivo()
    {
        Ambiente a;
        QTemporaryDir pasta;
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
        incluiDIEletronica(a, c);
        c.abre(TipoDocumento::DI, 1);
        c.clica(Papel::Nao);
        c.digita(Papel::Ano, t("95"));
        c.digita(Papel::Orgao, t("1234567"));
        c.digita(Papel::Sequencial, t("654321"));
        c.digita(Papel::Adicao, t("2"));
        c.digita(Papel::ItemAdicao, t("3"));
        c.digita(Papel::Quantidade, t("8"));
        a.sai(c.nome(Papel::Ano));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString id = a.editor()->idVrt();
        a.msgs.responde(Msg::Yes);
        a.fechar();

        const QByteArray arquivo = escreve(id, pasta.path());
        const QStringList r11 = registros(arquivo, t("11"));
        QCOMPARE(r11.size(), 2);
        for (int i = 0; i < 2; ++i) {
            const QString& l = r11.at(i);
            QCOMPARE(campo(l, 6, 8), t("84713012"));
            QCOMPARE(campo(l, 14, 15).trimmed(), t("PROD1"));
            QCOMPARE(campo(l, 29, 1), i == 0 ? t("1") : t("2"));
            QCOMPARE(campo(l, 30, 45).trimmed(), t("Produto um"));
            QCOMPARE(campo(l, 75, 253).trimmed(), t("Ex-tarifario"));
            QCOMPARE(campo(l, 328, 5), t("00500"));
            QCOMPARE(campo(l, 625, 14), t("00000002000000"));
            QCOMPARE(campo(l, 674, 14), i == 0 ? t("00000001200000") : t("00000000800000"));
            QCOMPARE(campo(l, 688, 20).trimmed(), t("UN"));
        }
        const QStringList r13 = registros(arquivo, t("13"));
        QCOMPARE(r13.size(), 2);
        QCOMPARE(campo(r13.at(0), 3, 10), numeroDI());
        QCOMPARE(campo(r13.at(0), 28, 3), t("001"));
        QCOMPARE(campo(r13.at(0), 31, 2), t("01"));
        QCOMPARE(campo(r13.at(0), 33, 2), t("SN"));
        QCOMPARE(campo(r13.at(0), 35, 14), t("00000000400000"));
        QCOMPARE(campo(r13.at(0), 49, 20), t("00000000000100000000"));
        QCOMPARE(campo(r13.at(0), 69, 3), t("220"));
        QCOMPARE(campo(r13.at(0), 72, 20), t("00000000000020000000"));
        QCOMPARE(campo(r13.at(0), 92, 3), t("978"));
        QCOMPARE(campo(r13.at(0), 95, 20), t("00000000000000000000"));
        QCOMPARE(campo(r13.at(0), 133, 1), t("N"));
        QCOMPARE(campo(r13.at(1), 13, 15), t("951234567654321"));
        QCOMPARE(campo(r13.at(1), 28, 5), t("00203"));
        QCOMPARE(campo(r13.at(1), 33, 2), t("NN"));
        QCOMPARE(campo(r13.at(1), 35, 14), t("00000000800000"));

        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        a.vaiParaAba(1);
        auto* g = a.campo<ConsultGrid>(t("grdConsultaCodigoControleInterno"));
        QCOMPARE(g->dataRowCount(), 2);
        QStringList linha = g->rowTexts(0).mid(1, 5);
        for (QString& c : linha)
            c = c.trimmed();
        QCOMPARE(linha, (QStringList{t("PROD1"), t("Produto um"), Local1, t("12,00000"), t("8471.30.12")}));
        Cenario d(a, false);
        d.abre(TipoDocumento::DI, 0);
        QCOMPARE(d.quadro()->grade->dataRowCount(), 1);
        d.escolheLinha(0);
        QCOMPARE(qobject_cast<MaskedField*>(d.quadro()->campo(Papel::Numero))->digits(), numeroDI());
        QVERIFY(d.marcado(Papel::DecretoLei));
        QCOMPARE(d.texto(Papel::Moeda1), t("978"));
        d.abre(TipoDocumento::DI, 1);
        QCOMPARE(d.quadro()->grade->cellText(0, 4), t("951234567654321"));
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void individualComProdutoEstrangeiroEDIVoltaDoArquivo()
    {
        Ambiente a;
        QTemporaryDir pasta;
        cadastraProdutos();
        a.novaIndividual();
        a.preencheIndividual();
        a.vaiParaAba(1);
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
        a.msgs.responde(Msg::Yes);
        a.fechar();

        const QByteArray arquivo = escreve(id, pasta.path());
        const QStringList r11 = registros(arquivo, t("11"));
        QCOMPARE(r11.size(), 1);
        const QString& l = r11.first();
        QCOMPARE(campo(l, 3, 3), t("001"));
        QCOMPARE(campo(l, 6, 8), t("84713012"));
        QCOMPARE(campo(l, 14, 15).trimmed(), t("PROD1"));
        QCOMPARE(campo(l, 30, 45).trimmed(), t("Produto um"));
        QCOMPARE(campo(l, 333, 253).trimmed(), t("Lei 8387"));
        QCOMPARE(campo(l, 586, 5), t("00200"));
        QCOMPARE(campo(l, 591, 20).trimmed(), t("UN"));
        QCOMPARE(campo(l, 611, 14), t("00000001000000"));
        QCOMPARE(campo(l, 625, 14), t("00000001000000"));
        QCOMPARE(campo(l, 639, 20), t("00000000000052500000"));
        QCOMPARE(campo(l, 659, 15), t("000000000000350"));
        const QStringList r13 = registros(arquivo, t("13"));
        QCOMPARE(r13.size(), 1);
        QCOMPARE(campo(r13.first(), 3, 10), numeroDI());
        QCOMPARE(campo(r13.first(), 28, 5), t("00101"));
        QCOMPARE(campo(r13.first(), 33, 2), t("NN"));
        QCOMPARE(campo(r13.first(), 35, 14), t("00000000400000"));
        // The individual record 13 carries the values only under the Decreto-Lei without obsolescence: a DI with
        // suspension alone keeps its values in the database but writes none.
        QCOMPARE(campo(r13.first(), 49, 20), t("00000000000000000000"));
        QCOMPARE(campo(r13.first(), 69, 3), t("000"));
        QCOMPARE(BancoTeste::valor(t("SELECT CD_MOEDA_NEG || '|' || VL_INS_PROD_UNID_NFS FROM ITEM_IMPORT_288_PE")).toString(),
                 t("978|1,5000000"));
        QCOMPARE(campo(r13.first(), 133, 1), t("S"));

        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        a.vaiParaAba(1);
        auto* g = a.campo<ConsultGrid>(t("grdConsultaNotaFiscalSaida"));
        QCOMPARE(g->dataRowCount(), 1);
        QStringList linha = g->rowTexts(0).mid(1, 4);
        for (QString& c : linha)
            c = c.trimmed();
        QCOMPARE(linha, (QStringList{t("001"), t("PROD1"), t("10,00000"), t("8471.30.12")}));
        Cenario d(a, true);
        d.abre();
        QCOMPARE(d.quadro()->grade->dataRowCount(), 1);
        d.escolheLinha(0);
        QVERIFY(d.marcado(Papel::Suspensao));
        // The values the file did not carry do not come back.
        QCOMPARE(d.texto(Papel::Moeda0), QString());
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_produtoEstrangeiroArquivo)
#include "tst_produtoEstrangeiroArquivo.moc"
