// SPDX-License-Identifier: MIT
#include "metadata/MultiFrameData.h"

#include <algorithm>

namespace metadata {

void MultiFrameData::Add(const QByteArray& text, bool isKeyedByText, std::optional<int> before,
                         std::optional<int> after)
{
    const qsizetype zero = text.indexOf('\0');
    const bool isWord = (zero < 0 ? text : text.left(zero)).trimmed() == "I_";
    const Key key = isKeyedByText ? Key::Text : isWord ? Key::TrueWord : Key::FalseWord;
    if (key == Key::Text ? texts_.contains(text) : words_.contains(key)) {
        return;
    }
    key == Key::Text ? static_cast<void>(texts_.insert(text)) : static_cast<void>(words_.insert(key));
    const int position = before ? *before - 1 : after.value_or(Count());
    entries_.insert(entries_.begin() + std::clamp(position, 0, Count()), {text, key});
}

void MultiFrameData::ForgetKey(const Entry& entry)
{
    entry.key == Key::Text ? static_cast<void>(texts_.remove(entry.text))
                           : static_cast<void>(words_.remove(entry.key));
}

void MultiFrameData::SetItem(int index, const QByteArray& text)
{
    if (index >= 1 && index <= Count()) {
        Entry& entry = entries_[static_cast<std::size_t>(index - 1)];
        ForgetKey(entry);
        entry = {text, Key::None};
    }
}

void MultiFrameData::Remove(int index)
{
    if (index >= 1 && index <= Count()) {
        ForgetKey(entries_[static_cast<std::size_t>(index - 1)]);
        entries_.erase(entries_.begin() + (index - 1));
    }
}

} // namespace metadata
