// SPDX-License-Identifier: MIT
//
// The pickers by hand: what they leave in the value must be what the run then uses, and however a picker is
// closed, nobody waits for it in vain.
#include "Desk.h"

#include <QComboBox>
#include <QLineEdit>

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
void Choose(QComboBox& combo, const char* entry)
{
    for (int presses = 0; combo.currentText() != QLatin1String(entry) && presses < combo.count(); ++presses) {
        QTest::keyClick(&combo, Qt::Key_Down);
    }
    ASSERT_EQ(combo.currentText(), QLatin1String(entry));
}

struct PickCase
{
    const char* name;
    const char* entry;
    const char* remembered;    // before, which is also what the picker shows
    std::vector<Qt::Key> keys; // in the picker
    const char* value;
    const char* rememberedThen;
};

constexpr Qt::Key Down = Qt::Key_Down, Enter = Qt::Key_Return, Escape = Qt::Key_Escape;

// clang-format off
const PickCase PickCases[] = {
    {"APickIsWrittenAtOnce", "$current_date$", "$dd$", {Down}, "$weekday$", "$weekday$"},
    {"OkMakesAFilesDateTheCurrentOne", "$modified_date$", "$yy$", {Down, Enter}, "$mm$", "$mm$"},
    {"EscapeKeepsAFilesDate", "$modified_date$", "$yy$", {Down, Down, Escape}, "$mod_month$", "$month$"},
    {"OkWithoutAPickWritesWhatIsShown", "$modified_date$", "$mm$", {Enter}, "$mm$", "$mm$"},
    {"EscapeWithoutAPickWritesNothing", "$current_date$", "$mm$", {Escape}, "$current_date$", "$mm$"},
    {"ATimeHasItsOwnMemory", "$current_time$", "$hour$", {Down, Enter}, "$min$", "$min$"},
    {"EscapeKeepsAFilesTime", "$modified_time$", "$hour$", {Qt::Key_End, Escape}, "$mod_hh_mm_ss$", "$hh_mm_ss$"},
};
// clang-format on

class FormatPick : public testing::TestWithParam<PickCase>
{};

TEST_P(FormatPick, LeavesItsTokenInTheValue)
{
    const PickCase& pick = GetParam();
    const bool date = QByteArray(pick.entry).endsWith("date$");
    Desk desk;
    QString& remembered = date ? desk.state.LastDateToken : desk.state.LastTimeToken;
    remembered = QLatin1String(pick.remembered);
    desk.GoTo(ActionKind::Suffix);
    Choose(desk.Find<QComboBox>("cmbSuffix"), pick.entry);
    auto& tokens = InPicker<QComboBox>(date ? "cmbDateFormat" : "cmbTimeFormat");
    EXPECT_EQ(OpenPicker()->windowTitle(), QLatin1String(date ? "Select Date Format" : "Select Time Format"));
    EXPECT_EQ(tokens.currentText(), QLatin1String(pick.remembered));
    for (const Qt::Key key : pick.keys) {
        QTest::keyClick(&tokens, key);
    }
    EXPECT_EQ(OpenPicker() != nullptr, pick.keys.back() == Down);
    EXPECT_EQ(desk.workspace.options.suffix.cmbSuffix.combo, QLatin1String(pick.value));
    EXPECT_EQ(desk.Find<QComboBox>("cmbSuffix").currentText(), QLatin1String(pick.value));
    EXPECT_EQ(remembered, QLatin1String(pick.rememberedThen));
}

INSTANTIATE_TEST_SUITE_P(, FormatPick, testing::ValuesIn(PickCases),
                         [](const auto& row) { return std::string(row.param.name); });

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

// A combo beside which there is no mask block, and what its window asks of the pickers.
class MaskWindow : public testing::Test
{
protected:
    // Picks in a combo of a window.
    bool Pick(QComboBox& target, const QString& entry = QStringLiteral("$Random String$"))
    {
        target.setEditable(true);
        target.setEditText(entry);
        window.show();
        target.show();
        return pickers.Pick(entry, target, workspace::MaskFrom::Window, [this, open = QPointer(&target)] {
            closed << (open ? open->currentText() : QStringLiteral("gone"));
        });
    }

    model::AppState state;
    testing_support::FixedRandom random;
    QWidget window;
    std::unique_ptr<QComboBox> combo = std::make_unique<QComboBox>(&window);
    QStringList closed; // the combo's text at each call
    workspace::Pickers pickers{state, random};
};

TEST_F(MaskWindow, WritesTheMaskHoweverItIsClosed)
{
    const std::map<std::string, std::function<void(QWidget & box)>> ways{
        {"OK",
         [](QWidget&) {
             QTest::mouseClick(&InPicker<QWidget>("cmdRandomOk"), Qt::LeftButton);
         }},
        {"Enter",
         [](QWidget& box) {
             QTest::keyClick(&box, Enter);
         }},
        {"Escape",
         [](QWidget& box) {
             QTest::keyClick(&box, Escape);
         }},
        {"title bar",
         [](QWidget& box) {
             box.window()->close();
         }},
        {"the window is hidden",
         [this](QWidget&) {
             window.hide();
         }},
        {"the window takes it away",
         [this](QWidget&) {
             pickers.Close();
         }},
    };
    for (const auto& [way, close] : ways) {
        SCOPED_TRACE(way);
        state.LastMask.clear();
        closed.clear();
        ASSERT_TRUE(Pick(*combo));
        EXPECT_EQ(OpenPicker()->windowTitle(), QLatin1String("Random Strings"));
        auto& box = InPicker<QLineEdit>("txtRandomMask");
        QTest::keyClicks(&box, QStringLiteral("-"));
        close(box);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(closed, QStringList{QStringLiteral("$Rand$_AAaa##-")});
        EXPECT_EQ(state.LastMask, QLatin1String("AAaa##-"));
        EXPECT_EQ(OpenPicker(), nullptr);
    }
}

TEST_F(MaskWindow, GivesWayToAnotherPickAndToTheEndOfItsCombo)
{
    QComboBox other(&window);
    Pick(other);
    Pick(*combo);
    EXPECT_EQ(closed, QStringList{QStringLiteral("$Rand$_AAaa##")});
    EXPECT_TRUE(Pick(*combo, QStringLiteral("$modified_date$")));
    EXPECT_TRUE(Pick(*combo));
    EXPECT_EQ(combo->currentText(), QLatin1String("$Random String$")); // as picked last
    EXPECT_EQ(closed.size(), 1);
    other.hide();
    combo.reset();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(closed.mid(1), QStringList(3, QStringLiteral("gone")));
    EXPECT_EQ(OpenPicker(), nullptr);
}

} // namespace
