#include "gui/shell/frmAjuda.h"

#include "core/session/MsgBox.h"

#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

frmAjuda::frmAjuda(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAjuda"));
    setWindowTitle(QStringLiteral("Ajuda do VRT"));
    txtPagina = new QTextBrowser(this);
    txtPagina->setObjectName(QStringLiteral("txtPagina"));
    txtPagina->setOpenExternalLinks(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtPagina);
    resize(760, 560);
}

frmAjuda* frmAjuda::mostra(const QString& pagina, QWidget* parent)
{
    if (!QFileInfo::exists(pagina)) {
        MsgBox(QStringLiteral("Não foi possível abrir o arquivo de ajuda:\n") + pagina, Msg::Critical);
        return nullptr;
    }
    auto* ajuda = new frmAjuda(parent);
    ajuda->setAttribute(Qt::WA_DeleteOnClose);
    ajuda->txtPagina->setSource(QUrl::fromLocalFile(pagina));
    ajuda->show();
    return ajuda;
}
