#!/usr/bin/env bash
# A room includes only its own headers and those of the floors below it; Qt stands in desktop/ alone.
# Usage: layers.sh SRC
set -eu
cd "$1"

# Rooms in the order of the floors; those of one line do not know each other.
floors=(
  "base"
  "platform"
  "workspace ads"
  "tracking cv"
  "capture letters reports app"
  "sending shell"
  "desktop cli"
)

declare -A floor_of
for number in "${!floors[@]}"; do
  for room in ${floors[$number]}; do floor_of[$room]=$number; done
done

faults=0
fault() { printf '%s\n' "$1"; faults=$((faults + 1)); }

for room in */; do
  room=${room%/}
  [ -n "${floor_of[$room]:-}" ] || fault "src/$room stands on no floor"
done

while IFS=: read -r file line text; do
  room=${file%%/*}
  target=$(sed -E 's/.*#include *[<"]([^>"]*)[>"].*/\1/' <<<"$text")
  case $target in
    Q* | qt*) [ "$room" = desktop ] || fault "$file:$line: Qt outside desktop/: $target" ;;
    */*)
      other=${target%%/*}
      [ -n "${floor_of[$other]:-}" ] || continue
      [ "$other" = "$room" ] && continue
      [ "${floor_of[$other]}" -lt "${floor_of[${room}]:-0}" ] ||
        fault "$file:$line: $room may not include $target"
      ;;
  esac
done < <(grep -rnE '^ *#include' --include='*.h' --include='*.cpp' .| sed 's|^\./||')

[ "$faults" -eq 0 ] || exit 1
echo "floors hold"
