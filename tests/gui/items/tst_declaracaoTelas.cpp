// A monthly declaration with an item of each of the four modalities, typed into the editor's tabs as a user types
// them, is written for transmission byte for byte as the golden file composed by hand from the record tables.
#include "ItensTeste.h"
#include "ProdutoTeste.h"
#include "VoltaArquivoTeste.h"

#include <QTabWidget>
#include <QTemporaryDir>

using namespace ItensTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

void produtoEstrangeiro(Ambiente& a)
{
    Cadastros::IncluiProduto(t("PROD1"), t("Produto um"));
    ProdutoTeste::incluiMensal(a, ProdutoTeste::ProdutoMensal{});
}

void semPPB(Ambiente& a)
{
    BancoTeste::executa(t("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES ('INS1', 'Insumo INS1')"));
    a.digita(t("mskNumNCM_TabPIsemPPB"), Ncm1);
    a.digita(t("txtCodProdPIsemPPB"), t("Q9"));
    a.escolhe(t("cboUnidadePIsemPPB"), t("UN"));
    a.escolhe(t("cboLocalPIsemPPB"), Local1);
    a.digita(t("mskPIsemPPB(3)"), t("2"));
    a.sai(t("cmdIncluir_tabPIsemPPB_CCI"));
    a.clica(t("cmdIncluir_tabPIsemPPB_CCI"));
    a.campo<QTabWidget>(t("tabPIsemPPB"))->setCurrentIndex(1);
    a.escolhe(t("cboDocProdutoPIsemPPB"), t("Q9"));
    a.digita(t("mskNumNCMInsumo"), Ncm2);
    a.digita(t("txtCodInsPIsemPPB"), t("INS1"));
    a.escolhe(t("cboUnidadeInsumo"), t("UN"));
    a.digita(t("mskPIsemPPB(4)"), t("0,5"));
    a.sai(t("cmdIncluirInsumo"));
    a.clica(t("cmdIncluirInsumo"));
}

}  // namespace

class tst_declaracaoTelas : public QObject {
    Q_OBJECT
private slots:
    void mensalDasQuatroModalidadesIgualAoArquivoDeReferencia()
    {
        Ambiente a;
        QTemporaryDir pasta;
        EditorDeclaracao* e = naAba(a, false, 1);
        produtoEstrangeiro(a);
        a.vaiParaAba(2);
        incluiItem(a, DcrMensal{});
        a.vaiParaAba(3);
        semPPB(a);
        a.vaiParaAba(4);
        incluiItem(a, NacionalMensal{});
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        QVERIFY(!a.editor());
        QVERIFY(CenariosGravacao::mesmosBytes(VoltaArquivo::escreve(id, pasta.path()),
                                              CenariosGravacao::esperado(t("mensal_telas.txt"))));
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_declaracaoTelas)
#include "tst_declaracaoTelas.moc"
