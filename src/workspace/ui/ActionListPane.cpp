// SPDX-License-Identifier: MIT
#include "workspace/ui/ActionListPane.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/OrderList.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace workspace {

constexpr int LeastRows = 8; // that a low window leaves on show

ActionListPane::ActionListPane(actions::ActionList& actions, QWidget* parent)
    : QWidget(parent), actions_(actions), list_(new OrderList(this))
{
    list_->setObjectName(QStringLiteral("List3"));
    list_->setAccessibleName(tr("Actions"));
    setFocusProxy(list_);
    list_->setMinimumHeight(list_->fontMetrics().lineSpacing() * LeastRows);
    auto* caption = new QLabel(tr("Actions"), this);
    caption->setBuddy(list_);
    QPushButton* up = NewButton(QLatin1String("cmdUp"), tr("Move Up"));
    QPushButton* down = NewButton(QLatin1String("cmdDown"), tr("Move Down"));
    const auto addKey = [this](QPushButton& button, const QKeySequence& key) {
        // Only while the focus is in this pane: elsewhere the key may mean something else.
        auto* shortcut = new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, &button, &QPushButton::click);
        button.setToolTip(key.toString(QKeySequence::NativeText));
    };
    addKey(*up, Qt::CTRL | Qt::Key_Up);
    addKey(*down, Qt::CTRL | Qt::Key_Down);
    QLabel* hint = NewHint(tr("(Change order also by dragging with mouse.)"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(up);
    buttons->addWidget(down);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(caption);
    column->addWidget(list_, 1);
    column->addLayout(buttons);
    column->addWidget(hint);

    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        const int row = list_->row(item);
        actions_.entries[static_cast<std::size_t>(row)].Selected = item->checkState() == Qt::Checked;
    });
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        actions_.currentIndex = row;
        if (!list_->IsDragging()) { // a dragged action keeps its panel on show
            Q_EMIT CurrentActionChanged();
        }
    });
    connect(list_, &OrderList::RowDropped, this, &ActionListPane::DropRow);
    connect(up, &QPushButton::clicked, this, [this] { MoveCurrent(-1); });
    connect(down, &QPushButton::clicked, this, [this] { MoveCurrent(+1); });
    ShowActions();
}

void ActionListPane::ShowActions()
{
    const QSignalBlocker quiet(list_);
    const int count = static_cast<int>(actions_.entries.size());
    while (list_->count() > count) {
        delete list_->takeItem(list_->count() - 1);
    }
    for (int row = 0; row < count; ++row) {
        const actions::ActionList::Entry& entry = actions_.entries[static_cast<std::size_t>(row)];
        QListWidgetItem* item = list_->item(row);
        if (!item) {
            item = new QListWidgetItem(list_);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        }
        item->setText(entry.text);
        item->setCheckState(entry.Selected ? Qt::Checked : Qt::Unchecked);
    }
    list_->setCurrentRow(actions_.currentIndex);
}

void ActionListPane::MoveCurrent(int offset)
{
    actions_.MoveCurrent(offset);
    ShowActions();
    Q_EMIT CurrentActionChanged();
}

void ActionListPane::DropRow(int from, int to)
{
    actions_.ListRowMove(from, to);
    ShowActions();
    Q_EMIT CurrentActionChanged();
}

} // namespace workspace
