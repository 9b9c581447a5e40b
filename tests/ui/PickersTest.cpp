// SPDX-License-Identifier: MIT
//
// The pickers by hand: what they leave in the value must be what the run then uses, and however a picker is
// closed, nobody waits for it in vain.
#include "Desk.h"

#include <memory>

namespace {

using model::ActionKind;
using ui_tests::Desk;
using ui_tests::Find;

// The picker that is on show, or null.
QDialog* OpenPicker()
{
    QDialog* open = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible()) {
            EXPECT_EQ(open, nullptr) << "two pickers at a time";
            open = dialog;
        }
    }
    return open;
}

template<class Widget>
Widget& InPicker(const char* name)
{
    const QWidget none;
    const QWidget* picker = OpenPicker();
    return Find<Widget>(picker ? *picker : none, QLatin1String(name));
}

// Picks by the keyboard: every entry on the way is a pick too.
void Choose(QComboBox& combo, const QByteArray& entry)
{
    for (int presses = 0; combo.currentText().toLatin1() != entry && presses < combo.count(); ++presses) {
        QTest::keyClick(&combo, Qt::Key_Down);
    }
    ASSERT_EQ(combo.currentText().toLatin1(), entry);
}

constexpr Qt::Key Down = Qt::Key_Down, Enter = Qt::Key_Return, Escape = Qt::Key_Escape;

TEST(FormatPickers, LeaveTheirTokenInTheValue)
{
    const struct
    {
        const char* what;
        QByteArray entry;
        QByteArray remembered;     // before, which is also what the picker shows
        std::vector<Qt::Key> keys; // in the picker
        QByteArray value, rememberedThen;
    } rows[] = {
        {"a pick is written at once", "$current_date$", "$dd$", {Down}, "$weekday$", "$weekday$"},
        {"OK makes a file's date the current one", "$modified_date$", "$yy$", {Down, Enter}, "$mm$", "$mm$"},
        {"Escape keeps a file's date", "$modified_date$", "$yy$", {Down, Escape}, "$mod_mm$", "$mm$"},
        {"OK without a pick", "$modified_date$", "$mm$", {Enter}, "$mm$", "$mm$"},
        {"Escape without a pick", "$current_date$", "$mm$", {Escape}, "$current_date$", "$mm$"},
        {"a time has its own memory", "$current_time$", "$hour$", {Down, Enter}, "$min$", "$min$"},
        {"Escape keeps a file's time", "$modified_time$", "$min$", {Down, Escape}, "$mod_sec$", "$sec$"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const bool date = row.entry.endsWith("date$");
        Desk desk;
        QString& remembered = date ? desk.state.LastDateToken : desk.state.LastTimeToken;
        remembered = QString::fromLatin1(row.remembered);
        desk.GoTo(ActionKind::Suffix);
        Choose(desk.Find<QComboBox>("cmbSuffix"), row.entry);
        auto& tokens = InPicker<QComboBox>(date ? "cmbDateFormat" : "cmbTimeFormat");
        EXPECT_EQ(OpenPicker()->windowTitle(), date ? u"Select Date Format"_qs : u"Select Time Format"_qs);
        EXPECT_EQ(tokens.currentText().toLatin1(), row.remembered);
        for (const Qt::Key key : row.keys) {
            QTest::keyClick(&tokens, key);
        }
        EXPECT_EQ(OpenPicker() != nullptr, row.keys.back() == Down);
        EXPECT_EQ(desk.workspace.options.suffix.cmbSuffix.combo.toLatin1(), row.value);
        EXPECT_EQ(desk.Find<QComboBox>("cmbSuffix").currentText().toLatin1(), row.value);
        EXPECT_EQ(remembered.toLatin1(), row.rememberedThen);
    }
}

TEST(PickersOnScreen, StandBelowTheirComboKeepItsBlocksAndCloseWithIt)
{
    Desk desk;
    desk.window.resize(300, 300);
    desk.window.move(0, 0);
    desk.GoTo(ActionKind::Prefix);
    auto& combo = desk.Find<QComboBox>("cmbPrefix");
    desk.workspace.options.prefix.cmbPrefix.frameCVisible = true;
    desk.window.ShowOptions();
    Choose(combo, "$AlphaCounter$");
    Choose(combo, "$current_time$"); // by way of $current_date$
    const QPoint below = combo.mapToGlobal(QPoint(combo.width() / 2, combo.height()));
    EXPECT_EQ(OpenPicker()->pos(), below - QPoint(OpenPicker()->width() / 2, 0));
    EXPECT_TRUE(OpenPicker()->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(OpenPicker()->isModal());
    EXPECT_TRUE(desk.Find<QWidget>("frmPrefixA").isVisible());
    desk.GoTo(ActionKind::Suffix);
    EXPECT_EQ(OpenPicker(), nullptr);
    desk.Type("cmbSuffix", "$current_date$"); // typed and left: no pick
    QTest::keyClick(&desk.Use("cmbSuffix"), Qt::Key_Tab);
    EXPECT_EQ(OpenPicker(), nullptr);
}

TEST(MetadataPickers, EveryPickIsWrittenAndThePictureDateAsksForItsFormat)
{
    Desk desk;
    desk.state.MetadataChoice = 1;
    desk.GoTo(ActionKind::Prefix);
    auto& combo = desk.Find<QComboBox>("cmbPrefix");
    const auto pick = [&](const char* entry) {
        combo.setFocus();
        combo.setCurrentIndex(combo.findText(QLatin1String(entry)) - 1);
        QTest::keyClick(&combo, Down);
    };
    pick("$Exif Data$");
    EXPECT_EQ(OpenPicker()->windowTitle(), u"Select Exif Data"_qs);
    EXPECT_EQ(combo.currentText(), u"$Exif_Model"_qs) << "the entry left last is a pick";
    auto& exif = InPicker<QListWidget>("lstSelExif");
    EXPECT_EQ(exif.count(), 40);
    QTest::keyClick(&exif, Down);
    EXPECT_EQ(desk.workspace.options.prefix.cmbPrefix.combo, u"$Exif_Orientation"_qs);
    QTest::keyClick(&exif, Enter);
    EXPECT_TRUE(OpenPicker() == nullptr && combo.currentText() == u"$Exif_Orientation"_qs);
    EXPECT_EQ(desk.state.MetadataChoice, 2);

    pick("$MP3 Data$");
    EXPECT_EQ(combo.currentText(), u"$MP3_ID3_Band"_qs) << "one memory for both";
    auto& keys = InPicker<QListWidget>("lstSelID3");
    const QPoint last = keys.visualItemRect(keys.item(3)).center();
    QTest::mouseClick(keys.viewport(), Qt::LeftButton, {}, last);
    QTest::mouseDClick(keys.viewport(), Qt::LeftButton, {}, last);
    EXPECT_TRUE(OpenPicker() == nullptr && combo.currentText() == u"$MP3_ID3_Bitrate"_qs);

    desk.state.MetadataChoice = 20; // which only the other list has
    pick("$MP3 Data$");
    EXPECT_EQ(combo.currentText(), u"$MP3 Data$"_qs);
    EXPECT_EQ(desk.state.MetadataChoice, 20);
    QTest::keyClick(&InPicker<QListWidget>("lstSelID3"), Enter);
    desk.state.MetadataChoice = 5;
    pick("$Exif Data$");
    QWidget& list = InPicker<QListWidget>("lstSelExif");
    QTest::keyClick(&list, Down);
    EXPECT_EQ(combo.currentText(), u"$Exif_date_$mmddyyyy$"_qs);
    auto& dates = Find<QDialog>(desk.window, u"frmEDateFormat"_qs);
    EXPECT_TRUE(dates.isVisible() && list.isVisible());
    auto& formats = Find<QComboBox>(dates, u"cmbEDateFormat"_qs);
    QTest::keyClick(&formats, Qt::Key_End);
    EXPECT_EQ(combo.currentText(), u"$Exif_date_$hh_mm_ss$"_qs);
    QTest::keyClick(&formats, Enter);
    EXPECT_EQ(combo.currentText(), u"$Exif_date_$hh_mm_ss$"_qs) << "OK only closes";
    EXPECT_EQ(desk.state.LastDateToken, u"$hh_mm_ss$"_qs);
    desk.GoTo(ActionKind::Suffix);
    EXPECT_EQ(OpenPicker(), nullptr) << "the list goes with its combo";
}

TEST(MaskPicker, WritesTheMaskHoweverItIsClosed)
{
    model::AppState state;
    testing_support::FixedRandom random;
    QWidget window;
    QComboBox combo(&window);
    combo.setEditable(true);
    workspace::Pickers pickers(state, random);
    const std::pair<std::function<void(QWidget&)>, const char*> ways[] = {
        {[](QWidget& box) { QTest::keyClick(&box, Enter); }, "Enter"},
        {[](QWidget& box) { QTest::keyClick(&box, Escape); }, "Escape"},
        {[](QWidget& box) { box.window()->close(); }, "title bar"},
        {[&](QWidget&) { window.hide(); }, "its owner hides"},
        {[&](QWidget&) { pickers.Close(); }, "its owner takes it away"},
    };
    for (const auto& [close, way] : ways) {
        SCOPED_TRACE(way);
        state.LastMask = u"AA"_qs;
        window.show();
        QStringList closed; // the combo's text at each call
        const auto note = [&] {
            closed << combo.currentText();
        };
        ASSERT_TRUE(pickers.Pick(u"$Random String$"_qs, combo, workspace::MaskFrom::Window, note));
        EXPECT_EQ(OpenPicker()->windowTitle(), u"Random Strings"_qs);
        auto& box = InPicker<QLineEdit>("txtRandomMask");
        QTest::keyClicks(&box, u"-"_qs);
        close(box);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(closed, QStringList{u"$Rand$_AA-"_qs});
        EXPECT_EQ(state.LastMask, u"AA-"_qs);
        EXPECT_EQ(OpenPicker(), nullptr);
    }
}

} // namespace
