// SPDX-License-Identifier: MIT
#include "windowing/CSubclass.h"

#include "platform/NameBytes.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QListWidget>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace windowing {
namespace {

QString report; // what happened, in its order

std::string Told() // since it was asked last
{
    return std::exchange(report, {}).trimmed().toStdString();
}

// Tells of its callbacks, and does what a test asks for.
struct Listener : ISubclass
{
    void After(qintptr& lReturn, QWidget*, int uMsg, qintptr wParam, qintptr) override
    {
        report += u"after %1/%2 "_qs.arg(uMsg).arg(wParam);
        lReturn += addedAfter;
    }
    void Before(bool& lHandled, qintptr& lReturn, QWidget*&, int& uMsg, qintptr& wParam, qintptr&) override
    {
        report += u"before %1/%2 "_qs.arg(uMsg).arg(wParam);
        onBefore(lHandled, lReturn, wParam);
    }

    qintptr addedAfter = 0;
    std::function<void(bool& lHandled, qintptr& lReturn, qintptr& wParam)> onBefore = [](auto&...) {
    };
};

// A window that answers messages with twice their wParam, and ignores buttons as a plain widget does.
struct Window : QWidget
{
    bool event(QEvent* event) override
    {
        if (WindowMessage* message = WindowMessage::From(*event)) {
            message->result = 2 * message->wParam;
        }
        const auto message = MessageOf(*event);
        report += message ? u"window%1 %2 "_qs.arg(objectName()).arg(message->uMsg) : QString();
        return QWidget::event(event);
    }
};

struct Subclassing : testing::Test
{
    Subclassing() { MakeAnew(); }
    void MakeAnew()
    {
        window = std::make_unique<Window>();
        listener = std::make_unique<Listener>();
        subclass = std::make_unique<CSubclass>();
    }
    // Listens to a message before and after.
    void Hear(int uMsg, QWidget& target)
    {
        subclass->AddMsg(uMsg, When::Before);
        subclass->AddMsg(uMsg, When::After);
        subclass->Subclass(target, *listener);
    }
    std::string Send(int uMsg, qintptr wParam = 0) // gives what happens and the answer
    {
        const qintptr answer = SendMessage(*window, uMsg, wParam);
        return Told() + " = " + std::to_string(answer);
    }

    std::unique_ptr<Window> window;
    std::unique_ptr<Listener> listener;
    std::unique_ptr<CSubclass> subclass;
};

TEST_F(Subclassing, ListsDecideWhichMessagesAreHeard)
{
    Hear(HScroll, *window);
    Hear(VScroll, *window);
    EXPECT_EQ(Send(VScroll, 21), "before 277/21 window 277 after 277/21 = 42");
    subclass->DelMsg(HScroll, When::Before); // frees a slot before that of VScroll, which is there already
    subclass->AddMsg(VScroll, When::Before);
    subclass->DelMsg(VScroll, When::Before);
    EXPECT_EQ(Send(VScroll), "window 277 after 277/0 = 0");
    subclass->AddMsg(EveryMessage, When::Before);
    window->resize(50, 50); // Qt's own business
    EXPECT_EQ(Send(4711), "before 4711/0 window 4711 = 0");
    subclass->DelMsg(EveryMessage, When::Before);
    EXPECT_EQ(Send(Notify), "window 78 = 0");
    subclass->UnSubclass();
    EXPECT_EQ(subclass->CallOrigWndProc(VScroll, 1, 0), 0);
    EXPECT_EQ(Send(VScroll, 1), "window 277 = 2");
}

TEST_F(Subclassing, CallbacksAnswerChangeAndSendMessages)
{
    Hear(Notify, *window);
    listener->addedAfter = 1;
    listener->onBefore = [&](bool& lHandled, qintptr& lReturn, qintptr& wParam) {
        lHandled = true; // the window is spared, After isn't
        lReturn = subclass->CallOrigWndProc(VScroll, 5, 0);
        wParam = 7;
    };
    EXPECT_EQ(Send(Notify, 3), "before 78/3 window 277 after 78/7 = 11");
    listener->onBefore = [&](bool&, qintptr&, qintptr& wParam) {
        wParam = wParam == 1 ? 1 : 47 + SendMessage(*window, Notify, 1);
    };
    EXPECT_EQ(Send(Notify, 2), "before 78/2 before 78/1 window 78 after 78/1 window 78 after 78/50 = 101");
}

// Turns the wheel by a notch towards the user, as the window system does.
void TurnWheel(QWidget& target)
{
    QWheelEvent wheel({5, 5}, target.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(&target, &wheel);
}

TEST_F(Subclassing, EveryoneGetsWhatTheWindowIgnoresOnceAndAListScrollsBetweenTheCallbacks)
{
    Window parent;
    parent.setObjectName(u" above"_qs);
    window.release()->setParent(&parent);
    auto& child = *parent.findChild<QWidget*>();
    Hear(LeftButtonUp, child);
    Hear(MouseWheel, child);
    CSubclass second;
    second.AddMsg(EveryMessage, When::After);
    second.Subclass(child, *listener);
    QTest::mouseRelease(&child, Qt::LeftButton);
    EXPECT_EQ(Told(), "before 514/0 window 514 window above 514 after 514/0 after 514/0");
    TurnWheel(child);
    EXPECT_EQ(Told(), "before 522/-120 window 522 after 522/-120 after 522/-120 window above 522");
    QTest::mouseRelease(&child, Qt::RightButton);
    QListWidget list;
    list.addItems(QString(200, u'\n').split(u'\n'));
    list.show();
    QObject::connect(list.verticalScrollBar(), &QScrollBar::valueChanged, [] { report += u"scrolled "; });
    subclass->Subclass(*list.viewport(), *listener);
    TurnWheel(*list.viewport());
    EXPECT_EQ(Told(), "before 522/-120 scrolled after 522/-120");
}

TEST_F(Subclassing, WindowSinkAndListenerMayEndInACallbackAndASinkBefore)
{
    const auto toldWhenItEnds = [&](auto& part) {
        MakeAnew();
        Hear(LeftButtonUp, *window);
        listener->onBefore = [&part](auto&...) {
            part.reset();
        };
        QTest::mouseRelease(window.get(), Qt::LeftButton);
        EXPECT_TRUE(!subclass || !subclass->hWnd());
        return Told();
    };
    EXPECT_EQ(toldWhenItEnds(window), "before 514/0");
    EXPECT_EQ(toldWhenItEnds(subclass), "before 514/0 window 514");
    EXPECT_EQ(toldWhenItEnds(listener), "before 514/0 window 514");
    MakeAnew();
    Hear(Notify, *window);
    listener.reset();
    EXPECT_EQ(Send(VScroll, 4), "window 277 = 8");
    EXPECT_EQ(subclass->hWnd(), window.get());
    EXPECT_EQ(Send(Notify, 4), " = 0") << "the first that the sink should hear of";
    EXPECT_EQ(Send(Notify, 4), "window 78 = 8");
}

TEST_F(Subclassing, FilesAreWelcomeWhileTheObjectLives)
{
    subclass->Subclass(*window, *listener);
    subclass->AddMsgDropFiles();
    QMimeData files;
    for (const char* url : {"https://example.org/a", "file:///a"}) {
        files.setUrls({QUrl(QLatin1String(url))});
        QDragEnterEvent enter({1, 1}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(window.get(), &enter);
        EXPECT_EQ(enter.isAccepted(), *url == 'f');
    }
    QDropEvent drop({1, 1}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(Told(), "window 563 after 563/" + std::to_string(qintptr(&files)));
    EXPECT_TRUE(drop.isAccepted() && drop.dropAction() == Qt::CopyAction)
        << "a source that moves would delete";
    subclass.reset();
    EXPECT_FALSE(window->acceptDrops());
}

TEST(DroppedFiles, NamesKeepTheirBytesAndAListTakesThoseThatItsFilterNames)
{
    QMimeData drop;
    drop.setData(u"text/uri-list"_qs,
                 "# x\r\nfile:///a%FF%20%23%2541\r\nhttps://example.org/x\r\nfile:/c.P3\n"
                 "FILE://host/%C3%A4.MP3\nfile:/c.p3\nfile://host\nfile:/d.%00x\nfile:/c.P3");
    const QString odd = platform::FromBytes("/a\xFF #%41"), song = u"/\u00E4.MP3"_qs, big = u"/c.P3"_qs,
                  small = u"/c.p3"_qs, dotted = u"/d."_qs;
    EXPECT_EQ(CSubclass::OnDropFiles(drop), QStringList({odd, big, song, small, dotted, big}));
    EXPECT_EQ(CSubclass::OnDropFilesGetFirst(drop) + CSubclass::OnDropFilesGetFirst({}), odd);
    const std::pair<QString, QStringList> rows[] = {{u"*.mp3"_qs, {big, song}}, // p3 is a part of mp3
                                                    {{}, {odd, big, song, dotted}},
                                                    {u"*.*"_qs, {odd, big, song, dotted}},
                                                    {u"*"_qs, {}}};
    for (const auto& [filter, taken] : rows) {
        QListWidget list;
        list.addItem(small); // there already
        EXPECT_EQ(CSubclass::OnDropFilesAddToListDistinct(list, drop, filter), taken);
        EXPECT_EQ(list.count(), 1 + taken.size());
    }
}

} // namespace
} // namespace windowing
