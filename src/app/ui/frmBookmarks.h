// SPDX-License-Identifier: MIT
//
// frmBookmarks: the list of bookmarks. A click on one takes a person to its folder.
#pragma once

#include "app/Bookmarks.h"
#include "model/AppState.h"
#include "windowing/OnTopGroup.h"
#include "windowing/Resize.h"

#include <QWidget>

#include <functional>

class QAction;
class QListWidget;
class QMenu;

namespace app {

class frmBName;

class frmBookmarks final : public QWidget
{
    Q_OBJECT

public:
    // A window of its own, hidden, with the bookmarks of the file. `choose` is called with the folder that a
    // person goes to. All of it outlives the window.
    frmBookmarks(model::AppState& state, const platform::ProgramFolder& programFolder,
                 std::function<void(const QString& folder)> choose, windowing::OnTopGroup& onTop,
                 QWidget* parent);

    // Adds a bookmark of a folder, under a name that a window beside `button` asks for, unless names aren't
    // to be asked for.
    void Add(const QString& folder, const QWidget& button);

    // Writes the file; one that can't be written is passed over. Closing the window does the same.
    void Save() const;

Q_SIGNALS:
    void AskingChanged(bool asks); // whether a new bookmark's name is asked for

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // of the two lists

private:
    QListWidget* NewList(const char* name, const QString& caption);
    void AddMenu(windowing::OnTopGroup& onTop);
    QAction* AddCommand(const char* name, const QString& caption);
    void ShowEntries();
    void SelectInBoth(int position);
    void Choose(int position);
    void DeleteSelected();

    model::AppState& state_;
    const platform::ProgramFolder& programFolder_;
    std::function<void(const QString& folder)> choose_;
    Bookmarks bookmarks_;
    windowing::Resize resize_{*this};
    QListWidget* lstNames_ = nullptr;
    QListWidget* lstBookmarks_ = nullptr; // the folders
    QMenu* mnuPopup_ = nullptr;
    frmBName* asker_ = nullptr; // made on first use
};

} // namespace app
