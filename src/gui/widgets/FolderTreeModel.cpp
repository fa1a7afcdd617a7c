#include "gui/widgets/FolderTreeModel.h"

#include <QCollator>
#include <QDir>
#include <QFileIconProvider>

namespace {
constexpr int PathRole = Qt::UserRole + 1;
constexpr int ListedRole = Qt::UserRole + 2;
}  // namespace

FolderTreeModel::FolderTreeModel(QObject* parent) : QStandardItemModel(parent) {}

QStandardItem* FolderTreeModel::newFolder(const QString& path, const QString& name) const
{
    static const QIcon icon = QFileIconProvider().icon(QFileIconProvider::Folder);
    auto* item = new QStandardItem(icon, name);
    item->setEditable(false);
    item->setData(path, PathRole);
    item->setData(false, ListedRole);
    return item;
}

void FolderTreeModel::setRoot(const QString& path, const QString& label)
{
    clear();
    m_root = QDir::cleanPath(path);
    const QString name = label.isEmpty() ? QDir(m_root).dirName() : label;
    appendRow(newFolder(m_root, name.isEmpty() ? m_root : name));
}

QModelIndex FolderTreeModel::indexOf(const QString& path)
{
    QModelIndex at = index(0, 0);
    const QString clean = QDir::cleanPath(path);
    if (!at.isValid() || clean == m_root)
        return at;
    const QString prefix = m_root.endsWith(QLatin1Char('/')) ? m_root : m_root + QLatin1Char('/');
    if (!clean.startsWith(prefix))
        return at;
    for (const QString& part : clean.mid(prefix.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (canFetchMore(at))
            fetchMore(at);
        QModelIndex next;
        for (int r = 0; r < rowCount(at) && !next.isValid(); ++r)
            if (index(r, 0, at).data().toString() == part)
                next = index(r, 0, at);
        if (!next.isValid())
            break;
        at = next;
    }
    return at;
}

QString FolderTreeModel::filePath(const QModelIndex& index) const
{
    return index.data(PathRole).toString();
}

bool FolderTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return QStandardItemModel::hasChildren(parent);
    // Until it is listed a folder shows the sign that opens it.
    return parent.data(ListedRole).toBool() ? QStandardItemModel::hasChildren(parent) : true;
}

bool FolderTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return parent.isValid() && !parent.data(ListedRole).toBool();
}

void FolderTreeModel::fetchMore(const QModelIndex& parent)
{
    QStandardItem* item = itemFromIndex(parent);
    if (!item || item->data(ListedRole).toBool())
        return;
    item->setData(true, ListedRole);
    const QString path = filePath(parent);
    QStringList names = QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCollator order;
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(), order);
    QList<QStandardItem*> rows;
    for (const QString& name : names)
        rows << newFolder(QDir(path).filePath(name), name);
    if (!rows.isEmpty())
        item->appendRows(rows);
    else
        emit dataChanged(parent, parent);  // the opening sign goes
}
