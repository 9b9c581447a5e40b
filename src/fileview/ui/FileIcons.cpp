// SPDX-License-Identifier: MIT
#include "fileview/ui/FileIcons.h"

#include "fileview/FileInfo.h"
#include "model/GetFName.h"

#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace fileview {

namespace {

// Colours of the drawn icons by what kind of content a type has; readable on light and on dark.
struct KindColour
{
    QLatin1String prefix; // of the MIME type's name
    QRgb colour;
};

constexpr std::array KindColours{
    KindColour{QLatin1String("image/"), 0xFF4C9A6A},       KindColour{QLatin1String("audio/"), 0xFFB5651D},
    KindColour{QLatin1String("video/"), 0xFF8E5AA8},       KindColour{QLatin1String("text/"), 0xFF5B7FA6},
    KindColour{QLatin1String("application/"), 0xFF7A7F87}, KindColour{QLatin1String(""), 0xFF8A8F96},
};

constexpr QRgb FolderColour = 0xFFD9A63A;

QColor ColourOf(const QString& mimeName)
{
    const auto* kind = std::find_if(KindColours.begin(), KindColours.end(), [&mimeName](const auto& each) {
        return mimeName.startsWith(each.prefix);
    });
    return QColor::fromRgba(kind->colour);
}

// Shapes in a square of 16 by 16.
QPainterPath FolderShape()
{
    QPainterPath shape;
    shape.addRoundedRect(1, 3, 6, 4, 1, 1);
    shape.addRoundedRect(1, 4.5, 14, 9.5, 1, 1);
    shape.setFillRule(Qt::WindingFill);
    return shape;
}

QPainterPath PageShape()
{
    QPainterPath shape;
    shape.moveTo(3, 1);
    shape.lineTo(9.5, 1);
    shape.lineTo(13, 4.5);
    shape.lineTo(13, 15);
    shape.lineTo(3, 15);
    shape.closeSubpath();
    return shape;
}

QIcon Drawn(const QPainterPath& shape, const QColor& colour, bool hasCorner)
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 96}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 16.0, size / 16.0);
        painter.fillPath(shape, colour);
        if (hasCorner) {
            painter.fillRect(QRectF(9.5, 1, 0.8, 4), colour.darker(140));
            painter.fillRect(QRectF(9.5, 4.3, 3.5, 0.8), colour.darker(140));
        }
        painter.end();
        icon.addPixmap(pixmap);
        icon.addPixmap(pixmap, QIcon::Selected); // not tinted: a selected icon keeps its colour
    }
    return icon;
}

// The theme's icon, null if it has none. Without a desktop there is only the theme that all others fall back
// to, which has none of these, and searching it for each takes longer than all the rest.
QIcon ThemeIcon(const QString& name)
{
    const QString theme = QIcon::themeName();
    return theme.isEmpty() || theme == QLatin1String("hicolor") ? QIcon() : QIcon::fromTheme(name);
}

QIcon IconOfFile(const QString& name)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    QIcon icon = ThemeIcon(type.iconName());
    if (icon.isNull()) {
        icon = ThemeIcon(type.genericIconName());
    }
    return icon.isNull() ? Drawn(PageShape(), ColourOf(type.name()), true) : icon;
}

} // namespace

QIcon IconOfFolder()
{
    const QIcon icon = ThemeIcon(QStringLiteral("folder"));
    return icon.isNull() ? Drawn(FolderShape(), QColor::fromRgba(FolderColour), false) : icon;
}

QIcon FileIcons::Of(const model::FileRow& row)
{
    const QString key = IconKeyOf(row);
    if (key.isEmpty()) {
        return {};
    }
    const auto known = byKey_.constFind(key);
    if (known != byKey_.cend()) {
        return *known;
    }
    return *byKey_.insert(key, row.Type == model::FileFolder ? IconOfFolder() : IconOfFile(row.Text));
}

} // namespace fileview
