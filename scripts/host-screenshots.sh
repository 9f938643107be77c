#!/usr/bin/env bash
# Pictures of every step of the panohead import wizard, taken in a real X
# window under Xvfb, written to docs/screenshots/host-*.png.
#   scripts/host-screenshots.sh [build folder]     (default: build/release)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/release}
out=$root/docs/screenshots

if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
fi
cmake --build "$build" --target zph_host_screenshots
mkdir -p "$out"
rm -f "$out"/host-*.png
QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1280x1024x24" \
  "$build/tests/host/zph_host_screenshots" "$out"
