#!/usr/bin/env bash
# A room includes only its own headers and those of the floors below it; Qt stands in desktop/ alone. The
# folders of desktop/ have floors of their own.
# Usage: layers.sh SRC
set -eu
cd "$1"

faults=0
fault() { printf '%s\n' "$1"; faults=$((faults + 1)); }

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

# The same for the folders of desktop/; the files beside them, the program as a whole, stand above all.
desktop_floors=(
  "widgets"
  "platform"
  "browser"
  "candidatures cv letters sending shell"
  "desks"
)
declare -A desktop_floor_of
for number in "${!desktop_floors[@]}"; do
  for folder in ${desktop_floors[$number]}; do desktop_floor_of[$folder]=$number; done
done
for folder in desktop/*/; do
  folder=$(basename "$folder")
  [ "$folder" = resources ] || [ -n "${desktop_floor_of[$folder]:-}" ] ||
    fault "src/desktop/$folder stands on no floor"
done

# desktop_folder PATH: its folder of desktop/, empty for a file beside them.
desktop_folder() { sed -nE 's|^desktop/([^/]*)/.*|\1|p' <<<"$1"; }

declare -A floor_of
for number in "${!floors[@]}"; do
  for room in ${floors[$number]}; do floor_of[$room]=$number; done
done

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
      if [ "$other" = "$room" ]; then
        [ "$room" = desktop ] || continue
        from=$(desktop_folder "$file")
        to=$(desktop_folder "$target")
        [ "$from" = "$to" ] || [ -z "$from" ] ||
          { [ -n "$to" ] && [ "${desktop_floor_of[$to]}" -lt "${desktop_floor_of[$from]}" ]; } ||
          fault "$file:$line: desktop/$from may not include $target"
        continue
      fi
      [ "${floor_of[$other]}" -lt "${floor_of[${room}]:-0}" ] ||
        fault "$file:$line: $room may not include $target"
      ;;
  esac
done < <(grep -rnE '^ *#include' --include='*.h' --include='*.cpp' .| sed 's|^\./||')

[ "$faults" -eq 0 ] || exit 1
echo "floors hold"
