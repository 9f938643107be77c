// FUZZ_CHECK: an invariant of the code under fuzzing. A broken one prints the
// condition and aborts, which libFuzzer records as a finding with its input.
#pragma once

#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(cond)                                                                           \
    do {                                                                                           \
        if (!(cond)) {                                                                             \
            std::fprintf(stderr, "invariant broken: %s (%s:%d)\n", #cond, __FILE__, __LINE__);     \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
