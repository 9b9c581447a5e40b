// SPDX-License-Identifier: MIT
#include "app/Settings.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

namespace app {

namespace {

const QString Blank = QStringLiteral("blank");
const QString EveryType = QStringLiteral("*.*");

// The first four lines.
enum FirstLine { FolderLine, AllSelectedLine, SortLine, TypeLine, FirstLineCount };

QString PathOfSettings(const platform::ProgramFolder& programFolder)
{
    return programFolder.PathOf(QStringLiteral("Quillmark.ini"));
}

// Shows the lines from the fifth on to a visitor, in their order.
template<class Visitor, class State, class Extension>
void VisitLines(Visitor& line, State& state, Extension& extension)
{
    line.Text(state.ViewMode);
    line.Empty();
    line.Number(state.DontAskBookmarkNames);
    line.Number(state.OnTopState);
    line.Boolean(state.ClearOnDragDrop);
    line.BooleanReadAsNumber(extension.ReplaceAllExtensions);
    line.Text(extension.ExtensionAllValue);
    line.Text(state.LastTimeToken);
    line.Text(state.LastDateToken);
    line.TextThatIsOnlyWritten(state.LastMask);
    line.Number(state.MetadataChoice);
    line.Number(state.ShowHiddenFolders);
    line.Number(state.AutoRefreshRenameView);
    line.Number(state.AutoRefreshMainView);
    line.Number(state.AutoValidate);
    line.Number(state.AutoNormalizeAttributes);
    line.Number(state.ShowRenameLog);
    line.Number(state.SaveLogFile);
    line.Number(state.ShowRenameDrop);
    line.Number(state.ConfirmAfterRename);
}

class LineReader
{
public:
    explicit LineReader(const QStringList& lines) : lines_(lines) {}

    void Text(QString& value) { value = Next(); }
    void Empty() { Next(); }
    void TextThatIsOnlyWritten(const QString&) { Next(); }
    void Number(int& value) { value = platform::ToInt16(Next()).value.value_or(static_cast<qint16>(value)); }
    void Boolean(bool& value) { value = platform::ToBoolean(Next()).value_or(value); }

    // It is written as "True", which is no number: only a number that was put there by hand turns it on.
    void BooleanReadAsNumber(bool& value)
    {
        if (const auto number = platform::ToInt16(Next()).value) {
            value = *number > 0;
        }
    }

private:
    QString Next() { return lines_.value(at_++); }

    const QStringList& lines_;
    qsizetype at_ = FirstLineCount;
};

class LineWriter
{
public:
    explicit LineWriter(QStringList& lines) : lines_(lines) {}

    void Text(const QString& value) { lines_ << (value.contains(u'\n') ? QString() : value); }
    void Empty() { lines_ << QString(); }
    void TextThatIsOnlyWritten(const QString& value) { Text(value); }
    void Number(int value) { lines_ << QString::number(value); }
    void Boolean(bool value) { lines_ << platform::BooleanText(value); }
    void BooleanReadAsNumber(bool value) { Boolean(value); }

private:
    QStringList& lines_;
};

} // namespace

void ReadSettings(const platform::ProgramFolder& programFolder, model::AppState& state,
                  actions::RenameOptions& options)
{
    const auto lines = platform::ReadLines(PathOfSettings(programFolder));
    if (!lines) {
        return;
    }
    const QString folder = lines->value(FolderLine);
    if (folder != Blank) {
        state.LastFolder = folder;
    }
    state.AllSelected = lines->value(AllSelectedLine) == Blank ? 0 : 1;
    const QString type = lines->value(TypeLine);
    state.FileTypeFilter = type == Blank ? EveryType : type;
    LineReader reader(*lines);
    VisitLines(reader, state, options.extension);
}

PreferenceControls ReadPreferenceControls(const platform::ProgramFolder& programFolder)
{
    const auto lines = platform::ReadLines(PathOfSettings(programFolder));
    if (!lines) {
        return {};
    }
    return {
        .Check1 = lines->value(FolderLine) != Blank,
        .Check10 = lines->value(AllSelectedLine) != Blank,
        .OptSort1 = lines->value(SortLine) == QStringLiteral("magnitude"),
        .Check19 = lines->value(TypeLine) != Blank,
    };
}

platform::Status WriteSettings(const platform::ProgramFolder& programFolder, const model::AppState& state,
                               const actions::RenameOptions& options, const PreferenceControls& preferences,
                               const QString& selectedFolder, const QString& fileType)
{
    const auto orBlank = [](bool isKept, const QString& text) {
        return isKept && !text.contains(u'\n') ? text : Blank;
    };
    QStringList lines{
        orBlank(preferences.Check1, selectedFolder),
        orBlank(preferences.Check10, QStringLiteral("allselected")),
        orBlank(preferences.OptSort1, QStringLiteral("magnitude")),
        orBlank(preferences.Check19, fileType),
    };
    LineWriter writer(lines);
    VisitLines(writer, state, options.extension);
    const platform::Status status = programFolder.Ensure();
    return status.IsOk() ? platform::WriteDocument(PathOfSettings(programFolder), lines) : status;
}

} // namespace app
