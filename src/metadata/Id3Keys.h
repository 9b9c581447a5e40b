// SPDX-License-Identifier: MIT
//
// The keys by which names ask for what an MP3 tells.
#pragma once

#include "metadata/clsID3.h"

#include <QStringList>

namespace metadata {

// The keys that are offered, in their order. Two of them, "Length" and "OriginalFilename", are asked for in
// another spelling, so that as they stand they have no value.
const QStringList& OfferedId3Keys();

// The value of a key, which is compared exactly: "length" in seconds and "Bitrate" in bits a second with up
// to fifteen digits. Empty for an unknown key and where the file doesn't tell.
QString ValueOfId3Key(const clsID3& tags, const QString& key);

} // namespace metadata
