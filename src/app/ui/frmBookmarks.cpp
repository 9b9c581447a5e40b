// SPDX-License-Identifier: MIT
#include "app/ui/frmBookmarks.h"

#include "app/ui/frmBName.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>

namespace app {

frmBookmarks::frmBookmarks(model::AppState& state, const platform::ProgramFolder& programFolder,
                           std::function<void(const QString& folder)> choose, windowing::OnTopGroup& onTop,
                           QWidget* parent)
    : QWidget(parent, Qt::Window), state_(state), programFolder_(programFolder), choose_(std::move(choose))
{
    setObjectName(QStringLiteral("frmBookmarks"));
    setWindowTitle(tr("BookMarks"));
    lstNames_ = NewList("lstNames", tr("Names"));
    lstBookmarks_ = NewList("lstBookmarks", tr("Folders"));
    // The lists are placed for this size, and scale with the window.
    resize(540, 320);
    lstNames_->setGeometry(10, 10, 170, 300);
    lstBookmarks_->setGeometry(190, 10, 340, 300);
    resize_.FormResize();
    for (const auto& [from, to] :
         {std::pair(lstNames_, lstBookmarks_), std::pair(lstBookmarks_, lstNames_)}) {
        connect(from, &QListWidget::currentRowChanged, this, &frmBookmarks::SelectInBoth);
        connect(from->verticalScrollBar(), &QScrollBar::valueChanged, to->verticalScrollBar(),
                &QScrollBar::setValue);
    }
    AddMenu(onTop);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    bookmarks_.Load(programFolder_);
    ShowEntries();
}

QListWidget* frmBookmarks::NewList(const char* name, const QString& caption)
{
    auto* list = new QListWidget(this);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(caption);
    list->setToolTip(tr("Click to go there. Right click for options."));
    // Both have the bar for sideways, or neither's rows would stand beside the other's.
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list->installEventFilter(this);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QListWidget::customContextMenuRequested, this,
            [this, list](const QPoint& at) { mnuPopup_->popup(list->viewport()->mapToGlobal(at)); });
    connect(list, &QListWidget::itemPressed, this, [this, list](const QListWidgetItem* item) {
        if (QApplication::mouseButtons() == Qt::LeftButton) {
            Choose(list->row(item));
        }
    });
    return list;
}

QAction* frmBookmarks::AddCommand(const char* name, const QString& caption)
{
    QAction* const action = mnuPopup_->addAction(caption);
    action->setObjectName(QLatin1String(name));
    return action;
}

void frmBookmarks::AddMenu(windowing::OnTopGroup& onTop)
{
    mnuPopup_ = new QMenu(this);
    mnuPopup_->setObjectName(QStringLiteral("mnuPopup"));
    QAction* const remove = AddCommand("mnuDelete", tr("Delete"));
    remove->setShortcut(QKeySequence::Delete); // shown only; the lists take the key
    remove->setShortcutContext(Qt::WidgetShortcut);
    connect(remove, &QAction::triggered, this, &frmBookmarks::DeleteSelected);
    QAction* const top = AddCommand("mnuOnTop", tr("Always on Top"));
    onTop.Join(windowing::BookmarksOnTop, *this, *top);
    top->setChecked(state_.OnTopState == windowing::BookmarksOnTop);
    connect(AddCommand("mnuClearAll", tr("Clear All")), &QAction::triggered, this, [this] {
        bookmarks_.Clear();
        ShowEntries();
    });
}

void frmBookmarks::ShowEntries()
{
    for (QListWidget* list : {lstNames_, lstBookmarks_}) {
        const QSignalBlocker blocker(list);
        list->clear();
        for (const Bookmark& entry : bookmarks_.Entries()) {
            list->addItem(list == lstNames_ ? entry.name : entry.folder);
        }
    }
}

void frmBookmarks::SelectInBoth(int position)
{
    for (QListWidget* list : {lstNames_, lstBookmarks_}) {
        list->setCurrentRow(position);
    }
}

void frmBookmarks::Choose(int position)
{
    if (position >= 0 && position < static_cast<int>(bookmarks_.Entries().size())) {
        SelectInBoth(position);
        choose_(QString(bookmarks_.Entries()[static_cast<std::size_t>(position)].folder));
    }
}

void frmBookmarks::DeleteSelected()
{
    if (lstNames_->selectedItems().isEmpty()) {
        return; // a list has a current entry as soon as it has the focus
    }
    bookmarks_.RemoveAt(lstNames_->currentRow());
    ShowEntries(); // nothing is selected, so a Delete key that is held down takes no other with it
}

bool frmBookmarks::eventFilter(QObject* watched, QEvent* event)
{
    auto* const list = qobject_cast<QListWidget*>(watched);
    if (list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Choose(list->currentRow());
            return true;
        }
        if (key == Qt::Key_Delete) {
            DeleteSelected();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmBookmarks::Add(const QString& folder, const QWidget& button)
{
    if (state_.DontAskBookmarkNames == 0) {
        if (!asker_) {
            asker_ = new frmBName(
                bookmarks_, state_, [this] { ShowEntries(); }, parentWidget());
            connect(asker_, &frmBName::AskingChanged, this, &frmBookmarks::AskingChanged);
        }
        asker_->Ask(folder, button);
    } else if (bookmarks_.Add(bookmarks_.NextName(), folder)) {
        ShowEntries();
    }
}

void frmBookmarks::Save() const
{
    static_cast<void>(bookmarks_.Save(programFolder_));
}

void frmBookmarks::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    resize_.FormResize();
}

void frmBookmarks::closeEvent(QCloseEvent* event)
{
    Save();
    QWidget::closeEvent(event);
}

} // namespace app
