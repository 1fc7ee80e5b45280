#!/usr/bin/env bash
# On a clean Debian, as root: installs the packages, with what README.md's programs need beside them, and
# runs its blocks. Changes the machine: scripts/check-packages gives it one of its own.
set -euo pipefail
cd "$(dirname "$0")/../.."
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

apt_options=(-y -qq --no-install-recommends -o Dpkg::Use-Pty=0)
apt-get update -qq
apt-get install "${apt_options[@]}" ./build/packages/*.deb >/dev/null
apt-get install "${apt_options[@]}" \
  gcc libc6-dev pkg-config python3-numpy python3-matplotlib bash-completion >/dev/null
vcm --version
python3 tests/docs/run_page.py . build /usr README.md

apt-get purge "${apt_options[@]}" libvcm1 >/dev/null
if find /usr -path '*vcm*' ! -path '*/__pycache__*' | grep .; then
  echo "these files are left when the packages go" >&2
  exit 1
fi
