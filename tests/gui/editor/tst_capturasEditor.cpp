// Pictures of both editors for the help pages, taken offscreen at 1024×768 from the real screens with sample
// data, with checks that the editor fits the main window and that no caption is cut or covered. They go to
// <build>/capturas/ajuda; with VRT_ATUALIZA_AJUDA=1 in the environment they also replace those in help/img.
#include "EditorTeste.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QTimer>

#include "core/session/MsgBox.h"
#include "gui/widgets/MessageBoxHandler.h"

using namespace EditorTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The first caption that is narrower than its text, or two visible siblings that overlap; empty when none.
QString defeitoDeLayout(QWidget* tela)
{
    for (QLabel* l : tela->findChildren<QLabel*>())
        if (l->isVisible() && !l->wordWrap() && l->width() < l->sizeHint().width())
            return t("cortado: ") + l->text();
    for (QAbstractButton* b : tela->findChildren<QAbstractButton*>())
        if (b->isVisible() && b->width() < b->sizeHint().width())
            return t("cortado: ") + b->text();
    for (QLineEdit* e : tela->findChildren<QLineEdit*>())
        if (e->isVisible() && e->fontMetrics().horizontalAdvance(e->displayText()) + 8 > e->width())
            return t("campo estreito: ") + e->objectName();
    for (ConsultGrid* g : tela->findChildren<ConsultGrid*>()) {
        if (!g->isVisible())
            continue;
        const QFontMetrics titulo(g->horizontalHeader()->font());
        for (int c = 0; c < g->columnCount(); ++c)
            if (!g->isColumnHidden(c) && g->columnWidth(c) < titulo.horizontalAdvance(g->titleText(c)) + 8)
                return t("título cortado: ") + g->objectName() + QLatin1Char('/') + g->titleText(c);
    }
    for (QWidget* w : tela->findChildren<QWidget*>()) {
        if (!w->isVisible() || w->isWindow())
            continue;
        const QList<QWidget*> irmaos = w->parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (QWidget* o : irmaos)
            if (o != w && o->isVisible() && !o->isWindow() && qobject_cast<QLabel*>(w) && o->geometry().intersects(w->geometry())
                && !qobject_cast<QLabel*>(o))
                return t("sobreposto: ") + w->objectName() + QLatin1Char('/') + o->objectName();
    }
    return QString();
}

void salva(Ambiente& a, const QString& nome)
{
    QTest::qWait(50);
    QMdiSubWindow* janela = a.janela.mdiArea()->activeSubWindow();
    QVERIFY(janela);
    const QPixmap imagem = a.janela.grab();
    const QString pasta = t(VRT_BINARY_DIR "/capturas/ajuda");
    QDir().mkpath(pasta);
    QVERIFY(imagem.save(pasta + QLatin1Char('/') + nome));
    if (qEnvironmentVariableIntValue("VRT_ATUALIZA_AJUDA") == 1)
        QVERIFY(imagem.save(t(VRT_SOURCE_DIR "/help/img/") + nome));
    const QRect area = a.janela.mdiArea()->rect();
    QVERIFY2(area.contains(janela->geometry()),
             qPrintable(nome + QStringLiteral(" %1x%2").arg(janela->width()).arg(janela->height())));
    const QString defeito = defeitoDeLayout(a.editor());
    QVERIFY2(defeito.isEmpty(), qPrintable(nome + t(": ") + defeito));
}

// A picture for looking at only, under <build>/capturas, with the same layout checks.
void salvaSemAjuda(Ambiente& a, const QString& nome)
{
    QTest::qWait(50);
    const QString pasta = t(VRT_BINARY_DIR "/capturas");
    QDir().mkpath(pasta);
    QVERIFY(a.janela.grab().save(pasta + QLatin1Char('/') + nome));
    QMdiSubWindow* janela = a.janela.mdiArea()->activeSubWindow();
    QVERIFY(janela && a.janela.mdiArea()->rect().contains(janela->geometry()));
    const QString defeito = defeitoDeLayout(a.editor());
    QVERIFY2(defeito.isEmpty(), qPrintable(nome + t(": ") + defeito));
}

}  // namespace

class tst_capturasEditor : public QObject {
    Q_OBJECT
private slots:
    void editorMensalComValores()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        a.novaMensal();
        a.preencheMensal(t("5"), t("2009"));
        a.digita(t("txtDadosGerais(1)"), t("001"));
        a.digita(t("txtDadosGerais(2)"), t("1234"));
        a.digita(t("txtDadosGerais(3)"), t("998877X"));
        a.sai(t("txtDadosGerais(1)"));
        a.clica(t("ChkMand_Retif(0)"));
        a.incluiValor(0, t("VRT - PE"), t("Imposto de Importação"), t("1234,5"));
        a.incluiValor(0, t("VRT - PE"), t("COFINS"), t("310"));
        a.incluiValor(0, t("VRT"), t("Multa por Atraso"), t("75"));
        a.escolhe(t("cboModalidade(0)"), t("VRT - PI sem PPB"));
        a.escolhe(t("cboDescricao(0)"), t("Imposto sobre Prod. Industrializados"));
        a.digita(t("mskValor(0)"), t("9999999999999,99"));
        a.sai(t("cboModalidade(0)"));
        salva(a, t("frmVRTmensalNovo.png"));
        a.clica(t("ChkMand_Retif(1)"));
        a.abasValores()->setCurrentIndex(1);
        a.digita(t("mskDadosGerais(0)"), numeroVrt());
        a.incluiValor(1, t("VRT - PI com PPB"), t("PIS/PASEP"), t("42,1"));
        salva(a, t("frmVRTmensalNovo_retificacao.png"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void editorIndividual()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        a.novaIndividual();
        a.digita(t("mskDadosGerais(1)"), Cnpj);
        a.digita(t("mskDadosGerais(2)"), t("12345678"));
        a.digita(t("mskDadosGeraisIndividual(3)"), t("4567"));
        a.digita(t("txtDadosGeraisIndividual(1)"), t("U1"));
        a.digita(t("mskDadosGeraisIndividual(0)"), t("10052009"));
        a.digita(t("mskDadosGeraisIndividual(1)"), t("12052009"));
        a.digita(t("txtDadosGeraisIndividual(2)"), t("6102"));
        a.digita(t("mskDadosGeraisIndividual(2)"), t("33000167000101"));
        // The longest names: the UF's, and the largest value a value field takes, each shown whole.
        a.escolhe(t("cboUF"), t("RN"));
        a.sai(t("txtDadosGerais(1)"));
        a.clica(t("ChkMand_Retif(0)"));
        a.incluiValor(0, t("VRT - PI sem PPB"), t("Multa de Mora IPI"), t("99,99"));
        a.escolhe(t("cboModalidade(0)"), t("VRT - PI sem PPB"));
        a.escolhe(t("cboDescricao(0)"), t("Juros de Mora PIS/PASEP"));
        a.digita(t("mskValor(0)"), t("9999999999999,99"));
        a.sai(t("cboModalidade(0)"));
        salva(a, t("frmVRTindividualNovo.png"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The individual editor with both sub-tabs and a restitution: the tallest state of its first tab.
    void editorIndividualRetificacaoComRestituicao()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        a.novaIndividual();
        a.preencheIndividual();
        a.clica(t("ChkMand_Retif(0)"));
        a.clica(t("ChkMand_Retif(1)"));
        a.abasValores()->setCurrentIndex(1);
        a.digita(t("mskDadosGerais(0)"), numeroVrt());
        a.clica(t("chkSimRest"));
        a.digita(t("mskDadosGerais(3)"), t("12345123456202099"));
        salvaSemAjuda(a, t("frmVRTindividualNovo_restituicao.png"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The longest message of the general data in the program's real box over the editor: the whole text shows,
    // on lines no wider than the main window.
    void caixaDaMensagemMaisLonga()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        a.novaMensal();
        a.digita(t("mskDadosGerais(1)"), Cnpj);
        a.digita(t("txtDadosGeraisMensal(0)"), t("05"));
        a.digita(t("txtDadosGeraisMensal(1)"), t("2001"));
        QString texto;
        QSize tamanho;
        const ManipuladorMsg roteiro = InstalaManipuladorMsg([&](const QString& msg, int estilo, const QString& titulo) {
            QTimer::singleShot(0, [&] {
                auto* caixa = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (!caixa)
                    return;
                texto = caixa->text();
                tamanho = caixa->size();
                const QString pasta = t(VRT_BINARY_DIR "/capturas");
                QDir().mkpath(pasta);
                caixa->grab().save(pasta + t("/caixa_anoReferencia.png"));
                caixa->buttons().first()->click();
            });
            return ShowMessageBox(msg, estilo, titulo);
        });
        a.vaiParaAba(1);
        InstalaManipuladorMsg(roteiro);
        QVERIFY(texto.startsWith(t("Ano de referência inválido!\n\nO ano de referência deve ser maior ou igual a 2002")));
        QVERIFY(tamanho.width() < a.janela.width() && tamanho.height() < a.janela.height());
        QCOMPARE(a.abas()->currentIndex(), 0);
    }

    // The editors' page exists, shows its pictures, and the first page points to it.
    void paginaDeAjudaDosEditores()
    {
        QFile pagina(t(VRT_SOURCE_DIR "/help/editores.html"));
        QVERIFY(pagina.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(pagina.readAll());
        for (const char* img : {"frmVRTmensalNovo.png", "frmVRTmensalNovo_retificacao.png", "frmVRTindividualNovo.png"}) {
            QVERIFY2(html.contains(t("img/") + t(img)), img);
            QVERIFY2(QFile::exists(t(VRT_SOURCE_DIR "/help/img/") + t(img)), img);
        }
        QFile indice(t(VRT_SOURCE_DIR "/help/index.html"));
        QVERIFY(indice.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(indice.readAll()).contains(t("editores.html")));
    }
};

QTEST_MAIN(tst_capturasEditor)
#include "tst_capturasEditor.moc"
