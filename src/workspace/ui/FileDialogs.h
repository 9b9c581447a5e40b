// SPDX-License-Identifier: MIT
//
// Asks a person for the place of a document, in the windows' common way.
#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace workspace {

// One kind of document: "Rename Drop (*.rnp)" and "rnp".
struct DocumentKind
{
    QString filter;
    QString ending; // without its dot; a name given without one gets it
};

// The path to write to, after a question if there is a file already; none if the person cancels.
std::optional<QString> AskWhereToSave(QWidget& window, const QString& title, const DocumentKind& kind);

// The path of an existing document; none if the person cancels.
std::optional<QString> AskWhatToLoad(QWidget& window, const QString& title, const DocumentKind& kind);

} // namespace workspace
