#pragma once
// The rows of a consult grid: plain text held in one list, read by the view only for the rows it paints. A
// grid of ten thousand rows then costs one list of strings, not ten thousand items of ten cells each.
#include <QAbstractTableModel>
#include <QList>
#include <QStringList>

class ModeloConsulta : public QAbstractTableModel {
    Q_OBJECT
public:
    // The value as given, for the program; DisplayRole shows it without trailing blanks.
    static constexpr int ValueRole = Qt::UserRole + 1;

    explicit ModeloConsulta(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    void setColumns(const QStringList& titles, const QList<Qt::Alignment>& alignment);
    void setRows(QList<QStringList> rows);
    void insertAt(int row, const QStringList& cells);
    void replaceAt(int row, const QStringList& cells);
    void removeAt(int row);

    const QStringList& row(int r) const { return m_rows.at(r); }
    Qt::Alignment alignment(int c) const { return m_alignment.value(c, Qt::AlignLeft | Qt::AlignVCenter); }
    QString value(int r, int c) const { return m_rows.at(r).value(c); }
    // The text a cell shows: its value without trailing blanks, which fixed-width tables store and which
    // would only make the grid elide the text.
    QString shown(int r, int c) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList m_titles;
    QList<Qt::Alignment> m_alignment;
    QList<QStringList> m_rows;
};
