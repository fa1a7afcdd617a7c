#include "core/file/writing/FilhosDoItem.h"

#include <algorithm>

FilhosDoItem::FilhosDoItem(const QString& sql, const QVariantList& valores, int primeiraDe)
    : m_cursor(sql, valores), m_primeiraDe(primeiraDe)
{
}

void FilhosDoItem::carrega(qint64 item)
{
    // The buffers keep their room from item to item: a run allocates only for its largest item.
    m_linhas.limpa();
    m_chaves.clear();
    m_ordem.clear();
    for (; m_cursor.de(item); m_cursor.avanca()) {
        if (repeteAnterior())
            continue;
        const int k = m_linhas.guarda(m_cursor.linha());
        m_chaves.push_back(m_linhas.linha(k).inteiro(1));
        m_ordem.push_back(k);
    }
    std::stable_sort(m_ordem.begin(), m_ordem.end(), [this](int a, int b) { return m_chaves[a] < m_chaves[b]; });
}

bool FilhosDoItem::repeteAnterior() const
{
    if (m_primeiraDe < 0 || m_chaves.empty())
        return false;
    QByteArrayView texto;
    qint64 atual = 0;
    return m_cursor.linha().le(m_primeiraDe, texto, atual) == ComandoSqlite::Conteudo::Inteiro
           && atual == m_linhas.linha(m_linhas.quantas() - 1).inteiro(m_primeiraDe);
}

FilhosDoItem::Faixa FilhosDoItem::de(qint64 chave) const
{
    const auto menor = [this](int linha, qint64 c) { return m_chaves[size_t(linha)] < c; };
    const auto inicio = std::lower_bound(m_ordem.begin(), m_ordem.end(), chave, menor);
    auto fim = inicio;
    while (fim != m_ordem.end() && m_chaves[size_t(*fim)] == chave)
        ++fim;
    return {int(inicio - m_ordem.begin()), int(fim - m_ordem.begin())};
}
