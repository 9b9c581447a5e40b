// SPDX-License-Identifier: MIT
#include "app/ui/frmHelp.h"

#include <QBoxLayout>
#include <QFile>
#include <QTextBrowser>

// A library's resources are found only once they are asked for by name.
static void InitHelp()
{
    Q_INIT_RESOURCE(help);
}

namespace app {

frmHelp::frmHelp(QWidget* parent) : QWidget(parent, Qt::Window)
{
    InitHelp();
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("Quillmark - Readme"));
    resize(620, 560);
    auto* text = new QTextBrowser(this);
    QFile file(QStringLiteral(":/help/help.md"));
    if (file.open(QIODevice::ReadOnly)) {
        text->setMarkdown(QString::fromUtf8(file.readAll()));
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(text);
}

} // namespace app
