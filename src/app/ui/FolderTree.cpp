// SPDX-License-Identifier: MIT
#include "app/ui/FolderTree.h"

#include "fileview/ui/FileIcons.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace app {

namespace {

class FolderDelegate final : public QStyledItemDelegate
{
public:
    FolderDelegate(const QIcon& icon, QObject* parent) : QStyledItemDelegate(parent), icon_(icon) {}

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon = icon_;
        option->decorationSize = {16, 16};
    }

private:
    const QIcon icon_;
};

} // namespace

FolderTree::FolderTree(QWidget* parent) : QTreeView(parent)
{
    setModel(&model_);
    setItemDelegate(new FolderDelegate(fileview::IconOfFolder(), this));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents); // long names scroll
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (current.isValid() && !isKeeping_) {
            Q_EMIT FolderSelected(model_.PathOf(current));
        }
    });
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& folder) {
        if (folder == pressed_) {
            Q_EMIT FolderSelected(model_.PathOf(folder));
        }
    });
    connect(&model_, &FolderModel::FolderChecked, this, &FolderTree::FolderChecked);
}

QString FolderTree::SelectedFolder() const
{
    return currentIndex().isValid() ? model_.PathOf(currentIndex()) : QString();
}

void FolderTree::SetSelectedFolder(const QString& path)
{
    const QModelIndex index = model_.IndexOf(path);
    if (index.isValid()) {
        scrollTo(index);
        setCurrentIndex(index);
    }
}

template<class Change>
void FolderTree::KeepingFolders(Change change)
{
    const QString folder = SelectedFolder();
    QStringList open;
    CollectOpen({}, open);
    const QScopedValueRollback keeping(isKeeping_, true);
    change();
    for (const QString& path : open) {
        expand(model_.IndexOf(path));
    }
    SetSelectedFolder(folder);
}

// Those above come before those below.
void FolderTree::CollectOpen(const QModelIndex& parent, QStringList& paths) const
{
    for (int row = 0; row < model_.rowCount(parent); ++row) {
        const QModelIndex folder = model_.index(row, 0, parent);
        if (isExpanded(folder)) {
            paths << model_.PathOf(folder);
            CollectOpen(folder, paths);
        }
    }
}

// The column is as wide as its longest name, and as the view.
void FolderTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    header()->setMinimumSectionSize(viewport()->width());
}

void FolderTree::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentIndex().isValid()) {
        Q_EMIT FolderSelected(model_.PathOf(currentIndex()));
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void FolderTree::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex folder = indexAt(event->position().toPoint());
    pressed_ = folder == currentIndex() ? folder : QModelIndex();
    QTreeView::mousePressEvent(event);
}

// Opens or closes a folder, and doesn't choose it once more.
void FolderTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    pressed_ = QModelIndex();
    QTreeView::mouseDoubleClickEvent(event);
}

void FolderTree::SetCheckBoxes(bool on)
{
    KeepingFolders([&] { model_.SetHasChecks(on); });
}

void FolderTree::SetShowsHidden(bool shows)
{
    KeepingFolders([&] { model_.SetShowsHidden(shows); });
}

void FolderTree::RefreshFolders()
{
    KeepingFolders([this] { model_.Refresh(); });
}

} // namespace app
