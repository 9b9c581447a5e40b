// SPDX-License-Identifier: MIT
#include "workspace/ui/FileDialogs.h"

#include <QFileDialog>

namespace workspace {
namespace {

std::optional<QString> Ask(QFileDialog& dialog, const DocumentKind& kind)
{
    dialog.setNameFilter(kind.filter);
    dialog.setDefaultSuffix(kind.ending);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.selectedFiles().constFirst())
                                              : std::nullopt;
}

} // namespace

std::optional<QString> AskWhereToSave(QWidget& window, const QString& title, const DocumentKind& kind)
{
    QFileDialog dialog(&window, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    return Ask(dialog, kind);
}

std::optional<QString> AskWhatToLoad(QWidget& window, const QString& title, const DocumentKind& kind)
{
    QFileDialog dialog(&window, title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog, kind);
}

} // namespace workspace
