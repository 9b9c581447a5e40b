// SPDX-License-Identifier: MIT
//
// Binder: ties controls to the plain values that the logic works with, both ways. A change made in a control
// goes into its value at once; Show brings every control up to date after the values were changed by somebody
// else, such as a loaded recipe. Showing never writes to a value, so what a control can't express survives in
// it.
//
// The values and the controls outlive each other's use: a binder is owned by the window that owns the
// controls.
#pragma once

#include "actions/RenameOptions.h"

#include <QList>
#include <QString>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace workspace {

class Binder
{
public:
    void Text(QLineEdit& box, QString& value);

    // A combo with free text.
    void Combo(QComboBox& combo, QString& value);

    // A combo without free text. A value that is none of its entries stays and is shown in their place.
    void DropDown(QComboBox& combo, QString& value);

    void Check(QCheckBox& box, bool& value);

    // The buttons in the order in which the group counts them. None of them is on if the group has none on.
    void Choice(const QList<QRadioButton*>& buttons, actions::OptionGroup& group);

    // A frame that is on show exactly when the value is set. Frames aren't changed by a person, so who
    // changes the value calls Show or sets the frame himself.
    void Shown(QWidget& frame, const bool& value);

    // Anything else that follows from the values. Called at once and at each Show.
    void OnShow(std::function<void()> show);

    void Show() const;

private:
    std::vector<std::function<void()>> shows_;
};

} // namespace workspace
