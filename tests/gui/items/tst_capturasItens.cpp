// Pictures of the item tabs "100% Nacional", "PI com PPB" and "Produto Estrangeiro" (both pages) of both editors
// for the help pages, taken offscreen at 1024×768 from the real screens with sample items.
#include "CapturaTeste.h"
#include "ItensTeste.h"
#include "ProdutoTeste.h"

using namespace ItensTeste;
using namespace CapturaTeste;
using namespace DocumentoTeste;

namespace {

// The foreign-product pages are wider than the editor's first size: the pictures show the window maximized,
// as a user at 1024×768 would use it.
void maximiza(Ambiente& a)
{
    a.janela.mdiArea()->activeSubWindow()->showMaximized();
    QTest::qWait(50);
}

}  // namespace

class tst_capturasItens : public QObject {
    Q_OBJECT
private slots:
    void abasDaDeclaracaoMensal()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        naAba(a, false, 4);
        incluiItem(a, NacionalMensal{});
        a.digita(QStringLiteral("mskNumNCM100"), Ncm2);
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P002"));
        salva(a, QStringLiteral("aba100Nacional_mensal.png"));
        a.vaiParaAba(2);
        incluiItem(a, DcrMensal{QStringLiteral("000121999"), QStringLiteral("Q9")});
        salva(a, QStringLiteral("abaPIcomPPB_mensal.png"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void abasDaDeclaracaoIndividual()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        naAba(a, true, 4);
        incluiItem(a, NacionalIndividual{});
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("3"));
        a.digita(QStringLiteral("msk100NacionalIndividual(0)"), Ncm1);
        salva(a, QStringLiteral("aba100Nacional_individual.png"));
        a.vaiParaAba(2);
        incluiItem(a, DcrIndividual{});
        salva(a, QStringLiteral("abaPIcomPPB_individual.png"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void produtoEstrangeiroMensal()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        ProdutoTeste::naAbaProduto(a, false);
        maximiza(a);
        ProdutoTeste::ProdutoMensal p;
        p.aliquotaII = QStringLiteral("5");
        ProdutoTeste::incluiMensal(a, p);
        p.local = Local2;
        p.quantidade = QStringLiteral("8");
        ProdutoTeste::incluiMensal(a, p);
        salva(a, QStringLiteral("abaProdutoEstrangeiro_mensal.png"));
        Cenario c(a, false);
        c.abre(TipoDocumento::DI, 0);
        c.incluiDIComDecreto();
        salva(a, QStringLiteral("documentoOrigemDI_mensal.png"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void produtoEstrangeiroIndividual()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        ProdutoTeste::naAbaProduto(a, true);
        maximiza(a);
        ProdutoTeste::ProdutoIndividual p;
        p.aliquotaIPI = QStringLiteral("2");
        ProdutoTeste::incluiIndividual(a, p);
        salva(a, QStringLiteral("abaProdutoEstrangeiro_individual.png"));
        Cenario c(a, true);
        c.abre();
        c.incluiDIComDecreto();
        salva(a, QStringLiteral("documentoOrigemDI_individual.png"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void paginasDeAjuda()
    {
        paginaMostra(QStringLiteral("itens.html"),
                     {QStringLiteral("aba100Nacional_mensal.png"), QStringLiteral("aba100Nacional_individual.png"),
                      QStringLiteral("abaPIcomPPB_mensal.png"), QStringLiteral("abaPIcomPPB_individual.png")});
        paginaMostra(QStringLiteral("produto_estrangeiro.html"),
                     {QStringLiteral("abaProdutoEstrangeiro_mensal.png"),
                      QStringLiteral("abaProdutoEstrangeiro_individual.png"),
                      QStringLiteral("documentoOrigemDI_mensal.png"), QStringLiteral("documentoOrigemDI_individual.png")});
    }
};

QTEST_MAIN(tst_capturasItens)
#include "tst_capturasItens.moc"
