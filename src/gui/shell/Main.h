#pragma once
#include <QLockFile>
#include <memory>

class frmVRTPLN;

// What a started run holds: the lock that keeps a second copy off the database, and the main window.
struct Execucao {
    std::unique_ptr<QLockFile> trava;
    std::unique_ptr<frmVRTPLN> janela;
    bool iniciada() const { return janela != nullptr; }
};

// Start of a run: the program's folder, the database (with its lock), the main window's load step, the splash.
// When the database cannot be used the start ends with its message and no window; the result is then empty.
Execucao Main(const QString& caminhoAplicacao, int segundosSplash = 3);
