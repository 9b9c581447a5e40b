// SPDX-License-Identifier: MIT
#include "actions/TokenExpander.h"

#include "model/ActionError.h"
#include "model/GetFName.h"
#include "model/Text.h"
#include "platform/Conversions.h"

namespace actions {

namespace {

using model::ActionKind;

const QString ExifPrefix = QStringLiteral("$Exif_");
const QString ExifDatePrefix = QStringLiteral("$Exif_date_");
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

// The row's picture date, which parts its days with ":".
QDateTime PictureMoment(const model::NameContext& row)
{
    QString date = row.exifDate;
    for (int time = 0; time < 2; ++time) {
        if (const qsizetype colon = date.indexOf(u':'); colon >= 0) {
            date[colon] = u'/';
        }
    }
    const auto moment = platform::ToMoment(date);
    if (!moment) {
        throw model::ActionError(platform::DescriptionOf(platform::ConversionFault::TypeMismatch));
    }
    return *moment;
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
    if (text.contains(ExifPrefix)) { // "$Exif_date_" holds it, too
        SetExifKey(text);
        return Token::Exif;
    }
    // In a Compose element a random mask goes before MP3 data, in a list row behind it.
    const bool isMp3 = kind_ != ActionKind::Extension && text.contains(Mp3Prefix);
    if (isMp3 && !(isRandom && kind_ == ActionKind::Compose)) {
        text_ = QString(text).remove(Mp3Prefix);
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
    case Token::Exif: {
        const bool hasData = row.exifLines.size() >= 2 && row.type == model::JpegImage;
        return hasData ? ExifValue(row) : MissingExif(piece);
    }
    case Token::Mp3:
        return Mp3Value(row);
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

// The key begins with the seventh character, the word of a date with the twelfth, wherever in the text the
// prefix stands. A word that is no date token stands for the whole text.
void TokenExpander::SetExifKey(const QString& text)
{
    isPictureDate_ = text.contains(ExifDatePrefix);
    if (!isPictureDate_) {
        text_ = model::Mid(text, 7, model::Length(text));
    } else {
        date_ = PictureDateTokenOf(model::Mid(text, 12, model::Length(text)));
    }
}

std::optional<QString> TokenExpander::ExifValue(const model::NameContext& row) const
{
    if (isPictureDate_) {
        return date_ ? DateText(*date_, PictureMoment(row)) : text_;
    }
    for (const QString& line : row.exifLines) {
        if (line.contains(text_)) {
            // The key, a colon and a blank come off the line's length, wherever in it the key stands.
            const int count = model::Length(line) - model::Length(text_) - 2;
            if (count < 0) {
                throw model::ActionError(QStringLiteral("Invalid procedure call or argument"));
            }
            return model::Right(line, count);
        }
    }
    return QString();
}

// Without data a Compose element adds nothing; everywhere else the name is left alone.
std::optional<QString> TokenExpander::Mp3Value(const model::NameContext& row) const
{
    const QString value = row.mp3 ? row.mp3->Value(text_) : QString();
    return value.isEmpty() && kind_ != ActionKind::Compose ? std::nullopt : std::optional(value);
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
