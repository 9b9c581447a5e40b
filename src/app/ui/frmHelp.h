// SPDX-License-Identifier: MIT
//
// frmHelp: the program's own help, docs/help.md, which is built into it.
#pragma once

#include <QWidget>

namespace app {

class frmHelp final : public QWidget
{
    Q_OBJECT

public:
    explicit frmHelp(QWidget* parent = nullptr);
};

} // namespace app
