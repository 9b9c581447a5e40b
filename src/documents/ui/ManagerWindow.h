// SPDX-License-Identifier: MIT
//
// ManagerWindow: the window in which a person saves, loads and deletes documents of a kind by name. What
// differs between kinds is a ManagerKind, and what the documents hold is the business of two functions;
// frmRenListMan shows how a kind joins.
#pragma once

#include "documents/NamedDocuments.h"

#include <QListWidget>
#include <QWidget>

#include <functional>

class QHBoxLayout;
class QLineEdit;
class QMenu;

namespace documents {

// The texts of a manager, ready for a person, and its two habits.
struct ManagerKind
{
    QString objectName, caption;
    QString folder, extension; // see NamedDocuments
    QString saveCaption, loadCaption;
    QString messageTitle;
    QString noName, nothingSelected;
    QString nameIsTaken;
    bool asksToOverwrite = false; // `nameIsTaken` is a question, and Yes saves; else it is a refusal
    bool loadsByMouse = false;    // a click copies the entry into Text1, a double click loads it
};

class ManagerWindow : public QWidget
{
    Q_OBJECT

public:
    // Writes the document to a path, and reads it from there. The description of a failure is shown.
    struct Functions
    {
        std::function<platform::Status(const QString& path)> save;
        std::function<platform::Status(const QString& path)> load;
    };

    // A window of its own, hidden.
    ManagerWindow(ManagerKind kind, const platform::ProgramFolder& programFolder, Functions functions,
                  QWidget* parent = nullptr);

    // Puts the window on show with the documents that are there now, nothing selected and no name. If it is
    // on show already, it comes to the front as it is.
    void Open();

private:
    QWidget* NewList();
    void AddMenu();
    void AddCommand(QHBoxLayout& row, QLatin1String name, const QString& caption,
                    void (ManagerWindow::*command)());

    QListWidgetItem* Selected() const; // null: none
    QListWidgetItem* EntryOf(const QString& name) const;
    bool MayReplace();   // answers a taken name
    bool LoadSelected(); // false if there was none to load
    void DeleteSelected();
    void CopyName();
    void ShowMessage(const QString& text);

    // The commands of the buttons, by their names.
    void Command1_Click(); // save
    void Command2_Click(); // load
    void Command4_Click(); // load and close

    const ManagerKind kind_;
    const NamedDocuments documents_;
    const Functions functions_;
    QListWidget* list_ = nullptr;
    QLineEdit* name_ = nullptr;
    QMenu* menu_ = nullptr;
};

} // namespace documents
