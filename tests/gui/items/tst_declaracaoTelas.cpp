// A monthly declaration with an item of each of the four modalities, typed into the editor's tabs as a user types
// them, is written for transmission byte for byte as the golden file composed by hand from the record tables.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "ItensTeste.h"
#include "ProdutoTeste.h"

#include "core/file/writing/GravaVrt.h"

#include <QTabWidget>
#include <QTemporaryDir>

using namespace ItensTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString Local1 = t("Estados AC, AM, RO e RR");

void produtoEstrangeiro(Ambiente& a)
{
    Cadastros::IncluiProduto(t("PROD1"), t("Produto um"));
    ProdutoTeste::incluiMensal(a, ProdutoTeste::ProdutoMensal{});
}

void dcr(Ambiente& a)
{
    a.clica(t("optDCR_tabPIcomPPB_Mensal"));
    a.digita(t("mskDCRPIcomPPB"), t("00012/1999"));
    a.digita(t("txtCodProdDCRPIcomPPB"), t("P002"));
    a.escolhe(t("cboLocalDCR"), Local1);
    a.digita(t("mskPIcomPPB(1)"), t("2,5"));
    a.digita(t("mskPIcomPPB(2)"), t("40"));
    a.digita(t("mskPIcomPPB(3)"), t("6"));
    a.escolhe(t("cboUnidadeDCR"), t("UN"));
    a.sai(t("cmdIncluir_tabPIcomPPB"));
    a.clica(t("cmdIncluir_tabPIcomPPB"));
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

void nacional(Ambiente& a)
{
    a.digita(t("mskNumNCM100"), Ncm1);
    a.digita(t("txtCodProd100N"), t("P001"));
    a.digita(t("msk100N(2)"), t("10"));
    a.escolhe(t("cboUnidade100"), t("UN"));
    a.digita(t("msk100N(0)"), t("2,5"));
    a.digita(t("msk100N(1)"), t("1234,56"));
    a.sai(t("cmdIncluir_tab100Nacional_Mensal"));
    a.clica(t("cmdIncluir_tab100Nacional_Mensal"));
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
        dcr(a);
        a.vaiParaAba(3);
        semPPB(a);
        a.vaiParaAba(4);
        nacional(a);
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString id = e->idVrt();
        a.salvar();
        a.fechar();
        QVERIFY(!a.editor());
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        const ResultadoGravacao r = GravaVrt({id}, pasta.path(), ModoGravacao::Transmissao);
        QCOMPARE(r.arquivos.size(), 1);
        QVERIFY(CenariosGravacao::mesmosBytes(CenariosGravacao::conteudo(r.arquivos.first()),
                                              CenariosGravacao::esperado(t("mensal_telas.txt"))));
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_declaracaoTelas)
#include "tst_declaracaoTelas.moc"
