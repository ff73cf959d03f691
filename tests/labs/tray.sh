#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tray.sh PANEL COMMAND…: one X screen with a window manager and a panel that shows tray icons
# (xfce4-panel or lxqt-panel).
. "$(dirname "$0")/lab.sh"
. "$(dirname "$0")/bus.sh"
panel=$1; shift
display 1
closed_bus
background windows openbox
case $panel in
  xfce4-panel)
    export XDG_CURRENT_DESKTOP=XFCE
    settings=$XDG_CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml
    mkdir -p "$settings"
    cat >"$settings/xfce4-panel.xml" <<X
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array"><value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty"><property name="plugin-1" type="string" value="systray"/></property>
</channel>
X
    background xfconf "$(libexec xfce4/xfconf/xfconfd)"
    waitfor 10 owned org.xfce.Xfconf
    background panel xfce4-panel --disable-wm-check --sm-client-disable ;;
  lxqt-panel)
    export XDG_CURRENT_DESKTOP=LXQt
    mkdir -p "$XDG_CONFIG_HOME/lxqt"
    printf '%s\n' '[General]' 'panels=panel1' '[panel1]' plugins=statusnotifier position=Top desktop=0 \
      panelSize=32 iconSize=22 width=100 width-percent=true '[statusnotifier]' type=statusnotifier \
      alignment=Right >"$XDG_CONFIG_HOME/lxqt/panel.conf"
    background panel lxqt-panel ;;
esac
waitfor 15 owned org.kde.StatusNotifierWatcher
"$@"
