// SPDX-License-Identifier: MIT
//
// A rename drop, run silently by the real program, as a file manager or a script starts it. These tests catch
// lost or mixed-up files, names that don't survive the command line, and anything but names that changes on
// the disk.
#include "documents/RenameDocument.h"
#include "e2e/Program.h"
#include "metadata/ExifBuilder.h"
#include "metadata/Mp3Builder.h"
#include "platform/NameBytes.h"

#include <gtest/gtest.h>

namespace e2e {

namespace {

// Replaces the first character or all of the base by `text`, or puts it in front.
actions::RenameOptions Replacing(model::ActionKind kind, const QString& text)
{
    actions::RenameOptions options;
    for (auto& entry : options.List3.entries) {
        entry.Selected = entry.text == model::NameOf(kind);
    }
    options.replaceFirst.Text1 = u"1"_qs;
    options.replaceFirst.cmbFirst.combo = options.replaceAll.cmbAll.combo = text;
    options.prefix.cmbPrefix.combo = text;
    return options;
}

class Drop : public testing::Test
{
protected:
    // Drops `names` in the folder `files` on a recipe; nothing is to be said and nothing to be left behind.
    void Run(const QString& recipe, const QStringList& names)
    {
        EXPECT_EQ(program.Run(files.Path(), QStringList(recipe) + names), "0 ");
        EXPECT_EQ(program.LeftBehind(), QStringList());
    }

    // The same with a recipe of these options.
    void Run(const actions::RenameOptions& options, const QStringList& names)
    {
        const QString recipe = recipes.Path() + u"my recipe.rnp"_qs;
        EXPECT_TRUE(documents::SaveRenameDrop(options, recipe).IsOk());
        Run(recipe, names);
    }

    // Makes each name a file that holds its name.
    void Put(const QStringList& names)
    {
        for (const QString& name : names) {
            files.Write(name, platform::ToBytes(name));
        }
    }

    // Each name in the folder with what the file holds: "new name=name".
    QStringList Contents() const
    {
        QStringList contents = files.Names();
        for (QString& name : contents) {
            name += u'=' + platform::FromBytes(files.Content(name));
        }
        return contents;
    }

    const actions::RenameOptions numbered = Replacing(model::ActionKind::ReplaceAll, u"$Counter$"_qs);
    const actions::RenameOptions firstBecomesX = Replacing(model::ActionKind::ReplaceFirst, u"X"_qs);
    testing_support::TempFolder files, recipes;
    Program program;
};

TEST_F(Drop, ThousandFilesAreNumberedInTheOrderOfTheCommandLine)
{
    QStringList names, expected;
    for (int position = 0; position < 1000; ++position) {
        names.append(u"file %1.txt"_qs.arg(position * 7 % 1000)); // not the order of the names
        expected.append(u"%1.txt="_qs.arg(position + 1, 3, 10, QLatin1Char('0')) + names.last());
    }
    Put(names);
    Run(numbered, names);
    expected.sort();
    EXPECT_EQ(Contents(), expected);
}

TEST_F(Drop, AwkwardNamesSurviveTheCommandLine)
{
    QStringList names{u"\U0001F4F7.jpg"_qs}, expected{u"X.jpg="_qs + names.first()}; // no half of a character
    const QByteArray awkwards =
        "a blank.txt|a  two blanks.txt|a blank at the end |a\"quoted\".txt|a\"one quote.txt|"
        "a'apostrophe.txt|a\\backslash.txt|a backslash at the end\\|a\\\"escaped.txt|"
        "a\\\\\"twice.txt|a\ttab.txt|a\nnew line.txt|a\xFF\xFE no UTF-8|a\xC3( cut off|"
        "a\xC3\xA9 accent.txt|a$Counter$.txt|a*?[x].txt|a;&<>`.txt|a.|a.two.dots.txt";
    for (const QString& awkward : platform::FromBytes(awkwards).split(u'|')) {
        names.append(awkward);
        expected.append(u'X' + awkward.mid(1) + u'=' + awkward);
    }
    Put(names);
    Run(firstBecomesX, names);
    expected.sort();
    EXPECT_EQ(Contents(), expected);
}

TEST_F(Drop, FilesStayInTheirFoldersAndFoldersKeepWhatTheyHold)
{
    Put({u"sub/a.txt"_qs, u"my.dir/b.txt"_qs, u"c.txt"_qs});
    Run(numbered, {u"sub/a.txt"_qs, u"my.dir"_qs, u"gone"_qs, files.Path() + u"c.txt"_qs});
    EXPECT_EQ(files.Names().join(u' '), u"002 004.txt sub"_qs);
    EXPECT_EQ(files.Content(u"sub/001.txt"_qs), "sub/a.txt");
    EXPECT_EQ(files.Content(u"002/b.txt"_qs), "my.dir/b.txt");
}

TEST_F(Drop, AnExistingTargetIsNeverOverwrittenAndNoFailureStopsTheOthers)
{
    Put({u"a1"_qs, u"X1"_qs, u"c2"_qs, u"d2"_qs, u"e4"_qs});
    Run(firstBecomesX, {u"a1"_qs, u"X1"_qs, u"c2"_qs, u"d2"_qs, u"gone"_qs, u"e4"_qs});
    EXPECT_EQ(Contents().join(u' '), u"X1=X1 X2=c2 X4=e4 a1=a1 d2=d2"_qs);
}

TEST_F(Drop, NothingHappensWithoutARecipeThatSelectsAnAction)
{
    // Nothing, a picture, a configuration with its header, no action, a line that is cut off.
    const QByteArray foreign[] = {{},
                                  {"\xFF\xD8\xFF\xE0\0\x10JFIF", 10},
                                  "File Rename Settings\r\nReplace All\r\nTrue\r\n",
                                  "Replace Everything\r\nTrue\r\n",
                                  "Replace A"};
    const QStringList names{u"a.txt"_qs, u"b.txt"_qs};
    Put(names);
    const auto before = Contents();
    for (const QByteArray& recipe : foreign) {
        recipes.Write(u"odd.rnp"_qs, recipe);
        Run(recipes.Path() + u"odd.rnp"_qs, names);
        EXPECT_EQ(Contents(), before) << recipe.constData();
    }
    Run(recipes.Path() + u"missing.rnp"_qs, names);
    Run(firstBecomesX, {});
    EXPECT_EQ(Contents(), before);
}

TEST_F(Drop, TheSampleRecipesDoWhatTheirReadmeSays)
{
    const QString samples = QStringLiteral(QUILLMARK_SAMPLES "/recipes/");
    const QStringList names{u"DSC_0411.jpg"_qs, u"DSC_0412.jpg"_qs, u"DSC_0420.JPG"_qs};
    Put(names);
    Run(samples + u"harbour.rnp"_qs, names);
    const QStringList capitals{u"HARBOUR-001.jpg"_qs, u"HARBOUR-002.jpg"_qs, u"HARBOUR-003.JPG"_qs};
    EXPECT_EQ(files.Names(), capitals);
    Run(samples + u"numbered.rnp"_qs, capitals);
    EXPECT_EQ(files.Names().join(u' '), u"photo-0001.jpg photo-0002.jpg photo-0003.JPG"_qs);
}

TEST_F(Drop, NamesComeFromPicturesAndMusic)
{
    QStringList wanted;
    for (const char* day : {"05", "17", "29"}) {
        const std::string date = "2009:11:" + std::string(day) + " 12:04:04";
        files.Write(
            u"IMG_"_qs + QLatin1String(day) + u".jpg"_qs,
            QByteArray::fromStdString(testing_support::ExifBuilder().Add(306, 2, 20, date).Picture()));
        wanted << u"200911"_qs + QLatin1String(day) + u"IMG_"_qs + QLatin1String(day) + u".jpg"_qs;
    }
    Run(Replacing(model::ActionKind::Prefix, u"$Exif_date_$yyyymmdd$"_qs), files.Names());
    EXPECT_EQ(files.Names(), wanted);
    for (const char* artist : {"Bach", "Abba"}) {
        files.Write(QLatin1String(artist).right(2) + u".mp3"_qs,
                    testing_support::Audio(0xFFFB9000) + testing_support::Id3v1("Title", artist, "", 17));
    }
    Run(Replacing(model::ActionKind::Prefix, u"$MP3_ID3_Artist"_qs), {u"ba.mp3"_qs, u"ch.mp3"_qs});
    EXPECT_EQ(files.Names(), wanted + QStringList({u"Abbaba.mp3"_qs, u"Bachch.mp3"_qs}));
}

} // namespace

} // namespace e2e
