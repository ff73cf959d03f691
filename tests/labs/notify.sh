#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# notify.sh DAEMON COMMAND…: one X screen with a window manager and a notification service (dunst or
# xfce4-notifyd). Nothing else can be started over the bus.
. "$(dirname "$0")/lab.sh"
. "$(dirname "$0")/bus.sh"
export LAB_DAEMON=$1; shift
display 1
closed_bus
background windows openbox
case $LAB_DAEMON in
  dunst) background daemon dunst ;;
  xfce4-notifyd)
    background xfconf "$(libexec xfce4/xfconf/xfconfd)"
    background daemon "$(libexec xfce4/notifyd/xfce4-notifyd)" ;;
esac
waitfor 10 owned org.freedesktop.Notifications
"$@"
