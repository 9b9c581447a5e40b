// SPDX-License-Identifier: MIT
//
// frmRenamer: the window in which a rename is composed: the ordered action list, the option panel of the
// current action, the grid of names, and the commands. It is a view: rows and options live in the
// RenameWorkspace, which also runs the commands; the window binds controls to them and holds nothing that a
// run would need.
//
// The window leaves by its Exit button only, which hides it. It stays loaded, with all that was set in it.
#pragma once

#include "model/AppState.h"
#include "model/Ports.h"
#include "platform/Result.h"
#include "windowing/OnTopGroup.h"
#include "workspace/RenameWorkspace.h"
#include "workspace/ui/Binding.h"
#include "workspace/ui/Pickers.h"
#include "workspace/ui/WindowHost.h"

#include <QWidget>

#include <array>
#include <functional>

class QComboBox;
class QHBoxLayout;
class QPushButton;

namespace workspace {

class ActionListPane;
class frmLog;
class PreviewGrid;
class ReplaceListWindow;
enum class ReplaceListKind;

class frmRenamer final : public QWidget
{
    Q_OBJECT

public:
    // What the window asks of rooms above it. A command whose function is empty is disabled.
    struct Collaborators
    {
        std::function<platform::Status(const QString& path)> createDrop; // writes a rename drop to `path`
        std::function<void()> manage;                                    // opens the manager of recipes
        std::function<void()> fileSelection;                             // shows the main window
        std::function<void()> renamed;          // a run has ended; the main list is up to date
        windowing::OnTopGroup* onTop = nullptr; // the windows that switch each other's marks off
    };

    // The references outlive the window. Clears StopFlag.
    frmRenamer(RenameWorkspace& workspace, model::AppState& state, model::RandomSource& random,
               Collaborators collaborators, QWidget* parent = nullptr);
    ~frmRenamer() override;

    // What a WindowHost shows a run in.
    WindowHost::Controls HostControls();

    // Brings every control up to date after workspace.options were changed by somebody else.
    void ShowOptions();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* NewCommandRow();
    QWidget* NewPanelArea();
    QWidget* NewGridArea();
    QWidget* NewLegend();
    QWidget* NewRunRow();
    QPushButton* AddCommand(QHBoxLayout& row, QLatin1String name, const QString& caption,
                            void (frmRenamer::*command)());

    void ShowCurrentPanel();
    void OpenOriginal(int row);
    windowing::OnTopGroup& OnTop();
    void OpenReplaceList(ReplaceListWindow*& window, ReplaceListKind kind);

    // The commands of the buttons, by their names.
    void cmdPreview_Click();
    void cmdValidate_Click();
    void cmdExecute_Click();
    void Command13_Click(); // STOP
    void cmdClear_Click();
    void cmdRefresh_Click();
    void Command12_Click(); // create a rename drop
    void Command1_Click();  // manage
    void Command14_Click(); // file selection
    void cmdLog_Click();
    void cmdClose_Click();
    void cmdReplaceOptions_Click(); // the list of the action Replace
    void Command3_Click();          // the list of extensions

    RenameWorkspace& workspace_;
    model::AppState& state_;
    model::RandomSource& random_;
    windowing::OnTopGroup ownOnTop_; // where nobody gave one
    Collaborators collaborators_;
    Binder binder_;
    Pickers pickers_;
    ActionListPane* actions_ = nullptr;
    PreviewGrid* grid_ = nullptr;
    std::array<QWidget*, model::ActionKindCount> panels_{};
    WindowHost::Controls hostControls_;
    frmLog* log_ = nullptr;
    ReplaceListWindow* replaceList_ = nullptr; // both made on first use
    ReplaceListWindow* extensionList_ = nullptr;
};

} // namespace workspace
