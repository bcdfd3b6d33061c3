#!/bin/sh
# Installs those of the Debian packages given that are not installed yet,
# with apt-get, as root or through sudo.
#
#   sh scripts/install-missing.sh PACKAGE...
set -eu
missing=""
for package in "$@"; do
  dpkg -s "$package" >/dev/null 2>&1 || missing="$missing $package"
done
if [ -n "$missing" ]; then
  as_root=""
  [ "$(id -u)" -eq 0 ] || as_root="sudo"
  $as_root apt-get update
  # shellcheck disable=SC2086
  DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y --no-install-recommends $missing
fi
