#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# boot.sh TREE: becomes the systemd of the system in TREE. To be run as the first process of namespaces of its own.
set -euo pipefail
cd "$1"
mount --rbind . . && cd "$1"
mount -t proc proc proc
mount -t sysfs sysfs sys
if [ "$(stat -f -c %T /sys/fs/cgroup)" = cgroup2fs ]; then
  mount -t cgroup2 cgroup2 sys/fs/cgroup
else
  mount -t tmpfs -o mode=755 tmpfs sys/fs/cgroup
  mkdir sys/fs/cgroup/{unified,systemd}
  mount -t cgroup2 cgroup2 sys/fs/cgroup/unified
  mount -t cgroup -o none,name=systemd cgroup sys/fs/cgroup/systemd
fi
mount -t tmpfs -o mode=755 tmpfs run
mount -t tmpfs -o mode=755 tmpfs dev
for device in null zero full random urandom tty; do
  touch "dev/$device"
  mount --bind "/dev/$device" "dev/$device"
done
mkdir dev/pts dev/shm
mount -t devpts -o newinstance,ptmxmode=0666 devpts dev/pts
ln -s pts/ptmx dev/ptmx
touch dev/console # where it writes what it does
ip link set lo up
exec env -i container=lxc PATH=/usr/sbin:/usr/bin chroot . /lib/systemd/systemd --unit=multi-user.target
