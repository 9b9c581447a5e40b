// SPDX-License-Identifier: MIT
//
// Desk: a rename workspace with its window on show, over real files in a temporary folder, and the hands of a
// person: controls are found by name and used by keys and mouse. A control that is missing, hidden or
// disabled fails the test with a sentence; so does a message box that nobody took. All widgets come with it.
#pragma once

#include "fileview/FileList.h"
#include "support/FixedPorts.h"
#include "support/TempFolder.h"
#include "workspace/ui/frmRenamer.h"

#include <QAbstractItemModelTester>
#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>
#include <stdexcept>

namespace ui_tests {

template<class Widget>
Widget& Find(const QWidget& window, const QString& name)
{
    auto* widget = window.findChild<Widget*>(name);
    if (!widget) {
        throw std::runtime_error("There is no control " + name.toStdString());
    }
    return *widget;
}

// Drags files and folders over a widget and lets them go there.
inline void Drop(QWidget& target, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
}

// Closes message boxes and answers file dialogs as soon as they show.
class Answers final : public QObject
{
public:
    Answers() { qApp->installEventFilter(this); }
    ~Answers() override { EXPECT_TRUE(messages_.isEmpty()) << messages_.join(u'\n').toStdString(); }

    // "title: text" of all message boxes since the last call.
    QStringList TakeMessages() { return std::exchange(messages_, {}); }

    QString fileToChoose;
    QMessageBox::StandardButton answer = QMessageBox::NoButton; // to questions that offer it

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            if (auto* box = qobject_cast<QMessageBox*>(watched)) {
                messages_ << box->windowTitle() + QLatin1String(": ") + box->text();
                QAbstractButton* const said = box->button(answer); // null: the box has no such button
                QMetaObject::invokeMethod(said ? static_cast<QObject*>(said) : box, said ? "click" : "accept",
                                          Qt::QueuedConnection);
            } else if (auto* dialog = qobject_cast<QFileDialog*>(watched)) {
                dialog->selectFile(fileToChoose);
                QMetaObject::invokeMethod(dialog, fileToChoose.isEmpty() ? "reject" : "accept",
                                          Qt::QueuedConnection);
            }
        }
        return false;
    }

private:
    QStringList messages_;
};

class Desk
{
public:
    explicit Desk(const QStringList& names = {}, workspace::frmRenamer::Collaborators collaborators = {})
        : window(workspace, state, random, std::move(collaborators))
    {
        platform::FileSystem system;
        for (const QString& name : names) {
            files.Write(name);
            list.AddFile(files.Path(), name, system);
        }
        list.SetCheckedAll(true);
        state.CheckedCount = list.Count();
        host.Attach(window.HostControls());
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            throw std::runtime_error("The window doesn't become active");
        }
    }

    template<class Widget>
    Widget& Find(const QByteArray& name) const
    {
        return ui_tests::Find<Widget>(window, QString::fromLatin1(name));
    }

    // A control that a person can use now.
    QWidget& Use(const QByteArray& name) const
    {
        auto& widget = Find<QWidget>(name);
        if (!widget.isVisible() || !widget.isEnabled()) {
            throw std::runtime_error(name.toStdString() + " is hidden or disabled");
        }
        return widget;
    }

    void Click(const QByteArray& name) { QTest::mouseClick(&Use(name), Qt::LeftButton); }

    void Type(const QByteArray& name, const QByteArray& text)
    {
        QWidget& box = Use(name);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, QString::fromLatin1(text));
    }

    // Goes to an action's row with the keyboard; `select` also ticks it.
    void GoTo(model::ActionKind kind, bool select = false)
    {
        QWidget& actionList = Use("List3");
        actionList.setFocus();
        QTest::keyClick(&actionList, Qt::Key_Home);
        while (CurrentAction() != model::NameOf(kind)) {
            QTest::keyClick(&actionList, Qt::Key_Down);
        }
        if (select) {
            QTest::keyClick(&actionList, Qt::Key_Space);
        }
    }

    QString CurrentAction() const
    {
        const actions::ActionList& actionList = workspace.options.List3;
        return actionList.entries.at(static_cast<std::size_t>(actionList.currentIndex)).text;
    }

    QStringList Column(int column) const
    {
        QStringList cells;
        for (int row = 1; row <= workspace.grid.RowCount(); ++row) {
            cells << workspace.grid.Cell(row, column);
        }
        return cells;
    }
    QStringList Previews() const { return Column(workspace::GridPre::Preview); }

    Answers answers;
    testing_support::TempFolder files;
    testing_support::TempFolder home;
    model::AppState state;
    fileview::FileList list;
    workspace::WindowHost host;
    model::Clock clock;
    testing_support::FixedRandom random{{0.999}}; // always the last character of a set
    platform::ProgramFolder programFolder{home.Path()};
    workspace::RenameWorkspace workspace{{state, list, host, clock, random, programFolder}};
    QAbstractItemModelTester gridTester{&workspace.grid,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal};
    workspace::frmRenamer window;
};

} // namespace ui_tests
