// SPDX-License-Identifier: MIT
//
// OneAction: runs a single action over file names, as a preview does.
#pragma once

#include "actions/ActionHandler.h"
#include "support/FixedPorts.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

namespace actions_tests {

class OneAction : public testing::Test
{
protected:
    // The new names of some files, in their order; counters start anew. A name that ends with "/" is a
    // folder's.
    QStringList NewNames(model::ActionKind kind, const QStringList& names)
    {
        states.Reset(options);
        const auto handler = actions::CompileAction(kind, options, {states, clock, random, host, lengths});
        QStringList results;
        for (QString name : names) {
            model::NameContext row;
            row.type = name.endsWith(u'/') ? u"File Folder"_qs : QString();
            row.name = name.remove(u'/');
            row.size = 1536;
            row.folder = u"holiday"_qs;
            results << handler->NewName(row);
        }
        return results;
    }

    QString NewName(model::ActionKind kind, const QString& name) { return NewNames(kind, {name}).first(); }

    int Number(model::ActionKind kind) { return states.Of(kind).number; }

    actions::RenameOptions options;
    actions::CounterStates states;
    actions::LengthMeasures lengths;
    testing_support::FixedClock clock;
    testing_support::FixedRandom random{{0, 0.999}};
    model::StopFlag stop;
    testing_support::Recorder host{stop};
};

} // namespace actions_tests
