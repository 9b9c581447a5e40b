// SPDX-License-Identifier: MIT
#include "workspace/ui/Fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace workspace {
namespace {

class WheelGuard final : public QObject
{
public:
    explicit WheelGuard(QComboBox& combo) : QObject(&combo), combo_(combo) {}

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Wheel && !combo_.hasFocus()) {
            event->ignore();
            return true;
        }
        return false;
    }

private:
    QComboBox& combo_;
};

} // namespace

QString ElementName(QLatin1String array, int index)
{
    return array + QString::number(index);
}

QLineEdit* NewBox(const QString& name, int characters)
{
    auto* box = new QLineEdit;
    box->setObjectName(name);
    if (characters > 0) {
        const int frame = box->sizeHint().height(); // room for frame, margins and cursor
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + frame);
    }
    return box;
}

QLineEdit* NewBox(const QString& name, int characters, const QString& accessibleName)
{
    QLineEdit* box = NewBox(name, characters);
    box->setAccessibleName(accessibleName);
    return box;
}

QPushButton* NewButton(QLatin1String name, const QString& caption)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setMinimumWidth(button->sizeHint().width() + button->fontMetrics().averageCharWidth());
    return button;
}

QCheckBox* NewCheckBox(QLatin1String name, const QString& caption, const QString& toolTip)
{
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    box->setToolTip(toolTip);
    box->setAccessibleName(toolTip); // signs are said by name
    return box;
}

QRadioButton* NewRadioButton(const QString& name, const QString& caption)
{
    auto* button = new QRadioButton(caption);
    button->setObjectName(name);
    return button;
}

void AddField(QBoxLayout& row, const QString& caption, QWidget& field, int stretch)
{
    auto* label = new QLabel(caption);
    label->setBuddy(&field);
    row.addWidget(label);
    row.addWidget(&field, stretch);
}

QGroupBox* NewFrame(QLatin1String name, const QString& caption)
{
    auto* frame = new QGroupBox(caption);
    frame->setObjectName(name);
    frame->setLayout(new QVBoxLayout);
    return frame;
}

QVBoxLayout& ColumnOf(QGroupBox& frame)
{
    return *static_cast<QVBoxLayout*>(frame.layout());
}

QHBoxLayout& AddRow(QBoxLayout& column)
{
    auto* row = new QHBoxLayout;
    column.addLayout(row);
    return *row;
}

void PassWheelWithoutFocus(QComboBox& combo)
{
    combo.setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus either
    combo.installEventFilter(new WheelGuard(combo));
}

QLabel* NewHint(const QString& text)
{
    auto* hint = new QLabel(text);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    QFont small = hint->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    hint->setFont(small);
    return hint;
}

} // namespace workspace
