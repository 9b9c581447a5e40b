// SPDX-License-Identifier: MIT
#include "actions/RenameOptions.h"

#include <algorithm>

namespace actions {

const QStringList& InsertOptions::Modes()
{
    static const QStringList modes{
        QStringLiteral("At Position From Start"), QStringLiteral("At Position From End"),
        QStringLiteral("Before Existing String"), QStringLiteral("After Existing String"),
        QStringLiteral("Between Two Strings")};
    return modes;
}

const QStringList& LengthOptions::Measures()
{
    static const QStringList measures{QStringLiteral("=Longest Original Filename Length"),
                                      QStringLiteral("=Shortest Original Filename Length"),
                                      QStringLiteral("=Longest Modified Filename Length"),
                                      QStringLiteral("=Shortest Modified Filename Length")};
    return measures;
}

ActionList ActionList::OfAllActions()
{
    ActionList list;
    for (const model::ActionKind kind : model::AllActionKinds) {
        list.entries.push_back({model::NameOf(kind), false});
    }
    list.currentIndex = 0;
    return list;
}

void ActionList::MoveCurrent(int offset)
{
    const int count = static_cast<int>(entries.size());
    const int target = currentIndex + offset;
    if (currentIndex < 0 || currentIndex >= count || target < 0 || target >= count) {
        return;
    }
    const QString text = entries[static_cast<std::size_t>(currentIndex)].text;
    entries.erase(entries.begin() + currentIndex);
    entries.insert(entries.begin() + target, Entry{text, false});
    currentIndex = target;
}

void ActionList::ListRowMove(int from, int to)
{
    const int count = static_cast<int>(entries.size());
    if (from < 0 || from >= count || to < 0 || to >= count) {
        return;
    }
    const int step = from < to ? 1 : -1;
    for (int row = from; row != to; row += step) {
        std::swap(entries[static_cast<std::size_t>(row)].text,
                  entries[static_cast<std::size_t>(row + step)].text);
    }
}

int ListRowCalc(int y, int rowHeight, int topIndex, int rowCount)
{
    return std::min(y / rowHeight + topIndex, rowCount - 1);
}

} // namespace actions
