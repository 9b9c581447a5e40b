// SPDX-License-Identifier: MIT
#include "Desk.h"
#include "metadata/ExifBuilder.h"
#include "metadata/ui/formExif.h"

namespace {

TEST(ExifViewer, ShowsTheLinesOfAChosenPictureAndCopiesThem)
{
    testing_support::TempFolder folder;
    std::string picture =
        testing_support::ExifBuilder().Add(0x0100, 3, 1, "\x07").Add(0x0101, 3, 1, "\x09").Picture();
    picture.replace(4, 2, "\x7F\x7F");
    folder.Write(u"a.jpg"_qs, QByteArray::fromStdString(picture) + "\xFF\xD9");
    ui_tests::Answers answers;
    metadata::formExif viewer;
    viewer.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&viewer));
    auto& lines = ui_tests::Find<QListWidget>(viewer, u"List1"_qs);
    auto& open = ui_tests::Find<QPushButton>(viewer, u"cmdOpen"_qs);
    QTest::mouseClick(&open, Qt::LeftButton);
    EXPECT_EQ(lines.count(), 0) << "nothing was chosen";
    answers.fileToChoose = folder.Path() + u"a.jpg"_qs;
    QTest::mouseClick(&open, Qt::LeftButton);
    ASSERT_EQ(lines.count(), 2);
    EXPECT_EQ(lines.item(0)->text() + lines.item(0)->data(Qt::UserRole).toString(), u"Image width = 7256"_qs);
    lines.setFocus();
    QTest::keyClick(&lines, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&lines, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Image width = 7\nImage height = 9"_qs);
    viewer.ShowFile(folder.Path() + u"none.jpg"_qs);
    QTest::keyClick(&lines, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(u"= 9"_qs)) << "nothing is selected";
    EXPECT_EQ(lines.item(lines.count() - 1)->text(), u"File not found"_qs);
}

} // namespace
