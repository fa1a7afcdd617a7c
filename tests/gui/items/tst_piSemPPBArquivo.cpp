// Declarations of both types with products without basic process and their inputs made through the screens,
// written to a file, checked record by record (records 31 to 36, the consolidated quantity of an input at a place
// included; the individual one byte for byte against a golden file), read back into an empty database and opened
// again with the same rows.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "DocumentoTeste.h"
#include "ItensTeste.h"
#include "PISemPPBTeste.h"
#include "VoltaArquivoTeste.h"

#include <QCheckBox>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace ItensTeste;
using namespace PISemPPBTeste;
using namespace VoltaArquivo;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The records of the item part of the file (types 31 to 36), in their order.
QStringList registrosInsumos(const QByteArray& arquivo)
{
    QStringList r;
    for (const QString& l : QString::fromLatin1(arquivo).split(t("\r\n")))
        if (l.size() > 2 && l.at(0) == u'3' && l.at(1) >= u'1' && l.at(1) <= u'6')
            r << l;
    return r;
}

void produto(Ambiente& a, const QString& codigo, const QString& local, const QString& qt)
{
    incluiProduto(a, ProdutoMensal{codigo, local, qt});
}

// An input of the product chosen; `aliquota`: with a differing II rate of 2 on "Lei 123".
void insumo(Ambiente& a, const QString& codigo, const QString& qt, bool aliquota)
{
    incluiInsumo(a, InsumoMensal{codigo, qt, aliquota ? t("2") : QString()});
}

void totalDoInsumo(Ambiente& a, const QString& lista, const QString& campo, const QString& codigo, const QString& qt)
{
    a.escolhe(lista, codigo);
    a.digita(campo, qt);
    a.sai(lista);
}

// Types a line of each kind for the input chosen on the page of documents: an acquisition invoice under the
// Decreto-Lei with its unit value, a DSI under suspension with the input's value, a DI with neither.
void documentosDoInsumo(Ambiente& a, bool individual)
{
    const auto nomes = [individual](TipoDocumento tipo) { return Membro(tipo, Origem::Insumo, individual)->nomes; };
    const auto nfa = nomes(TipoDocumento::NFA);
    a.clica(t("optNFA_tabPIsemPPB"));
    a.digita(nfa.value(Papel::NumeroNF), t("1234"));
    a.digita(nfa.value(Papel::Serie), t("A1"));
    a.digita(nfa.value(Papel::ItemNF), t("1"));
    a.digita(nfa.value(Papel::Data), t("15012008"));
    a.digita(nfa.value(Papel::CFOP), t("5102"));
    a.digita(nfa.value(Papel::CNPJ), DocumentoTeste::CnpjFornecedor);
    a.digita(nfa.value(Papel::Quantidade), t("4"));
    a.clica(nfa.value(Papel::DecretoLei));
    a.digita(nfa.value(Papel::ValorUnitario), t("3,5"));
    a.sai(nfa.value(Papel::Serie));
    a.clica(t("cmdIncluir_tabPIsemPPB"));
    const auto dsi = nomes(TipoDocumento::DSI);
    a.clica(t("optDSI_tabPIsemPPB"));
    a.digita(dsi.value(Papel::Numero), DocumentoTeste::numeroDSI());
    a.digita(dsi.value(Papel::NumeroBem), t("1"));
    a.digita(dsi.value(Papel::Quantidade), t("4"));
    a.clica(dsi.value(Papel::Suspensao));
    a.digita(dsi.value(Papel::Moeda0), t("220"));
    a.digita(dsi.value(Papel::Valor0), t("10"));
    a.sai(dsi.value(Papel::NumeroBem));
    a.clica(t("cmdIncluir_tabPIsemPPB"));
    const auto di = nomes(TipoDocumento::DI);
    a.clica(t("optDI_tabPIsemPPB"));
    a.digita(di.value(Papel::Numero), DocumentoTeste::numeroDI());
    a.digita(di.value(Papel::Adicao), t("1"));
    a.digita(di.value(Papel::ItemAdicao), t("2"));
    a.digita(di.value(Papel::Quantidade), t("5"));
    a.sai(di.value(Papel::Adicao));
    a.clica(t("cmdIncluir_tabPIsemPPB"));
}

// An individual declaration with item 1 of product P001 and its input INS1 (IPI rate 5 on "Decreto 9"), left on
// the documents page with the input's total at item 1 typed as 3.
EditorDeclaracao* itemIndividualComInsumo(Ambiente& a)
{
    EditorDeclaracao* e = naAba(a, true, 3);
    cadastraInsumos();
    incluiProduto(a, ProdutoIndividual{});
    paginas(a)->setCurrentIndex(1);
    escolheProdutoDoInsumo(a, true, t("1"));
    incluiInsumo(a, InsumoIndividual{t("INS1"), t("2"), t("5"), t("Decreto 9")});
    paginas(a)->setCurrentIndex(2);
    a.escolhe(t("cmdItem_TabPIsemPPB_Documento"), t("1"));
    totalDoInsumo(a, t("cmbCodigoControleInternoInsumo"), t("mskPIsemPPB"), t("INS1"), t("3"));
    return e;
}

// Records 34 and 36 as the two files have them: in the monthly one the input and the place at their columns, in
// the individual one blanks and "0" there (and the DSI's values after them).
QString registro34(bool individual)
{
    const QString fim = individual ? x(QString(), 15) + t("0") : x(t("INS1"), 15) + t("1");
    return t("34") + DocumentoTeste::CnpjFornecedor + x(t("A1"), 5) + t("001234") + t("001") + t("20080115") + t("5102")
           + t("S") + t("00000000400000") + t("00000000000035000000") + fim;
}

QString registro36(bool individual)
{
    const QString fim = individual ? x(QString(), 15) + t("0") : x(t("INS1"), 15) + t("1");
    return t("36") + DocumentoTeste::numeroDSI() + zeros(15) + t("001") + t("00000000400000") + fim
           + t("00000000000100000000") + t("220") + zeros(20) + t("000") + zeros(20) + t("000") + t("S");
}

QStringList aparados(const QStringList& l)
{
    QStringList r;
    for (const QString& s : l)
        r << s.trimmed();
    return r;
}

}  // namespace

class tst_piSemPPBArquivo : public QObject {
    Q_OBJECT
private slots:
    void mensalDoisProdutosComInsumoEmDoisLocaisNoArquivoEDeVolta()
    {
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = naAba(a, false, 3);
        cadastraInsumos();
        produto(a, t("P001"), Local1, t("10"));
        produto(a, t("P001"), Local2, t("4"));
        produto(a, t("P002"), Local1, t("3"));
        paginas(a)->setCurrentIndex(1);
        a.escolhe(t("cboDocProdutoPIsemPPB"), t("P001"));
        insumo(a, t("INS1"), t("0,5"), true);
        insumo(a, t("INS2"), t("1"), false);
        a.escolhe(t("cboDocProdutoPIsemPPB"), t("P002"));
        insumo(a, t("INS1"), t("2"), true);
        paginas(a)->setCurrentIndex(2);
        totalDoInsumo(a, t("cboCCIInsumoPIsemPPB"), t("mskPIsemPPB(0)"), t("INS1"), t("8,5"));
        a.escolhe(t("cboLocalDestinoInsumo"), Local1);
        a.clica(t("optDI_tabPIsemPPB"));
        a.digita(t("mskNumDI_PIsemPPBDI"), DocumentoTeste::numeroDI());
        a.digita(t("txtPIsemPPBDI(4)"), t("1"));
        a.digita(t("txtPIsemPPBDI(5)"), t("2"));
        a.digita(t("mskPIsemPPB(7)"), t("5"));
        a.sai(t("txtPIsemPPBDI(4)"));
        a.clica(t("cmdIncluir_tabPIsemPPB"));
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        QVERIFY(!a.editor());
        const QByteArray arquivo = escreve(id, pasta.path());
        QVERIFY(!arquivo.isEmpty());

        const QStringList todos = registrosInsumos(arquivo);
        QStringList tipos;
        QStringList r;
        for (const QString& l : todos) {
            tipos << l.left(2);
            if (!l.startsWith(t("35")))
                r << l;
        }
        // Per product: 31, then for each input a 32 and for each destination of the product a 33 and the input's
        // documents there: the DI of INS1 at the first place goes out under both products that use it.
        QCOMPARE(tipos, (QStringList{t("31"), t("32"), t("33"), t("35"), t("33"), t("32"), t("33"), t("33"), t("31"),
                                     t("32"), t("33"), t("35")}));
        const QString di = todos.at(3);
        QCOMPARE(di.size(), 133);
        QCOMPARE(todos.at(11), di);
        QCOMPARE(de(di, 1, 12), t("35") + DocumentoTeste::numeroDI());
        QCOMPARE(de(di, 13, 15), zeros(15));
        QCOMPARE(de(di, 28, 5), t("00102"));
        QCOMPARE(de(di, 33, 15), t("N00000000500000"));
        QCOMPARE(de(di, 48, 69), zeros(69));
        QCOMPARE(de(di, 117, 17), x(t("INS1"), 15) + t("1N"));
        const QString p1 = r.at(0);
        QCOMPARE(p1.size(), 187);
        QCOMPARE(de(p1, 1, 5), t("31000"));
        QCOMPARE(de(p1, 6, 15), x(t("P001"), 15));
        QCOMPARE(de(p1, 21, 45), x(t("Produto um"), 45));
        QCOMPARE(de(p1, 66, 20), x(t("UN"), 20));
        QCOMPARE(de(p1, 86, 8), Ncm1);
        QCOMPARE(de(p1, 94, 34), zeros(34));
        QCOMPARE(de(p1, 128, 60), t("1") + t("00000001000000") + t("2") + t("00000000400000") + t("3") + zeros(14)
                                      + t("4") + zeros(14));
        const QString i1 = r.at(1);
        QCOMPARE(i1.size(), 122);
        QCOMPARE(de(i1, 1, 5), t("32000"));
        QCOMPARE(de(i1, 6, 15), x(t("P001"), 15));
        QCOMPARE(de(i1, 21, 15), x(t("INS1"), 15));
        QCOMPARE(de(i1, 36, 8), Ncm2);
        QCOMPARE(de(i1, 44, 45), x(t("Insumo INS1"), 45));
        QCOMPARE(de(i1, 89, 20), x(t("UN"), 20));
        QCOMPARE(de(i1, 109, 14), t("00000000050000"));
        const QString c1 = r.at(2);
        QCOMPARE(c1.size(), 565);
        QCOMPARE(de(c1, 1, 5), t("33000"));
        QCOMPARE(de(c1, 6, 15), x(t("INS1"), 15));
        QCOMPARE(de(c1, 21, 14), t("00000000850000"));
        QCOMPARE(de(c1, 35, 1), t("1"));
        QCOMPARE(de(c1, 36, 253), x(t("Lei 123"), 253));
        QCOMPARE(de(c1, 289, 5), t("00200"));
        QCOMPARE(de(c1, 294, 253), x(QString(), 253));
        // 10 x 0,5 of P001 and 3 x 2 of P002 at the first place.
        QCOMPARE(de(c1, 552, 14), t("00000001100000"));
        QCOMPARE(de(r.at(3), 35, 1), t("2"));
        QCOMPARE(de(r.at(3), 552, 14), t("00000000200000"));
        QCOMPARE(de(r.at(4), 21, 15), x(t("INS2"), 15));
        QCOMPARE(de(r.at(5), 21, 14), zeros(14));   // INS2 has no statistical total
        QCOMPARE(de(r.at(5), 36, 253), x(QString(), 253));
        QCOMPARE(de(r.at(5), 552, 14), t("00000001000000"));
        QCOMPARE(de(r.at(6), 552, 14), t("00000000400000"));
        QCOMPARE(de(r.at(7), 128, 60), t("1") + t("00000000300000") + t("2") + zeros(14) + t("3") + zeros(14)
                                           + t("4") + zeros(14));
        QCOMPARE(de(r.at(8), 6, 30), x(t("P002"), 15) + x(t("INS1"), 15));
        QCOMPARE(de(r.at(8), 109, 14), t("00000000200000"));
        QCOMPARE(de(r.at(9), 552, 14), t("00000001100000"));

        BancoTeste::executa(t("DELETE FROM VRT"));
        QCOMPARE(BancoTeste::conta(t("INSUMO_ITEM_VRT_MEN")), 0);
        QVERIFY(importa(arquivo, pasta.path()));
        // Each record 35 read makes a row: the DI written under both products of the input comes back twice.
        QCOMPARE(BancoTeste::conta(t("ITEM_DI_INS_MEN"), t("CD_INT_INSUMO = 'INS1' AND CD_LOCAL_DESTINO = '1' AND NR_DI = ?"),
                                   {DocumentoTeste::numeroDI()}),
                 2);
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        a.vaiParaAba(3);
        auto* g = a.campo<ConsultGrid>(t("grdConsultaProduto_fraPIsemPPB"));
        QCOMPARE(g->dataRowCount(), 3);
        QCOMPARE(aparados(g->rowTexts(0).mid(3, 5)), (QStringList{t("P001"), t("Produto um"), Local1, t("10,00000"), t("3925.20.00")}));
        QCOMPARE(aparados(g->rowTexts(2).mid(3, 4)), (QStringList{t("P002"), t("Produto dois"), Local1, t("3,00000")}));
        paginas(a)->setCurrentIndex(1);
        a.escolhe(t("cboDocProdutoPIsemPPB"), t("P001"));
        auto* gi = a.campo<ConsultGrid>(t("grdConsultaInsumo_fraCCI"));
        QCOMPARE(gi->dataRowCount(), 2);
        QCOMPARE(aparados(gi->rowTexts(0).mid(2, 4)), (QStringList{t("INS1"), t("Insumo INS1"), t("0,50000"), t("3925.90.90")}));
        escolheLinha(a, t("grdConsultaInsumo_fraCCI"), 0);
        QVERIFY(a.campo<QCheckBox>(t("chk_Aliquota_tabPIsemPPB"))->isChecked());
        QCOMPARE(a.campo<QLineEdit>(t("txtJustifLegalAliqIIPIsemPPB"))->text(), t("Lei 123"));
        paginas(a)->setCurrentIndex(2);
        a.escolhe(t("cboCCIInsumoPIsemPPB"), t("INS1"));
        QCOMPARE(a.campo<QLineEdit>(t("mskPIsemPPB(0)"))->text(), t("8,50000"));
        a.escolhe(t("cboLocalDestinoInsumo"), Local1);
        QCOMPARE(a.campo<QLineEdit>(t("txtQuantidadeTotalInsumo"))->text(), t("11,00000"));
        a.clica(t("optDI_tabPIsemPPB"));
        QCOMPARE(a.campo<ConsultGrid>(t("grdConsultaDI_tabPIsemPPB"))->dataRowCount(), 2);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void documentosDoInsumoMensalNosRegistros34a36EDeVolta()
    {
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = naAba(a, false, 3);
        cadastraInsumos();
        produto(a, t("P001"), Local1, t("10"));
        paginas(a)->setCurrentIndex(1);
        a.escolhe(t("cboDocProdutoPIsemPPB"), t("P001"));
        insumo(a, t("INS1"), t("0,5"), false);
        paginas(a)->setCurrentIndex(2);
        a.escolhe(t("cboCCIInsumoPIsemPPB"), t("INS1"));
        a.escolhe(t("cboLocalDestinoInsumo"), Local1);
        documentosDoInsumo(a, false);
        QCOMPARE(a.msgs.textos(), QStringList());
        // The DI line keeps the input's name, as one read from a file does.
        QCOMPARE(BancoTeste::conta(t("ITEM_DI_INS_MEN"), t("NM_INT_INSUMO = 'Insumo INS1'")), 1);
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        const QByteArray arquivo = escreve(id, pasta.path());
        const QStringList r = registrosInsumos(arquivo);
        QCOMPARE(r.size(), 6);
        QCOMPARE(r.at(3), registro34(false));
        QCOMPARE(r.at(4).left(2), t("35"));
        QCOMPARE(r.at(5), registro36(false));

        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        // The series comes back as the record holds it, with its blanks.
        QCOMPARE(BancoTeste::conta(t("ITEM_NFA_INS_MEN"),
                                   t("CD_INT_INSUMO = 'INS1' AND CD_LOCAL_DESTINO = '1' AND NR_NF_AQUIS = '001234' AND "
                                     "NR_SERIE_NF_AQUIS = 'A1   ' AND DT_EMISS_NF_AQUIS = '15012008' AND IND_DL_288_67 = 'S' "
                                     "AND QT_INSUMO_UNID_INS = '4,00000' AND VL_INSUMO_UNID_INS = '3,5000000'")),
                 1);
        QCOMPARE(BancoTeste::conta(t("ITEM_DSI_INS_MEN"),
                                   t("CD_INT_INSUMO = 'INS1' AND CD_LOCAL_DESTINO = '1' AND NR_DSI = ? AND NR_BEM = '001' "
                                     "AND IND_SUSP_PIS_COFINS = 'S' AND CD_MOEDA_NEG = '220' AND "
                                     "VL_PROD_UNID_PROD = '10,0000000'"),
                                   {DocumentoTeste::numeroDSI()}),
                 1);
        // The DI line read back takes the input's name of record 32, as that record holds it.
        QCOMPARE(BancoTeste::conta(t("ITEM_DI_INS_MEN"), t("NM_INT_INSUMO = ?"), {x(t("Insumo INS1"), 45)}), 1);
        abrePeloEscolhedor(a);
        a.vaiParaAba(3);
        paginas(a)->setCurrentIndex(2);
        a.escolhe(t("cboCCIInsumoPIsemPPB"), t("INS1"));
        a.escolhe(t("cboLocalDestinoInsumo"), Local1);
        a.clica(t("optDSI_tabPIsemPPB"));
        QCOMPARE(a.campo<ConsultGrid>(t("grdConsultaDSI_tabPIsemPPB"))->dataRowCount(), 1);
        a.clica(t("optNFA_tabPIsemPPB"));
        QCOMPARE(a.campo<ConsultGrid>(t("grdConsultaNFA_tabPIsemPPB"))->dataRowCount(), 1);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The individual declaration typed through the screens is written byte for byte as the golden file composed
    // by hand from the record tables, and comes back with its documents.
    void individualDasTelasIgualAoArquivoDeReferenciaEDeVolta()
    {
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = itemIndividualComInsumo(a);
        documentosDoInsumo(a, true);
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        const QByteArray arquivo = escreve(id, pasta.path());
        QVERIFY(CenariosGravacao::mesmosBytes(arquivo, CenariosGravacao::esperado(t("individual_pisemppb_telas.txt"))));
        const QStringList r = registrosInsumos(arquivo);
        QCOMPARE(r.at(3), registro34(true));
        QCOMPARE(r.at(5), registro36(true));

        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        QCOMPARE(BancoTeste::conta(t("ITEM_NFA_INS_IND"),
                                   t("NR_NF_AQUIS = '001234' AND NR_CNPJ_FORNECEDOR = ? AND IND_DL_288_67 = 'S' AND "
                                     "QT_INSUMO_UNID_NFS = '4,00000' AND VL_INS_PROD_UNID_NFS = '3,5000000'"),
                                   {DocumentoTeste::CnpjFornecedor}),
                 1);
        QCOMPARE(BancoTeste::conta(t("ITEM_DSI_INS_IND"),
                                   t("NR_DSI = ? AND NR_BEM = '001' AND IND_SUSP_PIS_COFINS = 'S' AND CD_MOEDA_NEG = '220' "
                                     "AND VL_INS_UNID_PROD = '10,0000000' AND QT_INSUMO_UNID_NFS = '4,00000'"),
                                   {DocumentoTeste::numeroDSI()}),
                 1);
        abrePeloEscolhedor(a);
        a.vaiParaAba(3);
        paginas(a)->setCurrentIndex(2);
        a.escolhe(t("cmdItem_TabPIsemPPB_Documento"), t("001"));
        a.escolhe(t("cmbCodigoControleInternoInsumo"), t("INS1"));
        a.clica(t("optDSI_tabPIsemPPB"));
        QCOMPARE(a.campo<ConsultGrid>(t("grdConsultaDSI_tabPIsemPPB"))->dataRowCount(), 1);
        a.clica(t("optNFA_tabPIsemPPB"));
        QCOMPARE(a.campo<ConsultGrid>(t("grdConsultaNFA_tabPIsemPPB"))->dataRowCount(), 1);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void individualProdutoComInsumoNoArquivoEDeVolta()
    {
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = itemIndividualComInsumo(a);
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        QVERIFY(!a.editor());
        const QByteArray arquivo = escreve(id, pasta.path());
        QVERIFY(!arquivo.isEmpty());

        const QStringList r = registrosInsumos(arquivo);
        QCOMPARE(r.size(), 3);
        QCOMPARE(r.at(0).size(), 187);
        QCOMPARE(de(r.at(0), 1, 5), t("31001"));
        QCOMPARE(de(r.at(0), 6, 15), x(t("P001"), 15));
        QCOMPARE(de(r.at(0), 66, 28), x(t("UN"), 20) + Ncm1);
        QCOMPARE(de(r.at(0), 94, 14), t("00000000500000"));
        QCOMPARE(de(r.at(0), 108, 20), t("00000000000125000000"));
        QCOMPARE(de(r.at(1), 1, 43), t("32001") + x(t("P001"), 15) + x(t("INS1"), 15) + Ncm2);
        QCOMPARE(de(r.at(1), 109, 14), t("00000000200000"));
        const QString c = r.at(2);
        QCOMPARE(c.size(), 565);
        QCOMPARE(de(c, 1, 20), t("33001") + x(t("INS1"), 15));
        QCOMPARE(de(c, 21, 14), t("00000000300000"));
        QCOMPARE(de(c, 36, 253), x(QString(), 253));
        QCOMPARE(de(c, 294, 253), x(t("Decreto 9"), 253));
        QCOMPARE(de(c, 547, 5), t("00500"));
        QCOMPARE(de(c, 552, 14), zeros(14));

        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        a.vaiParaAba(3);
        auto* g = a.campo<ConsultGrid>(t("grdConsultaProduto"));
        QCOMPARE(g->dataRowCount(), 1);
        QCOMPARE(aparados(g->rowTexts(0).mid(2, 3)), (QStringList{t("001"), t("P001"), t("Produto um")}));
        paginas(a)->setCurrentIndex(1);
        a.escolhe(t("cboItem_PIsemPPB_Insumo"), t("001"));
        escolheLinha(a, t("grdConsultaInsumo"), 0);
        QVERIFY(a.campo<QCheckBox>(t("chk_AliquotaTIPI_tabPIsemPPB"))->isChecked());
        QCOMPARE(a.campo<QLineEdit>(t("txtPIsemPPBNFS(9)"))->text(), t("Decreto 9"));
        paginas(a)->setCurrentIndex(2);
        a.escolhe(t("cmdItem_TabPIsemPPB_Documento"), t("001"));
        a.escolhe(t("cmbCodigoControleInternoInsumo"), t("INS1"));
        QCOMPARE(a.campo<QLineEdit>(t("mskPIsemPPB"))->text(), t("3,00000"));
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_piSemPPBArquivo)
#include "tst_piSemPPBArquivo.moc"
