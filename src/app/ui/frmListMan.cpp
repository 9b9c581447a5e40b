// SPDX-License-Identifier: MIT
#include "app/ui/frmListMan.h"

#include "app/FileListFile.h"

#include <QMessageBox>

namespace app {

namespace {

documents::ManagerKind FileLists()
{
    return {
        .objectName = QStringLiteral("frmListMan"),
        .caption = frmListMan::tr("File List Manager"),
        .folder = QStringLiteral("FileLists/"),
        .extension = QStringLiteral(".lst"),
        .saveCaption = frmListMan::tr("Save File List"),
        .loadCaption = frmListMan::tr("Load Selected File List"),
        .messageTitle = frmListMan::tr("File Lists"),
        .noName = frmListMan::tr("Please give a file list name"),
        .nothingSelected = frmListMan::tr("Please select the file list to load"),
        .nameIsTaken = frmListMan::tr("File List Name already exists.Please give a different name"),
    };
}

platform::Status SaveChecked(FileGathering& gathering, const QString& fileType, const QString& path)
{
    gathering.RefreshCheckedCount();
    if (gathering.Rows().CheckedCount() == 0) {
        return platform::Status::Failure(fileType == FileGathering::EveryName
                                             ? frmListMan::tr("Please select the file type and files")
                                             : frmListMan::tr("Please select files"));
    }
    return SaveManagedList(path, gathering.Rows());
}

} // namespace

frmListMan::frmListMan(FileGathering& gathering, const platform::ProgramFolder& programFolder,
                       const std::function<QString()>& fileType, QWidget* parent)
    : ManagerWindow(FileLists(), programFolder,
                    {
                        .save = [&gathering, fileType](
                                    const QString& path) { return SaveChecked(gathering, fileType(), path); },
                        .load =
                            [this, &gathering](const QString& path) {
                                return gathering.LoadManaged(path, [this](const QString& file) {
                                    QMessageBox::information(this, tr("File Lists"),
                                                             file + tr(" does not exist"));
                                });
                            },
                    },
                    parent)
{}

} // namespace app
