#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# LXDE: its file manager paints the desktop, of the first of two screens only.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=LXDE
bus
mkdir -p "$XDG_CONFIG_HOME/pcmanfm/LXDE"
printf '[*]\nshow_trash=0\nshow_mounts=0\n' >"$XDG_CONFIG_HOME/pcmanfm/LXDE/desktop-items-0.conf"
background windows openbox
waitfor 60 window_manager
background desktop pcmanfm --desktop --profile LXDE
desktop_is_up() { xwininfo -root -tree | grep -q '("pcmanfm" "Pcmanfm")  800x600'; }
desktop_is_gone() { ! desktop_is_up; }
waitfor 60 desktop_is_up

restart() {
  pcmanfm --desktop-off
  waitfor 20 desktop_is_gone
  pcmanfm --desktop --profile LXDE >>"$LAB/desktop.log" 2>&1 &
  waitfor 60 desktop_is_up
}
export -f restart desktop_is_up desktop_is_gone waitfor
"$@"
