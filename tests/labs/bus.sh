# SPDX-License-Identifier: MIT
# Sourced by labs after lab.sh: a message bus on which no service can be started, so that a test has the
# programs that its lab has started, whatever else is installed.

closed_bus() {
  cat >"$lab/bus.conf" <<X
<busconfig><type>session</type><listen>unix:path=$XDG_RUNTIME_DIR/bus</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/></policy></busconfig>
X
  local answer
  answer=$(dbus-daemon --config-file="$lab/bus.conf" --fork --print-address=1 --print-pid=1)
  export DBUS_SESSION_BUS_ADDRESS=${answer%%$'\n'*}
  pids+=("${answer##*$'\n'}")
}

# owned NAME: somebody has this name.
owned() {
  gdbus call --session -d org.freedesktop.DBus -o /org/freedesktop/DBus \
    -m org.freedesktop.DBus.NameHasOwner "$1" | grep -q true
}

# libexec PATH: the program of that path below the folder for programs that no user calls.
libexec() {
  local folder
  for folder in /usr/libexec /usr/lib/*/ /usr/lib; do
    [ ! -x "$folder/$1" ] || { echo "$folder/$1"; return; }
  done
  echo "$1"
}
