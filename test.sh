#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests: units, drive scripts headless and on the real widgets.
#   ./test.sh [CTEST ARGUMENTS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/install-packages build desktop tests
cmake --preset release
cmake --build build/release

# Widgets draw without a screen, settings and rescue copies stay out of the person's own folders.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export QT_QPA_PLATFORM=offscreen
export XDG_CONFIG_HOME=$scratch/config XDG_STATE_HOME=$scratch/state
export XDG_RUNTIME_DIR=$scratch/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"

ctest --test-dir build/release --output-on-failure --no-tests=error -j2 --timeout 300 "$@"
