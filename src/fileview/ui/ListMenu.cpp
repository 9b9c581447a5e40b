// SPDX-License-Identifier: MIT
//
// The context menu of ListViewEditable.
#include "fileview/ListCommands.h"
#include "fileview/ui/ListViewEditable.h"

#include <QFileDialog>

namespace fileview {

namespace {

// An entry of the menu; one without text is a separator.
struct MenuEntry
{
    const char* name;
    const char* text;
    bool needsRow = false; // works on the selected row
};

constexpr std::array MenuEntries{
    MenuEntry{"mnuOpen", QT_TR_NOOP("&Open"), true},
    MenuEntry{"mnuExplore", QT_TR_NOOP("&Explore"), true},
    MenuEntry{"sep0", nullptr},
    MenuEntry{"mnuDate", QT_TR_NOOP("Check Date"), true},
    MenuEntry{"mnuUDate", QT_TR_NOOP("Uncheck Date"), true},
    MenuEntry{"mnuSelectDir", QT_TR_NOOP("Check Directory"), true},
    MenuEntry{"mnuDeselectDir", QT_TR_NOOP("Uncheck Directory"), true},
    MenuEntry{"mnuSelectall", QT_TR_NOOP("Check All")},
    MenuEntry{"mnuDeselectall", QT_TR_NOOP("Uncheck All")},
    MenuEntry{"mnuCheck", QT_TR_NOOP("Invert Checks")},
    MenuEntry{"sep5", nullptr},
    MenuEntry{"mnuCopy", QT_TR_NOOP("Copy Checked To")},
    MenuEntry{"mnuMove", QT_TR_NOOP("Move Checked To")},
};

} // namespace

void ListViewEditable::MakeMenu()
{
    menu_ = new QMenu(tr("Options"), this);
    menu_->setObjectName(QStringLiteral("mnuOptions"));
    for (const MenuEntry& entry : MenuEntries) {
        QAction* const action = entry.text ? menu_->addAction(tr(entry.text)) : menu_->addSeparator();
        action->setObjectName(QLatin1String(entry.name));
        if (entry.needsRow) {
            connect(menu_, &QMenu::aboutToShow, action,
                    [this, action] { action->setEnabled(SelectedItem() > 0); });
        }
    }
    const auto on = [this](const char* name, auto command) {
        connect(menu_->findChild<QAction*>(QLatin1String(name)), &QAction::triggered, this, [this, command] {
            command();
            Q_EMIT MenuCommandDone();
        });
    };
    on("mnuOpen", [this] { OpenRow(rows_, SelectedItem()); });
    on("mnuExplore", [this] { ExploreRow(rows_, SelectedItem()); });
    on("mnuDate", [this] { CheckDate(rows_, SelectedItem(), true); });
    on("mnuUDate", [this] { CheckDate(rows_, SelectedItem(), false); });
    on("mnuSelectDir", [this] { CheckDirectory(rows_, SelectedItem(), true); });
    on("mnuDeselectDir", [this] { CheckDirectory(rows_, SelectedItem(), false); });
    on("mnuSelectall", [this] { rows_.SetCheckedAll(true); });
    on("mnuDeselectall", [this] { rows_.SetCheckedAll(false); });
    on("mnuCheck", [this] { mnuCheck_Click(rows_, 2); });
    on("mnuCopy", [this] { Transfer(false); });
    on("mnuMove", [this] { Transfer(true); });
}

void ListViewEditable::ShowMenu(const QPoint& globalPosition)
{
    menu_->popup(globalPosition);
}

void ListViewEditable::Transfer(bool moves)
{
    const QString chosen =
        QFileDialog::getExistingDirectory(window(), tr("Select Folder"), state_.LastTargetFolder);
    if (!chosen.isEmpty()) {
        state_.LastTargetFolder = chosen;
        TransferChecked(rows_, chosen, moves ? fileview::Transfer::Move : fileview::Transfer::Copy, host_);
    }
}

} // namespace fileview
