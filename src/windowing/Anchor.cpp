// SPDX-License-Identifier: MIT
#include "windowing/Anchor.h"

#include "platform/UserStore.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace windowing {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr char TagName[] = "Tag";

// The four parts of Positions.
enum PositionPart { Application, Section, Window, DefaultPosition, PositionPartCount };

QString KeyOf(const QStringList& parts)
{
    return parts[Window] + QLatin1String("Pos");
}

// The pixels of a text "Left|Top" in twips; empty if it is none.
std::optional<QPoint> PositionOf(const QString& text)
{
    const QStringList numbers = text.split(u'|');
    bool hasLeft = false;
    bool hasTop = false;
    const int left = numbers.value(0).toInt(&hasLeft);
    const int top = numbers.value(1).toInt(&hasTop);
    return hasLeft && hasTop ? std::optional(QPoint(left, top) / TwipsPerPixel) : std::nullopt;
}

// True if a window of that width could be seen, and taken by its upper edge, at that place.
bool IsOnScreen(const QPoint& place, int width)
{
    const QRect upperEdge(place, QSize(qMax(1, width), 1));
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [&](const QScreen* screen) { return screen->geometry().intersects(upperEdge); });
}

// One direction of a control: hung on both edges it grows, on the far one alone it moves.
void Shift(bool hangsOnNear, bool hangsOnFar, int change, int& position, int& length)
{
    if (hangsOnFar) {
        (hangsOnNear ? length : position) += change;
    }
}

void LayOut(QWidget& control, const QString& flags, const QSize& change)
{
    const auto hangsOn = [&](int edge) {
        return flags.mid(edge, 1) == QLatin1String("T");
    };
    int left = control.x();
    int top = control.y();
    int width = control.width();
    int height = control.height();
    Shift(hangsOn(1), hangsOn(3), change.height(), top, height);
    Shift(hangsOn(0), hangsOn(2), change.width(), left, width);
    control.setGeometry(left, top, width, height);
}

} // namespace

Anchor::Anchor(QWidget& window, QString Positions)
    : QObject(&window), window_(window), Positions_(std::move(Positions))
{}

Anchor::~Anchor()
{
    if (isInitialised_ && IsNormal()) {
        SavePosition();
    }
}

void Anchor::Freeze(QWidget& window)
{
    window.setUpdatesEnabled(false);
}

void Anchor::UnFreeze(QWidget& window, bool redraw)
{
    window.setUpdatesEnabled(true);
    if (redraw) {
        window.repaint();
    }
}

bool Anchor::IsNormal() const
{
    return (window_.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
}

void Anchor::RestorePosition()
{
    const QStringList parts = Positions_.split(u',');
    if (parts.size() < PositionPartCount) {
        return;
    }
    const QString kept = platform::GetSetting(parts[Application], parts[Section], KeyOf(parts), {});
    const auto place = PositionOf(kept.isEmpty() ? parts[DefaultPosition] : kept);
    if (place && IsOnScreen(*place, window_.width())) {
        window_.move(*place);
        isRestored_ = !kept.isEmpty();
    }
}

void Anchor::SavePosition() const
{
    const QStringList parts = Positions_.split(u',');
    if (parts.size() < PositionPartCount) {
        return;
    }
    const QPoint place = window_.pos() * TwipsPerPixel;
    // A place that can't be kept has nobody left to be told to.
    static_cast<void>(platform::SaveSetting(parts[Application], parts[Section], KeyOf(parts),
                                            QStringLiteral("%1|%2").arg(place.x()).arg(place.y())));
}

void Anchor::DoInit(std::optional<int> MinHeight, std::optional<int> MinWidth)
{
    RestorePosition();
    Flags_.clear();
    const auto widgets = window_.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : widgets) {
        const QString tag = widget->property(TagName).toString();
        if (!widget->isWindow() && tag.contains(QLatin1String("*/"))) {
            Flags_.push_back({widget, tag.left(4)});
            widget->setProperty(TagName, tag.mid(6)); // wherever in it the "*/" stands
        }
    }
    MinHeight_ = MinHeight.value_or(MinHeight_);
    MinWidth_ = MinWidth.value_or(MinWidth_);
    last_ = window_.size();
    isInitialised_ = true;
}

void Anchor::KeepLeastSize()
{
    const QSize least(MinWidth_ / TwipsPerPixel, MinHeight_ / TwipsPerPixel);
    if (IsNormal()) {
        window_.resize(window_.size().expandedTo(least));
    }
}

void Anchor::DoResize()
{
    // Giving the window its least size resizes it once more, which the call that is under way takes care of.
    if (!isInitialised_ || isResizing_ || window_.isMinimized()) {
        return;
    }
    const QScopedValueRollback<bool> resizing(isResizing_, true);
    if (!noFreeze_) {
        Freeze(window_);
    }
    KeepLeastSize();
    const QSize size = window_.size();
    const QSize change = size - last_;
    Q_EMIT BeforeResize();
    for (const Control& control : Flags_) {
        if (control.widget && !control.flags.isEmpty()) {
            LayOut(*control.widget, control.flags, change);
        }
    }
    Q_EMIT AfterResize(change.height(), change.width());
    last_ = size;
    if (!noFreeze_) {
        UnFreeze(window_, true);
    }
}

} // namespace windowing
