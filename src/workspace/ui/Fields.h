// SPDX-License-Identifier: MIT
//
// The small parts of which the panels are built: boxes, buttons and captions, named and sized alike
// everywhere. Parts have no parent yet; the layout that takes them gives them one.
#pragma once

#include <QLatin1String>
#include <QString>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class QWidget;

namespace workspace {

// Object name of an element of a control array: "txtFirstC" and 2 give "txtFirstC2".
QString ElementName(QLatin1String array, int index);

// A box of about `characters` digits; 0: as wide as there is room.
QLineEdit* NewBox(const QString& name, int characters);

// A box without a caption of its own gets one for screen readers.
QLineEdit* NewBox(const QString& name, int characters, const QString& accessibleName);

QPushButton* NewButton(QLatin1String name, const QString& caption);
QCheckBox* NewCheckBox(QLatin1String name, const QString& caption, const QString& toolTip = {});
QRadioButton* NewRadioButton(const QString& name, const QString& caption);

// A caption that is said to belong to `field`, and then the field.
void AddField(QBoxLayout& row, const QString& caption, QWidget& field, int stretch = 0);

// A frame with a title and a column of things in it.
QGroupBox* NewFrame(QLatin1String name, const QString& caption);
QVBoxLayout& ColumnOf(QGroupBox& frame);

// A new row at the end of a column.
QHBoxLayout& AddRow(QBoxLayout& column);

// Lets the mouse wheel pass over a combo that hasn't got the focus: it scrolls what the combo stands in
// instead of picking another entry.
void PassWheelWithoutFocus(QComboBox& combo);

// A line of quiet explanation.
QLabel* NewHint(const QString& text);

} // namespace workspace
