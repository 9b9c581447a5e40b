// SPDX-License-Identifier: MIT
#include "app/ui/frmSplash.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace app {

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen)
{
    setObjectName(QStringLiteral("frmSplash"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 24, 32, 24);
    const auto addLine = [&](const QString& text, double size) {
        auto* label = new QLabel(text, this);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * size);
        label->setFont(font);
        label->setAlignment(Qt::AlignHCenter);
        column->addWidget(label);
    };
    addLine(tr("Quillmark"), 2.4);
    addLine(tr("For Files and Folders"), 1.2);
    addLine(tr("Version 1.1.0"), 1.0);
    addLine(tr("Loading..."), 1.0);
    auto* skip = new QPushButton(tr("Skip"), this);
    skip->setObjectName(QStringLiteral("cmdSkip"));
    column->addWidget(skip, 0, Qt::AlignHCenter);
    connect(skip, &QPushButton::clicked, this, [this] {
        close();
        Q_EMIT Skipped();
    });
}

void frmSplash::keyPressEvent(QKeyEvent*)
{
    close();
}

} // namespace app
