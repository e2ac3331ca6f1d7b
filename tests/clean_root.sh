#!/usr/bin/env bash
# Installs the Debian package on a bare Debian 12 in a folder of its own and uses it there as a new user: the
# program starts with the web engine's sandbox on, lays down the data folder, captures and saves; purging
# it leaves the user's data and nothing else. Run as root, with debootstrap and a network.
# Usage: clean_root.sh PACKAGE SOURCE
set -euo pipefail
[ "${3:-}" = mounted ] || exec unshare --mount "$0" "$1" "$2" mounted
package=$1 source=$2
root=$(mktemp -d)
log=$root.log
leave() {
  umount -R "$root/proc" "$root/dev" 2>/dev/null || true
  rm -rf --one-file-system "$root"
}
trap leave EXIT
fault() {
  echo "$*" >&2
  exit 1
}
in_root() { chroot "$root" env LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { in_root su marie -c "cd; export XDG_RUNTIME_DIR=~/run; $1"; }

chmod 755 "$root"
debootstrap --variant=minbase bookworm "$root" >"$log" || fault "debootstrap failed, see $log"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
mount -t tmpfs -o mode=1777 shm "$root/dev/shm"
cp /etc/resolv.conf "$root/etc/"
cp "$package" "$root/talvor.deb"
cp "$source/data/exemples/annonce.txt" "$root/annonce.txt"
in_root apt-get update >>"$log"
in_root apt-get install -y --no-install-recommends /talvor.deb >>"$log" 2>&1 || fault "no installation, see $log"
in_root useradd --create-home marie
as_user 'mkdir -m 700 ~/run'

# The splash closes after a while; a program that still runs then has opened its main window.
status=0
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
rm -f "$log"
echo 'installed, used and removed'
