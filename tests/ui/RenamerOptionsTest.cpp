// SPDX-License-Identifier: MIT
//
// What a person sets in the window must arrive in the options, and what a recipe sets there must be on show:
// a box bound to a neighbour's value renames files by what nobody asked for.
#include "Desk.h"

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace {

using model::ActionKind;
using ui_tests::Desk;

QStringList Texts(const std::vector<actions::ActionList::Entry>& entries)
{
    QStringList texts;
    for (const auto& entry : entries) {
        texts << (entry.Selected ? u"*"_qs : QLatin1String()) + entry.text;
    }
    return texts;
}

void Drag(QListWidget& list, int from, int to)
{
    const auto at = [&list](int row) {
        return list.visualItemRect(list.item(row)).center();
    };
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, at(from));
    for (const int row : {from + (to > from ? 1 : -1), to}) {
        QMouseEvent move(QEvent::MouseMove, at(row), list.viewport()->mapToGlobal(at(row)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list.viewport(), &move);
    }
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, at(to));
}

QStringList VisiblePanels(const Desk& desk)
{
    QStringList names;
    for (const QGroupBox* panel : desk.window.findChildren<QGroupBox*>()) {
        if (panel->isVisible() && panel->parent() == desk.Find<QWidget>("frmReplace").parent()) {
            names << panel->objectName();
        }
    }
    return names;
}

TEST(ActionListOnScreen, IsChosenAndTickedByKeysAndShowsThePanelOfTheCurrentEntry)
{
    Desk desk;
    EXPECT_EQ(VisiblePanels(desk), QStringList{u"frmReplace"_qs});
    desk.GoTo(ActionKind::Insert, true);
    EXPECT_EQ(VisiblePanels(desk), QStringList{u"frmInsert"_qs});
    EXPECT_TRUE(desk.workspace.options.List3.entries[5].Selected);
    QTest::keyClick(&desk.Use("List3"), Qt::Key_Space);
    EXPECT_FALSE(desk.workspace.options.List3.entries[5].Selected);
}

TEST(ActionListOnScreen, MoveButtonsDropTheMarkAndStopAtTheEnds)
{
    Desk desk;
    const QStringList first = Texts(desk.workspace.options.List3.entries);
    desk.Click("cmdUp");
    EXPECT_EQ(Texts(desk.workspace.options.List3.entries), first);
    desk.GoTo(ActionKind::ReplaceFirst, true);
    desk.Click("cmdDown");
    QStringList moved = first;
    moved.move(1, 2);
    EXPECT_EQ(Texts(desk.workspace.options.List3.entries), moved);
    EXPECT_EQ(desk.CurrentAction(), model::NameOf(ActionKind::ReplaceFirst));
    EXPECT_EQ(desk.Find<QListWidget>("List3").currentRow(), 2);
}

TEST(ActionListOnScreen, DraggingMovesTheTextAndLeavesTheMarksAtTheirPlaces)
{
    Desk desk;
    desk.GoTo(ActionKind::Replace, true);
    desk.GoTo(ActionKind::ReplaceLast, true);
    auto& list = desk.Find<QListWidget>("List3");
    Drag(list, 3, 0);
    EXPECT_EQ(Texts(desk.workspace.options.List3.entries).mid(0, 5).join(u','),
              u"*Replace Last,Replace,Replace First,*Replace Mid,Replace All"_qs);
    EXPECT_EQ(VisiblePanels(desk), QStringList{u"frmReplaceLast"_qs});
    EXPECT_EQ(list.item(0)->text(), model::NameOf(ActionKind::ReplaceLast));
    EXPECT_EQ(list.item(3)->checkState(), Qt::Checked);
}

using Options = actions::RenameOptions;
using Value = actions::ValueControls;

struct CountingAction
{
    ActionKind kind;
    // Number boxes, letter boxes, the button "Lowercase"; then, unless the blocks stand on two tabs: combo,
    // frames, mask box.
    QByteArray controls;
    Value& (*value)(Options&); // null: on tabs

    QByteArray Name(int control) const { return controls.split(' ').at(control); }

    actions::CounterBlock& Counter(Options& options) const
    {
        return value                         ? value(options).counter
               : kind == ActionKind::Replace ? options.replace.txtReplaceC
                                             : options.extension.txtExtC;
    }

    actions::AlphaCounterBlock& Letters(Options& options) const
    {
        return value                         ? value(options).letters
               : kind == ActionKind::Replace ? options.replace.txtReplaceA
                                             : options.extension.txtExtA;
    }
};

// clang-format off
const CountingAction CountingActions[] = {
    {ActionKind::Replace, "txtReplaceC txtReplaceA OptRACase1", nullptr},
    {ActionKind::ReplaceFirst, "txtFirstC txtFirstA OptFACase1 cmbFirst frmFirst Text50",
        [](Options& o) -> Value& { return o.replaceFirst.cmbFirst; }},
    {ActionKind::ReplaceMid, "txtMidC txtMidA OptMACase1 cmbMid frmMid Text53",
        [](Options& o) -> Value& { return o.replaceMid.cmbMid; }},
    {ActionKind::ReplaceLast, "txtLastC txtLastA OptLACase1 cmbLast frmLast Text55",
        [](Options& o) -> Value& { return o.replaceLast.cmbLast; }},
    {ActionKind::ReplaceAll, "txtAllC txtAllA OptAACase1 cmbAll frmReplaceAll Text56",
        [](Options& o) -> Value& { return o.replaceAll.cmbAll; }},
    {ActionKind::Insert, "txtInsertC txtInsertA OptIACase1 cmbInsertS frmInsert Text59",
        [](Options& o) -> Value& { return o.insert.cmbInsertS; }},
    {ActionKind::Suffix, "txtSuffixC txtSuffixA OptSACase1 cmbSuffix frmSuffix Text61",
        [](Options& o) -> Value& { return o.suffix.cmbSuffix; }},
    {ActionKind::Prefix, "txtPrefixC txtPrefixA OptPACase1 cmbPrefix frmPrefix Text62",
        [](Options& o) -> Value& { return o.prefix.cmbPrefix; }},
    {ActionKind::Extension, "txtExtC txtExtA OptEACase1", nullptr},
    {ActionKind::Compose, "txtComposeC txtComposeA OptComACase1 cmbCompose frmCompose Text3",
        [](Options& o) -> Value& { return o.compose.cmbCompose; }},
};
// clang-format on

class CountingPanel : public testing::TestWithParam<CountingAction>
{
protected:
    // Puts a block on show, by its tab or by its flag.
    void ShowBlock(Desk& desk, int tab, bool actions::ValueControls::*flag)
    {
        if (GetParam().value) {
            GetParam().value(desk.workspace.options).*flag = true;
            desk.window.ShowOptions();
        } else {
            desk.Find<QWidget>(GetParam().kind == ActionKind::Replace ? "frmReplace" : "frmExtension")
                .findChild<QTabWidget*>()
                ->setCurrentIndex(tab);
        }
    }
};

TEST_P(CountingPanel, EveryBoxOfTheBlocksTypesIntoItsOwnOption)
{
    const CountingAction& action = GetParam();
    Desk desk;
    desk.GoTo(action.kind);
    const auto typeInto = [&desk](const QByteArray& array, std::array<QString, 6>& values) {
        for (int i = 0; i < 6; ++i) {
            const QByteArray name = array + QByteArray::number(i);
            desk.Type(name, name);
            EXPECT_EQ(values[static_cast<std::size_t>(i)], QString::fromLatin1(name));
        }
    };
    ShowBlock(desk, 0, &actions::ValueControls::frameCVisible);
    typeInto(action.Name(0), action.Counter(desk.workspace.options).text);
    ShowBlock(desk, 1, &actions::ValueControls::frameAVisible);
    typeInto(action.Name(1), action.Letters(desk.workspace.options).text);
    desk.Click(action.Name(2));
    EXPECT_EQ(action.Letters(desk.workspace.options).letterCase.Chosen(),
              actions::AlphaCounterBlock::Lowercase);
    if (action.value) {
        ShowBlock(desk, 0, &actions::ValueControls::frameRVisible);
        desk.Type(action.Name(5), "N#");
        EXPECT_EQ(action.value(desk.workspace.options).mask, u"N#"_qs);
        desk.Type(action.Name(3), "my $Counter$");
        EXPECT_EQ(action.value(desk.workspace.options).combo, u"my $Counter$"_qs);
    }
}

// Walks down the combo's list: each step is a pick. "-" in an expectation: no block.
TEST_P(CountingPanel, APickFromTheListShowsTheBlockThatFeedsIt)
{
    const CountingAction& action = GetParam();
    if (!action.value) {
        return; // no combo
    }
    Desk desk;
    desk.GoTo(action.kind);
    auto& combo = desk.Find<QComboBox>(action.Name(3));
    combo.setFocus();
    QString shown;
    for (int i = 0; i < combo.count(); ++i) {
        QTest::keyClick(&combo, Qt::Key_Down);
        shown += action.value(desk.workspace.options).combo + QLatin1Char('=');
        for (const char block : {'C', 'A', 'R'}) {
            if (desk.Find<QWidget>(action.Name(4) + block).isVisible()) {
                shown += QLatin1Char(block);
            }
        }
        shown += QLatin1Char(' ');
    }
    const bool hasStretch = combo.count() == 16;
    EXPECT_EQ(shown,
              u"$Counter$=C $AlphaCounter$=A "_qs +
                  (hasStretch ? u"$Upper_Case$=A $Lower_Case$=A $Invert_Case$=A "_qs : QLatin1String()) +
                  QLatin1String(
                      "$current_date$=A $current_time$=A $modified_date$=A $modified_time$=A $filesizeB$=A "
                      "$filesizeKB$=A $filesizeMB$=A $foldername$=A $Random String$=R $Exif Data$= "
                      "$MP3 Data$= "));
}

INSTANTIATE_TEST_SUITE_P(, CountingPanel, testing::ValuesIn(CountingActions), [](const auto& row) {
    return QString(model::NameOf(row.param.kind)).remove(QLatin1Char(' ')).toStdString();
});

TEST(MaskOnScreen, TestShowsASampleOnlyWhileTheButtonIsDown)
{
    Desk desk;
    desk.GoTo(ActionKind::ReplaceFirst);
    desk.workspace.options.replaceFirst.cmbFirst.frameRVisible = true;
    desk.window.ShowOptions();
    auto& box = desk.Find<QLineEdit>("Text50");
    QTest::mousePress(&desk.Use("Command4"), Qt::LeftButton);
    EXPECT_EQ(box.text(), u"ZZzz99"_qs);
    EXPECT_EQ(desk.workspace.options.replaceFirst.cmbFirst.mask, u"AAaa##"_qs);
    QTest::mouseRelease(&desk.Use("Command4"), Qt::LeftButton);
    EXPECT_EQ(box.text(), u"AAaa##"_qs);
}

TEST(InsertOnScreen, ShowsThePartOfTheModeAndKeepsAModeThatItDoesNotKnow)
{
    Desk desk;
    desk.GoTo(ActionKind::Insert);
    auto& mode = desk.Find<QComboBox>("cmbInsert");
    const auto shown = [&desk] {
        QString places;
        for (const char* name : {"frmInsPos", "frmInsStr1", "frmInsStr2"}) {
            places += desk.Find<QWidget>(name).isVisible() ? QLatin1Char('1') : QLatin1Char('0');
        }
        return places;
    };
    mode.setFocus();
    const QStringList expected = u"100 100 010 010 001"_qs.split(u' ');
    for (int i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(desk.workspace.options.insert.Mode(), i);
        EXPECT_EQ(shown(), expected[i]) << i;
        QTest::keyClick(&mode, Qt::Key_Down);
    }
    desk.workspace.options.insert.cmbInsert = u"Somewhere"_qs;
    desk.window.ShowOptions();
    EXPECT_EQ(desk.workspace.options.insert.cmbInsert, u"Somewhere"_qs);
    EXPECT_EQ(mode.placeholderText(), u"Somewhere"_qs);
    EXPECT_EQ(mode.currentIndex(), -1);
    EXPECT_EQ(shown(), u"000"_qs);
}

TEST(CharacterPanelsOnScreen, PadBoxesKeepOneCharacterAndAClickIntoTheFillerChoosesIt)
{
    Desk desk;
    desk.GoTo(ActionKind::Length);
    desk.Type("Text18", "xyz");
    desk.Find<QLineEdit>("Text19").setText(u"\U0001F600abc"_qs);
    const actions::LengthOptions& length = desk.workspace.options.length;
    EXPECT_EQ(length.Text18 + length.Text19, u"x\U0001F600"_qs);
    EXPECT_EQ(desk.Find<QLineEdit>("Text19").text(), u"\U0001F600"_qs);
    desk.GoTo(ActionKind::Clean);
    desk.Click("Text49");
    for (const char* name : {"Check3", "Check10", "Check12", "chkVowel"}) {
        QTest::keyClick(&desk.Use(name), Qt::Key_Space);
    }
    actions::CleanOptions expected;
    expected.filler.Set(actions::CleanOptions::Option5, true);
    expected.Check3 = expected.Check10 = expected.Check12 = expected.chkVowel = true;
    EXPECT_EQ(desk.workspace.options.clean, expected);
}

TEST(ComposeOnScreen, ElementsAreAddedMovedAndDeleted)
{
    Desk desk;
    desk.GoTo(ActionKind::Compose);
    const QStringList& elements = desk.workspace.options.compose.lstCompose;
    for (const char* text : {"a", "$Random String$", "b"}) {
        desk.Type("cmbCompose", text);
        desk.Click("Command15");
    }
    auto& list = desk.Find<QListWidget>("lstCompose");
    desk.Click("cmdCDown"); // the last one stays
    EXPECT_EQ(elements.join(u' '), u"a $Random$_AAaa## b"_qs);
    desk.Click("cmdCUp");
    EXPECT_EQ(elements.join(u' '), u"a b $Random$_AAaa##"_qs);
    Drag(list, 2, 0);
    EXPECT_EQ(elements.join(u' '), u"$Random$_AAaa## a b"_qs);
    EXPECT_EQ(list.currentRow(), 0);
    list.setCurrentRow(2);
    desk.Click("cmdDel");
    EXPECT_EQ(elements.join(u' '), u"$Random$_AAaa## a"_qs);
    EXPECT_EQ(list.currentRow(), 1);
}

TEST(OptionsOnScreen, ShowingALoadedRecipeShowsItAllAndChangesNoneOfIt)
{
    Desk desk;
    actions::RenameOptions& options = desk.workspace.options;
    std::swap(options.List3.entries[0], options.List3.entries[12]);
    options.List3.entries[0].Selected = true;
    options.replaceMid.Text13 = u"42"_qs;
    options.replaceFirst.cmbFirst.letters.letterCase.Set(0, false); // none on
    options.insert.cmbInsert = u"Nowhere"_qs;
    options.length.Text19 = u"long"_qs;
    options.length.take.Set(actions::LengthOptions::Option3, true);
    options.clean.Check7 = true;
    options.compose.cmbCompose.combo = u"$foldername$"_qs;
    options.compose.cmbCompose.frameRVisible = true;
    options.compose.lstCompose = QStringList{u"x"_qs};
    options.extension.change.Set(actions::ExtensionOptions::Option40, true);
    const actions::RenameOptions loaded = options;
    desk.window.ShowOptions();
    EXPECT_EQ(options, loaded);
    EXPECT_EQ(VisiblePanels(desk), QStringList{u"frmCompose"_qs});
    EXPECT_TRUE(desk.Find<QWidget>("frmComposeR").isVisible());
    EXPECT_EQ(desk.Find<QListWidget>("List3").item(0)->checkState(), Qt::Checked);
    EXPECT_EQ(desk.Find<QLineEdit>("Text13").text(), u"42"_qs);
    EXPECT_FALSE(desk.Find<QRadioButton>("OptFACase0").isChecked());
    EXPECT_TRUE(desk.Find<QRadioButton>("Option3").isChecked());
    EXPECT_TRUE(desk.Find<QAbstractButton>("Check7").isChecked());
    EXPECT_TRUE(desk.Find<QRadioButton>("Option40").isChecked());
    EXPECT_EQ(desk.Find<QComboBox>("cmbCompose").currentText(), u"$foldername$"_qs);
    EXPECT_EQ(desk.Find<QListWidget>("lstCompose").count(), 1);
    options.List3.entries.clear(); // what a recipe of another program leaves behind
    desk.window.ShowOptions();
    EXPECT_EQ(VisiblePanels(desk), QStringList{u"frmCompose"_qs}) << "only a choice changes the panel";
}

// All stops of the Tab key from the action list until it comes back.
QList<QWidget*> Walk(Desk& desk, Qt::KeyboardModifiers modifiers)
{
    QWidget* const start = &desk.Use("List3");
    start->setFocus();
    QList<QWidget*> stops;
    do {
        stops << QApplication::focusWidget();
        QTest::keyClick(stops.last(), Qt::Key_Tab, modifiers);
    } while (QApplication::focusWidget() != start && stops.size() < 200);
    return stops;
}

class TabChain : public testing::TestWithParam<ActionKind>
{};

TEST_P(TabChain, LeadsToEveryControlBothWaysAndEachHasANameToBeReadOut)
{
    Desk desk({}, {[](const QString&) { return platform::Status(); }, [] {}, [] {},
                   [] {
                   }});
    desk.GoTo(GetParam());
    const QList<QWidget*> forward = Walk(desk, Qt::NoModifier);
    QList<QWidget*> backward = Walk(desk, Qt::ShiftModifier);
    std::reverse(backward.begin() + 1, backward.end());
    EXPECT_EQ(forward, backward);
    for (QWidget* widget : desk.window.findChildren<QWidget*>()) {
        const auto* radio = qobject_cast<QRadioButton*>(widget);
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
            !widget->focusProxy() && !(radio && !radio->isChecked())) {
            EXPECT_TRUE(forward.contains(widget)) << widget->objectName().toStdString();
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
                << widget->objectName().toStdString() << " of " << widget->metaObject()->className();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, TabChain, testing::ValuesIn(model::AllActionKinds), [](const auto& row) {
    return QString(model::NameOf(row.param)).remove(QLatin1Char(' ')).toStdString();
});

TEST(TabOrder, FollowsTheEye)
{
    Desk desk;
    desk.GoTo(ActionKind::ReplaceLast);
    desk.workspace.options.replaceLast.cmbLast.frameAVisible = true;
    desk.window.ShowOptions();
    QStringList names;
    for (const QWidget* stop : Walk(desk, Qt::NoModifier)) {
        names << stop->objectName();
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')),
              QLatin1String(
                  "List3 cmdUp cmdDown Text14 cmbLast txtLastA0 txtLastA1 txtLastA4 txtLastA5 txtLastA2 "
                  "txtLastA3 OptLACase0 Combo1 GridPre cmdPreview cmdValidate cmdExecute Command13 cmdClose "
                  "cmdRefresh cmdClear cmdLog chkOnTop"));
}

} // namespace
