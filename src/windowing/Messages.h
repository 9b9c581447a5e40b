// SPDX-License-Identifier: MIT
//
// Messages to a window: numbers for what happens to it, with two parameters and an answer each. Some stand
// for a Qt event (MouseWheel, LeftButtonUp, DropFiles); the others Qt has no event for, and SendMessage
// carries them to a widget as a WindowMessage. CSubclass listens to both.
#pragma once

#include <QEvent>
#include <QPoint>
#include <QWidget>

#include <optional>

class QMimeData;

namespace windowing {

// The numbers that the windows use; any other number may be sent as well.
enum Message : int {
    EveryMessage = -1,  // in the tables of CSubclass: no message of its own
    Notify = 78,        // wParam: the notification code
    HScroll = 276,      // the window has scrolled sideways
    VScroll = 277,      // the window has scrolled up or down
    LeftButtonUp = 514, // lParam: place in the window, see PointOf
    MouseWheel = 522,   // wParam: turn away from the user in eighths of a degree; lParam: place in the window
    DropFiles = 563,    // wParam: the drop handle, see DropOf
};

// Notification code of a header whose item is being changed, the wParam of Notify.
constexpr qintptr HeaderItemChanging = -300;

// A message on its way to a widget. A widget answers by setting `result` in its event().
class WindowMessage : public QEvent
{
public:
    explicit WindowMessage(int uMsg, qintptr wParameter = 0, qintptr lParameter = 0);

    // The registered event type.
    static QEvent::Type EventType();

    // The event as a message, or null if it is an event of another type.
    static WindowMessage* From(QEvent& event);

    int number;
    qintptr wParam;
    qintptr lParam;
    qintptr result = 0;
};

// What a message says, be it sent as such or as a Qt event.
struct MessageText
{
    int uMsg = 0;
    qintptr wParam = 0;
    qintptr lParam = 0;
};

// The message that an event stands for; none for most events of Qt. A drop is one only if it offers files (or
// other places) as a list.
std::optional<MessageText> MessageOf(QEvent& event);

// Sends a message to a window at once. Gives the answer, 0 if nobody cares.
qintptr SendMessage(QWidget& window, int uMsg, qintptr wParam = 0, qintptr lParam = 0);

// The place that an lParam holds: x in the low 16 bits, y in the next, both signed.
QPoint PointOf(qintptr lParam);

// The drop handle that the wParam of DropFiles holds. It lives as long as the message is on its way.
const QMimeData& DropOf(qintptr wParam);

} // namespace windowing
