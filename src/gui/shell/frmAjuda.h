#pragma once
#include <QDialog>

class QTextBrowser;

// The help viewer: shows the HTML pages placed beside the program.
class frmAjuda : public QDialog {
    Q_OBJECT
public:
    explicit frmAjuda(QWidget* parent = nullptr);
    QTextBrowser* txtPagina;

    // Opens the page modeless; a missing page is said in a message.
    static frmAjuda* mostra(const QString& pagina, QWidget* parent);
};
