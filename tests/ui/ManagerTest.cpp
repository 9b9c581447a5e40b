// SPDX-License-Identifier: MIT
//
// The manager keeps a person's recipes. These tests catch a recipe that is lost, overwritten without a yes or
// kept twice, a name that leads out of the folder, and controls that don't show what was loaded.
#include "Desk.h"
#include "documents/ui/frmRenListMan.h"

namespace {

using ui_tests::Find;

// The folder holds the configurations a, b, c, all of them foreign files, and two things that are none.
class Manager : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* file : {"a.rfg", "b.rfg", "c.rfg", "d.txt", "e.rfg/x"}) {
            desk.home.Write(u"RenConfigs/"_qs + QLatin1String(file), "foreign");
        }
        manager.Open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&manager));
    }

    void Click(const QString& name) { QTest::mouseClick(&Find<QWidget>(manager, name), Qt::LeftButton); }

    void Select(const QString& name)
    {
        selectedAt = list.visualItemRect(list.findItems(name, Qt::MatchExactly).value(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, selectedAt);
        EXPECT_EQ(nameBox.text(), name);
    }

    void Choose(const QString& command) // in the menu of a right click
    {
        Q_EMIT list.customContextMenuRequested({5, 5});
        EXPECT_TRUE(Find<QMenu>(manager, u"mnuEdit"_qs).isVisible());
        manager.findChild<QAction*>(command)->trigger();
        Find<QMenu>(manager, u"mnuEdit"_qs).close();
    }

    QString Save(const QString& name) // gives back what was said
    {
        nameBox.setText(name);
        Click(u"Command1"_qs);
        return desk.answers.TakeMessages().join(u'|');
    }

    // How many entries there are, and the files.
    QString Kept() const
    {
        return QString::number(list.count()) + u' ' + desk.home.Names(u"RenConfigs"_qs).join(u' ');
    }

    ui_tests::Desk desk;
    documents::frmRenListMan manager{desk.workspace.options, desk.programFolder, [this] {
                                         desk.window.ShowOptions();
                                     }};
    QListWidget& list = Find<QListWidget>(manager, u"list1"_qs);
    QLineEdit& nameBox = Find<QLineEdit>(manager, u"Text1"_qs);
    QComboBox& value = desk.Find<QComboBox>("cmbAll"); // stands for all that is saved
    QPoint selectedAt;
};

TEST_F(Manager, WhatWasSavedIsLoadedByEveryWay)
{
    value.setEditText(u"harbour"_qs);
    EXPECT_EQ(Save(u"Trip"_qs), QString());
    const std::function<void()> ways[] = {
        [this] { Click(u"Command2"_qs); }, [this] { Choose(u"mnuLoad"_qs); },
        [this] { QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, selectedAt); },
        [this] {
            Click(u"Command4"_qs);
        }};
    for (const auto& load : ways) {
        EXPECT_TRUE(manager.isVisible());
        value.setEditText(u"other"_qs);
        Select(u"Trip"_qs);
        load();
        EXPECT_EQ(value.currentText(), u"harbour");
    }
    EXPECT_FALSE(manager.isVisible());
}

TEST_F(Manager, ATakenNameIsReplacedOnlyAfterAYes)
{
    const QString question = u"Renamer: Config Name already exists. Do You wish to Overwrite?"_qs;
    desk.home.Write(u"RenConfigs/new.rfg"_qs); // by another program
    for (const QString& name : {u"a"_qs, u"B"_qs, u"New"_qs}) {
        EXPECT_EQ(Save(name), question);
    }
    EXPECT_EQ(Kept(), u"3 a.rfg b.rfg c.rfg d.txt e.rfg new.rfg");
    EXPECT_EQ(desk.home.Content(u"RenConfigs/a.rfg"_qs), "foreign");
    desk.answers.answer = QMessageBox::Yes;
    EXPECT_EQ(Save(u"A"_qs), question);
    EXPECT_EQ(Kept(), u"3 A.rfg b.rfg c.rfg d.txt e.rfg new.rfg");
    Select(u"A"_qs);
    EXPECT_TRUE(desk.home.Content(u"RenConfigs/A.rfg"_qs).startsWith("File Rename Settings"));
}

TEST_F(Manager, WhatCanNotBeIsToldAndChangesNoDocument)
{
    for (const auto& [name, refusal] : {std::pair(QString(), u"Renamer: Please give a rename config name"_qs),
                                        std::pair(u"x/y"_qs, u"Renamer: Path not found"_qs),
                                        std::pair(u"../x"_qs, u"Renamer: Path not found"_qs),
                                        std::pair(QString(300, u'n'), u"Renamer: File name too long"_qs)}) {
        EXPECT_EQ(Save(name), refusal);
    }
    Click(u"Command2"_qs);
    Click(u"Command4"_qs);
    Select(u"a"_qs);
    Click(u"Command2"_qs);
    const QString nothing = u"Renamer: Please select the rename config to load"_qs;
    EXPECT_EQ(desk.answers.TakeMessages(), QStringList({nothing, nothing, u"Renamer: Invalid File"_qs}));
    EXPECT_EQ(desk.Find<QListWidget>("List3").count(), 0); // no action is left
    EXPECT_EQ(Kept() + desk.home.Names().join(u' '), u"3 a.rfg b.rfg c.rfg d.txt e.rfgRenConfigs");
}

TEST_F(Manager, DeletesTheSelectedEntryAlone)
{
    QTest::keyClick(&list, Qt::Key_Delete); // nothing is selected yet
    Choose(u"mnuDelete"_qs);
    EXPECT_EQ(Kept(), u"3 a.rfg b.rfg c.rfg d.txt e.rfg");
    Select(u"b"_qs);
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_Delete); // a key that is held down
    EXPECT_EQ(Kept(), u"2 a.rfg c.rfg d.txt e.rfg");
    Select(u"c"_qs);
    EXPECT_TRUE(QFile::remove(desk.home.Path() + u"RenConfigs/c.rfg"_qs)); // by somebody else
    Choose(u"mnuDelete"_qs);
    EXPECT_EQ(Kept(), u"1 a.rfg d.txt e.rfg");
}

} // namespace
