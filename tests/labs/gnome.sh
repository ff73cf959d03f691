#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# GNOME Shell as the window manager of X, on two screens.
. "$(dirname "$0")/lab.sh"
display 2
. "$(dirname "$0")/gnome-shell.sh"
background shell gnome-shell --x11 --sm-disable --unsafe-mode
waitfor 60 shell_is_up
waitfor 20 side_by_side

# The new shell takes over from the old one and lays the screens out anew.
restart() {
  local before; before=$(owner org.gnome.Shell)
  gnome-shell --x11 --sm-disable --unsafe-mode --replace >>"$LAB/shell.log" 2>&1 &
  waitfor 60 another_owner org.gnome.Shell "$before"
  waitfor 60 shell_is_up
  waitfor 20 side_by_side
}
export -f restart shell_is_up side_by_side waitfor owner another_owner
"$@"
