#!/usr/bin/env bash
# A bare Debian in a folder of its own, as a newcomer has it: nothing but the base system and its packages.
# Usage, as root, with debootstrap and a network:
#   clean_root.sh --release RELEASE --suite SOURCE     ./run and ./check of a source tree
#   clean_root.sh --release RELEASE --package DEB SOURCE     installs a package, uses it as a new user, purges it
# RELEASE is bookworm (Debian 12) or trixie (Debian 13). With --keep FOLDER the downloaded packages and the
# compiled objects stay there for the next time; without it everything is fetched and built.
set -euo pipefail

usage() {
  sed -n '3,5p' "$0" >&2
  exit 2
}
release='' task='' keep='' arguments=()
while [ $# -gt 0 ]; do
  case $1 in
    --release) release=${2:-} && shift 2 ;;
    --suite | --package) task=${1#--} && shift ;;
    --keep) keep=$(realpath -m "${2:?}") && shift 2 ;;
    --mounted) mounted=1 && shift ;;
    -*) usage ;;
    *) arguments+=("$(realpath "$1")") && shift ;;
  esac
done
case $release:$task:${#arguments[@]} in
  bookworm:suite:1 | trixie:suite:1 | bookworm:package:2 | trixie:package:2) ;;
  *) usage ;;
esac
# What is mounted for the root goes with this process, whatever becomes of it.
[ -n "${mounted:-}" ] || exec unshare --mount --pid --fork --kill-child "$0" --mounted --release "$release" \
  --"$task" ${keep:+--keep "$keep"} "${arguments[@]}"

root=$(mktemp -d)
log=$root.log
leave() {
  umount -R "$root"/{proc,dev} "$root/var/cache/apt/archives" "$root/root/.cache" 2>/dev/null || true
  rm -rf --one-file-system "$root"
}
trap leave EXIT
fault() {
  echo "$*" >&2
  exit 1
}
in_root() {
  chroot "$root" env -i LANG=C.UTF-8 HOME=/root TERM=dumb PATH="$PATH" DEBIAN_FRONTEND=noninteractive \
    ${npm_config_registry:+npm_config_registry="$npm_config_registry"} "$@"
}
install_in_root() { in_root apt-get install -y --no-install-recommends "$@" >>"$log" 2>&1; }

make_root() {
  chmod 755 "$root"
  if [ -n "$keep" ]; then
    mkdir -p "$keep"/{apt,cache}-"$release" "$root/var/cache/apt/archives" "$root/root/.cache"
    mount --bind "$keep/apt-$release" "$root/var/cache/apt/archives"
    mount --bind "$keep/cache-$release" "$root/root/.cache"
  fi
  debootstrap --variant=minbase "$release" "$root" >"$log" || fault "debootstrap failed, see $log"
  mount -t proc proc "$root/proc"
  mount --rbind /dev "$root/dev"
  mount -t tmpfs -o mode=1777 shm "$root/dev/shm"
  cp /etc/resolv.conf "$root/etc/"
  [ -z "$keep" ] || echo 'Binary::apt::APT::Keep-Downloaded-Packages "true";' >"$root/etc/apt/apt.conf.d/keep"
  in_root apt-get update >>"$log"
}

# Both commands on a clone of the tree, with what they install themselves.
run_suite() {
  local source=$1
  # The test of the framework's forms fetches React where there is npm; a compiler cache serves who keeps one.
  install_in_root git ca-certificates npm ${keep:+ccache} || fault "no installation, see $log"
  in_root git config --global --add safe.directory '*'
  git -C "$source" bundle create --quiet "$root/opt/talvor.bundle" HEAD
  in_root git clone --quiet /opt/talvor.bundle /opt/talvor >>"$log" 2>&1
  in_root env CI=true /opt/talvor/run </dev/null
  in_root env CI=true ${TALVOR_FUZZ_SECONDS:+TALVOR_FUZZ_SECONDS="$TALVOR_FUZZ_SECONDS"} /opt/talvor/check
}

as_user() { in_root su marie -c "cd; export XDG_RUNTIME_DIR=~/run; $1"; }

# The program starts with the web engine's sandbox on, lays down the data folder, captures and saves; purging
# it leaves the user's data and nothing else.
use_package() {
  local package=$1 source=$2 status=0 number left file
  cp "$package" "$root/talvor.deb"
  cp "$source/data/exemples/annonce.txt" "$root/annonce.txt"
  install_in_root /talvor.deb || fault "no installation, see $log"
  in_root useradd --create-home marie
  as_user 'mkdir -m 700 ~/run'

  # The splash closes after a while; a program that still runs then has opened its main window.
  as_user 'QT_QPA_PLATFORM=offscreen timeout 15 talvor' 2>>"$log" || status=$?
  [ "$status" -eq 124 ] || fault "talvor ended with $status, see $log"
  number=$(as_user 'talvorctl capturer /annonce.txt')
  [ -n "$(as_user "talvorctl candidature $number")" ] || fault 'the captured candidature does not come back'
  as_user "printf 'Nom=DURAND\n' >cv.dat; talvorctl cv rendre cv.dat --modele .local/share/Talvor/Modeles/Basic.htm" |
    grep -q DURAND || fault 'no CV page'

  in_root apt-get purge -y talvor >>"$log" 2>&1 || fault "no removal, see $log"
  left=$(find "$root/usr" "$root/etc" "$root/var/lib" -iname '*talvor*' ! -path '*/lib/apt/*')
  [ -z "$left" ] || fault "left behind: $left"
  for file in Talvor.mdb Modeles/Basic.htm; do
    [ -f "$root/home/marie/.local/share/Talvor/$file" ] || fault "$file went with the program"
  done
  echo 'installed, used and removed'
}

make_root
case $task in
  suite) run_suite "${arguments[@]}" ;;
  package) use_package "${arguments[@]}" ;;
esac
rm -f "$log"
