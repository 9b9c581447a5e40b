// SPDX-License-Identifier: MIT
//
// The windows that Pickers opens below a value combo: the lists of date and time formats, and the box for the
// mask of a random string. They know nothing of the combo: what is to go into it, they say by Wrote.
#pragma once

#include "model/AppState.h"
#include "model/Ports.h"
#include "workspace/ui/Binding.h"

#include <QDialog>
#include <QStringList>

class QComboBox;
class QLabel;
class QVBoxLayout;

namespace workspace {

class Pickers;

// A window that stays on top, blocks nothing and deletes itself when it is closed. Enter is its "OK", Escape
// closes it without.
class PickerWindow : public QDialog
{
    Q_OBJECT

public:
    // Shows the window below `combo`, their middles in line, but never off the screen.
    void OpenBelow(const QComboBox& combo);

Q_SIGNALS:
    void Wrote(const QString& text);

protected:
    PickerWindow(QLatin1String name, const QString& title, QWidget* owner);

    // The window's last line. To be called once, when all else is in `column`.
    void AddOk(QVBoxLayout& column, QLatin1String name);
};

// What tells the list of date formats from that of time formats.
struct FormatList
{
    QLatin1String window;
    QLatin1String combo;
    QLatin1String ok;
    QString title;
    QStringList tokens;
    QString model::AppState::*remembered; // the token picked last
    bool ofPicture = false;               // formats count from the date in a picture
};

FormatList DateFormats();
FormatList TimeFormats();
FormatList PictureDateFormats(); // both

// A list pick is written at once: as it stands after `$current_date$` and `$current_time$`, with
// "$Exif_date_" in front where it is a picture's, and with "$mod_" after any other entry. "OK" always writes
// the token as it stands, so a token of the modification date remains one only if the window is closed
// without "OK"; where it is a picture's, "OK" only closes.
class FormatPicker final : public PickerWindow
{
    Q_OBJECT

public:
    // `entry` is the list entry that opened the window. The state outlives the window.
    FormatPicker(const FormatList& list, const QString& entry, model::AppState& state, QWidget* owner);

    void accept() override;

private:
    QString TokenToWrite(const QString& token) const;
    QString Example(const QString& token) const; // for the current moment
    void ShowExample();

    bool current_; // formats the current moment and no file's date
    bool ofPicture_;
    QDateTime now_;
    QComboBox* tokens_;
    QLabel* example_;
};

// Writes "$Rand$_" and the mask however it is closed, so that no mask is lost.
class frmRandom final : public PickerWindow
{
    Q_OBJECT

public:
    // The references outlive the window.
    frmRandom(model::AppState& state, model::RandomSource& random, QWidget* owner);

    void done(int result) override;

private:
    model::AppState& state_;
    QString mask_;
    Binder binder_;
};

} // namespace workspace
