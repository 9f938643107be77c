#!/usr/bin/env bash
# The sample job: installs what is missing, builds the release build (as the
# test command does, in build/release) and imports and stitches the bundled
# sample shoot (samples/sample-shoot: a Papywizard record, 10 positions × 3
# exposures) with the panohead command line, printing where each file is.
#
#   scripts/sample.sh [output folder]        (default: build/sample)
# ZPH_SAMPLE_BUILD names another build folder than build/release.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
out=${1:-"$root/build/sample"}
jobs=$(nproc)
build=${ZPH_SAMPLE_BUILD:-build/release}

"$root/scripts/setup.sh"

mkdir -p "$(dirname "$build")"
echo "== release build"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  > "$build.configure.log" 2>&1 || { cat "$build.configure.log"; exit 1; }
cmake --build "$build" -j "$jobs" --target panohead

panohead="$(cd "$build" && pwd)/app/panohead"
shoot="$root/samples/sample-shoot"
mkdir -p "$out"

echo "== import"
# --force: the sample's own outputs are made again on every run.
"$panohead" import papywizard "$shoot/shoot.xml" "$shoot" --output "$out" --force

echo "== stitch"
"$panohead" stitch "$out/shoot.pto" --output "$out/shoot.jpg" --force

echo "== files"
echo "Sample shoot:       $shoot (photographs, shoot.xml, ground-truth.csv)"
echo "Hugin project:      $out/shoot.pto"
echo "Description (JSON): $out/shoot.json"
echo "Layout picture:     $out/shoot-layout.png"
echo "Stitched project:   $out/shoot.stitch/05-final.pto"
echo "Panorama:           $out/shoot.jpg"
