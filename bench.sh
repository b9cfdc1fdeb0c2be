#!/usr/bin/env bash
# Builds and runs the benchmarks, one after the other, also after one that missed a limit; the end names those that did.
# Arguments go to each of them.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
source "$root/cmake/prepare.sh"

installPackages "${buildPackages[@]}"
takeTurns
build release build all
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
missed=()
for program in "$root"/build/bench/*_bench; do
  [[ -x $program ]] || fail "There are no benchmarks in build/bench."
  echo "== ${program##*/}"
  "$program" "$@" || missed+=("${program##*/}")
done
((${#missed[@]} == 0)) || fail "A limit was missed, or it didn't run to its end: ${missed[*]}"
