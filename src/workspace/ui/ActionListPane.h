// SPDX-License-Identifier: MIT
//
// ActionListPane: the ordered list of actions, List3, with the buttons and the mouse that change its order. A
// check mark is the entry's Selected. It is a view of the ActionList that it is given, which outlives it.
#pragma once

#include "actions/RenameOptions.h"

#include <QWidget>

class QPushButton;

namespace workspace {

class OrderList;

class ActionListPane final : public QWidget
{
    Q_OBJECT

public:
    explicit ActionListPane(actions::ActionList& actions, QWidget* parent = nullptr);

    // Reloads the list after the values were changed by somebody else.
    void ShowActions();

Q_SIGNALS:
    // Another entry is the current one, or the current one's text changed.
    void CurrentActionChanged();

private:
    void MoveCurrent(int offset);
    void DropRow(int from, int to);

    actions::ActionList& actions_;
    OrderList* list_;
};

} // namespace workspace
