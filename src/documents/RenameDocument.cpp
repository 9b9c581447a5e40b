// SPDX-License-Identifier: MIT
#include "documents/RenameDocument.h"

#include "documents/RecipeLines.h"
#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <QStringList>

#include <optional>

namespace documents {

namespace {

constexpr int StoredActions = model::ActionKindCount;

// Bytes. A document has a few kilobytes; what is larger was handed over by mistake, a film for a recipe.
constexpr qint64 LargestDocument = 1024 * 1024;

// Turns options into lines.
class Saver
{
public:
    explicit Saver(QStringList& lines) : lines_(lines) {}

    // Always thirteen pairs; an entry that the list lacks is written as an empty one.
    void Actions(const actions::ActionList& list)
    {
        for (std::size_t i = 0; i < StoredActions; ++i) {
            const auto entry = i < list.entries.size() ? list.entries[i] : actions::ActionList::Entry{};
            Text(entry.text);
            Boolean(entry.Selected);
        }
        Text(QString::number(list.currentIndex));
    }

    void Text(const QString& text) { lines_.append(text); }
    void MaskText(const QString& stored, const QString&) { Text(stored); }
    void Boolean(bool value) { Text(platform::BooleanText(value)); }
    void Visibility(bool stored, bool) { Boolean(stored); }
    void Button(const actions::OptionGroup& group, int button) { Boolean(group.IsOn(button)); }
    void Check(bool value) { Text(QString::number(value ? 1 : 0)); }

private:
    QStringList& lines_;
};

// Sets options from lines. A missing line and a value that doesn't convert leave the option as it was.
class Loader
{
public:
    explicit Loader(const QStringList& lines) : lines_(lines) {}

    // REQUIRES: the list is empty.
    void Actions(actions::ActionList& list)
    {
        for (int i = 0; i < StoredActions; ++i) {
            const auto text = Next();
            const auto selected = NextBoolean();
            if (text) {
                list.entries.push_back({*text, selected.value_or(false)});
            }
        }
        const auto index = NextInteger();
        if (index && *index >= -1 && *index < static_cast<int>(list.entries.size())) {
            list.currentIndex = *index;
        }
    }

    void Text(QString& text) { text = Next().value_or(text); }
    void MaskText(const QString&, QString& into) { Text(into); }
    void Boolean(bool& value) { value = NextBoolean().value_or(value); }
    void Visibility(bool, bool& into) { Boolean(into); }

    void Button(actions::OptionGroup& group, int button)
    {
        if (const auto value = NextBoolean()) {
            group.Set(button, *value);
        }
    }

    void Check(bool& value)
    {
        const auto number = NextInteger();
        if (number == 0 || number == 1) {
            value = number == 1;
        }
    }

private:
    std::optional<QString> Next()
    {
        return next_ < lines_.size() ? std::optional(lines_.at(next_++)) : std::nullopt;
    }

    std::optional<bool> NextBoolean()
    {
        const auto text = Next();
        return text ? platform::ToBoolean(*text) : std::nullopt;
    }

    std::optional<int> NextInteger()
    {
        const auto text = Next();
        return text ? platform::ToInt16(*text).value : std::nullopt;
    }

    const QStringList& lines_;
    qsizetype next_ = 0;
};

QStringList LinesOf(const actions::RenameOptions& options, RecipeForm form)
{
    QStringList lines;
    if (form == RecipeForm::Config) {
        lines.append(RenameConfigHeader);
    }
    Saver saver(lines);
    RecipeLines(saver, form).Visit(options);
    return lines;
}

void SetFromLines(actions::RenameOptions& options, const QStringList& lines, RecipeForm form)
{
    Loader loader(lines);
    RecipeLines(loader, form).Visit(options);
}

void EmptyActionList(actions::RenameOptions& options)
{
    options.List3.entries.clear();
    options.List3.currentIndex = -1;
}

} // namespace

platform::Status SaveRenameConfig(const actions::RenameOptions& options, const QString& path)
{
    return platform::WriteDocument(path, LinesOf(options, RecipeForm::Config));
}

platform::Status SaveRenameDrop(const actions::RenameOptions& options, const QString& path)
{
    return platform::WriteDocument(path, LinesOf(options, RecipeForm::Drop));
}

platform::Status LoadRenameConfig(actions::RenameOptions& options, const QString& path)
{
    EmptyActionList(options);
    auto lines = platform::ReadLines(path, platform::Fallback::Windows1252, LargestDocument);
    if (!lines || lines->isEmpty() || lines->takeFirst() != RenameConfigHeader) {
        return platform::Status::Failure(QStringLiteral("Invalid File"));
    }
    SetFromLines(options, *lines, RecipeForm::Config);
    return {};
}

void LoadRnp(actions::RenameOptions& options, const QString& path)
{
    EmptyActionList(options);
    if (const auto lines = platform::ReadLines(path, platform::Fallback::Windows1252, LargestDocument)) {
        SetFromLines(options, *lines, RecipeForm::Drop);
    }
}

} // namespace documents
