# Completion of kvr5card for bash: source this file, or put it into the folder of completions.

# Offers those lines of standard input that begin with the word. What comes from projects and folders
# is text and nothing else: no line is ever expanded.
_kvr5card_offer() {
  local line
  while IFS= read -r line; do
    [[ $line == "$1"* ]] && COMPREPLY+=("$line")
  done
}

_kvr5card_words() {
  local start=$1
  shift
  _kvr5card_offer "$start" < <(printf '%s\n' "$@")
}

# The names of the languages beside the program. An installed command starts the user's copy of it,
# which the first start makes.
_kvr5card_languages() {
  local folder=$1 file
  [[ -n $folder ]] || folder=$(dirname -- "$(readlink -f -- "$(type -P -- "$command")")")
  if [[ -z $1 && ! -d $folder/Language ]]; then
    file=${folder%/bin}/lib/kvr5software
    folder=${XDG_DATA_HOME:-$HOME/.local/share}/KVR5Software
    [[ -d $folder/Language ]] || folder=$file
  fi
  for file in "$folder"/Language/*.lan; do
    [[ -e $file ]] || continue
    file=${file##*/}
    printf '%s\n' "${file%.lan}"
  done
}

# The letters of the cards that are there now.
_kvr5card_cards() {
  _kvr5card_offer "$1" < <("$command" "${program[@]}" cards 2>/dev/null | cut -d' ' -f1)
}

_kvr5card() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[0]//[\"\'\\]/}
  command=${command/#\~\//$HOME/}
  local verb= project= value= program=() n=0 i
  [[ $word == "=" ]] && word=
  [[ $before == "=" ]] && before=${COMP_WORDS[COMP_CWORD - 2]}
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --program | --lang | --mode | --name)
        value=${COMP_WORDS[i]}
        [[ ${COMP_WORDS[i + 1]} == "=" ]] && ((i++))
        ((++i < COMP_CWORD)) || break
        [[ $value == --program ]] && program=(--program "${COMP_WORDS[i]/#\~\//$HOME/}")
        ;;
      -*) ;;
      *)
        if [[ -z $verb ]]; then verb=${COMP_WORDS[i]}; else ((n++)); fi
        [[ $n == 1 && -z $project ]] && project=${COMP_WORDS[i]}
        ;;
    esac
  done
  COMPREPLY=()
  case $before in
    --program) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    --lang) _kvr5card_offer "$word" < <(_kvr5card_languages "${program[1]}"); return ;;
    --mode) _kvr5card_words "$word" 1 2 5 6 7; return ;;
  esac
  if [[ -z $verb ]]; then
    _kvr5card_words "$word" --program --lang --json --yes --no --help --version \
      mp3 new projects show config inputs save playlists schedule report cards record readback \
      erase verify takeover relocate
    return
  fi
  if [[ $word == -* && $n == 0 ]]; then
    _kvr5card_words "$word" --help
    [[ $verb == new ]] && _kvr5card_words "$word" --mode
    [[ $verb == save ]] && _kvr5card_words "$word" --copy-inputs
    [[ $verb == readback ]] && _kvr5card_words "$word" --name
    [[ $verb == takeover ]] && _kvr5card_words "$word" --dry-run
    return
  fi
  case $verb:$n in
    show:0 | config:0 | inputs:0 | save:0 | playlists:0 | schedule:0 | report:0 | record:0 | verify:0 | takeover:0 | \
      relocate:0)
      _kvr5card_offer "$word" < <("$command" "${program[@]}" projects 2>/dev/null)
      ;;
    config:1) _kvr5card_words "$word" get set ;;
    config:*)
      [[ ${COMP_WORDS[COMP_CWORD]} == "=" || ${COMP_WORDS[COMP_CWORD - 1]} == "=" ]] && return
      _kvr5card_offer "${word^^}" \
        < <("$command" "${program[@]}" config "$project" get 2>/dev/null | cut -d= -f1)
      ;;
    inputs:1) _kvr5card_words "$word" list set clear ;;
    new:*) _kvr5card_words "$word" --mode ;;
    save:*) _kvr5card_words "$word" --copy-inputs ;;
    record:* | readback:0 | erase:0 | verify:1)
      _kvr5card_cards "$word"
      mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -d -- "$word")
      ;;
    readback:*) _kvr5card_words "$word" --name ;;
    relocate:1) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    projects:* | cards:* | erase:* | verify:* | takeover:* | relocate:* | show:* | playlists:* | schedule:* | report:*) ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
  esac
}
complete -o filenames -F _kvr5card kvr5card
