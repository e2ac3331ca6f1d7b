# shellcheck shell=bash
# The suites of check. Each one adds to $passed and $failed and stands in the root of the repository.

# count PASSED FAILED: adds to the totals; a suite with a failure ends the stage.
count() {
  passed=$((passed + $1))
  failed=$((failed + $2))
  [ "$2" -eq 0 ]
}

# sources PATTERN ...: the files that git keeps or would keep, one a line; all files where the repository came without its history.
sources() {
  local git=(git -c safe.directory="$root")
  if command -v git >/dev/null && "${git[@]}" rev-parse --git-dir >/dev/null 2>&1; then
    "${git[@]}" ls-files --cached --others --exclude-standard -- "$@" | existing
  else
    find . -path ./build -prune -o -path ./.git -prune -o -type f -print | sed 's|^\./||' |
      grep -E "$(patterns_as_expression "$@")"
  fi
}

existing() {
  local file
  while IFS= read -r file; do [ ! -f "$file" ] || say "$file"; done
}

# patterns_as_expression '*.cpp' ...: the same patterns as one extended regular expression.
patterns_as_expression() {
  printf '%s\n' "$@" | sed -e 's/\./\\./g' -e 's/\*/.*/g' -e 's/.*/^&$/' | paste -sd '|'
}

# Builds ---------------------------------------------------------------------------------------------------

build_preset() {
  local preset=$1
  configure_preset "$preset"
  live "$preset-build" cmake --build --preset "$preset" -j "$jobs"
  [ ! -d src/cli ] || [ -z "$(sources 'src/cli/*.cpp')" ] || require_program "build/$preset/src/cli/talvorctl"
  [ "$preset" != release ] || [ ! -d src/desktop ] || require_program build/release/src/desktop/talvor
}

configure_preset() {
  forget_moved_build "$root/build/$1"
  logged "$1-configure" cmake --preset "$1" -DCMAKE_COMPILE_WARNING_AS_ERROR=ON
}

# Form framework -------------------------------------------------------------------------------------------

# fetch_react PRESET: the framework of one of the test sites, once. Without npm or out of reach of its registry
# that one test is left out, and says so.
fetch_react() {
  local folder=$root/build/$1/react version=18.3.1 name
  for name in react react-dom; do
    [ ! -s "$folder/$name.production.min.js" ] || continue
    mkdir -p "$folder"
    if ! command -v npm >/dev/null || ! (cd "$folder" && logged "npm-$name" npm pack --silent "$name@$version") ||
      ! tar -xzOf "$folder/$name-$version.tgz" "package/umd/$name.production.min.js" >"$folder/$name.js"; then
      say "   $name $version n’a pas pu être téléchargé avec npm : le test des formulaires React sera sauté"
      return 0
    fi
    mv "$folder/$name.js" "$folder/$name.production.min.js"
    rm -f "$folder/$name-$version.tgz"
  done
}

# Tests ----------------------------------------------------------------------------------------------------

run_tests() {
  local preset=$1
  local report=$root/build/$preset/tests.xml
  local status=0
  rm -f "$report"
  UBSAN_OPTIONS=print_stacktrace=1 live "$preset-tests" \
    ctest --preset "$preset" -j "$jobs" --no-tests=error --output-junit "$report" || status=$?
  [ -f "$report" ] || give_up "ctest n’a laissé aucun rapport : supprimez le dossier build, puis relancez."
  count_tests "$report"
  require_every_suite "$preset" "$report"
  return "$status"
}

# total REPORT NAME: one of the totals at the head of a JUnit report.
total() { grep -oE "^[[:space:]]*$2=\"[0-9]+\"| $2=\"[0-9]+\"" "$1" | head -n 1 | grep -oE '[0-9]+'; }

count_tests() {
  local report=$1 tests failures left_out
  tests=$(total "$report" tests)
  failures=$(total "$report" failures)
  left_out=$(($(total "$report" skipped) + $(total "$report" disabled)))
  say "   $((tests - failures - left_out)) tests réussis, $failures en échec, $left_out sautés"
  [ "$tests" -gt "$left_out" ] || give_up "Aucun test n’a été exécuté."
  advice='Corrigez les tests en échec (voir ci-dessus), puis relancez ./check.'
  count $((tests - failures - left_out)) "$failures"
}

# Every folder of tests shows up in the report: a suite that drops out of the build must not pass unseen.
require_every_suite() {
  local room
  for room in $(sources 'tests/*_test.cpp' | cut -d / -f 2 | sort -u); do
    [ "$1" = sanitize ] && [ "$room" = desktop ] && continue
    grep -q "<testcase name=\"$room\\." "$2" ||
      give_up "Aucun test de tests/$room n’a été exécuté : déclarez ce dossier dans tests/CMakeLists.txt."
  done
}

# House rules and format -----------------------------------------------------------------------------------

run_house_rules() {
  local faults=0 script scripts=()
  advice='Corrigez les règles enfreintes ci-dessus, puis relancez ./check.'
  mapfile -t scripts < <(sources 'tests/house*.sh')
  [ "${#scripts[@]}" -gt 0 ] || give_up 'Aucun script tests/house*.sh : les règles de la maison ont disparu.'
  for script in "${scripts[@]}"; do
    sources '*' | "$script" "$root" || faults=$((faults + 1))
  done
  count $((${#scripts[@]} - faults)) "$faults"
}

check_format() {
  local files=()
  mapfile -t files < <(sources '*.cpp' '*.h')
  advice='Mettez en forme : clang-format-19 -i sur les fichiers ci-dessus, puis relancez ./check.'
  clang-format-19 --dry-run -Werror "${files[@]}" || count 0 1
  count 1 0
}

# Fuzz targets ---------------------------------------------------------------------------------------------

run_fuzz_targets() {
  local targets=() shares=() share faults=0
  mapfile -t targets < <(sources 'tests/fuzz/fuzz_*.cpp' | xargs -r -n 1 basename -s .cpp)
  [ "${#targets[@]}" -gt 0 ] || give_up 'tests/fuzz ne contient aucun fichier fuzz_*.cpp.'
  configure_preset fuzz
  live fuzz-build cmake --build build/fuzz -j "$jobs" --target "${targets[@]}"
  # Each one for its whole time, as many at once as there are cores.
  for ((share = 0; share < jobs; ++share)); do
    run_fuzz_share "$share" "${targets[@]}" &
    shares+=($!)
  done
  for share in "${shares[@]}"; do wait "$share" || faults=$((faults + $?)); done
  advice='Chaque entrée fautive est gardée sous build/fuzz/corpus ; corrigez, puis relancez ./check.'
  count $((${#targets[@]} - faults)) "$faults"
}

# run_fuzz_share SHARE TARGET ...: the targets that one core takes on; returns how many of them failed.
run_fuzz_share() {
  local share=$1 faults=0 i
  shift
  for ((i = share + 1; i <= $#; i += jobs)); do run_fuzz_target "${!i}" || faults=$((faults + 1)); done
  return "$faults"
}

# run_fuzz_target NAME: a new program searches for a while; an unchanged one runs again all that it had found.
run_fuzz_target() {
  local program=build/fuzz/tests/fuzz/$1 corpus=build/fuzz/corpus/$1 length=-runs=0 seeds=()
  require_program "$program"
  mkdir -p "$corpus"
  [ ! -d "tests/fuzz/corpus/$1" ] || seeds=("tests/fuzz/corpus/$1")
  [ "$corpus/../$1.done" -nt "$program" ] || length=-max_total_time=${TALVOR_FUZZ_SECONDS:-60}
  say "   $1"
  logged "$1" "$program" "$length" -artifact_prefix="$corpus/" -timeout=10 "$corpus" "${seeds[@]}" || return 1
  touch "$corpus/../$1.done"
}
