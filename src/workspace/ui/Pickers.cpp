// SPDX-License-Identifier: MIT
#include "workspace/ui/Pickers.h"

#include "workspace/ui/MetadataPicker.h"
#include "workspace/ui/PickerWindows.h"

#include <QEvent>

#include <algorithm>
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
    if (!windows_.empty() && target_.combo == &combo) {
        combo.disconnect(this);
        for (PickerWindow* const window : std::exchange(windows_, {})) {
            window->disconnect(this); // what it would write now is out of date
            window->reject();
        }
    } else {
        Close();
    }
    target_ = {&combo, entry};
    PickerWindow* const window = NewWindow(entry, mask, combo.window());
    if (!window) {
        Finish();
        return false;
    }
    if (closed) {
        closed_.push_back(std::move(closed));
    }
    Watch(combo);
    Open(*window);
    return true;
}

void Pickers::Open(PickerWindow& window)
{
    windows_.push_back(&window);
    connect(&window, &PickerWindow::Wrote, this, [this](const QString& text) {
        if (target_.combo) {
            target_.combo->setEditText(text);
        }
    });
    connect(&window, &QDialog::finished, this, [this, &window] { Forget(&window); });
    connect(&window, &QObject::destroyed, this, &Pickers::Forget); // with its owner, unclosed
    window.OpenBelow(*target_.combo);
}

// A window that is closed is destroyed later, when another one may be open.
void Pickers::Forget(const QObject* window)
{
    const auto found = std::find(windows_.begin(), windows_.end(), window);
    if (found == windows_.end()) {
        return;
    }
    window->disconnect(this);
    windows_.erase(found);
    if (windows_.empty()) {
        Finish();
    }
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
    return NewMetadataPicker(entry, owner);
}

PickerWindow* Pickers::NewMetadataPicker(const QString& entry, QWidget* owner)
{
    if (entry == QLatin1String("$Exif Data$")) {
        auto* const picker = new MetadataPicker(ExifTags(), state_, owner);
        connect(picker, &MetadataPicker::DateWanted, this, &Pickers::OpenPictureDates);
        return picker;
    }
    return entry == QLatin1String("$MP3 Data$") ? new MetadataPicker(Id3Keys(), state_, owner) : nullptr;
}

void Pickers::OpenPictureDates()
{
    if (target_.combo && windows_.size() == 1) {
        Open(*new FormatPicker(PictureDateFormats(), target_.entry, state_, target_.combo->window()));
    }
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
    for (PickerWindow* const window : std::vector(windows_)) {
        window->reject(); // which forgets it
    }
}

void Pickers::Finish()
{
    if (target_.combo) {
        target_.combo->removeEventFilter(this);
        target_.combo->disconnect(this);
    }
    for (const auto& closed : std::exchange(closed_, {})) {
        closed();
    }
}

} // namespace workspace
