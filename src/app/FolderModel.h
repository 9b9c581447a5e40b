// SPDX-License-Identifier: MIT
//
// FolderModel: the tree of folders. A folder's subfolders are read when it is first opened. Beside the whole
// file system the tree offers the desktop and the home folder at its top. Names are those that
// platform/NameBytes.h makes of the disk's, so that any folder can be chosen.
#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace app {

class FolderModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    // An entry at the top.
    struct Top
    {
        QString name; // as it is shown
        QString path;
    };

    // The home folder, the desktop and the whole file system.
    static std::vector<Top> UsualTops();

    // Of the tops those are shown that exist, each folder once.
    explicit FolderModel(std::vector<Top> tops = UsualTops(), QObject* parent = nullptr);
    ~FolderModel() override;

    // A complete path, without a separator at its end but for the root.
    QString PathOf(const QModelIndex& index) const;

    // The entry of a folder, below the first top in which it lies; entries on the way are read. Invalid if
    // there is no such folder, or a hidden one while those aren't shown.
    QModelIndex IndexOf(const QString& path);

    // Reads everything anew. Indexes become invalid; folders that are still there keep their checks.
    void Refresh();

    // Folders whose names begin with a dot.
    void SetShowsHidden(bool shows);

    // In check box mode each folder has a check mark; switching takes all checks away.
    void SetHasChecks(bool has);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    void FolderChecked(const QString& path, bool checked);

private:
    struct Folder;

    Folder* FolderOf(const QModelIndex& index) const;
    QModelIndex IndexOf(const Folder& folder) const;
    std::vector<std::unique_ptr<Folder>> ReadSubfolders(Folder& folder) const;
    void MakeTops();
    static void CollectChecked(const Folder& folder, QStringList& paths);

    const std::vector<Top> tops_;
    std::unique_ptr<Folder> top_; // holds the entries at the top
    bool showsHidden_ = false;
    bool hasChecks_ = false;
};

} // namespace app
