// SPDX-License-Identifier: MIT
//
// The window that changes attributes. These tests catch boxes that mean another attribute than they say, a
// "Normal" that doesn't exclude, and controls that can't be reached by keys.
#include "Desk.h"
#include "attributes/ui/frmAttr.h"
#include "platform/Attributes.h"

#include <QCheckBox>

namespace {

class AttrWindow : public testing::Test
{
protected:
    AttrWindow() { Open(); }

    void Open()
    {
        window.Open();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QCheckBox& Box(int index) { return ui_tests::Find<QCheckBox>(window, u"Atbs%1"_qs.arg(index)); }
    void Click(const QString& name)
    {
        auto& button = ui_tests::Find<QAbstractButton>(window, name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    }
    QString Checked() // the captions of the checked boxes
    {
        QStringList captions;
        for (int index = 0; index < 6; ++index) {
            captions << (Box(index).isChecked() ? QStringList(Box(index).text().remove(u'&'))
                                                : QStringList());
        }
        return captions.join(u' ');
    }

    ui_tests::Desk desk{{u"file"_qs}};
    attributes::frmAttr window{desk.list, [] { return 1; }, desk.host};
};

TEST_F(AttrWindow, NormalExcludesTheOthersByMouseAndKeysButTheyDoNotTouchIt)
{
    for (const auto& toggle : std::initializer_list<std::function<void()>>{
             [this] { Click(u"Atbs0"_qs); }, [this] { QTest::keyClick(&Box(0), Qt::Key_Space); },
             [this] {
                 QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
             }}) {
        Click(u"Atbs1"_qs);
        Click(u"Atbs5"_qs);
        toggle();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Checked() == u"Normal"; })); // a mnemonic takes a moment
        Click(u"Atbs2"_qs);
        EXPECT_EQ(Checked(), u"Normal Hidden"_qs);
        toggle();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Checked() == u"Hidden"; }));
        Click(u"Atbs2"_qs);
    }
}

TEST_F(AttrWindow, EachBoxSetsWhatItSaysAndAClosedWindowForgets)
{
    const QString path = desk.files.Path() + u"file"_qs;
    const bool hasMarks = platform::SetAttr(path, platform::attribute::Hidden).IsOk();
    const std::tuple<int, const char*, int> rows[] = {
        {0, "Normal", 0}, {1, "Read Only", 1}, {2, "Hidden", 2}, {3, "System", 4}, {5, "Archive", 32}};
    for (const auto& [index, caption, value] : rows) {
        Open();
        EXPECT_EQ(Checked(), QString());
        Click(u"Atbs%1"_qs.arg(index));
        window.Open(); // it is open
        EXPECT_EQ(Checked(), QLatin1String(caption));
        if (hasMarks || value <= 1) {
            Click(u"Command1"_qs);
            EXPECT_EQ(platform::GetAttr(path), value) << caption;
        }
        index == 0 ? QTest::keyClick(&Box(1), Qt::Key_Escape) : Click(u"Command2"_qs);
        EXPECT_FALSE(window.isVisible());
    }
    window.Open();
    QStringList chain;
    for (int step = 0; step < 8; ++step) {
        chain << window.focusWidget()->objectName();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(chain.join(u' '), u"Atbs0 Atbs1 Atbs2 Atbs3 Atbs4 Atbs5 Command1 Command2"_qs);
    Click(u"Atbs4"_qs);
    Click(u"Command1"_qs);
    EXPECT_TRUE(desk.answers.TakeMessages().join(u'|').endsWith(u": Invalid procedure call or argument"_qs));
}

} // namespace
