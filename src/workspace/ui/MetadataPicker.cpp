// SPDX-License-Identifier: MIT
#include "workspace/ui/MetadataPicker.h"

#include "metadata/ExifTagNames.h"
#include "metadata/Id3Keys.h"

#include <QListWidget>
#include <QShowEvent>
#include <QVBoxLayout>

namespace workspace {

MetadataList ExifTags()
{
    return {QLatin1String("formSelExif"),         QLatin1String("lstSelExif"), QLatin1String("cmdSelExifOk"),
            PickerWindow::tr("Select Exif Data"), QStringLiteral("$Exif_"),    metadata::OfferedExifTags()};
}

MetadataList Id3Keys()
{
    return {QLatin1String("formSelID3"),         QLatin1String("lstSelID3"),  QLatin1String("cmdSelID3Ok"),
            PickerWindow::tr("Select MP3 Data"), QStringLiteral("$MP3_ID3_"), metadata::OfferedId3Keys()};
}

MetadataPicker::MetadataPicker(const MetadataList& list, model::AppState& state, QWidget* owner)
    : PickerWindow(list.window, list.title, owner),
      prefix_(list.prefix),
      state_(state),
      keys_(new QListWidget)
{
    keys_->setObjectName(list.list);
    keys_->setAccessibleName(list.title);
    keys_->setToolTip(tr("Double Click to change"));
    keys_->addItems(list.keys);
    auto* column = new QVBoxLayout(this);
    column->addWidget(keys_);
    AddOk(*column, list.ok);
    // Not the current entry: a list that gets the focus has one by itself.
    connect(keys_, &QListWidget::itemSelectionChanged, this, [this] {
        PickRow(keys_->selectedItems().isEmpty() ? -1 : keys_->row(keys_->selectedItems().first()));
    });
    connect(keys_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

// When the listeners are there.
void MetadataPicker::showEvent(QShowEvent* event)
{
    PickerWindow::showEvent(event);
    if (!event->spontaneous()) {
        keys_->setFocus();
        keys_->setCurrentRow(-1);
        keys_->setCurrentRow(state_.MetadataChoice); // an entry that this list lacks selects nothing
    }
}

void MetadataPicker::PickRow(int row)
{
    if (row < 0) {
        return;
    }
    state_.MetadataChoice = row;
    const QString key = keys_->item(row)->text();
    if (prefix_ == QLatin1String("$Exif_") && key == QLatin1String("DateTime")) {
        Q_EMIT Wrote(QStringLiteral("$Exif_date_$mmddyyyy$"));
        Q_EMIT DateWanted();
    } else {
        Q_EMIT Wrote(prefix_ + key);
    }
}

} // namespace workspace
