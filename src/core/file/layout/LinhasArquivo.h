#pragma once
// The lines of a declaration file: Windows-1252 bytes on disk, CR LF at each end but perhaps the last (records
// written without their own line end leave the file without a final CR LF), decoded one line at a time.
#include <QByteArray>
#include <QFile>
#include <QPointer>
#include <QString>
#include <QStringDecoder>
#include <memory>

class QIODevice;

class LinhasArquivo {
public:
    LinhasArquivo() = default;
    ~LinhasArquivo();
    LinhasArquivo(const LinhasArquivo&) = delete;
    LinhasArquivo& operator=(const LinhasArquivo&) = delete;

    // Reads the whole file; false when it cannot be opened.
    bool abre(const QString& caminho);
    // Reads what is left of the device, opening it for reading when it is not open; false when it cannot be.
    // A file read from its start is mapped rather than copied: it must then outlive these lines.
    bool abre(QIODevice& dispositivo);
    // Lines in the file: what the progress is measured against.
    qint64 total() const { return m_total; }
    bool fim() const { return m_posicao >= m_dados.size(); }
    // The next line without its line end. At the end of the file an empty text.
    QString proxima();

    // Decodes one line of the file's code page.
    static QString decodifica(QByteArrayView bytes);

private:
    bool mapeia(QIODevice& dispositivo);
    void contaLinhas();

    std::unique_ptr<QFile> m_proprio;  // the file of a path
    QByteArray m_dados;
    QPointer<QFile> m_mapeado;  // the file whose bytes m_dados shows, unmapped at the end
    uchar* m_mapa = nullptr;
    qsizetype m_posicao = 0;
    qint64 m_total = 0;
    QStringDecoder m_decodificador{"windows-1252"};
};
