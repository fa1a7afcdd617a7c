// A monthly declaration with an item of each of the four modalities, typed into the editor's tabs as a user types
// them, is written for transmission byte for byte as the golden file composed by hand from the record tables.
#include "ItensTeste.h"
#include "PISemPPBTeste.h"
#include "ProdutoTeste.h"
#include "VoltaArquivoTeste.h"

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
    PISemPPBTeste::cadastraInsumo(t("INS1"));
    PISemPPBTeste::incluiProduto(a, PISemPPBTeste::ProdutoMensal{t("Q9"), Local1, t("2")});
    PISemPPBTeste::paginas(a)->setCurrentIndex(1);
    PISemPPBTeste::escolheProdutoDoInsumo(a, false, t("Q9"));
    PISemPPBTeste::incluiInsumo(a, PISemPPBTeste::InsumoMensal{});
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
