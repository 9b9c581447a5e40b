// SPDX-License-Identifier: MIT
//
// ListViewEditable: the control in which a person sees a file list, checks its rows, sorts them by a click on
// a heading, edits cells in place, drops files on it, and opens its menu. The rows are a FileList, which
// others may read and fill as well; the control adds a view, a scanner and a person's hands.
//
// Rows and columns count from 1, but for the column in SubitemClick, BeforeItemEdit and AfterItemEdit, which
// counts from 0. Positions of the mouse are in twips, 15 to a pixel. Nothing here changes a file on the disk
// but the menu's copy and move.
#pragma once

#include "fileview/FileList.h"
#include "fileview/ListProperties.h"
#include "fileview/Scanner.h"
#include "fileview/ui/InnerView.h"
#include "model/AppState.h"
#include "model/RunHost.h"
#include "windowing/CSubclass.h"

#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QWidget>

#include <type_traits>
#include <vector>

namespace fileview {

class ListViewEditable final : public QWidget, private ViewListener, private windowing::ISubclass
{
    Q_OBJECT

public:
    // All but the parent outlive the control. `host` shows what scans and copies do.
    ListViewEditable(FileList& rows, model::RunHost& host, model::AppState& state, QWidget* parent = nullptr);
    ~ListViewEditable() override;

    // Properties. Set gives one a new value, and what depends on it follows at once, but for
    // ColumnHeadersText: Set(&ListProperties::View, lvwList).
    const ListProperties& Properties() const { return properties_; }
    template<class Owner, class Value>
    void Set(Value Owner::*property, std::type_identity_t<Value> value)
    {
        properties_.*property = std::move(value);
        isChanged_ = true;
        Apply();
    }
    bool IsChanged() const { return isChanged_; } // since properties were read

    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    FileList& ListItems() const { return rows_; }
    QAbstractItemView& ListView() const;
    QWidget* hWnd() { return this; }
    QWidget* hWndCtrl() const { return &ListView(); }
    QString DisplayName() const { return objectName(); }
    int ImageListCount() const { return rows_.IconCount(); }
    int FileItemCount() const { return rows_.Count(); }

    // Scanning, see Scanner.h, with the settings among the properties. A scan is shown by the host and yields
    // to it.
    Scanner& FileScanner() { return scanner_; }
    ScanSettings& Scanned() { return properties_; }
    void Scan() { scanner_.Scan(); }
    void StopScan() { scanner_.StopScan(); }
    void ResetStopFlag() { scanner_.ResetStopFlag(); }
    bool Stopped() const { return scanner_.Stopped(); }

    // Adds one row for the file Path & FileName; `Path` ends with a separator.
    void AddFile(const QString& Path, const QString& FileName);

    // The selected row that is current; 0 is none, and takes the selection away.
    int SelectedItem() const;
    void SetSelectedItem(int row);

    int SelectedCount() const;
    void SelectedAll(bool Value);
    void InvertSelections();

    // Gives the numbers of the selected rows, ascending, and returns how many they are. If there are none,
    // `Items` stays as it was.
    int GetSelectedItems(std::vector<int>& Items) const;

    // Index of the next row behind `Start`, both counted from 0, -1 for the start and for none. Flags: 0 any
    // row, 1 the current one, 2 a selected one.
    int NextItem(int Start, int Flags) const;

    int VisibleCount() const; // whole rows on a page
    int TopIndex() const;     // the first row in sight
    void SetTopIndex(int row);

    // Widths of columns, which count from 0 here: in pixels, by their texts or by their headings.
    void SetColumnWidth(int Col, int pixels) { table_->setColumnWidth(Col, pixels); }
    void ResizeListViewColumn(int Col);
    void ResizeListViewColumnsByText();
    void ResizeListViewHeader(int Col);
    void ResizeListViewHeaders();

    // Sorts by a column, as a click on its heading does, names by magnitude if the program is set so.
    void SortCustom(int Column, bool Ascending, int DataType);

    // Tints a column. A column below 1 is 1; column 1 makes SizingType sizeIcon.
    void DoHighlightColumn(int HighlightColor, int DefaultColor, int Column, int SizingType);

    bool IsFlatHeader() const { return table_->Header().IsFlat(); }

    void Refresh();

    // Lets a person choose a folder. Gives it with a separator at its end; empty if it was cancelled.
    QString SelectDirectory(const QString& Prompt, QWidget* Owner = nullptr);

    // What the list says while it is empty.
    void SetEmptyText(const QString& text);

    // The context menu; its entries have their own object names.
    QMenu& mnuOptions() { return *menu_; }

Q_SIGNALS:
    void AddItemRequested(); // by nothing yet
    void SearchDirChange(QString& Path);
    void SubitemClick(int Row, int Col, int Button, int Shift);
    void HeaderItemChanging();
    void VScroll();
    void HScroll();
    void Mousewheel();
    // A listener may set Cancel: nothing is written then, or the old text is written back.
    void AfterItemEdit(bool& Cancel, int Row, int Col, QString& OldText, QString& NewText);
    void BeforeItemEdit(bool& Cancel, int Row, int Col, QString& OldText, QString& NewText);
    void FileDragDropFinish(int Total, int Files, int Folders);
    void Resize();
    void BeforeScanStart(bool& Cancel, QString& Path, QString& FileSpec, bool& Recursive,
                         bool& IncludeFolder);
    void ScanFinish(bool& Stopped, QString& Path, QString& FileSpec, bool& Recursive, bool& IncludeFolder);
    void Click();
    void ColumnClick(int ColumnHeader);
    void DblClick();
    void ItemCheck(int Item);
    void ItemClick(int Item);
    // Keys are Qt's; Shift is 1 for the shift key, 2 for control, 4 for alt, added up.
    void KeyDown(int KeyCode, int Shift);
    void KeyPress(int KeyAscii);
    void KeyUp(int KeyCode, int Shift);
    // Button is 1 for the left button, 2 for the right one, 4 for the middle one.
    void MouseDown(int Button, int Shift, int X, int Y);
    void MouseMove(int Button, int Shift, int X, int Y);
    void MouseUp(int Button, int Shift, int X, int Y);
    void MenuCommandDone(); // which may have changed checks, without an event of its own
    void DropBegins();      // before dropped folders are scanned
    void DropEnds();        // the list is sorted
    void OLEDragDrop(const QMimeData* Data, int Effect, int Button, int Shift, int X, int Y);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // of the edit box

private:
    // A cell by row, counted from 1, and sub-item, counted from 0; -1 for none.
    struct Place
    {
        int row = 0;
        int subItem = -1;
    };

    bool BeforeEvent(QEvent& event) override;
    void AfterEvent(QEvent& event) override;
    void After(qintptr& lReturn, QWidget* hWnd, int uMsg, qintptr wParam, qintptr lParam) override;
    void Before(bool& bHandled, qintptr& lReturn, QWidget*& hWnd, int& uMsg, qintptr& wParam,
                qintptr& lParam) override;

    void MakeViews();
    void ForwardScanner();
    void MakeMenu();
    void Apply();
    void ApplyColumns();
    void TakeSortOfRows();
    void ListenTo(QAbstractItemView& view);

    Place HitTest(const QPoint& pixels) const;
    void MouseMoved(const QMouseEvent& event);
    void MouseReleased(const QMouseEvent& event);
    bool KeyPressed(const QKeyEvent& event);
    void CheckSelected();
    void ColumnClicked(int column);
    void TakeDrop(const QDropEvent& event);
    void ShowMenu(const QPoint& globalPosition);
    void Transfer(bool moves);

    QString TextInEdit() const;
    void OpenEdit();
    void PlaceEdit();
    void LeaveEdit();

    FileList& rows_;
    model::RunHost& host_;
    model::AppState& state_;
    ListProperties properties_ = ListProperties::OfNewList();
    bool isChanged_ = false;
    Scanner scanner_{rows_, properties_, host_, state_};
    FileIcons icons_;
    QStackedWidget* views_ = nullptr;
    FileTable* table_ = nullptr;
    IconList* iconList_ = nullptr;
    QLineEdit* txtEdit_ = nullptr;
    QPersistentModelIndex editCell_; // of the last click, or of the edit
    QMenu* menu_ = nullptr;
    windowing::CSubclass listSubclass_;
    windowing::CSubclass headerSubclass_;
};

} // namespace fileview
