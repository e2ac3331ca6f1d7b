#!/usr/bin/env bash
# The small rules of the house, one message for each line that breaks one.
# Usage: house_rules.sh ROOT < list of the tracked files
set -euo pipefail
cd "$1"
mapfile -t tracked
faults=0

# matching PATTERN: the tracked files whose path matches; sample data is nobody's source.
matching() { printf '%s\n' "${tracked[@]}" | grep -E "$1" | grep -vE '^(data|tests/data)/' || true; }

mapfile -t sources < <(matching '\.(cpp|h|sh|cmake|json|md)$|(^|/)CMakeLists\.txt$|^(run|check|\.ci/run)$')
mapfile -t code < <(matching '^(src|tests|bench)/.*\.(cpp|h)$')
mapfile -t headers < <(matching '^src/.*\.h$')
mapfile -t scripts < <(matching '^tests/.*\.sh$|^(run|check|\.ci/run)$')
mapfile -t rooms < <(matching '^src/.*\.(cpp|h)$')

fault() {
  printf '%s\n' "$1"
  faults=$((faults + 1))
}

# forbid MESSAGE EXPRESSION FILE ...: no line of these files may match.
forbid() {
  local message=$1 expression=$2 line
  shift 2
  while IFS= read -r line; do fault "$line : $message"; done < <(grep -nHoE -e "$expression" -- "$@" | cut -d : -f 1,2)
}

[ "${#headers[@]}" -gt 0 ] || fault "aucune source dans la liste reçue"

forbid 'tabulation' $'\t' "${sources[@]}"
forbid 'blanc en fin de ligne' '[[:blank:]]+$' "${sources[@]}"
forbid 'travail laissé en plan' '\<(TO[D]O|FIX[M]E|XX[X])\>' "${sources[@]}"
forbid "chemin d’un dossier personnel ou de travail" '(^|[^[:alnum:]_./-])/(home|root|work)/[[:alnum:]]' "${sources[@]}"
forbid 'catch (...) cache une faute : attrapez un type' 'catch *\( *\.\.\. *\)' "${code[@]}"

for file in "${headers[@]}"; do
  grep -qxF '#pragma once' "$file" || fault "$file : #pragma once manque"
done
for file in "${rooms[@]}"; do
  [ "$(wc -l <"$file")" -le 600 ] || fault "$file : plus de 600 lignes, à partager"
done
shellcheck --external-sources --check-sourced "${scripts[@]}" || fault 'shellcheck : voir ci-dessus'

[ "$faults" -eq 0 ]
