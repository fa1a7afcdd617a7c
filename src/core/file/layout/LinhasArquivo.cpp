#include "core/file/layout/LinhasArquivo.h"

#include <QFile>

#include <cstring>

bool LinhasArquivo::abre(const QString& caminho)
{
    QFile arquivo(caminho);
    return abre(arquivo);
}

bool LinhasArquivo::abre(QIODevice& dispositivo)
{
    if (!dispositivo.isOpen() && !dispositivo.open(QIODevice::ReadOnly))
        return false;
    if (!dispositivo.isReadable())
        return false;
    m_dados = dispositivo.readAll();
    m_posicao = 0;
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
    return true;
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
    const QString linha = m_decodificador.decode(QByteArrayView(m_dados.constData() + m_posicao, tamanho));
    m_posicao = proximo;
    return linha.isNull() ? QString(QLatin1String("")) : linha;
}

QString LinhasArquivo::decodifica(QByteArrayView bytes)
{
    QStringDecoder decodificador("windows-1252");
    return decodificador.decode(bytes);
}
