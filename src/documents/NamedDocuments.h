// SPDX-License-Identifier: MIT
//
// NamedDocuments: documents that a person knows by name alone. They lie in one folder below the program's
// folder, each as the file of its name and an extension.
#pragma once

#include "platform/ProgramFolder.h"
#include "platform/Result.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace documents {

// Whether two names are one, letter by letter and regardless of case: "Trip" is "TRIP".
bool IsSameName(const QString& a, const QString& b);

class NamedDocuments
{
public:
    // `folder` is relative to the program's folder and ends with a separator; `extension` has its dot and
    // three letters.
    NamedDocuments(const platform::ProgramFolder& programFolder, const QString& folder, QString extension);

    // Makes the folder if it is missing.
    platform::Status EnsureFolder() const;

    // The names of all documents in the order in which the file system lists them. A file belongs to them if
    // it is a plain file and its name ends in the extension's three letters; the four last characters are cut
    // off. One of which nothing is left then is left out.
    QStringList Names() const;

    // The document that `name` would stand beside or replace: the one of exactly that name, else the first
    // whose name differs in case only.
    std::optional<QString> Find(const QString& name) const;

    // Complete path of a document's file.
    QString PathOf(const QString& name) const { return folder_ + name + extension_; }

    // Makes the folder if it is missing and lets `write` write the document. `replaced`, if not empty, is the
    // document in whose place it comes: where its name differs in case, its file goes once the new one is
    // written. After a failure the old document stands as it stood. A name with a separator is refused, since
    // it would lead out of the folder.
    using Writer = std::function<platform::Status(const QString& path)>;
    platform::Status Save(const QString& name, const QString& replaced, const Writer& write) const;

    // Deletes a document's file. One that can't be deleted, or isn't there, is passed over.
    void Delete(const QString& name) const;

private:
    QString folder_; // complete, with a separator at its end
    QString extension_;
};

} // namespace documents
