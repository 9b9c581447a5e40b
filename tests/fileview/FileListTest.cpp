// SPDX-License-Identifier: MIT
#include "fileview/FileInfo.h"
#include "fileview/ListFixture.h"

#include <QDateTime>

namespace {

using namespace fileview;

using FileRows = fileview_tests::ListFixture;

TEST_F(FileRows, TellFilesAsTheyWereFoundInTheLocalTime)
{
    const std::tuple<int, QDateTime, QString> cases[] = {
        {0, QDateTime({2024, 3, 7}, {12, 30}), u"1KB 2024/3/7 12:30:00"_qs},
        {1023, QDateTime({2024, 3, 7}, {0, 30}), u"1KB 2024/3/7 0:30:00"_qs},
        {1024, QDateTime({1999, 12, 17}, {13, 5, 9}), u"2KB 1999/12/17 1:05:09"_qs},
        {1024 * 1023, QDateTime({1969, 1, 1}, {23, 59, 59}), u"1,024KB 1969/1/1 11:59:59"_qs},
    };
    for (const auto& [size, time, texts] : cases) {
        list.Clear();
        folder.Write(u"x.txt"_qs, QByteArray(size, 'x'));
        folder.SetModified(u"x.txt"_qs, time.toSecsSinceEpoch());
        List(u"x.txt"_qs);
        EXPECT_EQ(list.Cols({}, u" "_qs, false, std::array{3, 5}), texts);
    }
    EXPECT_EQ(SizeTextOf((3LL << 32) + 1021), u"2KB"_qs) << "the high half counts as plain units";
    EXPECT_EQ(DateTextOf(-20'000'000'000), QString()) << "before 1601";
    folder.MakeFolder(u"dir.txt"_qs);
    List(u"dir.txt gone"_qs);
    EXPECT_EQ(list.Cols(u";"_qs, u"|"_qs, false, std::array{3, 4}),
              u"1,024KB|%1;|File Folder;|"_qs.arg(platform::TypeTexts().OfFile(u"x.txt"_qs)));
    EXPECT_EQ(list.Row(3, u"|"_qs, false), u"gone|%1|||"_qs.arg(folder.Path()));
}

TEST_F(FileRows, AreReadAsText)
{
    ListTexts(u"2KB|"_qs, FileList::Size);
    list.SetCell(1, FileList::Path, u"p/"_qs);
    list.SetCell(2, FileList::Path, u"q/"_qs);
    const QString one = u"none|p/|2KB||"_qs, two = u"none|q/|||"_qs, bar = u"|"_qs, semi = u";"_qs;
    const std::vector<int> rows{2, 9, 1, 0}, columns{0, -5, 1, 3, 2};
    const std::pair<QString, QString> texts[] = {
        {list.Row(1, bar, false) + list.Row(1, bar, true), one + u"1|"_qs + one},
        {list.Row(0, bar, true) + list.Row(3, bar, true) + list.Row(-1, bar, false), {}},
        {list.Rows(semi, bar, true, rows), u"2|%1;;1|%2;"_qs.arg(two, one)},
        {list.RowsArray(rows, semi, bar, false), u"%1;;%2;"_qs.arg(two, one)},
        {list.Col(3, u","_qs, true) + list.Col(0, bar, true) + list.Col(6, bar, true), u"1\t2KB,2\t"_qs},
        {list.Cols(semi, bar, false, columns), u"none|none|none|2KB|p/;none|none|none||q/"_qs},
        {list.Cols(semi, bar, true, std::array{3}), u"1|2KB;2|"_qs},
        {list.Cell(1, 3) + list.Cell(1, 6) + list.Cell(3, 1) + list.Cell(0, 1), u"2KB"_qs},
    };
    for (const auto& [text, expected] : texts) {
        EXPECT_EQ(text, expected);
    }
    list.SetColumnHeaders(ColumnsOf(u"|Text=one|\r\n|Text=two|"_qs));
    EXPECT_EQ(list.Row(1, bar, true), u"1|none|p/"_qs) << "as many columns as there are headers";
}

TEST_F(FileRows, AreCheckedAndThoseThatAreThereTwiceGoButForTheFirst)
{
    List(u"b/x a A b/x x a c/x b/x"_qs);
    std::vector<int> items{7};
    EXPECT_TRUE(list.GetCheckedItems(items) == 0 && items == std::vector{7}) << "left as it was";
    list.SetChecked(1, true);
    EXPECT_TRUE(list.setData(list.index(6, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(list.GetCheckedItems(items) == 2 && items == (std::vector{1, 7}));
    const QPersistentModelIndex kept = list.index(6, 0), removed = list.index(3, 0);
    list.RemoveDuplicates();
    EXPECT_EQ(Rows(), u"b/x* a A x c/x*"_qs);
    EXPECT_TRUE(kept.row() == 4 && !removed.isValid());
    list.Clear();
    List(u"a "_qs.repeated(32'768).chopped(1));
    list.RemoveDuplicates();
    EXPECT_EQ(list.Count(), 32'768) << "too many to be compared";
    list.RemoveIf([this](const model::FileRow& row) { return &row == &list.Item(1); });
    list.RemoveDuplicates();
    EXPECT_EQ(list.rowCount(), 1);
}

TEST_F(FileRows, ShareIconsByTypeButForPrograms)
{
    const QByteArray start = QByteArray("MZ").leftJustified(60, 'x') + QByteArray("@\0\0\0", 4);
    const QByteArray windows = start + QByteArray("PE\0\0", 4).leftJustified(72, 'x') + '\x04';
    const std::tuple<const char*, QByteArray, QString, QString> cases[] = {
        {"a Windows program", windows, u"Application"_qs, u"none"_qs},
        {"one of the first", start + QByteArray("NE").leftJustified(63, '\3'), u"application"_qs, u"none"_qs},
        {"a DOS program, in Korean", start, u"ÀÀ¿ë ÇÁ·Î±×·¥"_qs, u"DOSExeIcon"_qs},
        {"cut off", windows.left(136), u"APPLICATION"_qs, u"DOSExeIcon"_qs},
        {"a header past its end", start.left(60) + "\xFF\xFF\xFF\xFF", u"Application"_qs, u"DOSExeIcon"_qs},
        {"a shortcut, in Korean", {}, u"¹Ù·Î °¡±â"_qs, u"none"_qs},
        {"no program by its type", windows, u"Song"_qs, u"Song"_qs},
    };
    for (const auto& [name, bytes, type, iconKey] : cases) {
        list.Clear();
        folder.Write(u"none"_qs, bytes);
        ListTexts(type, FileList::Type);
        const FileInfoRecord record = RecordOf(list.Item(1));
        EXPECT_EQ(record.IconKey, iconKey) << name;
        EXPECT_EQ(record.IsProgram, type != u"Song") << name;
        EXPECT_EQ(record.IsDosProgram, iconKey == u"DOSExeIcon") << name;
    }
}

TEST_F(FileRows, AreOrderedAsTheirColumnAsks)
{
    constexpr int Magnitude = 3; // a data type of its own, here
    const std::tuple<const char*, int, QString> cases[] = {
        // the texts, then the same sorted
        {"sizes", ldtNumber, u"2KB|1,024KB|10KB > 2KB|10KB|1,024KB"_qs},
        {"numbers below 0", ldtNumber, u"0|-1|5|-10|-1.5 > -10|-1.5|-1|0|5"_qs},
        {"no number is 0", ldtNumber, u"12|x|3KB||-1|,5 > -1|x||3KB|,5|12"_qs},
        {"other forms", ldtNumber, u"&HF|1e1| 7 |0.5|.2|07|1e-400 > 1e-400|.2|0.5| 7 |07|1e1|&HF"_qs},
        {"dates", ldtDateTime, u"2024/10/1|2024/9/30 9:00:00 > 2024/9/30 9:00:00|2024/10/1"_qs},
        {"afternoons as they read", ldtDateTime,
         u"2024/3/7 11:00:00|2024/3/7 1:05:09 > 2024/3/7 1:05:09|2024/3/7 11:00:00"_qs},
        {"no date has the one before it", ldtDateTime,
         u"no|2024/3/8|soon|2024/3/7|2024/2/30|2024/3/9 > no|2024/3/7|2024/2/30|2024/3/8|soon|2024/3/9"_qs},
        {"names", ldtString, u"a10.txt|B.txt|a1.txt|a02.txt|b.a > a02.txt|a1.txt|a10.txt|b.a|B.txt"_qs},
        {"by magnitude", Magnitude, u"b.mp3|a10.mp3|a02.mp3|A007.mp3 > a02.mp3|A007.mp3|a10.mp3|b.mp3"_qs},
        {"the first's don't count", Magnitude, u"a100.mp3|a20.mp3|a3.mp3 > a3.mp3|a100.mp3|a20.mp3"_qs},
        {"nor do inner ones", Magnitude, u"9x.mp3|10x.mp3|10x2.mp3 > 10x.mp3|10x2.mp3|9x.mp3"_qs},
        {"short names", Magnitude, u"zz|b10.txt|b2.txt|a|abcd > abcd|a|b2.txt|b10.txt|zz"_qs},
    };
    for (const auto& [sentence, dataType, texts] : cases) {
        list.SetSorted(false);
        list.Clear();
        ListTexts(texts.section(u" > "_qs, 0, 0), FileList::Name);
        list.SortCustom(FileList::Name, true, dataType % Magnitude, dataType == Magnitude);
        EXPECT_EQ(list.Col(FileList::Name, u"|"_qs, false), texts.section(u" > "_qs, 1)) << sentence;
    }
    list.SetSorted(false);
    list.Clear();
    ListTexts(u"t10|t9|Song"_qs, FileList::Type);
    list.SortCustom(FileList::Type, true, ldtString, true);
    EXPECT_EQ(list.Col(FileList::Type, u"|"_qs, false), u"Song|t10|t9"_qs) << "types aren't names";
}

TEST_F(FileRows, KeepTheirOrderWhereTheyAreEqualAndComeIntoPlaceLater)
{
    List(u"c a d b"_qs);
    for (const bool ascending : {true, false, true}) {
        list.SortCustom(FileList::Size, ascending, ldtNumber);
        EXPECT_EQ(Rows(), u"c a d b"_qs) << ascending;
    }
    const QPersistentModelIndex d = list.index(2, 1);
    list.SetChecked(3, true);
    list.SetSortKey(0);
    EXPECT_EQ(Rows(), u"a b c d*"_qs);
    list.SetSortOrder(lvwDescending);
    EXPECT_TRUE(d.row() == 0 && d.column() == 1) << "an index follows its row";
    list.Lock();
    List(u"bb e"_qs);
    list.Unlock();
    EXPECT_EQ(Rows(), u"e d* c bb b a"_qs);
    list.RemoveIf([](const model::FileRow& row) { return row.Text == u"e" || row.Text == u"c"; });
    EXPECT_TRUE(Rows() == u"d* bb b a" && d.row() == 0);
    list.SetSorted(false);
    List(u"z"_qs);
    EXPECT_EQ(Rows(), u"d* bb b a z"_qs) << "sorted no longer";
}

} // namespace
