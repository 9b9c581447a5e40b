// SPDX-License-Identifier: MIT
#include "app/Starts.h"

#include "app/Settings.h"
#include "documents/RenameDocument.h"
#include "support/WorkspaceFixture.h"

#include <QDir>

namespace {

class Starts : public testing_support::WorkspaceFixture
{
protected:
    // Files into the folder, and beside them the recipe "d.rnp": the first two characters become a number.
    void SetUp() override
    {
        for (const QString& name :
             {u"one.txt"_qs, u"two.txt"_qs, u"rel.txt"_qs, u"003x.txt"_qs, u"my.dir/in"_qs}) {
            folder.Write(name, name.toUtf8());
        }
        Select({u"Replace First"_qs});
        options.replaceFirst.Text1 = u"2"_qs;
        options.replaceFirst.cmbFirst.combo = u"$Counter$"_qs;
        ASSERT_TRUE(documents::SaveRenameDrop(options, program.Path() + u"d.rnp"_qs).IsOk());
        options = {};
        QDir::setCurrent(folder.Path());
    }
    void TearDown() override { QDir::setCurrent(before_); }

    void Drop(const QStringList& items)
    {
        app::PrepareDrop(items, workspace, mainList, state);
        app::RenameWithoutAsking(workspace);
    }

    QString recipe = program.Path() + u"d.rnp"_qs;

private:
    QString before_ = QDir::currentPath();
};

TEST_F(Starts, ADropRenamesItsFilesAndPassesOverTheRest)
{
    const QString here = folder.Path();
    Drop({recipe, here + u"one.txt"_qs, here + u"none.txt"_qs, here + u"03x.txt"_qs, u"rel.txt"_qs,
          here + u"my.dir"_qs, here + u"two.txt"_qs});
    EXPECT_TRUE(state.DropStart);
    EXPECT_EQ(Column(workspace::GridPre::Preview),
              QStringList({u"001e.txt"_qs, u"002ne.txt"_qs, u"003x.txt"_qs, u"004l.txt"_qs, u"005.dir"_qs,
                           u"006o.txt"_qs}));
    EXPECT_EQ(folder.Names(),
              QStringList({u"001e.txt"_qs, u"003x.txt"_qs, u"004l.txt"_qs, u"005.dir"_qs, u"006o.txt"_qs}));
    EXPECT_EQ(folder.Names(u"005.dir"_qs), QStringList({u"in"_qs}));
    EXPECT_EQ(program.Names(), QStringList({u"d.rnp"_qs})) << "no log";
}

TEST_F(Starts, ADropWithoutFilesOrRecipeMovesNothing)
{
    const QStringList names = folder.Names();
    Drop({recipe});
    EXPECT_EQ(workspace.grid.RowCount(), 0);
    for (const QString& noRecipe : {u"missing.rnp"_qs, folder.Path() + u"two.txt"_qs}) {
        host.Announce(u"Renamer"_qs, u"Please Select Actions"_qs); // a text file selects none either
        Drop({noRecipe, folder.Path() + u"one.txt"_qs});
        EXPECT_EQ(folder.Names(), names);
    }
}

TEST_F(Starts, FilesHandedOverAreTheMainListAllChecked)
{
    List({u"two.txt"_qs});
    app::HandOverFiles({folder.Path() + u"my.dir"_qs, u"rel.txt"_qs, u"none"_qs, u""_qs}, mainList, state);
    EXPECT_EQ(MainListNames(),
              QStringList({u"my.dir checked"_qs, u"rel.txt checked"_qs, u"none checked"_qs, u" checked"_qs}));
    EXPECT_EQ(mainList.Item(1).Path, folder.Path());
    EXPECT_EQ(mainList.Item(1).Type, u"File Folder"_qs);
    EXPECT_EQ(mainList.Item(2).Path, QString());
    EXPECT_EQ(state.CheckedCount, 4);
    EXPECT_TRUE(state.FileListChanged);
    EXPECT_FALSE(state.DropStart);
}

TEST(Settings, Line23TellsWhetherADropAsks)
{
    testing_support::TempFolder program;
    const platform::ProgramFolder programFolder(program.Path());
    EXPECT_EQ(app::ReadShowRenameDrop(programFolder), 0) << "no file";
    const QByteArray twoAndTwenty = QByteArray("1\r\n").repeated(22);
    const std::pair<QByteArray, int> rows[] = {
        {"1\r\n0\r\n", 1}, {"0\r\n1\r\n", 0}, {"1", 1}, {" 1 \n", 1}, {"x\r\n", 0}, {"\r\n", 0}, {"", 0},
    };
    for (const auto& [rest, value] : rows) {
        program.Write(u"Quillmark.ini"_qs, twoAndTwenty + rest);
        EXPECT_EQ(app::ReadShowRenameDrop(programFolder), value) << rest.constData();
    }
}

} // namespace
