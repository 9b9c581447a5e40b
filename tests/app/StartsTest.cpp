// SPDX-License-Identifier: MIT
#include "app/Starts.h"

#include "app/Settings.h"
#include "documents/RenameDocument.h"
#include "support/WorkspaceFixture.h"

namespace {

using Starts = testing_support::WorkspaceFixture;

TEST_F(Starts, FilesHandedOverAreTheMainListAllChecked)
{
    Files({u"my.dir/"_qs});
    app::HandOverFiles({folder.Path() + u"my.dir"_qs, u"none"_qs, u""_qs}, mainList, state);
    EXPECT_EQ(MainListNames().join(u','), u"my.dir checked,none checked, checked"_qs);
    EXPECT_EQ(mainList.Item(1).Path + mainList.Item(1).Type + mainList.Item(2).Path,
              folder.Path() + u"File Folder"_qs);
    EXPECT_TRUE(state.CheckedCount == 3 && state.FileListChanged && !state.DropStart);
}

TEST_F(Starts, TheExtensionForAllReachesADrop)
{
    Files({u"one.txt"_qs});
    Select({u"Extension"_qs});
    const QString recipe = program.Path() + u"d.rnp"_qs;
    ASSERT_TRUE(documents::SaveRenameDrop(options, recipe).IsOk());
    for (const auto& [line, name] : {std::pair("True", u"one.txt"_qs), std::pair("1", u"one.bak"_qs)}) {
        program.Write(u"Quillmark.ini"_qs, QByteArray("\r\n").repeated(9) + line + "\r\nbak\r\n");
        options = {};
        app::ReadSettings(programFolder, state, options);
        app::PrepareDrop({recipe, folder.Path() + u"one.txt"_qs}, workspace, mainList, state);
        EXPECT_EQ(workspace.grid.Cell(1, workspace::GridPre::Preview), name) << line;
    }
}

} // namespace
