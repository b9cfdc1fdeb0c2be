# The steps that run, test, bench.sh and .ci/run share. Sourced by them, with `root` set to the folder of the project.
source "$root/cmake/packages.sh"

# The same results from the cache wherever the tree lies. Without the laxness it passes files with precompiled headers by.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

# Qt wants text in UTF-8; a bare machine says nothing about it.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# quietly LOG COMMAND...: its output is shown only if it fails.
quietly() {
  local log=$1
  shift
  "$@" >>"$log" 2>&1 </dev/null || { cat "$log" >&2; return 1; }
}

# installPackages NAME...: installs those that are missing, and asks nothing.
installPackages() {
  command -v dpkg-query >/dev/null || return 0
  local present missing=() name
  # It fails when it knows one of the names not at all.
  present=$'\n'$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)$'\n'
  for name; do
    [[ $present == *$'\n'"installed $name"$'\n'* ]] || missing+=("$name")
  done
  ((${#missing[@]})) || return 0

  local asRoot=()
  if ((EUID)); then
    command -v sudo >/dev/null || fail "These packages are missing and installing them needs root or sudo: ${missing[*]}"
    asRoot=(sudo)
  fi
  echo "Installing ${missing[*]}"
  local log
  log=$(mktemp)
  # apt's own exit status is what counts: a list of packages from last week may be good enough.
  "${asRoot[@]}" apt-get -qq -o DPkg::Lock::Timeout=300 update >"$log" 2>&1 </dev/null || true
  quietly "$log" "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}" ||
    fail "The packages could not be installed."
  rm -f "$log"
}

# takeTurns: two of these scripts at once would spoil each other's build. Held until the script ends or starts the program.
takeTurns() {
  mkdir -p "$root/build"
  exec {turn}>"$root/build/.lock"
  flock "$turn"
}

# configure PRESET FOLDER: when it has never been done, the presets have changed, or the tree was moved since.
configure() {
  local preset=$1 folder=$root/$2
  if [[ ! -f $folder/build.ninja || $root/CMakePresets.json -nt $folder/build.ninja ]] ||
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
    mkdir -p "$folder"
    : >"$folder/configure.log"
    (cd "$root" && quietly "$folder/configure.log" cmake --fresh --preset "$preset") || fail "Configuring failed."
  fi
}

# build PRESET FOLDER TARGET: says nothing when there is nothing to do.
build() {
  local preset=$1 folder=$2 target=$3
  configure "$preset" "$folder"
  [[ $(ninja -C "$root/$folder" -n "$target" 2>/dev/null) == *"no work to do"* ]] && return 0
  echo "Building $folder"
  local quiet=()
  [[ -t 1 ]] || quiet=(--quiet)
  (cd "$root" && cmake --build --preset "$preset" --target "$target" -- "${quiet[@]}") || fail "Building failed."
}

# layOut: the application folder Kinbook/, by the script that does it for a family who has the package.
layOut() {
  local log=$root/build/install.log installed=$root/build/installed
  : >"$log"
  quietly "$log" cmake --install "$root/build" --prefix "$installed" &&
    quietly "$log" "$installed/lib/kinbook/lay-out" "$root/Kinbook" || fail "Laying out Kinbook/ failed."
}
