// SPDX-License-Identifier: MIT
#include "platform/FileSystem.h"

#include "platform/ProgramFolder.h"
#include "platform/TextFile.h"
#include "support/Refusals.h"
#include "support/TempFolder.h"

#include <QStorageInfo>

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using namespace platform;
using namespace testing_support;

static int refusal = 0; // the errno value with which renameat2 refuses RENAME_NOREPLACE; 0: it works

// Stands before the library's function, for the sake of file systems that can't refuse an existing target.
extern "C" int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                         unsigned int flags) noexcept
{
    errno = refusal;
    const bool isRefused = refusal != 0 && flags != 0;
    return isRefused ? -1 : static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

namespace {

// A folder with one of everything; the folder `other` is reached through a link.
void Fill(TempFolder& folder, TempFolder& other)
{
    for (const QString& name : {u"file"_s, u"b*?[c]"_s, u"\xDCFF\uFEFF"_s, u"dir/in"_s, u"locked/in"_s}) {
        folder.Write(name, name.toUtf8());
    }
    folder.Write(u"big"_s, QByteArray(10'000, 'x'));
    folder.SetModified(u"file"_s, 1'000'000'001);
    folder.SetMode(u"file"_s, 0440);
    folder.SetMode(u"locked"_s, 0555);
    folder.MakeFolder(u"empty"_s);
    folder.MakeLink(u"link"_s, u"file"_s);
    folder.MakeLink(u"dangling"_s, u"nowhere"_s);
    folder.MakeLink(u"there"_s, other.Path());
    other.Write(u"taken"_s, "taken");
    other.MakeLink(u"dangling"_s, u"nowhere"_s);
}

// Every name below the folder with what it holds, sorted; a file's mode and time too.
QStringList Picture(const TempFolder& folder)
{
    QStringList picture;
    for (const auto& entry : fs::recursive_directory_iterator(qPrintable(folder.Path()))) {
        picture.append(FromBytes(entry.path().string()));
        if (entry.is_symlink()) {
            picture.last() += u" -> "_s + QString::fromStdString(read_symlink(entry.path()));
        } else if (entry.is_regular_file()) {
            const QString name = picture.last().mid(folder.Path().size());
            const auto time = entry.last_write_time().time_since_epoch().count();
            picture.last() += u" %1 %2 "_s.arg(folder.Mode(name)).arg(time) + FromBytes(folder.Content(name));
        }
    }
    picture.sort();
    return picture;
}

using Move = Status (FileSystem::*)(const QString&, const QString&, const QString&);

// Moves each "name > new name" in a folder of its own, with room for 5,000 bytes and where renameat2 answers
// `answer`. Each fails with the text before it, or, where that is empty, works and is moved back.
void ExpectMoves(Move move, int answer, std::initializer_list<std::pair<QString, QString>> rows)
{
    for (const auto& [failure, moves] : rows) {
        for (const QString& text : moves.split(u", "_s)) {
            SCOPED_TRACE(text.toStdString());
            const QString from = text.section(u" > "_s, 0, 0), to = text.section(u" > "_s, 1);
            TempFolder folder, other(u"/dev/shm"_s);
            if (text.contains(u"there/") && QStorageInfo(folder.Path()) == QStorageInfo(other.Path())) {
                continue; // the temporary folder is in /dev/shm itself
            }
            folder.SetMode({}, 0777);
            other.SetMode({}, 0777);
            const OrdinaryUser user;
            Fill(folder, other);
            const QStringList before = Picture(folder) + Picture(other);
            const FullDisk limit(5'000);
            refusal = answer;
            EXPECT_EQ((FileSystem().*move)(folder.Path(), from, to).Description(), failure);
            if (failure.isEmpty()) {
                EXPECT_FALSE(folder.Exists(from));
                EXPECT_EQ((FileSystem().*move)(folder.Path(), to, from).Description(), QString());
            }
            refusal = 0;
            EXPECT_EQ(Picture(folder) + Picture(other), before);
        }
    }
}

const QString Exists = u"File already exists"_s, NoFile = u"File not found"_s, NoPath = u"Path not found"_s,
              Denied = u"Permission denied"_s, Invalid = u"Invalid argument"_s;

TEST(Move, AFileMovesOrStaysAndNeverOverwrites)
{
    for (const int answer : {0, EINVAL, ENOSYS, EOPNOTSUPP}) {
        ExpectMoves(&FileSystem::MoveFile, answer,
                    {{{}, u"file > new, file > FILE, b*?[c] > *, \xDCFF\uFEFF > \uFEFF\xDCC3x"_s},
                     {{}, u"file > dir/new, dir/in > new, file > /empty/new, file > there/new"_s},
                     {{}, u"link > new, dangling > new, dangling > there/new, big > "_s + QString(255, u'x')},
                     {u"File name too long"_s, u"file > "_s + QString(128, u'\u00FC')},
                     {Exists, u"file > big, dir/in > file, file > file, file > empty, file > , file > .."_s},
                     {Exists, u"big > link, link > file, file > dangling, link > dangling"_s},
                     {Exists, u"file > there/taken, file > there/dangling, link > there/taken"_s},
                     {NoPath, u"file > no/new, file > big/new, no/a > b, file > there/no/a"_s},
                     {NoFile, u"no > new, no > dir/new, no > there/a, no > , f* > a,  > ../a, file\0x > a"_s},
                     {Denied, u"locked/in > new, locked/in > there/new, file > locked/new"_s},
                     {u"File too large"_s, u"big > there/new"_s},
                     {Invalid, u"file > new\0x"_s}});
    }
}

TEST(Move, AFolderMovesOrStaysAndNeverOverwrites)
{
    ExpectMoves(&FileSystem::MoveFolder, 0,
                {{{}, u"dir > new, dir > Dir, dir > empty/new"_s},
                 {Exists, u"dir > empty, dir > file, dir > link, dir > dangling"_s},
                 {NoPath, u"no > new, no > dir/new,  > ../new"_s},
                 {Denied, u"dir > locked/new"_s},
                 {Invalid, u"dir > dir/new"_s},
                 {u"This folder can't be moved there"_s, u"dir > there/new"_s}});
    for (const int answer : {EINVAL, ENOSYS, EOPNOTSUPP}) {
        const QString risk = u"This file system can't rename without the risk of overwriting"_s;
        ExpectMoves(&FileSystem::MoveFolder, answer, {{risk, u"dir > new, dir > empty"_s}});
    }
}

TEST(FileSystem, AFolderThatMovedMeanwhileIsLookedUpAnew)
{
    for (const auto& [from, up] : {std::pair(u""_s, u""_s), std::pair(u"a/"_s, u"../"_s)}) {
        TempFolder folder;
        folder.Write(u"a/file"_s);
        FileSystem files;
        EXPECT_TRUE(files.FileExists(folder.Path() + u"a/"_s, u"file"_s));
        EXPECT_TRUE(files.MoveFolder(folder.Path() + from, up + u'a', up + u'b').IsOk());
        EXPECT_FALSE(files.FileExists(folder.Path() + u"a/"_s, u"file"_s)) << qPrintable(up);
    }
}

TEST(FileSystem, LooksThroughLinksAndMakesWritable)
{
    TempFolder folder;
    folder.Write(u"dir/\xDCFF"_s, "12345");
    folder.SetModified(u"dir/\xDCFF"_s, -1);
    folder.SetMode(u"dir/\xDCFF"_s, 0444);
    folder.MakeLink(u"link"_s, u"dir/\xDCFF"_s);
    folder.MakeLink(u"dangling"_s, u"none"_s);
    const QByteArray path = ToBytes(folder.Path() + u"link"_s);
    const bool takesMarks = ::setxattr(path.constData(), "user.DOSATTRIB", "0x2", 3, 0) == 0;
    FileSystem files;
    const auto info = files.GetInfo(folder.Path(), u"link"_s).value_or(FileInfo());
    EXPECT_TRUE(!info.isFolder && info.size == 5 && info.modified == -1);
    EXPECT_TRUE(files.FileExists(folder.Path(), u"dangling"_s));
    for (const QString& name : {QString(), u"dir"_s, u"none"_s, u"none/x"_s, u"link/x"_s, u"link\0x"_s}) {
        EXPECT_FALSE(files.FileExists(folder.Path(), name)) << qPrintable(name);
    }
    if (const OrdinaryUser user; ::getuid() == 0) {
        EXPECT_FALSE(files.SetNormalAttributes(folder.Path(), u"link"_s).IsOk()) << "somebody else's";
    }
    EXPECT_TRUE(files.SetNormalAttributes(folder.Path(), u"link"_s).IsOk());
    EXPECT_EQ(folder.Mode(u"link"_s), 0644U);
    EXPECT_TRUE(!takesMarks || ::getxattr(path.constData(), "user.DOSATTRIB", nullptr, 0) < 0);
}

TEST(ProgramFolder, IsTheUsersDataFolderMadeOnlyOnRequest)
{
    TempFolder home;
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", home.Path().toUtf8() + "a/share");
    const auto folder = ProgramFolder::OfThisProcess();
    before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
    EXPECT_TRUE(folder.PathOf(u"x"_s).startsWith(home.Path() + u"a/share/"_s));
    EXPECT_EQ(home.Names(), QStringList()) << "a look at the folder must not make it";
    EXPECT_TRUE(folder.Ensure().IsOk() && folder.Ensure().IsOk() && home.Exists(u"a/share"_s));
    home.Write(u"file"_s);
    EXPECT_EQ(CreateFolder(home.Path() + u"file/"_s).Description(), Exists);
}

TEST(TextFile, ReadsLines)
{
    const std::pair<QByteArray, QString> rows[] = {
        // the lines each with "|" at its end
        {"a\r\n\nb\nc\rd\r\n", u"a||b|c\rd|"_s},
        {"\n\xE2\x82\xAC", u"|\u20AC|"_s},
        {"\xEF\xBB\xBF", {}}, // a byte order mark; a second one is text
        {"\xEF\xBB\xBF\xEF\xBB\xBF\n", u"\uFEFF|"_s},
        {"\x80\x81\x9F\n\xC3\xBC", u"\u20AC\u0081\u0178|\u00C3\u00BC|"_s}, // Windows-1252
        {QByteArray("a\0b\n", 4), u"a\0b|"_s},
    };
    TempFolder folder;
    for (const auto& [bytes, lines] : rows) {
        folder.Write(u"text"_s, bytes);
        const auto read = ReadLines(folder.Path() + u"text"_s).value();
        EXPECT_EQ(read.isEmpty() ? QString() : read.join(u'|') + u'|', lines);
    }
    ASSERT_EQ(::mkfifo(qPrintable(folder.Path() + u"pipe"_s), 0666), 0);
    for (const QString& name : {QString(), u"pipe"_s, u"missing"_s, u"text\0x"_s}) {
        EXPECT_FALSE(ReadLines(folder.Path() + name)) << qPrintable(name);
    }
}

TEST(TextFile, ADocumentReplacesWhatWasThereAndComesBack)
{
    TempFolder folder;
    folder.Write(u"own"_s, "old and much longer than the new one");
    folder.MakeLink(u"link"_s, u"own"_s);
    folder.SetMode(u"own"_s, 0640);
    const QStringList lines{u"\u20AC\uFEFF\U0001F600"_s, QString(), u"\xDCFF"_s, u" end "_s};
    ASSERT_TRUE(WriteDocument(folder.Path() + u"link"_s, lines).IsOk());
    EXPECT_EQ(ReadLines(folder.Path() + u"own"_s), lines);
    EXPECT_EQ(folder.Content(u"own"_s).count("\r\n"), 4);
    EXPECT_EQ(folder.Mode(u"own"_s), 0640U);
    EXPECT_EQ(folder.Names(), (QStringList{u"link"_s, u"own"_s}));
}

TEST(TextFile, ACopyOrADocumentIsWrittenWholeOrNotAtAll)
{
    TempFolder folder;
    folder.Write(u"old"_s, "old");
    folder.Write(u"locked/old"_s, "old");
    folder.Write(u"from"_s, QByteArray(100'000, 'x'));
    folder.SetMode(u"locked/old"_s, 0666);
    folder.SetMode(u"locked"_s, 0555);
    folder.SetMode(u"from"_s, 0604);
    folder.SetMode({}, 0777);
    ASSERT_EQ(::mkfifo(qPrintable(folder.Path() + u"pipe"_s), 0666), 0);
    const QStringList names = folder.Names();
    const auto failures = [&](const QString& name) {
        const QString to = folder.Path() + name;
        const QString document = WriteDocument(to, {QString(100'000, u'x')}).Description();
        return QStringList{document, CopyFile(folder.Path() + u"from"_s, to).Description()};
    };
    {
        const FullDisk limit(50'000);
        EXPECT_EQ(failures(u"old"_s), QStringList(2, u"File too large"_s));
    }
    folder.SetMode(u"old"_s, 0444);
    {
        const OrdinaryUser user;
        EXPECT_FALSE(WriteDocument(folder.Path() + u"old"_s, {}).IsOk()) << "a read-only file";
        EXPECT_EQ(failures(u"locked/old"_s), QStringList(2, Denied));
    }
    EXPECT_EQ(failures({}), QStringList(2, u"Is a directory"_s));
    EXPECT_EQ(failures(u"pipe"_s), QStringList(2, Denied)) << "a pipe isn't replaced";
    EXPECT_EQ(failures(u"missing/new"_s), QStringList(2, NoPath));
    EXPECT_EQ(failures(u"old\0x"_s), QStringList(2, Invalid));
    EXPECT_FALSE(CopyFile(folder.Path() + u"pipe"_s, folder.Path() + u"old"_s).IsOk());
    EXPECT_EQ(folder.Content(u"old"_s) + folder.Content(u"locked/old"_s), QByteArray("oldold"));
    EXPECT_TRUE(CopyFile(folder.Path() + u"from"_s, folder.Path() + u"old"_s).IsOk());
    EXPECT_TRUE(folder.Content(u"old"_s) == folder.Content(u"from"_s));
    EXPECT_EQ(folder.Mode(u"old"_s), 0604U) << "what was private stays private";
    EXPECT_EQ(folder.Names() + folder.Names(u"locked"_s), names + QStringList{u"old"_s});
}

TEST(TextWriter, KeepsWhatWasWrittenAndTellsTheFirstFailure)
{
    TempFolder folder;
    TextWriter log;
    const QByteArray line = QByteArray(30'000, 'x') + "\xE2\x82\xAC\xFF";
    for (const int room : {300'000, 100'000}) {
        ASSERT_TRUE(log.Create(folder.Path() + u"log"_s).IsOk());
        for (int count = 0; count < 7; ++count) {
            const FullDisk limit(count < 6 ? static_cast<rlim_t>(room) : RLIM_INFINITY);
            log.WriteLine(FromBytes(line));
        }
        EXPECT_EQ(log.Close().Description(), room < 300'000 ? u"File too large"_s : QString());
        EXPECT_TRUE(folder.Content(u"log"_s) == (line + "\r\n").repeated(7).left(room)) << "without a gap";
    }
    ASSERT_TRUE(log.Create(u"/dev/full"_s).IsOk());
    log.WriteLine(u"short"_s);
    EXPECT_EQ(log.Close().Description(), u"Disk full"_s);
    EXPECT_FALSE(log.Create(folder.Path() + u"missing/log"_s).IsOk() || log.Close().IsOk());
}

} // namespace
