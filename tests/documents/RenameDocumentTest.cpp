// SPDX-License-Identifier: MIT
//
// Recipes in use depend on the number of each line. Controls are those numbers, those of a .rfg, written
// down apart from the code that reads and writes them.
#include "documents/RenameDocument.h"

#include "platform/TextFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

using namespace actions;

const QString Yes = u"True"_qs, No = u"False"_qs;

// The state of each control under its line: number n stands at n - 1.
struct Controls : QStringList
{
    explicit Controls(const RenameOptions& o) : QStringList(u"File Rename Settings"_qs)
    {
        for (std::size_t i = 0; i < 13; ++i) {
            const auto entry = i < o.List3.entries.size() ? o.List3.entries[i] : ActionList::Entry{};
            *this << entry.text << Word(entry.Selected);
        }
        At(28) << QString::number(o.List3.currentIndex) << Texts(o.replace.txtReplaceC)
               << Texts(o.replace.txtReplaceA);
        At(41) << o.replaceFirst.Text1 << Value(o.replaceFirst.cmbFirst);
        At(60) << o.replaceMid.Text12 << o.replaceMid.Text13 << Value(o.replaceMid.cmbMid);
        At(80) << o.replaceLast.Text14 << Value(o.replaceLast.cmbLast);
        At(99) << Value(o.replaceAll.cmbAll);
        At(117) << o.insert.cmbInsert << o.insert.Text38 << o.insert.Text43 << Check(o.insert.Check2);
        At(121) << o.insert.Text44 << o.insert.Text45 << Check(o.insert.Check1) << Value(o.insert.cmbInsertS);
        At(142) << Value(o.suffix.cmbSuffix) << Value(o.prefix.cmbPrefix);
        const LengthOptions& l = o.length;
        At(178) << l.cmbLength << On(l.take, l.Option1) << On(l.take, l.Option2) << On(l.take, l.Option3);
        At(182) << l.Text37 << On(l.pad, l.Option19) << l.Text37 << On(l.pad, l.Option20) << l.Text19;
        const auto& [change] = o.changeCase;
        At(187) << On(change, 0) << On(change, 1) << On(change, 2);
        const ExtensionOptions& e = o.extension;
        At(190) << On(e.change, e.Option42) << On(e.change, e.Option41) << On(e.change, e.Option40);
        At(193) << On(e.change, e.Option43) << Texts(e.txtExtC) << Texts(e.txtExtA);
        At(206) << On(e.txtExtA.letterCase, AlphaCounterBlock::Uppercase);
        const CleanOptions& c = o.clean;
        for (const bool box : {c.chkCAlpha, c.chkSAlpha, c.chkVowel, c.chkDigit, c.Check3, c.Check4, c.Check5,
                               c.Check6, c.Check7, c.Check8, c.Check9, c.Check10, c.Check11, c.Check12}) {
            *this << Check(box);
        }
        At(221) << c.Text48 << On(c.filler, c.Option4) << On(c.filler, c.Option5) << c.Text49;
        At(225) << Value(o.compose.cmbCompose);
    }

    QStringList& At(qsizetype number)
    {
        EXPECT_EQ(size() + 1, number);
        return *this;
    }
    static QString Word(bool value) { return value ? Yes : No; }
    static QString Check(bool value) { return value ? u"1"_qs : u"0"_qs; }
    static QStringList Texts(const auto& block) { return {block.text.begin(), block.text.end()}; }
    static QString On(const OptionGroup& group, int button) { return Word(group.IsOn(button)); }
    static QStringList Value(const ValueControls& v)
    {
        return QStringList{v.combo, Word(v.frameAVisible), Word(v.frameCVisible), Word(v.frameRVisible)}
               << Texts(v.counter) << v.mask << Texts(v.letters)
               << On(v.letters.letterCase, AlphaCounterBlock::Uppercase);
    }
};

// Runs the same for both documents.
class RenameDocument : public testing::TestWithParam<bool>
{
protected:
    const bool isDrop = GetParam();

    // A document as it is saved: a text of its own on each line, or none at all, and chance in the rest.
    QStringList AnyDocument(const QString& mark)
    {
        QStringList lines = Controls({});
        const int pick = int(dice() % 12);
        const std::set on{179 + pick % 3, 183 + pick % 2 * 2, 187 + pick / 4, 190 + pick % 4, 222 + pick / 6};
        for (int number = 2; number <= 242; ++number) {
            QString& line = lines[number - 1];
            const bool chance = dice() % 2 == 0;
            if (line == Yes || line == No) {
                const bool isInGroup = (number > 178 && number < 194) || number == 222 || number == 223;
                line = Controls::Word(isInGroup ? on.contains(number) : chance);
            } else {
                const bool isCheck = number == 120 || number == 123 || (number >= 207 && number <= 220);
                line =
                    isCheck ? Controls::Check(chance) : QString(mark).replace(u'#', QString::number(number));
            }
        }
        lines[28 - 1] = QString::number(int(dice() % 14) - 1);
        return WithMasksAsStored(lines);
    }

    // A .rfg leaves five masks out; in a .rnp the mask of Compose is that of Prefix.
    QStringList WithMasksAsStored(QStringList lines) const
    {
        for (const int number : {109, 134, 152, 170, 235}) {
            lines[number - 1] = !isDrop ? QString() : lines[(number == 235 ? 170 : number) - 1];
        }
        return lines;
    }

    QStringList SavedLines(const RenameOptions& options)
    {
        const auto save = isDrop ? documents::SaveRenameDrop : documents::SaveRenameConfig;
        EXPECT_TRUE(save(options, path).IsOk());
        EXPECT_FALSE(save(options, path + u"/none"_qs).IsOk());
        return platform::ReadLines(path).value_or(QStringList());
    }

    // Loads a document given as a .rfg.
    void Load(RenameOptions& options, const QStringList& lines, const QString& end = u"\r\n"_qs)
    {
        const QStringList stored = lines.mid(isDrop ? 1 : 0) << QString();
        folder.Write(u"recipe"_qs, stored.join(end).toUtf8());
        EXPECT_TRUE(isDrop || documents::LoadRenameConfig(options, path).IsOk());
        isDrop ? documents::LoadRnp(options, path) : void();
    }

    std::mt19937 dice{4};
    testing_support::TempFolder folder;
    QString path = folder.Path() + u"recipe"_qs;
};

TEST_P(RenameDocument, HoldsEachControlAtItsLineWhereverItIsCutOff)
{
    RenameOptions before;
    before.replaceFirst.cmbFirst.frameRVisible = true;
    before.length.Text18 = u"never stored"_qs;
    before.compose.lstCompose = {u"never stored"_qs};
    before.replace.txtReplaceA.letterCase = OptionGroup(AlphaCounterBlock::Lowercase);
    before.extension.change = OptionGroup(ExtensionOptions::Option42);
    before.List3 = {};
    const QStringList old = Controls(before);
    before.List3 = ActionList::OfAllActions();
    const QString marks[] = {u"\u00e4 \U0001F600#"_qs, u""_qs, QString(300, u'x') + u'#'};
    for (std::size_t round = 0; round < 12; ++round) {
        const QStringList document = AnyDocument(marks[round % 3]);
        RenameOptions loaded;
        for (qsizetype count = round < 2 ? 1 : 242; count <= 242; ++count) {
            Load(loaded = before, document.mid(0, count), count % 2 == 0 ? u"\r\n"_qs : u"\n"_qs);
            QStringList expected = document.mid(0, count) + old.mid(count);
            if (count >= 45) {
                expected[44 - 1] = document[45 - 1]; // set a second time
            }
            expected[45 - 1] = old[45 - 1]; // and this one by no line
            expected[182 - 1] = expected[184 - 1] = expected[(count < 184 ? 182 : 184) - 1];
            ASSERT_EQ(Controls(loaded), expected) << count << " lines, round " << round;
            EXPECT_EQ(loaded.List3.entries.size(), std::size_t(std::min<qsizetype>(13, count / 2)));
        }
        EXPECT_EQ(SavedLines(loaded), WithMasksAsStored(Controls(loaded)).mid(isDrop ? 1 : 0));
        EXPECT_EQ(loaded.length.Text18, before.length.Text18);
        EXPECT_EQ(loaded.compose.lstCompose, before.compose.lstCompose);
        EXPECT_TRUE(loaded.replace.txtReplaceA.letterCase == before.replace.txtReplaceA.letterCase);
    }
    before.List3 = {};
    SavedLines(before); // thirteen pairs, whatever the list holds
    EXPECT_EQ(folder.Content(u"recipe"_qs).count("\r\n"), isDrop ? 241 : 242);
}

TEST_P(RenameDocument, ValuesThatDoNotConvertLeaveTheirControls)
{
    RenameOptions before;
    before.insert.Check2 = true;
    before.replaceMid.cmbMid.frameAVisible = before.replaceMid.cmbMid.frameCVisible = true;
    before.suffix.cmbSuffix.letters.letterCase = OptionGroup(AlphaCounterBlock::Lowercase);
    const std::tuple<const char*, qsizetype, QStringList, QStringList> rows[] = {
        {"no boolean leaves a frame as it was", 63, {u"x"_qs, u""_qs}, {Yes, Yes}},
        {"blanks, case and numbers convert", 64, {u" false "_qs, u"-1"_qs}, {No, Yes}},
        {"no number leaves a check box as it was", 120, {u"x"_qs}, {u"1"_qs}},
        {"nor does a check box have a third state", 120, {u"2"_qs}, {u"1"_qs}},
        {"there is no action behind it", 28, {u"13"_qs}, {u"-1"_qs}},
        {"no number makes none current", 28, {u"x"_qs}, {u"-1"_qs}},
        {"no boolean selects no action", 3, {u"x"_qs}, {No}},
        {"False on the button that is on leaves none on", 179, {No, No, No}, {No, No, No}},
        {"True on two buttons leaves the last on", 179, {Yes, Yes, No}, {No, Yes, No}},
        {"no booleans leave the button that was on", 179, {u"x"_qs, u""_qs, u"2,"_qs}, {Yes, No, No}},
        {"a letter case has one line alone", 59, {No}, {No}},
    };
    for (const auto& [name, number, lines, controls] : rows) {
        QStringList document = Controls(before);
        std::copy(lines.begin(), lines.end(), document.begin() + number - 1);
        RenameOptions loaded = before;
        Load(loaded, document);
        EXPECT_EQ(Controls(loaded).mid(number - 1, controls.size()), controls) << name;
        EXPECT_TRUE(loaded.suffix.cmbSuffix.letters.letterCase.IsOn(AlphaCounterBlock::Lowercase));
        EXPECT_TRUE(number != 59 || loaded.replaceFirst.cmbFirst.letters.letterCase.Chosen() == -1);
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, RenameDocument, testing::Bool(),
                         [](const auto& form) { return form.param ? "Drop" : "Config"; });

TEST(RenameDocuments, OthersTakeTheActionsAwayAndAConfigAsADropLandsOneLineOutOfStep)
{
    testing_support::TempFolder folder;
    const QString path = folder.Path() + u"recipe"_qs;
    const QByteArray header = "File Rename Settings", body = "\r\nReplace All\r\nTrue\r\n";
    RenameOptions noActions;
    noActions.List3 = {};
    for (const QByteArray& content : {QByteArray(), body, header.toLower() + body, header + ' ' + body,
                                      header + body.repeated(100'000)}) {
        folder.Write(u"recipe"_qs, content);
        RenameOptions loaded;
        EXPECT_EQ(documents::LoadRenameConfig(loaded, path).Description(), u"Invalid File"_qs);
        EXPECT_TRUE(loaded == noActions) << content.left(30).constData();
    }
    for (const QString& name : {u"recipe"_qs, u"missing"_qs}) { // the last one is too long for a drop too
        RenameOptions loaded;
        documents::LoadRnp(loaded, folder.Path() + name);
        EXPECT_TRUE(loaded == noActions) << name.toStdString();
    }
    RenameOptions loaded;
    ASSERT_TRUE(documents::SaveRenameConfig(loaded, path).IsOk());
    const QStringList saved = Controls(loaded);
    documents::LoadRnp(loaded, path);
    for (const int number : {2, 29, 35, 41, 60, 80, 99, 117, 142, 178, 194, 221, 225, 241}) {
        EXPECT_EQ(Controls(loaded)[number - 1], saved[number - 2]) << "line " << number;
    }
    EXPECT_FALSE(loaded.List3.entries[0].Selected) << "the name of an action is no boolean";
}

} // namespace
