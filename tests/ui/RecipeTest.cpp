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
    {ActionKind::ReplaceFirst, "Text1=2 cmbFirst=$Counter$"},
    {ActionKind::ReplaceMid, "Text12=2 Text13=2 cmbMid=$Upper_Case$"},
    {ActionKind::ReplaceLast, "Text14=1 cmbLast=$AlphaCounter$"},
    {ActionKind::ReplaceAll, "cmbAll+1 txtAllC0=9 txtAllC1=-2 txtAllC4=n"},
    {ActionKind::Insert, "cmbInsert+3 Text43=A Check2 cmbInsertS=-"},
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
        Desk desk(names, {[&desk](const QString& path) {
                              return documents::SaveRenameDrop(desk.workspace.options, path);
                          },
                          {},
                          {},
                          {}});
        desk.Click("cmdRefresh");
        desk.GoTo(recipe.kind, true);
        for (const QByteArray& step : QByteArray(recipe.steps).split(' ')) {
            Do(desk, step);
        }
        desk.Click("cmdPreview");
        QStringList previews = desk.Previews();
        EXPECT_NE(previews, names) << action;
        desk.answers.fileToChoose = desk.home.Path() + u"my.rnp"_qs;
        desk.Click("Command12");
        EXPECT_EQ(e2e::Program().Run(desk.files.Path(), QStringList(desk.answers.fileToChoose) + names),
                  "0 ");
        previews.sort();
        EXPECT_EQ(desk.files.Names(), previews) << action;
    }
}

} // namespace
