// SPDX-License-Identifier: MIT
//
// frmSplash: what is to be seen while the main window isn't ready. Any key ends it, and its button, which
// also asks for the main window at once. It never holds up a start.
#pragma once

#include <QWidget>

namespace app {

class frmSplash final : public QWidget
{
    Q_OBJECT

public:
    frmSplash();

Q_SIGNALS:
    void Skipped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace app
