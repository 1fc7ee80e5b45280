#!/usr/bin/env bash
# On a clean Debian, as root: installs the packages as README.md says, and runs its blocks. Changes the
# machine: scripts/check-packages gives it one of its own.
set -euo pipefail
cd "$(dirname "$0")/../.."
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 APT_CONFIG
APT_CONFIG=$(mktemp)
cat >"$APT_CONFIG" <<END
APT::Get::Assume-Yes "true";
APT::Install-Recommends "false";
Dpkg::Use-Pty "false";
END

{
  apt-get update
  apt-get install ./build/packages/*.deb gcc libc6-dev pkg-config python3-matplotlib
} >/dev/null
vcm --version
python3 tests/docs/run_page.py . build /usr README.md

files=$(dpkg -L libvcm1 libvcm-dev vcm python3-vcm | grep vcm)
apt-get purge libvcm1 >/dev/null
for file in $files; do
  [ ! -e "$file" ] || { echo "$file is left when the packages go" >&2; exit 1; }
done
