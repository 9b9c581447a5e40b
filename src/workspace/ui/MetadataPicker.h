// SPDX-License-Identifier: MIT
//
// MetadataPicker: the window in which a person picks what of a picture, or of music, is to go into a name.
#pragma once

#include "workspace/ui/PickerWindows.h"

class QListWidget;

namespace workspace {

// What tells the list of pictures from that of music.
struct MetadataList
{
    QLatin1String window;
    QLatin1String list;
    QLatin1String ok;
    QString title;
    QString prefix; // of a token
    QStringList keys;
};

MetadataList ExifTags(); // formSelExif
MetadataList Id3Keys();  // formSelID3

// Every selection is a pick and is written at once, the one with which the window opens included: that is the
// entry left last in either of the two windows. "OK" only closes.
class MetadataPicker final : public PickerWindow
{
    Q_OBJECT

public:
    // The state outlives the window.
    MetadataPicker(const MetadataList& list, model::AppState& state, QWidget* owner);

Q_SIGNALS:
    void DateWanted(); // a picture's date was picked, and its format is to be picked, too

protected:
    void showEvent(QShowEvent* event) override;

private:
    void PickRow(int row);

    const QString prefix_;
    model::AppState& state_;
    QListWidget* keys_;
};

} // namespace workspace
