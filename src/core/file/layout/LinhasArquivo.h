#pragma once
// The lines of a declaration file: Windows-1252 bytes on disk, CR LF at each end but perhaps the last (records
// written without their own line end leave the file without a final CR LF), decoded one line at a time.
#include <QByteArray>
#include <QString>
#include <QStringDecoder>

class LinhasArquivo {
public:
    // Reads the whole file; false when it cannot be opened.
    bool abre(const QString& caminho);
    // Lines in the file: what the progress is measured against.
    qint64 total() const { return m_total; }
    bool fim() const { return m_posicao >= m_dados.size(); }
    // The next line without its line end. At the end of the file an empty text.
    QString proxima();

    // Decodes one line of the file's code page.
    static QString decodifica(QByteArrayView bytes);

private:
    QByteArray m_dados;
    qsizetype m_posicao = 0;
    qint64 m_total = 0;
    QStringDecoder m_decodificador{"windows-1252"};
};
