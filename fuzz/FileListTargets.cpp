// SPDX-License-Identifier: MIT
#include "app/FileListFile.h"
#include "fuzz/Support.h"
#include "fuzz/Targets.h"

namespace fuzz {

namespace {

using Load = std::optional<std::vector<app::ListedFile>> (*)(const QString&);
using Save = platform::Status (*)(const QString&, const fileview::FileList&);

void Check(QByteArrayView document, Load load, Save save)
{
    const QString path = WriteFile("files.lst", document);
    const auto files = load(path);
    if (!files) {
        return;
    }
    platform::FileSystem disk;
    fileview::FileList rows;
    for (const app::ListedFile& file : *files) {
        rows.AddFile(QString(), QString(), disk);
        rows.SetCell(rows.Count(), fileview::FileList::Path, file.folder);
        rows.SetCell(rows.Count(), fileview::FileList::Name, file.name);
    }
    rows.SetCheckedAll(true);
    Require(save(path, rows));
    Require(load(path) == files, "a file list that was saved names the same files");
}

} // namespace

void ReadFileList(QByteArrayView document)
{
    Check(document, app::LoadFileList, app::SaveFileList);
}

void ReadManagedList(QByteArrayView document)
{
    Check(document, app::LoadManagedList, app::SaveManagedList);
    const auto files = app::LoadManagedList(WriteFile("files.lst", document));
    for (const app::ListedFile& file : *files) {
        Require(file.folder.isEmpty() || file.folder.endsWith(u'/'), "a folder ends with a separator");
        Require(!file.name.contains(u'/'), "a name has no separator");
    }
}

} // namespace fuzz
