// SPDX-License-Identifier: MIT
//
// MultiFrameData: the contents of a frame that a tag may hold several times, in their order. Items are bytes:
// pictures as they are, texts as UTF-8. Positions count from 1.
#pragma once

#include <QByteArray>
#include <QSet>

#include <optional>
#include <vector>

namespace metadata {

class MultiFrameData
{
public:
    int Count() const { return static_cast<int>(entries_.size()); }

    // REQUIRES: 1 <= index <= Count().
    const QByteArray& Item(int index) const { return entries_[static_cast<std::size_t>(index - 1)].text; }

    // Puts another text in that place. It has no key, so an equal one may be added again.
    void SetItem(int index, const QByteArray& text);

    // Adds an item at the end, or before or after a position, which is moved into the list. With
    // `isKeyedByText` an item that was added with the same text refuses it, without it one that was added
    // without it: so of such frames only the first is kept.
    void Add(const QByteArray& text, bool isKeyedByText, std::optional<int> before = {},
             std::optional<int> after = {});

    void Remove(int index);
    void Clear() { *this = {}; }

private:
    // What keeps a second item out. Without a text as its key an item has the word for whether it is "I_".
    enum class Key { None, Text, FalseWord, TrueWord };

    struct Entry
    {
        QByteArray text;
        Key key = Key::None;
    };

    void ForgetKey(const Entry& entry);

    std::vector<Entry> entries_;
    QSet<QByteArray> texts_; // that are keys
    QSet<Key> words_;        // the same of the other two
};

} // namespace metadata
