// SPDX-License-Identifier: MIT
//
// WindowHost: shows a run in the controls of a window. It is made before the workspace, which needs it, and
// gets the window's controls afterwards; until then, and once the controls are gone, it shows nothing but
// message boxes.
#pragma once

#include "model/RunHost.h"
#include "workspace/GridPre.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>

namespace workspace {

class WindowHost final : public model::RunHost
{
public:
    struct Controls
    {
        QPointer<QWidget> window; // message boxes belong to it
        QPointer<QLabel> status;
        QPointer<QProgressBar> progress;
        QPointer<QLabel> rowCount;
        QPointer<GridPre> grid; // its changes are announced before waiting events are let through
    };

    void Attach(const Controls& controls) { controls_ = controls; }

    void ShowStatus(const QString& text) override;
    void SetProgressMaximum(int maximum) override;
    void SetProgressValue(int value) override;
    void ShowRowCount(const QString& text) override;
    void ShowMessage(const QString& text, const QString& title) override;
    void ShowError(const QString& description) override;

    // Lets events through at most every 15 milliseconds.
    void Yield() override;

private:
    void ShowBox(int icon, const QString& title, const QString& text);

    Controls controls_;
    QElapsedTimer sinceYield_;
};

} // namespace workspace
