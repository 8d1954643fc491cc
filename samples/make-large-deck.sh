#!/bin/sh
# Makes samples/large.kov, a card file of 30,000 lines or as many as the first argument says. Needs nothing but the build.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
lines=${1:-31000}
build=${BUILD:-$root/build/large-deck}
if [ ! -f "$build/CMakeCache.txt" ]; then
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKOV_QT=OFF
fi
cmake --build "$build" --target make_deck
"$build/bin/make_deck" "$lines" >"$root/samples/large.kov"
wc -l "$root/samples/large.kov"
