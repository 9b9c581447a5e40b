// SPDX-License-Identifier: MIT
//
// FolderTree: the tree in which a person chooses a folder, or checks several.
#pragma once

#include "app/FolderModel.h"

#include <QTreeView>

namespace app {

class FolderTree final : public QTreeView
{
    Q_OBJECT

public:
    explicit FolderTree(QWidget* parent = nullptr);

    // The current folder; empty if there is none.
    QString SelectedFolder() const;

    // Makes a folder current and brings it into sight. One that doesn't exist leaves the tree as it is.
    void SetSelectedFolder(const QString& path);

    // Folders can be checked.
    void SetCheckBoxes(bool on);
    void SetShowsHidden(bool shows);

    // Reads all folders again. The current one, checks and what is open stay.
    void RefreshFolders();

Q_SIGNALS:
    // Another folder became current, or the current one was chosen again by a click or by Enter.
    void FolderSelected(const QString& path);
    void FolderChecked(const QString& path, bool checked);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Does something that makes all indexes invalid, and finds the current folder and those that are open
    // again, without a signal.
    template<class Change>
    void KeepingFolders(Change change);
    void CollectOpen(const QModelIndex& parent, QStringList& paths) const;

    FolderModel model_;
    bool isKeeping_ = false;
    QPersistentModelIndex pressed_; // the folder that was current already when the mouse went down on it
};

} // namespace app
