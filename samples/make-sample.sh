#!/usr/bin/env bash
# Renders the bundled sample shoot into samples/sample-shoot: 30 photographs
# (2 rows × 5 positions × 3 exposures, 400 × 300, with EXIF data), the head's
# Papywizard record shoot.xml and ground-truth.csv with the true angles.
# Everything comes from a fixed seed: running it again gives the same files.
#
#   samples/make-sample.sh [output folder]     (default: samples/sample-shoot)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
out=${1:-"$root/samples/sample-shoot"}
build=${ZPH_SAMPLE_TOOL_BUILD:-"$root/build/sample-tool"}

cmake -S "$root/samples/tool" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build "$build" > /dev/null
rm -rf "$out"
QT_QPA_PLATFORM=offscreen "$build/zph_make_sample" "$out"
