#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# LXQt: its file manager paints the desktop, of the first of two screens only.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=LXQt
bus
background windows openbox
waitfor 60 window_manager
background desktop pcmanfm-qt --desktop --profile=lxqt
desktop_is_up() { xwininfo -root -tree | grep -q '("pcmanfm-qt" "pcmanfm-qt")'; }
desktop_is_gone() { ! desktop_is_up; }
waitfor 60 desktop_is_up

restart() {
  stop_owner org.pcmanfm.PCManFM # asked to close its desktop, it lives on for a while and takes the next start
  waitfor 20 desktop_is_gone
  pcmanfm-qt --desktop --profile=lxqt >>"$LAB/desktop.log" 2>&1 &
  waitfor 60 desktop_is_up
}
export -f restart stop_owner desktop_is_up desktop_is_gone waitfor
"$@"
