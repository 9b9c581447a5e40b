// SPDX-License-Identifier: MIT
//
// frmLog: shows the log of the last run, failures in red. It only reads.
#pragma once

#include "workspace/RunLog.h"

#include <QWidget>

class QLabel;

namespace workspace {

class frmLog final : public QWidget
{
    Q_OBJECT

public:
    // A window of its own, filled from the file `logPath`.
    explicit frmLog(QString logPath, QWidget* parent = nullptr);

    // Reads the file again.
    void Reload();

private:
    QString logPath_;
    RunLog log_;
    QLabel* summary_;
};

} // namespace workspace
