#!/usr/bin/env bash
# The test command: installs what is missing, configures, builds and runs every
# test suite three times over:
#   1. an optimised build with debug information (also builds the benchmarks);
#   2. the same suites under AddressSanitizer and UndefinedBehaviorSanitizer;
#   3. the threaded suites (label "thread") under ThreadSanitizer;
# then the fuzz targets for a bounded time each, when clang's fuzzer runtime is there.
#
# ZPH_STAGES limits the run to some stages, e.g. ZPH_STAGES="release asan".
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

stages=${ZPH_STAGES:-"release asan tsan fuzz"}
jobs=$(nproc)

"$root/scripts/setup.sh"

has_stage() { [[ " $stages " == *" $1 "* ]]; }

# Each stage's wall time, printed when it ends and again, all together, at the end.
times=()
stage_start=0
begin_stage() {
  stage_start=$SECONDS
  echo "== $1"
}
end_stage() {
  local took=$((SECONDS - stage_start))
  times+=("$(printf '%-8s %4d min %02d s' "$1" $((took / 60)) $((took % 60)))")
  echo "== $1 stage done in $((took / 60)) min $((took % 60)) s"
}

configure_and_build() {
  local dir=$1; shift
  cmake -S "$root" -B "$dir" -G Ninja "$@" > "$dir.configure.log" 2>&1 || { cat "$dir.configure.log"; return 1; }
  cmake --build "$dir" -j "$jobs"
}

mkdir -p build

if has_stage release; then
  begin_stage "release build and tests"
  configure_and_build build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo
  ctest --test-dir build/release --output-on-failure -j "$jobs"
  end_stage release
fi

if has_stage asan; then
  begin_stage "AddressSanitizer + UndefinedBehaviorSanitizer build and tests"
  configure_and_build build/asan -DCMAKE_BUILD_TYPE=Debug -DZPH_SANITIZE="address;undefined" -DZPH_BUILD_BENCHMARKS=OFF
  ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_string_checks=1:detect_stack_use_after_return=1" \
  LSAN_OPTIONS="suppressions=$root/tests/sanitizers/lsan.supp:print_suppressions=0" \
  UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1" \
    ctest --test-dir build/asan --output-on-failure -j "$jobs" -LE nosan
  end_stage asan
fi

if has_stage tsan; then
  begin_stage "ThreadSanitizer build and threaded tests"
  # The sanitizer's runtime now and then fails to map its own memory while the
  # load test loads and unloads the plug-in ("failed to allocate ... bytes"),
  # before any test runs; a suite that fails is run once more.
  cmake -S "$root" -B build/tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZPH_SANITIZE=thread \
    -DZPH_BUILD_BENCHMARKS=OFF > build/tsan.configure.log 2>&1 || { cat build/tsan.configure.log; exit 1; }
  # Only the threaded suites run here, so only they (and what they need) are built.
  mapfile -t tsan_targets < <(ctest --test-dir build/tsan -N -L thread | sed -n 's/^ *Test *#[0-9]*: *//p')
  cmake --build build/tsan -j "$jobs" --target "${tsan_targets[@]}"
  TSAN_OPTIONS="suppressions=$root/tests/sanitizers/tsan.supp:halt_on_error=1:second_deadlock_stack=1" \
    ctest --test-dir build/tsan --output-on-failure -j "$jobs" -L thread --repeat until-pass:2
  end_stage tsan
fi

if has_stage fuzz; then
  begin_stage "fuzz targets, bounded time each"
  "$root/scripts/fuzz.sh" --ci
  end_stage fuzz
fi

echo "== all stages passed: $stages"
for line in "${times[@]}"; do echo "   $line"; done
echo "   total    $((SECONDS / 60)) min $((SECONDS % 60)) s"
