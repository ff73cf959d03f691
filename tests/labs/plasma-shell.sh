# SPDX-License-Identifier: MIT
# Sourced by the labs of KDE Plasma, before the window manager starts.
export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5 LIBGL_ALWAYS_SOFTWARE=1
export QT_QUICK_BACKEND=software QSG_RENDER_LOOP=basic
printf '[KDE]\nAnimationDurationFactor=0\n' >"$XDG_CONFIG_HOME/kdeglobals"
bus

# Its name is there long before its desktops.
shell_is_up() {
  gdbus call --session -d org.kde.plasmashell -o /PlasmaShell -m org.kde.PlasmaShell.evaluateScript \
    'print(desktops().filter(function(d) { return d.screen >= 0; }).length)' | grep -q "'2'"
}

start_shell() {
  local activities
  for activities in kactivitymanagerd /usr/lib/*/libexec/kactivitymanagerd; do
    ! command -v "$activities" >/dev/null || { background activities "$activities"; break; }
  done
  background shell plasmashell --no-respawn
  waitfor 60 shell_is_up
}

restart() {
  stop_owner org.kde.plasmashell
  plasmashell --no-respawn >>"$LAB/shell.log" 2>&1 &
  waitfor 60 shell_is_up
}
export -f restart shell_is_up stop_owner waitfor owner
