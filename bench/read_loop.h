// SPDX-License-Identifier: MIT
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

struct ReadPart
{
    long offset;
    long size;
};

// Opens a file, reads parts of it and closes it. Number of bytes that were there.
long read_loop(const char* path, const struct ReadPart* parts, int count);

#ifdef __cplusplus
}
#endif
