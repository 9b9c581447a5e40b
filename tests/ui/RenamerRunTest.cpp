// SPDX-License-Identifier: MIT
//
// The commands of the window, from a person's click to the disk: names come out as previewed or as edited by
// hand, STOP stops, and nothing is renamed that nobody saw.
#include "Desk.h"
#include "support/Words.h"
#include "workspace/ui/PreviewGrid.h"

namespace {

using model::ActionKind;
using testing_support::Words;
using ui_tests::Desk;

// A desk over these files on which capitals were previewed.
class CapitalsDesk : public Desk
{
public:
    explicit CapitalsDesk(const QStringList& names) : Desk(names)
    {
        Click("cmdRefresh");
        GoTo(ActionKind::ReplaceAll, true);
        Type("cmbAll", "$Upper_Case$");
        Click("cmdPreview");
    }

    QTableView& Grid() const { return Find<QTableView>("GridPre"); }

    QPoint CellAt(int row, int column) const
    {
        return Grid().visualRect(Grid().model()->index(row - 1, column - 1)).center();
    }

    // The box in which the Preview of `row` is edited, after a double click or a typed key.
    QLineEdit& Edit(int row, Qt::Key key)
    {
        const QPoint cell = CellAt(row, workspace::GridPre::Preview);
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, cell);
        if (key == Qt::Key_unknown) {
            QTest::mouseDClick(Grid().viewport(), Qt::LeftButton, {}, cell);
        } else {
            QTest::keyClick(&Grid(), key);
        }
        return Find<QLineEdit>("txtEdit");
    }
};

TEST(RenamerRun, RenamesOnDiskAsPreviewedAndAsEditedByHand)
{
    CapitalsDesk desk(Words(u"a.txt b.txt"_qs));
    EXPECT_EQ(desk.Find<QLabel>("Label1").text(), u"(2 Items)"_qs);
    EXPECT_EQ(desk.Previews(), Words(u"A.txt B.txt"_qs));
    QLineEdit& box = desk.Edit(2, Qt::Key_unknown);
    EXPECT_EQ(box.selectedText(), u"B.txt"_qs);
    QTest::keyClicks(&box, u"hand.txt"_qs);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desk.Previews() == Words(u"A.txt hand.txt"_qs); }));
    QTest::keyClick(&desk.Edit(2, Qt::Key_Y), Qt::Key_R, Qt::AltModifier); // the edit in progress counts
    EXPECT_TRUE(QTest::qWaitFor([&] { return desk.files.Exists(u"A.txt"_qs); }));

    EXPECT_EQ(desk.files.Names(), Words(u"A.txt yhand.txt"_qs));
    EXPECT_EQ(desk.Column(workspace::GridPre::Original), Words(u"A.txt yhand.txt"_qs));
    EXPECT_EQ(desk.Find<QLabel>("lblStatus").text(), u"Ready"_qs);
    EXPECT_EQ(desk.Find<QProgressBar>("ProgBar").value(), 0);
}

TEST(RenamerRun, ATypedKeyStandsInFrontAndEscapeLeavesTheCell)
{
    CapitalsDesk desk(Words(u"a.txt"_qs));
    QLineEdit& box = desk.Edit(1, Qt::Key_Q);
    EXPECT_EQ(box.text(), u"qA.txt"_qs);
    EXPECT_EQ(box.selectedText(), u"A.txt"_qs);
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(desk.Previews(), Words(u"A.txt"_qs));
    // Delete types nothing, and originals aren't edited.
    QTest::keyClick(&desk.Grid(), Qt::Key_Delete);
    desk.Grid().setCurrentIndex(desk.Grid().model()->index(0, 0));
    QTest::keyClick(&desk.Grid(), Qt::Key_Q);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desk.window.findChild<QLineEdit*>(workspace::NameEditor); }));
}

class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher() { QDesktopServices::setUrlHandler(u"file"_qs, this, "Catch"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(u"file"_qs); }

    QList<QByteArray> urls;

public Q_SLOTS:
    void Catch(const QUrl& url) { urls << url.toEncoded(); }
};

TEST(RenamerRun, ADoubleClickOnAnOriginalOpensTheFileByItsBytes)
{
    UrlCatcher catcher;
    CapitalsDesk desk(QStringList{u"50%#?\xDCE9 .txt"_qs});
    const QPoint original = desk.CellAt(1, workspace::GridPre::Original);
    QTest::mouseClick(desk.Grid().viewport(), Qt::LeftButton, {}, original);
    QTest::mouseDClick(desk.Grid().viewport(), Qt::LeftButton, {}, original);
    ASSERT_EQ(catcher.urls.size(), 1);
    EXPECT_EQ(catcher.urls.first(),
              QByteArray("file://" + desk.files.Path().toUtf8() + "50%25%23%3F%E9%20.txt"));
}

TEST(RenamerRun, StopEndsThePreviewAfterTheRowInProgress)
{
    Desk desk;
    model::RenameRow file;
    file.original = u"a.txt"_qs;
    desk.workspace.grid.SetRows({file, file, file});
    desk.GoTo(ActionKind::ReplaceAll, true);
    desk.Type("cmbAll", "$Upper_Case$");
    const auto stop = [&desk] {
        desk.Click("Command13");
    };
    QMetaObject::invokeMethod(&desk.window, stop, Qt::QueuedConnection); // reaches it during the run
    QTest::keyClick(&desk.Use("cmdPreview"), Qt::Key_Space);
    EXPECT_EQ(desk.Previews(), Words(u"A.txt ~ ~"_qs));
    EXPECT_TRUE(desk.state.StopFlag.IsSet());
    EXPECT_EQ(desk.Find<QLabel>("lblStatus").text(), u"Ready"_qs);
}

TEST(RenamerRun, ClearEmptiesThePreviewsAndAsksForANewOne)
{
    CapitalsDesk desk(Words(u"a.txt"_qs));
    desk.Click("cmdClear");
    EXPECT_EQ(desk.Previews(), Words(u"~"_qs));
    desk.Click("cmdExecute");
    EXPECT_EQ(desk.answers.TakeMessages(), QStringList{u"Renamer: Please Preview first,then Execute"_qs});
    EXPECT_EQ(desk.files.Names(), Words(u"a.txt"_qs));
}

TEST(RenamerRun, TheSortComboOrdersTheRowsUntilTheyAreRefreshed)
{
    Desk desk(Words(u"b a c"_qs));
    desk.Click("cmdRefresh");
    auto& sort = desk.Find<QComboBox>("Combo1");
    sort.setFocus();
    for (const QString& sorted : {u"a b c"_qs, u"c b a"_qs}) {
        QTest::keyClick(&sort, Qt::Key_Down);
        EXPECT_EQ(desk.Column(workspace::GridPre::Original), Words(sorted));
    }
    EXPECT_EQ(sort.currentText(), u"Name (Z-A)"_qs);
    desk.Click("cmdRefresh");
    EXPECT_EQ(desk.Column(workspace::GridPre::Original), Words(u"b a c"_qs));
    EXPECT_EQ(sort.currentIndex(), -1);
}

TEST(RenamerRun, ValidationPaintsTheCellsInTheLegendsColours)
{
    CapitalsDesk desk(Words(u"a.txt b.txt c.txt"_qs));
    desk.workspace.grid.SetPreview(2, u"A.txt"_qs);
    desk.workspace.grid.SetPreview(3, u"c.txt"_qs);
    desk.Click("cmdValidate");
    const QImage picture = desk.Grid().viewport()->grab().toImage();
    QStringList colours;
    for (int row = 1; row <= 3; ++row) {
        colours << picture.pixelColor(desk.CellAt(row, workspace::GridPre::Preview)).name();
    }
    EXPECT_EQ(colours, Words(u"#ff0000 #ff0000 #00ffff"_qs));
}

TEST(RenamerWindow, LeavesByExitOnlyAndClearsTheStopFlagWhenItIsActivated)
{
    Desk desk;
    QCloseEvent fromTitleBar;
    QSpontaneKeyEvent::setSpontaneous(&fromTitleBar);
    qApp->notify(&desk.window, &fromTitleBar);
    EXPECT_FALSE(fromTitleBar.isAccepted());
    EXPECT_TRUE(desk.window.isVisible());
    desk.Click("cmdClose");
    EXPECT_FALSE(desk.window.isVisible());
    EXPECT_TRUE(desk.state.StopFlag.IsSet());
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    desk.window.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desk.state.StopFlag.IsSet(); }));
}

TEST(RenamerWindow, OnTopIsRememberedAndKeepsTheWindowOnShow)
{
    Desk desk;
    QTest::keyClick(&desk.Use("chkOnTop"), Qt::Key_Space);
    EXPECT_EQ(desk.state.OnTopState, windowing::RenamerOnTop);
    EXPECT_TRUE(desk.window.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(desk.window.isVisible());
    EXPECT_FALSE(desk.window.windowFlags() & Qt::WindowCloseButtonHint);
    QTest::keyClick(&desk.Use("chkOnTop"), Qt::Key_Space);
    EXPECT_EQ(desk.state.OnTopState, 0);
}

TEST(RenamerWindow, ADropThatFailsIsTold)
{
    const auto fail = [](const QString&) {
        return platform::Status::Failure(u"Disk full"_qs);
    };
    Desk desk({}, {fail, {}, {}, {}});
    desk.Click("Command12"); // the dialog is cancelled
    EXPECT_EQ(desk.answers.TakeMessages(), QStringList());
    desk.answers.fileToChoose = desk.files.Path() + u"holiday"_qs;
    desk.Click("Command12");
    EXPECT_EQ(desk.answers.TakeMessages(), QStringList{u"Renamer: Disk full"_qs});
}

} // namespace

#include "RenamerRunTest.moc"
