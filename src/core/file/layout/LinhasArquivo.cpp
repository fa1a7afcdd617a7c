#include "core/file/layout/LinhasArquivo.h"

#include <QFile>

bool LinhasArquivo::abre(const QString& caminho)
{
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::ReadOnly))
        return false;
    m_dados = arquivo.readAll();
    m_posicao = 0;
    m_total = m_dados.count('\n');
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
