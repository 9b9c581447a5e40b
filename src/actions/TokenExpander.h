// SPDX-License-Identifier: MIT
//
// TokenExpander: turns the text of a value box, list row or list element into the value for one file. Only a
// whole text is a token; anything else stands for itself ("My $Counter$" is literal). Words that begin a
// longer token, such as "$Exif_", are the exception: they are sought anywhere in the text. The text is looked
// up once, when the expander is made.
#pragma once

#include "actions/ActionHandler.h"
#include "actions/CounterStates.h"
#include "actions/DateTokens.h"
#include "model/ActionKind.h"
#include "model/NameContext.h"

#include <QString>

#include <optional>

namespace actions {

// The option sets from which an action's counter and random tokens take their texts.
struct TokenBlocks
{
    const CounterBlock& counter;
    const AlphaCounterBlock& letters;
    QString mask; // of $Random String$; empty where the action has no mask box of its own
};

class TokenExpander
{
public:
    // A token that actions of `kind` don't honour is literal text.
    TokenExpander(const QString& text, model::ActionKind kind, const TokenBlocks& blocks,
                  const RunState& run);

    // The value for a row, or nothing: then the action is to leave the name alone. `piece` is the stretch of
    // the name in question: what case tokens work on. `previous` is the value of the element or row before,
    // which $mod_yymmdd$ takes over since it sets no value of its own. Throws ActionError if a number box or
    // the row's date doesn't convert.
    std::optional<QString> Expand(const model::NameContext& row, const QString& piece,
                                  const QString& previous = QString());

private:
    enum class Token {
        Literal,
        Exif,
        Mp3,
        Random,
        Date,
        KeepsPrevious,
        SizeInBytes,
        SizeInKilobytes,
        SizeInMegabytes,
        FolderName,
        UpperCase,
        LowerCase,
        InvertCase,
        Counter,
        AlphaCounter,
    };

    Token Recognise(const QString& text, const TokenBlocks& blocks);
    Token RecogniseWhole(const QString& text, const TokenBlocks& blocks);
    void SetExifKey(const QString& text);
    std::optional<QString> ExifValue(const model::NameContext& row) const;
    std::optional<QString> MissingExif(const QString& piece) const;
    std::optional<QString> Mp3Value(const model::NameContext& row) const;

    model::ActionKind kind_;
    RunState run_;
    CounterFormat numbers_;
    CounterFormat letters_;
    QString text_; // the literal, the mask of Token::Random, or the key of metadata
    std::optional<DateToken> date_;
    bool isPictureDate_ = false; // a token of metadata holds "$Exif_date_"
    Token token_;
};

} // namespace actions
