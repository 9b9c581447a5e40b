// SPDX-License-Identifier: MIT
#include "windowing/Resize.h"

#include <QFrame>
#include <QGroupBox>
#include <QWidget>

namespace windowing {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr int ParkedTop = 30'000 / TwipsPerPixel;

// What a tab container takes off the left edge of a control whose page is hidden.
constexpr int TabOffset = 75'000 / TwipsPerPixel;

bool IsPlainContainer(const QWidget& widget)
{
    const QMetaObject* const type = widget.metaObject();
    return (type == &QWidget::staticMetaObject || type == &QFrame::staticMetaObject ||
            type == &QGroupBox::staticMetaObject) &&
           !widget.layout();
}

QFrame::Shape ShapeOf(const QWidget& widget)
{
    const auto* const frame = qobject_cast<const QFrame*>(&widget);
    return frame ? frame->frameShape() : QFrame::NoFrame;
}

} // namespace

void Resize::RegisterIn(const QWidget& container)
{
    const auto widgets = container.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : widgets) {
        if (widget->isWindow()) {
            continue;
        }
        const bool isParked = widget->x() < 0;
        const QRect place = widget->geometry();
        controls_.push_back({widget, isParked ? place.translated(TabOffset, 0) : place, isParked});
        if (IsPlainContainer(*widget)) {
            RegisterIn(*widget);
        }
    }
}

void Resize::Register()
{
    design_ = window_.size();
    RegisterIn(window_);
    isRegistered_ = true;
}

void Resize::FormResize()
{
    if (window_.y() >= ParkedTop) {
        return;
    }
    if (!isRegistered_) {
        Register();
        return;
    }
    if (design_.isEmpty()) {
        return; // nothing is in proportion to nothing
    }
    const int heightRatio = window_.height() * 100 / design_.height();
    const int widthRatio = window_.width() * 100 / design_.width();
    for (const Control& control : controls_) {
        if (!control.widget) {
            continue;
        }
        const QRect& design = control.design;
        const int left = design.x() * widthRatio / 100 - (control.isParked ? TabOffset : 0);
        const int top = design.y() * heightRatio / 100;
        // A line has ends, which move, but its thickness isn't scaled.
        const QFrame::Shape shape = ShapeOf(*control.widget);
        const int width = shape == QFrame::VLine ? design.width() : design.width() * widthRatio / 100;
        const int height = shape == QFrame::HLine ? design.height() : design.height() * heightRatio / 100;
        control.widget->setGeometry(left, top, width, height);
    }
}

} // namespace windowing
