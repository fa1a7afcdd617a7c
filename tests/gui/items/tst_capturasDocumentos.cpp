// Pictures of the DSI and acquisition invoice pages of both editors for their help pages, taken offscreen at
// 1024×768 from the real screens with a line in each grid. They go to <build>/capturas/ajuda; with
// VRT_ATUALIZA_AJUDA=1 in the environment they also replace those in help/img.
#include "CapturaTeste.h"
#include "DocumentoTeste.h"

#include <QScrollArea>
#include <QScrollBar>

using namespace DocumentoTeste;
using CapturaTeste::salva;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The frame of the document and its grid whole across the window: the page scrolls down, never sideways.
void cabeNaLargura(Cenario& c)
{
    QScrollArea* rolagem = nullptr;
    for (QWidget* w = c.quadro(); w && !rolagem; w = w->parentWidget())
        rolagem = qobject_cast<QScrollArea*>(w);
    QVERIFY(rolagem);
    QCOMPARE(rolagem->horizontalScrollBar()->maximum(), 0);
    const int esquerda = c.quadro()->mapTo(rolagem->viewport(), QPoint(0, 0)).x();
    QVERIFY(esquerda >= 0);
    QVERIFY2(esquerda + c.quadro()->width() <= rolagem->viewport()->width(), "o quadro do documento passa da janela");
}

}  // namespace

class tst_capturasDocumentos : public QObject {
    Q_OBJECT
private slots:
    void paginas_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<int>("tipo");
        QTest::addColumn<QString>("imagem");
        QTest::newRow("DSI mensal") << false << int(TipoDocumento::DSI) << t("documentoDSI_mensal.png");
        QTest::newRow("DSI individual") << true << int(TipoDocumento::DSI) << t("documentoDSI_individual.png");
        QTest::newRow("NFA mensal") << false << int(TipoDocumento::NFA) << t("documentoNFA_mensal.png");
        QTest::newRow("NFA individual") << true << int(TipoDocumento::NFA) << t("documentoNFA_individual.png");
    }
    // A line included and a second one being typed, its boxes on.
    void paginas()
    {
        QFETCH(QString, imagem);
        Ambiente a;
        a.janela.resize(1024, 768);
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        if (c.tipo == TipoDocumento::DSI) {
            LinhaDSI l;
            l.suspensao = true;
            l.blocos = {{t("220"), t("220"), t("220")}, {t("12,5"), t("1,2"), t("0,35")}};
            c.inclui(l);
            l.bem = t("2");
            c.digitaLinha(l);
        } else {
            LinhaNFA l;
            l.decreto = true;
            l.valorUnitario = t("12,5");
            c.inclui(l);
            l.item = t("2");
            c.digitaLinha(l);
        }
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(c.quadro()->grade->dataRowCount(), 1);
        salva(a, imagem);
        cabeNaLargura(c);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The pages exist, show their pictures, and the first page and the foreign product's point to them.
    void paginasDeAjuda()
    {
        CapturaTeste::paginaMostra(t("documento_dsi.html"), {t("documentoDSI_mensal.png"), t("documentoDSI_individual.png")});
        CapturaTeste::paginaMostra(t("documento_nfa.html"), {t("documentoNFA_mensal.png"), t("documentoNFA_individual.png")});
        QFile f(QStringLiteral(VRT_SOURCE_DIR "/help/produto_estrangeiro.html"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(f.readAll());
        QVERIFY(html.contains(t("href=\"documento_dsi.html\"")));
        QVERIFY(html.contains(t("href=\"documento_nfa.html\"")));
    }
};

QTEST_MAIN(tst_capturasDocumentos)
#include "tst_capturasDocumentos.moc"
