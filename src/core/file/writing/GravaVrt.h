#pragma once
// Writing declarations out, for transmission or as backup: one file per declaration, named after its
// identification without "/", in the chosen folder, replacing a file of that name without a question.
//
// One run writes one or several declarations and closes with one message: "Arquivo gerado." or, for a backup,
// "Backup realizado com sucesso.", unless the last declaration's writer failed (it has then shown its own
// message). A failure in one declaration does not stop the others. The file chooser screen and vrt-cli both
// write through GravaVrt:
//   ResultadoGravacao r = GravaVrt({"00012/09", "00013/09"}, pasta, ModoGravacao::Backup);
// or, to drive the run step by step:
//   GravacaoVrt run(pasta, ModoGravacao::Transmissao);
//   for (...) run.grava(id);
//   run.conclui();
#include <QString>
#include <QStringList>

enum class ModoGravacao { Transmissao, Backup };

struct ResultadoGravacao {
    QStringList arquivos;   // the files written, in order (a failed one included: it stays as far as it got)
    QStringList ignoradas;  // identifications without a VRT row
    bool erroGravacao = false;  // the last writer failed and showed its message; no success message was shown
};

class GravacaoVrt {
public:
    GravacaoVrt(const QString& pastaDestino, ModoGravacao modo);

    // Writes one declaration; false when it has no VRT row, which skips it without a message.
    bool grava(const QString& idVrtMicro);
    // Ends the run: the success message unless the last writer failed; the failure flag is cleared.
    void conclui();

    const ResultadoGravacao& resultado() const { return m_resultado; }
    ModoGravacao modo() const { return m_modo; }
    // "1" for transmission, "3" for backup: position 10 of record 00.
    QString origem() const;
    // The folder plus the identification without "/".
    QString caminhoArquivo(const QString& idVrtMicro) const;

    // Set by a writer that failed and showed its message; cleared when each writer starts.
    bool erroGravacao = false;
    // IND_OBSOLE_RESIDUO of the last record 13 of a monthly file written in this run. The individual writer
    // tests it for positions 118-132 of its records 13 and never sets it, as the system does.
    QString obsoleResiduoMensal;

private:
    QString m_pasta;
    ModoGravacao m_modo;
    ResultadoGravacao m_resultado;
};

// Writes the declarations in the order given and shows the run's one message. Empty identifications are left
// out; with none left nothing happens and no message is shown.
ResultadoGravacao GravaVrt(const QStringList& identificacoes, const QString& pastaDestino, ModoGravacao modo);
