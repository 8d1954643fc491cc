#!/usr/bin/env bash
# Installs what is missing, builds, and starts KOV's input data manager:
#   ./run.sh [FILE]
# On a machine without a display it shows the main job on the headless desk instead and leaves pictures in build/pictures.
set -euo pipefail

top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$top/build/release
bin=$build/bin

if [[ $# -gt 1 || ${1-} == -h || ${1-} == --help ]]; then
    echo "usage: ./run.sh [FILE]" >&2
    exit 2
fi
# A relative name belongs to the folder that the person stands in.
file=
[[ $# -eq 0 ]] || file=$(realpath -m -- "$1")
if [[ -n $file && ! -f $file ]]; then
    echo "run.sh: no such file: $file" >&2
    exit 2
fi

has_target() { ninja -C "$build" -t query "$1" >/dev/null 2>&1; }

"$top/scripts/install-packages" build desktop tests
echo "Building in $build"
(cd "$top" && cmake --preset release --log-level=WARNING >/dev/null)
targets=()
for target in kovin kovtool kov41 kov_pictures; do
    if has_target "$target"; then targets+=("$target"); fi
done
[[ ${#targets[@]} -gt 0 ]] || { echo "run.sh: nothing to run is built by this tree yet" >&2; exit 1; }
cmake --build "$build" --target "${targets[@]}"

if [[ -n ${DISPLAY-}${WAYLAND_DISPLAY-} ]]; then
    exec "$bin/kovin" ${file:+"$file"}
fi

echo
echo "No display: the main job on the headless desk."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
original=${file:-$top/samples/two-station-line.kov}
cp -- "$original" "$work/job.kov"
(cd "$work" && "$bin/kovtool" drive --trace "$top/scripts/main-job.drive")

echo
echo "What the job changed in a copy of $original:"
diff "$original" "$work/job.kov" || [[ $? -eq 1 ]]

if [[ -x $bin/kov41 ]]; then
    echo
    status=0
    "$bin/kov41" "$work/job.kov" || status=$?
    echo "The stand-in simulation (it only reads the file) ended with $status; 100 is a completed run."
    [[ $status -eq 100 ]] || exit 1
fi

if [[ -x $bin/kov_pictures ]]; then
    mkdir -p "$top/build/pictures"
    QT_QPA_PLATFORM=offscreen "$bin/kov_pictures" "$top/build/pictures"
    echo "Pictures of the windows: $top/build/pictures"
else
    echo "No picture is made: kov_pictures isn't built."
fi
