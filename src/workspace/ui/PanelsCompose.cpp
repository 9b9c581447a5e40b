// SPDX-License-Identifier: MIT
//
// The Compose panel: a list of elements, each put together from the value combo above it.
#include "workspace/ui/Fields.h"
#include "workspace/ui/OrderList.h"
#include "workspace/ui/Panels.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace workspace {
namespace {

// The list of elements as a view of the options' list. The selected row is the list's own.
class ElementList
{
public:
    ElementList(OrderList& list, QStringList& elements) : list_(&list), elements_(&elements) {}

    void Show(int current) const
    {
        list_->clear();
        list_->addItems(*elements_);
        list_->setCurrentRow(qMin(current, static_cast<int>(elements_->size()) - 1));
    }

    void Refresh() const { Show(list_->currentRow()); }

    void Add(const QString& element) const
    {
        elements_->append(element);
        Show(static_cast<int>(elements_->size()) - 1);
    }

    void MoveCurrent(int offset) const { Move(list_->currentRow(), list_->currentRow() + offset); }

    void Move(int from, int to) const
    {
        const auto isRow = [this](int row) {
            return row >= 0 && row < elements_->size();
        };
        if (isRow(from) && isRow(to)) {
            elements_->move(from, to);
            Show(to);
        }
    }

    void DeleteCurrent() const
    {
        const int row = list_->currentRow();
        if (row >= 0) {
            elements_->removeAt(row);
            Show(row);
        }
    }

private:
    OrderList* list_;
    QStringList* elements_;
};

// The element that "Add" makes: a random string keeps the mask of this moment.
QString ElementOf(const actions::ValueControls& value)
{
    return value.combo == QLatin1String("$Random String$") ? QLatin1String("$Random$_") + value.mask
                                                           : value.combo;
}

} // namespace

QWidget* Panels::Compose(actions::ComposeOptions& options) const
{
    QGroupBox* panel = NewFrame(QLatin1String("frmCompose"), tr("Compose Name"));
    QVBoxLayout& column = ColumnOf(*panel);
    QHBoxLayout& value = AddRow(column);
    AddValue(column, value, tr("Element:"), model::ActionKind::Compose, options.cmbCompose);
    QPushButton* add = NewButton(QLatin1String("Command15"), tr("Add"));
    value.addWidget(add);
    QWidget::setTabOrder(panel->findChild<QComboBox*>(ControlsOf(model::ActionKind::Compose).combo), add);

    auto* list = new OrderList;
    list->setObjectName(QStringLiteral("lstCompose"));
    list->setAccessibleName(tr("Elements of the name"));
    QPushButton* up = NewButton(QLatin1String("cmdCUp"), tr("Move Up"));
    QPushButton* down = NewButton(QLatin1String("cmdCDown"), tr("Move Down"));
    QPushButton* remove = NewButton(QLatin1String("cmdDel"), tr("Delete"));
    QHBoxLayout& elements = AddRow(column);
    elements.addWidget(list, 1);
    auto* buttons = new QVBoxLayout;
    elements.addLayout(buttons);
    for (QPushButton* button : {up, down, remove}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);

    const ElementList shown(*list, options.lstCompose);
    tools_.binder.OnShow([shown] { shown.Refresh(); });
    QObject::connect(add, &QPushButton::clicked, panel,
                     [shown, &options] { shown.Add(ElementOf(options.cmbCompose)); });
    QObject::connect(up, &QPushButton::clicked, panel, [shown] { shown.MoveCurrent(-1); });
    QObject::connect(down, &QPushButton::clicked, panel, [shown] { shown.MoveCurrent(+1); });
    QObject::connect(remove, &QPushButton::clicked, panel, [shown] { shown.DeleteCurrent(); });
    QObject::connect(list, &OrderList::RowDropped, panel,
                     [shown](int from, int to) { shown.Move(from, to); });
    auto* deleteKey = new QShortcut(QKeySequence::Delete, list, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(deleteKey, &QShortcut::activated, panel, [shown] { shown.DeleteCurrent(); });
    return panel;
}

} // namespace workspace
