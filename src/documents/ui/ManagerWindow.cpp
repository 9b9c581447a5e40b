// SPDX-License-Identifier: MIT
#include "documents/ui/ManagerWindow.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"
#include "workspace/ui/WindowPlace.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace documents {

ManagerWindow::ManagerWindow(ManagerKind kind, const platform::ProgramFolder& programFolder,
                             Functions functions, QWidget* parent)
    : QWidget(parent, Qt::Window),
      kind_(std::move(kind)),
      documents_(programFolder, kind_.folder, kind_.extension),
      functions_(std::move(functions))
{
    setObjectName(kind_.objectName);
    setWindowTitle(kind_.caption);
    auto* column = new QVBoxLayout(this);
    column->addWidget(NewList(), 1);
    QHBoxLayout& nameRow = workspace::AddRow(*column);
    name_ = workspace::NewBox(QStringLiteral("Text1"), 0);
    workspace::AddField(nameRow, tr("Name:"), *name_, 1);
    AddCommand(nameRow, QLatin1String("Command1"), kind_.saveCaption, &ManagerWindow::Command1_Click);
    QHBoxLayout& row = workspace::AddRow(*column);
    AddCommand(row, QLatin1String("Command2"), kind_.loadCaption, &ManagerWindow::Command2_Click);
    AddCommand(row, QLatin1String("Command4"), tr("Load and Close"), &ManagerWindow::Command4_Click);
    row.addStretch(1);
    row.addSpacing(24);
    QPushButton* close = workspace::NewButton(QLatin1String("Command3"), tr("Close"));
    row.addWidget(close);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    AddMenu();
    workspace::AssignMnemonics(*this);
    resize(sizeHint().width(), 380);
}

QWidget* ManagerWindow::NewList()
{
    list_ = new QListWidget;
    list_->setObjectName(QStringLiteral("list1"));
    list_->setAccessibleName(kind_.caption);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list_, &QListWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { menu_->popup(list_->viewport()->mapToGlobal(at)); });
    if (kind_.loadsByMouse) {
        // An entry that is selected already may be clicked too, and one may be selected by keys.
        connect(list_, &QListWidget::itemClicked, this, &ManagerWindow::CopyName);
        connect(list_, &QListWidget::itemSelectionChanged, this, &ManagerWindow::CopyName);
        connect(list_, &QListWidget::itemDoubleClicked, this, &ManagerWindow::Command2_Click);
    }
    return list_;
}

void ManagerWindow::AddMenu()
{
    menu_ = new QMenu(this);
    menu_->setObjectName(QStringLiteral("mnuEdit"));
    QAction* load = menu_->addAction(tr("Load Selected"));
    load->setObjectName(QStringLiteral("mnuLoad"));
    connect(load, &QAction::triggered, this, &ManagerWindow::Command2_Click);
    QAction* remove = menu_->addAction(tr("Delete"));
    remove->setObjectName(QStringLiteral("mnuDelete"));
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut); // in the list alone, not in the box
    list_->addAction(remove);
    connect(remove, &QAction::triggered, this, &ManagerWindow::DeleteSelected);
}

void ManagerWindow::AddCommand(QHBoxLayout& row, QLatin1String name, const QString& caption,
                               void (ManagerWindow::*command)())
{
    QPushButton* button = workspace::NewButton(name, caption);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, command);
}

void ManagerWindow::Open()
{
    if (!isVisible()) {
        // A folder that can't be made shows when something is to be saved.
        static_cast<void>(documents_.EnsureFolder());
        list_->clear();
        list_->addItems(documents_.Names());
        name_->clear();
        list_->count() > 0 ? list_->setFocus() : name_->setFocus();
    }
    workspace::BringUp(*this);
}

// Asks for the selection and not for the current entry, which the list has as soon as it gets the focus.
QListWidgetItem* ManagerWindow::Selected() const
{
    return list_->selectedItems().value(0);
}

QListWidgetItem* ManagerWindow::EntryOf(const QString& name) const
{
    QListWidgetItem* found = nullptr;
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* const entry = list_->item(row);
        if (entry->text() == name) {
            return entry;
        }
        if (!found && IsSameName(entry->text(), name)) {
            found = entry;
        }
    }
    return found;
}

bool ManagerWindow::MayReplace()
{
    if (!kind_.asksToOverwrite) {
        ShowMessage(kind_.nameIsTaken);
        return false;
    }
    QMessageBox box(QMessageBox::Information, kind_.messageTitle, kind_.nameIsTaken,
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void ManagerWindow::Command1_Click()
{
    const QString name = name_->text();
    if (name.isEmpty()) {
        ShowMessage(kind_.noName);
        return;
    }
    // A document that came into the folder since the window was opened counts too.
    QListWidgetItem* const entry = EntryOf(name);
    const QString taken = entry ? entry->text() : documents_.Find(name).value_or(QString());
    if (!taken.isEmpty() && !MayReplace()) {
        return;
    }
    if (const auto status = documents_.Save(name, taken, functions_.save); !status.IsOk()) {
        ShowMessage(status.Description()); // and the old document, if any, keeps its entry
        return;
    }
    list_->setCurrentItem(nullptr);
    delete entry;
    list_->addItem(name);
    list_->scrollToBottom();
}

bool ManagerWindow::LoadSelected()
{
    const QListWidgetItem* const entry = Selected();
    if (!entry) {
        ShowMessage(kind_.nothingSelected);
        return false;
    }
    if (const auto status = functions_.load(documents_.PathOf(entry->text())); !status.IsOk()) {
        ShowMessage(status.Description());
    }
    return true;
}

void ManagerWindow::Command2_Click()
{
    static_cast<void>(LoadSelected());
}

void ManagerWindow::Command4_Click()
{
    if (LoadSelected()) {
        close();
    }
}

// The entry goes even if the file couldn't be deleted. Afterwards nothing is selected, so a Delete key that
// is held down takes no other document with it.
void ManagerWindow::DeleteSelected()
{
    if (QListWidgetItem* const entry = Selected()) {
        documents_.Delete(entry->text());
        list_->setCurrentItem(nullptr);
        delete entry;
    }
}

void ManagerWindow::CopyName()
{
    if (const QListWidgetItem* const entry = Selected()) {
        name_->setText(entry->text());
    }
}

void ManagerWindow::ShowMessage(const QString& text)
{
    QMessageBox::information(this, kind_.messageTitle, text);
}

} // namespace documents
