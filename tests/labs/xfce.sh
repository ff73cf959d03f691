#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# XFCE: settings, window manager and desktop on two screens.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=XFCE
bus
background settings xfsettingsd --no-daemon --disable-wm-check
background windows xfwm4 --compositor=off
waitfor 60 window_manager
xfconf-query -c xfce4-desktop -p /desktop-icons/style -n -t int -s 0
# It must have painted: the change that comes while it opens its first picture may go wrong.
desktop_is_up() { [ "$(xprop -root | grep -c ^XFDESKTOP_IMAGE_FILE_)" = 2 ]; }
background desktop xfdesktop
waitfor 60 desktop_is_up

restart() {
  stop_owner org.xfce.xfdesktop
  xprop -root -remove XFDESKTOP_IMAGE_FILE_0 -remove XFDESKTOP_IMAGE_FILE_1
  xfdesktop >>"$LAB/desktop.log" 2>&1 &
  waitfor 60 desktop_is_up
}
export -f restart desktop_is_up stop_owner waitfor
"$@"
