// SPDX-License-Identifier: MIT
//
// The program with all its windows, from the choice of a folder to names on the disk and options that come
// back. These tests catch wires that are missing or lead elsewhere: a control that reaches no list, a window
// that hears nothing of the other, a setting that is kept at no place.
#include "Desk.h"
#include "app/ui/Windows.h"
#include "app/ui/frmSplash.h"

namespace {

using ui_tests::Find;

void SetVariable(const char* name, const QByteArray& value)
{
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
}

// A person's home with a folder of music, and the program over it, which may be ended and started again.
class Session : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* name :
             {"Music/a.mp3", "Music/b.mp3", "Music/c.txt", "Music/sub/d.txt", "Other/e.txt"}) {
            home.Write(QLatin1String(name));
        }
        for (const char* name : {"HOME", "XDG_CONFIG_HOME"}) {
            before[name] = qgetenv(name);
            SetVariable(name, home.Path().toUtf8());
        }
    }
    void TearDown() override
    {
        windows.reset();
        for (const auto& [name, value] : before) {
            SetVariable(name, value);
        }
    }

    void Start(const QString& commandLine = {})
    {
        windows.reset();
        ended = 0;
        windows = std::make_unique<app::Windows>(programFolder, commandLine, [this] { ++ended; });
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return commandLine.isEmpty() ? Main().isActiveWindow() : windows->Renamer().isActiveWindow();
        }));
    }

    app::frmMain& Main() { return windows->Main(); }
    template<class Widget = QWidget>
    Widget& In(const QWidget& window, const char* name)
    {
        return Find<Widget>(window, QLatin1String(name));
    }
    void Click(const QWidget& window, const char* name)
    {
        auto& button = In<QAbstractButton>(window, name);
        EXPECT_TRUE(button.isVisible() && button.isEnabled()) << name;
        QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    }
    void Command(int number) { Choose(u"command%1"_qs.arg(number)); }
    void Choose(const QString& entry) { Main().findChild<QAction*>(entry)->trigger(); }

    // Goes down to an entry with the keyboard.
    void GoTo(QAbstractItemView& view, const QString& entry)
    {
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Home);
        while (view.currentIndex().data().toString() != entry) {
            const QModelIndex last = view.currentIndex();
            QTest::keyClick(&view, Qt::Key_Down);
            ASSERT_NE(view.currentIndex(), last) << "there is no " << entry.toStdString();
        }
    }

    // Goes to an entry below the home folder.
    void GoToFolder(const QString& folder)
    {
        auto& tree = In<QTreeView>(Main(), "ftv");
        tree.expand(tree.model()->index(0, 0));
        GoTo(tree, folder);
    }

    fileview::FileList& Rows() { return In<fileview::ListViewEditable>(Main(), "lvw2").ListItems(); }
    QString Names() { return Rows().Col(fileview::FileList::Name, u" "_qs, false); }
    QString Log() { return In<QPlainTextEdit>(Main(), "Text2").toPlainText(); }
    QString Items() { return In<QLineEdit>(Main(), "txtPlot").text(); }

    testing_support::TempFolder home;
    testing_support::TempFolder program;
    platform::ProgramFolder programFolder{program.Path()};
    ui_tests::Answers answers;
    std::map<const char*, QByteArray> before;
    std::unique_ptr<app::Windows> windows;
    int ended = 0;
};

TEST_F(Session, AFolderIsChosenNarrowedRenamedAndFoundAgainAtTheNextStart)
{
    Start();
    EXPECT_EQ(Names(), u"Music Other"_qs) << "the home folder comes first";
    GoToFolder(u"Music"_qs);
    EXPECT_EQ(Names(), u"a.mp3 b.mp3 c.txt sub"_qs);
    QTest::keyClicks(&In(Main(), "txtFilter"), u".mp3"_qs);
    EXPECT_EQ(Names(), u"a.mp3 b.mp3"_qs);
    Click(Main(), "Check1");
    EXPECT_EQ(In<QCheckBox>(Main(), "Check1").text().remove(u'&') + Items(), u"Uncheck All2"_qs);

    Click(Main(), "cmdPref");
    QWidget& preferences = In(Main(), "frmPref");
    for (const char* box : {"Check3", "Check7"}) {
        Click(preferences, box);
    }
    In<QTabWidget>(preferences, "SSTab1").setCurrentIndex(1);
    for (const char* box : {"Check1", "OptSort1"}) {
        Click(preferences, box);
    }
    Click(preferences, "Command1");

    Click(Main(), "cmdRename");
    QWidget& renamer = windows->Renamer();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&renamer));
    auto& actionList = In<QAbstractItemView>(renamer, "List3");
    for (const auto& [action, box] : {std::pair("Prefix", "cmbPrefix"), std::pair("Suffix", "cmbSuffix")}) {
        GoTo(actionList, QLatin1String(action));
        QTest::keyClick(&actionList, Qt::Key_Space);
        In<QComboBox>(renamer, box).setEditText(QLatin1String(action).left(1));
    }
    Click(renamer, "cmdPreview");
    Click(renamer, "cmdExecute");
    EXPECT_EQ(home.Names(u"Music"_qs).join(u' '), u"PaS.mp3 PbS.mp3 c.txt sub"_qs);
    EXPECT_EQ(Names(), u"PaS.mp3 PbS.mp3"_qs) << "the list is refreshed";
    EXPECT_TRUE(In(renamer, "frmLog").isVisible());
    QTest::keyClicks(&In(Main(), "txtFilter"), u"b"_qs);
    EXPECT_EQ(Names(), u"PbS.mp3"_qs) << "and so is what the filters read from";

    Command(1047);
    EXPECT_TRUE(Log().endsWith(u"Settings Saved."_qs));
    Main().move(120, 90);
    Main().close();
    EXPECT_EQ(ended, 1);
    Start();
    EXPECT_EQ(In<QTreeView>(Main(), "ftv").currentIndex().data().toString(), u"Music"_qs);
    EXPECT_EQ(Names(), u"c.txt PaS.mp3 PbS.mp3 sub"_qs);
    EXPECT_TRUE(Main().pos() == QPoint(120, 90));
    Command(1035);
    EXPECT_TRUE(In<QCheckBox>(In(Main(), "frmPref"), "Check7").isChecked());
    EXPECT_TRUE(In<QRadioButton>(In(Main(), "frmPref"), "OptSort1").isChecked());
}

TEST_F(Session, ACancelledPreferenceIsForgottenButForAllFilesChecked)
{
    Start();
    Click(Main(), "cmdPref");
    QWidget& preferences = In(Main(), "frmPref");
    Click(preferences, "Check4");
    In<QTabWidget>(preferences, "SSTab1").setCurrentIndex(1);
    for (const char* box : {"Check10", "OptSort1", "Check6"}) {
        Click(preferences, box);
    }
    Click(preferences, "Command2");
    GoToFolder(u"Music"_qs);
    EXPECT_EQ(Rows().CheckedCount(), 4);
    EXPECT_TRUE(In<QCheckBox>(Main(), "Check1").isChecked());
    Click(Main(), "cmdPref");
    for (const char* box : {"Check4", "Check10", "Check6"}) {
        EXPECT_FALSE(In<QCheckBox>(preferences, box).isChecked()) << box;
    }
    EXPECT_TRUE(In<QRadioButton>(preferences, "OptSort0").isChecked());
    Click(Main(), "cmdQuit");
    EXPECT_EQ(program.Content(u"Quillmark.ini"_qs).split('\n').at(1), "blank\r");
}

TEST_F(Session, TypesSubfoldersAndSeveralFoldersReachTheList)
{
    program.Write(u"Quillmark.ini"_qs,
                  (home.Path() + u"Music\r\nblank\r\nblank\r\nplain text document\r\nList\r\n"_qs).toUtf8());
    Start();
    auto& types = In<QComboBox>(Main(), "cmbFileType");
    EXPECT_EQ(types.itemText(0) + u'|' + types.itemText(1), u"*.*|All Files"_qs);
    EXPECT_TRUE(Main().findChild<QAction*>(u"command1033"_qs)->isChecked());
    Command(1031);
    EXPECT_TRUE(Main().findChild<QAction*>(u"command1031"_qs)->isChecked() &&
                !Main().findChild<QAction*>(u"command1033"_qs)->isChecked());
    types.setFocus();
    QTest::keyClick(&types, Qt::Key_Home);
    QTest::keyClick(&types, Qt::Key_Down); // "All Files" has no folders
    EXPECT_EQ(Names(), u"a.mp3 b.mp3 c.txt"_qs);
    Click(Main(), "Check2");
    EXPECT_EQ(Names(), u"a.mp3 b.mp3 c.txt sub d.txt"_qs);
    Choose(u"mnuSelectall"_qs);
    EXPECT_EQ(Items(), u"5"_qs) << "the list's own menu counts, too";
    Click(Main(), "Check6");
    EXPECT_EQ(Names() + Items(), u"0"_qs);
    EXPECT_FALSE(In(Main(), "Check2").isEnabled() || In<QCheckBox>(Main(), "Check2").isChecked());
    for (const auto& [folder, names] :
         {std::pair(u"Music"_qs, u"a.mp3 b.mp3 c.txt sub"_qs),
          std::pair(u"Other"_qs, u"a.mp3 b.mp3 c.txt sub e.txt"_qs), std::pair(u"Music"_qs, u"e.txt"_qs)}) {
        GoToFolder(folder);
        QTest::keyClick(&In(Main(), "ftv"), Qt::Key_Space);
        EXPECT_EQ(Names(), names);
        Command(1030); // what is checked and open stays so
    }
}

TEST_F(Session, TheFolderThatIsCurrentIsReadAgainByAClick)
{
    Start();
    GoToFolder(u"Music"_qs);
    home.Write(u"Music/new.txt"_qs);
    auto& tree = In<QTreeView>(Main(), "ftv");
    const auto at = [&tree] {
        return tree.visualRect(tree.currentIndex()).center();
    };
    const auto searches = Log().count(u"Searching "_qs);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at());
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at()); // which opens it
    EXPECT_TRUE(Names().contains(u"new.txt"_qs) && tree.isExpanded(tree.currentIndex()));
    EXPECT_EQ(Log().count(u"Searching "_qs), searches + 1) << "by the first click alone";
}

TEST_F(Session, AListStartShowsItsFilesInBothWindows)
{
    program.Write(u"Quillmark.ini"_qs, (home.Path() + u"Other\r\n"_qs).toUtf8());
    Start(home.Path() + u"Music/b.mp3|"_qs + home.Path() + u"Music/c.txt"_qs);
    EXPECT_EQ(Names() + Items(), u"b.mp3 c.txt2"_qs);
    EXPECT_EQ(Rows().CheckedCount(), 2);
    EXPECT_EQ(In<QAbstractItemView>(windows->Renamer(), "GridPre").model()->rowCount(), 2);
    GoToFolder(u"Music"_qs);
    EXPECT_EQ(Rows().Count(), 4) << "only the first choice is passed over";
}

TEST_F(Session, AQuitDuringAScanEndsTheProgramOnceTheScanIsBack)
{
    Start();
    auto& list = In<fileview::ListViewEditable>(Main(), "lvw2");
    QString seen;
    QObject::connect(&list, &fileview::ListViewEditable::SearchDirChange, &list, [&](QString& path) {
        if (path.endsWith(u"/sub/"_qs) || path.endsWith(u"/sub"_qs)) {
            seen = In(Main(), "ftv").isEnabled() ? u"tree "_qs : u"no tree "_qs;
            seen += In(Main(), "cmdStopSrch").isEnabled() ? u"stop"_qs : u"no stop"_qs;
            Click(Main(), "cmdQuit");
            EXPECT_EQ(ended, 0) << "the scan still runs";
        }
    });
    Click(Main(), "Check2");
    EXPECT_EQ(seen, u"no tree stop"_qs);
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(Main().isVisible());
    EXPECT_TRUE(program.Exists(u"Quillmark.ini"_qs));
}

TEST_F(Session, ADropIsAScanLikeAnyOther)
{
    Start();
    Click(Main(), "cmdRename");
    auto& list = In<fileview::ListViewEditable>(Main(), "lvw2");
    const auto drop = [&](const QStringList& folders) {
        QStringList paths;
        for (const QString& folder : folders) {
            paths << home.Path() + folder;
        }
        ui_tests::Drop(*list.ListView().viewport(), paths);
    };
    drop({u"Other"_qs, u"Other/e.txt"_qs});
    QTest::keyClicks(&In(Main(), "txtFilter"), u"e."_qs);
    EXPECT_EQ(Names(), u"e.txt"_qs) << "what the filters read from has it once";
    QObject::connect(&list, &fileview::ListViewEditable::SearchDirChange, &list, [&] {
        EXPECT_FALSE(windows->Renamer().isEnabled());
        Click(Main(), "cmdQuit");
    });
    drop({u"Music/sub"_qs, u"Music"_qs});
    EXPECT_TRUE(ended == 1 && !Names().contains(u"a.mp3"_qs));
    EXPECT_TRUE(windows->Renamer().isEnabled());
}

TEST_F(Session, FileListsAreKeptByTheMenuAndByTheManager)
{
    Start();
    GoToFolder(u"Music"_qs);
    Click(Main(), "Command8");
    QWidget& manager = In(Main(), "frmListMan");
    const auto save = [&](const QString& name) {
        In<QLineEdit>(manager, "Text1").setText(name);
        Click(manager, "Command1");
        return answers.TakeMessages().join(u'|');
    };
    EXPECT_EQ(save({}), u"File Lists: Please give a file list name"_qs);
    EXPECT_EQ(save(u"tape"_qs), u"File Lists: Please select the file type and files"_qs);
    In<QComboBox>(Main(), "cmbFileType").setCurrentIndex(1);
    EXPECT_EQ(save(u"tape"_qs), u"File Lists: Please select files"_qs);
    Rows().SetChecked(1, true);
    EXPECT_EQ(save(u"tape"_qs), QString());
    EXPECT_EQ(save(u"Tape"_qs), u"File Lists: File List Name already exists.Please give a different name"_qs);
    EXPECT_EQ(program.Content(u"FileLists/tape.lst"_qs), (home.Path() + u"Music/a.mp3\r\n"_qs).toUtf8());

    answers.fileToChoose = home.Path() + u"saved.lst"_qs;
    Choose(u"mnuFSave"_qs);
    program.Write(u"FileLists/tape.lst"_qs,
                  (home.Path() + u"gone\r\n"_qs + home.Path() + u"Other/e.txt\r\n"_qs).toUtf8());
    In<QListWidget>(manager, "list1").setCurrentRow(0);
    Click(manager, "Command4");
    EXPECT_EQ(answers.TakeMessages().join(u'|'),
              u"File Lists: "_qs + home.Path() + u"gone does not exist"_qs);
    EXPECT_TRUE(!manager.isVisible() && Rows().Count() == 2 && Items() == u"0"_qs);
    Choose(u"mnuFLoad"_qs);
    EXPECT_EQ(Names() + Items(), u"a.mp31"_qs);
    answers.fileToChoose = home.Path() + u"Other/e.txt"_qs;
    Choose(u"mnuFLoad"_qs);
    EXPECT_EQ(answers.TakeMessages().join(u'|'), u"Tarnwick: Invalid File"_qs);
    EXPECT_EQ(Names(), u"a.mp3"_qs);
}

TEST_F(Session, BookmarksAreNamedChosenAndKept)
{
    Start();
    GoToFolder(u"Music"_qs);
    const auto add = [&](const QString& folder, auto answer) {
        GoToFolder(folder);
        Click(Main(), "Command5");
        answer(In(Main(), "frmBName"));
        EXPECT_FALSE(In(Main(), "frmBName").isVisible());
    };
    const auto accept = [](QWidget& window) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    };
    add(u"Music"_qs, [&](QWidget& window) {
        EXPECT_TRUE(window.isVisible());
        QTest::keyClicks(window.focusWidget(), u"Tapes"_qs);
        accept(window);
    });
    add(u"Music"_qs, accept); // it has one
    add(u"Other"_qs, [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); });
    Click(Main(), "cmdPref");
    add(u"Other"_qs, [&](QWidget& window) {
        Click(window, "Check1");
        EXPECT_FALSE(In<QCheckBox>(In(Main(), "frmPref"), "chkBkr").isChecked());
        accept(window);
    });
    GoToFolder(u"Music"_qs);
    Click(Main(), "cmdBookmarks");
    QWidget& bookmarks = In(Main(), "frmBookmarks");
    auto& names = In<QListWidget>(bookmarks, "lstNames");
    auto& folders = In<QListWidget>(bookmarks, "lstBookmarks");
    ASSERT_EQ(names.count(), 2);
    EXPECT_EQ(names.item(0)->text() + names.item(1)->text(), u"TapesBookmark 1"_qs);
    QTest::mouseClick(names.viewport(), Qt::LeftButton, {}, names.visualItemRect(names.item(1)).center());
    EXPECT_EQ(folders.currentRow(), 1);
    EXPECT_EQ(Names(), u"e.txt"_qs) << "the click goes there";
    In<QMenu>(bookmarks, "mnuPopup").findChild<QAction*>(u"mnuOnTop"_qs)->trigger();
    Click(Main(), "chkOnTop");
    EXPECT_FALSE(bookmarks.findChild<QAction*>(u"mnuOnTop"_qs)->isChecked());
    for (QListWidget* list : {&names, &folders}) {
        list->clearSelection();
    }
    QTest::keyClick(&folders, Qt::Key_Delete);
    EXPECT_EQ(names.count(), 2) << "nothing is selected";
    folders.setCurrentRow(0);
    QTest::keyClick(&folders, Qt::Key_Delete);
    EXPECT_EQ(folders.item(0)->text() + u'/', home.Path() + u"Other/"_qs);
    Click(Main(), "cmdQuit");
    EXPECT_EQ(program.Content(u"bookmarks.bks"_qs),
              (u"Bookmark 1\r\n"_qs + home.Path() + u"Other\r\n"_qs).toUtf8());
    EXPECT_EQ(program.Content(u"Quillmark.ini"_qs).split('\n').at(6), "1\r")
        << "names aren't asked for any more";

    Start();
    Click(Main(), "cmdBookmarks");
    In(Main(), "frmBookmarks").findChild<QAction*>(u"mnuClearAll"_qs)->trigger();
    In(Main(), "frmBookmarks").close();
    EXPECT_EQ(program.Content(u"bookmarks.bks"_qs), "");
}

TEST_F(Session, TheLayoutHoldsAndEveryControlIsReachedByKeys)
{
    Start();
    Main().resize(10, 10);
    EXPECT_TRUE(Main().width() == 700 && Main().height() == 660) << "the least size";
    Main().resize(1000, 800);
    QStringList chain;
    QWidget* const first = &In(Main(), "ftv");
    first->setFocus();
    do {
        QWidget* const at = QApplication::focusWidget();
        chain << at->objectName();
        EXPECT_TRUE(!at->accessibleName().isEmpty() || !at->property("text").toString().isEmpty())
            << at->objectName().toStdString();
        QTest::keyClick(at, Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && chain.size() < 40);
    for (const char* name :
         {"Check2", "Check6", "cmbFileType", "txtFilter", "Check1", "cmdRename", "Command1", "Command8",
          "cmdPref", "cmdStopSrch", "chkOnTop", "cmdQuit", "Text2"}) {
        EXPECT_TRUE(chain.contains(QLatin1String(name))) << name;
    }
    Command(1039);
    EXPECT_FALSE(In(Main(), "frmHelp").findChild<QTextBrowser*>()->toPlainText().isEmpty());
    Click(Main(), "chkOnTop");
    QWidget& renamer = windows->Renamer();
    Click(Main(), "cmdRename");
    Click(renamer, "chkOnTop");
    EXPECT_FALSE(In<QCheckBox>(Main(), "chkOnTop").isChecked()) << "one window switches the other off";
}

TEST(Splash, EndsAtAnyKeyAndItsButtonAsksForTheMainWindow)
{
    app::frmSplash splash;
    int skipped = 0;
    QObject::connect(&splash, &app::frmSplash::Skipped, [&] { ++skipped; });
    for (const int wanted : {0, 1}) {
        splash.show();
        auto& skip = Find<QPushButton>(splash, u"cmdSkip"_qs);
        wanted == 0 ? QTest::keyClick(&skip, Qt::Key_A) : QTest::mouseClick(&skip, Qt::LeftButton);
        EXPECT_TRUE(!splash.isVisible() && skipped == wanted);
    }
}

} // namespace
