// SPDX-License-Identifier: MIT
//
// frmRenDrop: the window of a rename drop that asks before each file. It is a view of a DropRun, which holds
// what the boxes show and does the renaming. Closing the window skips what is left.
#pragma once

#include "documents/DropRun.h"

#include <QWidget>

#include <functional>

class QFormLayout;
class QHBoxLayout;
class QLineEdit;

namespace documents {

class frmRenDrop final : public QWidget
{
    Q_OBJECT

public:
    // Shows row 1 of `grid`, which outlives the window. `closed` is called when the window has been closed.
    frmRenDrop(const workspace::GridPre& grid, std::function<void()> closed, QWidget* parent = nullptr);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QLineEdit* AddShown(QFormLayout& form, QLatin1String name, const QString& caption);
    void AddModName(QFormLayout& form);
    void AddStep(QHBoxLayout& row, QLatin1String name, const QString& caption,
                 DropRun::Step (DropRun::*step)());
    void ShowBoxes();

    DropRun run_;
    std::function<void()> closed_;
    QLineEdit* orig_ = nullptr;
    QLineEdit* calc_ = nullptr;
    QLineEdit* modPath_ = nullptr;
    QLineEdit* modName_ = nullptr;
};

} // namespace documents
