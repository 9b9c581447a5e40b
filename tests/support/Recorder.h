// SPDX-License-Identifier: MIT
//
// Recorder: what a run showed, as a list of texts, and a way to step in while it yields. A message that the
// test didn't announce, or announced and never saw, fails the test.
#pragma once

#include "model/AppState.h"
#include "model/RunHost.h"
#include "support/Printers.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <utility>

namespace testing_support {

class Recorder final : public model::RunHost
{
public:
    explicit Recorder(model::StopFlag& stop) : stop_(stop) {}
    ~Recorder() override { EXPECT_EQ(announced_, QStringList()) << "messages that never appeared"; }

    // Does something while the run yields for the `yield`th time from now on, counted from 1.
    void AtYield(int yield, std::function<void()> what) { atYield_[yields_ + yield] = std::move(what); }
    void StopAtYield(int yield) { AtYield(yield, std::bind(&model::StopFlag::Set, &stop_)); }

    // The next message is to be this one.
    void Announce(const QString& title, const QString& text) { announced_.append(title + u": "_qs + text); }

    // All since the last call, such as "status Ready; max 3; value 1; count (3 Items); message Title: text".
    // As in a progress bar, a value past the maximum isn't taken.
    QString TakeEvents() { return std::exchange(events_, {}).join(u"; "_qs); }

    void ShowStatus(const QString& text) override { events_.append(u"status "_qs + text); }
    void ShowRowCount(const QString& text) override { events_.append(u"count "_qs + text); }
    void SetProgressMaximum(int most) override { events_.append(u"max %1"_qs.arg(maximum_ = most)); }
    void SetProgressValue(int value) override
    {
        events_.append(value <= maximum_ ? QStringList(u"value %1"_qs.arg(value)) : QStringList());
    }
    void ShowMessage(const QString& text, const QString& title) override
    {
        EXPECT_EQ(announced_.value(0), title + u": "_qs + text) << "an unasked-for message";
        announced_ = announced_.mid(1);
        events_.append(u"message "_qs + title + u": "_qs + text);
    }
    void ShowError(const QString& description) override { ShowMessage(description, u"error"_qs); }
    void Yield() override
    {
        atYield_.try_emplace(++yields_, [] {}).first->second();
    }

private:
    model::StopFlag& stop_;
    std::map<int, std::function<void()>> atYield_;
    QStringList announced_, events_;
    int yields_ = 0, maximum_ = 0;
};

} // namespace testing_support
