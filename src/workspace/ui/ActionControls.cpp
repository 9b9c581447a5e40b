// SPDX-License-Identifier: MIT
#include "workspace/ui/ActionControls.h"

#include <algorithm>
#include <array>
#include <utility>

namespace workspace {
namespace {

using Name = QLatin1String;
using Kind = model::ActionKind;

// clang-format off
constexpr std::array<std::pair<Kind, ActionControls>, 10> Table{{
    {Kind::Replace, {Name("txtReplaceC"), Name("txtReplaceA"), Name("OptRACase"), {}, {}, {}, {}, {}, {}}},
    {Kind::ReplaceFirst, {Name("txtFirstC"), Name("txtFirstA"), Name("OptFACase"), Name("cmbFirst"),
        Name("frmFirstC"), Name("frmFirstA"), Name("frmFirstR"), Name("Text50"), Name("Command4")}},
    {Kind::ReplaceMid, {Name("txtMidC"), Name("txtMidA"), Name("OptMACase"), Name("cmbMid"),
        Name("frmMidC"), Name("frmMidA"), Name("frmMidR"), Name("Text53"), Name("Command5")}},
    {Kind::ReplaceLast, {Name("txtLastC"), Name("txtLastA"), Name("OptLACase"), Name("cmbLast"),
        Name("frmLastC"), Name("frmLastA"), Name("frmLastR"), Name("Text55"), Name("Command6")}},
    {Kind::ReplaceAll, {Name("txtAllC"), Name("txtAllA"), Name("OptAACase"), Name("cmbAll"),
        Name("frmReplaceAllC"), Name("frmReplaceAllA"), Name("frmReplaceAllR"), Name("Text56"),
        Name("Command7")}},
    {Kind::Insert, {Name("txtInsertC"), Name("txtInsertA"), Name("OptIACase"), Name("cmbInsertS"),
        Name("frmInsertC"), Name("frmInsertA"), Name("frmInsertR"), Name("Text59"), Name("Command8")}},
    {Kind::Suffix, {Name("txtSuffixC"), Name("txtSuffixA"), Name("OptSACase"), Name("cmbSuffix"),
        Name("frmSuffixC"), Name("frmSuffixA"), Name("frmSuffixR"), Name("Text61"), Name("Command9")}},
    {Kind::Prefix, {Name("txtPrefixC"), Name("txtPrefixA"), Name("OptPACase"), Name("cmbPrefix"),
        Name("frmPrefixC"), Name("frmPrefixA"), Name("frmPrefixR"), Name("Text62"), Name("Command10")}},
    {Kind::Extension, {Name("txtExtC"), Name("txtExtA"), Name("OptEACase"), {}, {}, {}, {}, {}, {}}},
    {Kind::Compose, {Name("txtComposeC"), Name("txtComposeA"), Name("OptComACase"), Name("cmbCompose"),
        Name("frmComposeC"), Name("frmComposeA"), Name("frmComposeR"), Name("Text3"), Name("Command11")}},
}};
// clang-format on

} // namespace

const ActionControls& ControlsOf(model::ActionKind kind)
{
    return std::ranges::find(Table, kind, &std::pair<Kind, ActionControls>::first)->second;
}

} // namespace workspace
