#!/usr/bin/env bash
# Installs the Debian packages that building and testing ZelmarMediaLib need.
# Idempotent: packages already present are left alone, and apt is not touched at all
# when nothing is missing.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config ccache
  libboost-dev libboost-filesystem-dev libboost-date-time-dev
  libboost-thread-dev libboost-system-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  libxml2-dev
  libavformat-dev libavcodec-dev libavutil-dev
  frei0r-plugins frei0r-plugins-dev
)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$'; then
    missing+=("$package")
  fi
done

[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
