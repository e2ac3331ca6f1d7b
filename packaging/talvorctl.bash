# Completion of talvorctl for bash.
# shellcheck shell=bash

_talvorctl() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command='' sub='' i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --espace) ((i++)) ;;
      -*) ;;
      *) if [ -z "$command" ]; then command=${COMP_WORDS[i]}; elif [ -z "$sub" ]; then sub=${COMP_WORDS[i]}; fi ;;
    esac
  done

  case $previous in
    --espace)
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return
      ;;
    --tri)
      mapfile -t COMPREPLY < <(compgen -W 'societes dates statuts origine' -- "$word")
      return
      ;;
    --adresse | --date) return ;;
  esac

  local words=''
  case $command${sub:+ $sub} in
    '') words='--espace --help preparer analyser evaluer capturer candidatures candidature cv lettre rapport statistiques sauvegarder restaurer' ;;
    analyser) words='--adresse --date --initial --decoller --brut --lot --help' ;;
    evaluer | capturer) words='--adresse --help' ;;
    candidatures) words='--tri --json --help' ;;
    candidature* | statistiques) words='--json --help' ;;
    cv) words='rendre identite convertir --help' ;;
    'cv rendre'*) words='--modele --photo --help' ;;
    'cv convertir'*) words='--vers --help' ;;
    lettre) words='composer fusionner --help' ;;
    'lettre composer'* | 'lettre fusionner'*) words='--date --help' ;;
    rapport) words='liste justificatif --help' ;;
    *) words='--help' ;;
  esac
  mapfile -t COMPREPLY < <(
    compgen -W "$words" -- "$word"
    case $command in
      sauvegarder | restaurer) compgen -d -- "$word" ;;
      analyser | evaluer | capturer) compgen -f -- "$word" ;;
      cv | lettre) [ -z "$sub" ] || compgen -f -- "$word" ;;
    esac
  )
}
complete -o filenames -F _talvorctl talvorctl
