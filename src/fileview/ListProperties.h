// SPDX-License-Identifier: MIT
//
// ListProperties: everything that can be set on a file list, with its defaults, and PropertyBag, the store in
// which only what differs from its default is kept. Colours are 0xBBGGRR; sizes are twips.
#pragma once

#include "fileview/FileList.h"
#include "fileview/Scanner.h"

#include <QHash>
#include <QString>
#include <QVariant>

namespace fileview {

enum AppearanceConstants { ccFlat = 0, cc3D = 1 };
enum ArrangeConstants { lvwNone = 0, lvwAutoLeft = 1, lvwAutoTop = 2 };
enum BorderStyleConstants { ccNone = 0, ccFixedSingle = 1 };
enum ViewConstants { lvwIcon = 0, lvwSmallIcon = 1, lvwList = 2, lvwReport = 3 };
enum SizingTypeConstants { sizeNone = 0, sizeCheckBox = 1, sizeIcon = 2 };
enum MousePointerConstants {
    ccDefault = 0,
    ccArrow,
    ccCross,
    ccIBeam,
    ccIcon,
    ccSize,
    ccSizeNESW,
    ccSizeNS,
    ccSizeNWSE,
    ccSizeEW,
    ccUpArrow,
    ccHourglass,
    ccNoDrop,
    ccArrowHourglass,
    ccArrowQuestion,
    ccSizeAll,
    ccCustom = 99,
};

// Colours offered for HighlightColor and DefaultColor.
enum LedgerColors {
    vbLedgerWhite = 0xF9FEFF,
    vbLedgerGreen = 0xD0FFCC,
    vbLedgerYellow = 0xE1FAFF,
    vbLedgerRed = 0xE1E1FF,
    vbLedgerGrey = 0xE0E0E0,
    vbLedgerBeige = 0xD9F2F7,
    vbLedgerSoftWhite = 0xF7F7F7,
    vbLedgerPureWhite = 0xFFFFFF,
};

// Values by name. A value equal to its default isn't kept.
class PropertyBag
{
public:
    QVariant ReadProperty(const QString& name, const QVariant& defaultValue) const
    {
        return values_.value(name, defaultValue);
    }
    void WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue);

    const QHash<QString, QVariant>& Values() const { return values_; }

private:
    QHash<QString, QVariant> values_;
};

struct ListProperties : ScanSettings
{
    int Appearance = cc3D;
    bool AllowColumnReorder = true;
    int Arrange = lvwNone;
    int BorderStyle = ccFixedSingle;
    bool Checkboxes = false;
    bool Enabled = true;
    bool FlatScrollBar = false;
    bool FullRowSelect = false;
    bool GridLines = false;
    bool HideColumnHeaders = false;
    bool HideSelection = false; // while another control has the focus
    bool HotTracking = false;
    bool HoverSelection = false;
    int MousePointer = ccDefault;
    bool MultiSelect = true;
    int SortKey = 0; // column, counted from 0
    int SortOrder = lvwAscending;
    bool Sorted = false;
    int TextBackground = 0; // kept only
    int View = lvwReport;
    bool Visible = true;
    QString ColumnHeadersText = DefaultColumnHeadersText(); // takes effect when properties are read
    bool AutoDeselect = true;                               // a click on empty space takes the selection away
    bool SubitemSelect = true;    // a click on any column selects the row and raises SubitemClick
    bool HighlightColumn = false; // the tinted column
    int CurrrentHighlightColumn = 1;
    int SizingType = sizeIcon;
    int HighlightColor = vbLedgerRed;
    int DefaultColor = vbLedgerPureWhite;
    bool FlatHeader = false;
    bool AutoTooltip = true;    // the tooltip tells the cell under the pointer
    bool AutoPopupMenu = false; // the right button opens the menu
    bool AllowFileDragDrop = true;
    bool AllowItemEdit = false;
    bool ClearOnDragDrop = false; // each dropped folder clears the list first
    int ShowFolders = 2;          // kept only

    // What a new list has: the defaults, but for ShowFolders, which is 0.
    static ListProperties OfNewList();

    // What a bag holds, and defaults for the rest. A value of the wrong type is passed over.
    static ListProperties ReadFrom(const PropertyBag& bag);
    void WriteTo(PropertyBag& bag) const;
};

} // namespace fileview
