// SPDX-License-Identifier: MIT
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

// Number of names below `folder` that could be looked up.
long scan_loop(const char* folder);

#ifdef __cplusplus
}
#endif
