#pragma once
// The lines of a declaration file: Windows-1252 bytes on disk, CR LF at each end but perhaps the last (records
// written without their own line end leave the file without a final CR LF), decoded one line at a time.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringDecoder>
#include <memory>

class QIODevice;

class LinhasArquivo {
public:
    // A file is read a block at a time into one buffer (a line longer than a block grows it).
    static constexpr qint64 TamanhoBloco = 256 * 1024;

    LinhasArquivo() = default;
    LinhasArquivo(const LinhasArquivo&) = delete;
    LinhasArquivo& operator=(const LinhasArquivo&) = delete;

    // Opens the file and counts its lines; false when it cannot be opened or read.
    bool abre(const QString& caminho);
    // The same for what is left of the device, opening it for reading when it is not open. A file read from its
    // start is read a block at a time (it must outlive these lines); any other device is read whole here.
    bool abre(QIODevice& dispositivo);
    // Lines in the file: what the progress is measured against.
    qint64 total() const { return m_total; }
    // True after the last line, and also when the file could no longer be read (see falhou()).
    bool fim() const { return m_falhou || (m_posicao >= m_dados.size() && m_restante <= 0); }
    // The file became shorter or unreadable while it was read (truncated, its medium pulled): the lines
    // already given are all there is, and the reading must not be taken as complete.
    bool falhou() const { return m_falhou; }
    // The next line without its line end. At the end of the file an empty text.
    QString proxima();

    // Decodes one line of the file's code page.
    static QString decodifica(QByteArrayView bytes);

private:
    bool contaNoArquivo(QFile& arquivo);
    void contaLinhas();
    // Finds the end of the line at m_posicao, reading blocks until a whole line (or the end) stands there.
    void preparaLinha();
    // Moves the unread bytes to the front of the buffer and reads the next block after them.
    bool leBloco();

    std::unique_ptr<QFile> m_proprio;  // the file of a path
    QFile* m_arquivo = nullptr;        // the file read a block at a time, or none
    QByteArray m_dados;                // the bytes not yet read as lines start at m_posicao
    qsizetype m_posicao = 0;
    qsizetype m_fimLinha = -1;  // the '\n' that ends the line at m_posicao, or -1 for the file's last bytes
    qsizetype m_busca = 0;      // where the search for that '\n' goes on after a block is read
    qint64 m_restante = 0;  // bytes of the file, as counted at the start, not yet in m_dados
    qint64 m_total = 0;
    bool m_falhou = false;
    QStringDecoder m_decodificador{"windows-1252"};
};
