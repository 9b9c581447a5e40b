// SPDX-License-Identifier: MIT
//
// What a person sets in the window must arrive in the options, and what a recipe sets there must be on show:
// a box bound to a neighbour's value renames files by what nobody asked for.
#include "Desk.h"

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
    desk.GoTo(ActionKind::Insert, true);
    EXPECT_EQ(VisiblePanels(desk), QStringList{u"frmInsert"_qs});
    EXPECT_TRUE(desk.workspace.options.List3.entries[5].Selected);
    QTest::keyClick(&desk.Use("List3"), Qt::Key_Space);
    EXPECT_FALSE(desk.workspace.options.List3.entries[5].Selected);
}

TEST(ActionListOnScreen, MoveButtonsDropTheMarkAndStopAtTheEnds)
{
    Desk desk;
    QStringList texts = Texts(desk.workspace.options.List3.entries);
    desk.Click("cmdUp");
    EXPECT_EQ(Texts(desk.workspace.options.List3.entries), texts);
    desk.GoTo(ActionKind::ReplaceFirst, true);
    desk.Click("cmdDown");
    texts.move(1, 2);
    EXPECT_EQ(Texts(desk.workspace.options.List3.entries), texts);
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
    EXPECT_EQ(list.item(3)->checkState(), Qt::Checked);
}

// Two actions whose blocks stand on tabs, and two whose blocks come and go.
TEST(CountingPanels, EveryBoxOfTheBlocksTypesIntoItsOwnOption)
{
    Desk desk;
    actions::RenameOptions& options = desk.workspace.options;
    actions::ValueControls &first = options.replaceFirst.cmbFirst, &compose = options.compose.cmbCompose;
    first.frameCVisible = first.frameAVisible = compose.frameCVisible = compose.frameAVisible = true;
    desk.window.ShowOptions();
    const struct
    {
        ActionKind kind;
        QByteArray array, smallLetters;
        actions::CounterBlock& counter;
        actions::AlphaCounterBlock& letters;
    } panels[] = {
        {ActionKind::Replace, "txtReplace", "OptRACase1", options.replace.txtReplaceC,
         options.replace.txtReplaceA},
        {ActionKind::Extension, "txtExt", "OptEACase1", options.extension.txtExtC, options.extension.txtExtA},
        {ActionKind::ReplaceFirst, "txtFirst", "OptFACase1", first.counter, first.letters},
        {ActionKind::Compose, "txtCompose", "OptComACase1", compose.counter, compose.letters}};
    for (const auto& [kind, array, smallLetters, counter, letters] : panels) {
        desk.GoTo(kind);
        for (const char block : {'C', 'A'}) {
            for (auto* tabs :
                 desk.Find<QWidget>(VisiblePanels(desk)[0].toLatin1()).findChildren<QTabWidget*>()) {
                tabs->setCurrentIndex(block == 'C' ? 0 : 1);
            }
            for (std::size_t box = 0; box < 6; ++box) {
                const QByteArray name = array + block + QByteArray::number(box);
                desk.Type(name, name);
                EXPECT_EQ((block == 'C' ? counter.text : letters.text)[box], QString::fromLatin1(name));
            }
        }
        desk.Click(smallLetters);
        EXPECT_EQ(letters.letterCase.Chosen(), actions::AlphaCounterBlock::Lowercase);
    }
}

// Walks down the combo's list: each step is a pick. The expectations name the blocks on show.
TEST(CountingPanels, APickFromTheListShowsTheBlockThatFeedsIt)
{
    Desk desk;
    const QString cases = u"$Upper_Case$=A $Lower_Case$=A $Invert_Case$=A "_qs;
    for (const auto& [kind, name, stretch] :
         {std::tuple(ActionKind::ReplaceFirst, QByteArray("First"), cases),
          {ActionKind::Prefix, "Prefix", QString()}}) {
        desk.GoTo(kind);
        auto& combo = desk.Find<QComboBox>("cmb" + name);
        combo.setFocus();
        QString shown;
        for (int i = 0; i < combo.count(); ++i) {
            QTest::keyClick(&combo, Qt::Key_Down);
            shown += combo.currentText() + u'=';
            for (const char* block : {"C", "A", "R"}) {
                const bool isShown = desk.Find<QWidget>("frm" + name + block).isVisible();
                shown += QLatin1String(isShown ? block : "");
            }
            shown += u' ';
        }
        EXPECT_EQ(shown, u"$Counter$=C $AlphaCounter$=A "_qs + stretch +
                             u"$current_date$=A $current_time$=A $modified_date$=A $modified_time$=A "
                             u"$filesizeB$=A $filesizeKB$=A $filesizeMB$=A $foldername$=A "
                             u"$Random String$=R $Exif_Make=R $MP3_ID3_Album=R "_qs);
    }
}

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

TEST(InsertOnScreen, ShowsThePartOfTheModeAndAModeThatItDoesNotKnow)
{
    Desk desk;
    desk.GoTo(ActionKind::Insert);
    auto& mode = desk.Find<QComboBox>("cmbInsert");
    const auto expectShown = [&desk](const char* expected) {
        for (const char* name : {"frmInsPos", "frmInsStr1", "frmInsStr2"}) {
            EXPECT_EQ(desk.Find<QWidget>(name).isVisible(), QByteArray(name) == expected) << expected;
        }
    };
    mode.setFocus();
    for (const char* part : {"frmInsPos", "frmInsPos", "frmInsStr1", "frmInsStr1", "frmInsStr2"}) {
        expectShown(part);
        EXPECT_EQ(desk.workspace.options.insert.Mode(), mode.currentIndex());
        QTest::keyClick(&mode, Qt::Key_Down);
    }
    desk.workspace.options.insert.cmbInsert = u"Somewhere"_qs;
    desk.window.ShowOptions();
    EXPECT_EQ(mode.placeholderText(), u"Somewhere"_qs);
    EXPECT_EQ(mode.currentIndex(), -1);
    expectShown("none");
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
    EXPECT_EQ(desk.Find<QListWidget>("List3").item(0)->checkState(), Qt::Checked);
    const std::tuple<const char*, const char*, QVariant> shown[] = {
        {"frmComposeR", "visible", true}, {"Text13", "text", u"42"_qs},
        {"OptFACase0", "checked", false}, {"Option3", "checked", true},
        {"Check7", "checked", true},      {"cmbCompose", "currentText", u"$foldername$"_qs},
        {"Option40", "checked", true},    {"lstCompose", "count", 1}};
    for (const auto& [name, property, value] : shown) {
        EXPECT_EQ(desk.Find<QWidget>(name).property(property), value) << name;
    }
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

QRect OnWindow(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

TEST(TabChain, LeadsToEveryControlBothWaysAndEachHasANameToBeReadOut)
{
    const auto nothing = [] {
    };
    for (const ActionKind kind : model::AllActionKinds) {
        Desk desk({}, {[](const QString&) { return platform::Status(); }, nothing, nothing, nothing});
        desk.GoTo(kind);
        const QList<QWidget*> forward = Walk(desk, Qt::NoModifier);
        QList<QWidget*> backward = Walk(desk, Qt::ShiftModifier);
        std::reverse(backward.begin() + 1, backward.end());
        EXPECT_EQ(forward, backward);
        QStringList jumps; // back up to the left
        for (int i = 1; i < forward.size(); ++i) {
            const QRect before = OnWindow(*forward[i - 1]), after = OnWindow(*forward[i]);
            if (after.center().x() < before.center().x() && after.center().y() < before.bottom()) {
                jumps << forward[i]->objectName();
            }
        }
        EXPECT_EQ(jumps, QStringList{u"Command14"_qs}) << "only from the end to the beginning";
        for (QWidget* widget : desk.window.findChildren<QWidget*>()) {
            const auto* radio = qobject_cast<QRadioButton*>(widget);
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
                !widget->focusProxy() && !(radio && !radio->isChecked())) {
                SCOPED_TRACE(widget->objectName().toStdString() + widget->metaObject()->className());
                EXPECT_TRUE(forward.contains(widget));
                EXPECT_NE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name), QString());
            }
        }
    }
}

} // namespace
