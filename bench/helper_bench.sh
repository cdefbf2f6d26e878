#!/bin/sh
# What the reminder helper costs while it waits: memory, and how often the kernel wakes it.
# usage: bench/helper_bench.sh <path of tessivo-reminders> [seconds]
set -eu
helper=$(realpath "$1")
seconds=${2:-10}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

XDG_DATA_HOME="$folder" dbus-run-session -- sh -c '
    "$1" &
    helper=$!
    until dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
        org.freedesktop.DBus.GetNameOwner string:org.tessivo.Tessivo.Reminders >/dev/null 2>&1; do :; done
    wakes() { awk "/^voluntary_ctxt_switches/ { print \$2 }" "/proc/$helper/status"; }
    sleep 2 # the start, which opens the queue, is over
    before=$(wakes)
    sleep "$2"
    after=$(wakes)
    grep -E "^(Rss|Pss):" "/proc/$helper/smaps_rollup"
    echo "Wakes in $2 s: $((after - before))"
    kill "$helper"
    wait "$helper"
' sh "$helper" "$seconds"
