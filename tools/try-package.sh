#!/usr/bin/env bash
# Tries the Debian package as its users do, in a minimal Debian 12 made for it: installs, adds an event through the
# window, is reminded with the window closed, clicks the notification, upgrades, removes. Pictures of each stage are left
# in build/try-package/pictures. Takes the package that tools/package.sh has built, and the mirrors of this machine's apt.
# Needs root for a root folder and name spaces of its own; what it starts ends with it.
set -euo pipefail
cd "$(dirname "$0")/.."

[ "$(id -u)" -eq 0 ] || { echo "Run this as root: it makes and enters a root folder." >&2; exit 2; }
command -v mmdebstrap >/dev/null || { echo "Missing package: mmdebstrap" >&2; exit 2; }
package=${1:-$(find build/package -maxdepth 1 -name "tessivo_*.deb" 2>/dev/null | head -n 1)}
[ -n "$package" ] || { echo "Build the package first: tools/package.sh" >&2; exit 2; }

work="$PWD/build/try-package"
mkdir -p "$work"
rm -rf "$work/next" "$work/pictures"
root=$(mktemp -d /tmp/tessivo-root.XXXXXX)
trap 'rm -rf --one-file-system "$root"' EXIT
SECONDS=0

# The minimal system, with the test's own equipment, is made once and kept.
debian="$work/debian.tar"
if [ ! -s "$debian" ]; then
    equipment=xvfb,openbox,xdotool,scrot,dunst,dbus,at-spi2-core,python3-gi,gir1.2-atspi-2.0,procps
    sources=()
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
        [ ! -s "$file" ] || sources+=("$file")
    done
    echo "Making a Debian 12 (some minutes)"
    mmdebstrap --mode=root --format=tar --variant=minbase --include="$equipment" --dpkgopt=force-unsafe-io \
        bookworm "$debian.unfinished" "${sources[@]}" >"$work/mmdebstrap.log" 2>&1 ||
        { tail -n 20 "$work/mmdebstrap.log"; exit 1; }
    mv "$debian.unfinished" "$debian"
fi
tar -xf "$debian" -C "$root"
echo "A minimal Debian $(cat "$root/etc/debian_version") with $(find "$root/var/lib/dpkg/info" -name '*.list' | wc -l) packages, $(du -sm "$root" | cut -f1) MB"

# The same package as the next version.
mkdir -p "$root/try"
cp "$package" "$root/try/tessivo.deb"
cp tools/try-package/* "$root/try/"
dpkg-deb -R "$package" "$work/next"
sed -i 's/^Version: .*/&+next/' "$work/next/DEBIAN/control"
# Other bytes, as a rebuilt program has.
echo >>"$work/next/usr/bin/tessivo-reminders"
(cd "$work/next" && find usr -type f -print0 | sort -z | xargs -0 md5sum >DEBIAN/md5sums)
dpkg-deb --root-owner-group -b "$work/next" "$root/try/tessivo-next.deb" >/dev/null
cp /etc/resolv.conf "$root/etc/resolv.conf"

# A process tree of its own: whatever is started in it ends with it.
result=0
unshare --mount --pid --ipc --fork --kill-child --mount-proc="$root/proc" sh -c '
    mount --rbind /dev "$0/dev" && mount -t tmpfs shm "$0/dev/shm" && mount -t tmpfs tmp "$0/tmp" &&
    exec chroot "$0" bash /try/in-root.sh' "$root" || result=$?
cp -r "$root/try/pictures" "$work/" 2>/dev/null || true
[ "$result" -eq 0 ] || { echo "FAILED: try-package"; exit 1; }
echo "PASSED: try-package, in $SECONDS s; pictures in $work/pictures"
