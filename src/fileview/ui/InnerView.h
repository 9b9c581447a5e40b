// SPDX-License-Identifier: MIT
//
// The views that a file list is looked at through: a table of columns for reports, and a list of icons. Both
// tell the control that holds them what happens to them, before and after they deal with it themselves.
#pragma once

#include "fileview/FileList.h"
#include "fileview/ListProperties.h"
#include "fileview/ui/FileIcons.h"

#include <QColor>
#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTableView>

namespace fileview {

// Hears of the events of a view. Those of the mouse, of drops and of tooltips come from its viewport.
class ViewListener
{
public:
    virtual ~ViewListener() = default;

    // True: the event is dealt with, and the view doesn't get it.
    virtual bool BeforeEvent(QEvent& event) = 0;
    virtual void AfterEvent(QEvent& event) = 0;
};

// Paints a row: check box and icon before the name, text in the colours of the list, and a selection that
// hides as the list's properties say.
class RowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // Both outlive the delegate.
    RowDelegate(const ListProperties& properties, FileIcons& icons, QObject* parent);

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    // A line break in a name is shown as a sign, so that a row stays a line.
    QString displayText(const QVariant& value, const QLocale& locale) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const ListProperties& properties_;
    FileIcons& icons_;
};

// A header that can be drawn flat, without buttons.
class FileHeader final : public QHeaderView
{
    Q_OBJECT

public:
    explicit FileHeader(QWidget* parent);

    // A flat header takes no clicks of its own.
    void SetFlat(bool flat);
    bool IsFlat() const { return isFlat_; }

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    bool isFlat_ = false;
};

// The table. Whole rows are current and selected; a key moves from row to row.
class FileTable final : public QTableView
{
    Q_OBJECT

public:
    FileTable(const ListProperties& properties, ViewListener& listener, QWidget* parent);

    QString emptyText; // shown while there are no rows

    FileHeader& Header() const { return static_cast<FileHeader&>(*horizontalHeader()); }

    void keyboardSearch(const QString& search) override;

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    const ListProperties& properties_;
    ViewListener& listener_;
};

// The icons, large, small, or in columns from top to bottom.
class IconList final : public QListView
{
    Q_OBJECT

public:
    IconList(ViewListener& listener, QWidget* parent);

    QString emptyText; // shown while there are no rows

    void Arrange(const ListProperties& properties);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    ViewListener& listener_;
};

// A colour of the properties (0xBBGGRR).
QColor ColourOf(int bgr);

// The colours of the tinted column and of the rest. On a dark base a light tint would hide the text, so it is
// mixed into the base there, and the rest is the base.
struct BandColours
{
    QColor band;
    QColor rest;
};
BandColours BandColoursOf(const ListProperties& properties, const QColor& base);

} // namespace fileview
