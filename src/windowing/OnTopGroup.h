// SPDX-License-Identifier: MIT
//
// OnTopGroup: windows of which at most one stays above all others. Each has a number of its own, which is
// kept as AppState::OnTopState while it does; switching one on switches the marks of the others off.
#pragma once

#include "model/AppState.h"

#include <functional>
#include <map>

class QAction;
class QCheckBox;
class QWidget;

namespace windowing {

enum OnTopValue {
    NoWindowOnTop = 0,
    MainOnTop = 1, // the only one that is still on top after the next start
    RenamerOnTop = 2,
    ReplaceListOnTop = 3,
    ExtensionListOnTop = 4,
    BookmarksOnTop = 5,
};

class OnTopGroup
{
public:
    // `state` outlives the group.
    explicit OnTopGroup(model::AppState& state) : state_(state) {}

    // `letGo` releases the window and takes its mark away.
    void Join(OnTopValue value, std::function<void()> letGo) { letGo_[value] = std::move(letGo); }

    // The same for a window with a box, or an entry of a menu, that switches it; the group outlives both.
    void Join(OnTopValue value, QWidget& window, QCheckBox& box);
    void Join(OnTopValue value, QWidget& window, QAction& entry);

    // That window now stays above all others.
    void Take(OnTopValue value);

    // No window does.
    void Release() { state_.OnTopState = NoWindowOnTop; }

private:
    template<class Switch>
    void JoinBySwitch(OnTopValue value, QWidget& window, Switch& toggle);

    model::AppState& state_;
    std::map<OnTopValue, std::function<void()>> letGo_;
};

} // namespace windowing
