// SPDX-License-Identifier: MIT
#include "actions/TokenExpander.h"

#include "model/ActionError.h"
#include "model/Text.h"
#include "platform/Conversions.h"

namespace actions {

namespace {

using model::ActionKind;

const QString ExifPrefix = QStringLiteral("$Exif_");
const QString Mp3Prefix = QStringLiteral("$MP3_ID3_");
const QString ComposeRandomPrefix = QStringLiteral("$Random$_");
const QString ListRandomPrefix = QStringLiteral("$Rand$_");

bool IsOverwrite(ActionKind kind)
{
    return kind == ActionKind::ReplaceFirst || kind == ActionKind::ReplaceMid ||
           kind == ActionKind::ReplaceLast || kind == ActionKind::ReplaceAll;
}

bool IsAddition(ActionKind kind)
{
    return kind == ActionKind::Insert || kind == ActionKind::Suffix || kind == ActionKind::Prefix;
}

// The prefix behind which a kind's random token carries its mask; empty if the kind has no such token.
QString RandomPrefixOf(ActionKind kind)
{
    if (kind == ActionKind::Compose) {
        return ComposeRandomPrefix;
    }
    return kind == ActionKind::Replace || kind == ActionKind::Extension ? ListRandomPrefix : QString();
}

QDateTime ModifiedMoment(const model::NameContext& row)
{
    if (!row.modified) {
        throw model::ActionError(platform::DescriptionOf(platform::ConversionFault::TypeMismatch));
    }
    return platform::LocalMoment(*row.modified);
}

} // namespace

TokenExpander::TokenExpander(const QString& text, ActionKind kind, const TokenBlocks& blocks,
                             const RunState& run)
    : kind_(kind),
      run_(run),
      numbers_(blocks.counter),
      letters_(blocks.letters),
      text_(text),
      token_(Recognise(text, blocks))
{}

TokenExpander::Token TokenExpander::Recognise(const QString& text, const TokenBlocks& blocks)
{
    const QString randomPrefix = RandomPrefixOf(kind_);
    const bool isRandom = !randomPrefix.isEmpty() && text.contains(randomPrefix);
    if (text.contains(ExifPrefix)) {
        return Token::Exif;
    }
    // In a Compose element a random mask goes before MP3 data, in a list row behind it.
    const bool isMp3 = kind_ != ActionKind::Extension && text.contains(Mp3Prefix);
    if (isMp3 && !(isRandom && kind_ == ActionKind::Compose)) {
        return Token::Mp3;
    }
    if (isRandom) {
        text_ = QString(text).remove(randomPrefix);
        return Token::Random;
    }
    return RecogniseWhole(text, blocks);
}

TokenExpander::Token TokenExpander::RecogniseWhole(const QString& text, const TokenBlocks& blocks)
{
    struct Known
    {
        QString text;
        Token token;
        bool isHonoured;
    };
    const bool hasData = kind_ != ActionKind::Extension;
    const bool hasCase = IsOverwrite(kind_) || kind_ == ActionKind::Replace;
    const Known known[] = {
        {QStringLiteral("$Counter$"), Token::Counter, true},
        {QStringLiteral("$AlphaCounter$"), Token::AlphaCounter, true},
        {QStringLiteral("$Random String$"), Token::Random, IsOverwrite(kind_) || IsAddition(kind_)},
        {QStringLiteral("$filesizeB$"), Token::SizeInBytes, hasData},
        {QStringLiteral("$filesizeKB$"), Token::SizeInKilobytes, hasData},
        {QStringLiteral("$filesizeMB$"), Token::SizeInMegabytes, hasData},
        {QStringLiteral("$foldername$"), Token::FolderName, hasData},
        {QStringLiteral("$Upper_Case$"), Token::UpperCase, hasCase},
        {QStringLiteral("$Lower_Case$"), Token::LowerCase, hasCase},
        {QStringLiteral("$Invert_Case$"), Token::InvertCase, hasCase},
    };
    for (const Known& entry : known) {
        if (entry.isHonoured && entry.text == text) {
            if (entry.token == Token::Random) {
                text_ = blocks.mask;
            }
            return entry.token;
        }
    }
    date_ = DateTokenOf(text, kind_);
    if (!date_) {
        return Token::Literal;
    }
    return date_->form == DateForm::None ? Token::KeepsPrevious : Token::Date;
}

std::optional<QString> TokenExpander::Expand(const model::NameContext& row, const QString& piece,
                                             const QString& previous)
{
    switch (token_) {
    case Token::Literal:
        return text_;
    case Token::Exif:
        return MissingExif(piece);
    case Token::Mp3:
        // A Compose element without data adds nothing; everywhere else the name is left alone.
        return kind_ == ActionKind::Compose ? std::optional(QString()) : std::nullopt;
    case Token::Random:
        return RandomString(text_, run_.random);
    case Token::Date:
        return DateText(*date_,
                        date_->base == DateToken::Base::Modified ? ModifiedMoment(row) : run_.clock.Now());
    case Token::KeepsPrevious:
        return previous;
    case Token::SizeInBytes:
        return platform::SingleText(row.size) + u'B';
    case Token::SizeInKilobytes:
        return platform::RoundedQuotientText(row.size, 1024) + QStringLiteral("KB");
    case Token::SizeInMegabytes:
        return platform::RoundedQuotientText(row.size, 1048576) + QStringLiteral("MB");
    case Token::FolderName:
        return row.folder;
    case Token::UpperCase:
        return model::UpperCase(piece);
    case Token::LowerCase:
        return model::LowerCase(piece);
    case Token::InvertCase:
        return model::InvertCase(piece);
    case Token::Counter:
        return numbers_.NextNumber(run_.counters.Of(kind_));
    case Token::AlphaCounter:
        return letters_.NextLetters(run_.counters.Of(kind_));
    }
    return std::nullopt;
}

std::optional<QString> TokenExpander::MissingExif(const QString& piece) const
{
    switch (kind_) {
    case ActionKind::ReplaceFirst:
    case ActionKind::ReplaceMid:
    case ActionKind::ReplaceLast:
    case ActionKind::Extension:
        return piece;
    case ActionKind::Replace:
        return std::nullopt;
    default:
        return QString();
    }
}

} // namespace actions
