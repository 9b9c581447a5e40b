// SPDX-License-Identifier: MIT
//
// The replace lists by hand: what is typed, picked, loaded or cleared must be in the options after OK and
// nowhere after Cancel.
#include "Desk.h"

namespace {

using actions::ReplaceRows;

class ReplaceLists : public testing::Test
{
protected:
    void Names() { Open("cmdReplaceOptions", model::ActionKind::Replace, "frmSReplace"); }
    void Extensions() { Open("Command3", model::ActionKind::Extension, "frmExtReplace"); }
    void Open(const char* button, model::ActionKind panel, const char* name)
    {
        desk.GoTo(panel);
        desk.Click(button);
        list = &desk.Find<QWidget>(name);
        grid = &The<QTableView>("GridR");
        tester = std::make_unique<QAbstractItemModelTester>(
            grid->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        ASSERT_TRUE(QTest::qWaitFor([this] { return list->isAncestorOf(QApplication::focusWidget()); }));
    }

    template<class Widget = QWidget>
    Widget& The(const char* name)
    {
        return ui_tests::Find<Widget>(*list, QLatin1String(name));
    }
    void Click(const char* name)
    {
        ASSERT_TRUE(The(name).isVisible() && The(name).isEnabled()) << name;
        QTest::mouseClick(&The(name), Qt::LeftButton, {}, {8, The(name).height() / 2});
    }
    QModelIndex Cell(int row, int column) { return grid->model()->index(row - 1, column - 1); }
    QString Text(int row, int column) { return Cell(row, column).data().toString(); }

    // Keys go where a person's would.
    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void EndEdit(Qt::Key key = Qt::Key_Return)
    {
        Key(key);
        ASSERT_TRUE(QTest::qWaitFor([this] { return grid->hasFocus(); }));
    }
    void Type(int row, int column, const char* text)
    {
        grid->setFocus();
        grid->setCurrentIndex(Cell(row, column));
        Key(Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
        EndEdit();
    }
    QString SelectedText() { return qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectedText(); }

    ui_tests::Desk desk;
    const QString path = desk.files.Path() + u"l.srl"_qs;
    actions::RenameOptions& options = desk.workspace.options;
    QWidget* list = nullptr;
    QTableView* grid = nullptr;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(ReplaceLists, ATypedListIsSavedAndLoadedInTheOtherWindow)
{
    Names();
    Type(1, 2, "abc");
    Type(1, 3, "x");
    Type(3, 2, "d");
    Type(3, 1, "y");
    desk.answers.fileToChoose = path.chopped(4); // the ending is added
    Click("Command1");
    EXPECT_EQ(desk.files.Content(u"l.srl"_qs),
              "Tarnwick Strings Replace List\r\n0\r\nn\r\nabc\r\nx\r\ny\r\nd\r\n\r\n");
    EXPECT_TRUE(options.replace.ReplaceList.empty());
    Click("cmdCScr");
    const ReplaceRows rows{{u"n"_qs, u"abc"_qs, u"x"_qs}, {}, {u"y"_qs, u"d"_qs, {}}};
    EXPECT_EQ(options.replace.ReplaceList, rows);
    Extensions();
    desk.answers.fileToChoose = path;
    Click("Command2");
    Click("cmdCScr");
    EXPECT_EQ(options.extension.ExtReplaceList, (ReplaceRows{rows[0], rows[2]}));
}

TEST_F(ReplaceLists, CancelDropsEditsButNotWhatClearTook)
{
    const ReplaceRows before = options.replace.ReplaceList = {{u"n"_qs, u"a"_qs, u"b"_qs}};
    Names();
    Type(1, 2, "other");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(options.replace.ReplaceList, before);
    Names();
    EXPECT_EQ(Text(1, 2), u"a"_qs);
    Click("cmdClear");
    Click("cmdQuit");
    EXPECT_EQ(options.replace.ReplaceList, ReplaceRows(1));
    Names();
    desk.Click("cmdClose");
    EXPECT_FALSE(list->isVisible());
}

TEST_F(ReplaceLists, KeysAndTheMenuOfTheRightButtonWorkOnTheCell)
{
    options.replace.ReplaceList = {{u"n"_qs, u"gone"_qs, {}}, {u"y"_qs, u"old"_qs, u"2"_qs}};
    Names();
    const QList<QAction*> menu = The<QMenu>("mnuCell").actions(); // edit, copy, clear, delete
    menu[3]->trigger();
    for (const auto& [end, text] : {std::pair(Qt::Key_Escape, u"old"_qs), {Qt::Key_Return, u"nold"_qs}}) {
        Key(Qt::Key_N);
        EXPECT_EQ(SelectedText(), u"old"_qs);
        EndEdit(end);
        EXPECT_EQ(Text(1, 2), text);
    }
    const QPoint place = grid->visualRect(Cell(1, 3)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, grid->viewport()->mapToGlobal(place));
    QApplication::sendEvent(grid->viewport(), &event);
    EXPECT_TRUE(The("mnuCell").isVisible());
    The("mnuCell").close();
    menu[1]->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), u"2"_qs);
    menu[2]->trigger();
    EXPECT_EQ(Text(1, 3), QString());
    grid->model()->setData(Cell(1, 3), u"1\n2"_qs); // as from the clipboard
    grid->setCurrentIndex(Cell(1, 2));
    menu[0]->trigger();
    EXPECT_EQ(SelectedText(), u"nold"_qs);
    Click("cmdCScr");
    EXPECT_EQ(options.replace.ReplaceList, (ReplaceRows{{u"y"_qs, u"nold"_qs, u"1"_qs}, {}}));
    EXPECT_EQ(grid->model()->rowCount(), 500);
}

TEST_F(ReplaceLists, TheMarkOfALoadedFileFallsOnTheRowsOfTheOldList)
{
    options.replace.ReplaceList.resize(2);
    Names();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(Cell(3, 2)).center());
    desk.answers.fileToChoose = path;
    desk.files.Write(u"l.srl"_qs, "Tarnwick Strings Replace List\r\n1\r\ny\r\nc\r\nd\r\n");
    Click("Command2");
    EXPECT_EQ(The<QCheckBox>("Check1").text(), u"&Match Case None"_qs);
    EXPECT_EQ(Text(1, 1) + Text(2, 1) + Text(3, 1) + Text(4, 1), u"yYY"_qs);
    Click("Check1");
    EXPECT_EQ(Text(1, 1) + Text(2, 1) + Text(3, 1), u"nYY"_qs);
    desk.files.Write(u"l.srl"_qs, "Another List\r\n0\r\n");
    Click("Command2");
    EXPECT_EQ(desk.answers.TakeMessages(), QStringList{u"Strings Replacer: Invalid File"_qs});
    Click("cmdCScr");
    EXPECT_EQ(options.replace.ReplaceList, (ReplaceRows{{u"n"_qs, u"c"_qs, u"d"_qs}}));
}

TEST_F(ReplaceLists, APickerWritesIntoTheCellItWasOpenedFrom)
{
    desk.state.LastDateToken = u"$yyyy$"_qs;
    Names();
    grid->setCurrentIndex(Cell(2, 3));
    Key(Qt::Key_F2);
    auto& combo = The<QComboBox>("cmbToR");
    combo.setCurrentIndex(combo.findText(u"$Invert_Case$"_qs));
    Key(Qt::Key_Down); // to $current_date$
    auto& picker = The<QDialog>("frmDateFormat");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&picker));
    EXPECT_TRUE(combo.isVisible()) << "the target went away with the focus";
    QTest::keyClick(&picker, Qt::Key_Return);
    EXPECT_FALSE(combo.isVisible());
    EXPECT_EQ(Text(2, 1) + Text(2, 3), u"n$yyyy$"_qs);

    grid->setCurrentIndex(Cell(3, 3));
    Key(Qt::Key_F2);
    auto& second = *qobject_cast<QComboBox*>(QApplication::focusWidget());
    second.setCurrentIndex(second.findText(u"$Random String$"_qs) - 1);
    Key(Qt::Key_Down);
    QTest::keyClicks(&The<QLineEdit>("txtRandomMask"), u"##"_qs);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(Cell(1, 1)).center());
    EXPECT_EQ(Text(3, 3), u"$Rand$_##"_qs) << "the mask got lost where the edit ended before its window";
}

TEST_F(ReplaceLists, ASingleExtensionStandsInForTheList)
{
    desk.state.LastMask = u"##"_qs;
    Extensions();
    EXPECT_FALSE(The("cmbExtAll").isVisible());
    Click("Check2");
    EXPECT_TRUE(options.extension.ReplaceAllExtensions);
    for (const char* name : {"cmdClear", "Command1", "Command2"}) {
        EXPECT_FALSE(The(name).isVisible()) << name;
    }
    EXPECT_FALSE(grid->isEnabled() || The("Check1").isEnabled());
    auto& combo = The<QComboBox>("cmbExtAll");
    combo.setCurrentIndex(1);
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_TRUE(The<QDialog>("frmRandom").isVisible());
    Click("cmdCScr");
    EXPECT_EQ(options.extension.ExtensionAllValue, u"$Rand$_##"_qs);
    Extensions();
    EXPECT_TRUE(The<QCheckBox>("Check2").isChecked());
    Click("Check2");
    EXPECT_TRUE(grid->isEnabled() && !combo.isVisible() && !options.extension.ReplaceAllExtensions);
}

} // namespace
