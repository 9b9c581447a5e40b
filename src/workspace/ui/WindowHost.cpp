// SPDX-License-Identifier: MIT
#include "workspace/ui/WindowHost.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace workspace {

void WindowHost::ShowStatus(const QString& text)
{
    if (controls_.status) {
        controls_.status->setText(text);
    }
}

void WindowHost::SetProgressMaximum(int maximum)
{
    if (controls_.progress) {
        // A range of 0 to 0 would make the bar run without end.
        controls_.progress->setRange(0, qMax(1, maximum));
    }
}

void WindowHost::SetProgressValue(int value)
{
    QProgressBar* const bar = controls_.progress;
    if (!bar || value > bar->maximum()) {
        return;
    }
    // A bar doesn't show finer steps, and each takes longer than a row of most runs.
    const int step = qMax(1, bar->maximum() / 500);
    if (value == 0 || value == bar->maximum() || qAbs(value - bar->value()) >= step) {
        bar->setValue(value);
    }
}

void WindowHost::ShowRowCount(const QString& text)
{
    if (controls_.rowCount) {
        controls_.rowCount->setText(text);
    }
}

void WindowHost::ShowMessage(const QString& text, const QString& title)
{
    ShowBox(QMessageBox::Information, title, text);
}

void WindowHost::ShowError(const QString& description)
{
    ShowBox(QMessageBox::NoIcon, QCoreApplication::applicationName(), description);
}

void WindowHost::ShowBox(int icon, const QString& title, const QString& text)
{
    if (controls_.grid) {
        controls_.grid->AnnounceChanges();
    }
    QWidget* const owner =
        controls_.window && controls_.window->isVisible() ? controls_.window.data() : nullptr;
    QMessageBox(static_cast<QMessageBox::Icon>(icon), title, text, QMessageBox::Ok, owner).exec();
}

void WindowHost::Yield()
{
    constexpr qint64 milliseconds = 15;
    if (sinceYield_.isValid() && sinceYield_.elapsed() < milliseconds) {
        return;
    }
    if (controls_.grid) {
        controls_.grid->AnnounceChanges();
    }
    QCoreApplication::processEvents();
    sinceYield_.start();
}

} // namespace workspace
