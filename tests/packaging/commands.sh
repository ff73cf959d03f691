#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# commands.sh MORAVEL FOLDER: each command and option of moravel --help is in its man page and its completions,
# and the man pages in FOLDER are sound.
set -euo pipefail
packaging=$(cd "$(dirname "$0")/../../packaging" && pwd)
status=0
fail() { echo "$*" >&2; status=1; }

words=$("$1" --help | sed -nE 's/^  (-h, )?(--)?([a-z]+) .*$/\2\3/p')
[ "$(wc -w <<<"$words")" -ge 14 ] || fail "only these were found in --help: $words"
for word in $words; do
  name=${word#--}
  grep -qE "^\.(B|BI|BR).*${name}" "$2/moravel.1" || fail "$word: not in the man page"
  grep -qE "^  '(\(- \*\)('\{-h,)?)?${word}[^a-z]" "$packaging/completion/_moravel" || fail "$word: not in zsh"
  grep -qE -- " -(a|l) $name( |$)" "$packaging/completion/moravel.fish" || fail "$word: not in fish"
  . "$packaging/completion/moravel.bash"
  COMP_WORDS=(moravel "${word%?}") COMP_CWORD=1
  _moravel
  [[ " ${COMPREPLY[*]} " = *" $word "* ]] || fail "$word: not in bash"
done
for page in moravel moravel-service; do
  complaints=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$2/$page.1" 2>&1 >/dev/null)
  [ -z "$complaints" ] || fail "$page.1: $complaints"
done
exit "$status"
