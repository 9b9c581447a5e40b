// SPDX-License-Identifier: MIT
#include "actions/ListActions.h"

#include "model/GetFName.h"
#include "model/Text.h"

namespace actions {

namespace {

ReplaceRows WithoutEmptyFrom(ReplaceRows rows)
{
    std::erase_if(rows, [](const ReplaceRow& row) { return row.from.isEmpty(); });
    return rows;
}

std::vector<CompiledRow> CompileRows(const ReplaceRows& rows, model::ActionKind kind,
                                     const TokenBlocks& blocks, const RunState& run)
{
    std::vector<CompiledRow> compiled;
    compiled.reserve(rows.size());
    for (const ReplaceRow& row : rows) {
        compiled.push_back({row.from, row.Comparison(), TokenExpander(row.to, kind, blocks, run)});
    }
    return compiled;
}

// `text` after all rows; nothing if a row's value leaves the name.
std::optional<QString> RunRows(std::vector<CompiledRow>& rows, QString text, const model::NameContext& row)
{
    QString value;
    for (CompiledRow& each : rows) {
        if (model::Find(text, each.from, each.comparison) > 0) {
            const auto expanded = each.to.Expand(row, each.from, value);
            if (!expanded) {
                return std::nullopt;
            }
            value = *expanded;
            text = model::Replace(text, each.from, value, each.comparison);
        }
    }
    return text;
}

std::optional<CaseChange> CaseChangeOf(const OptionGroup& change)
{
    switch (change.Chosen()) {
    case ExtensionOptions::Option42:
        return CaseChange::Upper;
    case ExtensionOptions::Option41:
        return CaseChange::Lower;
    case ExtensionOptions::Option40:
        return CaseChange::Invert;
    default:
        return std::nullopt;
    }
}

} // namespace

Replace::Replace(const ReplaceOptions& options, const RunState& run)
    : host_(run.host),
      rows_(CompileRows(WithoutEmptyFrom(options.ReplaceList), model::ActionKind::Replace,
                        {options.txtReplaceC, options.txtReplaceA, QString()}, run))
{}

QString Replace::Work(const model::NameContext& row)
{
    const auto base = RunRows(rows_, model::GetFName(row.name, row.type, false), row);
    return base ? *base + model::GetFName(row.name, row.type, true) : row.name;
}

void Replace::Failed(const QString& description)
{
    host_.ShowError(description);
}

Extension::Extension(const ExtensionOptions& options, const RunState& run)
    : host_(run.host),
      caseChange_(CaseChangeOf(options.change)),
      replaces_(options.change.IsOn(ExtensionOptions::Option43))
{
    const TokenBlocks blocks{options.txtExtC, options.txtExtA, QString()};
    if (options.ReplaceAllExtensions) {
        all_.emplace(options.ExtensionAllValue, model::ActionKind::Extension, blocks, run);
    } else {
        rows_ = CompileRows(options.ExtReplaceList, model::ActionKind::Extension, blocks, run);
    }
}

QString Extension::Work(const model::NameContext& row)
{
    const QString extension = model::GetFName(row.name, row.type, true).remove(u'.');
    const auto changed = extension.isEmpty() ? std::nullopt : Changed(extension, row);
    return changed ? model::GetFName(row.name, row.type, false) + u'.' + *changed : row.name;
}

std::optional<QString> Extension::Changed(const QString& extension, const model::NameContext& row)
{
    if (caseChange_) {
        return WithCase(extension, *caseChange_);
    }
    if (!replaces_) {
        return std::nullopt;
    }
    return all_ ? all_->Expand(row, extension) : RunRows(rows_, extension, row);
}

void Extension::Failed(const QString& description)
{
    host_.ShowError(description);
}

} // namespace actions
