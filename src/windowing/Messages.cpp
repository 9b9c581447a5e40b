// SPDX-License-Identifier: MIT
#include "windowing/Messages.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>

namespace windowing {

namespace {

qintptr PlaceOf(const QSinglePointEvent& event)
{
    const QPoint place = event.position().toPoint();
    const auto x = static_cast<quint16>(place.x());
    const auto y = static_cast<quint16>(place.y());
    return static_cast<qintptr>(quint32{y} << 16U | x);
}

} // namespace

WindowMessage::WindowMessage(int uMsg, qintptr wParameter, qintptr lParameter)
    : QEvent(EventType()), number(uMsg), wParam(wParameter), lParam(lParameter)
{}

QEvent::Type WindowMessage::EventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

WindowMessage* WindowMessage::From(QEvent& event)
{
    return event.type() == EventType() ? static_cast<WindowMessage*>(&event) : nullptr;
}

std::optional<MessageText> MessageOf(QEvent& event)
{
    if (const WindowMessage* message = WindowMessage::From(event)) {
        return MessageText{message->number, message->wParam, message->lParam};
    }
    if (event.type() == QEvent::Wheel) {
        const auto& wheel = static_cast<const QWheelEvent&>(event);
        return MessageText{MouseWheel, wheel.angleDelta().y(), PlaceOf(wheel)};
    }
    if (event.type() == QEvent::MouseButtonRelease) {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        if (mouse.button() == Qt::LeftButton) {
            return MessageText{LeftButtonUp, 0, PlaceOf(mouse)};
        }
    }
    if (event.type() == QEvent::Drop) {
        const QMimeData* drop = static_cast<const QDropEvent&>(event).mimeData();
        if (drop->hasUrls()) {
            return MessageText{DropFiles, reinterpret_cast<qintptr>(drop), 0};
        }
    }
    return std::nullopt;
}

qintptr SendMessage(QWidget& window, int uMsg, qintptr wParam, qintptr lParam)
{
    WindowMessage message(uMsg, wParam, lParam);
    QCoreApplication::sendEvent(&window, &message);
    return message.result;
}

QPoint PointOf(qintptr lParam)
{
    return {static_cast<qint16>(lParam & 0xFFFF), static_cast<qint16>(lParam >> 16 & 0xFFFF)};
}

const QMimeData& DropOf(qintptr wParam)
{
    return *reinterpret_cast<const QMimeData*>(wParam);
}

} // namespace windowing
