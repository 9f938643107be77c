#!/usr/bin/env bash
# The scale run: shoots of real size, generated on demand outside the
# repository, imported and stitched by panohead with the head's record, and
# stitched again by Hugin's stock pipeline without head data (pto_gen,
# cpfind --multirow, cpclean, autooptimiser -a -m -l -s, pano_modify, nona,
# enblend) on the same photographs. For every step: wall and CPU time and peak
# memory (/usr/bin/time -v); for both stitches the largest angle error against
# the generator's ground truth (scripts/pto-angle-error.py).
#
#   scripts/scale-run.sh [--only small|large] [--stock-limit S] [work folder]
#
#   large: 360°, 3 rows × 16 positions × 3 exposures, 3000 × 2000, 24 mm
#   small: 360°, 3 rows × 12 positions, 1 exposure, 1500 × 1000, 35 mm
#
# --stock-limit S stops each step of the stock pipeline after S seconds of wall
# time (the report marks it "STOPPED"); on the large shoot its cpfind alone
# runs for hours on two cores.
#
# Work folder: default /tmp/zph-scale-run (needs a few GB for the large shoot).
# ZPH_SCALE_BUILD names the build folder holding app/panohead (default
# build/release, built here if missing). The figures go to <work>/report.txt.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
only=""
stock_limit=""
while [[ ${1:-} == --* ]]; do
  case $1 in
    --only) only=$2 ;;
    --stock-limit) stock_limit=$2 ;;
    *) echo "unknown option $1" >&2; exit 2 ;;
  esac
  shift 2
done
work=${1:-/tmp/zph-scale-run}
build=${ZPH_SCALE_BUILD:-"$root/build/release"}
tool_build="$root/build/sample-tool"
mkdir -p "$work"
report="$work/report.txt"

echo "== building panohead and the shoot generator"
if [[ ! -f "$build/build.ninja" ]]; then
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
fi
cmake --build "$build" -j2 --target panohead > /dev/null
cmake -S "$root/samples/tool" -B "$tool_build" -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build "$tool_build" > /dev/null
panohead="$build/app/panohead"
generator="$tool_build/zph_make_sample"
export QT_QPA_PLATFORM=offscreen

{
  echo "Scale run $(date -u '+%Y-%m-%d %H:%M UTC') on $(nproc) cores, $(awk '/MemTotal/ {printf "%.1f GB", $2 / 1048576}' /proc/meminfo)"
  echo "load average at the start: $(cut -d' ' -f1-3 /proc/loadavg)"
  printf '%-34s %9s %9s %10s\n' step "wall s" "CPU s" "peak MB"
} > "$report"

# Runs a command under /usr/bin/time -v, its output in <work>/<label>.log, and
# adds a line to the report (marked FAILED when the command fails, STOPPED when
# it ran past $limit seconds; its status is returned).
limit=""
step() {
  local label=$1
  shift
  local log="$work/$label.log"
  local times="$work/$label.time"
  local status=0
  if [[ -n $limit ]]; then
    /usr/bin/time -v -o "$times" timeout --kill-after=10 "$limit" "$@" > "$log" 2>&1 || status=$?
  else
    /usr/bin/time -v -o "$times" "$@" > "$log" 2>&1 || status=$?
  fi
  if ((status == 124 || status == 137)) && [[ -n $limit ]]; then
    echo "step $label stopped after $limit s" >&2
    status=stopped
  elif ((status != 0)); then
    echo "step $label failed; see $log" >&2
    tail -5 "$log" >&2
  fi
  awk -v label="$label" -v failed="$status" '
    /Elapsed \(wall clock\)/ { n = split($NF, t, ":"); wall = (n == 3) ? t[1] * 3600 + t[2] * 60 + t[3] : t[1] * 60 + t[2] }
    /User time/ { user = $NF }
    /System time/ { sys = $NF }
    /Maximum resident/ { mem = $NF / 1024 }
    END { printf "%-34s %9.1f %9.1f %10.0f%s\n", label, wall, user + sys, mem,
          failed == "stopped" ? "  STOPPED at the limit" : failed != 0 ? "  FAILED" : "" }' \
    "$times" >> "$report"
  [[ $status == stopped ]] && return 124
  return "$status"
}

# One shoot: generate, ours (import + stitch), the stock pipeline.
run() {
  local name=$1
  shift
  local shoot="$work/$name/photos"
  local ours="$work/$name/ours"
  local stock="$work/$name/stock"
  rm -rf "${work:?}/$name"
  mkdir -p "$ours" "$stock"
  echo "== $name: generating"
  echo "-- $name: $*" >> "$report"
  step "$name generate" "$generator" --generate "$shoot" "$@" || exit 1

  echo "== $name: panohead import + stitch"
  step "$name ours: import" "$panohead" import papywizard "$shoot/papywizard.xml" "$shoot" \
    -o "$ours" --name shoot || exit 1
  step "$name ours: stitch" "$panohead" stitch "$ours/shoot.pto" || exit 1
  # The stitch's own wall time per step, from its progress lines.
  tr '\r' '\n' < "$work/$name ours: stitch.log" | grep -E '^\[[0-9]+/[0-9]+\].* done' \
    | sed -E 's/^/    /; s/ \(stacks [^)]*\)//' >> "$report" || true
  echo "    $name ours: $(python3 "$root/scripts/pto-angle-error.py" \
    "$ours/shoot.stitch/05-final.pto" "$shoot/ground-truth.csv")" >> "$report"

  echo "== $name: Hugin's stock pipeline"
  # The stock pipeline goes on to its end when a step fails, as far as its
  # files allow: a failed blend still leaves the placed project to measure.
  (
    cd "$stock"
    limit=$stock_limit
    step "$name stock: pto_gen" pto_gen -o 0-gen.pto "$shoot"/IMG_*.jpg &&
      step "$name stock: cpfind" cpfind --multirow -o 1-cpfind.pto 0-gen.pto &&
      step "$name stock: cpclean" cpclean -o 2-cpclean.pto 1-cpfind.pto &&
      step "$name stock: autooptimiser" autooptimiser -a -m -l -s -o 3-opt.pto 2-cpclean.pto &&
      step "$name stock: pano_modify" pano_modify --canvas=AUTO --crop=AUTO -o 4-final.pto \
        3-opt.pto &&
      step "$name stock: nona" nona -m TIFF_m -o remapped 4-final.pto &&
      step "$name stock: enblend" enblend -o panorama.tif remapped*.tif
  ) || true
  if [[ -f $stock/4-final.pto ]]; then
    echo "    $name stock: $(python3 "$root/scripts/pto-angle-error.py" \
      "$stock/4-final.pto" "$shoot/ground-truth.csv")" >> "$report"
  fi
  echo "load average at the end of $name: $(cut -d' ' -f1-3 /proc/loadavg)" >> "$report"
}

if [[ -z $only || $only == small ]]; then
  run small --rows 3 --columns 12 --full-circle --size 1500x1000 --focal 35 --seed 36
fi
if [[ -z $only || $only == large ]]; then
  run large --rows 3 --columns 16 --full-circle --bracket 3 --size 3000x2000 --focal 24 \
    --samples 2 --seed 48
fi
cat "$report"
