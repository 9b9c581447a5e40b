// SPDX-License-Identifier: MIT
#include "workspace/RenameWorkspace.h"

#include "model/GetFName.h"
#include "platform/FileSystem.h"
#include "workspace/RunMetadata.h"

#include <algorithm>
#include <optional>

namespace workspace {

namespace {

struct SortEntry
{
    const char16_t* text;
    GridPre::Column column;
    SortOrder order;
    SortKind kind;
};

// The wording of entries 4 and 5 is known to be off: they sort by the time last modified.
constexpr SortEntry SortTable[] = {
    {u"Name (A-Z)", GridPre::Original, SortOrder::Ascending, SortKind::Text},
    {u"Name (Z-A)", GridPre::Original, SortOrder::Descending, SortKind::Text},
    {u"Size (Ascending)", GridPre::Size, SortOrder::Ascending, SortKind::Number},
    {u"Size (Descending)", GridPre::Size, SortOrder::Descending, SortKind::Number},
    {u"Date Created (Old to New)", GridPre::Modified, SortOrder::Ascending, SortKind::Date},
    {u"Date Created (New to Old)", GridPre::Modified, SortOrder::Descending, SortKind::Date},
    {u"Picture Taken Date (Old to New)", GridPre::PictureTakenDate, SortOrder::Ascending, SortKind::Date},
    {u"Picture Taken Date (New to Old)", GridPre::PictureTakenDate, SortOrder::Descending, SortKind::Date},
    {u"Path (A-Z)", GridPre::Path, SortOrder::Ascending, SortKind::Text},
    {u"Path (Z-A)", GridPre::Path, SortOrder::Descending, SortKind::Text},
    {u"FileType (A-Z)", GridPre::Type, SortOrder::Ascending, SortKind::Text},
    {u"FileType (Z-A)", GridPre::Type, SortOrder::Descending, SortKind::Text},
    {u"Folder Name (A-Z)", GridPre::Folder, SortOrder::Ascending, SortKind::Text},
    {u"Folder Name (Z-A)", GridPre::Folder, SortOrder::Descending, SortKind::Text},
};

// Makes grid rows of list rows. It remembers the file that it saw last: folders take their date from it, and
// files that have vanished their size and date.
class RowMaker
{
public:
    enum class Look {
        Again,    // at the file, which may have changed since it was listed
        AsListed, // only at what the list knows
    };

    explicit RowMaker(Look look) : look_(look) {}

    model::RenameRow RowOf(const model::FileRow& item)
    {
        const bool isFolder = item.Type == model::FileFolder;
        if (look_ == Look::Again) {
            const auto info = files_.GetInfo(item.Path, item.Text);
            if (info && !info->isFolder) {
                lastSize_ = info->size;
                lastModified_ = info->modified;
            }
        } else if (item.modified && !isFolder) {
            lastSize_ = item.size;
            lastModified_ = item.modified;
        }
        if (item.Path != lastPath_) {
            lastPath_ = item.Path;
            lastFolder_ = FolderNameOf(item.Path);
        }
        model::RenameRow row;
        row.original = item.Text;
        row.path = item.Path;
        row.size = isFolder ? 0 : lastSize_;
        row.modified = lastModified_;
        row.folder = lastFolder_;
        row.type = item.Type;
        return row;
    }

private:
    Look look_;
    platform::FileSystem files_;
    qint64 lastSize_ = 0;
    std::optional<qint64> lastModified_;
    QString lastPath_;
    QString lastFolder_;
};

} // namespace

QString FolderNameOf(const QString& path, QChar separator)
{
    // The first place where a root may end: "/" is one itself, a drive's root ends with its third character.
    const qsizetype firstParting = separator == u'/' ? 0 : 2;
    const qsizetype last = path.size() - 1;
    const qsizetype parting = last < 1 ? -1 : path.lastIndexOf(separator, last - 1);
    return parting < firstParting ? QString() : path.mid(parting + 1, last - parting - 1);
}

RenameWorkspace::RenameWorkspace(const Surroundings& surroundings)
    : state_(surroundings.state),
      mainList_(surroundings.mainList),
      host_(surroundings.host),
      clock_(surroundings.clock),
      random_(surroundings.random),
      programFolder_(surroundings.programFolder)
{}

const QStringList& RenameWorkspace::SortEntries()
{
    static const QStringList entries = [] {
        QStringList list;
        for (const SortEntry& entry : SortTable) {
            list.append(QString::fromUtf16(entry.text));
        }
        return list;
    }();
    return entries;
}

void RenameWorkspace::RefillIfChanged(bool hasCommandLine)
{
    if (!state_.FileListChanged) {
        return;
    }
    if (hasCommandLine) {
        RefreshrnmPicTak();
    } else {
        Refreshrnm();
    }
    state_.FileListChanged = false;
}

void RenameWorkspace::Refreshrnm()
{
    host_.ShowRowCount(QString());
    grid.Clear();
    picTakenLoaded_ = false;
    host_.ShowStatus(QStringLiteral("Loading Files..."));
    host_.SetProgressMaximum(state_.CheckedCount);
    host_.SetProgressValue(0);

    std::vector<model::RenameRow> rows;
    rows.reserve(static_cast<std::size_t>(std::max(0, state_.CheckedCount)));
    RowMaker maker(RowMaker::Look::Again);
    for (int index = 1; index <= mainList_.Count(); ++index) {
        if (state_.StopFlag.IsSet()) {
            state_.StopFlag.Clear();
            break;
        }
        if (mainList_.Checked(index)) {
            rows.push_back(maker.RowOf(mainList_.Item(index)));
        }
        host_.Yield();
        host_.SetProgressValue(index);
    }
    grid.SetRows(std::move(rows));
    host_.SetProgressValue(0);
    host_.ShowStatus(QStringLiteral("Ready"));
    host_.ShowRowCount(QStringLiteral("(%1 Items)").arg(grid.RowCount()));
}

void RenameWorkspace::RefreshrnmPicTak()
{
    std::vector<model::RenameRow> rows(static_cast<std::size_t>(std::max(0, state_.CheckedCount)));
    std::size_t current = 0;
    // In a drop start the list was filled a moment ago, with no event in between.
    RowMaker maker(state_.DropStart ? RowMaker::Look::AsListed : RowMaker::Look::Again);
    metadata::clsEXIF exif(programFolder_.Path());
    for (int index = 1; index <= mainList_.Count(); ++index) {
        if (state_.StopFlag.IsSet()) {
            state_.StopFlag.Clear();
            break;
        }
        const model::FileRow& item = mainList_.Item(index);
        if (item.Type == QStringLiteral("JPEG file") && current < rows.size()) {
            rows[current].pictureTakenDate = PictureDateLine(exif, item.Path + item.Text, lstExif_);
        }
        if (mainList_.Checked(index) && current < rows.size()) {
            model::RenameRow row = maker.RowOf(item);
            row.pictureTakenDate = rows[current].pictureTakenDate;
            rows[current++] = std::move(row);
        }
        host_.Yield();
    }
    grid.SetRows(std::move(rows));
}

void RenameWorkspace::SortBy(int entry)
{
    if (entry < 0 || entry >= static_cast<int>(std::size(SortTable))) {
        return;
    }
    const SortEntry& sort = SortTable[entry];
    if (sort.column == GridPre::PictureTakenDate) {
        FetchPictureDates();
    }
    grid.Sort(sort.column, sort.order, sort.kind);
}

void RenameWorkspace::FetchPictureDates()
{
    if (picTakenLoaded_) {
        return;
    }
    host_.ShowStatus(QStringLiteral("Getting Picture Taken Data..."));
    host_.SetProgressMaximum(grid.RowCount());
    host_.SetProgressValue(0);
    metadata::clsEXIF exif(programFolder_.Path());
    for (int row = 1; row <= grid.RowCount() && !state_.StopFlag.IsSet(); ++row) {
        const model::RenameRow& data = grid.Row(row);
        if (data.type == model::JpegImage) {
            grid.SetPictureTakenDate(row, PictureDateLine(exif, data.path + data.original, lstExif_));
        }
        host_.SetProgressValue(row);
        host_.Yield();
    }
    host_.SetProgressValue(0);
    host_.ShowStatus(QStringLiteral("Ready"));
    picTakenLoaded_ = true;
}

void RenameWorkspace::cmdClear_Click()
{
    for (int row = 1; row <= grid.RowCount(); ++row) {
        grid.SetPreview(row, QString());
    }
    grid.AnnounceChanges();
    previewDone_ = false;
}

void RenameWorkspace::Command13_Click()
{
    state_.StopFlag.Set();
    host_.SetProgressValue(0);
    host_.ShowStatus(QStringLiteral("Ready"));
}

} // namespace workspace
