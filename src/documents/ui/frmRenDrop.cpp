// SPDX-License-Identifier: MIT
#include "documents/ui/frmRenDrop.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace documents {
namespace {

constexpr int CharactersInView = 64; // of a path; a longer one shows its end

// A box that has all of its text selected when it gets the focus, by a click as well.
class SelectingBox final : public QLineEdit
{
protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QLineEdit::focusInEvent(event);
        // Its own menu and another window only borrow the focus. Selected after the click that brought the
        // focus, which would put the cursor into the text.
        if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
            QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
        }
    }
};

} // namespace

frmRenDrop::frmRenDrop(const workspace::GridPre& grid, std::function<void()> closed, QWidget* parent)
    : QWidget(parent, Qt::Window), run_(grid), closed_(std::move(closed))
{
    setObjectName(QStringLiteral("frmRenDrop"));
    setWindowTitle(tr("Quillmark - Rename Drop"));
    auto* column = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    column->addLayout(form);
    orig_ = AddShown(*form, QLatin1String("txtOrig"), tr("Original File Name:"));
    calc_ = AddShown(*form, QLatin1String("txtCalc"), tr("Calculated File Name:"));
    modPath_ = AddShown(*form, QLatin1String("txtModPath"), {});
    modPath_->setAccessibleName(tr("Folder"));
    AddModName(*form);
    column->addStretch(1);
    column->addSpacing(8);
    QHBoxLayout& row = workspace::AddRow(*column);
    AddStep(row, QLatin1String("Command3"), tr("&Rename"), &DropRun::Rename);
    AddStep(row, QLatin1String("Command2"), tr("&Skip"), &DropRun::Skip);
    row.addStretch(1);
    AddStep(row, QLatin1String("Command4"), tr("Rename &All"), &DropRun::RenameAll);
    AddStep(row, QLatin1String("Command1"), tr("Skip All"), &DropRun::SkipAll);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    workspace::AssignMnemonics(*this);
    modName_->setFocus();
    ShowBoxes();
}

QLineEdit* frmRenDrop::AddShown(QFormLayout& form, QLatin1String name, const QString& caption)
{
    QLineEdit* box = workspace::NewBox(name, 0);
    box->setReadOnly(true);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * CharactersInView);
    QPalette palette = box->palette();
    palette.setBrush(QPalette::Base, Qt::transparent); // looks as little editable as it is
    box->setPalette(palette);
    form.addRow(caption, box);
    return box;
}

void frmRenDrop::AddModName(QFormLayout& form)
{
    modName_ = new SelectingBox;
    modName_->setObjectName(QStringLiteral("txtModName"));
    form.addRow(tr("Rename &To:"), modName_);
    connect(modName_, &QLineEdit::textEdited, this,
            [this](const QString& text) { run_.boxes.txtModName = text; });
}

void frmRenDrop::AddStep(QHBoxLayout& row, QLatin1String name, const QString& caption,
                         DropRun::Step (DropRun::*step)())
{
    QPushButton* button = workspace::NewButton(name, caption);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, step] {
        const DropRun::Step result = (run_.*step)();
        ShowBoxes();
        if (!result.message.isEmpty()) {
            QMessageBox::information(this, tr("Quillmark"), result.message);
        }
        if (result.closes) {
            close();
        }
    });
}

void frmRenDrop::ShowBoxes()
{
    orig_->setText(run_.boxes.txtOrig);
    calc_->setText(run_.boxes.txtCalc);
    modPath_->setText(run_.boxes.txtModPath);
    modName_->setText(run_.boxes.txtModName);
    modName_->selectAll();
}

void frmRenDrop::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    if (closed_) {
        closed_();
    }
}

} // namespace documents
