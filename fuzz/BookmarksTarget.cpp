// SPDX-License-Identifier: MIT
#include "app/Bookmarks.h"
#include "fuzz/Support.h"
#include "fuzz/Targets.h"

#include <algorithm>

namespace fuzz {

void ReadBookmarks(QByteArrayView document)
{
    WriteFile("bookmarks.bks", document);
    const platform::ProgramFolder folder(Folder());
    app::Bookmarks bookmarks;
    bookmarks.Load(folder);
    Require(std::none_of(bookmarks.Entries().begin(), bookmarks.Entries().end(),
                         [](const app::Bookmark& entry) { return entry.folder.isEmpty(); }),
            "each bookmark has a folder");
    Require(bookmarks.Save(folder));
    app::Bookmarks again;
    again.Load(folder);
    Require(again.Entries() == bookmarks.Entries(), "bookmarks that were saved read the same");
}

} // namespace fuzz
