#!/usr/bin/env bash
# Takes a picture of each import wizard page in a real window under Xvfb,
# loaded with a sample record and sample photos, and writes
# docs/screenshots/<page>.png. Not part of the test command.
#
# ZPH_SCREENSHOT_BUILD names the build folder (default build/screenshots).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${ZPH_SCREENSHOT_BUILD:-$root/build/screenshots}

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DZPH_BUILD_BENCHMARKS=OFF > "$build.configure.log" 2>&1 || { cat "$build.configure.log"; exit 1; }
cmake --build "$build" --target zph_page_screenshot

mkdir -p "$root/docs/screenshots"
for page in merlin vrdrive2 clauss gigapan; do
  echo "screenshot: $page"
  QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1280x1024x24" \
    "$build/tests/pages/zph_page_screenshot" "$page" "$root/docs/screenshots/$page.png"
done
echo "screenshots written to docs/screenshots"
