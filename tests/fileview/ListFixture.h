// SPDX-License-Identifier: MIT
//
// ListFixture: a file list over a real folder, watched by a model tester, and a scanner that fills it. Names
// are told in one text, parted by blanks.
#pragma once

#include "fileview/Scanner.h"
#include "support/Recorder.h"
#include "support/TempFolder.h"

#include <QAbstractItemModelTester>

#include <array>

namespace fileview_tests {

using fileview::FileList;

class ListFixture : public testing::Test
{
protected:
    // Makes files that hold their own names.
    void Make(const QString& names)
    {
        for (const QString& name : names.split(u' ')) {
            folder.Write(name, platform::ToBytes(name));
        }
    }

    // Lists files of the folder or of one below it, such as "a/b.txt", whether they are there or not.
    void List(const QString& names)
    {
        for (const QString& name : names.split(u' ')) {
            const qsizetype at = name.lastIndexOf(u'/') + 1;
            list.AddFile(folder.Path() + name.left(at), name.mid(at), files);
        }
        list.AnnounceRows();
    }

    // Adds rows with these texts, parted by "|", in one of the columns.
    void ListTexts(const QString& texts, int column)
    {
        for (const QString& text : texts.split(u'|')) {
            List(u"none"_qs);
            list.SetCell(list.Count(), column, text);
        }
    }

    // Full names within the folder, checked ones with "*" behind them.
    QString Rows() const
    {
        QStringList rows = list.Cols(u" "_qs, {}, false, std::array{2, 1}).remove(folder.Path()).split(u' ');
        for (int row = 1; row <= list.Count(); ++row) {
            rows[row - 1] += list.Checked(row) ? u"*"_qs : QString();
        }
        return rows.join(u' ');
    }

    testing_support::TempFolder folder;
    platform::FileSystem files;
    model::AppState state;
    testing_support::Recorder host{state.StopFlag};
    FileList list;
    QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
    fileview::ScanSettings settings{folder.Path()};
    fileview::Scanner scanner{list, settings, host, state};
};

} // namespace fileview_tests
