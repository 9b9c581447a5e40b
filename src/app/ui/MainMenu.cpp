// SPDX-License-Identifier: MIT
#include "app/ui/MainMenu.h"

#include <QCoreApplication>
#include <QMenuBar>

namespace app {

namespace {

struct MenuCommand
{
    const char* menu;
    int id;
    const char* text;
    const char* keys = "";
    const char* name = nullptr;
};

// The context of the texts.
struct MainMenu
{
    Q_DECLARE_TR_FUNCTIONS(MainMenu)
};

constexpr std::array MenuCommands{
    MenuCommand{QT_TR_NOOP("&File"), Rename, QT_TR_NOOP("&Rename..."), "F2"},
    MenuCommand{QT_TR_NOOP("&File"), Attributes, QT_TR_NOOP("&Attributes...")},
    MenuCommand{QT_TR_NOOP("&File"), RefreshFolders, QT_TR_NOOP("Re&fresh Folders"), "F5"},
    MenuCommand{QT_TR_NOOP("&File"), SaveSettings, QT_TR_NOOP("&Save Settings")},
    MenuCommand{QT_TR_NOOP("&File"), Quit, QT_TR_NOOP("&Quit"), "Ctrl+Q"},
    MenuCommand{QT_TR_NOOP("File&List"), LoadList, QT_TR_NOOP("&Load File List"), "", "mnuFLoad"},
    MenuCommand{QT_TR_NOOP("File&List"), SaveList, QT_TR_NOOP("&Save File List"), "", "mnuFSave"},
    MenuCommand{QT_TR_NOOP("&View"), ViewReport, QT_TR_NOOP("&Report"), "Ctrl+1"},
    MenuCommand{QT_TR_NOOP("&View"), ViewIcons, QT_TR_NOOP("&Icons"), "Ctrl+2"},
    MenuCommand{QT_TR_NOOP("&View"), ViewList, QT_TR_NOOP("&List"), "Ctrl+3"},
    MenuCommand{QT_TR_NOOP("&Tools"), OpenPreferences, QT_TR_NOOP("&Preferences...")},
    MenuCommand{QT_TR_NOOP("&Help"), OpenReadme, QT_TR_NOOP("&Readme"), "F1"},
    MenuCommand{QT_TR_NOOP("&Help"), About, QT_TR_NOOP("&About")},
};

} // namespace

std::map<int, QAction*> FillMenus(QMenuBar& bar, const std::function<void(int command)>& run)
{
    std::map<QString, QMenu*> menus;
    std::map<int, QAction*> commands;
    for (const MenuCommand& command : MenuCommands) {
        QMenu*& menu = menus[MainMenu::tr(command.menu)];
        if (!menu) {
            menu = bar.addMenu(MainMenu::tr(command.menu));
            menu->setObjectName(QStringLiteral("mnu") + menu->title().remove(u'&'));
        }
        QAction* const action =
            menu->addAction(MainMenu::tr(command.text), &bar, [run, id = command.id] { run(id); });
        action->setShortcut(QKeySequence(QLatin1String(command.keys)));
        action->setObjectName(command.name ? QString(QLatin1String(command.name))
                                           : QStringLiteral("command%1").arg(command.id));
        commands[command.id] = action;
    }
    for (const ViewMode& mode : ViewModes) {
        commands[mode.command]->setCheckable(true);
    }
    return commands;
}

} // namespace app
