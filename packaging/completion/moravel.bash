# SPDX-License-Identifier: MIT
# Completion of moravel for bash.
_moravel() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} i command=
  for ((i = 1; i < COMP_CWORD; i++)); do
    [[ ${COMP_WORDS[i]} = -* ]] || { command=${COMP_WORDS[i]}; break; }
  done
  COMPREPLY=()
  if [[ $before = --sources ]]; then
    mapfile -t COMPREPLY < <(compgen -W 'all' -- "$word")
  elif [[ $command = set ]]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  elif [[ $command = current ]]; then
    mapfile -t COMPREPLY < <(compgen -W '--json' -- "$word")
  elif [[ -z $command ]]; then
    mapfile -t COMPREPLY < <(compgen -W 'next previous hold current set show large browser quit
      --sources --hidden --json --help --version' -- "$word")
  fi
}
complete -F _moravel moravel
