#pragma once
#include <QDialog>

class QTextBrowser;

// The help viewer: shows the HTML pages placed beside the program. There is one viewer: a page asked for while
// it is open is shown in it, brought to the front. Pictures wider than the viewer are shown at its width.
class frmAjuda : public QDialog {
    Q_OBJECT
public:
    explicit frmAjuda(QWidget* parent = nullptr);
    ~frmAjuda() override;
    QTextBrowser* txtPagina;

    // Opens the page modeless, in the open viewer when there is one; a missing page is said in a message.
    static frmAjuda* mostra(const QString& pagina, QWidget* parent);
    // The open viewer, or null.
    static frmAjuda* aberta();
};
