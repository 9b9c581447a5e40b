// SPDX-License-Identifier: MIT
//
// frmPref: the window in which a person sets the options. Some of its controls are the only place where a
// value is kept while the program runs; PreferenceControls holds them, so that they can be read and written
// while the window is closed.
#pragma once

#include "app/Settings.h"

#include <QWidget>

#include <functional>

class QBoxLayout;
class QCheckBox;
class QRadioButton;
class QTabWidget;

namespace app {

class frmPref final : public QWidget
{
    Q_OBJECT

public:
    // What the window asks of the program.
    struct Functions
    {
        std::function<void()> apply; // makes what was saved hold in the main window
        std::function<void()> write; // writes the settings file
    };

    // A window of its own, hidden. `state`, `controls` and `programFolder` outlive it.
    frmPref(model::AppState& state, PreferenceControls& controls,
            const platform::ProgramFolder& programFolder, Functions functions, QWidget* parent = nullptr);

    // Puts the window on show with what holds now. If it is on show already, it comes to the front as it is.
    void Open();

    // A click elsewhere has said whether a new bookmark's name is asked for.
    void ShowAsksForNames(bool asks);

    // Takes the options from the boxes, if the window is open, and writes the settings file.
    void SaveSettings();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* NewRenamingPage();
    QWidget* NewViewPage();
    QCheckBox* AddBox(QBoxLayout& column, const char* name, const QString& caption);
    QWidget* NewSortFrame();
    void ShowValues();
    void ListenToStoredControls();

    model::AppState& state_;
    PreferenceControls& controls_;
    const platform::ProgramFolder& programFolder_;
    Functions functions_;
    QTabWidget* SSTab1_ = nullptr;
    QCheckBox* Check21_ = nullptr; // ClearOnDragDrop
    QCheckBox* chkBkr_ = nullptr;  // not DontAskBookmarkNames
    QRadioButton* OptSort1_ = nullptr;
    QRadioButton* OptSort0_ = nullptr;
};

} // namespace app
