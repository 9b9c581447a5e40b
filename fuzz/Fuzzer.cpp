// SPDX-License-Identifier: MIT
//
// The fuzzer's way into one target. Each executable is built from this file with the name of its own.
#include "fuzz/Targets.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto targets = fuzz::AllTargets();
    static const auto target = std::find_if(targets.begin(), targets.end(), [](const fuzz::Target& each) {
        return each.name == std::string_view(QUILLMARK_FUZZ_TARGET);
    });
    if (target == targets.end()) {
        std::abort(); // CMakeLists.txt names a target that Targets.cpp lacks
    }
    // What a target throws isn't caught: it ends the process, which is how the fuzzer learns of a finding.
    target->read(QByteArrayView(data, static_cast<qsizetype>(size)));
    return 0;
}
