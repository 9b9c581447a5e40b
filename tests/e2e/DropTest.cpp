// SPDX-License-Identifier: MIT
//
// A rename drop, run silently by the real program, as a file manager or a script starts it. These tests catch
// lost or mixed-up files, names that don't survive the command line, and anything but names that changes on
// the disk.
#include "documents/RenameDocument.h"
#include "e2e/Program.h"
#include "platform/NameBytes.h"
#include "support/TempFolder.h"

#include <QMap>

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace e2e {

namespace {

using actions::RenameOptions;
using model::ActionKind;

void Select(RenameOptions& options, ActionKind kind)
{
    for (auto& entry : options.List3.entries) {
        entry.Selected = entry.Selected || entry.text == model::NameOf(kind);
    }
}

// Puts `text` in the place of the first character.
RenameOptions FirstCharacterBecomes(const QString& text)
{
    RenameOptions options;
    Select(options, ActionKind::ReplaceFirst);
    options.replaceFirst.Text1 = QStringLiteral("1");
    options.replaceFirst.cmbFirst.combo = text;
    return options;
}

RenameOptions NumberedWithWidth(const QString& width)
{
    RenameOptions options;
    Select(options, ActionKind::ReplaceAll);
    options.replaceAll.cmbAll.combo = QStringLiteral("$Counter$");
    options.replaceAll.cmbAll.counter.text[actions::CounterBlock::PadTo] = width;
    return options;
}

class Drop : public testing::Test
{
protected:
    // Runs the program with a recipe of these options on `names` in the folder `files`.
    Program::Ended Run(const RenameOptions& options, const QStringList& names)
    {
        const QString path = recipes.Path() + QStringLiteral("my recipe.rnp");
        EXPECT_TRUE(documents::SaveRenameDrop(options, path).IsOk());
        return program.Run(files.Path(), QStringList(path) + names);
    }

    Program::Ended Run(const QString& recipe, const QStringList& names)
    {
        return program.Run(files.Path(), QStringList(recipe) + names);
    }

    // Makes each name a file that holds its name.
    void Put(const QStringList& names)
    {
        for (const QString& name : names) {
            files.Write(name, platform::ToBytes(name));
        }
    }

    // Each name in the folder with what the file holds.
    QMap<QString, QString> Contents() const
    {
        QMap<QString, QString> contents;
        for (const QString& name : files.Names()) {
            contents.insert(name, platform::FromBytes(files.Content(name)));
        }
        return contents;
    }

    static inline const Program::Ended Silently{0, {}};

    testing_support::TempFolder files;
    testing_support::TempFolder recipes;
    Program program;
};

QStringList SampleNames()
{
    return {QStringLiteral("DSC_0411.jpg"), QStringLiteral("DSC_0412.jpg"), QStringLiteral("DSC_0420.JPG")};
}

QString SampleRecipe(const char* name)
{
    return QStringLiteral(QUILLMARK_SAMPLES "/recipes/") + QString::fromLatin1(name);
}

} // namespace

void PrintTo(const Program::Ended& ended, std::ostream* out)
{
    *out << "exit status " << ended.exitStatus << ", output:\n" << ended.output.constData();
}

TEST_F(Drop, ThousandFilesAreNumberedInTheOrderOfTheCommandLine)
{
    QStringList names;
    QMap<QString, QString> expected;
    for (int position = 0; position < 1000; ++position) {
        names.append(QStringLiteral("file %1.txt").arg(position * 7 % 1000)); // not the order of the names
        expected.insert(QStringLiteral("%1.txt").arg(position + 1, 4, 10, QLatin1Char('0')), names.last());
    }
    Put(names);
    EXPECT_EQ(Run(NumberedWithWidth(QStringLiteral("4")), names), Silently);
    EXPECT_EQ(Contents(), expected);
}

TEST_F(Drop, AwkwardNamesSurviveTheCommandLine)
{
    const QList<QByteArray> awkward{"a blank.txt",
                                    "a  two blanks.txt",
                                    "a blank at the end ",
                                    "a\"quoted\".txt",
                                    "a\"one quote.txt",
                                    "a'apostrophe.txt",
                                    "a\\backslash.txt",
                                    "a backslash at the end\\",
                                    "a\\\"escaped.txt",
                                    "a\\\\\"twice.txt",
                                    "a\ttab.txt",
                                    "a\nnew line.txt",
                                    "a\xFF\xFE no UTF-8",
                                    "a\xC3( cut off",
                                    "a\xC3\xA9 accent.txt",
                                    "a$Counter$.txt",
                                    "a*?[x].txt",
                                    "a;&<>`.txt",
                                    "a.",
                                    "a.two.dots.txt"};
    QStringList names;
    QMap<QString, QString> expected;
    for (const QByteArray& bytes : awkward) {
        names.append(platform::FromBytes(bytes));
        expected.insert(QLatin1Char('X') + names.last().mid(1), names.last());
    }
    Put(names);
    EXPECT_EQ(Run(FirstCharacterBecomes(QStringLiteral("X")), names), Silently);
    EXPECT_EQ(Contents(), expected);
}

TEST_F(Drop, ACharacterIsNeverCutInHalf)
{
    const QString camera = QStringLiteral("\U0001F4F7.jpg");
    Put({camera});
    EXPECT_EQ(Run(FirstCharacterBecomes(QStringLiteral("X")), {camera}), Silently);
    EXPECT_EQ(files.Names(), QStringList(QStringLiteral("X.jpg")));
}

TEST_F(Drop, FilesStayInTheirFoldersAndFoldersKeepWhatTheyHold)
{
    files.Write(QStringLiteral("sub/a.txt"));
    files.Write(QStringLiteral("my.dir/b.txt"));
    files.Write(QStringLiteral("c.txt"));
    EXPECT_EQ(
        Run(NumberedWithWidth(QStringLiteral("3")),
            {QStringLiteral("sub/a.txt"), QStringLiteral("my.dir"), files.Path() + QStringLiteral("c.txt")}),
        Silently);
    EXPECT_EQ(files.Names(),
              QStringList({QStringLiteral("002"), QStringLiteral("003.txt"), QStringLiteral("sub")}));
    EXPECT_EQ(files.Names(QStringLiteral("sub")), QStringList(QStringLiteral("001.txt")));
    EXPECT_EQ(files.Names(QStringLiteral("002")), QStringList(QStringLiteral("b.txt")));
}

TEST_F(Drop, AnExistingTargetIsNeverOverwritten)
{
    const QStringList names{QStringLiteral("a1"), QStringLiteral("b1"), QStringLiteral("c2"),
                            QStringLiteral("d2")};
    Put(names);
    EXPECT_EQ(Run(FirstCharacterBecomes(QStringLiteral("b")), names), Silently);
    EXPECT_EQ(Contents(),
              (QMap<QString, QString>{{QStringLiteral("a1"), QStringLiteral("a1")}, // b1 was there
                                      {QStringLiteral("b1"), QStringLiteral("b1")},
                                      {QStringLiteral("b2"), QStringLiteral("c2")},
                                      {QStringLiteral("d2"), QStringLiteral("d2")}})); // c2 came first
    EXPECT_EQ(program.LeftBehind(), QStringList());                                    // no log, no settings
}

TEST_F(Drop, AFileThatIsGoneStopsNoOther)
{
    Put({QStringLiteral("a1"), QStringLiteral("a3")});
    EXPECT_EQ(Run(FirstCharacterBecomes(QStringLiteral("b")),
                  {QStringLiteral("a1"), QStringLiteral("a2"), QStringLiteral("a3")}),
              Silently);
    EXPECT_EQ(files.Names(), QStringList({QStringLiteral("b1"), QStringLiteral("b3")}));
}

TEST_F(Drop, NothingHappensWithoutARecipeThatSelectsAnAction)
{
    const struct
    {
        const char* row;
        QByteArray recipe;
    } rows[]{
        {"empty", {}},
        {"no recipe but a picture", QByteArray("\xFF\xD8\xFF\xE0\0\x10JFIF", 10)},
        {"a configuration, whose first line is a header", "File Rename Settings\r\nReplace All\r\nTrue\r\n"},
        {"a name that is no action", "Replace Everything\r\nTrue\r\n"},
        {"cut off within the first line", "Replace A"},
    };
    const QStringList names{QStringLiteral("a.txt"), QStringLiteral("b.txt")};
    Put(names);
    const auto before = Contents();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.row);
        recipes.Write(QStringLiteral("odd.rnp"), row.recipe);
        EXPECT_EQ(Run(recipes.Path() + QStringLiteral("odd.rnp"), names), Silently);
        EXPECT_EQ(Contents(), before);
    }
    EXPECT_EQ(Run(recipes.Path() + QStringLiteral("missing.rnp"), names), Silently);
    EXPECT_EQ(Run(FirstCharacterBecomes(QStringLiteral("b")), {}), Silently) << "no files";
    EXPECT_EQ(Contents(), before);
    EXPECT_EQ(program.LeftBehind(), QStringList());
}

TEST_F(Drop, TheSampleRecipesAreAsTheProgramWritesThem)
{
    for (const char* sample : {"harbour.rnp", "numbered.rnp"}) {
        SCOPED_TRACE(sample);
        RenameOptions options;
        documents::LoadRnp(options, SampleRecipe(sample));
        ASSERT_TRUE(documents::SaveRenameDrop(options, files.Path() + QStringLiteral("saved.rnp")).IsOk());
        std::ifstream stream(SampleRecipe(sample).toStdString(), std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(stream), {}};
        EXPECT_EQ(files.Content(QStringLiteral("saved.rnp")).toStdString(), content);
    }
}

TEST_F(Drop, TheSampleRecipesDoWhatTheirReadmeSays)
{
    Put(SampleNames());
    EXPECT_EQ(Run(SampleRecipe("harbour.rnp"), SampleNames()), Silently);
    const QStringList inCapitals{QStringLiteral("HARBOUR-001.jpg"), QStringLiteral("HARBOUR-002.jpg"),
                                 QStringLiteral("HARBOUR-003.JPG")};
    EXPECT_EQ(files.Names(), inCapitals);
    EXPECT_EQ(Run(SampleRecipe("numbered.rnp"), inCapitals), Silently);
    EXPECT_EQ(files.Names(), QStringList({QStringLiteral("photo-0001.jpg"), QStringLiteral("photo-0002.jpg"),
                                          QStringLiteral("photo-0003.JPG")}));
}

} // namespace e2e
