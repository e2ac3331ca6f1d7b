# shellcheck shell=bash
# Shared by run and check: the root of the repository, stages, packages, builds.
# Both set -e, so any command that fails ends the stage; their EXIT trap then says which one it was.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
jobs=$(nproc)
current_stage=
advice=

say() { printf '%s\n' "$*"; }

# Where there is a compiler cache, what another clone has compiled serves this one.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

# give_up ADVICE: ends the current stage; the advice says what to do.
give_up() {
  advice=$1
  exit 1
}

# stage TITLE FUNCTION [ARGUMENT ...]: one step of a command, with its duration.
stage() {
  local start=$SECONDS
  current_stage=$1
  advice="Corrigez l’erreur ci-dessus, puis relancez la commande."
  say "── $current_stage"
  shift
  "$@"
  say "   fait en $((SECONDS - start)) s"
  current_stage=
}

# Called by the EXIT traps: what failed and what to do about it.
explain_failure() {
  [ -n "$current_stage" ] || return 0
  say
  say "Échec à l’étape « $current_stage »."
  say "$advice"
}

# logged NAME COMMAND ...: its output goes to build/logs/NAME.log, and to the screen only when it fails.
logged() {
  local log=$root/build/logs/$1.log
  shift
  if ! "$@" >"$log" 2>&1; then
    tail -n 200 "$log"
    return 1
  fi
}

# live NAME COMMAND ...: shows the progress on a terminal, keeps quiet elsewhere.
live() {
  if [ -t 1 ]; then
    shift
    "$@"
  else
    logged "$@"
  fi
}

prepare_build_folder() {
  mkdir -p "$root/build/logs" 2>/dev/null || true
  [ -w "$root/build/logs" ] || give_up \
    "Le dossier $root/build n’est pas à vous : rendez-le accessible en écriture ou supprimez-le."
}

# forget_moved_build FOLDER: a build configured elsewhere (the repository was moved or copied) starts afresh.
forget_moved_build() {
  local cache=$1/CMakeCache.txt
  if [ -f "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
    say "   dépôt déplacé : reconstruction complète"
    rm -rf "$1"
  fi
}

# require_program FILE: a build that quietly leaves a program out is a failed build.
require_program() {
  [ -x "$1" ] || give_up "La construction n’a pas produit $1 : voyez les fichiers CMakeLists.txt."
}

# Packages -------------------------------------------------------------------------------------------------

# packages_of GROUP ...: the packages of these groups, one a line.
packages_of() {
  local group
  for group in "$@"; do
    awk -v group="$group" '$1 == group { print $2 }' "$root/scripts/packages.txt"
  done
}

# missing_packages GROUP ...: those of them that are not installed, one a line.
missing_packages() {
  local package
  for package in $(packages_of "$@"); do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || say "$package"
  done
}

# as_root COMMAND ...: never prompts under CI; a shell without the system folders in its PATH is completed.
as_root() {
  local sudo=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || return 1
    sudo=(sudo)
    [ "${CI:-}" != true ] || sudo+=(-n)
  fi
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive PATH="$PATH:/usr/local/sbin:/usr/sbin:/sbin" "$@" </dev/null
}

# install_packages GROUP ...
install_packages() {
  local missing=() package
  prepare_build_folder
  command -v dpkg-query >/dev/null || give_up 'Talvor se construit sur Debian 12 ou 13 (dpkg est introuvable ici).'
  mapfile -t missing < <(missing_packages "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  for package in "${missing[@]}"; do say "   à installer : $package"; done
  advice="Installez ces paquets en administrateur, puis relancez : apt-get install ${missing[*]}"
  logged apt-update as_root apt-get update -qq ||
    say "   la liste des paquets n’a pas pu être mise à jour ; essai avec celle qui est là"
  logged apt-install as_root apt-get install -y --no-install-recommends \
    -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 "${missing[@]}"
}
