// SPDX-License-Identifier: MIT
#include "metadata/MultiFrameData.h"

#include <algorithm>

namespace metadata {

void MultiFrameData::Add(const QByteArray& text, bool isKeyedByText, std::optional<int> before,
                         std::optional<int> after)
{
    const bool isWord = text.left(text.indexOf('\0')).trimmed() == "I_";
    const Key key = isKeyedByText ? Key::Text : isWord ? Key::TrueWord : Key::FalseWord;
    const bool isThere = std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.key == key && (key != Key::Text || entry.text == text);
    });
    if (isThere) {
        return;
    }
    const int position = before ? *before - 1 : after.value_or(Count());
    entries_.insert(entries_.begin() + std::clamp(position, 0, Count()), {text, key});
}

void MultiFrameData::SetItem(int index, const QByteArray& text)
{
    if (index >= 1 && index <= Count()) {
        entries_[static_cast<std::size_t>(index - 1)] = {text, Key::None};
    }
}

void MultiFrameData::Remove(int index)
{
    if (index >= 1 && index <= Count()) {
        entries_.erase(entries_.begin() + (index - 1));
    }
}

} // namespace metadata
