#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# GNOME Shell as a Wayland compositor without hardware, on the screens Meta-0 and Meta-1.
. "$(dirname "$0")/lab.sh"
export XDG_SESSION_TYPE=wayland
. "$(dirname "$0")/gnome-shell.sh"
background shell gnome-shell --headless --wayland --no-x11 --wayland-display lab --unsafe-mode \
  --virtual-monitor 800x600 --virtual-monitor 800x600
waitfor 60 shell_is_up
export WAYLAND_DISPLAY=lab QT_QPA_PLATFORM=wayland GDK_BACKEND=wayland
export LAB_SHOT="gdbus call --session -d org.gnome.Shell.Screenshot -o /org/gnome/Shell/Screenshot \
  -m org.gnome.Shell.Screenshot.Screenshot false false"
"$@"
