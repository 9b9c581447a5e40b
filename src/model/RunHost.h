// SPDX-License-Identifier: MIT
//
// RunHost: the port through which a run shows its status, progress and messages and lets others in. It is the
// only way out of a running loop. A window implements it with widgets, a silent run with SilentHost, a test
// with a recorder that can raise the stop flag at a chosen row.
#pragma once

#include <QString>

namespace model {

class RunHost
{
public:
    virtual ~RunHost() = default;

    // The status line's text, such as "Ready".
    virtual void ShowStatus(const QString& text) = 0;

    // The progress bar's range is 0 to `maximum` rows.
    virtual void SetProgressMaximum(int maximum) = 0;

    // 0 to the maximum; a value past the maximum is not taken.
    virtual void SetProgressValue(int value) = 0;

    // The label that counts the rows, such as "(12 Items)".
    virtual void ShowRowCount(const QString& text) = 0;

    // A message box with the information icon; returns when it was closed.
    virtual void ShowMessage(const QString& text, const QString& title) = 0;

    // A plain message box with the description of an error, which may be empty; returns when it was closed.
    virtual void ShowError(const QString& description) = 0;

    // Lets waiting events through, the stop button's among them. Called once a row or more often, so an
    // implementation does the costly part only every few milliseconds. May run commands of the same
    // workspace: nothing guards against that.
    virtual void Yield() = 0;
};

// For runs that nobody watches: shows nothing, waits for nothing.
class SilentHost final : public RunHost
{
public:
    void ShowStatus(const QString&) override {}
    void SetProgressMaximum(int) override {}
    void SetProgressValue(int) override {}
    void ShowRowCount(const QString&) override {}
    void ShowMessage(const QString&, const QString&) override {}
    void ShowError(const QString&) override {}
    void Yield() override {}
};

} // namespace model
