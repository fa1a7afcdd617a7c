#pragma once
// The message handler of vrt-cli: every box goes to stderr as "título: texto" (line ends of the system's CR
// turned into the console's), and a question is answered from the command's options and printed with its
// answer. Boxes are counted so that the command can tell a refusal from a success.
#include <QString>

class ManipuladorCli {
public:
    // The answer to the questions that replace data already there ("deseja substituí-la?", and the old database's
    // deletion and replacement questions); every other question is answered Yes.
    explicit ManipuladorCli(bool substituir = false) : m_substituir(substituir) {}
    int operator()(const QString& texto, int estilo, const QString& titulo);

    int criticas = 0;
    int recusadas = 0;  // questions answered No

private:
    bool m_substituir;
};
