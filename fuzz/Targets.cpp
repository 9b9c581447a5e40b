// SPDX-License-Identifier: MIT
#include "fuzz/Targets.h"

namespace fuzz {

std::span<const Target> AllTargets()
{
    static constexpr Target targets[] = {
        {"bookmarks", ReadBookmarks},
        {"drop", ReadDrop},
        {"exif", ReadExif},
        {"file-list", ReadFileList},
        {"id3v2", ReadId3v2Tag},
        {"inspector", InspectPicture},
        {"lyrics3", ReadLyrics3},
        {"managed-list", ReadManagedList},
        {"mp3", ReadMp3},
        {"mp3-writing", WriteMp3Tags},
        {"profile", ReadProfile},
        {"recipe", ReadRecipe},
        {"replace-list", ReadReplaceList},
        {"settings", ReadSettings},
        {"tag-text", ReadTagText},
    };
    return targets;
}

} // namespace fuzz
