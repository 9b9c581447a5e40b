// SPDX-License-Identifier: MIT
#include "app/Starts.h"

#include "app/Settings.h"
#include "documents/RenameDocument.h"
#include "support/WorkspaceFixture.h"

#include <QDir>

namespace {

// Files in the current folder, and elsewhere a recipe: the first two characters become a number.
class Starts : public testing_support::WorkspaceFixture
{
protected:
    void SetUp() override
    {
        QDir::setCurrent(here);
        Files({u"one.txt"_qs, u"two.txt"_qs, u"rel.txt"_qs, u"003x.txt"_qs, u"my.dir/"_qs});
        Select({u"Replace First"_qs});
        options.replaceFirst.Text1 = u"2"_qs;
        options.replaceFirst.cmbFirst.combo = u"$Counter$"_qs;
        ASSERT_TRUE(documents::SaveRenameDrop(options, recipe).IsOk());
        options = {};
    }
    void TearDown() override { QDir::setCurrent(before); }

    QString before = QDir::currentPath(), here = folder.Path(), recipe = program.Path() + u"d.rnp"_qs;
};

TEST_F(Starts, ADropRenamesItsFilesAndPassesOverTheRest)
{
    const QStringList items{here + u"one.txt"_qs, here + u"none.txt"_qs, here + u"03x.txt"_qs,
                            u"rel.txt"_qs,        here + u"my.dir"_qs,   here + u"two.txt"_qs};
    app::PrepareDrop(QStringList(recipe) + items, workspace, mainList, state);
    app::RenameWithoutAsking(workspace);
    EXPECT_EQ(folder.Names().join(u' '), u"001e.txt 003x.txt 004l.txt 005.dir 006o.txt"_qs);
    EXPECT_EQ(program.Names(), QStringList(u"d.rnp"_qs)) << "no log";
}

TEST_F(Starts, ADropWithoutFilesOrRecipeMovesNothing)
{
    const QStringList names = folder.Names();
    app::PrepareDrop({recipe}, workspace, mainList, state);
    EXPECT_EQ(workspace.grid.RowCount(), 0);
    for (const QString& noRecipe : {u"missing.rnp"_qs, here + u"two.txt"_qs}) {
        host.Announce(u"Renamer"_qs, u"Please Select Actions"_qs); // a text file selects none either
        app::PrepareDrop({noRecipe, here + u"one.txt"_qs}, workspace, mainList, state);
        app::RenameWithoutAsking(workspace);
        EXPECT_EQ(folder.Names(), names);
    }
}

TEST_F(Starts, FilesHandedOverAreTheMainListAllChecked)
{
    app::HandOverFiles({here + u"my.dir"_qs, u"rel.txt"_qs, u"none"_qs, u""_qs}, mainList, state);
    EXPECT_EQ(MainListNames().join(u','), u"my.dir checked,rel.txt checked,none checked, checked"_qs);
    EXPECT_EQ(mainList.Item(1).Path + mainList.Item(1).Type + mainList.Item(2).Path,
              here + u"File Folder"_qs);
    EXPECT_TRUE(state.CheckedCount == 4 && state.FileListChanged && !state.DropStart);
}

TEST_F(Starts, Line23OfTheSettingsTellsWhetherADropAsks)
{
    EXPECT_EQ(app::ReadSettings(programFolder).ShowRenameDrop, 0) << "no file";
    for (const auto& [rest, value] : std::initializer_list<std::pair<QByteArray, int>>{
             {"1\r\n0\r\n", 1}, {"0\r\n1\r\n", 0}, {"1", 1}, {" 1 \n", 1}, {"x\r\n", 0}, {"", 0}}) {
        program.Write(u"Quillmark.ini"_qs, QByteArray("1\r\n").repeated(22) + rest);
        EXPECT_EQ(app::ReadSettings(programFolder).ShowRenameDrop, value) << rest.constData();
    }
}

TEST_F(Starts, TheExtensionForAllReachesADrop)
{
    options.List3.entries[0].Selected = true;
    options.List3.entries[0].text = u"Extension"_qs;
    ASSERT_TRUE(documents::SaveRenameDrop(options, recipe).IsOk());
    for (const auto& [line, name] : {std::pair("True", u"one.txt"_qs), std::pair("1", u"one.bak"_qs)}) {
        program.Write(u"Quillmark.ini"_qs, QByteArray("\r\n").repeated(9) + line + "\r\nbak\r\n");
        options = {};
        app::ApplySettings(app::ReadSettings(programFolder), state, options);
        app::PrepareDrop({recipe, here + u"one.txt"_qs}, workspace, mainList, state);
        EXPECT_EQ(workspace.grid.Cell(1, workspace::GridPre::Preview), name) << line;
    }
}

} // namespace
