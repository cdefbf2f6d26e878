#!/usr/bin/env bash
# Feeds each fuzzer from its seeds, two at a time, under the address and undefined-behaviour sanitizers.
# Usage: tools/fuzz.sh SECONDS
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:?usage: tools/fuzz.sh SECONDS}

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzzers >/dev/null || { echo "FAILED: build of the fuzzers"; exit 1; }
corpora=$(mktemp -d)
trap 'rm -rf "$corpora"' EXIT

# What has broken a fuzzer stays beside its build, to be run again.
fuzz_one() {
    name=$(basename "$1" _fuzz)
    mkdir "$2/$name"
    "$1" -max_total_time="$3" -artifact_prefix="build/fuzz/$name-" "$2/$name" "fuzz/seeds/$name" \
        >"build/fuzz/$name.log" 2>&1 || { tail -n 40 "build/fuzz/$name.log"; echo "FAILED: fuzzer $name"; return 1; }
}
export -f fuzz_one
find build/fuzz/fuzz -maxdepth 1 -name '*_fuzz' -print0 |
    xargs -0 -P 2 -I '{}' bash -c 'fuzz_one "$@"' fuzz '{}' "$corpora" "$seconds"
