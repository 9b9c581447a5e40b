// SPDX-License-Identifier: MIT
#include "app/Settings.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

namespace app {

int ReadShowRenameDrop(const platform::ProgramFolder& programFolder)
{
    constexpr qsizetype showRenameDropLine = 23;
    const auto lines = platform::ReadLines(programFolder.PathOf(QStringLiteral("Quillmark.ini")));
    if (!lines || lines->size() < showRenameDropLine) {
        return 0;
    }
    return platform::ToInt16(lines->at(showRenameDropLine - 1)).value.value_or(0);
}

} // namespace app
