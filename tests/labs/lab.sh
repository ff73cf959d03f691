# SPDX-License-Identifier: MIT
# Sourced by the labs: a private folder, display and bus for a real desktop; everything that was started ends
# with the script, by process id. Usage of a lab: NAME.sh COMMAND…, which runs inside; its status is the lab's.
set -u
lab=$(mktemp -d "${TMPDIR:-/tmp}/moravel-lab.XXXXXX")
pids=()
mkdir -p "$lab"/{home,config,cache,data}
mkdir -m 700 "$lab/run"
export HOME=$lab/home XDG_CONFIG_HOME=$lab/config XDG_CACHE_HOME=$lab/cache XDG_DATA_HOME=$lab/data
export XDG_RUNTIME_DIR=$lab/run XDG_DATA_DIRS=/usr/local/share:/usr/share XDG_CONFIG_DIRS=/etc/xdg
export LANG=C.UTF-8 NO_AT_BRIDGE=1 GIO_USE_VFS=local LAB=$lab
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS XDG_CURRENT_DESKTOP

# Processes of this lab: also those that the bus has started have its folder in their environment.
members() {
  local p
  for p in /proc/[0-9]*; do
    grep -qzx "XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR" "$p/environ" 2>/dev/null || continue
    [ "${p#/proc/}" = $$ ] || [ "${p#/proc/}" = "$BASHPID" ] || echo "${p#/proc/}"
  done
}

finish() {
  trap - EXIT
  local p
  for p in "${pids[@]}" $(members); do kill "$p" 2>/dev/null; done
  sleep 0.3
  for p in $(members); do kill -9 "$p" 2>/dev/null; done
  rm -rf "$lab"
}
trap finish EXIT
trap 'exit 143' TERM INT

# background NAME COMMAND…
background() { local name=$1; shift; "$@" >"$lab/$name.log" 2>&1 & pids+=($!); }

# waitfor SECONDS COMMAND…: until it succeeds.
waitfor() {
  local end=$((SECONDS + $1)); shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$end" ] || { echo "lab: gave up on: $*" >&2; tail -n 20 "$LAB"/*.log >&2; exit 1; }
    sleep 0.1
  done
}

bus() {
  local answer
  answer=$(dbus-daemon --session --fork --print-address=1 --print-pid=1)
  export DBUS_SESSION_BUS_ADDRESS=${answer%%$'\n'*}
  pids+=("${answer##*$'\n'}")
}

# owner NAME: who has a name on the bus.
owner() { gdbus call --session -d org.freedesktop.DBus -o / -m org.freedesktop.DBus.GetNameOwner "$1"; }

another_owner() { local now; now=$(owner "$1") && [ "$now" != "$2" ]; }

# stop_owner NAME: ends the process that has a name on the bus, and waits for that.
stop_owner() {
  local process
  process=$(gdbus call --session -d org.freedesktop.DBus -o / \
    -m org.freedesktop.DBus.GetConnectionUnixProcessID "$1" | grep -oE '[0-9]+,')
  kill "${process%,}"
  while kill -0 "${process%,}" 2>/dev/null; do sleep 0.05; done
}

window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'; }

# A system bus with nobody on it: some shells do not start without one.
system_bus() {
  cat >"$lab/system.conf" <<X
<busconfig><type>system</type><listen>unix:path=$lab/run/system</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>
X
  local answer
  answer=$(dbus-daemon --config-file="$lab/system.conf" --fork --print-address=1 --print-pid=1)
  export DBUS_SYSTEM_BUS_ADDRESS=${answer%%$'\n'*}
  pids+=("${answer##*$'\n'}")
}

# display COUNT: an X server whose screens DUMMY0… of 800x600 can be plugged and unplugged.
display() {
  cat >"$lab/xorg.conf" <<X
Section "Device"
  Identifier "d"
  Driver "dummy"
  VideoRam 256000
EndSection
Section "Monitor"
  Identifier "m"
  HorizSync 5-1000
  VertRefresh 5-200
EndSection
Section "Screen"
  Identifier "s"
  Device "d"
  Monitor "m"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Virtual 4096 2048
  EndSubSection
EndSection
Section "ServerFlags"
  Option "AutoAddDevices" "false"
EndSection
X
  mkfifo "$lab/number"
  Xorg -displayfd 7 -config "$lab/xorg.conf" -logfile "$lab/Xorg.0.log" -noreset -nolisten tcp -novtswitch \
    -sharevts vt7 7>"$lab/number" >"$lab/xorg.log" 2>&1 &
  pids+=($!)
  local number i outputs=(); read -r number <"$lab/number"
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb GDK_BACKEND=x11 XDG_SESSION_TYPE=x11
  for ((i = 0; i < $1; i++)); do
    [ "$i" -eq 0 ] || xrandr --addmode "DUMMY$i" 800x600
    outputs+=(--output "DUMMY$i" --mode 800x600 --pos $((i * 800))x0)
  done
  xrandr "${outputs[@]}" --output DUMMY0 --primary
}

# side_by_side: the two screens in place. Some window managers lay them out anew when they start.
side_by_side() {
  xrandr --output DUMMY0 --mode 800x600 --pos 0x0 --primary --output DUMMY1 --mode 800x600 --pos 800x0
  [ "$(xrandr | grep -cE '^DUMMY(0 connected primary 800x600[+]0|1 connected 800x600[+]800)[+]0 ')" = 2 ]
}
