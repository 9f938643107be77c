#!/usr/bin/env bash
# A fuzzing campaign that can be stopped and resumed across days: the libFuzzer
# targets run in parallel, one process per job, in slices; every slice adds its
# executions to the running total of its target. The corpus, the totals, the
# logs and the findings live in a folder outside the build, so a new build or
# a new checkout goes on where the last run stopped.
#
#   scripts/fuzz-campaign.sh [options] [target...]   run (all targets by default)
#   scripts/fuzz-campaign.sh --status [target...]    the totals so far, nothing run
#   scripts/fuzz-campaign.sh --coverage [target...]  line coverage of each reader by
#                                                    the campaign's corpus (llvm-cov)
# Options:
#   --dir <folder>    the campaign's folder (default ZPH_FUZZ_CAMPAIGN, else
#                     ~/.cache/zpanohead-fuzz)
#   --jobs <n>        processes at once (default: the number of cores)
#   --time <seconds>  length of this run (default 3600); the run ends after the
#                     slices under way when the time is up, or at once on Ctrl-C
#   --slice <seconds> length of one process's run (default 600)
#   --until-goals     stop early once every chosen target has reached its goal
#   --asan            run the slices under AddressSanitizer too (slower; see below)
#
# Goals: 10 million executions for every record, script and project reader,
# 2 million for the image definition. Each slice goes to the running target
# furthest from its goal. A finding stops its target for this run (the others
# go on); its input is in <folder>/findings/ and belongs, once fixed, in
# fuzz/regressions/<target>/. The exit code is 1 when there was a finding.
#
# Builds: the slices run a build with UndefinedBehaviorSanitizer only
# (ZPH_FUZZ_FAST_BUILD, default build/fuzz-fast): AddressSanitizer's allocator
# maps, faults in and unmaps every large block afresh, which costs the image
# definition two thirds of its time and the record readers half of theirs.
# Every input a slice adds to the corpus is then run once under
# AddressSanitizer and UndefinedBehaviorSanitizer (ZPH_FUZZ_BUILD, default
# build/fuzz, made by scripts/fuzz.sh), and so is every input a corpus
# reduction keeps; a memory error there is a finding of the slice. With --asan
# the slices run the AddressSanitizer build itself. The totals count the
# executions of both kinds, and those under AddressSanitizer apart.
# Environment: ZPH_FUZZ_COVERAGE_BUILD (default build/fuzz-coverage),
# ZPH_FUZZ_RSS_MB (memory limit per process, 2560).
set -euo pipefail
# Bash reads a script as it runs it: the braces make it read the whole of it
# first, so a campaign that runs for days is not broken by an edit of this file.
{
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

source "$root/scripts/fuzz-targets.sh"

mode=run
dir=${ZPH_FUZZ_CAMPAIGN:-${XDG_CACHE_HOME:-$HOME/.cache}/zpanohead-fuzz}
jobs=$(nproc)
total_time=3600
slice=600
until_goals=0
asan_slices=0
targets=()
while [ $# -gt 0 ]; do
  case $1 in
    --status) mode=status ;;
    --coverage) mode=coverage ;;
    --dir) dir=$2; shift ;;
    --jobs) jobs=$2; shift ;;
    --time) total_time=$2; shift ;;
    --slice) slice=$2; shift ;;
    --until-goals) until_goals=1 ;;
    --asan) asan_slices=1 ;;
    -h|--help) sed -n '2,40p' "$0"; exit 0 ;;
    fuzz_*) targets+=("$1") ;;
    *) echo "fuzz-campaign.sh: unknown argument $1" >&2; exit 2 ;;
  esac
  shift
done
[ ${#targets[@]} -gt 0 ] || targets=("${targets_all[@]}")
for n in "$jobs" "$total_time" "$slice"; do
  [[ $n =~ ^[1-9][0-9]*$ ]] || { echo "fuzz-campaign.sh: $n is not a positive whole number" >&2; exit 2; }
done
build=${ZPH_FUZZ_BUILD:-$root/build/fuzz}
fast_build=${ZPH_FUZZ_FAST_BUILD:-$root/build/fuzz-fast}
coverage_build=${ZPH_FUZZ_COVERAGE_BUILD:-$root/build/fuzz-coverage}
rss_mb=${ZPH_FUZZ_RSS_MB:-2560}
mkdir -p "$dir/corpus" "$dir/totals" "$dir/logs" "$dir/findings"

# The running totals: "<executions> <seconds>" in totals/<target>, and of the
# slices run under AddressSanitizer in totals/<target>.asan.
total_of() { cat "$dir/totals/$1" 2>/dev/null || echo "0 0"; }
add_to() {
  local file=$1 execs=$2 seconds=$3 old_execs old_seconds
  read -r old_execs old_seconds < <(cat "$file" 2>/dev/null || echo "0 0")
  echo "$((old_execs + execs)) $((old_seconds + seconds))" > "$file.new"
  mv "$file.new" "$file"
}
add_total() {
  add_to "$dir/totals/$1" "$2" "$3"
  [ "$4" = asan ] && add_to "$dir/totals/$1.asan" "$2" "$3"
  return 0
}

status() {
  printf '%-24s %14s %12s %9s %8s %12s %8s  %s\n' target executions goal reached exec/s \
    'under ASan' corpus findings
  local t execs seconds rate reached corpus findings asan_execs
  for t in "${targets[@]}"; do
    read -r execs seconds < <(total_of "$t")
    read -r asan_execs _ < <(cat "$dir/totals/$t.asan" 2>/dev/null || echo "0 0")
    rate=$([ "$seconds" -gt 0 ] && echo $((execs / seconds)) || echo -)
    reached=$([ "$execs" -ge "$(goal_of "$t")" ] && echo yes || echo no)
    corpus=$(find "$dir/corpus/$t" -type f 2>/dev/null | wc -l)
    findings=$(find "$dir/findings" -name "$t-*" -type f 2>/dev/null | wc -l)
    printf '%-24s %14s %12s %9s %8s %12s %8s  %s\n' "$t" "$execs" "$(goal_of "$t")" "$reached" \
      "$rate" "$asan_execs" "$corpus" "$findings"
  done
  echo "campaign folder: $dir"
}

sanitizer_environment() {
  export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:allocator_may_return_null=1:${ASAN_OPTIONS:-}"
  export LSAN_OPTIONS="suppressions=$root/tests/sanitizers/lsan.supp:print_suppressions=0"
  export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
  export QT_QPA_PLATFORM=offscreen
  export QT_LOGGING_RULES="*.debug=false;*.warning=false;qt.*=false"
}

# The seeds a slice reads besides the campaign's corpus: the committed corpus
# and the regression inputs (read only; new inputs go to the campaign's corpus).
seed_dirs() {
  local t=$1 d
  for d in "$root/fuzz/corpus/$t" "$root/fuzz/regressions/$t"; do
    [ -d "$d" ] && [ -n "$(ls -A "$d")" ] && echo "$d"
  done
  return 0
}

coverage() {
  echo "== coverage: building the targets with coverage mapping in $coverage_build"
  mkdir -p "$coverage_build"
  CC=clang CXX=clang++ cmake -S "$root" -B "$coverage_build" -G Ninja \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZPH_BUILD_FUZZERS=ON -DZPH_BUILD_TESTS=OFF -DZPH_BUILD_BENCHMARKS=OFF -DZPH_SANITIZE= \
    -DCMAKE_CXX_FLAGS="-fprofile-instr-generate -fcoverage-mapping" \
    -DCMAKE_EXE_LINKER_FLAGS="-fprofile-instr-generate" \
    > "$coverage_build.configure.log" 2>&1 || { cat "$coverage_build.configure.log"; exit 1; }
  cmake --build "$coverage_build" --target "${targets[@]}" -j "$(nproc)"
  export QT_QPA_PLATFORM=offscreen
  export QT_LOGGING_RULES="*.debug=false;*.warning=false;qt.*=false"
  local t bin profiles inputs
  for t in "${targets[@]}"; do
    bin=$coverage_build/fuzz/$t
    profiles=$dir/coverage/$t
    rm -rf "$profiles"
    mkdir -p "$profiles"
    mapfile -t inputs < <(seed_dirs "$t")
    [ -d "$dir/corpus/$t" ] && inputs+=("$dir/corpus/$t")
    # -runs=0: every input of the folders once, nothing new.
    LLVM_PROFILE_FILE="$profiles/%p.profraw" "$bin" -runs=0 -rss_limit_mb="$rss_mb" \
      -max_len="$(max_len_of "$t")" "${inputs[@]}" > "$profiles/run.log" 2>&1 || true
    llvm-profdata merge -sparse "$profiles"/*.profraw -o "$profiles/merged.profdata"
    echo "== $t ($(find "${inputs[@]}" -type f | wc -l) inputs)"
    # shellcheck disable=SC2046
    llvm-cov report "$bin" -instr-profile="$profiles/merged.profdata" \
      $(for f in $(sources_of "$t"); do echo "$root/$f"; done) \
      | sed "s|$root/||"
  done
}

if [ $mode = status ]; then
  status
  exit 0
fi
if [ $mode = coverage ]; then
  coverage
  exit 0
fi

ZPH_FUZZ_BUILD=$build "$root/scripts/fuzz.sh" --build-only
if [ $asan_slices = 1 ]; then
  slice_build=$build
  kind=asan
else
  ZPH_FUZZ_BUILD=$fast_build ZPH_FUZZ_SANITIZE=undefined "$root/scripts/fuzz.sh" --build-only
  slice_build=$fast_build
  kind=fast
fi
sanitizer_environment

# The slices under way: pid -> target, pid -> start time.
declare -A running=() started=() markers=()
stopping=0
found=0
stop() {
  stopping=1
  local pid
  for pid in "${!running[@]}"; do kill -INT "$pid" 2>/dev/null || true; done
}
trap stop INT TERM

is_running() {
  local pid
  for pid in "${!running[@]}"; do [ "${running[$pid]}" = "$1" ] && return 0; done
  return 1
}
declare -A stopped=()
# The target furthest from its goal (smallest share reached) that runs no
# slice and had no finding; empty when there is none.
next_target() {
  local t execs seconds best="" best_share=""
  for t in "${targets[@]}"; do
    [ -n "${stopped[$t]:-}" ] && continue
    is_running "$t" && continue
    read -r execs seconds < <(total_of "$t")
    [ $until_goals = 1 ] && [ "$execs" -ge "$(goal_of "$t")" ] && continue
    share=$((execs * 1000000 / $(goal_of "$t")))
    if [ -z "$best" ] || [ "$share" -lt "$best_share" ]; then
      best=$t
      best_share=$share
    fi
  done
  echo "$best"
}

# The campaign's corpus of a target, reduced to the inputs that each add a
# feature (libFuzzer's merge) once it has grown to half as much again as after
# the last reduction. Every slice starts by running every input of the corpus
# and rereads it while it runs: unreduced, a corpus of thousands of inputs cost
# the Hugin project reader a third of its executions. The reduced corpus
# replaces the old one only when the merge has finished.
compact_corpus() {
  local t=$1 corpus=$dir/corpus/$1 count last
  mkdir -p "$corpus"
  count=$(find "$corpus" -maxdepth 1 -type f 2>/dev/null | wc -l)
  last=$(cat "$dir/corpus/.$t.compacted" 2>/dev/null || echo 0)
  [ "$count" -ge 200 ] && [ $((count * 2)) -gt $((last * 3)) ] || return 0
  rm -rf "$corpus.merging" "$corpus.old"
  mkdir -p "$corpus.merging"
  if ASAN_OPTIONS="$ASAN_OPTIONS:$(asan_of "$t")" "$build/fuzz/$t" -merge=1 \
      -use_value_profile=1 -timeout=20 -rss_limit_mb="$rss_mb" -max_len="$(max_len_of "$t")" \
      "$corpus.merging" "$corpus" > "$dir/logs/$t-merge.log" 2>&1 \
    && [ -n "$(ls -A "$corpus.merging")" ]; then
    mv "$corpus" "$corpus.old" && mv "$corpus.merging" "$corpus" && rm -rf "$corpus.old"
    find "$corpus" -maxdepth 1 -type f | wc -l > "$dir/corpus/.$t.compacted"
    echo "$(date +%H:%M:%S) $t: corpus reduced from $count to $(cat "$dir/corpus/.$t.compacted") inputs"
  else
    rm -rf "$corpus.merging"
    echo "$(date +%H:%M:%S) $t: corpus not reduced (merge failed, log $dir/logs/$t-merge.log)"
    echo "$count" > "$dir/corpus/.$t.compacted"
  fi
}

start_slice() {
  local t=$1 seconds=$2 log
  compact_corpus "$t"
  log=$dir/logs/$t-$(date +%Y%m%d-%H%M%S).log
  mkdir -p "$dir/corpus/$t"
  local args=(-timeout=20 -rss_limit_mb="$rss_mb" -max_len="$(max_len_of "$t")"
    -artifact_prefix="$dir/findings/$t-" -print_final_stats=1 -use_value_profile=1
    -max_total_time="$seconds")
  local dict
  dict=$(dict_of "$t")
  [ -n "$dict" ] && args+=(-dict="$dict")
  # shellcheck disable=SC2207
  args+=($(options_of "$t"))
  local seeds
  mapfile -t seeds < <(seed_dirs "$t")
  # What the slice adds to the corpus is newer than this mark.
  local marker=$dir/logs/.$t.slice-start
  touch "$marker"
  ASAN_OPTIONS="$ASAN_OPTIONS:$(asan_of "$t")" \
    "$slice_build/fuzz/$t" "${args[@]}" "$dir/corpus/$t" "${seeds[@]}" > "$log" 2>&1 &
  running[$!]=$t
  started[$!]=$(date +%s)
  markers[$!]=$marker
  echo "$log" > "$dir/logs/$t.current"
  echo "$(date +%H:%M:%S) $t: slice of ${seconds}s started"
}

# The executions of a finished slice: the final figure, or after an
# interruption the last progress line.
slice_executions() {
  local log=$1 n
  n=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
  [ -z "$n" ] && n=$(sed -n 's/^#\([0-9][0-9]*\)\t.*/\1/p' "$log" | tail -n 1)
  echo "${n:-0}"
}

# Runs the inputs a fast slice added to the corpus once each under
# AddressSanitizer; the exit code is the check's (0: nothing found).
check_new_inputs() {
  local t=$1 marker=$2 check=$dir/check/$1 log=$dir/logs/$1-check.log n
  rm -rf "$check"
  mkdir -p "$check"
  find "$dir/corpus/$t" -maxdepth 1 -type f -newer "$marker" -exec cp -p {} "$check"/ \;
  n=$(find "$check" -type f | wc -l)
  [ "$n" -gt 0 ] || return 0
  local rc=0
  ASAN_OPTIONS="$ASAN_OPTIONS:$(asan_of "$t")" "$build/fuzz/$t" -runs=0 -timeout=20 \
    -rss_limit_mb="$rss_mb" -max_len="$(max_len_of "$t")" -artifact_prefix="$dir/findings/$t-" \
    "$check" > "$log" 2>&1 || rc=$?
  echo "$(date +%H:%M:%S) $t: $n new input(s) run under AddressSanitizer: $([ $rc = 0 ] && echo clean || echo "exit $rc")"
  [ $rc = 0 ] || cat "$log" >> "$(cat "$dir/logs/$t.current")"
  return $rc
}

finish_slice() {
  local pid=$1 rc=$2 t=${running[$1]} marker=${markers[$1]} log execs seconds
  log=$(cat "$dir/logs/$t.current")
  execs=$(slice_executions "$log")
  seconds=$(($(date +%s) - ${started[$pid]}))
  add_total "$t" "$execs" "$seconds" "$kind"
  unset "running[$pid]" "started[$pid]" "markers[$pid]"
  echo "$(date +%H:%M:%S) $t: $execs executions in ${seconds}s ($kind); total $(total_of "$t" | cut -d' ' -f1)"
  local interrupted=0 suspect=0
  [ $stopping = 1 ] && grep -q 'run interrupted' "$log" && interrupted=1
  # A finding: any exit but the normal one and the one after an interruption,
  # or a new input that fails under AddressSanitizer.
  [ "$rc" -ne 0 ] && [ $interrupted = 0 ] && suspect=1
  if [ "$kind" = fast ] && [ $suspect = 0 ]; then
    check_new_inputs "$t" "$marker" || { rc=$?; suspect=1; }
  fi
  if [ $suspect = 1 ]; then
    if ls "$dir/findings/$t-"* > /dev/null 2>&1 || grep -qE 'ERROR|invariant broken' "$log"; then
      found=1
      stopped[$t]=1
      echo "$t: FINDING (exit $rc), log $log, input in $dir/findings/" >&2
      grep -E 'ERROR|SUMMARY|invariant broken|runtime error' "$log" | head -n 10 >&2 || true
    fi
  fi
}

end=$(($(date +%s) + total_time))
echo "== campaign in $dir: ${jobs} job(s), ${total_time}s, slices of ${slice}s"
while :; do
  while [ $stopping = 0 ] && [ ${#running[@]} -lt "$jobs" ]; do
    left=$((end - $(date +%s)))
    [ $left -ge 10 ] || break
    t=$(next_target)
    [ -n "$t" ] || break
    start_slice "$t" $((left < slice ? left : slice))
  done
  [ ${#running[@]} -gt 0 ] || break
  # Wait for a slice to end (or for a signal, which names no process).
  rc=0
  done_pid=""
  wait -n -p done_pid || rc=$?
  if [ -n "${done_pid:-}" ] && [ -n "${running[$done_pid]:-}" ]; then
    finish_slice "$done_pid" "$rc"
  fi
  # A slice that ended while a signal was being handled is not reported by
  # "wait -n" (which then returns 127 at once, for ever): its status is
  # asked for by its number.
  waited=$rc
  for pid in "${!running[@]}"; do
    if [ "$waited" = 127 ] || ! kill -0 "$pid" 2> /dev/null; then
      rc=0
      wait "$pid" || rc=$?
      finish_slice "$pid" "$rc"
    fi
  done
done

echo "== campaign totals"
status
[ $stopping = 1 ] && echo "stopped; run the same command again to go on"
exit $found
}
