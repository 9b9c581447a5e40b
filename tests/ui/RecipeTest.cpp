// SPDX-License-Identifier: MIT
//
// What the preview showed must be what a recipe does: options are set in the window, saved as a rename drop,
// and the real program runs it over the same files.
#include "Desk.h"
#include "documents/RenameDocument.h"
#include "e2e/Program.h"

namespace {

using model::ActionKind;
using ui_tests::Desk;

struct Recipe
{
    ActionKind kind;
    const char* steps; // parted by blanks: "box=text" types, "combo+2" goes down by 2, else Space
};

const Recipe Recipes[] = {
    {ActionKind::ReplaceFirst, "Text1=2 cmbFirst+1 txtFirstC0=7"},
    {ActionKind::ReplaceMid, "Text12=2 Text13=2 cmbMid+2 txtMidA0=q"},
    {ActionKind::ReplaceLast, "Text14=1 cmbLast+2 txtLastA4=2"},
    {ActionKind::ReplaceLast, "cmbLast=$Upper_Case$"},
    {ActionKind::ReplaceAll, "cmbAll+1 txtAllC0=9 txtAllC1=-2 txtAllC4=n"},
    {ActionKind::ReplaceAll, "cmbAll+14 Text56=xyz"},
    {ActionKind::Insert, "cmbInsert+3 Text43=A Check2 cmbInsertS+1 txtInsertC5=-"},
    {ActionKind::Suffix, "cmbSuffix+1 txtSuffixC4=_"},
    {ActionKind::Suffix, "cmbSuffix=$filesizeB$"},
    {ActionKind::Prefix, "cmbPrefix+2 txtPrefixA0=y txtPrefixA1=3"},
    {ActionKind::Length, "cmbLength=4 Option3 Text37=2 Option20 Text19=_"},
    {ActionKind::ChangeCase, "Option39"},
    {ActionKind::Extension, "Option42"},
    {ActionKind::Clean, "chkVowel Check12 Text48=p Text49=x"},
};

void Do(Desk& desk, const QByteArray& step)
{
    if (const auto at = step.indexOf('='); at > 0) {
        desk.Type(step.left(at), step.mid(at + 1));
        return;
    }
    const auto at = step.indexOf('+');
    QWidget& control = desk.Use(at < 0 ? step : step.left(at));
    control.setFocus();
    for (int times = at < 0 ? 1 : step.mid(at + 1).toInt(); times > 0; --times) {
        QTest::keyClick(&control, at < 0 ? Qt::Key_Space : Qt::Key_Down);
    }
}

TEST(RecipeFromTheWindow, GivesTheNamesOfThePreviewOnTheCommandLine)
{
    const QStringList names{u"alpha.txt"_qs, u"Beta b.tar.gz"_qs, u"gAmm\u00e4.Jpg"_qs};
    for (const Recipe& recipe : Recipes) {
        const std::string action = model::NameOf(recipe.kind).toStdString();
        const actions::RenameOptions* options = nullptr;
        const auto save = [&options](const QString& path) {
            return documents::SaveRenameDrop(*options, path);
        };
        Desk desk(names, {save, {}, {}, {}});
        options = &desk.workspace.options;
        desk.Click("cmdRefresh");
        desk.GoTo(recipe.kind, true);
        for (const QByteArray& step : QByteArray(recipe.steps).split(' ')) {
            Do(desk, step);
        }
        desk.Click("cmdPreview");
        QStringList previews = desk.Previews();
        EXPECT_NE(previews, names) << action;
        desk.answers.fileToChoose = desk.home.Path() + u"my"_qs; // the ending is added
        desk.Click("Command12");
        const QString drop = desk.home.Path() + u"my.rnp"_qs;
        EXPECT_EQ(e2e::Program().Run(desk.files.Path(), QStringList(drop) + names), "0 ");
        previews.sort();
        EXPECT_EQ(desk.files.Names(), previews) << action;
    }
}

} // namespace
