#include "core/file/writing/LinhasGuardadas.h"

#include <cstring>

void LinhasGuardadas::limpa()
{
    m_dados.clear();
    m_celulas.clear();
}

int LinhasGuardadas::guarda(const ComandoSqlite& rs)
{
    using Conteudo = ComandoSqlite::Conteudo;
    m_colunas = rs.colunas();
    for (int c = 0; c < m_colunas; ++c) {
        const int inicio = int(m_dados.size());
        QByteArrayView v;
        qint64 n = 0;
        switch (rs.le(c, v, n)) {
        case Conteudo::Nulo:
            m_celulas.push_back({inicio, Nulo});
            break;
        case Conteudo::Inteiro:
            // Keys mostly: kept as the number, turned into digits only if a field takes them.
            m_dados.append(reinterpret_cast<const char*>(&n), sizeof n);
            m_celulas.push_back({inicio, Inteiro});
            break;
        case Conteudo::Texto:
            m_dados.append(v.data(), size_t(v.size()));
            m_celulas.push_back({inicio, int(v.size())});
            break;
        case Conteudo::Outro: {
            // A real or a blob: its text as the statement gives it.
            const QByteArray texto = rs.texto(c).toUtf8();
            m_dados.append(texto.constData(), size_t(texto.size()));
            m_celulas.push_back({inicio, texto.isNull() ? Nulo : int(texto.size())});
            break;
        }
        }
    }
    return quantas() - 1;
}

const LinhasGuardadas::Celula& LinhasGuardadas::Linha::celula(int coluna) const
{
    Q_ASSERT(m_linha < m_dono->quantas() && coluna < m_dono->m_colunas);
    return m_dono->m_celulas[size_t(m_linha * m_dono->m_colunas + coluna)];
}

bool LinhasGuardadas::Linha::utf8(int coluna, QByteArrayView& texto) const
{
    const Celula& c = celula(coluna);
    if (c.tamanho == Inteiro)
        return false;  // texto() gives its digits
    texto = c.tamanho == Nulo ? QByteArrayView() : QByteArrayView(m_dono->m_dados.data() + c.inicio, c.tamanho);
    return true;
}

QString LinhasGuardadas::Linha::texto(int coluna) const
{
    if (celula(coluna).tamanho == Inteiro)
        return QString::number(inteiro(coluna));
    QByteArrayView v;
    utf8(coluna, v);
    return v.isNull() ? QString() : QString::fromUtf8(v);
}

qint64 LinhasGuardadas::Linha::inteiro(int coluna) const
{
    const Celula& c = celula(coluna);
    if (c.tamanho != Inteiro) {
        QByteArrayView v;
        utf8(coluna, v);
        return v.toLongLong();
    }
    qint64 n = 0;
    std::memcpy(&n, m_dono->m_dados.data() + c.inicio, sizeof n);
    return n;
}
