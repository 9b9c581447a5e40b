// SPDX-License-Identifier: MIT
#include "windowing/Anchor.h"

#include "platform/UserStore.h"
#include "support/TempFolder.h"
#include "windowing/AutoSizeCombo.h"
#include "windowing/Resize.h"
#include "windowing/SetTopMost.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace windowing {
namespace {

// A window of 400 by 300 pixels that is laid out at each resize.
struct Window : QWidget
{
    explicit Window(const QString& positions = {}) : anchor(new Anchor(*this, positions))
    {
        resize(400, 300);
    }
    void resizeEvent(QResizeEvent*) override { anchor->DoResize(); }

    Anchor* anchor;
};

QWidget& Put(QWidget* control, QWidget& parent, const QRect& place)
{
    control->setParent(&parent);
    control->setGeometry(place);
    return *control;
}

TEST(Anchor, ControlsStretchMoveOrStay)
{
    const QRect start(100, 80, 50, 40);
    const std::tuple<const char*, QRect, const char*> rows[] = {
        // tag, place in a window that is 30 wider and 20 higher, the tag afterwards
        {"TTTT*/", {100, 80, 80, 60}, ""},
        {"FFTT*/own", {130, 100, 50, 40}, "own"},
        {"TFFT*/", {100, 100, 50, 40}, ""},
        {"TTTF*/a*/b", {100, 80, 80, 40}, "a*/b"},
        {"FTFT*/", {100, 80, 50, 60}, ""},
        {"FFTF*/", {130, 80, 50, 40}, ""},
        {"TTFF*/", start, ""},
        {"tttt*/", start, ""},
        {"TTTT", start, "TTTT"},
        {"T*/Town", {100, 100, 50, 40}, "n"},
    };
    for (const auto& [tag, bigger, rest] : rows) {
        Window window;
        QWidget& control = Put(new QWidget, window, start);
        QWidget& lost = Put(new QWidget, window, start);
        control.setProperty("Tag", QLatin1String(tag));
        lost.setProperty("Tag", QStringLiteral("TTTT*/"));
        window.anchor->DoInit();
        delete &lost;
        window.show();
        window.resize(430, 320);
        EXPECT_TRUE(control.geometry() == bigger) << tag;
        window.resize(400, 300);
        EXPECT_TRUE(control.geometry() == start) << tag;
        EXPECT_EQ(control.property("Tag").toString().toStdString(), rest);
    }
}

TEST(Anchor, ATooSmallWindowSpringsBackAndEventsTellTheChange)
{
    Window window;
    QString told;
    QObject::connect(window.anchor, &Anchor::BeforeResize,
                     [&] { told += window.updatesEnabled() ? u"before, "_qs : u"frozen, "_qs; });
    QObject::connect(window.anchor, &Anchor::AfterResize,
                     [&](int height, int width) { told += u"after %1 %2; "_qs.arg(height).arg(width); });
    window.show();
    window.resize(410, 300); // before DoInit, so that nothing is laid out
    window.anchor->DoInit(200 * 15, 300 * 15);
    window.anchor->DoInit({}, 250 * 15); // the height stays
    window.resize(100, 100);
    EXPECT_TRUE(window.size() == QSize(250, 200) && window.updatesEnabled());
    window.anchor->SetNoFreeze(true);
    window.setWindowState(Qt::WindowMinimized);
    window.anchor->DoResize();
    window.setWindowState(Qt::WindowNoState);
    window.resize(250, 210);
    EXPECT_EQ(told.toStdString(), "frozen, after -100 -160; before, after 10 0; ");
}

TEST(Anchor, AWindowComesBackToWhereItStoodUnlessNobodySeesItThere)
{
    testing_support::TempFolder home;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", home.Path().toUtf8());
    const QString section = u"Positions"_qs, application = u"AnchorCtrl"_qs, key = u"frmTestPos"_qs;
    // Where a window comes up, and what is kept when it ends at another place.
    const auto run = [&](Qt::WindowState state, const QString& name) {
        auto window = std::make_unique<Window>(u"AnchorCtrl,Positions,"_qs + name);
        window->anchor->DoInit();
        const QPoint start = window->pos();
        window->show();
        window->move(40, 50);
        window->setWindowState(state);
        window.reset();
        const QString kept = platform::GetSetting(application, section, key, u"-"_qs);
        return u"%1|%2 then %3"_qs.arg(start.x()).arg(start.y()).arg(kept).toStdString();
    };
    const QString full = u"frmTest,1110|540"_qs;
    EXPECT_EQ(run(Qt::WindowNoState, u"frmTest"_qs), "0|0 then -") << "a part is missing";
    EXPECT_EQ(run(Qt::WindowMaximized, full), "74|36 then -");
    EXPECT_EQ(run(Qt::WindowMinimized, full), "74|36 then -");
    EXPECT_EQ(run(Qt::WindowNoState, full), "74|36 then 600|750");
    EXPECT_EQ(run(Qt::WindowNoState, full), "40|50 then 600|750");
    const QSize screen = QGuiApplication::primaryScreen()->size() * 15;
    for (const auto& [kept, start] : std::initializer_list<std::pair<QString, const char*>>{
             {u"-5850|300"_qs, "-390|20"}, // its right end shows
             {u"-6000|300"_qs, "0|0"},
             {u"300|-15"_qs, "0|0"},
             {u"%1|300"_qs.arg(screen.width()), "0|0"},
             {u"300|%1"_qs.arg(screen.height()), "0|0"},
             {u"300"_qs, "0|0"},
             {u"x|300"_qs, "0|0"}}) {
        ASSERT_TRUE(platform::SaveSetting(application, section, key, kept).IsOk());
        EXPECT_EQ(run(Qt::WindowNoState, full), std::string(start) + " then 600|750") << qPrintable(kept);
    }
    before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
}

TEST(Resize, ScalesFromTheDesignInWholePercents)
{
    QWidget window;
    window.resize(300, 200);
    QWidget& box = Put(new QGroupBox, window, {30, 20, 101, 51});
    QWidget& inner = Put(new QWidget, box, {10, 10, 40, 20});
    QWidget& parked = Put(new QWidget, window, {40 - 5000, 10, 60, 20}); // on a hidden page
    QWidget& line = Put(new QFrame, window, {10, 10, 100, 2});
    static_cast<QFrame&>(line).setFrameShape(QFrame::HLine);
    QWidget& lost = Put(new QWidget, window, {});
    Resize resize(window);
    resize.FormResize(); // only looks
    delete &lost;
    const auto scaled = [&](int width, int height) {
        window.resize(width, height);
        resize.FormResize();
        return box.geometry();
    };
    for (int time = 0; time < 2; ++time) { // nothing drifts
        EXPECT_TRUE(scaled(300, 200) == QRect(30, 20, 101, 51));
        EXPECT_TRUE(scaled(200, 300) == QRect(19, 30, 66, 76)); // 66 and 150 percent
        EXPECT_TRUE(inner.geometry() == QRect(6, 15, 26, 30));
        EXPECT_TRUE(parked.geometry() == QRect(26 - 5000, 15, 39, 30));
        EXPECT_TRUE(line.geometry() == QRect(6, 15, 66, 2));
    }
    window.move(0, 2000);
    EXPECT_TRUE(scaled(300, 200) == QRect(19, 30, 66, 76)) << "parked below all screens";
}

TEST(SetTopMost, KeepsPlaceSizeAndVisibility)
{
    for (const bool isVisible : {false, true}) {
        QWidget window;
        window.setGeometry(30, 40, 250, 150);
        window.setVisible(isVisible);
        for (const bool onTop : {true, false}) {
            SetTopMost(window, onTop);
            EXPECT_TRUE(window.isVisible() == isVisible && window.geometry() == QRect(30, 40, 250, 150));
            window.show();
            EXPECT_EQ(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), onTop);
            EXPECT_EQ(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint), onTop);
            window.setVisible(isVisible);
        }
    }
}

TEST(AutoSizeCombo, TheListShowsItsLongestEntryWhole)
{
    QComboBox combo;
    combo.resize(20, 25);
    const auto width = [&](const QStringList& entries) {
        combo.clear();
        combo.addItems(entries);
        AutoSizeCombo(combo);
        combo.showPopup();
        const int shown = entries.isEmpty() ? combo.view()->minimumWidth() : combo.view()->width();
        combo.hidePopup();
        return shown;
    };
    const QString longest = u"an entry that needs some room"_qs;
    EXPECT_EQ(width({u"a"_qs, longest, u"b"_qs}),
              combo.view()->fontMetrics().horizontalAdvance(longest) + 30);
    EXPECT_EQ(width({}), 30);
    EXPECT_EQ(width({longest.repeated(500)}), combo.screen()->availableSize().width());
}

} // namespace
} // namespace windowing
