#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# install.sh FOLDER: installs the packages in FOLDER in a bare Debian 12, uses them as someone without systemd
# would, with no network, and removes them. Leaves screenshots in FOLDER. Needs root (else status 77) and
# Debian's archive. MORAVEL_BARE_TREE names a bare system to copy instead of making one.
set -euo pipefail
[ "$(id -u)" -eq 0 ] || { echo "install.sh: needs root" >&2; exit 77; }
here=$(cd "$(dirname "$0")" && pwd)
ls "$1"/*.deb >/dev/null 2>&1 || { echo "install.sh: no packages in $1; scripts/build-package makes them" >&2; exit 77; }
packages=$(cd "$1" && pwd)

# Mounts and processes are in namespaces of their own, and end with them.
if [ "${2:-}" != inside ]; then
  tree=$(mktemp -d "${TMPDIR:-/var/tmp}/moravel-tree.XXXXXX")
  trap 'rm -rf --one-file-system "$tree"' EXIT
  chmod 755 "$tree" # the root of its users
  if [ -n "${MORAVEL_BARE_TREE:-}" ]; then
    cp -a "$MORAVEL_BARE_TREE/." "$tree"
  else
    debootstrap --variant=minbase bookworm "$tree" >"$tree.log" 2>&1 || { tail "$tree.log" >&2; exit 1; }
    rm "$tree.log"
    cp /etc/apt/apt.conf.d/*registry* "$tree/etc/apt/apt.conf.d/" 2>/dev/null || true
  fi
  cp /etc/resolv.conf "$tree/etc/"
  status=0
  unshare --mount --mount-proc --pid --fork --kill-child "$0" "$packages" inside "$tree" || status=$?
  exit "$status"
fi

tree=$3
step() { echo "== $*"; }
in_tree() { chroot "$tree" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
files() {
  in_tree find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /home \
    -o -path /packages -o -path /var/cache -o -path /var/lib/apt -o -path /var/lib/dpkg \
    -o -path /var/log -o -path /run \) -prune -o -print | sort
}
mount --make-rprivate /
mount -t proc proc "$tree/proc"
mount --rbind /dev "$tree/dev"
mkdir -p "$tree/packages"
mount --bind "$packages" "$tree/packages"

step "what the packages depend on"
needs=$(for deb in "$packages"/*.deb; do dpkg-deb -f "$deb" Depends; done \
  | sed -E 's/moravel-service \([^)]*\)(, )?//' | paste -sd, | sed 's/, *,/,/g')
in_tree apt-get update -qq
in_tree apt-get satisfy -qq --no-install-recommends "$needs, xvfb, dbus, curl, systemd-sysv, libpam-systemd, dbus-user-session" \
  >"$packages/install.log" 2>&1 || { tail "$packages/install.log" >&2; exit 1; }
in_tree useradd --create-home tester
files >"$packages/before.txt"

step "install"
in_tree sh -c 'dpkg -i /packages/*.deb' >>"$packages/install.log"
socket=etc/systemd/user/sockets.target.wants/moravel-service.socket
[ -L "$tree/$socket" ] || { echo "no user's socket is on" >&2; exit 1; }
[ ! -e "$tree/etc/systemd/system/multi-user.target.wants/moravel-service.service" ]
documents=$tree/usr/share/doc/moravel
for link in $(grep -ohP '\]\(\K(?!https?:)[^)#]+' "$documents"/*.md | sort -u); do
  [ -e "$documents/$link" ] || { echo "the installed documents lack $link" >&2; exit 1; }
done

step "use, without systemd and network"
install -m 755 "$here/session.sh" "$tree/home/tester/session.sh"
unshare --net sh -c 'ip link set lo up && exec "$@"' sh chroot --userspec=tester "$tree" \
  env -i HOME=/home/tester PATH=/usr/bin:/bin LC_ALL=C.UTF-8 dbus-run-session -- /home/tester/session.sh
cp "$tree"/home/tester/*.xwd "$packages/"

removed() {
  files >"$packages/after.txt"
  diff "$packages/before.txt" "$packages/after.txt" || { echo "removal left something, or took too much" >&2; exit 1; }
}
step "remove"
in_tree apt-get purge -qq moravel moravel-service >>"$packages/install.log"
removed

step "install while somebody is logged in, with systemd"
unshare --mount --pid --fork --kill-child --cgroup --net --ipc --uts "$here/boot.sh" "$tree" &
pid=$!
booted() { init=$(pgrep -P "$pid") && inside systemctl is-active -q multi-user.target 2>/dev/null; }
inside() {
  nsenter -t "$init" -m -p -n -u -i -C -r -w env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"
}
for ((i = 0; i < 600; i++)); do booted && break; sleep 0.1; done
inside loginctl enable-linger tester
inside systemctl start user@1000
inside sh -c 'dpkg -i /packages/*.deb' >>"$packages/install.log"
answers() { [[ $(inside curl -sf http://127.0.0.1:8642/potd/defs/getSources.irev) = *Moon* ]]; }
answers || { echo "no service for the user who is logged in" >&2; exit 1; }
inside systemctl --user -M tester@ is-active moravel-service.socket moravel-service.service
inside apt-get purge -qq moravel moravel-service >>"$packages/install.log"
! answers || { echo "the service outlived its package" >&2; exit 1; }
inside dpkg -i "/packages/$(basename "$packages"/moravel-service_*.deb)" >>"$packages/install.log"
! answers || { echo "the system's service is on though nobody asked for it" >&2; exit 1; }
inside systemctl enable --now -q moravel-service
for ((i = 0; i < 100; i++)); do answers && break; sleep 0.1; done
answers || { echo "the system's service does not answer" >&2; exit 1; }
inside systemctl is-active moravel-service
step "done"
