// SPDX-License-Identifier: MIT
#include "windowing/CSubclass.h"

#include "windowing/DroppedFiles.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QSet>

#include <algorithm>
#include <utility>

namespace windowing {

namespace {

constexpr int FreeSlot = -1;

void Answer(QEvent& event, qintptr lReturn)
{
    if (WindowMessage* message = WindowMessage::From(event)) {
        message->result = lReturn;
    }
}

// Dropped files are read, never moved away: a source that offered to move them keeps them.
void AcceptAsCopy(QEvent& event)
{
    static_cast<QDropEvent&>(event).setDropAction(Qt::CopyAction);
    event.accept();
}

// Answers an event and ends its way: Qt offers it to nobody else. Always true, for the filter to give back.
bool Consume(QEvent& event, qintptr lReturn)
{
    Answer(event, lReturn);
    if (event.type() == QEvent::Drop) {
        AcceptAsCopy(event);
    }
    event.accept();
    return true;
}

bool PassesFilter(const QString& name, const QString& filter)
{
    if (filter.isEmpty() || filter == QLatin1String("*.*")) {
        return true;
    }
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString extension = dot < 0 ? QString() : name.mid(dot + 1);
    return !extension.isEmpty() && filter.contains(extension, Qt::CaseInsensitive);
}

} // namespace

bool CSubclass::MessageTable::Has(int uMsg) const
{
    return hasAll || std::find(slots.begin(), slots.end(), uMsg) != slots.end();
}

void CSubclass::MessageTable::Add(int uMsg)
{
    if (uMsg == EveryMessage) {
        hasAll = true;
    } else if (!Has(uMsg)) {
        const auto free = std::find(slots.begin(), slots.end(), FreeSlot);
        if (free != slots.end()) {
            *free = uMsg;
        } else {
            slots.push_back(uMsg);
        }
    }
}

void CSubclass::MessageTable::Remove(int uMsg)
{
    if (uMsg == EveryMessage) {
        hasAll = false;
        slots.clear();
    } else {
        std::replace(slots.begin(), slots.end(), uMsg, FreeSlot);
    }
}

CSubclass::CSubclass(QObject* parent) : QObject(parent) {}

CSubclass::~CSubclass()
{
    if (hWnd_ && hWnd_ == dropWindow_ && switchedDropsOn_) {
        hWnd_->setAcceptDrops(false);
    }
    UnSubclass();
}

QWidget* CSubclass::hWnd() const
{
    return hWnd_;
}

CSubclass::MessageTable& CSubclass::TableOf(When when)
{
    return when == When::Before ? MsgBefore_ : MsgAfter_;
}

void CSubclass::AddMsg(int uMsg, When when)
{
    TableOf(when).Add(uMsg);
}

void CSubclass::DelMsg(int uMsg, When when)
{
    TableOf(when).Remove(uMsg);
}

void CSubclass::SubclassEx(QWidget& window, MessageSink* sink)
{
    UnSubclass();
    sink_ = sink;
    sinkAlive_ = sink ? std::weak_ptr<const bool>(sink->alive_) : std::weak_ptr<const bool>();
    hWnd_ = &window;
    window.installEventFilter(this);
}

void CSubclass::Subclass(QWidget& window, ISubclass& sink)
{
    SubclassEx(window, &sink);
}

void CSubclass::Subclass2(QWidget& window, ISubclass2& sink)
{
    SubclassEx(window, &sink);
}

void CSubclass::UnSubclass()
{
    if (hWnd_) {
        hWnd_->removeEventFilter(this);
        hWnd_ = nullptr;
    }
}

void CSubclass::AddMsgDropFiles(When when)
{
    if (hWnd_ && hWnd_ != dropWindow_) {
        switchedDropsOn_ = !hWnd_->acceptDrops();
        dropWindow_ = hWnd_;
        hWnd_->setAcceptDrops(true);
    }
    AddMsg(DropFiles, when);
}

bool CSubclass::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOurs = watched == hWnd_.data();
    if (!isOurs || std::find(passing_.begin(), passing_.end(), event) != passing_.end()) {
        return false;
    }
    if (AcceptsDrag(*event)) {
        return true;
    }
    const std::optional<MessageText> text = MessageOf(*event);
    if (!text || !(MsgBefore_.Has(text->uMsg) || MsgAfter_.Has(text->uMsg))) {
        return false;
    }
    Passage passage{*event, hWnd_, *text};
    return Dispatch(passage);
}

// Before a drop Qt asks, at the window's edge and at each move, whether it would be welcome.
bool CSubclass::AcceptsDrag(QEvent& event)
{
    const bool enters = event.type() == QEvent::DragEnter;
    if (hWnd_ != dropWindow_ || !(enters || event.type() == QEvent::DragMove)) {
        return false;
    }
    if (enters) {
        dragOffersFiles_ = !DroppedNames(*static_cast<QDropEvent&>(event).mimeData()).isEmpty();
    }
    if (dragOffersFiles_) {
        AcceptAsCopy(event);
    }
    return dragOffersFiles_;
}

// Runs the callbacks of a message and the window between them. Gives what an event filter gives: true if the
// event has had its way. Any of the three may end the window, the sink or this object.
bool CSubclass::Dispatch(Passage& passage)
{
    const QPointer<CSubclass> self(this);
    const QPointer<QWidget> window(hWnd_);
    const QEvent::Type type = passage.event.type();
    const bool isWelcomeDrop = type == QEvent::Drop && hWnd_ == dropWindow_;
    if (MsgBefore_.Has(passage.text.uMsg) && !CallBefore(passage)) {
        UnSubclass();
        return Consume(passage.event, 0);
    }
    if (!window) {
        return Consume(passage.event, passage.lReturn);
    }
    const QPointer<QWidget> target(passage.hWnd);
    if (!passage.lHandled) {
        if (!self) {
            return false;
        }
        passage.lReturn = target ? PassOn(*target, passage.event) : 0;
    }
    if (self && window && target && MsgAfter_.Has(passage.text.uMsg) && !CallAfter(passage)) {
        UnSubclass();
        return Consume(passage.event, 0);
    }
    // When the filter returns, Qt offers a wheel's turn that the window ignored to its parent. With a
    // released button it did so inside PassOn.
    if (passage.lHandled || !window || isWelcomeDrop || type == QEvent::MouseButtonRelease) {
        return Consume(passage.event, passage.lReturn);
    }
    Answer(passage.event, passage.lReturn);
    return true;
}

// False if the sink is gone.
bool CSubclass::CallBefore(Passage& passage)
{
    if (sinkAlive_.expired()) {
        return false;
    }
    const QPointer<CSubclass> self(this);
    Passage* const outer = std::exchange(current_, &passage);
    MessageText& text = passage.text;
    sink_->Before(passage.lHandled, passage.lReturn, passage.hWnd, text.uMsg, text.wParam, text.lParam);
    if (self) {
        current_ = outer;
    }
    if (WindowMessage* message = WindowMessage::From(passage.event)) {
        message->number = text.uMsg;
        message->wParam = text.wParam;
        message->lParam = text.lParam;
    }
    return true;
}

// False if the sink is gone.
bool CSubclass::CallAfter(Passage& passage)
{
    if (sinkAlive_.expired()) {
        return false;
    }
    const QPointer<CSubclass> self(this);
    Passage* const outer = std::exchange(current_, &passage);
    const MessageText& text = passage.text;
    sink_->After(passage.lReturn, passage.hWnd, text.uMsg, text.wParam, text.lParam);
    if (self) {
        current_ = outer;
    }
    return true;
}

qintptr CSubclass::CallOrigWndProc(int uMsg, qintptr wParam, qintptr lParam)
{
    if (!hWnd_) {
        return 0;
    }
    if (current_ && current_->text.uMsg == uMsg && !WindowMessage::From(current_->event)) {
        return PassOn(*hWnd_, current_->event);
    }
    WindowMessage message(uMsg, wParam, lParam);
    return PassOn(*hWnd_, message);
}

// Sends an event to the window past this filter. Filters that were set earlier still see it: a scroll area,
// for one, lives on the events of its viewport by such a filter.
qintptr CSubclass::PassOn(QWidget& window, QEvent& event)
{
    const QPointer<CSubclass> self(this);
    passing_.push_back(&event);
    QCoreApplication::sendEvent(&window, &event);
    if (self) {
        passing_.pop_back();
    }
    const WindowMessage* message = WindowMessage::From(event);
    return message ? message->result : 0;
}

QStringList CSubclass::OnDropFilesAddToListDistinct(QListWidget& list, const QMimeData& drop,
                                                    const QString& filter)
{
    QSet<QString> present;
    for (int row = 0; row < list.count(); ++row) {
        present.insert(list.item(row)->text());
    }
    QStringList added;
    for (const QString& name : OnDropFiles(drop)) {
        if (PassesFilter(name, filter) && !present.contains(name)) {
            present.insert(name);
            list.addItem(name);
            added.append(name);
        }
    }
    return added;
}

QString CSubclass::OnDropFilesGetFirst(const QMimeData& drop)
{
    return OnDropFiles(drop).value(0);
}

QStringList CSubclass::OnDropFiles(const QMimeData& drop)
{
    return DroppedNames(drop);
}

} // namespace windowing
