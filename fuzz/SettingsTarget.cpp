// SPDX-License-Identifier: MIT
#include "app/Settings.h"
#include "fuzz/Support.h"
#include "fuzz/Targets.h"

namespace fuzz {

namespace {

// Reads the settings as a start does, and writes them as the end does.
QByteArray ReadAndWrite(QByteArrayView document)
{
    const QString path = WriteFile("Quillmark.ini", document);
    const platform::ProgramFolder folder(Folder());
    model::AppState state;
    actions::RenameOptions options;
    app::ReadSettings(folder, state, options);
    const app::PreferenceControls controls = app::ReadPreferenceControls(folder);
    Require(controls.Check10 == (state.AllSelected == 1), "both readings agree on the box for all files");
    options.extension.ReplaceAllExtensions = false; // it is written as a word and read as a number
    Require(app::WriteSettings(folder, state, options, controls, state.LastFolder, state.FileTypeFilter));
    return ContentOf(path);
}

} // namespace

void ReadSettings(QByteArrayView document)
{
    const QByteArray once = ReadAndWrite(document);
    Require(once.count('\n') == 24, "the settings have twenty-four lines");
    Require(ReadAndWrite(once) == once, "settings that were written read the same");
}

} // namespace fuzz
