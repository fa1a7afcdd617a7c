#pragma once
// Reads the tables of an Access (Jet) database file through libmdb, read only. Values come back as Qt values:
// whole numbers as qint64, dates as ISO text (yyyy-mm-dd), text as text (an empty text for a zero-length or
// missing one, which libmdb does not tell apart), any other kind as the text libmdb gives for it; a missing
// number or date is a null QVariant.
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <optional>

struct TabelaLida {
    QStringList colunas;         // in the table's own order
    QList<QVariantList> linhas;  // in the file's order, values in the order of `colunas`
    int indice(const QString& coluna) const;  // position of a column (case-insensitive), -1 when absent
};

class LeitorMdb {
public:
    // Opens the file; aberto() tells whether it is an Access file libmdb can read.
    explicit LeitorMdb(const QString& caminho);
    ~LeitorMdb();
    LeitorMdb(const LeitorMdb&) = delete;
    LeitorMdb& operator=(const LeitorMdb&) = delete;

    bool aberto() const { return m_arquivo != nullptr; }
    // The user tables of the file, in catalog order.
    QStringList tabelas();
    // Every row of `tabela`; nothing, with erro() saying why, when the table is absent or cannot be read.
    std::optional<TabelaLida> le(const QString& tabela);
    QString erro() const { return m_erro; }

private:
    struct Arquivo;
    Arquivo* m_arquivo = nullptr;  // the open file, or null
    QString m_erro;
};
