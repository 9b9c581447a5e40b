// SPDX-License-Identifier: MIT
#include "attributes/AttributeChange.h"

#include "platform/Attributes.h"
#include "support/Recorder.h"
#include "support/TempFolder.h"

using namespace Qt::StringLiterals;
using namespace attributes;
using namespace testing_support;

namespace {

TEST(AttributeChange, RunsOverCheckedRowsAndStopsAtTheFirstFailure)
{
    TempFolder folder;
    fileview::FileList list;
    platform::FileSystem files;
    for (const QString& name : {u"a"_s, u"b"_s, u"dir"_s, u"c"_s}) {
        name == u"dir" ? folder.MakeFolder(name) : folder.Write(name);
        list.AddFile(folder.Path(), name, files);
    }
    model::StopFlag stop;
    Recorder host{stop};
    const auto run = [&](const AtbsState& boxes, int maximum = 4) { // gives all attributes afterwards
        ChangeAttributes(list, maximum, boxes, host);
        QStringList values;
        for (int row = 1; row <= list.Count(); ++row) {
            values << QString::number(platform::GetAttr(folder.Path() + list.Item(row).Text).value_or(-1));
        }
        return values.join(u' ');
    };
    const QString begins = u"value 0; status Changing Attributes...; value 1; "_s;
    const QString ends = u"status Ready; value 0"_s;
    EXPECT_EQ(run({.ReadOnly = true}), u"0 0 16 0"_s) << "no row is checked";
    EXPECT_EQ(host.TakeEvents(), u"max 4; "_s + begins + u"value 2; value 3; value 4; "_s + ends);
    list.SetCheckedAll(true);
    list.SetChecked(2, false);
    EXPECT_EQ(run({.ReadOnly = true}, 2), u"1 0 17 1"_s) << "the maximum is another list's";
    EXPECT_EQ(host.TakeEvents(), u"max 2; "_s + begins + u"value 2; "_s + ends);
    EXPECT_EQ(run({.Normal = true, .ReadOnly = true}), u"0 0 16 0"_s);
    list.SetChecked(2, true);
    fs::remove((folder.Path() + u'b').toStdString());
    host.Announce(u"error"_s, u"File not found"_s);
    host.TakeEvents();
    EXPECT_EQ(run({.ReadOnly = true}), u"1 -1 16 0"_s);
    EXPECT_EQ(host.TakeEvents(), u"max 4; "_s + begins + u"message error: File not found; "_s + ends);
    host.Announce(u"error"_s, u"Invalid procedure call or argument"_s);
    EXPECT_EQ(run({.Directory = true}), u"1 -1 16 0"_s);
}

TEST(AttributeChange, ShowsAFileInTheBoxesByTakingValuesOff)
{
    TempFolder folder;
    folder.Write(u"a"_s);
    for (const auto& [value, boxes] : std::initializer_list<std::pair<int, AtbsState>>{
             {0, {.Normal = true}},
             {1, {.ReadOnly = true}},
             {2, {.Hidden = true}},
             {4, {.ReadOnly = true, .Hidden = true}}, // system has no step of its own
             {39, {.ReadOnly = true, .Hidden = true, .Archive = true}}}) {
        if (platform::SetAttr(folder.Path() + u'a', value).IsOk()) { // fails where there are no marks
            EXPECT_EQ(Attrib(folder.Path().chopped(1), u"a"_s), boxes) << value;
        }
    }
    EXPECT_EQ(Attrib(folder.Path(), u"."_s), AtbsState{.Directory = true});
    EXPECT_EQ(Attrib(folder.Path(), u"none"_s), std::nullopt);
}

} // namespace
