#!/usr/bin/env bash
# Installs what the project needs on Debian 12, where it is missing. Usage: tools/setup.sh build|run|test|package
set -euo pipefail

build=(g++ cmake ninja-build pkg-config ccache mold
       qt6-base-dev qt6-declarative-dev qt6-svg-dev libgl-dev
       libicu-dev libsqlite3-dev nlohmann-json3-dev libsystemd-dev)
run=(libqt6svg6 qt6-image-formats-plugins qt6-wayland dbus xdg-utils zenity ca-certificates python3
     qml6-module-qtquick qml6-module-qtqml-workerscript
     fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji)
test=(libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev qml6-module-qttest
      xvfb xauth libgl1-mesa-dri dunst desktop-file-utils appstream clang libclang-rt-dev clang-format tzdata locales)
package=(debhelper dpkg-dev lintian git)

case "${1:-}" in
    build) wanted=("${build[@]}") ;;
    run) wanted=("${build[@]}" "${run[@]}") ;;
    test) wanted=("${build[@]}" "${run[@]}" "${test[@]}") ;;
    package) wanted=("${build[@]}" "${package[@]}") ;;
    *) echo "usage: tools/setup.sh build|run|test|package" >&2; exit 2 ;;
esac

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "Tessivo sets itself up with apt-get, which this machine lacks. It needs: ${wanted[*]}" >&2
    exit 1
fi

missing=()
for package in "${wanted[@]}"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
done
[ "${#missing[@]}" -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Missing packages, and no right to install them. As root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
log=$(mktemp)
trap 'rm -f "$log"' EXIT
"${as_root[@]}" apt-get update -qq
if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    echo "Could not install: ${missing[*]}" >&2
    exit 1
fi
