#!/usr/bin/env bash
# The program under a window manager on a screen of its own: the maximised window keeps its state and its place
# when the first pages of the web engine come, and both are there again at the next start.
# Usage: on_screen.sh TALVOR
set -euo pipefail
talvor=$1
work=$(mktemp -d)
screen='' manager='' program=''
leave() {
  kill ${program:+"$program"} ${manager:+"$manager"} ${screen:+"$screen"} 2>/dev/null || true
  wait
  rm -rf "$work"
}
trap leave EXIT
fault() {
  echo "$*" >&2
  [ ! -s "$work/log" ] || tail -n 20 "$work/log" >&2
  exit 1
}
# within SECONDS COMMAND ...: tries until it succeeds.
within() {
  local end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.2
  done
}

export HOME=$work/home XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=xcb
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME WAYLAND_DISPLAY
mkdir -p "$HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"
[ "$(id -u)" -ne 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1

# A screen on which the first window opens maximised.
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
screen=$!
within 10 test -s "$work/display" || fault 'no screen'
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox 2>/dev/null &
manager=$!
within 10 wmctrl -m || fault 'no window manager'

# The main window alone has a frame that may be maximised.
main_window() { wmctrl -lG | awk '$NF == "Talvor" && $5 >= 800 { id = $1 } END { if (id == "") exit 1; print id }'; }
state() { xprop -id "$1" _NET_WM_STATE | grep -o '_NET_WM_STATE_MAXIMIZED_[A-Z]*' | sort | paste -sd ' '; }
place() { xwininfo -id "$1" | awk '/Absolute|Width|Height/ { print $NF }' | paste -sd ' '; }
# Whether the web engine of this program runs.
engine_runs() { pgrep -P "$program" QtWebEngine; }
start() {
  "$talvor" >>"$work/log" 2>&1 &
  program=$!
  # The splash goes last.
  within 30 main_window || fault 'no main window'
  sleep 6
  window=$(main_window)
}
end() {
  wmctrl -i -c "$window"
  within 10 eval "! kill -0 $program" || fault 'the program does not end'
  wait "$program" || fault "the program ended with $?"
}
# visit KEY ...: the keys lead to the first page of this run.
visit() {
  local key after
  ! engine_runs >/dev/null || fault 'the engine runs before there is a page'
  for key in "$@"; do
    xdotool key "$key"
    sleep 2
  done
  within 20 engine_runs || fault "no page after $*"
  sleep 2
  after="$(main_window) $(state "$window") $(place "$window")"
  [ "$before" = "$after" ] || fault "after $*: $before has become $after"
}

# The first CV, still blank, and the sites.
for keys in ctrl+1 'ctrl+g alt+i'; do
  start
  [ "$(state "$window" | wc -w)" -eq 2 ] || fault 'the window is not maximised at its start'
  before="$window $(state "$window") $(place "$window")"
  # shellcheck disable=SC2086  # one word a key
  visit $keys
  end
done

start
wmctrl -i -r "$window" -b remove,maximized_vert,maximized_horz
sleep 1
wmctrl -i -r "$window" -e 0,120,60,1100,600
sleep 1
before=$(place "$window")
[[ $before == *' 1100 600' ]] || fault "no room for a loose window: $before"
end

start
after=$(place "$window")
[ -z "$(state "$window")" ] || fault 'the loose window came back maximised'
[ "$before" = "$after" ] || fault "the window stood at $before and opens at $after"
end
