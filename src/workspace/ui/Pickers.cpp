// SPDX-License-Identifier: MIT
#include "workspace/ui/Pickers.h"

#include "workspace/ui/PickerWindows.h"

#include <QEvent>

#include <utility>

namespace workspace {

Pickers::Pickers(model::AppState& state, model::RandomSource& random, QObject* parent)
    : QObject(parent), state_(state), random_(random)
{}

Pickers::~Pickers()
{
    Close();
}

bool Pickers::Pick(const QString& entry, QComboBox& combo, MaskFrom mask, std::function<void()> closed)
{
    if (window_ && target_.combo == &combo) {
        combo.disconnect(this);
        window_->disconnect(this); // what it would write now is out of date
        window_->reject();
    } else {
        Close();
    }
    target_ = {&combo, entry};
    window_ = NewWindow(entry, mask, combo.window());
    if (!window_) {
        Finish();
        return false;
    }
    if (closed) {
        closed_.push_back(std::move(closed));
    }
    Watch(combo);
    window_->OpenBelow(combo);
    return true;
}

PickerWindow* Pickers::NewWindow(const QString& entry, MaskFrom mask, QWidget* owner)
{
    if (entry == QLatin1String("$current_date$") || entry == QLatin1String("$modified_date$")) {
        return new FormatPicker(DateFormats(), entry, state_, owner);
    }
    if (entry == QLatin1String("$current_time$") || entry == QLatin1String("$modified_time$")) {
        return new FormatPicker(TimeFormats(), entry, state_, owner);
    }
    if (entry == QLatin1String("$Random String$") && mask == MaskFrom::Window) {
        return new frmRandom(state_, random_, owner);
    }
    return nullptr;
}

void Pickers::Watch(QComboBox& combo)
{
    combo.installEventFilter(this);
    // The signal comes while half of the combo is still there to be written to, hence the wait.
    const auto closeAlone = [this] {
        if (!target_.combo) {
            Close();
        }
    };
    connect(&combo, &QObject::destroyed, this, closeAlone, Qt::QueuedConnection);
    connect(window_, &PickerWindow::Wrote, this, [this](const QString& text) {
        if (target_.combo) {
            target_.combo->setEditText(text);
        }
    });
    connect(window_, &QDialog::finished, this, &Pickers::Finish);
    connect(window_, &QObject::destroyed, this, &Pickers::Finish); // with its owner, unclosed
}

bool Pickers::eventFilter(QObject* watched, QEvent* event)
{
    // Not if the whole window is minimised: the picker then goes and comes with it. And not if the combo is
    // hidden by its own destructor: it takes no text any more.
    if (event->type() == QEvent::Hide && !event->spontaneous() && qobject_cast<QComboBox*>(watched)) {
        Close();
    }
    return false;
}

void Pickers::Close()
{
    if (window_) {
        window_->reject();
    }
}

void Pickers::Finish()
{
    if (window_) {
        window_->disconnect(this); // it is destroyed later, when another one may be open
        window_ = nullptr;
    }
    if (target_.combo) {
        target_.combo->removeEventFilter(this);
        target_.combo->disconnect(this);
    }
    for (const auto& closed : std::exchange(closed_, {})) {
        closed();
    }
}

} // namespace workspace
