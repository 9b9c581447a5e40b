// SPDX-License-Identifier: MIT
//
// The commands of a file list's context menu. They work on the row selected in the list, counted from 1 and 0
// if there is none, and on the checks.
#pragma once

#include "fileview/FileList.h"
#include "model/RunHost.h"

#include <QString>

namespace fileview {

// Opens the selected file with the program that the desktop has for it; its folder with the file manager.
// A refusal of the desktop is passed over. Nothing happens without a selected row.
void OpenRow(const FileList& list, int selectedRow);
void ExploreRow(const FileList& list, int selectedRow);

// Checks or unchecks the rows whose date text begins with the same ten characters as the selected row's. A
// short date, such as 2024/3/7, lets the hour into these ten.
void CheckDate(FileList& list, int selectedRow, bool checked);

// Checks or unchecks the rows of the selected row's folder.
void CheckDirectory(FileList& list, int selectedRow, bool checked);

// 0 checks all rows, 1 unchecks all, 2 inverts all.
void mnuCheck_Click(FileList& list, int Index);

enum class Transfer { Copy, Move };

// Copies or moves the checked files and folders into a folder. Copying replaces files that are there, moving
// doesn't. What can't be done is passed over without a message, and the rows stay as they are. Shows status
// and progress, and yields after every row, checked or not.
void TransferChecked(const FileList& list, QString targetFolder, Transfer transfer, model::RunHost& host);

} // namespace fileview
