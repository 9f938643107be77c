#!/usr/bin/env bash
# Makes the documentation's small pictures of the sample from the output of
# scripts/sample.sh: docs/sample-layout.jpg and docs/sample-panorama.jpg.
#
#   samples/make-docs-pictures.sh [sample output folder]   (default: build/sample)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
sample=${1:-"$root/build/sample"}
build=${ZPH_SAMPLE_TOOL_BUILD:-"$root/build/sample-tool"}

cmake -S "$root/samples/tool" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release > /dev/null
cmake --build "$build" > /dev/null
mkdir -p "$root/docs"
export QT_QPA_PLATFORM=offscreen
"$build/zph_make_sample" --shrink "$sample/shoot-layout.png" "$root/docs/sample-layout.jpg" 800
"$build/zph_make_sample" --shrink "$sample/shoot.jpg" "$root/docs/sample-panorama.jpg" 800
ls -l "$root/docs/sample-layout.jpg" "$root/docs/sample-panorama.jpg"
