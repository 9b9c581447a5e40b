// SPDX-License-Identifier: MIT
#include "app/ui/frmBName.h"

#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace app {

frmBName::frmBName(Bookmarks& bookmarks, model::AppState& state, std::function<void()> added, QWidget* parent)
    : QWidget(parent, Qt::Window), bookmarks_(bookmarks), state_(state), added_(std::move(added))
{
    setObjectName(QStringLiteral("frmBName"));
    setWindowTitle(tr("BookMark Name"));
    auto* column = new QVBoxLayout(this);
    QHBoxLayout& row = workspace::AddRow(*column);
    txtBName_ = workspace::NewBox(QStringLiteral("txtBName"), 0);
    txtBName_->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
    workspace::AddField(row, tr("Name:"), *txtBName_, 1);
    QPushButton* accept = workspace::NewButton(QLatin1String("Command1"), tr("OK"));
    row.addWidget(accept);
    Check1_ = workspace::NewCheckBox(QLatin1String("Check1"), tr("Don't Ask Names"));
    column->addWidget(Check1_);
    connect(accept, &QPushButton::clicked, this, &frmBName::Command1_Click);
    connect(Check1_, &QCheckBox::clicked, this, [this](bool on) {
        state_.DontAskBookmarkNames = on ? 1 : 0;
        Q_EMIT AskingChanged(!on);
    });
    for (QWidget* control : std::initializer_list<QWidget*>{txtBName_, accept, Check1_}) {
        control->installEventFilter(this); // Enter accepts and Escape closes, whatever has the focus
    }
    workspace::AssignMnemonics(*this);
}

void frmBName::Ask(const QString& folder, const QWidget& button)
{
    folder_ = folder;
    Check1_->setChecked(state_.DontAskBookmarkNames == 1);
    txtBName_->setText(bookmarks_.NextName());
    txtBName_->selectAll(); // typing replaces it
    txtBName_->setFocus();
    adjustSize();
    const QRect screen = button.screen()->availableGeometry();
    const QPoint wanted = button.mapToGlobal(QPoint(button.width(), 0));
    move(qBound(screen.left(), wanted.x(), qMax(screen.left(), screen.right() - width())),
         qBound(screen.top(), wanted.y(), qMax(screen.top(), screen.bottom() - height())));
    show();
    raise();
    activateWindow();
}

bool frmBName::eventFilter(QObject* watched, QEvent* event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        Command1_Click();
        return true;
    }
    if (key == Qt::Key_Escape) {
        close();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// A folder that has a bookmark already only closes the window.
void frmBName::Command1_Click()
{
    const QString name = Check1_->isChecked() ? bookmarks_.NextName() : txtBName_->text();
    if (bookmarks_.Add(name, folder_)) {
        added_();
    }
    close();
}

} // namespace app
