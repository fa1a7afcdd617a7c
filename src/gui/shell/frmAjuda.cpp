#include "gui/shell/frmAjuda.h"

#include "core/session/MsgBox.h"

#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QPointer>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace {

QPointer<frmAjuda> visor;

// A page viewer whose pictures are never wider than it: a wider one is scaled down to the width there is, and
// the page is laid out again when the viewer changes width.
class VisorPagina : public QTextBrowser {
public:
    explicit VisorPagina(QWidget* pai) : QTextBrowser(pai) {}

    QVariant loadResource(int tipo, const QUrl& nome) override
    {
        QVariant recurso = QTextBrowser::loadResource(tipo, nome);
        if (tipo != QTextDocument::ImageResource)
            return recurso;
        QImage imagem;
        if (recurso.canConvert<QImage>() && recurso.metaType().id() != QMetaType::QByteArray)
            imagem = recurso.value<QImage>();
        else
            imagem.loadFromData(recurso.toByteArray());
        const int largura = larguraUtil();
        if (imagem.isNull() || imagem.width() <= largura || largura <= 0)
            return recurso;
        return imagem.scaledToWidth(largura, Qt::SmoothTransformation);
    }

protected:
    void resizeEvent(QResizeEvent* evento) override
    {
        QTextBrowser::resizeEvent(evento);
        if (larguraUtil() != m_largura && !source().isEmpty()) {
            m_largura = larguraUtil();
            const int posicao = verticalScrollBar()->value();
            reload();
            verticalScrollBar()->setValue(posicao);
        }
    }

private:
    int larguraUtil() const
    {
        // The page's margins and the picture's own border, inside the viewport.
        return viewport()->width() - 2 * int(document()->documentMargin()) - 8;
    }

    int m_largura = -1;
};

}  // namespace

frmAjuda::frmAjuda(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAjuda"));
    setWindowTitle(QStringLiteral("Ajuda do VRT"));
    txtPagina = new VisorPagina(this);
    txtPagina->setObjectName(QStringLiteral("txtPagina"));
    txtPagina->setOpenExternalLinks(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtPagina);
    resize(760, 560);
}

frmAjuda::~frmAjuda() = default;

frmAjuda* frmAjuda::aberta()
{
    return visor.data();
}

frmAjuda* frmAjuda::mostra(const QString& pagina, QWidget* parent)
{
    if (!QFileInfo::exists(pagina)) {
        MsgBox(QStringLiteral("Não foi possível abrir o arquivo de ajuda:\n") + pagina, Msg::Critical);
        return nullptr;
    }
    // Over a modal screen the viewer must belong to it, or the modal screen would keep it from the user.
    QWidget* dono = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : parent;
    if (!visor) {
        visor = new frmAjuda(dono);
        visor->setAttribute(Qt::WA_DeleteOnClose);
    } else if (visor->parentWidget() != dono && dono != visor) {
        visor->setParent(dono, visor->windowFlags());
    }
    // Shown before the page is read, so that the pictures are scaled to the viewer's real width.
    visor->show();
    visor->raise();
    visor->activateWindow();
    visor->txtPagina->setSource(QUrl::fromLocalFile(pagina));
    return visor;
}
