#!/usr/bin/env bash
# The stitching benchmark, run on demand (it is no test). In one run on the
# same shoot it measures:
#   ours   panohead import + panohead stitch, with the head's record;
#   stock  Hugin's pipeline without head data on the same photographs
#          (pto_gen, cpfind --multirow, cpclean, autooptimiser -a -m -l -s,
#          pano_modify, nona, enblend);
#   floor  the render alone: nona, then enblend or verdandi, of our stitched
#          project's canvas with every picture at its true angle (the
#          faster blender is the floor);
# and prints one table: wall and CPU time (user + sys of every process the
# run started), peak memory (the largest resident set among them), the
# panorama's size in pixels and bytes, the largest angle error against the
# ground truth once the panorama's one rotation is removed
# (scripts/pto-angle-error.py), and ours / stock and ours / floor in CPU and
# wall time. Times are the median of the runs, peak memory and angle error
# the largest.
#
#   benchmarks/stitch/run.sh [--shoot sample|sample-references|generated36]
#                            [--repeat N] [--size WxH] [work folder]
#
# sample       the bundled shoot (samples/sample-shoot, 10 positions × 3
#              exposures, 400 × 300): ours on its 10 reference images imported
#              as a Clauss script, ours on all 30 photographs (Papywizard
#              record, exposures fused); stock and floor on the 10 references.
# sample-references  the same without the 30 photographs' stitch.
# generated36  a 360° shoot generated in the work folder: 3 rows × 12
#              positions, one exposure, 1500 × 1000 (--size changes it), 35 mm;
#              ours from its Papywizard record, stock and floor on the same 36
#              photographs. Slow: several minutes per run on 2 cores.
#
# Work folder: default /tmp/zph-stitch-bench; every run of every variant
# leaves its log, its per-step times (steps.tsv) and its panorama in
# <work>/runs/<variant> (the last run only), the table in <work>/report.md.
# ZPH_BENCH_BUILD names the build folder holding app/panohead (default
# build/release, configured and built here when needed).
# ZPH_BENCH_STITCH_ARGS: more options for our "panohead stitch" (e.g.
# --cpfind, to measure cpfind where correlation would find the points).
# ZPH_BENCH_VARIANTS: the variants to run, of ours-clauss, ours-papywizard,
# stock, floor-enblend and floor-verdandi (default: every one the shoot has),
# e.g. "ours-papywizard floor-verdandi" to measure a change of ours on
# generated36 without the stock pipeline's half hour.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)

# One step of a variant under /usr/bin/time, its output in the variant's
# log, its wall, user, sys time and peak memory appended to steps.tsv.
tool() {
  local label=$1
  shift
  /usr/bin/time -a -o "$dir/steps.tsv" -f "$label\t%e\t%U\t%S\t%M\t%x" "$@" >> "$dir/log.txt" 2>&1
}

# The variant named $1, run in the empty folder $2 (called by this script
# under /usr/bin/time; the shoot comes from the ZPH_BENCH_* variables).
variant() {
  local name=$1
  dir=$2
  cd "$dir"
  case $name in
    ours-clauss)
      tool import "$ZPH_BENCH_PANOHEAD" import clauss "$ZPH_BENCH_REFERENCES/clauss.txt" \
        "$ZPH_BENCH_REFERENCES" -o "$dir" --name shoot
      # shellcheck disable=SC2086 # the options are words
      tool stitch "$ZPH_BENCH_PANOHEAD" stitch ${ZPH_BENCH_STITCH_ARGS:-} "$dir/shoot.pto"
      ;;
    ours-papywizard)
      tool import "$ZPH_BENCH_PANOHEAD" import papywizard "$ZPH_BENCH_RECORD" \
        "$ZPH_BENCH_PHOTOS" -o "$dir" --name shoot
      # shellcheck disable=SC2086 # the options are words
      tool stitch "$ZPH_BENCH_PANOHEAD" stitch ${ZPH_BENCH_STITCH_ARGS:-} "$dir/shoot.pto"
      ;;
    stock)
      local photographs=()
      mapfile -t photographs < <(find "$ZPH_BENCH_REFERENCES" -maxdepth 1 -name '*.jpg' | sort)
      tool pto_gen pto_gen -o 0-gen.pto "${photographs[@]}"
      tool cpfind cpfind --multirow -o 1-cpfind.pto 0-gen.pto
      tool cpclean cpclean -o 2-cpclean.pto 1-cpfind.pto
      tool autooptimiser autooptimiser -a -m -l -s -o 3-opt.pto 2-cpclean.pto
      tool pano_modify pano_modify --canvas=AUTO --crop=AUTO -o 4-final.pto 3-opt.pto
      tool nona nona -m TIFF_m -o remapped 4-final.pto
      tool enblend enblend -o panorama.tif remapped*.tif
      ;;
    floor-enblend | floor-verdandi)
      # Uncompressed intermediate pictures, as the cheapest render writes them.
      tool nona nona -z NONE -m TIFF_m -o remapped "$ZPH_BENCH_CANVAS"
      tool "${name#floor-}" "${name#floor-}" -o panorama.tif remapped*.tif
      ;;
    *)
      echo "unknown variant $name" >&2
      exit 2
      ;;
  esac
}

if [[ ${1:-} == --variant ]]; then
  variant "$2" "$3"
  exit 0
fi

usage() {
  sed -n '/^#   benchmarks/,/^#  *\[--repeat/p' "$0" | sed 's/^# \{0,1\}//'
  exit "$1"
}

shoot=sample
repeat=1
size=1500x1000
while [[ $# -gt 0 ]]; do
  case $1 in
    --shoot) shoot=$2; shift 2 ;;
    --repeat) repeat=$2; shift 2 ;;
    --size) size=$2; shift 2 ;;
    -h | --help) usage 0 ;;
    -*) echo "unknown option $1" >&2; usage 2 ;;
    *) break ;;
  esac
done
[[ $shoot == sample || $shoot == sample-references || $shoot == generated36 ]] || { echo "unknown shoot $shoot" >&2; usage 2; }
[[ $repeat =~ ^[1-9][0-9]*$ ]] || { echo "--repeat takes a whole number from 1" >&2; exit 2; }
[[ $size =~ ^[1-9][0-9]*x[1-9][0-9]*$ ]] || { echo "--size takes WxH" >&2; exit 2; }
work=${1:-/tmp/zph-stitch-bench}
build=${ZPH_BENCH_BUILD:-"$root/build/release"}
for program in pto_gen cpfind cpclean autooptimiser pano_modify nona enblend verdandi python3; do
  command -v "$program" > /dev/null || { echo "$program is missing (scripts/setup.sh installs it)" >&2; exit 1; }
done
[[ -x /usr/bin/time ]] || { echo "/usr/bin/time is missing (Debian package time)" >&2; exit 1; }

echo "== building panohead"
if [[ ! -f "$build/build.ninja" ]]; then
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
fi
cmake --build "$build" -j2 --target panohead > /dev/null
export ZPH_BENCH_PANOHEAD="$build/app/panohead"
export QT_QPA_PLATFORM=offscreen

rm -rf "$work"
mkdir -p "$work/runs"
work=$(cd "$work" && pwd)
truth="$work/shoot/ground-truth.csv"
mkdir -p "$work/shoot"

if [[ $shoot == sample* ]]; then
  photos="$root/samples/sample-shoot"
  cp "$photos/ground-truth.csv" "$truth"
  export ZPH_BENCH_PHOTOS="$photos"
  export ZPH_BENCH_RECORD="$photos/shoot.xml"
  # The first photograph of every stack, and a Clauss script shooting them:
  # the head's angles, one shot per position.
  export ZPH_BENCH_REFERENCES="$work/shoot/references"
  mkdir -p "$ZPH_BENCH_REFERENCES"
  {
    echo "; the bundled sample's reference images"
    awk -F, '!/^#/ && $1 != "image" && !seen[$2]++ {
      printf "op_h-angle=%s\nop_v-angle=%s\nop_shoot\n", $3, $4 }' "$truth"
  } > "$ZPH_BENCH_REFERENCES/clauss.txt"
  awk -F, '!/^#/ && $1 != "image" && !seen[$2]++ { print $1 }' "$truth" | while read -r picture; do
    cp "$photos/$picture" "$ZPH_BENCH_REFERENCES/"
  done
  variants=(ours-clauss ours-papywizard stock floor-enblend floor-verdandi)
  [[ $shoot == sample ]] || variants=(ours-clauss stock floor-enblend floor-verdandi)
  canvas_from=ours-clauss
else
  echo "== building the shoot generator"
  tool_build="$root/build/sample-tool"
  cmake -S "$root/samples/tool" -B "$tool_build" -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
  cmake --build "$tool_build" > /dev/null
  echo "== generating the shoot (3 rows × 12, 360°, $size, 35 mm)"
  "$tool_build/zph_make_sample" --generate "$work/shoot/photos" --rows 3 --columns 12 \
    --full-circle --size "$size" --focal 35 --seed 36 > "$work/shoot/generate.log" 2>&1 \
    || { cat "$work/shoot/generate.log"; exit 1; }
  cp "$work/shoot/photos/ground-truth.csv" "$truth"
  export ZPH_BENCH_PHOTOS="$work/shoot/photos"
  export ZPH_BENCH_RECORD="$work/shoot/photos/papywizard.xml"
  # One exposure: every photograph is a reference image.
  export ZPH_BENCH_REFERENCES="$work/shoot/photos"
  variants=(ours-papywizard stock floor-enblend floor-verdandi)
  canvas_from=ours-papywizard
fi
export ZPH_BENCH_CANVAS="$work/floor-canvas.pto"
if [[ -n ${ZPH_BENCH_VARIANTS:-} ]]; then
  read -r -a chosen <<< "$ZPH_BENCH_VARIANTS"
  for name in "${chosen[@]}"; do
    [[ " ${variants[*]} " == *" $name "* ]] \
      || { echo "no variant $name for the shoot $shoot (${variants[*]})" >&2; exit 2; }
  done
  variants=("${chosen[@]}")
fi

results="$work/results.tsv"
printf 'variant\trun\twall\tcpu\tpeak_kb\tstatus\tpictures\terror\toutput\tsteps\n' > "$results"
load_start=$(cut -d' ' -f1-3 /proc/loadavg)
started=$(date -u '+%Y-%m-%d %H:%M UTC')

for ((run = 1; run <= repeat; ++run)); do
  for name in "${variants[@]}"; do
    dir="$work/runs/$name"
    rm -rf "$dir"
    mkdir -p "$dir"
    echo "== run $run of $repeat: $name"
    status=0
    if [[ $name == floor-* && ! -f $ZPH_BENCH_CANVAS ]]; then
      echo "no stitched canvas from $canvas_from" > "$dir/log.txt"
      status=1
      : > "$dir/time.txt"
    else
      /usr/bin/time -v -o "$dir/time.txt" "$0" --variant "$name" "$dir" || status=$?
    fi
    if ((status != 0)); then
      echo "$name failed; see $dir/log.txt" >&2
      tail -3 "$dir/log.txt" >&2 || true
    fi
    case $name in
      ours-*)
        project=$(find "$dir/shoot.stitch" -maxdepth 1 -name '05-final.pto' 2> /dev/null || true)
        output="$dir/shoot.tif"
        ;;
      stock)
        project="$dir/4-final.pto"
        output="$dir/panorama.tif"
        ;;
      floor-*)
        project=$ZPH_BENCH_CANVAS
        output="$dir/panorama.tif"
        ;;
    esac
    measured="-"
    if [[ -n $project && -f $project ]]; then
      if [[ $name == "$canvas_from" && ! -f $ZPH_BENCH_CANVAS ]]; then
        measured=$(python3 "$root/scripts/pto-angle-error.py" "$project" "$truth" \
          --true-angles "$ZPH_BENCH_CANVAS" 2>&1) || measured="-"
      else
        measured=$(python3 "$root/scripts/pto-angle-error.py" "$project" "$truth" 2>&1) \
          || measured="-"
      fi
    fi
    pictures=$(awk '$1 == "pictures" { print $2 }' <<< "$measured")
    error=$(awk '$1 == "pictures" { print $4 }' <<< "$measured")
    awk -v name="$name" -v run="$run" -v status="$status" -v pictures="${pictures:--}" \
      -v error="${error:--}" -v output="$output" -v steps="$dir/steps.tsv" '
      /Elapsed \(wall clock\)/ { n = split($NF, t, ":"); wall = (n == 3) ? t[1] * 3600 + t[2] * 60 + t[3] : t[1] * 60 + t[2] }
      /User time/ { user = $NF }
      /System time/ { sys = $NF }
      /Maximum resident/ { peak = $NF }
      END { printf "%s\t%d\t%.2f\t%.2f\t%d\t%d\t%s\t%s\t%s\t%s\n", name, run, wall, user + sys, peak, status, pictures, error, output, steps }' \
      "$dir/time.txt" >> "$results"
  done
done

python3 "$here/table.py" "$results" --shoot "$shoot" --size "$size" --started "$started" \
  --load-start "$load_start" --load-end "$(cut -d' ' -f1-3 /proc/loadavg)" | tee "$work/report.md"
