// SPDX-License-Identifier: MIT
//
// RunLog: the log of the last run, read back as rows of path, original name, modified name and result. It
// only reads; what the file looks like is told in LogFormat.h.
#pragma once

#include "workspace/GridPre.h"

#include <QAbstractTableModel>

#include <array>
#include <vector>

namespace workspace {

class RunLog final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Path, OriginalName, ModifiedName, Result }; // counted from 0
    static constexpr int ColumnCount = 4;

    // data() role of a cell's colour, as in GridPre: red for a result other than success, none for all other
    // cells.
    static constexpr int ColourRole = GridPre::ColourRole;
    static constexpr unsigned FailureColour = 0xFF0000; // RGB

    using QAbstractTableModel::QAbstractTableModel;

    // Replaces all rows by those of the file `path`; a file that can't be read gives no rows. A line is cut
    // at " : " into at most four fields, so a result may hold " : ", and a path that holds one shifts the
    // fields. A line with fewer fields leaves the last ones empty.
    void Load(const QString& path);

    // Rows whose result isn't success.
    int FailureCount() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using Fields = std::array<QString, ColumnCount>;

    static Fields FieldsOf(const QString& line);

    std::vector<Fields> rows_;
};

} // namespace workspace
