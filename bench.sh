#!/usr/bin/env bash
# Builds and runs the benchmarks, one after the other. Arguments go to each of them.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
source "$root/cmake/prepare.sh"

installPackages "${buildPackages[@]}"
takeTurns
build release build all
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
for program in "$root"/build/bench/*_bench; do
  [[ -x $program ]] || fail "There are no benchmarks in build/bench."
  echo "== ${program##*/}"
  "$program" "$@"
done
