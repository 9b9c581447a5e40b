// SPDX-License-Identifier: MIT
//
// The yardstick of the rename benchmark: nothing but the system call that a rename can't do without.
//
// usage: rename_loop FROM TO COUNT    in the folder of the files: FROM000001 becomes TO000001, and so on
#define _GNU_SOURCE

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int argc, char** argv)
{
    if (argc != 4) {
        fprintf(stderr, "usage: rename_loop FROM TO COUNT\n");
        return 2;
    }
    const long count = strtol(argv[3], NULL, 10);
    char from[64];
    char to[64];
    for (long number = 1; number <= count; ++number) {
        snprintf(from, sizeof from, "%s%06ld", argv[1], number);
        snprintf(to, sizeof to, "%s%06ld", argv[2], number);
        if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) != 0) {
            fprintf(stderr, "%s: %s\n", from, strerror(errno));
            return 1;
        }
    }
    return 0;
}
