// SPDX-License-Identifier: MIT
//
// What a person sets in the window must arrive in the options, and what a recipe sets there must be on show:
// a box bound to a neighbour's value renames files by what nobody asked for.
#include "Desk.h"

#include <QAccessible>
#include <QComboBox>
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
        texts << (entry.Selected ? QLatin1String("*") : QLatin1String()) + entry.text;
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
    for (const char* name :
         {"frmReplace", "frmReplaceFirst", "frmReplaceMid", "frmReplaceLast", "frmReplaceAll", "frmInsert",
          "frmSuffix", "frmPrefix", "frmLength", "frmCase", "frmExtension", "frmClean", "frmCompose"}) {
        if (desk.Find<QWidget>(name).isVisible()) {
            names << QLatin1String(name);
        }
    }
    return names;
}

TEST(ActionListOnScreen, IsChosenAndTickedByKeysAndShowsThePanelOfTheCurrentEntry)
{
    Desk desk;
    EXPECT_EQ(VisiblePanels(desk), QStringList{QStringLiteral("frmReplace")});
    desk.GoTo(ActionKind::Insert, true);
    EXPECT_EQ(VisiblePanels(desk), QStringList{QStringLiteral("frmInsert")});
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
    EXPECT_EQ(Texts(desk.workspace.options.List3.entries).mid(0, 5),
              (QStringList{QStringLiteral("*Replace Last"), QStringLiteral("Replace"),
                           QStringLiteral("Replace First"), QStringLiteral("*Replace Mid"),
                           QStringLiteral("Replace All")}));
    EXPECT_EQ(VisiblePanels(desk), QStringList{QStringLiteral("frmReplaceLast")});
    EXPECT_EQ(list.item(0)->text(), model::NameOf(ActionKind::ReplaceLast));
    EXPECT_EQ(list.item(3)->checkState(), Qt::Checked);
}

struct CountingAction
{
    ActionKind kind;
    QByteArray counterBoxes;
    QByteArray letterBoxes;
    QByteArray lowercase;
    QByteArray combo; // empty, and so all below: the blocks stand on two tabs
    QByteArray frames;
    QByteArray mask;
    actions::ValueControls& (*value)(actions::RenameOptions&);

    actions::CounterBlock& Counter(actions::RenameOptions& options) const
    {
        return value                         ? value(options).counter
               : kind == ActionKind::Replace ? options.replace.txtReplaceC
                                             : options.extension.txtExtC;
    }

    actions::AlphaCounterBlock& Letters(actions::RenameOptions& options) const
    {
        return value                         ? value(options).letters
               : kind == ActionKind::Replace ? options.replace.txtReplaceA
                                             : options.extension.txtExtA;
    }
};

using Options = actions::RenameOptions;
using Value = actions::ValueControls;

// clang-format off
const CountingAction CountingActions[] = {
    {ActionKind::Replace, "txtReplaceC", "txtReplaceA", "OptRACase1", "", "", "", nullptr},
    {ActionKind::ReplaceFirst, "txtFirstC", "txtFirstA", "OptFACase1", "cmbFirst", "frmFirst", "Text50",
        [](Options& o) -> Value& { return o.replaceFirst.cmbFirst; }},
    {ActionKind::ReplaceMid, "txtMidC", "txtMidA", "OptMACase1", "cmbMid", "frmMid", "Text53",
        [](Options& o) -> Value& { return o.replaceMid.cmbMid; }},
    {ActionKind::ReplaceLast, "txtLastC", "txtLastA", "OptLACase1", "cmbLast", "frmLast", "Text55",
        [](Options& o) -> Value& { return o.replaceLast.cmbLast; }},
    {ActionKind::ReplaceAll, "txtAllC", "txtAllA", "OptAACase1", "cmbAll", "frmReplaceAll", "Text56",
        [](Options& o) -> Value& { return o.replaceAll.cmbAll; }},
    {ActionKind::Insert, "txtInsertC", "txtInsertA", "OptIACase1", "cmbInsertS", "frmInsert", "Text59",
        [](Options& o) -> Value& { return o.insert.cmbInsertS; }},
    {ActionKind::Suffix, "txtSuffixC", "txtSuffixA", "OptSACase1", "cmbSuffix", "frmSuffix", "Text61",
        [](Options& o) -> Value& { return o.suffix.cmbSuffix; }},
    {ActionKind::Prefix, "txtPrefixC", "txtPrefixA", "OptPACase1", "cmbPrefix", "frmPrefix", "Text62",
        [](Options& o) -> Value& { return o.prefix.cmbPrefix; }},
    {ActionKind::Extension, "txtExtC", "txtExtA", "OptEACase1", "", "", "", nullptr},
    {ActionKind::Compose, "txtComposeC", "txtComposeA", "OptComACase1", "cmbCompose", "frmCompose", "Text3",
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
    typeInto(action.counterBoxes, action.Counter(desk.workspace.options).text);
    ShowBlock(desk, 1, &actions::ValueControls::frameAVisible);
    typeInto(action.letterBoxes, action.Letters(desk.workspace.options).text);
    desk.Click(action.lowercase);
    EXPECT_EQ(action.Letters(desk.workspace.options).letterCase.Chosen(),
              actions::AlphaCounterBlock::Lowercase);
    if (action.value) {
        ShowBlock(desk, 0, &actions::ValueControls::frameRVisible);
        desk.Type(action.mask, "N#");
        EXPECT_EQ(action.value(desk.workspace.options).mask, QLatin1String("N#"));
        desk.Type(action.combo, "my $Counter$");
        EXPECT_EQ(action.value(desk.workspace.options).combo, QLatin1String("my $Counter$"));
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
    auto& combo = desk.Find<QComboBox>(action.combo);
    combo.setFocus();
    QString shown;
    for (int i = 0; i < combo.count(); ++i) {
        QTest::keyClick(&combo, Qt::Key_Down);
        shown += action.value(desk.workspace.options).combo + QLatin1Char('=');
        for (const char block : {'C', 'A', 'R'}) {
            if (desk.Find<QWidget>(action.frames + block).isVisible()) {
                shown += QLatin1Char(block);
            }
        }
        shown += QLatin1Char(' ');
    }
    const bool hasStretch = combo.count() == 16;
    EXPECT_EQ(
        shown,
        QLatin1String("$Counter$=C $AlphaCounter$=A ") +
            (hasStretch ? QLatin1String("$Upper_Case$=A $Lower_Case$=A $Invert_Case$=A ") : QLatin1String()) +
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
    EXPECT_EQ(box.text(), QLatin1String("ZZzz99"));
    EXPECT_EQ(desk.workspace.options.replaceFirst.cmbFirst.mask, QLatin1String("AAaa##"));
    QTest::mouseRelease(&desk.Use("Command4"), Qt::LeftButton);
    EXPECT_EQ(box.text(), QLatin1String("AAaa##"));
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
    const QStringList expected{QStringLiteral("100"), QStringLiteral("100"), QStringLiteral("010"),
                               QStringLiteral("010"), QStringLiteral("001")};
    for (int i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(desk.workspace.options.insert.Mode(), i);
        EXPECT_EQ(shown(), expected[i]) << i;
        QTest::keyClick(&mode, Qt::Key_Down);
    }
    desk.workspace.options.insert.cmbInsert = QStringLiteral("Somewhere");
    desk.window.ShowOptions();
    EXPECT_EQ(desk.workspace.options.insert.cmbInsert, QLatin1String("Somewhere"));
    EXPECT_EQ(mode.placeholderText(), QLatin1String("Somewhere"));
    EXPECT_EQ(mode.currentIndex(), -1);
    EXPECT_EQ(shown(), QLatin1String("000"));
}

TEST(LengthOnScreen, PadBoxesKeepTheirFirstCharacter)
{
    Desk desk;
    desk.GoTo(ActionKind::Length);
    desk.Type("Text18", "xyz");
    EXPECT_EQ(desk.workspace.options.length.Text18, QLatin1String("x"));
    desk.Find<QLineEdit>("Text19").setText(QStringLiteral("\U0001F600abc"));
    EXPECT_EQ(desk.workspace.options.length.Text19, QStringLiteral("\U0001F600"));
    EXPECT_EQ(desk.Find<QLineEdit>("Text19").text(), QStringLiteral("\U0001F600"));
}

TEST(CleanOnScreen, AClickIntoTheFillerBoxChoosesIt)
{
    Desk desk;
    desk.GoTo(ActionKind::Clean);
    desk.Click("Text49");
    EXPECT_EQ(desk.workspace.options.clean.filler.Chosen(), actions::CleanOptions::Option5);
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
    const QString random = QStringLiteral("$Random$_AAaa##");
    const auto list = [](std::initializer_list<QString> texts) {
        return QStringList(texts);
    };
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    EXPECT_EQ(elements, list({a, random, b}));
    desk.Click("cmdCDown");
    EXPECT_EQ(elements, list({a, random, b}));
    desk.Click("cmdCUp");
    EXPECT_EQ(elements, list({a, b, random}));
    Drag(desk.Find<QListWidget>("lstCompose"), 2, 0);
    EXPECT_EQ(elements, list({random, a, b}));
    EXPECT_EQ(desk.Find<QListWidget>("lstCompose").currentRow(), 0);
    desk.Find<QListWidget>("lstCompose").setCurrentRow(2);
    desk.Click("cmdDel");
    EXPECT_EQ(elements, list({random, a}));
    EXPECT_EQ(desk.Find<QListWidget>("lstCompose").currentRow(), 1);
}

TEST(OptionsOnScreen, ShowingALoadedRecipeShowsItAllAndChangesNoneOfIt)
{
    Desk desk;
    actions::RenameOptions& options = desk.workspace.options;
    std::swap(options.List3.entries[0], options.List3.entries[12]);
    options.List3.entries[0].Selected = true;
    options.replaceMid.Text13 = QStringLiteral("42");
    options.replaceFirst.cmbFirst.letters.letterCase.Set(0, false); // none on
    options.insert.cmbInsert = QStringLiteral("Nowhere");
    options.length.Text19 = QStringLiteral("long");
    options.length.take.Set(actions::LengthOptions::Option3, true);
    options.clean.Check7 = true;
    options.compose.cmbCompose.combo = QStringLiteral("$foldername$");
    options.compose.cmbCompose.frameRVisible = true;
    options.compose.lstCompose = QStringList{QStringLiteral("x")};
    options.extension.change.Set(actions::ExtensionOptions::Option40, true);
    const actions::RenameOptions loaded = options;
    desk.window.ShowOptions();
    EXPECT_EQ(options, loaded);
    EXPECT_EQ(VisiblePanels(desk), QStringList{QStringLiteral("frmCompose")});
    EXPECT_TRUE(desk.Find<QWidget>("frmComposeR").isVisible());
    EXPECT_EQ(desk.Find<QListWidget>("List3").item(0)->checkState(), Qt::Checked);
    EXPECT_EQ(desk.Find<QLineEdit>("Text13").text(), QLatin1String("42"));
    EXPECT_FALSE(desk.Find<QRadioButton>("OptFACase0").isChecked());
    EXPECT_TRUE(desk.Find<QRadioButton>("Option3").isChecked());
    EXPECT_TRUE(desk.Find<QAbstractButton>("Check7").isChecked());
    EXPECT_TRUE(desk.Find<QRadioButton>("Option40").isChecked());
    EXPECT_EQ(desk.Find<QComboBox>("cmbCompose").currentText(), QLatin1String("$foldername$"));
    EXPECT_EQ(desk.Find<QListWidget>("lstCompose").count(), 1);
    options.List3.entries.clear(); // what a recipe of another program leaves behind
    desk.window.ShowOptions();
    EXPECT_EQ(VisiblePanels(desk), QStringList());
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
