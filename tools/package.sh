#!/usr/bin/env bash
# Builds the Debian package into build/package and checks it. Arguments go to CMake, for instance keys of one's own:
# tools/package.sh -DTESSIVO_UNSPLASH_ACCESS_KEY=...
set -euo pipefail
cd "$(dirname "$0")/.."

tools/setup.sh package
version=$(dpkg-parsechangelog -S Version)
out="$PWD/build/package"
rm -rf "$out"
mkdir -p "$out/tessivo-$version"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$out/tessivo-$version"

(cd "$out/tessivo-$version" && TESSIVO_CMAKE_FLAGS="$*" dpkg-buildpackage --build=binary --no-sign >"$out/build.log" 2>&1) ||
    { tail -n 30 "$out/build.log"; echo "FAILED: package"; exit 1; }
lintian --fail-on error "$out"/*.changes || { echo "FAILED: lintian"; exit 1; }
for package in "$out"/*.deb; do
    echo "$(basename "$package"): $(du -k "$package" | cut -f1) KB, installed $(dpkg-deb -f "$package" Installed-Size) KB"
done
echo "The packages are in $out"
