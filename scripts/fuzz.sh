#!/usr/bin/env bash
# Builds the libFuzzer targets with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer and runs them.
#
#   scripts/fuzz.sh --ci                 every target for ZPH_FUZZ_SECONDS (40) seconds,
#                                        after replaying its regression inputs; any
#                                        finding fails the run
#   scripts/fuzz.sh [--time S] [--runs N] [target...]
#                                        a campaign on demand: each named target (all by
#                                        default) in turn, for S seconds (default 3600) or
#                                        N executions; prints the executions of each
#   scripts/fuzz.sh --build-only         builds the targets and exits
#
# A long campaign on every core, resumable across days: scripts/fuzz-campaign.sh.
# One process per target, one target at a time: a campaign uses one core.
# Environment: ZPH_FUZZ_SECONDS (seconds per target), ZPH_FUZZ_BUILD (build
# folder, default build/fuzz), ZPH_FUZZ_SANITIZE (the sanitizers of that build,
# default "address;undefined"), ZPH_FUZZ_RSS_MB (memory limit per process, 2560).
# New inputs go to <build>/corpus/<target>, findings to <build>/findings/;
# a finding that is kept belongs in fuzz/regressions/<target>/.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

source "$root/scripts/fuzz-targets.sh"

ci=0
build_only=0
seconds=""
runs=""
targets=()
while [ $# -gt 0 ]; do
  case $1 in
    --ci) ci=1 ;;
    --build-only) build_only=1 ;;
    --time) seconds=$2; shift ;;
    --runs) runs=$2; shift ;;
    -h|--help) sed -n '2,21p' "$0"; exit 0 ;;
    fuzz_*) targets+=("$1") ;;
    *) echo "fuzz.sh: unknown argument $1" >&2; exit 2 ;;
  esac
  shift
done
[ ${#targets[@]} -gt 0 ] || targets=("${targets_all[@]}")
if [ -z "$seconds" ]; then
  if [ $ci = 1 ]; then seconds=${ZPH_FUZZ_SECONDS:-40}; else seconds=${ZPH_FUZZ_SECONDS:-3600}; fi
fi
build=${ZPH_FUZZ_BUILD:-$root/build/fuzz}
sanitize=${ZPH_FUZZ_SANITIZE:-address;undefined}
rss_mb=${ZPH_FUZZ_RSS_MB:-2560}


echo "== fuzz: configuring and building in $build"
mkdir -p "$build"
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja \
  -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DZPH_BUILD_FUZZERS=ON -DZPH_BUILD_TESTS=OFF -DZPH_BUILD_BENCHMARKS=OFF \
  -DZPH_SANITIZE="$sanitize" > "$build.configure.log" 2>&1 \
  || { cat "$build.configure.log"; exit 1; }
cmake --build "$build" --target zph_fuzzers -j "$(nproc)"
[ $build_only = 1 ] && exit 0

# Seeds: the committed ones, the test fixtures of the right kind (copied
# afresh on every run, so new fixtures are picked up) and the regression inputs.
make_seeds() {
  local t=$1 dir=$build/seeds/$1 pattern
  rm -rf "$dir"
  mkdir -p "$dir"
  if [ -d "$root/fuzz/corpus/$t" ]; then cp -p "$root/fuzz/corpus/$t"/* "$dir"/ 2>/dev/null || true; fi
  if [ -d "$root/fuzz/regressions/$t" ]; then cp -p "$root/fuzz/regressions/$t"/* "$dir"/ 2>/dev/null || true; fi
  for pattern in $(fixtures_of "$t"); do
    find "$root/tests" -path '*/data/*' -type f -name "$pattern" -size -256k -print0 \
      | while IFS= read -r -d '' f; do
          cp -p "$f" "$dir/fixture-$(echo "$f" | md5sum | cut -c1-12)-$(basename "$f")"
        done
  done
}

export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:allocator_may_return_null=1:${ASAN_OPTIONS:-}"
export LSAN_OPTIONS="suppressions=$root/tests/sanitizers/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export QT_QPA_PLATFORM=offscreen
export QT_LOGGING_RULES="*.debug=false;*.warning=false;qt.*=false"

failed=()
summary=()
for t in "${targets[@]}"; do
  bin=$build/fuzz/$t
  if [ ! -x "$bin" ]; then
    echo "fuzz: target $t was not built (its library is missing?)" >&2
    failed+=("$t (not built)")
    continue
  fi
  make_seeds "$t"
  mkdir -p "$build/corpus/$t" "$build/findings"
  log=$build/$t.log
  args=(-timeout=20 -rss_limit_mb="$rss_mb" -max_len="$(max_len_of "$t")"
        -artifact_prefix="$build/findings/$t-" -print_final_stats=1 -use_value_profile=1)
  dict=$(dict_of "$t")
  [ -n "$dict" ] && args+=(-dict="$dict")
  # shellcheck disable=SC2207
  args+=($(options_of "$t"))

  # Replay the kept findings first: each must pass.
  if [ -d "$root/fuzz/regressions/$t" ] && [ -n "$(ls -A "$root/fuzz/regressions/$t")" ]; then
    echo "== $t: replaying $(ls "$root/fuzz/regressions/$t" | wc -l) regression inputs"
    if ! ASAN_OPTIONS="$ASAN_OPTIONS:$(asan_of "$t")" \
      "$bin" "${args[@]}" "$root/fuzz/regressions/$t"/* > "$log.replay" 2>&1; then
      tail -n 60 "$log.replay"
      failed+=("$t (regression)")
      continue
    fi
  fi

  if [ -n "$runs" ]; then limit=(-runs="$runs"); what="$runs runs"; else limit=(-max_total_time="$seconds"); what="${seconds}s"; fi
  echo "== $t: fuzzing for $what"
  start=$(date +%s)
  ASAN_OPTIONS="$ASAN_OPTIONS:$(asan_of "$t")" \
    "$bin" "${args[@]}" "${limit[@]}" "$build/corpus/$t" "$build/seeds/$t" > "$log" 2>&1 &
  pid=$!
  rc=0
  wait $pid || rc=$?
  # The input file of a process that did not end normally stays behind.
  rm -f /dev/shm/zph-fuzz-*-"$pid" /dev/shm/zph-fuzz-*-"$pid".*
  execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
  peak=$(sed -n 's/^stat::peak_rss_mb: *//p' "$log" | tail -n 1)
  corpus=$(ls "$build/corpus/$t" | wc -l)
  elapsed=$(( $(date +%s) - start ))
  line=$(printf '%-24s %12s executions in %5ss, corpus %5s, peak RSS %5s MB' "$t" "${execs:-?}" "$elapsed" "$corpus" "${peak:-?}")
  summary+=("$line")
  echo "$line"
  if [ $rc -ne 0 ]; then
    echo "fuzz: $t found a problem (exit $rc); log $log, input in $build/findings/" >&2
    grep -E 'ERROR|SUMMARY|invariant broken|runtime error|==[0-9]+==' "$log" | head -n 20 >&2 || true
    tail -n 40 "$log" >&2
    failed+=("$t")
  fi
done

echo "== fuzz summary"
printf '%s\n' "${summary[@]}"
if [ ${#failed[@]} -gt 0 ]; then
  echo "fuzz: FAILED: ${failed[*]}" >&2
  exit 1
fi
echo "fuzz: ${#targets[@]} targets, no finding"
