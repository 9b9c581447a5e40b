// SPDX-License-Identifier: MIT
#include "actions/OneAction.h"
#include "support/Words.h"

namespace {

constexpr std::array Kinds{model::ActionKind::ReplaceFirst, model::ActionKind::ReplaceMid,
                           model::ActionKind::ReplaceLast, model::ActionKind::ReplaceAll};

using testing_support::Rows;

class OverwriteActions : public actions_tests::OneAction
{
protected:
    // `boxes` are count, position and value.
    QString NewNameWith(model::ActionKind kind, const QStringList& boxes, const QString& name)
    {
        options.replaceFirst.Text1 = options.replaceMid.Text12 = options.replaceLast.Text14 = boxes[0];
        options.replaceMid.Text13 = boxes[1];
        options.replaceFirst.cmbFirst.combo = options.replaceMid.cmbMid.combo = boxes[2];
        options.replaceLast.cmbLast.combo = options.replaceAll.cmbAll.combo = boxes[2];
        return NewName(kind, name);
    }
};

TEST_F(OverwriteActions, LayAValueOverAStretchOfTheBase)
{
    // Count, position, value, name, new name. \xDC80 is a byte that is no UTF-8; no file has a date.
    const QString tables[] = {
        u"3 ~ X abcdefgh.txt Xdefgh.txt   3 ~ abc ab.txt abc.txt   2.5 ~ X abcdefgh.txt Xcdefgh.txt "
        u"3 ~ ~ abcd.txt d.txt   3 ~ ~ abc.txt .txt   3 ~ ~ abc abc   2 ~ X a.b.txt Xb.txt "
        u"3 ~ x my.dir/ xdir   2 ~ x \U0001F600\U0001F600b.txt xb.txt   1 ~ x e\u0301a.txt x\u0301a.txt "
        u"1 ~ x \xDC80.txt x.txt"_qs,
        u"3 3 X abcdefgh.txt abXfgh.txt   6 3 X abcdefgh.txt abX.txt   8 1 X abcdefgh.txt X.txt "
        u"3 7 X abcdefgh.txt abcdefX.txt   3 8 X abcdefgh.txt abcdefgX.txt   1 8 X abcdefgh.txt abcdefgX.txt "
        u"2 2 $Invert_Case$ aBc.txt abC.txt   1 2 X a\U0001F600c.txt aXc.txt"_qs,
        u"2 ~ $Upper_Case$ report.txt repoRT.txt   9 ~ X abcdefgh.txt X.txt   1 ~ X a\U0001F600 aX "
        u"3 ~ X my.dir/ my.X"_qs,
        u"~ ~ $Counter$ a.b.txt 001.txt   ~ ~ x my.dir/ x   ~ ~ x plain x   ~ ~ x a. x.   ~ ~ ~ abc.txt .txt "
        u"~ ~ ~ plain plain   ~ ~ $Invert_Case$ aBc.TxT AbC.TxT   ~ ~ $mod_yyyy$ abc.txt abc.txt"_qs};
    for (std::size_t action = 0; action < Kinds.size(); ++action) {
        for (const QStringList& row : Rows(5, tables[action])) {
            EXPECT_EQ(NewNameWith(Kinds[action], row, row[3]), row[4]) << row.join(u' ').toStdString();
        }
    }
}

TEST_F(OverwriteActions, WhereTheNameStaysTheCounterStepsUnlessABoxFails)
{
    // Count, position, where the counter stands then (it starts at 1), name.
    const QString tables[] = {
        u"0 ~ 2 a.txt   -1 ~ 2 a.txt   ~ ~ 1 a.txt   32768 ~ 1 a.txt   3 ~ 2 .ini"_qs,
        u"3 20 2 a.txt   1 2 2 a.txt   0 2 2 a.txt   0 1 2 a.txt   3 0 2 a.txt   3 -1 2 abc.txt "
        u"-1 3 2 abc.txt   -1 1 2 a.txt   -20 20 2 a.txt   3 3 2 .ini   ~ 3 1 a.txt   3 ~ 1 a.txt "
        u"3 a 1 a.txt   x 1 1 a.txt"_qs,
        u"0 ~ 2 a.txt   -2 ~ 2 a.txt   x ~ 1 a.txt   40000 ~ 1 a.txt"_qs, u"~ ~ 2 .ini"_qs};
    for (std::size_t action = 0; action < Kinds.size(); ++action) {
        for (const QStringList& row : Rows(4, tables[action])) {
            SCOPED_TRACE(row.join(u' ').toStdString());
            EXPECT_EQ(NewNameWith(Kinds[action], {row[0], row[1], u"$Counter$"_qs}, row[3]), row[3]);
            EXPECT_EQ(Number(Kinds[action]), row[2].toInt());
        }
    }
}

} // namespace
