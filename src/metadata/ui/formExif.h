// SPDX-License-Identifier: MIT
//
// formExif: a viewer for the Exif data of a picture, as the inspector (modExif.h) tells them, a line a tag.
// Nothing in the program opens it; it is for those who want to look into a picture.
#pragma once

#include "metadata/modExif.h"

#include <QWidget>

class QLabel;
class QListWidget;

namespace metadata {

class formExif final : public QWidget
{
    Q_OBJECT

public:
    // A window of its own, hidden.
    explicit formExif(QWidget* parent = nullptr);

    // Fills the list from a picture, given by its complete path. What can't be told is said in the last line.
    void ShowFile(const QString& path);

    // Lets a person choose the picture.
    void ChooseFile();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CopyLines();

    modExif inspector_;
    QLabel* file_ = nullptr;
    QListWidget* lines_ = nullptr;
};

} // namespace metadata
