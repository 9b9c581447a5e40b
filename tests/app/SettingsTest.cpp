// SPDX-License-Identifier: MIT
//
// The settings are lines whose number is their meaning. These tests catch a line that is written or read at
// another place, and what a damaged file does to the rest.
#include "app/Settings.h"

#include "support/Refusals.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

class Settings : public testing::Test
{
protected:
    void Read(const QStringList& lines)
    {
        home.Write(u"Quillmark.ini"_qs, lines.join(u"\r\n"_qs).toUtf8());
        state = {};
        options = {};
        app::ReadSettings(programFolder, state, options);
    }

    QStringList Written(const app::PreferenceControls& controls)
    {
        const auto status =
            app::WriteSettings(programFolder, state, options, controls, u"/music"_qs, u"MP3 audio"_qs);
        EXPECT_EQ(status.Description(), QString());
        return QString::fromUtf8(home.Content(u"Quillmark.ini"_qs)).split(u"\r\n"_qs);
    }

    testing_support::TempFolder home;
    platform::ProgramFolder programFolder{home.Path()};
    model::AppState state;
    actions::RenameOptions options;
};

// Every line has a value of its own.
const QStringList Lines{u"/music"_qs,
                        u"allselected"_qs,
                        u"magnitude"_qs,
                        u"MP3 audio"_qs,
                        u"List"_qs,
                        {},
                        u"7"_qs,
                        u"8"_qs,
                        u"True"_qs,
                        u"False"_qs,
                        u"bak"_qs,
                        u"hh:mm"_qs,
                        u"yyyy"_qs,
                        {},
                        u"15"_qs,
                        u"16"_qs,
                        u"17"_qs,
                        u"18"_qs,
                        u"19"_qs,
                        u"20"_qs,
                        u"21"_qs,
                        u"22"_qs,
                        u"23"_qs,
                        u"24"_qs,
                        {}};

TEST_F(Settings, EveryLineComesBackAtItsPlace)
{
    Read(Lines);
    EXPECT_EQ((QStringList{state.LastFolder, state.FileTypeFilter, state.ViewMode, state.LastTimeToken,
                           state.LastDateToken, options.extension.ExtensionAllValue}),
              (QStringList{u"/music"_qs, u"MP3 audio"_qs, u"List"_qs, u"hh:mm"_qs, u"yyyy"_qs, u"bak"_qs}));
    EXPECT_EQ((std::vector{state.DontAskBookmarkNames, state.OnTopState, state.MetadataChoice,
                           state.ShowHiddenFolders, state.AutoRefreshRenameView, state.AutoRefreshMainView,
                           state.AutoValidate, state.AutoNormalizeAttributes, state.ShowRenameLog,
                           state.SaveLogFile, state.ShowRenameDrop, state.ConfirmAfterRename}),
              (std::vector{7, 8, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24}));
    EXPECT_TRUE(state.AllSelected == 1 && state.ClearOnDragDrop);
    const auto controls = app::ReadPreferenceControls(programFolder);
    EXPECT_TRUE(controls.Check1 && controls.Check10 && controls.OptSort1 && controls.Check19);
    EXPECT_EQ(Written(controls), Lines);

    state.LastMask = u"[mask]"_qs;
    options.extension.ReplaceAllExtensions = true;
    const QStringList off = Written({});
    EXPECT_EQ(off.mid(0, 4), QStringList(4, u"blank"_qs));
    EXPECT_TRUE(off.at(9) == u"True"_qs && off.at(13) == u"[mask]"_qs);
    Read(off);
    EXPECT_TRUE(state.LastFolder.isEmpty() && state.AllSelected == 0 && state.FileTypeFilter == u"*.*"_qs);
    EXPECT_TRUE(!options.extension.ReplaceAllExtensions && state.LastMask.isEmpty()) << "neither comes back";
    const auto none = app::ReadPreferenceControls(programFolder);
    EXPECT_FALSE(none.Check1 || none.Check10 || none.OptSort1 || none.Check19);
}

TEST_F(Settings, AMissingOrDamagedLineLeavesTheRest)
{
    app::ReadSettings(programFolder, state, options);
    EXPECT_TRUE(state.FileTypeFilter.isEmpty() && state.AllSelected == 0) << "no file";
    EXPECT_FALSE(app::ReadPreferenceControls(programFolder).Check1);

    Read({u"/music"_qs, u"blank"_qs, u"alpha"_qs});
    EXPECT_TRUE(state.LastFolder == u"/music"_qs && state.ViewMode.isEmpty() && state.AutoValidate == 0 &&
                !state.ClearOnDragDrop);
    EXPECT_FALSE(app::ReadPreferenceControls(programFolder).OptSort1);

    QStringList damaged = Lines;
    damaged[8] = u"maybe"_qs;
    damaged[9] = u"1"_qs; // put there by hand
    damaged[18] = u"40000"_qs;
    damaged[19] = u"many"_qs;
    damaged << u"a 25th line"_qs << u"and more"_qs;
    Read(damaged);
    EXPECT_TRUE(!state.ClearOnDragDrop && options.extension.ReplaceAllExtensions);
    EXPECT_TRUE(state.AutoValidate == 0 && state.AutoNormalizeAttributes == 0 &&
                state.ConfirmAfterRename == 24);
}

TEST_F(Settings, AreWrittenWholeOrNotAtAll)
{
    Read(Lines);
    const QByteArray before = home.Content(u"Quillmark.ini"_qs);
    state.LastTimeToken = u"a\nb"_qs;
    EXPECT_EQ(Written({.Check1 = true}).size(), Lines.size()) << "a line break moves no other line";
    home.Write(u"Quillmark.ini"_qs, before);
    {
        const testing_support::FullDisk disk(20);
        EXPECT_FALSE(app::WriteSettings(programFolder, state, options, {}, {}, {}).IsOk());
    }
    EXPECT_EQ(home.Content(u"Quillmark.ini"_qs), before);
    const platform::ProgramFolder fresh(home.Path() + u"new/folder"_qs);
    EXPECT_TRUE(app::WriteSettings(fresh, state, options, {}, {}, {}).IsOk());
}

} // namespace
