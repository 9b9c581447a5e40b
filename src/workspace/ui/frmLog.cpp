// SPDX-License-Identifier: MIT
#include "workspace/ui/frmLog.h"

#include "workspace/ui/CellColours.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/PreviewGrid.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace workspace {

frmLog::frmLog(QString logPath, QWidget* parent)
    : QWidget(parent, Qt::Window), logPath_(std::move(logPath)), summary_(new QLabel(this))
{
    setObjectName(QStringLiteral("frmLog"));
    setWindowTitle(tr("Rename Log - Quillmark"));
    auto* grid = new QTableView(this);
    grid->setObjectName(QStringLiteral("GridLog"));
    grid->setAccessibleName(tr("Rename Log"));
    grid->setModel(&log_);
    SetUpAsList(*grid);
    grid->setItemDelegate(new ColourDelegate(grid));
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);

    QPushButton* close = NewButton(QLatin1String("cmdCloseLog"), tr("&Close"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(grid);
    QHBoxLayout& row = AddRow(*column);
    row.addWidget(summary_, 1);
    row.addWidget(close);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    resize(820, 420);
    Reload();
}

void frmLog::Reload()
{
    log_.Load(logPath_);
    const int failed = log_.FailureCount();
    summary_->setText(tr("%1 renamed, %2 failed").arg(log_.rowCount() - failed).arg(failed));
}

} // namespace workspace
