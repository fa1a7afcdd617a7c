#pragma once
// The declaration file being written: Windows-1252 on disk, CR LF line ends, records placed column by column
// (LinhaRegistro), and the line end of a record written without its own put by the next record, so that a
// file whose last record is such a one ends without CR LF.
//
// A file error is thrown as SaidaVrt::Erro with the number the system's messages are keyed on:
// 55 file in use (another program holds a lock on it), 61 disk full, 70 no permission (or a read-only disk);
// other numbers for the rest (76 folder not found, 75 not a file, 57 any other input/output error).
#include "core/file/writing/LinhaRegistro.h"

#include <QByteArray>
#include <QString>
#include <QStringEncoder>

class SaidaVrt {
public:
    struct Erro {
        int numero = 0;
        QString descricao;
    };

    SaidaVrt();
    ~SaidaVrt();
    SaidaVrt(const SaidaVrt&) = delete;
    SaidaVrt& operator=(const SaidaVrt&) = delete;

    // Opens the file for output, replacing one of that name; throws Erro.
    void abre(const QString& caminho);
    // Writes one record; throws Erro.
    void escreve(const LinhaRegistro& linha);
    // Writes what is still buffered and closes; throws Erro.
    void fecha();
    // Closes after an error, keeping what reached the disk and ignoring further failures.
    void abandona();

    // The error of a failed file operation (errno), with its number and Portuguese description.
    static Erro erroDoSistema(int codigo);

private:
    void descarrega();
    void acrescentaCp1252(const QString& texto);

    int m_fd = -1;
    int m_coluna = 1;
    QString m_texto;
    QByteArray m_buffer;
    QStringEncoder m_cp1252;
};
