// SPDX-License-Identifier: MIT
//
// Listens to the messages of one window, before or after the window itself takes them, and calls a sink. It
// is for windows whose class can't be changed, like the view and the header inside a list: what a sink does
// before can keep a message from the window, what it does after sees the effect.
//
//     CSubclass subclass;
//     subclass.AddMsg(MouseWheel, When::After);
//     subclass.Subclass(*view->viewport(), *this); // `this` is an ISubclass
//
// A scroll area gets its mouse, wheel and drop events through its viewport, so that is the window to take.
// A message sent from inside a callback gets its callbacks like any other. Sink, window and CSubclass may end
// in any order, also inside a callback. All of it runs on the windows' thread.
#pragma once

#include "windowing/Messages.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

class QListWidget;

namespace windowing {

// When a sink is called: before the window takes the message, or after.
enum class When { After = 0, Before = 1 };

// What ISubclass and ISubclass2 share: the two callbacks.
class MessageSink
{
public:
    MessageSink() = default;
    MessageSink(const MessageSink&) = delete;
    MessageSink& operator=(const MessageSink&) = delete;
    virtual ~MessageSink() = default;

    // `lReturn` is the window's answer and may be changed. Not called if the window is gone.
    virtual void After(qintptr& lReturn, QWidget* hWnd, int uMsg, qintptr wParam, qintptr lParam) = 0;

    // With `lHandled` set to true the window doesn't get the message, and `lReturn` is the answer. Changes of
    // the other four go on to the window (for a WindowMessage; a Qt event stays as it is) and to After.
    virtual void Before(bool& lHandled, qintptr& lReturn, QWidget*& hWnd, int& uMsg, qintptr& wParam,
                        qintptr& lParam) = 0;

private:
    friend class CSubclass;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true); // dies with the sink
};

class ISubclass : public MessageSink
{};

class ISubclass2 : public MessageSink
{};

class CSubclass : public QObject
{
public:
    explicit CSubclass(QObject* parent = nullptr);

    // With a window still set: takes back that it accepts drops, if AddMsgDropFiles made it, and UnSubclass.
    ~CSubclass() override;

    // The window that is listened to, null when none.
    QWidget* hWnd() const;

    // Adds a message to those that the sink hears of; one that is there already is ignored. EveryMessage (-1)
    // stands for all. The lists are the same for every window and outlast it.
    void AddMsg(int uMsg, When when);

    // Has the window take a message without callbacks; inside a callback for that message, the very event
    // that is on its way. Gives the window's answer, 0 for events of Qt and when no window is subclassed.
    qintptr CallOrigWndProc(int uMsg, qintptr wParam, qintptr lParam);

    // The sink no longer hears of a message; EveryMessage (-1) empties the list.
    void DelMsg(int uMsg, When when);

    // Listens to `window`, and to no other any more. Without a sink, and when the sink is gone, the first
    // message that it should hear of is answered with 0, and the window is let go.
    void SubclassEx(QWidget& window, MessageSink* sink);
    void Subclass(QWidget& window, ISubclass& sink);
    void Subclass2(QWidget& window, ISubclass2& sink);

    void UnSubclass();

    // The window accepts files that are dropped on it, as copies, and the sink hears of DropFiles.
    void AddMsgDropFiles(When when = When::After);

    // Adds the dropped files that the list doesn't hold yet (texts are compared exactly) and gives their
    // names. A filter that is empty or "*.*" lets all through, another those whose extension, the text behind
    // the last ".", occurs anywhere in it, without regard to case: "mp3" lets "p3" through, too.
    static QStringList OnDropFilesAddToListDistinct(QListWidget& list, const QMimeData& drop,
                                                    const QString& filter);

    // The first file's name, empty if there is none.
    static QString OnDropFilesGetFirst(const QMimeData& drop);

    // The names of all files.
    static QStringList OnDropFiles(const QMimeData& drop);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Message numbers in slots; a free slot holds -1.
    struct MessageTable
    {
        bool Has(int uMsg) const;
        void Add(int uMsg);
        void Remove(int uMsg);

        bool hasAll = false;
        std::vector<int> slots;
    };

    // A message that is on its way through Dispatch.
    struct Passage
    {
        QEvent& event;
        QWidget* hWnd;
        MessageText text;
        bool lHandled = false;
        qintptr lReturn = 0;
    };

    MessageTable& TableOf(When when);
    bool AcceptsDrag(QEvent& event);
    bool Dispatch(Passage& passage);
    bool CallBefore(Passage& passage);
    bool CallAfter(Passage& passage);
    qintptr PassOn(QWidget& window, QEvent& event);

    QPointer<QWidget> hWnd_;
    MessageSink* sink_ = nullptr; // only to be used while sinkAlive_ holds
    std::weak_ptr<const bool> sinkAlive_;
    MessageTable MsgBefore_;
    MessageTable MsgAfter_;
    Passage* current_ = nullptr;   // the innermost message that a callback is at work on
    std::vector<QEvent*> passing_; // events that are being passed on to the window
    QPointer<QWidget> dropWindow_; // the window that accepts files
    bool switchedDropsOn_ = false; // it didn't accept drops before
    bool dragOffersFiles_ = false;
};

} // namespace windowing
