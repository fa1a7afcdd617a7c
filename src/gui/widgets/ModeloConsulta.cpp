#include "gui/widgets/ModeloConsulta.h"

void ModeloConsulta::setColumns(const QStringList& titles, const QList<Qt::Alignment>& alignment)
{
    beginResetModel();
    m_titles = titles;
    m_alignment = alignment;
    m_rows.clear();
    endResetModel();
}

void ModeloConsulta::setRows(QList<QStringList> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void ModeloConsulta::insertAt(int row, const QStringList& cells)
{
    beginInsertRows(QModelIndex(), row, row);
    m_rows.insert(row, cells);
    endInsertRows();
}

void ModeloConsulta::replaceAt(int row, const QStringList& cells)
{
    m_rows[row] = cells;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void ModeloConsulta::removeAt(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}

QString ModeloConsulta::shown(int r, int c) const
{
    const QString& value = m_rows.at(r).value(c);
    qsizetype end = value.size();
    while (end > 0 && value.at(end - 1) == QLatin1Char(' '))
        --end;
    return end == value.size() ? value : value.left(end);
}

int ModeloConsulta::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ModeloConsulta::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_titles.size());
}

QVariant ModeloConsulta::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shown(index.row(), index.column());
    case ValueRole:
        return value(index.row(), index.column());
    case Qt::ToolTipRole: {
        // Long texts (NCM descriptions) are elided in their column; the whole text shows on hover.
        const QString text = shown(index.row(), index.column());
        return text.size() > 40 ? QVariant(text) : QVariant();
    }
    case Qt::TextAlignmentRole:
        return int(m_alignment.value(index.column(), Qt::AlignLeft | Qt::AlignVCenter));
    default:
        return {};
    }
}

QVariant ModeloConsulta::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_titles.value(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}
