// SPDX-License-Identifier: MIT
#include "app/FolderModel.h"

#include "model/Text.h"
#include "platform/FileSystem.h"
#include "platform/FolderReader.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>

namespace app {

struct FolderModel::Folder
{
    QString name;
    QString path;
    Folder* above = nullptr;
    int row = 0;
    bool isRead = false;
    bool isChecked = false;
    std::vector<std::unique_ptr<Folder>> subfolders;
};

namespace {

QString WithoutSeparator(QString path)
{
    while (path.size() > 1 && path.endsWith(platform::PathSeparator)) {
        path.chop(1);
    }
    return path;
}

QString Joined(const QString& folder, const QString& name)
{
    return folder.endsWith(platform::PathSeparator) ? folder + name : folder + platform::PathSeparator + name;
}

// True if `path` is `folder` or lies below it.
bool IsWithin(const QString& path, const QString& folder)
{
    return path == folder || path.startsWith(Joined(folder, {}));
}

} // namespace

std::vector<FolderModel::Top> FolderModel::UsualTops()
{
    return {{tr("Home"), QDir::homePath()},
            {tr("Desktop"), QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)},
            {tr("File System"), QDir::rootPath()}};
}

FolderModel::FolderModel(std::vector<Top> tops, QObject* parent)
    : QAbstractItemModel(parent), tops_(std::move(tops))
{
    MakeTops();
}

FolderModel::~FolderModel() = default;

void FolderModel::MakeTops()
{
    top_ = std::make_unique<Folder>();
    top_->isRead = true;
    platform::FileSystem files;
    auto& folders = top_->subfolders;
    for (const auto& [name, wantedPath] : tops_) {
        const QString path = WithoutSeparator(wantedPath);
        const auto info = files.GetInfo(path, {});
        const bool isThere = std::any_of(folders.begin(), folders.end(),
                                         [&](const auto& folder) { return folder->path == path; });
        if (info && info->isFolder && !isThere) {
            auto folder = std::make_unique<Folder>();
            folder->name = name;
            folder->path = path;
            folder->above = top_.get();
            folder->row = static_cast<int>(folders.size());
            folders.push_back(std::move(folder));
        }
    }
}

FolderModel::Folder* FolderModel::FolderOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Folder*>(index.internalPointer()) : top_.get();
}

QModelIndex FolderModel::IndexOf(const Folder& folder) const
{
    return &folder == top_.get() ? QModelIndex() : createIndex(folder.row, 0, &folder);
}

QString FolderModel::PathOf(const QModelIndex& index) const
{
    return FolderOf(index)->path;
}

QModelIndex FolderModel::IndexOf(const QString& path)
{
    const QString wanted = WithoutSeparator(path);
    Folder* at = nullptr;
    for (const auto& top : top_->subfolders) {
        if (!at && IsWithin(wanted, top->path)) {
            at = top.get();
        }
    }
    while (at && at->path != wanted) {
        fetchMore(IndexOf(*at));
        const auto next = std::find_if(at->subfolders.begin(), at->subfolders.end(),
                                       [&](const auto& folder) { return IsWithin(wanted, folder->path); });
        at = next == at->subfolders.end() ? nullptr : next->get();
    }
    return at ? IndexOf(*at) : QModelIndex();
}

void FolderModel::Refresh()
{
    QStringList checked;
    CollectChecked(*top_, checked);
    beginResetModel();
    MakeTops();
    endResetModel();
    for (const QString& path : checked) {
        if (const QModelIndex index = IndexOf(path); index.isValid()) {
            FolderOf(index)->isChecked = true;
        }
    }
}

void FolderModel::CollectChecked(const Folder& folder, QStringList& paths)
{
    if (folder.isChecked) {
        paths << folder.path;
    }
    for (const auto& subfolder : folder.subfolders) {
        CollectChecked(*subfolder, paths);
    }
}

void FolderModel::SetShowsHidden(bool shows)
{
    if (shows != showsHidden_) {
        showsHidden_ = shows;
        Refresh();
    }
}

void FolderModel::SetHasChecks(bool has)
{
    hasChecks_ = has;
    beginResetModel();
    MakeTops();
    endResetModel();
}

QModelIndex FolderModel::index(int row, int column, const QModelIndex& parent) const
{
    const Folder* const folder = FolderOf(parent);
    const bool exists = column == 0 && row >= 0 && row < static_cast<int>(folder->subfolders.size());
    return exists ? createIndex(row, 0, folder->subfolders[static_cast<std::size_t>(row)].get())
                  : QModelIndex();
}

QModelIndex FolderModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? IndexOf(*FolderOf(index)->above) : QModelIndex();
}

int FolderModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(FolderOf(parent)->subfolders.size());
}

int FolderModel::columnCount(const QModelIndex&) const
{
    return 1;
}

// A folder that wasn't read yet may have some.
bool FolderModel::hasChildren(const QModelIndex& parent) const
{
    const Folder* const folder = FolderOf(parent);
    return !folder->isRead || !folder->subfolders.empty();
}

bool FolderModel::canFetchMore(const QModelIndex& parent) const
{
    return !FolderOf(parent)->isRead;
}

std::vector<std::unique_ptr<FolderModel::Folder>> FolderModel::ReadSubfolders(Folder& folder) const
{
    std::vector<std::unique_ptr<Folder>> subfolders;
    platform::FolderReader reader(folder.path);
    for (platform::FolderEntry entry; reader.Next(entry);) {
        if (entry.isFolder && (showsHidden_ || !entry.name.startsWith(u'.'))) {
            auto subfolder = std::make_unique<Folder>();
            subfolder->name = entry.name;
            subfolder->path = Joined(folder.path, entry.name);
            subfolder->above = &folder;
            subfolders.push_back(std::move(subfolder));
        }
    }
    std::sort(subfolders.begin(), subfolders.end(), [](const auto& left, const auto& right) {
        const int order = model::LowerCase(left->name).compare(model::LowerCase(right->name));
        return order != 0 ? order < 0 : left->name < right->name;
    });
    for (std::size_t row = 0; row < subfolders.size(); ++row) {
        subfolders[row]->row = static_cast<int>(row);
    }
    return subfolders;
}

void FolderModel::fetchMore(const QModelIndex& parent)
{
    Folder* const folder = FolderOf(parent);
    if (folder->isRead) {
        return;
    }
    folder->isRead = true;
    auto subfolders = ReadSubfolders(*folder);
    if (!subfolders.empty()) {
        beginInsertRows(parent, 0, static_cast<int>(subfolders.size()) - 1);
        folder->subfolders = std::move(subfolders);
        endInsertRows();
    }
}

QVariant FolderModel::data(const QModelIndex& index, int role) const
{
    const Folder* const folder = FolderOf(index);
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return folder->name;
    case Qt::ToolTipRole:
        return folder->path;
    case Qt::CheckStateRole:
        return hasChecks_ ? QVariant(folder->isChecked ? Qt::Checked : Qt::Unchecked) : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags FolderModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled |
           (hasChecks_ ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

bool FolderModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || !hasChecks_) {
        return false;
    }
    Folder* const folder = FolderOf(index);
    folder->isChecked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    Q_EMIT FolderChecked(QString(folder->path), folder->isChecked);
    return true;
}

} // namespace app
