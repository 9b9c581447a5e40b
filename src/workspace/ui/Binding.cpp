// SPDX-License-Identifier: MIT
#include "workspace/ui/Binding.h"

#include "workspace/ui/Fields.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

namespace workspace {

void Binder::OnShow(std::function<void()> show)
{
    show();
    shows_.push_back(std::move(show));
}

void Binder::Show() const
{
    for (const auto& show : shows_) {
        show();
    }
}

void Binder::Text(QLineEdit& box, QString& value)
{
    // The box is asked, not the signal: another slot may have changed the text since.
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, &value] { value = box.text(); });
    OnShow([&box, &value] {
        const QSignalBlocker quiet(box);
        box.setText(value);
    });
}

void Binder::Combo(QComboBox& combo, QString& value)
{
    PassWheelWithoutFocus(combo);
    QObject::connect(&combo, &QComboBox::editTextChanged, &combo,
                     [&value](const QString& text) { value = text; });
    OnShow([&combo, &value] {
        const QSignalBlocker quiet(combo);
        combo.setCurrentIndex(-1);
        combo.setEditText(value);
    });
}

void Binder::DropDown(QComboBox& combo, QString& value)
{
    PassWheelWithoutFocus(combo);
    QObject::connect(&combo, &QComboBox::textActivated, &combo,
                     [&value](const QString& text) { value = text; });
    OnShow([&combo, &value] {
        const QSignalBlocker quiet(combo);
        combo.setPlaceholderText(value);
        combo.setCurrentIndex(combo.findText(value));
    });
}

void Binder::Check(QCheckBox& box, bool& value)
{
    QObject::connect(&box, &QCheckBox::toggled, &box, [&value](bool on) { value = on; });
    OnShow([&box, &value] {
        const QSignalBlocker quiet(box);
        box.setChecked(value);
    });
}

void Binder::Choice(const QList<QRadioButton*>& buttons, actions::OptionGroup& group)
{
    auto* partners = new QButtonGroup(buttons.first());
    for (int i = 0; i < buttons.size(); ++i) {
        partners->addButton(buttons[i], i);
    }
    QObject::connect(partners, &QButtonGroup::idToggled, partners, [&group](int button, bool on) {
        if (on) {
            group.Set(button, true);
        }
    });
    OnShow([buttons, partners, &group] {
        const QSignalBlocker quiet(partners);
        partners->setExclusive(false); // or the button that is on could not be put off
        for (int i = 0; i < buttons.size(); ++i) {
            buttons[i]->setChecked(group.IsOn(i));
        }
        partners->setExclusive(true);
    });
}

void Binder::Shown(QWidget& frame, const bool& value)
{
    OnShow([&frame, &value] { frame.setVisible(value); });
}

} // namespace workspace
