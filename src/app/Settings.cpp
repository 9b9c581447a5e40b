// SPDX-License-Identifier: MIT
#include "app/Settings.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

namespace app {

Settings ReadSettings(const platform::ProgramFolder& programFolder)
{
    const QStringList lines =
        platform::ReadLines(programFolder.PathOf(QStringLiteral("Quillmark.ini"))).value_or(QStringList());
    const auto text = [&lines](qsizetype line) {
        return lines.value(line - 1);
    };
    const auto number = [&text](qsizetype line) {
        return platform::ToInt16(text(line)).value.value_or(0);
    };
    Settings settings;
    // Saved as "True" or "False", which is no number: only a 1 that was put there by hand turns it on.
    settings.ReplaceAllExtensions = number(10) > 0;
    settings.ExtensionAllValue = text(11);
    settings.LastTimeToken = text(12);
    settings.LastDateToken = text(13);
    settings.ShowRenameDrop = number(23);
    return settings;
}

void ApplySettings(const Settings& settings, model::AppState& state, actions::RenameOptions& options)
{
    options.extension.ReplaceAllExtensions = settings.ReplaceAllExtensions;
    options.extension.ExtensionAllValue = settings.ExtensionAllValue;
    state.LastTimeToken = settings.LastTimeToken;
    state.LastDateToken = settings.LastDateToken;
    state.ShowRenameDrop = settings.ShowRenameDrop;
}

} // namespace app
