// SPDX-License-Identifier: MIT
#include "workspace/ui/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QVariant>

namespace workspace {
namespace {

constexpr char AlternativeMark[] = "alternative";

struct Walk
{
    QString taken; // letters in lower case
    QList<QWidget*> captions;
    QList<QWidget*> alternatives;
};

QString TextOf(const QWidget& caption)
{
    if (const auto* label = qobject_cast<const QLabel*>(&caption)) {
        return label->text();
    }
    return static_cast<const QAbstractButton&>(caption).text();
}

void SetText(QWidget& caption, const QString& text)
{
    if (auto* label = qobject_cast<QLabel*>(&caption)) {
        label->setText(text);
    } else {
        static_cast<QAbstractButton&>(caption).setText(text);
    }
}

void NoteCaption(QWidget& widget, Walk& walk)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (label ? !label->buddy() : !button) {
        return;
    }
    const QString text = TextOf(widget);
    const qsizetype mark = text.indexOf(QLatin1Char('&'));
    if (mark >= 0 && mark + 1 < text.size()) {
        walk.taken += text[mark + 1].toLower();
    } else if (label || button->shortcut().isEmpty()) { // setting a text would drop the button's own shortcut
        walk.captions.append(&widget);
    }
}

void Collect(QWidget& part, Walk& walk)
{
    for (QObject* child : part.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow()) {
            continue;
        }
        if (widget->property(AlternativeMark).toBool()) {
            walk.alternatives.append(widget);
            continue;
        }
        NoteCaption(*widget, walk);
        Collect(*widget, walk);
    }
}

void GiveLetter(QWidget& caption, QString& taken)
{
    const QString text = TextOf(caption);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text[i].toLower();
        if (letter.isLetter() && !taken.contains(letter)) {
            taken += letter;
            SetText(caption, text.left(i) + QLatin1Char('&') + text.mid(i));
            return;
        }
    }
}

void AssignBeside(QWidget& part, const QString& taken)
{
    Walk walk{taken, {}, {}};
    Collect(part, walk);
    for (QWidget* caption : walk.captions) {
        GiveLetter(*caption, walk.taken);
    }
    for (QWidget* alternative : walk.alternatives) {
        AssignBeside(*alternative, walk.taken);
    }
}

} // namespace

void MarkAsAlternative(QWidget& part)
{
    part.setProperty(AlternativeMark, true);
}

void AssignMnemonics(QWidget& window)
{
    AssignBeside(window, {});
}

} // namespace workspace
