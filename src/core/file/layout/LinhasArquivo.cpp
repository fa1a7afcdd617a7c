#include "core/file/layout/LinhasArquivo.h"
#include "core/file/layout/BytesAscii.h"

#include <QFile>

#include <algorithm>
#include <cstring>

bool LinhasArquivo::abre(const QString& caminho)
{
    m_proprio = std::make_unique<QFile>(caminho);
    return abre(*m_proprio);
}

bool LinhasArquivo::abre(QIODevice& dispositivo)
{
    if (!dispositivo.isOpen() && !dispositivo.open(QIODevice::ReadOnly))
        return false;
    if (!dispositivo.isReadable())
        return false;
    m_posicao = 0;
    m_restante = 0;
    m_falhou = false;
    m_arquivo = nullptr;
    auto* arquivo = qobject_cast<QFile*>(&dispositivo);
    if (arquivo && !arquivo->isSequential() && arquivo->pos() == 0) {
        if (!contaNoArquivo(*arquivo))
            return false;
        m_arquivo = arquivo;
        m_dados.clear();
        m_dados.reserve(2 * TamanhoBloco);
    } else {
        m_dados = dispositivo.readAll();
        contaLinhas();
    }
    m_fimLinha = -1;
    m_busca = 0;
    preparaLinha();
    return true;
}

// A file is not mapped: a mapped file that is truncated, or whose medium is pulled, while it is read ends the
// process. Nor is it copied whole: tens of megabytes of new pages cost a tenth of the reading. One block-sized
// buffer, read again and again, costs about as little as the mapping did.
bool LinhasArquivo::contaNoArquivo(QFile& arquivo)
{
    QByteArray bloco(TamanhoBloco, Qt::Uninitialized);
    qint64 tamanho = 0;
    m_total = 0;
    char ultimo = '\n';
    for (;;) {
        const qint64 lidos = arquivo.read(bloco.data(), bloco.size());
        if (lidos < 0)
            return false;
        if (lidos == 0)
            break;
        for (const char* p = bloco.constData(); (p = static_cast<const char*>(std::memchr(
                                                     p, '\n', size_t(bloco.constData() + lidos - p))));
             ++p)
            ++m_total;
        tamanho += lidos;
        ultimo = bloco.at(lidos - 1);
    }
    if (ultimo != '\n')
        ++m_total;
    m_restante = tamanho;
    return arquivo.seek(0);
}

void LinhasArquivo::contaLinhas()
{
    m_total = 0;
    // memchr runs far faster than a loop over the bytes on a file of tens of megabytes.
    const char* p = m_dados.constData();
    const char* const fim = p + m_dados.size();
    while ((p = static_cast<const char*>(std::memchr(p, '\n', size_t(fim - p))))) {
        ++m_total;
        ++p;
    }
    if (!m_dados.isEmpty() && !m_dados.endsWith('\n'))
        ++m_total;
}

void LinhasArquivo::preparaLinha()
{
    for (;;) {
        const char* inicio = m_dados.constData() + m_busca;
        const auto* nl = static_cast<const char*>(std::memchr(inicio, '\n', size_t(m_dados.size() - m_busca)));
        if (nl) {
            m_fimLinha = nl - m_dados.constData();
            return;
        }
        m_busca = m_dados.size();
        m_fimLinha = -1;
        if (!m_arquivo || m_restante <= 0 || !leBloco())
            return;
    }
}

bool LinhasArquivo::leBloco()
{
    // What is left of the current line goes to the front, and the next block after it.
    std::memmove(m_dados.data(), m_dados.constData() + m_posicao, size_t(m_dados.size() - m_posicao));
    m_dados.resize(m_dados.size() - m_posicao);
    m_busca -= m_posicao;
    m_posicao = 0;
    const qsizetype antes = m_dados.size();
    const qint64 pedidos = std::min(TamanhoBloco, m_restante);
    m_dados.resize(antes + pedidos);
    const qint64 lidos = m_arquivo->read(m_dados.data() + antes, pedidos);
    m_dados.resize(antes + std::max<qint64>(lidos, 0));
    if (lidos <= 0) {
        // Fewer bytes than were counted at the start, or a read error: the file changed under the reading.
        m_falhou = true;
        return false;
    }
    m_restante -= lidos;
    return true;
}

QString LinhasArquivo::proxima()
{
    if (fim())
        return QString(QLatin1String(""));
    qsizetype fimLinha = m_fimLinha;
    qsizetype proximo = fimLinha + 1;
    if (fimLinha < 0) {
        fimLinha = m_dados.size();
        proximo = fimLinha;
    }
    qsizetype tamanho = fimLinha - m_posicao;
    if (tamanho > 0 && m_dados.at(m_posicao + tamanho - 1) == '\r')
        --tamanho;
    const QByteArrayView bytes(m_dados.constData() + m_posicao, tamanho);
    // Windows-1252 is Latin-1 but for the bytes 0x80 to 0x9F: a line without them needs no code page table.
    const auto foraDoLatin1 = [](char b) { return (uchar(b) & 0xE0) == 0x80; };
    const bool latin1 = soAscii(bytes) || std::none_of(bytes.begin(), bytes.end(), foraDoLatin1);
    const QString linha = latin1 ? QString::fromLatin1(bytes) : m_decodificador.decode(bytes);
    m_posicao = proximo;
    m_busca = proximo;
    preparaLinha();
    return linha.isNull() ? QString(QLatin1String("")) : linha;
}

QString LinhasArquivo::decodifica(QByteArrayView bytes)
{
    QStringDecoder decodificador("windows-1252");
    return decodificador.decode(bytes);
}
