// SPDX-License-Identifier: MIT
#include "metadata/ui/formExif.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace metadata {

formExif::formExif(QWidget* parent) : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("formExif"));
    setWindowTitle(tr("Exif Data"));
    resize(520, 440);
    file_ = new QLabel(this);
    file_->setTextFormat(Qt::PlainText);
    file_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    file_->setSizePolicy(QSizePolicy::Ignored,
                         QSizePolicy::Preferred); // a long path doesn't widen the window
    lines_ = new QListWidget(this);
    lines_->setObjectName(QStringLiteral("List1"));
    lines_->setAccessibleName(tr("Exif Data"));
    lines_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lines_->setUniformItemSizes(true);
    auto* open = new QPushButton(tr("&Open..."), this);
    open->setObjectName(QStringLiteral("cmdOpen"));
    open->setToolTip(tr("Show the data of another picture"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(file_);
    column->addWidget(lines_, 1);
    column->addWidget(open, 0, Qt::AlignRight);
    connect(open, &QPushButton::clicked, this, &formExif::ChooseFile);
    lines_->installEventFilter(this); // by itself it copies only one line
    lines_->setFocus();
}

void formExif::ShowFile(const QString& path)
{
    std::vector<ExifLine> lines;
    platform::Status failure;
    inspector_.ParseExifSegment(path, lines, failure);
    file_->setText(path);
    file_->setToolTip(path.toHtmlEscaped());
    lines_->clear();
    for (const ExifLine& line : lines) {
        auto* item = new QListWidgetItem(line.text, lines_);
        item->setData(Qt::UserRole, line.tag);
    }
    if (!failure.IsOk()) {
        lines_->addItem(failure.Description());
    }
}

void formExif::ChooseFile()
{
    const QString path =
        QFileDialog::getOpenFileName(this, windowTitle(), {}, tr("JPEG (*.jpg *.jpeg);;All files (*)"));
    if (!path.isEmpty()) {
        ShowFile(path);
    }
}

bool formExif::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        CopyLines();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// The selected lines, in their order.
void formExif::CopyLines()
{
    QStringList texts;
    for (int row = 0; row < lines_->count(); ++row) {
        if (lines_->item(row)->isSelected()) {
            texts << lines_->item(row)->text();
        }
    }
    if (!texts.isEmpty()) {
        QGuiApplication::clipboard()->setText(texts.join(u'\n'));
    }
}

} // namespace metadata
