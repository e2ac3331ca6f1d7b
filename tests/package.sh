#!/usr/bin/env bash
# Installs a build into an empty folder and uses it as a stranger would, with an empty home: the programs
# start, lay down the data folder, capture and save, and taking the programs away leaves the data.
# Usage: package.sh BUILD SOURCE
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
faults=0
fault() {
  echo "$*" >&2
  faults=1
}

cmake --install "$build" --prefix "$work/usr" >/dev/null
export HOME=$work/home XDG_DATA_HOME=$work/home/.local/share XDG_RUNTIME_DIR=$work/run
mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
talvorctl=$work/usr/bin/talvorctl
data=$XDG_DATA_HOME/Talvor

if [ -x "$work/usr/bin/talvor" ]; then
  # The splash closes after a while; a program that still runs then has opened its main window.
  export QT_QPA_PLATFORM=offscreen
  [ "$(id -u)" -ne 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1
  status=0
  timeout 10 "$work/usr/bin/talvor" 2>"$work/errors" &
  sleep 5
  second=$(timeout 3 "$work/usr/bin/talvor" 2>&1) || true
  wait $! || status=$?
  grep -q 'déjà ouvert' <<<"$second" || fault "a second program has opened the same folder: $second"
  [ "$status" -eq 124 ] || fault "talvor ended with $status: $(cat "$work/errors")"
  share=$work/usr/share
  desktop-file-validate "$share/applications/talvor.desktop" || fault 'desktop entry'
  # The program has no site of its own to name, which validators count as a fault since AppStream 1.0; those
  # before know nothing of that fault.
  metadata=$share/metainfo/org.talvor.Talvor.metainfo.xml
  appstreamcli validate --no-net --override url-homepage-missing=info "$metadata" ||
    appstreamcli validate --no-net "$metadata" || fault 'AppStream metadata'
  [ -f "$share/icons/hicolor/48x48/apps/talvor.png" ] || fault 'no icon'
else
  "$talvorctl" preparer
fi
for file in Talvor.mdb Modeles/Basic.htm Listesites.txt; do
  [ -f "$data/$file" ] || fault "the data folder was laid down without $file"
done
number=$("$talvorctl" capturer "$source/data/exemples/annonce.txt")
[ -n "$("$talvorctl" candidature "$number")" ] || fault 'the captured candidature does not come back'

# What the manual and the completion name is what the program offers.
commands_of() { "$talvorctl" "$@" --help | sed -n '/^Commandes/,$p' | grep -oE '^  [a-z]+' | tr -d ' '; }
while read -r command; do
  grep -qE "^\.(B|BR) \"?$command" "$source/packaging/man/talvorctl.1" || fault "no manual for $command"
  grep -q "[ ']${command##* }[ ']" "$source/packaging/talvorctl.bash" || fault "no completion for $command"
done < <(
  commands_of | grep -vxE 'cv|lettre'
  commands_of cv | sed 's/^/cv /'
  commands_of lettre | sed 's/^/lettre /'
)
bash -n "$source/packaging/talvorctl.bash"

rm -rf "${work:?}/usr"
[ -f "$data/Talvor.mdb" ] || fault 'the data went with the program'
exit "$faults"
