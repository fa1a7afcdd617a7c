#include "core/file/layout/LinhasArquivo.h"

#include <QFile>

#include <algorithm>
#include <cstring>

bool LinhasArquivo::abre(const QString& caminho)
{
    m_proprio = std::make_unique<QFile>(caminho);
    return abre(*m_proprio);
}

LinhasArquivo::~LinhasArquivo()
{
    if (m_mapeado && m_mapa)
        m_mapeado->unmap(m_mapa);
}

bool LinhasArquivo::abre(QIODevice& dispositivo)
{
    if (!dispositivo.isOpen() && !dispositivo.open(QIODevice::ReadOnly))
        return false;
    if (!dispositivo.isReadable())
        return false;
    if (!mapeia(dispositivo))
        m_dados = dispositivo.readAll();
    m_posicao = 0;
    contaLinhas();
    return true;
}

// A declaration of a hundred thousand records is tens of megabytes: copying it into the process, page after new
// page, cost a tenth of the whole reading. Mapped, the lines are read from the file's pages as they stand.
bool LinhasArquivo::mapeia(QIODevice& dispositivo)
{
    auto* arquivo = qobject_cast<QFile*>(&dispositivo);
    if (!arquivo || arquivo->isSequential() || arquivo->pos() != 0 || arquivo->size() <= 0)
        return false;
    m_mapa = arquivo->map(0, arquivo->size());
    if (!m_mapa)
        return false;
    m_mapeado = arquivo;
    m_dados = QByteArray::fromRawData(reinterpret_cast<const char*>(m_mapa), arquivo->size());
    return true;
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

QString LinhasArquivo::proxima()
{
    if (fim())
        return QString(QLatin1String(""));
    qsizetype fimLinha = m_dados.indexOf('\n', m_posicao);
    qsizetype proximo = fimLinha + 1;
    if (fimLinha < 0) {
        fimLinha = m_dados.size();
        proximo = fimLinha;
    }
    qsizetype tamanho = fimLinha - m_posicao;
    if (tamanho > 0 && m_dados.at(m_posicao + tamanho - 1) == '\r')
        --tamanho;
    const QByteArrayView bytes(m_dados.constData() + m_posicao, tamanho);
    m_posicao = proximo;
    // Windows-1252 is Latin-1 but for the bytes 0x80 to 0x9F: a line without them needs no code page table.
    const auto foraDoLatin1 = [](char b) { return (uchar(b) & 0xE0) == 0x80; };
    const QString linha = std::any_of(bytes.begin(), bytes.end(), foraDoLatin1) ? m_decodificador.decode(bytes)
                                                                                 : QString::fromLatin1(bytes);
    return linha.isNull() ? QString(QLatin1String("")) : linha;
}

QString LinhasArquivo::decodifica(QByteArrayView bytes)
{
    QStringDecoder decodificador("windows-1252");
    return decodificador.decode(bytes);
}
