# bash completion for kestrel-cli. The table is made from the description that --help is made from:
# command ("*": all of them), option, and the kind of its value ("-": none).
_kestrel_cli_table='
@TABLE@
'

# Prints the kind of value that an option of a command takes.
_kestrel_cli_kind() {
  local of option kind
  while read -r of option kind; do
    if [[ $option = "$2" && ($of = "$1" || $of = '*') ]]; then
      echo "$kind"
      return
    fi
  done <<<"$_kestrel_cli_table"
}

_kestrel_cli_options() {
  local of option kind
  while read -r of option kind; do
    if [[ $option = -* && ($of = "$1" || $of = '*') ]]; then echo "$option"; fi
  done <<<"$_kestrel_cli_table"
}

_kestrel_cli_commands() {
  local of rest last=
  while read -r of rest; do
    if [[ $of && $of != '*' && $of != "$last" ]]; then echo "$of"; fi
    last=$of
  done <<<"$_kestrel_cli_table"
}

# Offers what a value of that kind can be; nothing for numbers, places and names.
_kestrel_cli_values() {
  case $1 in
    FILE)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$2")
      ;;
    DIR)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -d -- "$2")
      ;;
    *'|'*) mapfile -t COMPREPLY < <(compgen -W "${1//|/ }" -- "$2") ;;
  esac
}

_kestrel_cli() {
  COMPREPLY=()
  local current=${COMP_WORDS[COMP_CWORD]} command= waiting= word i
  # The words before: the command, and an option that waits for its value. "--option=value" comes as three.
  for ((i = 1; i < COMP_CWORD; ++i)); do
    word=${COMP_WORDS[i]}
    if [[ $word = = ]]; then
      continue
    elif [[ $waiting ]]; then
      waiting=
    elif [[ $word = -* ]]; then
      waiting=$(_kestrel_cli_kind "$command" "$word")
      if [[ $waiting = - ]]; then waiting=; fi
    elif [[ ! $command ]]; then
      command=$word
    fi
  done
  if [[ $current = = ]]; then current=; fi

  if [[ $waiting ]]; then
    _kestrel_cli_values "$waiting" "$current"
  elif [[ $current = -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_kestrel_cli_options "$command")" -- "$current")
  elif [[ ! $command ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_kestrel_cli_commands)" -- "$current")
  else
    _kestrel_cli_values "$(_kestrel_cli_kind "$command" FILE)" "$current"
  fi
}

complete -F _kestrel_cli kestrel-cli
