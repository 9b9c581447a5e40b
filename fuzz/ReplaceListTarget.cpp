// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "workspace/ReplaceGrid.h"
#include "workspace/ReplaceListFile.h"

#include <algorithm>

namespace fuzz {

void ReadReplaceList(QByteArrayView document)
{
    const workspace::ReplaceListFile before{true, {{QStringLiteral("y"), QStringLiteral("a"), QString()}}};
    workspace::ReplaceListFile list = before;
    const QString path = WriteFile("list.srl", document);
    if (!workspace::LoadReplaceList(list, path).IsOk()) {
        Require(list.matchCaseAll == before.matchCaseAll && list.rows == before.rows,
                "a file that is refused leaves the list as it was");
        return;
    }
    Require(list.rows.size() <= workspace::ReplaceGrid::RowCount, "the rows fit in the grid");
    Require(workspace::SaveReplaceList(list, path));
    workspace::ReplaceListFile again;
    Require(workspace::LoadReplaceList(again, path));
    std::erase_if(list.rows, [](const actions::ReplaceRow& row) { return row.from.isEmpty(); });
    Require(again.matchCaseAll == list.matchCaseAll && again.rows == list.rows,
            "a list that was saved reads the same");
}

} // namespace fuzz
