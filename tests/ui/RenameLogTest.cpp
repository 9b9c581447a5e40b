// SPDX-License-Identifier: MIT
//
// The run log is the only report of a failed rename: every line of it must be on show, whatever its texts
// hold, and failures must stand out.
#include "Desk.h"
#include "workspace/ui/frmLog.h"

#include <QTableView>

namespace {

using ui_tests::Desk;
using ui_tests::Find;

struct LogCase
{
    const char* name;
    QByteArray file;
    const char* cells; // fields by "|", rows by "/"; "!" behind a red cell
};

const LogCase LogCases[] = {
    {"an empty file has no rows", "", ""},
    {"a success is plain and a failure red",
     "/f/ : a : b : Rename Successful\r\n/f/ : c : d : File not found\r\n",
     "/f/|a|b|Rename Successful/f/|c|d|File not found!"},
    {"a result keeps its own separators", "/f/ : a : b : odd : very odd\r\n", "/f/|a|b|odd : very odd!"},
    {"a separator in the path shifts the fields", "/f : g/ : a : b : Rename Successful\r\n",
     "/f|g/|a|b : Rename Successful!"},
    {"a short line leaves the last fields empty", "/f/ : a\r\n", "/f/|a||!"},
};

QString CellsOf(const QAbstractItemModel& log)
{
    QString cells;
    for (int row = 0; row < log.rowCount(); ++row) {
        for (int column = 0; column < log.columnCount(); ++column) {
            const QModelIndex cell = log.index(row, column);
            cells += (column > 0 ? u"|"_qs : QLatin1String()) + cell.data().toString();
            if (cell.data(workspace::RunLog::ColourRole).isValid()) {
                cells += QLatin1Char('!');
            }
        }
    }
    return cells;
}

TEST(RenameLog, ShowsEveryLineOfTheFile)
{
    testing_support::TempFolder folder;
    workspace::RunLog log;
    const QAbstractItemModelTester tester(&log, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const LogCase& row : LogCases) {
        folder.Write(u"templog.log"_qs, row.file);
        log.Load(folder.Path() + u"templog.log"_qs);
        EXPECT_EQ(CellsOf(log), QLatin1String(row.cells)) << row.name;
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
            EXPECT_NEAR(grid.columnWidth(column), grid.viewport()->width() / 4, 4) << column;
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
