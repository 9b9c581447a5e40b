// SPDX-License-Identifier: MIT
//
// ReplaceListWindow: the window in which a list of replacements is edited: frmSReplace for names,
// frmExtReplace for extensions, and frmExifReplace, which no command opens. They are one window; what differs
// is a row of a table. The window works on a copy: OK brings it into the options, Cancel drops it. Only two
// things act at once: "Clear" empties the rows in the options too, and Check2 sets ReplaceAllExtensions.
#pragma once

#include "actions/RenameOptions.h"
#include "windowing/OnTopGroup.h"
#include "workspace/ReplaceGrid.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace workspace {

class Pickers;
class ReplaceTable;

enum class ReplaceListKind { Names, Extensions, Exif };

class ReplaceListWindow final : public QWidget
{
    Q_OBJECT

public:
    // A window of its own, hidden. The references outlive it.
    ReplaceListWindow(ReplaceListKind kind, actions::RenameOptions& options, Pickers& pickers,
                      windowing::OnTopGroup& onTop, QWidget* parent = nullptr);
    ~ReplaceListWindow() override;

    // Puts the window on show with what the options hold now. If it is on show already, it comes to the front
    // and keeps its edits.
    void Open();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Variant;
    static const Variant& VariantOf(ReplaceListKind kind);

    void AddMarkRow(QVBoxLayout& column, windowing::OnTopGroup& onTop);
    void AddSingleValue(QVBoxLayout& column);
    void AddCommandRow(QVBoxLayout& column);
    QPushButton* AddCommand(QHBoxLayout& row, QLatin1String name, const QString& caption,
                            void (ReplaceListWindow::*command)(), const QString& toolTip = {});

    void ShowOptions();
    void FinishEdit();

    // The commands of the controls, by their names.
    void Check1_Click(bool on);
    void Check2_Click(bool on);
    void Command1_Click(); // save
    void Command2_Click(); // load
    void cmdClear_Click();
    void cmdCScr_Click(); // OK
    void cmdQuit_Click(); // cancel

    const Variant& variant_;
    actions::RenameOptions& options_;
    Pickers& pickers_;
    ReplaceGrid grid_;
    ReplaceTable* table_ = nullptr;
    QCheckBox* markAll_ = nullptr;
    QCheckBox* single_ = nullptr;    // the three parts of the single value; only the extensions have them
    QWidget* singleField_ = nullptr; // caption and combo
    QComboBox* singleValue_ = nullptr;
    QList<QPushButton*> listCommands_; // Save, Load and Clear
};

} // namespace workspace
