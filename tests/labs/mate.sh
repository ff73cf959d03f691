#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# MATE: settings, window manager and the file manager that paints the desktop, on two screens.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=MATE GSETTINGS_BACKEND=dconf
bus
for icons in computer-icon home-icon trash-icon volumes; do
  gsettings set org.mate.caja.desktop "$icons-visible" false
done
background windows marco --no-composite
waitfor 60 window_manager
background settings mate-settings-daemon
background desktop caja --force-desktop --no-default-window
desktop_is_up() { xwininfo -root -tree | grep -q '"desktop_window" "Caja"'; }
desktop_is_gone() { ! desktop_is_up; }
waitfor 60 desktop_is_up

restart() {
  caja --quit
  waitfor 20 desktop_is_gone
  caja --force-desktop --no-default-window >>"$LAB/desktop.log" 2>&1 &
  waitfor 60 desktop_is_up
}
export -f restart desktop_is_up desktop_is_gone waitfor
"$@"
