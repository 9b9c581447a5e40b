// SPDX-License-Identifier: MIT
//
// frmAttr: the window in which a person chooses attributes for the checked files and changes them.
#pragma once

#include "attributes/AttributeChange.h"

#include <QWidget>

#include <array>
#include <functional>

class QCheckBox;
class QVBoxLayout;

namespace attributes {

class frmAttr final : public QWidget
{
    Q_OBJECT

public:
    // Changes the files of `rows`, and shows the run in `host`; `progressMaximum` is asked when a run begins.
    // All of them outlive the window.
    frmAttr(const fileview::FileList& rows, std::function<int()> progressMaximum, model::RunHost& host,
            QWidget* parent = nullptr);

    // Puts the window on show, in front. If it was closed, no box is checked.
    void Open();

private:
    void AddBoxes(QVBoxLayout& column);
    AtbsState Boxes() const;
    void ShowBoxes(const AtbsState& boxes);
    void Atbs0_Click(bool checked);
    void Command1_Click();

    const fileview::FileList& rows_;
    std::function<int()> progressMaximum_;
    model::RunHost& host_;
    std::array<QCheckBox*, 6> Atbs_{};
};

} // namespace attributes
