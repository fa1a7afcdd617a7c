#pragma once
// The folders under one root, read from the disk as they are needed, never in the background: a folder's
// subfolders are listed the moment a view expands it or a path asks for it, so a tree that opens on a folder
// shows it at once, in place, and nothing moves under the pointer afterwards.
//     auto* model = new FolderTreeModel(this);
//     model->setRoot(QDir::homePath());
//     tree->setModel(model);
//     tree->setCurrentIndex(model->indexOf(folder));   // lists every folder on the way
#include <QStandardItemModel>

class FolderTreeModel : public QStandardItemModel {
    Q_OBJECT
public:
    explicit FolderTreeModel(QObject* parent = nullptr);

    // Empties the model and makes `path` its one top folder, shown as `label` (its name when empty).
    void setRoot(const QString& path, const QString& label = QString());
    QString root() const { return m_root; }
    // The index of a folder at or under the root (the root's when `path` is outside it).
    QModelIndex indexOf(const QString& path);
    QString filePath(const QModelIndex& index) const;

    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    QStandardItem* newFolder(const QString& path, const QString& name) const;

    QString m_root;
};
