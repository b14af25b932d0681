# Completion of kvr5card for bash: source this file, or put it into the folder of completions.
_kvr5card() {
  local word=${COMP_WORDS[COMP_CWORD]} verb= project= i
  local program=() n=0
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --program) program=(--program "${COMP_WORDS[++i]}") ;;
      --lang) ((i++)) ;;
      -*) ;;
      *)
        if [[ -z $verb ]]; then verb=${COMP_WORDS[i]}; else ((n++)); fi
        [[ $n == 1 ]] && project=${COMP_WORDS[i]}
        ;;
    esac
  done
  COMPREPLY=()
  if [[ -z $verb ]]; then
    mapfile -t COMPREPLY < <(compgen -W "--program --lang --json --yes --no --help --version
      mp3 new projects show config inputs record" -- "$word")
    return
  fi
  case $verb:$n in
    show:0 | config:0 | inputs:0 | record:0)
      local IFS=$'\n'
      mapfile -t COMPREPLY < <(compgen -W "$(kvr5card "${program[@]}" projects 2>/dev/null)" -- "$word")
      ;;
    config:1) mapfile -t COMPREPLY < <(compgen -W "get set" -- "$word") ;;
    inputs:1) mapfile -t COMPREPLY < <(compgen -W "list set clear" -- "$word") ;;
    new:*) mapfile -t COMPREPLY < <(compgen -W "--mode" -- "$word") ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
  esac
}
complete -o filenames -F _kvr5card kvr5card
