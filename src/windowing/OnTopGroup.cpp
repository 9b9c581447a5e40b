// SPDX-License-Identifier: MIT
#include "windowing/OnTopGroup.h"

#include "windowing/SetTopMost.h"

#include <QAction>
#include <QCheckBox>
#include <QPointer>
#include <QSignalBlocker>

namespace windowing {

template<class Switch>
void OnTopGroup::JoinBySwitch(OnTopValue value, QWidget& window, Switch& toggle)
{
    Join(value, [toggle = QPointer(&toggle), window = QPointer(&window)] {
        if (toggle && window && toggle->isChecked()) {
            const QSignalBlocker blocker(toggle);
            toggle->setChecked(false);
            SetTopMost(*window, false);
        }
    });
    QObject::connect(&toggle, &Switch::toggled, &window, [this, value, &window](bool on) {
        on ? Take(value) : Release();
        SetTopMost(window, on);
    });
}

void OnTopGroup::Join(OnTopValue value, QWidget& window, QCheckBox& box)
{
    JoinBySwitch(value, window, box);
}

void OnTopGroup::Join(OnTopValue value, QWidget& window, QAction& entry)
{
    entry.setCheckable(true);
    JoinBySwitch(value, window, entry);
}

void OnTopGroup::Take(OnTopValue value)
{
    state_.OnTopState = value;
    for (const auto& [other, letGo] : letGo_) {
        if (other != value) {
            letGo();
        }
    }
}

} // namespace windowing
