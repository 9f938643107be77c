#!/usr/bin/env bash
# Makes the photographs for the host benchmark (benchmarks/host): 200 JPEG
# files of 24 megapixels (6000 x 4000) with EXIF data, the even-numbered half
# with an embedded EXIF thumbnail. About 1.5 GB, written outside the
# repository:
#   scripts/make-benchmark-photos.sh [folder]
# folder defaults to $ZPH_BENCH_PHOTOS, then /tmp/zph-bench-photos. Files that
# already exist are kept; delete the folder to make them afresh.
# Then: build/release/benchmarks/host/zph_bench_host --photos <folder>
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${ZPH_BUILD_DIR:-$root/build/release}
folder=${1:-${ZPH_BENCH_PHOTOS:-/tmp/zph-bench-photos}}
count=200

if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
fi
cmake --build "$build" --target zph_make_photos zph_bench_host > /dev/null
mkdir -p "$folder"
existing=$(find "$folder" -maxdepth 1 -name 'photo-*.jpg' | wc -l)
if [ "$existing" -ge "$count" ]; then
  echo "$folder already holds $existing photographs"
  exit 0
fi
# Two writers at once, each making every other photograph in its own folder;
# the files are then gathered (the numbering stays even = with thumbnail).
tmp=$(mktemp -d "$folder/.making.XXXXXX")
trap 'rm -rf "$tmp"' EXIT
QT_QPA_PLATFORM=offscreen nice "$build/tests/host/zph_make_photos" "$tmp/a" $((count / 2)) 6000 4000 every &
QT_QPA_PLATFORM=offscreen nice "$build/tests/host/zph_make_photos" "$tmp/b" $((count / 2)) 6000 4000 none &
wait
i=0
for n in $(seq 0 $((count / 2 - 1))); do
  printf -v src "photo-%04d.jpg" "$n"
  printf -v even "photo-%04d.jpg" $((2 * n))
  printf -v odd "photo-%04d.jpg" $((2 * n + 1))
  mv "$tmp/a/$src" "$folder/$even"
  mv "$tmp/b/$src" "$folder/$odd"
  i=$((i + 2))
done
echo "wrote $i photographs to $folder"
