// SPDX-License-Identifier: MIT
#include "windowing/CSubclass.h"

#include "platform/NameBytes.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace windowing {
namespace {

// What happened, in its order: a sentence of a word or two each.
struct Report
{
    void Say(const std::string& what) { told += told.empty() ? what : ", " + what; }
    std::string Told() { return std::exchange(told, {}); } // since it was asked last

    std::string told;
};

// Tells of its callbacks, and does what a test asks for.
struct Listener : ISubclass
{
    explicit Listener(Report& to) : report(to) {}

    void After(qintptr& lReturn, QWidget*, int uMsg, qintptr wParam, qintptr) override
    {
        report.Say("after " + std::to_string(uMsg) + "/" + std::to_string(wParam));
        lReturn += addedAfter;
    }
    void Before(bool& lHandled, qintptr& lReturn, QWidget*&, int& uMsg, qintptr& wParam, qintptr&) override
    {
        report.Say("before " + std::to_string(uMsg) + "/" + std::to_string(wParam));
        if (onBefore) {
            onBefore(lHandled, lReturn, wParam);
        }
    }

    Report& report;
    qintptr addedAfter = 0;
    std::function<void(bool& lHandled, qintptr& lReturn, qintptr& wParam)> onBefore;
};

// A window that answers messages with twice their wParam, and ignores buttons as a plain widget does.
struct Window : QWidget
{
    Window(Report& to, const char* name) : report(to) { setObjectName(QLatin1String(name)); }

    bool event(QEvent* event) override
    {
        if (WindowMessage* message = WindowMessage::From(*event)) {
            message->result = 2 * message->wParam;
        }
        if (const auto message = MessageOf(*event)) {
            report.Say(objectName().toStdString() + " " + std::to_string(message->uMsg));
        }
        return QWidget::event(event);
    }

    Report& report;
};

struct Subclassing : testing::Test
{
    Subclassing() { Renew(); }

    void Renew()
    {
        window = std::make_unique<Window>(report, "window");
        listener = std::make_unique<Listener>(report);
        subclass = std::make_unique<CSubclass>();
    }

    // Listens to a message before and after.
    void Hear(int uMsg, QWidget& target)
    {
        subclass->AddMsg(uMsg, When::Before);
        subclass->AddMsg(uMsg, When::After);
        subclass->Subclass(target, *listener);
    }

    Report report;
    std::unique_ptr<Window> window;
    std::unique_ptr<Listener> listener;
    std::unique_ptr<CSubclass> subclass;
};

TEST_F(Subclassing, ListsDecideWhichMessagesAreHeard)
{
    Hear(HScroll, *window);
    Hear(VScroll, *window);
    EXPECT_EQ(SendMessage(*window, VScroll, 21), 42);
    EXPECT_EQ(report.Told(), "before 277/21, window 277, after 277/21");

    subclass->DelMsg(HScroll, When::Before); // frees a slot before that of VScroll, which is there already
    subclass->AddMsg(VScroll, When::Before);
    subclass->DelMsg(VScroll, When::Before);
    SendMessage(*window, VScroll);
    EXPECT_EQ(report.Told(), "window 277, after 277/0");

    subclass->AddMsg(EveryMessage, When::Before);
    SendMessage(*window, 4711);
    window->resize(50, 50); // Qt's own business
    EXPECT_EQ(report.Told(), "before 4711/0, window 4711");

    subclass->DelMsg(EveryMessage, When::Before);
    SendMessage(*window, Notify, HeaderItemChanging);
    EXPECT_EQ(report.Told(), "window 78");

    subclass->UnSubclass();
    EXPECT_EQ(subclass->CallOrigWndProc(VScroll, 1, 0), 0);
    EXPECT_EQ(SendMessage(*window, VScroll, 1), 2);
    EXPECT_EQ(report.Told(), "window 277");
}

TEST_F(Subclassing, CallbacksAnswerChangeAndSendMessages)
{
    Hear(Notify, *window);
    listener->addedAfter = 1;
    listener->onBefore = [&](bool& lHandled, qintptr& lReturn, qintptr& wParam) {
        lHandled = true;
        lReturn = subclass->CallOrigWndProc(VScroll, 5, 0);
        wParam = 7;
    };
    EXPECT_EQ(SendMessage(*window, Notify, 3), 11);
    EXPECT_EQ(report.Told(), "before 78/3, window 277, after 78/7"); // the window is spared, After isn't

    listener->onBefore = [&](bool&, qintptr&, qintptr& wParam) {
        if (wParam > 1) {
            SendMessage(*window, Notify, 1);
            wParam = 50;
        }
    };
    EXPECT_EQ(SendMessage(*window, Notify, 2), 101);
    EXPECT_EQ(report.Told(), "before 78/2, before 78/1, window 78, after 78/1, window 78, after 78/50");
}

// Turns the wheel by a notch towards the user, as the window system does.
void TurnWheel(QWidget& target)
{
    QWheelEvent wheel({5, 5}, target.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(&target, &wheel);
}

TEST_F(Subclassing, TwoListenersAndTheParentGetWhatTheWindowIgnoresOnce)
{
    Window parent(report, "parent");
    window->setParent(&parent);
    Hear(LeftButtonUp, *window);
    Hear(MouseWheel, *window);
    CSubclass second;
    second.AddMsg(EveryMessage, When::After);
    second.Subclass(*window, *listener);
    QTest::mouseRelease(window.get(), Qt::LeftButton);
    EXPECT_EQ(report.Told(), "before 514/0, window 514, parent 514, after 514/0, after 514/0");
    TurnWheel(*window);
    EXPECT_EQ(report.Told(), "before 522/-120, window 522, after 522/-120, after 522/-120, parent 522");
    QTest::mouseRelease(window.get(), Qt::RightButton);
    EXPECT_EQ(report.Told(), "");
    window->setParent(nullptr);
}

TEST_F(Subclassing, WindowSinkAndListenerMayEndInACallback)
{
    const auto toldWhenItEnds = [&](auto& part) {
        Renew();
        Hear(LeftButtonUp, *window);
        listener->onBefore = [&part](auto&...) {
            part.reset();
        };
        QTest::mouseRelease(window.get(), Qt::LeftButton);
        EXPECT_TRUE(!subclass || !subclass->hWnd());
        return report.Told();
    };
    EXPECT_EQ(toldWhenItEnds(window), "before 514/0");
    EXPECT_EQ(toldWhenItEnds(listener), "before 514/0, window 514");
    EXPECT_EQ(toldWhenItEnds(subclass), "before 514/0, window 514");
}

TEST_F(Subclassing, ASinkThatIsGoneLetsTheWindowGoAtTheFirstMessageForIt)
{
    Hear(Notify, *window);
    listener.reset();
    EXPECT_EQ(SendMessage(*window, VScroll, 4), 8);
    EXPECT_EQ(subclass->hWnd(), window.get());
    EXPECT_EQ(SendMessage(*window, Notify, 4), 0);
    EXPECT_EQ(subclass->hWnd(), nullptr);
    EXPECT_EQ(SendMessage(*window, Notify, 4), 8);
}

TEST_F(Subclassing, AListScrollsBetweenTheCallbacksOfTheWheel)
{
    QListWidget list;
    for (int row = 0; row < 200; ++row) {
        list.addItem(QString::number(row));
    }
    list.show();
    QObject::connect(list.verticalScrollBar(), &QScrollBar::valueChanged, [&] { report.Say("scrolled"); });
    Hear(MouseWheel, *list.viewport());
    TurnWheel(*list.viewport());
    EXPECT_EQ(report.Told(), "before 522/-120, scrolled, after 522/-120");
}

std::unique_ptr<QMimeData> DropWith(const char* list)
{
    auto drop = std::make_unique<QMimeData>();
    drop->setData(QStringLiteral("text/uri-list"), list);
    return drop;
}

TEST_F(Subclassing, FilesAreWelcomeWhileTheObjectLives)
{
    subclass->Subclass(*window, *listener);
    subclass->AddMsgDropFiles();
    const auto drag = [&](const QMimeData& data) {
        QDragEnterEvent enter({1, 1}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(window.get(), &enter);
        return enter.isAccepted();
    };
    const auto files = DropWith("file:///a\r\n");
    EXPECT_FALSE(drag(*DropWith("https://example.org/a\r\n")));
    EXPECT_TRUE(drag(*files));
    QDropEvent drop({1, 1}, Qt::CopyAction | Qt::MoveAction, files.get(), Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(report.Told(), "window 563, after 563/" + std::to_string(qintptr(files.get())));
    EXPECT_TRUE(drop.isAccepted() && drop.dropAction() == Qt::CopyAction); // a source that moves would delete
    subclass.reset();
    EXPECT_FALSE(window->acceptDrops());
}

TEST(DroppedFiles, NamesKeepTheirBytes)
{
    const auto drop = DropWith("# a comment\r\nfile:///tmp/stray%FF%20%23%2541\r\nhttps://example.org/x\r\n"
                               "FILE://host/tmp/%C3%A4.mp3\nfile:/one\nfile://hostonly\nfile:///cut%00here");
    const QStringList expected = {platform::FromBytes("/tmp/stray\xFF #%41"), QStringLiteral(u"/tmp/ä.mp3"),
                                  QStringLiteral("/one"), QStringLiteral("/cut")};
    EXPECT_EQ(CSubclass::OnDropFiles(*drop), expected);
    EXPECT_EQ(CSubclass::OnDropFilesGetFirst(*drop), expected[0]);
    EXPECT_EQ(CSubclass::OnDropFilesGetFirst(QMimeData()), QString());
}

TEST(DroppedFiles, AListTakesWhatItsFilterNamesAndItDoesNotHold)
{
    const auto drop = DropWith(
        "file:///a.MP3\nfile:///A.mp3\nfile:///a.MP3\nfile:///b.p3\nfile:///c.ogg\nfile:///d\nfile:///e.");
    const auto added = [&](const QString& filter) {
        QListWidget list;
        list.addItem(QStringLiteral("/a.MP3")); // there already
        const QStringList names = CSubclass::OnDropFilesAddToListDistinct(list, *drop, filter);
        EXPECT_EQ(list.count(), names.size() + 1);
        return names.join(u' ').toStdString();
    };
    EXPECT_EQ(added(QStringLiteral("*.mp3")), "/A.mp3 /b.p3"); // an extension may be a part of the filter
    EXPECT_EQ(added(QString()), "/A.mp3 /b.p3 /c.ogg /d /e.");
    EXPECT_EQ(added(QStringLiteral("*.*")), "/A.mp3 /b.p3 /c.ogg /d /e.");
    EXPECT_EQ(added(QStringLiteral("*")), "");
}

} // namespace
} // namespace windowing
