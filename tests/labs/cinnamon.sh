#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Cinnamon on two screens, in a session of two: the shell, and the service that paints the picture once the
# session is complete.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=X-Cinnamon DESKTOP_SESSION=cinnamon GSETTINGS_BACKEND=dconf LIBGL_ALWAYS_SOFTWARE=1
export XDG_CONFIG_DIRS=$lab/xdg
mkdir -p "$lab/xdg/autostart" "$XDG_CONFIG_HOME/cinnamon-session/sessions"
cp /etc/xdg/autostart/cinnamon-settings-daemon-background.desktop "$lab/xdg/autostart"
ln -s /etc/xdg/menus "$lab/xdg/menus"
cat >"$XDG_CONFIG_HOME/cinnamon-session/sessions/lab.session" <<X
[Cinnamon Session]
Name=Lab
RequiredComponents=cinnamon;
DesktopName=X-Cinnamon
X
bus
system_bus
gsettings set org.cinnamon desktop-effects false
gsettings set org.cinnamon.desktop.notifications display-notifications false

shell_is_up() {
  gdbus call --session -d org.Cinnamon -o /org/Cinnamon -m org.Cinnamon.Eval 'Main.runState' | grep -q "(true, '2')" &&
    xprop -root _XROOTPMAP_ID | grep -q '#'
}

restart() {
  local before; before=$(owner org.Cinnamon)
  gdbus call --session -d org.Cinnamon -o /org/Cinnamon -m org.Cinnamon.RestartCinnamon false
  waitfor 60 another_owner org.Cinnamon "$before"
  waitfor 60 shell_is_up
  waitfor 20 side_by_side
}
export -f restart shell_is_up side_by_side waitfor owner another_owner

background session cinnamon-session --session lab
waitfor 90 shell_is_up
waitfor 20 side_by_side
# After a change of the screens it sometimes paints the next time only when something moves.
export LAB_REDRAW="gdbus call --session -d org.Cinnamon -o /org/Cinnamon -m org.Cinnamon.Eval global.stage.queue_redraw()"
"$@"
