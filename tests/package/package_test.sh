#!/usr/bin/env bash
# package_test.sh PACKAGE.deb: a family's life with the package, in a scratch root: an older version is installed and
# started, the new one upgrades it and is started, and it is removed. The family's folder belongs to the family throughout.
set -euo pipefail
[[ -n ${FAKEROOTKEY-} ]] || exec fakeroot "$0" "$@"
package=$(readlink -f "$1")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
home=$scratch/home
family="$home/Kinbook"

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

inRoot() {
  dpkg --root="$root" --force-not-root --force-bad-path --force-depends "$@" >"$scratch/dpkg.log" 2>&1 ||
    { cat "$scratch/dpkg.log" >&2; fail "dpkg $*"; }
}

# What lies in the family's folder, to the last byte and second.
stateOf() {
  (cd "$1" && find . -printf '%p %y %m %T@ %l\n' | sort && find . -type f -print0 | sort -z | xargs -0 sha256sum)
}

launch() {
  HOME=$home "$root/usr/bin/kinbook"
}

# The program is up when it has made the copy of the day, which it does behind its window.
startAndEnd() {
  rm -rf "$family/Backup/Daily"
  HOME=$home QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$scratch "$root/usr/bin/kinbook" 2>"$scratch/kinbook.log" &
  local program=$! tries
  for ((tries = 0; tries < 300; ++tries)); do
    compgen -G "$family/Backup/Daily/FamilyInfo_*.mdb" >/dev/null && break
    kill -0 $program 2>/dev/null || break
    sleep 0.1
  done
  kill $program 2>/dev/null || { cat "$scratch/kinbook.log" >&2; fail "the program ended by itself"; }
  wait $program 2>/dev/null || true
  compgen -G "$family/Backup/Daily/FamilyInfo_*.mdb" >/dev/null || fail "the program did not come up"
}

# The same package as an older version, whose program only says so.
makeOlder() {
  dpkg-deb -R "$package" "$scratch/older"
  sed -i 's/^Version: .*/Version: 0.9/' "$scratch/older/DEBIAN/control"
  printf '#!/bin/sh\necho "older $0"\n' >"$scratch/older/usr/lib/kinbook/kinbook"
  echo "older help" >"$scratch/older/usr/lib/kinbook/HelpFiles/Helper.hlp"
  (cd "$scratch/older" && find usr -type f -print0 | xargs -0 md5sum >DEBIAN/md5sums)
  dpkg-deb -b "$scratch/older" "$scratch/older.deb" >/dev/null
}

dpkg --no-act -i "$package" >"$scratch/dpkg.log" 2>&1 || { cat "$scratch/dpkg.log" >&2; fail "a dependency is missing here"; }

mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers} "$home"
touch "$root"/var/lib/dpkg/{status,available}
makeOlder
inRoot -i "$scratch/older.deb"
[[ $(launch) == "older $family/kinbook" ]] || fail "the launcher starts the program of the family's folder"
for name in FamilyInfo.mdb FamilyInfo_Empty.mdb SplashDef.txt TheIcon.ico TheLarkmoorIcon.ico Attachments Backup; do
  [[ -e $family/$name ]] || fail "$name is not laid out"
done

# Another folder, and a database that was lost: the program is to miss it.
other="$scratch/other family"
[[ $(cd "$scratch" && KINBOOK_FOLDER="other family" launch) == "older $other/kinbook" ]] || fail "KINBOOK_FOLDER names the folder"
cmp -s "$other/FamilyInfo.mdb" "$root/usr/lib/kinbook/FamilyInfo_Empty.mdb" || fail "a new family has no empty database"
rm "$other/FamilyInfo.mdb"
KINBOOK_FOLDER=$other launch >"$scratch/again.log"
[[ ! -e $other/FamilyInfo.mdb ]] || fail "an empty database takes the place of a lost one"

# The family at work; its folder of attached files lies elsewhere, on a disk that isn't there at the moment.
printf 'Version=Ours\r\n' >>"$family/SplashDef.txt"
echo mine >"$family/Backup/Mon.mdb"
rmdir "$family/Attachments"
ln -s /nowhere/Attachments "$family/Attachments"
touch -d 2020-01-01 "$family/FamilyInfo.mdb" "$family/SplashDef.txt"
before=$(stateOf "$family")
inRoot -i "$package"
[[ $(stateOf "$family") == "$before" ]] || fail "an upgrade leaves the family's folder alone"

ours() { (cd "$family" && stat -c '%n %i %s %Y' FamilyInfo.mdb SplashDef.txt Backup/Mon.mdb Attachments); }
before=$(ours)
echo half >"$family/kinbook.new"
startAndEnd
[[ $(ours) == "$before" ]] || fail "the first start after an upgrade leaves what the family wrote alone"
for name in kinbook FamilyInfo_Empty.mdb HelpFiles/Helper.hlp; do
  cmp -s "$root/usr/lib/kinbook/$name" "$family/$name" || fail "$name is not refreshed"
done
[[ ! -e $family/kinbook.new ]] || fail "the half copy of a start that was cut off is left"

before=$(stateOf "$family")
inRoot -r kinbook
inRoot -P kinbook
[[ $(stateOf "$family") == "$before" ]] || fail "a removal leaves the family's folder alone"
[[ -z $(find "$root/usr" ! -type d 2>/dev/null) ]] || fail "a removal leaves something behind"
echo "The package installs, upgrades, starts and goes."
