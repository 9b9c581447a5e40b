// SPDX-License-Identifier: MIT
//
// Pickers: the small windows that write a token into a value box. A pick from a value list makes its combo
// the pick target; entries that stand for a choice, such as $current_date$, then open a window below the
// combo. The windows block nothing and stay on top. One is open at a time, but for the formats of a picture's
// date, which open beside the list of its data.
#pragma once

#include "model/AppState.h"
#include "model/Ports.h"

#include <QComboBox>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

namespace workspace {

class PickerWindow;

// Where pickers write, and what they need to know about it.
struct PickTarget
{
    QPointer<QComboBox> combo;
    QString entry; // the list entry that was picked
};

// What $Random String$ asks for: the mask block beside the combo, or a window where there is none.
enum class MaskFrom { Block, Window };

class Pickers final : public QObject
{
    Q_OBJECT

public:
    // The references outlive the pickers.
    Pickers(model::AppState& state, model::RandomSource& random, QObject* parent = nullptr);

    ~Pickers() override; // closes an open picker

    // `entry` was picked in the list of `combo`: makes it the pick target and opens the entry's picker, if it
    // has one; an open picker closes first. True if a picker is open now: `closed` is then called once, when
    // it has closed and the combo holds what it wrote.
    //
    // A picker also closes when its combo is hidden, and as soon as events are handled after its combo was
    // destroyed. If it gives way to a further pick from its own combo, that pick's text stands, and its
    // `closed` waits until the further pick's picker, if any, has closed.
    bool Pick(const QString& entry, QComboBox& combo, MaskFrom mask, std::function<void()> closed = {});

    // Closes the open picker, if any.
    void Close();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PickerWindow* NewWindow(const QString& entry, MaskFrom mask, QWidget* owner);
    PickerWindow* NewMetadataPicker(const QString& entry, QWidget* owner);
    void Open(PickerWindow& window);
    void OpenPictureDates();
    void Watch(QComboBox& combo);
    void Forget(const QObject* window);
    void Finish();

    model::AppState& state_;
    model::RandomSource& random_;
    PickTarget target_;
    std::vector<PickerWindow*> windows_; // the open one, or the list of a picture's data and its dates
    std::vector<std::function<void()>> closed_;
};

} // namespace workspace
