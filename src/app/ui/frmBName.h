// SPDX-License-Identifier: MIT
//
// frmBName: asks a person for the name of a new bookmark.
#pragma once

#include "app/Bookmarks.h"
#include "model/AppState.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QLineEdit;

namespace app {

class frmBName final : public QWidget
{
    Q_OBJECT

public:
    // A window of its own, hidden. `added` is called when a bookmark was added. All of it outlives the
    // window.
    frmBName(Bookmarks& bookmarks, model::AppState& state, std::function<void()> added, QWidget* parent);

    // Puts the window on show beside `button` for a bookmark of that folder.
    void Ask(const QString& folder, const QWidget& button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // of the controls

Q_SIGNALS:
    void AskingChanged(bool asks); // a click on "Don't Ask Names"

private:
    void Command1_Click(); // accept

    Bookmarks& bookmarks_;
    model::AppState& state_;
    std::function<void()> added_;
    QString folder_;
    QLineEdit* txtBName_ = nullptr;
    QCheckBox* Check1_ = nullptr; // "Don't Ask Names"
};

} // namespace app
