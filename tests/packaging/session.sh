#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Run by install.sh in the bare system, in a session bus of its own: the installed program on a virtual display.
# It must bring its own service along, since nobody answers here.
set -euo pipefail
cd
mkdir -p fb
fail() { echo "session: $*" >&2; tail -n 30 log >&2; exit 1; }
until_true() { # SECONDS COMMAND…
  local end=$((SECONDS + $1)); shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$end" ] || fail "gave up on: $*"
    read -rt 0.1 <> <(:) || true
  done
}
answers() { curl -sf http://127.0.0.1:8642/potd/defs/getSources.irev; }
pictures() { [ "$(find Pictures/Moravel -maxdepth 1 -type f -not -name '.*' | wc -l)" -ge 4 ]; }
today_is_set() { moravel current | grep -q "^Date:    $(date +%F)$"; }
expect() { # STATUS COMMAND…
  local wanted=$1 status=0; shift
  "$@" >>out 2>&1 || status=$?
  [ "$status" = "$wanted" ] || fail "$* gave $status, not $wanted: $(tail -n 1 out)"
}

Xvfb :7 -screen 0 1280x800x24 -nolisten tcp -fbdir fb >xvfb.log 2>&1 &
until_true 10 test -S /tmp/.X11-unix/X7
export DISPLAY=:7
expect 3 moravel next
expect 2 moravel nonsense
! answers >/dev/null || fail "somebody answers already"
moravel --sources "Fractal of the Day,Landscape of the Day,The Moon Today,The Planets Today" \
  -qwindowgeometry 1100x640+0+0 >log 2>&1 &
program=$!
until_true 20 answers
until_true 90 pictures
until_true 30 grep -q 'cells shown: 4 of' log
expect 0 moravel next
until_true 20 today_is_set
moravel current --json | grep -q '"path": "/home/tester/Pictures/Moravel/' || fail "no path in JSON"
cp fb/Xvfb_screen0 day.xwd
expect 0 moravel large
expect 0 moravel # a second start
expect 0 moravel set "$(find Pictures/Moravel -name '*.jpg' -print -quit)"
expect 1 moravel set /etc/passwd
dbus-send --session --print-reply --dest=org.moravel.Moravel /org/moravel/Moravel \
  org.freedesktop.DBus.Introspectable.Introspect | grep -q ShowLargePicture || fail "cannot be introspected"
expect 0 moravel quit
until_true 10 sh -c "! kill -0 $program"
wait "$program" || fail "the program ended with $?"
! answers >/dev/null || fail "the service outlived the program"

# The bus can start it.
dbus-update-activation-environment DISPLAY
dbus-send --session --print-reply --dest=org.moravel.Moravel /org/moravel/Moravel org.moravel.Moravel1.Show \
  >/dev/null || fail "the bus did not start the program"
until_true 20 answers
expect 0 moravel quit
