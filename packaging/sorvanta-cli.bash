# shellcheck shell=bash
# Completes the commands of sorvanta-cli, their options, and what belongs behind these.

# Offers those of the words that begin with what stands there. Not by `compgen -W`, which expands
# its words: one that a program prints would be run.
_sorvanta_cli_words() {
  local offered
  for offered; do
    [[ $offered != "$word"* ]] || COMPREPLY+=("$offered")
  done
}

# Offers folders, and the files whose names end so, in any case of letters.
_sorvanta_cli_files() {
  local file
  compopt -o filenames
  while IFS= read -r file; do
    [[ ! -d $file && ${file,,} != *"$1" ]] || COMPREPLY+=("$file")
  done < <(compgen -f -- "$word")
}

# Offers the names of a list that the program prints.
_sorvanta_cli_names() {
  local -a names
  mapfile -t names < <("${COMP_WORDS[0]}" "$@" 2>/dev/null | cut -d = -f 1)
  _sorvanta_cli_words "${names[@]}"
}

_sorvanta_cli() {
  local word=$2 before=$3 command=${COMP_WORDS[1]}
  local -a offers
  local -A options=(
    [send]="--continue --rest --again --yes --save --report --json --password-command --trace"
    [check]="--offline --password-command --trace"
    [test]="--to --row --password-command --trace"
    [compose]="--row"
    [server]="--password-command --trace"
  )
  COMPREPLY=()
  if (( COMP_CWORD == 1 )); then
    _sorvanta_cli_words "${!options[@]}" account settings --help --version
    return
  fi
  case $before in
    --report | --trace) _sorvanta_cli_files ''; return ;;
    --password-command) mapfile -t COMPREPLY < <(compgen -c -- "$word"); return ;;
    --to | --row) return ;;
  esac
  case $command in
    settings) (( COMP_CWORD != 2 )) || _sorvanta_cli_names settings ;;
    account) (( COMP_CWORD != 3 )) || _sorvanta_cli_names account "${COMP_WORDS[2]}" ;;
    send | check | test | compose | server)
      if [[ $word == -* ]]; then
        read -ra offers <<< "${options[$command]}"
        _sorvanta_cli_words "${offers[@]}"
      elif [[ $command != server ]]; then
        _sorvanta_cli_files .svk
      fi ;;
  esac
}
complete -F _sorvanta_cli sorvanta-cli
