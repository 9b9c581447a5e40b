// SPDX-License-Identifier: MIT
//
// The menus of the main window: their commands, by number.
#pragma once

#include "fileview/ListProperties.h"

#include <QLatin1String>

#include <array>
#include <functional>
#include <map>

class QAction;
class QMenuBar;

namespace app {

// The numbers under which the commands have always been known.
enum Command {
    Quit = 1029,
    RefreshFolders = 1030,
    ViewReport = 1031,
    ViewIcons = 1032,
    ViewList = 1033,
    OpenPreferences = 1035,
    OpenReadme = 1039,
    About = 1040,
    Rename = 1043,
    SaveSettings = 1047,
    Attributes = 1052,
    LoadList = 2001, // not numbered before
    SaveList = 2002,
};

// The forms in which the file list is shown.
struct ViewMode
{
    int command;
    int view;
    QLatin1String name; // as it is stored
};

inline constexpr std::array ViewModes{
    ViewMode{ViewReport, fileview::lvwReport, QLatin1String("Report")},
    ViewMode{ViewIcons, fileview::lvwSmallIcon, QLatin1String("Icons")},
    ViewMode{ViewList, fileview::lvwList, QLatin1String("List")},
};

// Fills a menu bar. `run` gets the number of a chosen command. Gives the entries by their numbers; each has
// "command" and the number as its object name, but for those of the list files, which have names of their
// own.
std::map<int, QAction*> FillMenus(QMenuBar& bar, const std::function<void(int command)>& run);

} // namespace app
