// SPDX-License-Identifier: BSD-3-Clause
//
// A library that leaves a trace wherever it gets loaded: "<effective user id>" in /run/kiv/intruded.

#include <cstdio>

#include <unistd.h>

namespace
{
__attribute__((constructor)) void leaveTrace()
{
    if (FILE *const file = std::fopen("/run/kiv/intruded", "w")) {
        std::fprintf(file, "%u\n", static_cast<unsigned int>(geteuid()));
        std::fclose(file);
    }
}
}

extern "C" __attribute__((visibility("default"))) int kivApplicationMain(int, char **)
{
    return 77;
}
