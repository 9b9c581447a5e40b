// SPDX-License-Identifier: MIT
//
// The run log is the only report of a failed rename: every line of it must be on show, whatever its texts
// hold, and failures must stand out.
#include "Desk.h"
#include "workspace/ui/frmLog.h"

namespace {

using ui_tests::Desk;
using ui_tests::Find;

// Lines of a log's file, and the cells that show each; "!" stands behind a red one.
const std::pair<QByteArray, QString> LogLines[] = {
    {"/f/ : a : b : Rename Successful", u"/f/|a|b|Rename Successful"_qs},
    {"/f/ : c : d : File not found", u"/f/|c|d|File not found!"_qs},
    {"/f/ : a : b : odd : very odd", u"/f/|a|b|odd : very odd!"_qs}, // a result keeps its separators
    {"/f : g/ : a : b : Rename Successful", u"/f|g/|a|b : Rename Successful!"_qs}, // one in the path shifts
    {"/f/ : a", u"/f/|a||!"_qs},                                                   // a short line
};

TEST(RenameLog, ShowsEveryLineOfTheFile)
{
    testing_support::TempFolder folder;
    workspace::RunLog log;
    const QAbstractItemModelTester tester(&log, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QByteArray file;
    for (const auto& [line, cells] : LogLines) {
        file += line + "\r\n";
    }
    folder.Write(u"templog.log"_qs, file);
    log.Load(folder.Path() + u"templog.log"_qs);
    ASSERT_EQ(log.rowCount(), std::ssize(LogLines));
    for (int row = 0; row < log.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < log.columnCount(); ++column) {
            const QModelIndex cell = log.index(row, column);
            const bool isRed = cell.data(workspace::RunLog::ColourRole).isValid();
            cells << cell.data().toString() + (isRed ? u"!"_qs : QString());
        }
        EXPECT_EQ(cells.join(u'|'), LogLines[row].second);
    }
    log.Load(folder.Path() + u"missing.log"_qs);
    EXPECT_EQ(log.rowCount(), 0);
}

TEST(RenameLog, OpensAfterARunWithItsFailuresInRedAndClosesOnEscape)
{
    Desk desk(QStringList{u"a.txt"_qs, u"b.txt"_qs});
    desk.state.ShowRenameLog = 1;
    desk.Click("cmdRefresh");
    desk.GoTo(model::ActionKind::ReplaceAll, true);
    desk.Type("cmbAll", "same");
    desk.Click("cmdPreview");
    desk.Click("cmdExecute");
    EXPECT_EQ(desk.files.Names(), (QStringList{u"b.txt"_qs, u"same.txt"_qs}));

    auto& log = desk.Find<workspace::frmLog>("frmLog");
    auto& grid = Find<QTableView>(log, u"GridLog"_qs);
    ASSERT_TRUE(QTest::qWaitFor([&log] { return QApplication::activeWindow() == &log; }));
    for (const int width : {800, 1000}) {
        log.resize(width, 400);
        EXPECT_TRUE(QTest::qWaitFor([&] { return grid.viewport()->width() > width - 60; }));
        for (int column = 0; column < 4; ++column) {
            EXPECT_NEAR(grid.columnWidth(column), grid.viewport()->width() / 4.0, 4) << column;
        }
    }
    const QImage picture = grid.viewport()->grab().toImage();
    const auto colourOf = [&](int row) {
        const QRect cell = grid.visualRect(grid.model()->index(row, workspace::RunLog::Result));
        return picture.pixelColor(cell.topRight() - QPoint(4, -4)).name();
    };
    EXPECT_NE(colourOf(0), u"#ff0000"_qs);
    EXPECT_EQ(colourOf(1), u"#ff0000"_qs);
    QTest::keyClick(&grid, Qt::Key_Escape);
    EXPECT_FALSE(log.isVisible());
}

} // namespace
