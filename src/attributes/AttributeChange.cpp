// SPDX-License-Identifier: MIT
#include "attributes/AttributeChange.h"

#include "platform/Attributes.h"
#include "platform/FileSystem.h"

#include <array>

namespace attributes {

namespace {

namespace attribute = platform::attribute;

struct Box
{
    bool AtbsState::*isChecked;
    int value;
};

// Those that stand for a part of the number.
constexpr std::array Boxes{
    Box{&AtbsState::ReadOnly, attribute::ReadOnly}, Box{&AtbsState::Hidden, attribute::Hidden},
    Box{&AtbsState::System, attribute::System}, Box{&AtbsState::Directory, attribute::Directory},
    Box{&AtbsState::Archive, attribute::Archive}};

// In the order in which Attrib takes values off the number. Without System, which therefore leaves 2 behind
// when the value of Hidden is taken off, and looks like both Hidden and ReadOnly.
constexpr std::array ShownBoxes{Boxes[4], Boxes[3], Boxes[1], Boxes[0]};

// Checks the boxes for as long as it goes.
platform::Status ChangeRows(const fileview::FileList& rows, const AtbsState& boxes, model::RunHost& host)
{
    for (int row = 1; row <= rows.Count(); ++row) {
        if (rows.Checked(row)) {
            const model::FileRow& file = rows.Item(row);
            if (platform::Status status = DoAtr(file.Path + file.Text, boxes); !status.IsOk()) {
                return status;
            }
        }
        host.SetProgressValue(row);
    }
    return {};
}

} // namespace

void ClrCks(AtbsState& boxes)
{
    boxes = {};
}

std::optional<AtbsState> Attrib(const QString& folder, const QString& name)
{
    const bool hasSeparator = folder.endsWith(platform::PathSeparator);
    const auto found =
        platform::GetAttr(hasSeparator ? folder + name : folder + platform::PathSeparator + name);
    if (!found) {
        return std::nullopt;
    }
    AtbsState boxes;
    boxes.Normal = *found == 0;
    int value = *found;
    for (const Box& box : ShownBoxes) {
        if (value >= box.value) {
            boxes.*box.isChecked = true;
            value -= box.value;
        }
    }
    return boxes;
}

platform::Status DoAtr(const QString& path, const AtbsState& boxes)
{
    int value = 0;
    for (const Box& box : Boxes) {
        value += boxes.*box.isChecked && !boxes.Normal ? box.value : 0;
    }
    return platform::SetAttr(path, value);
}

void ChangeAttributes(const fileview::FileList& rows, int progressMaximum, const AtbsState& boxes,
                      model::RunHost& host)
{
    host.SetProgressMaximum(progressMaximum);
    host.SetProgressValue(0);
    host.ShowStatus(QStringLiteral("Changing Attributes..."));
    if (const platform::Status status = ChangeRows(rows, boxes, host); !status.IsOk()) {
        host.ShowError(status.Description());
    }
    host.ShowStatus(QStringLiteral("Ready"));
    host.SetProgressValue(0);
}

} // namespace attributes
