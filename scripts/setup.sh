#!/usr/bin/env bash
# Installs every Debian package the project needs: build tools, Qt 5 with its
# Designer and Linguist tools and its image-format plug-ins (TIFF photographs),
# exiv2, Google Benchmark, Hugin's command-line tools with enblend and enfuse,
# clang's fuzzing runtime and what the screenshot scripts use.
# Idempotent and non-interactive: only missing packages are installed.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
  libexiv2-dev libbenchmark-dev
  hugin-tools enblend enfuse
  qt5-image-formats-plugins
  clang libclang-rt-14-dev
  libimage-exiftool-perl
  xvfb xauth
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "setup: all ${#packages[@]} packages present"
  exit 0
fi

echo "setup: installing ${missing[*]}"
sudo=()
if [ "$(id -u)" -ne 0 ]; then sudo=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
