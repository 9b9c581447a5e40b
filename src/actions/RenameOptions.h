// SPDX-License-Identifier: MIT
//
// RenameOptions: all that a person sets in the rename workspace, as plain values. To the logic a control is
// the value of that name, so members are named and defaulted like the controls; windows bind widgets to them,
// documents store them, and a run compiles them once (ActionHandler.h). Nothing here reads a widget.
#pragma once

#include "actions/ReplaceList.h"
#include "model/ActionKind.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace actions {

// A group of option buttons, of which at most one is on. Buttons are counted from 0.
class OptionGroup
{
public:
    static constexpr int None = -1;

    explicit OptionGroup(int chosen) : chosen_(chosen) {}

    // The button that is on, or None.
    int Chosen() const { return chosen_; }
    bool IsOn(int button) const { return chosen_ == button; }

    // Turning a button on puts its partners off; turning the one that is on off leaves the group with none.
    void Set(int button, bool on)
    {
        if (on) {
            chosen_ = button;
        } else if (chosen_ == button) {
            chosen_ = None;
        }
    }

    bool operator==(const OptionGroup&) const = default;

private:
    int chosen_;
};

// The option set of a running number. The index of a box is part of the stored layout.
struct CounterBlock
{
    enum Box { StartFrom, WithStep, PadTo, PadCharacter, Prefix, Suffix };

    std::array<QString, 6> text{QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("3"),
                                QStringLiteral("0"), QString(),           QString()};

    bool operator==(const CounterBlock&) const = default;
};

// The option set of running letters. Its boxes stand in another order than those of CounterBlock; stored
// layouts depend on both.
struct AlphaCounterBlock
{
    enum Box { StartFrom, WithStep, Prefix, Suffix, PadTo, PadCharacter };
    enum Case { Uppercase, Lowercase };

    std::array<QString, 6> text{QStringLiteral("A"), QStringLiteral("1"), QString(),
                                QString(),           QStringLiteral("3"), QStringLiteral("0")};
    OptionGroup letterCase{Uppercase}; // with none on, letters are capitals

    bool operator==(const AlphaCounterBlock&) const = default;
};

// A value combo with the three blocks that feed its tokens, and which of the blocks is on show.
struct ValueControls
{
    QString combo;
    bool frameAVisible = false; // the letter block
    bool frameCVisible = false; // the number block
    bool frameRVisible = false; // the mask block
    CounterBlock counter;
    QString mask = QStringLiteral("AAaa##");
    AlphaCounterBlock letters;

    bool operator==(const ValueControls&) const = default;
};

struct ReplaceOptions
{
    ReplaceRows ReplaceList; // no part of a recipe
    CounterBlock txtReplaceC;
    AlphaCounterBlock txtReplaceA;

    bool operator==(const ReplaceOptions&) const = default;
};

struct ReplaceFirstOptions
{
    QString Text1 = QStringLiteral("3"); // count of characters
    ValueControls cmbFirst;

    bool operator==(const ReplaceFirstOptions&) const = default;
};

struct ReplaceMidOptions
{
    QString Text12 = QStringLiteral("3"); // count of characters
    QString Text13 = QStringLiteral("3"); // position of the first one
    ValueControls cmbMid;

    bool operator==(const ReplaceMidOptions&) const = default;
};

struct ReplaceLastOptions
{
    QString Text14 = QStringLiteral("3"); // count of characters
    ValueControls cmbLast;

    bool operator==(const ReplaceLastOptions&) const = default;
};

struct ReplaceAllOptions
{
    ValueControls cmbAll;

    bool operator==(const ReplaceAllOptions&) const = default;
};

struct InsertOptions
{
    // The entries of cmbInsert; the index of its text among them is the mode, -1 for any other text.
    static const QStringList& Modes();
    int Mode() const { return static_cast<int>(Modes().indexOf(cmbInsert)); }

    QString cmbInsert = Modes().first();
    QString Text38 = QStringLiteral("1"); // position, modes 0 and 1
    QString Text43 = QStringLiteral("a"); // string sought, modes 2 and 3
    bool Check2 = false;                  // match case, modes 2 and 3
    QString Text44 = QStringLiteral("a"); // first string, mode 4
    QString Text45 = QStringLiteral("a"); // second string, mode 4
    bool Check1 = false;                  // match case, mode 4
    ValueControls cmbInsertS;

    bool operator==(const InsertOptions&) const = default;
};

struct SuffixOptions
{
    ValueControls cmbSuffix;

    bool operator==(const SuffixOptions&) const = default;
};

struct PrefixOptions
{
    ValueControls cmbPrefix;

    bool operator==(const PrefixOptions&) const = default;
};

struct LengthOptions
{
    enum Take { Option1, Option2, Option3 }; // from the beginning, from the end, from the position in Text37
    enum Pad { Option19, Option20 };         // at the beginning with Text18, at the end with Text19

    // The four measures that cmbLength offers beside a number, by their index in Measures().
    enum Measure { LongestOriginal, ShortestOriginal, LongestModified, ShortestModified };
    static const QStringList& Measures();

    QString cmbLength = QStringLiteral("Enter File Length");
    OptionGroup take{Option1};
    QString Text37 = QStringLiteral("1");
    OptionGroup pad{Option19};
    QString Text18 = QStringLiteral("0"); // one character
    QString Text19 = QStringLiteral("0"); // one character

    bool operator==(const LengthOptions&) const = default;
};

struct ChangeCaseOptions
{
    enum Change { Option37, Option38, Option39 }; // upper, lower, inverted

    OptionGroup change{Option37};

    bool operator==(const ChangeCaseOptions&) const = default;
};

struct ExtensionOptions
{
    enum Change { Option42, Option41, Option40, Option43 }; // upper, lower, inverted, replace

    OptionGroup change{Option43};
    bool ReplaceAllExtensions = false; // by ExtensionAllValue instead of the list
    QString ExtensionAllValue;         // a literal or token
    ReplaceRows ExtReplaceList;        // none of these three is part of a recipe
    CounterBlock txtExtC;
    AlphaCounterBlock txtExtA;

    bool operator==(const ExtensionOptions&) const = default;
};

struct CleanOptions
{
    enum Filler { Option4, Option5 }; // a space, the text of Text49

    bool chkCAlpha = false; // remove capital letters
    bool chkSAlpha = false; // remove small letters
    bool chkVowel = false;
    bool chkDigit = false;
    bool Check3 = false;  // keep "_"
    bool Check4 = false;  // keep "-"
    bool Check5 = false;  // keep "("
    bool Check6 = false;  // keep ")"
    bool Check7 = false;  // keep "$"
    bool Check8 = false;  // keep ","
    bool Check9 = false;  // keep "#"
    bool Check10 = false; // keep " "
    bool Check11 = false; // keep "."
    bool Check12 = false; // remove what isn't kept
    QString Text48;       // further characters to keep, separated by commas
    OptionGroup filler{Option4};
    QString Text49;

    bool operator==(const CleanOptions&) const = default;
};

struct ComposeOptions
{
    ValueControls cmbCompose;
    QStringList lstCompose; // the elements of the name, top first

    bool operator==(const ComposeOptions&) const = default;
};

// The action list: which actions run, and in which order.
struct ActionList
{
    struct Entry
    {
        QString text;
        bool Selected = false;

        bool operator==(const Entry&) const = default;
    };

    std::vector<Entry> entries;
    int currentIndex = -1; // 0-based; -1: none

    // The thirteen actions in their first order, none selected, the first one current.
    static ActionList OfAllActions();

    // Moves the current entry one place towards the start (-1) or the end (+1), if that place is in the list;
    // it stays current. The move takes the entry out and puts its text in anew, so its selection is lost.
    void MoveCurrent(int offset);

    // Drops the entry of row `from` on row `to`. Only texts move, those between shift one place towards
    // `from`; the selection marks stay at their places. Rows outside the list do nothing.
    void ListRowMove(int from, int to);

    bool operator==(const ActionList&) const = default;
};

struct RenameOptions
{
    ActionList List3 = ActionList::OfAllActions();
    ReplaceOptions replace;
    ReplaceFirstOptions replaceFirst;
    ReplaceMidOptions replaceMid;
    ReplaceLastOptions replaceLast;
    ReplaceAllOptions replaceAll;
    InsertOptions insert;
    SuffixOptions suffix;
    PrefixOptions prefix;
    LengthOptions length;
    ChangeCaseOptions changeCase;
    ExtensionOptions extension;
    CleanOptions clean;
    ComposeOptions compose;

    bool operator==(const RenameOptions&) const = default;
};

// The row under the mouse in a list whose rows are `rowHeight` pixels high: `y` pixels below the list's top
// edge, with `topIndex` the first row on show. At or past the end it is the last row, -1 in an empty list.
// REQUIRES: rowHeight > 0.
int ListRowCalc(int y, int rowHeight, int topIndex, int rowCount);

} // namespace actions
