#include "core/legacy/LeitorMdb.h"

#include <QFile>
#include <memory>
#include <vector>

#include <mdbtools.h>

namespace {

// A table definition freed on every path.
struct LiberaTabela {
    void operator()(MdbTableDef* t) const { mdb_free_tabledef(t); }
};
using Tabela = std::unique_ptr<MdbTableDef, LiberaTabela>;

QVariant valor(const MdbColumn* coluna, const char* texto, int tamanho)
{
    switch (coluna->col_type) {
    case MDB_TEXT:
    case MDB_MEMO:
        return QString::fromUtf8(texto, tamanho);
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return tamanho > 0 ? QVariant(QByteArray(texto, tamanho).toLongLong()) : QVariant();
    default:
        return tamanho > 0 ? QVariant(QString::fromUtf8(texto, tamanho)) : QVariant();
    }
}

}  // namespace

struct LeitorMdb::Arquivo {
    MdbHandle* mdb = nullptr;
};

int TabelaLida::indice(const QString& coluna) const
{
    for (int i = 0; i < colunas.size(); ++i) {
        if (colunas.at(i).compare(coluna, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

LeitorMdb::LeitorMdb(const QString& caminho)
{
    // libmdb looks a missing file up along $MDBPATH; only the file named is ever read here.
    if (!QFile::exists(caminho)) {
        m_erro = QStringLiteral("Arquivo não encontrado: ") + caminho;
        return;
    }
    MdbHandle* mdb = mdb_open(QFile::encodeName(caminho).constData(), MDB_NOFLAGS);
    if (!mdb || !mdb_read_catalog(mdb, MDB_TABLE)) {
        if (mdb)
            mdb_close(mdb);
        m_erro = QStringLiteral("O arquivo não é um banco de dados Access legível: ") + caminho;
        return;
    }
    // Dates as the present database keeps them.
    mdb_set_date_fmt(mdb, "%Y-%m-%d");
    mdb_set_shortdate_fmt(mdb, "%Y-%m-%d");
    m_arquivo = new Arquivo{mdb};
}

LeitorMdb::~LeitorMdb()
{
    if (m_arquivo)
        mdb_close(m_arquivo->mdb);
    delete m_arquivo;
}

QStringList LeitorMdb::tabelas()
{
    QStringList r;
    if (!m_arquivo)
        return r;
    MdbHandle* mdb = m_arquivo->mdb;
    for (unsigned int i = 0; i < mdb->num_catalog; ++i) {
        auto* entrada = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (mdb_is_user_table(entrada))
            r << QString::fromUtf8(entrada->object_name);
    }
    return r;
}

std::optional<TabelaLida> LeitorMdb::le(const QString& nome)
{
    if (!m_arquivo)
        return std::nullopt;
    MdbHandle* mdb = m_arquivo->mdb;
    QByteArray nomeC = nome.toUtf8();
    Tabela tabela(mdb_read_table_by_name(mdb, nomeC.data(), MDB_TABLE));
    if (!tabela || !mdb_read_columns(tabela.get())) {
        m_erro = QStringLiteral("A tabela %1 não existe ou não pode ser lida.").arg(nome);
        return std::nullopt;
    }
    const unsigned int n = tabela->num_cols;
    TabelaLida lida;
    std::vector<std::vector<char>> valores(n, std::vector<char>(mdb->bind_size + 1));
    std::vector<int> tamanhos(n);
    for (unsigned int i = 0; i < n; ++i) {
        auto* coluna = static_cast<MdbColumn*>(g_ptr_array_index(tabela->columns, i));
        lida.colunas << QString::fromUtf8(coluna->name);
        mdb_bind_column(tabela.get(), int(i) + 1, valores[i].data(), &tamanhos[i]);
    }
    mdb_rewind_table(tabela.get());
    while (mdb_fetch_row(tabela.get())) {
        QVariantList linha;
        linha.reserve(int(n));
        for (unsigned int i = 0; i < n; ++i) {
            auto* coluna = static_cast<MdbColumn*>(g_ptr_array_index(tabela->columns, i));
            linha << valor(coluna, valores[i].data(), tamanhos[i]);
        }
        lida.linhas << linha;
    }
    return lida;
}
