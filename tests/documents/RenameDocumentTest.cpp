// SPDX-License-Identifier: MIT
//
// Recipes in use depend on the number of each line. The table below is those numbers, those of a .rfg,
// written down apart from the code that reads and writes them.
#include "documents/RenameDocument.h"

#include "platform/TextFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>
#include <variant>

namespace {

using namespace actions;

struct CheckBox
{
    bool* value;
};

struct Button
{
    OptionGroup* group;
    int button;
};

struct Line
{
    int number; // in a .rfg, from 1
    std::variant<QString*, bool*, CheckBox, Button> control;
};

class Table
{
public:
    explicit Table(RenameOptions& o)
    {
        Texts(29, o.replace.txtReplaceC.text);
        Texts(35, o.replace.txtReplaceA.text);
        Add(41, &o.replaceFirst.Text1);
        Value(42, o.replaceFirst.cmbFirst);
        Add(60, &o.replaceMid.Text12);
        Add(61, &o.replaceMid.Text13);
        Value(62, o.replaceMid.cmbMid);
        Add(80, &o.replaceLast.Text14);
        Value(81, o.replaceLast.cmbLast);
        Value(99, o.replaceAll.cmbAll);
        Add(117, &o.insert.cmbInsert);
        Add(118, &o.insert.Text38);
        Add(119, &o.insert.Text43);
        Add(120, CheckBox{&o.insert.Check2});
        Add(121, &o.insert.Text44);
        Add(122, &o.insert.Text45);
        Add(123, CheckBox{&o.insert.Check1});
        Value(124, o.insert.cmbInsertS);
        Value(142, o.suffix.cmbSuffix);
        Value(160, o.prefix.cmbPrefix);
        Add(178, &o.length.cmbLength);
        Buttons(179, o.length.take, {LengthOptions::Option1, LengthOptions::Option2, LengthOptions::Option3});
        Add(182, &o.length.Text37);
        Add(183, Button{&o.length.pad, LengthOptions::Option19});
        Add(184, &o.length.Text37);
        Add(185, Button{&o.length.pad, LengthOptions::Option20});
        Add(186, &o.length.Text19);
        Buttons(187, o.changeCase.change,
                {ChangeCaseOptions::Option37, ChangeCaseOptions::Option38, ChangeCaseOptions::Option39});
        Buttons(190, o.extension.change,
                {ExtensionOptions::Option42, ExtensionOptions::Option41, ExtensionOptions::Option40,
                 ExtensionOptions::Option43});
        Texts(194, o.extension.txtExtC.text);
        Texts(200, o.extension.txtExtA.text);
        Buttons(206, o.extension.txtExtA.letterCase, {AlphaCounterBlock::Uppercase});
        CleanOptions& clean = o.clean;
        int line = 207;
        for (bool* box : {&clean.chkCAlpha, &clean.chkSAlpha, &clean.chkVowel, &clean.chkDigit, &clean.Check3,
                          &clean.Check4, &clean.Check5, &clean.Check6, &clean.Check7, &clean.Check8,
                          &clean.Check9, &clean.Check10, &clean.Check11, &clean.Check12}) {
            Add(line++, CheckBox{box});
        }
        Add(221, &clean.Text48);
        Buttons(222, clean.filler, {CleanOptions::Option4, CleanOptions::Option5});
        Add(224, &clean.Text49);
        Value(225, o.compose.cmbCompose);
    }

    const std::vector<Line>& Lines() const { return lines_; }

private:
    template<typename Control>
    void Add(int number, Control control)
    {
        lines_.push_back({number, control});
    }
    void Texts(int number, std::array<QString, 6>& texts)
    {
        for (QString& text : texts) {
            Add(number++, &text);
        }
    }
    void Buttons(int number, OptionGroup& group, std::initializer_list<int> buttons)
    {
        for (const int button : buttons) {
            Add(number++, Button{&group, button});
        }
    }
    void Value(int number, ValueControls& value)
    {
        Add(number, &value.combo);
        Add(number + 1, &value.frameAVisible);
        Add(number + 2, &value.frameCVisible);
        Add(number + 3, &value.frameRVisible);
        Texts(number + 4, value.counter.text);
        Add(number + 10, &value.mask);
        Texts(number + 11, value.letters.text);
        Add(number + 17, Button{&value.letters.letterCase, AlphaCounterBlock::Uppercase});
    }

    std::vector<Line> lines_;
};

QString TextOf(const Line& line)
{
    const auto word = [](bool value) {
        return value ? u"True"_qs : u"False"_qs;
    };
    if (const auto* text = std::get_if<QString*>(&line.control)) {
        return **text;
    }
    if (const auto* value = std::get_if<bool*>(&line.control)) {
        return word(**value);
    }
    if (const auto* box = std::get_if<CheckBox>(&line.control)) {
        return *box->value ? u"1"_qs : u"0"_qs;
    }
    const auto button = std::get<Button>(line.control);
    return word(button.group->IsOn(button.button));
}

// The masks that a .rfg leaves out. In a .rnp the last of them is that of Prefix.
constexpr int OmittedMasks[] = {109, 134, 152, 170, 235};
constexpr int ComposeMaskLine = 235;

bool IsLetterCase(const Line& line)
{
    constexpr int numbers[] = {59, 79, 98, 116, 141, 159, 177, 206, 242};
    return std::count(std::begin(numbers), std::end(numbers), line.number) > 0;
}

// Options with a text of its own in each box, and chance in the rest.
RenameOptions Distinct(const QString& mark, std::mt19937& dice)
{
    RenameOptions options;
    const Table table(options);
    for (const Line& line : table.Lines()) {
        if (const auto* text = std::get_if<QString*>(&line.control)) {
            **text = mark + QString::number(line.number);
        } else if (const auto* value = std::get_if<bool*>(&line.control)) {
            **value = dice() % 2 == 0;
        } else if (const auto* box = std::get_if<CheckBox>(&line.control)) {
            *box->value = dice() % 2 == 0;
        } else if (const auto button = std::get<Button>(line.control); dice() % 2 == 0) {
            button.group->Set(button.button, dice() % 4 != 0);
        }
    }
    options.length.Text18 = mark + u"18"_qs;
    options.replace.txtReplaceA.letterCase = OptionGroup(static_cast<int>(dice() % 3) - 1);
    options.compose.lstCompose = {mark};
    std::shuffle(options.List3.entries.begin(), options.List3.entries.end(), dice);
    for (ActionList::Entry& entry : options.List3.entries) {
        entry.Selected = dice() % 2 == 0;
    }
    options.List3.currentIndex = static_cast<int>(dice() % 14) - 1;
    return options;
}

// Runs the same for both documents.
class RenameDocument : public testing::TestWithParam<bool>
{
protected:
    bool IsDrop() const { return GetParam(); }
    int HeaderLines() const { return IsDrop() ? 0 : 1; }

    void Save(const RenameOptions& options)
    {
        EXPECT_TRUE((IsDrop() ? documents::SaveRenameDrop(options, path_)
                              : documents::SaveRenameConfig(options, path_))
                        .IsOk());
    }

    QStringList SavedLines(const RenameOptions& options)
    {
        Save(options);
        return platform::ReadLines(path_).value_or(QStringList());
    }

    void Load(RenameOptions& options)
    {
        if (IsDrop()) {
            documents::LoadRnp(options, path_);
        } else {
            EXPECT_TRUE(documents::LoadRenameConfig(options, path_).IsOk());
        }
    }

    void LoadLines(RenameOptions& options, const QStringList& lines, const QString& end = u"\r\n"_qs)
    {
        folder_.Write(u"recipe"_qs, lines.isEmpty() ? QByteArray() : (lines.join(end) + end).toUtf8());
        Load(options);
    }

    std::mt19937 dice_{4};
    testing_support::TempFolder folder_;
    QString path_ = folder_.Path() + u"recipe"_qs;
};

TEST_P(RenameDocument, StandsLineByLineWhereItAlwaysStood)
{
    for (int round = 0; round < 20; ++round) {
        RenameOptions options = Distinct(u"\u00e4 "_qs, dice_);
        QStringList lines = SavedLines(options);
        ASSERT_EQ(lines.size(), 241 + HeaderLines());
        if (IsDrop()) {
            lines.prepend(u"File Rename Settings"_qs);
        }
        EXPECT_EQ(lines[0], u"File Rename Settings"_qs);
        for (int i = 0; i < 13; ++i) {
            const ActionList::Entry& entry = options.List3.entries[static_cast<std::size_t>(i)];
            EXPECT_EQ(lines[1 + 2 * i], entry.text);
            EXPECT_EQ(lines[2 + 2 * i], entry.Selected ? u"True"_qs : u"False"_qs);
        }
        EXPECT_EQ(lines[27], QString::number(options.List3.currentIndex));
        const Table table(options);
        EXPECT_EQ(table.Lines().size(), 242U - 28U);
        for (const Line& line : table.Lines()) {
            QString expected = TextOf(line);
            if (std::count(std::begin(OmittedMasks), std::end(OmittedMasks), line.number) > 0) {
                expected = IsDrop() ? expected : QString();
            }
            if (IsDrop() && line.number == ComposeMaskLine) {
                expected = options.prefix.cmbPrefix.mask;
            }
            EXPECT_EQ(lines[line.number - 1], expected) << "line " << line.number;
        }
    }
    const QByteArray bytes = folder_.Content(u"recipe"_qs);
    EXPECT_EQ(bytes.count("\r\n"), 241 + HeaderLines());
    EXPECT_EQ(bytes.count('\n') + bytes.count('\r'), 2 * (241 + HeaderLines()));
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    EXPECT_TRUE(bytes.contains("\xC3\xA4 41\r\n"));

    RenameOptions empty;
    empty.List3 = {};
    EXPECT_EQ(SavedLines(empty).size(), 241 + HeaderLines()) << "thirteen pairs, whatever the list holds";
}

TEST_P(RenameDocument, ComesBackButForWhatStaysBehind)
{
    for (int round = 0; round < 50; ++round) {
        const RenameOptions saved = Distinct(u"saved "_qs, dice_);
        RenameOptions before = Distinct(u"before "_qs, dice_);
        Save(saved);
        RenameOptions loaded = before;
        Load(loaded);

        RenameOptions expected = saved;
        expected.compose.lstCompose = before.compose.lstCompose;
        expected.replace.txtReplaceA.letterCase = before.replace.txtReplaceA.letterCase;
        expected.length.Text18 = before.length.Text18;
        expected.replaceFirst.cmbFirst.frameCVisible = saved.replaceFirst.cmbFirst.frameRVisible;
        expected.replaceFirst.cmbFirst.frameRVisible = before.replaceFirst.cmbFirst.frameRVisible;
        expected.compose.cmbCompose.mask = IsDrop() ? saved.prefix.cmbPrefix.mask : QString();
        if (!IsDrop()) {
            for (QString* mask : {&expected.replaceAll.cmbAll.mask, &expected.insert.cmbInsertS.mask,
                                  &expected.suffix.cmbSuffix.mask, &expected.prefix.cmbPrefix.mask}) {
                mask->clear();
            }
        }
        // Only "Uppercase" is stored: a False leaves Lowercase as it is and takes Uppercase away.
        const Table wanted(expected);
        const Table replaced(before);
        for (std::size_t i = 0; i < wanted.Lines().size(); ++i) {
            if (IsLetterCase(wanted.Lines()[i]) && TextOf(wanted.Lines()[i]) == u"False"_qs) {
                OptionGroup& group = *std::get<Button>(wanted.Lines()[i].control).group;
                group = *std::get<Button>(replaced.Lines()[i].control).group;
                group.Set(AlphaCounterBlock::Uppercase, false);
            }
        }
        ASSERT_EQ(SavedLines(loaded), SavedLines(expected)) << "round " << round;
        ASSERT_TRUE(loaded == expected) << "round " << round;
    }
}

// Loads the first lines of a document and compares each control with the line that lands on it. Line n of
// the table is read from line n - shift of the file.
void ExpectLanded(const QStringList& file, int shift, RenameOptions& loaded, RenameOptions& before)
{
    const Table now(loaded);
    const Table then(before);
    for (std::size_t i = 0; i < now.Lines().size(); ++i) {
        const Line& line = now.Lines()[i];
        const int at = line.number - shift - 1;
        const QString text = at < file.size() ? file[at] : TextOf(then.Lines()[i]);
        const bool isText = std::holds_alternative<QString*>(line.control);
        const bool isWord =
            std::holds_alternative<bool*>(line.control) && (text == u"True"_qs || text == u"False"_qs);
        // The two that are set by two lines show the last of them, and the one that no line sets stays.
        const bool isOdd = line.number == 44 || line.number == 45 || line.number == 182 || line.number == 184;
        if ((isText || isWord) && !isOdd) {
            ASSERT_EQ(TextOf(line), text) << "line " << line.number << " of " << file.size();
        }
    }
}

TEST_P(RenameDocument, CutOffAtAnyLineLoadsWhatIsThere)
{
    const QStringList all = SavedLines(Distinct(u"saved "_qs, dice_));
    RenameOptions before = Distinct(u"before "_qs, dice_);
    for (qsizetype count = HeaderLines(); count <= all.size(); ++count) {
        RenameOptions loaded = before;
        const QStringList lines = all.mid(0, count);
        LoadLines(loaded, lines, count % 2 == 0 ? u"\r\n"_qs : u"\n"_qs);
        ExpectLanded(lines, IsDrop() ? 1 : 0, loaded, before);
        EXPECT_EQ(loaded.List3.entries.size(),
                  static_cast<std::size_t>(std::min<qsizetype>(13, (count - HeaderLines() + 1) / 2)));
        if (count < 28 - 1 + HeaderLines()) {
            EXPECT_EQ(loaded.List3.currentIndex, -1);
        }
    }
}

TEST_P(RenameDocument, ValuesThatDoNotConvertLeaveTheirControls)
{
    RenameOptions options;
    const QStringList good = SavedLines(options);
    const auto loaded = [&](int number, const QStringList& values) {
        QStringList lines = good;
        for (const QString& value : values) {
            lines[number - 2 + HeaderLines()] = value;
            ++number;
        }
        RenameOptions result;
        result.insert.Check2 = result.replaceMid.cmbMid.frameAVisible = true;
        LoadLines(result, lines);
        return result;
    };
    for (const auto& [text, value] : {std::pair(u"x"_qs, true),
                                      {u""_qs, true},
                                      {u"False"_qs, false},
                                      {u"0"_qs, false},
                                      {u" true "_qs, true},
                                      {u"-1"_qs, true}}) {
        EXPECT_EQ(loaded(63, {text}).replaceMid.cmbMid.frameAVisible, value) << text.toStdString();
    }
    for (const auto& [text, value] :
         {std::pair(u"x"_qs, true), {u""_qs, true}, {u"0"_qs, false}, {u"1"_qs, true}}) {
        EXPECT_EQ(loaded(120, {text}).insert.Check2, value) << text.toStdString();
    }
    for (const auto& [text, index] :
         {std::pair(u"12"_qs, 12), {u"-1"_qs, -1}, {u"13"_qs, -1}, {u"x"_qs, -1}}) {
        EXPECT_EQ(loaded(28, {text}).List3.currentIndex, index) << text.toStdString();
    }
    EXPECT_FALSE(loaded(3, {u"x"_qs}).List3.entries[0].Selected);

    const QString yes = u"True"_qs;
    const QString no = u"False"_qs;
    const std::pair<QStringList, int> groups[] = {
        {{no, yes, no}, 1},   {{no, no, yes}, 2},     {{no, no, no}, OptionGroup::None}, {{yes, yes, no}, 1},
        {{yes, yes, yes}, 2}, {{u"x"_qs, no, no}, 0}, {{no, u"x"_qs, u""_qs}, -1},       {{yes, no, no}, 0},
    };
    for (const auto& [lines, chosen] : groups) { // the first button is on before
        EXPECT_EQ(loaded(179, lines).length.take.Chosen(), chosen) << lines.join(u' ').toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, RenameDocument, testing::Bool(),
                         [](const auto& form) { return form.param ? "Drop" : "Config"; });

TEST(RenameConfig, AnyOtherFirstLineIsAnInvalidFile)
{
    testing_support::TempFolder folder;
    const QByteArray body = "Replace All\r\nTrue\r\n";
    for (const QByteArray& content :
         {QByteArray(), QByteArray("\r\n"), body, "file rename settings\r\n" + body,
          "File Rename Settings \r\n" + body}) {
        folder.Write(u"recipe"_qs, content);
        for (const QString& name : {u"recipe"_qs, u"missing"_qs}) {
            RenameOptions options;
            const platform::Status status = documents::LoadRenameConfig(options, folder.Path() + name);
            EXPECT_EQ(status.Description(), u"Invalid File"_qs) << content.constData();
            EXPECT_TRUE(options.List3.entries.empty());
            options.List3 = RenameOptions().List3;
            EXPECT_TRUE(options == RenameOptions());
        }
    }
}

TEST(RenameDrop, AConfigLandsOneLineOutOfStep)
{
    testing_support::TempFolder folder;
    std::mt19937 dice(7);
    const QString path = folder.Path() + u"recipe"_qs;
    ASSERT_TRUE(documents::SaveRenameConfig(Distinct(u"saved "_qs, dice), path).IsOk());
    RenameOptions before = Distinct(u"before "_qs, dice);
    RenameOptions loaded = before;
    documents::LoadRnp(loaded, path);
    const QStringList lines = platform::ReadLines(path).value_or(QStringList());
    ExpectLanded(lines, 1, loaded, before);
    EXPECT_EQ(loaded.List3.entries[0].text, u"File Rename Settings"_qs);
    EXPECT_FALSE(loaded.List3.entries[0].Selected) << "the name of an action is no boolean";
    EXPECT_EQ(loaded.length.Text37, lines[182]) << "whatever Option19 was";

    folder.Write(u"film"_qs, QByteArray("Replace All\r\n").repeated(100'000));
    for (const QString& noRecipe : {u"missing"_qs, u"film"_qs}) {
        loaded = before;
        documents::LoadRnp(loaded, folder.Path() + noRecipe);
        EXPECT_TRUE(loaded.List3.entries.empty()) << noRecipe.toStdString();
        loaded.List3 = before.List3;
        EXPECT_TRUE(loaded == before) << noRecipe.toStdString();
    }
}

} // namespace
