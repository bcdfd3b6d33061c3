#!/bin/sh
# Checks a Debian package of Vorlex made by `cpack -G DEB`: its files are
# those of tests/data/package-files.expected, its dependencies name a package
# for every library its programs link, and its programs run from the
# unpacked package: the version, and the charts of the example saved
# without a window.
#
#   sh scripts/check-package.sh build/vorlex_0.1.0_amd64.deb
set -eu
if [ $# -ne 1 ] || [ ! -f "$1" ]; then
  echo "usage: sh scripts/check-package.sh PACKAGE.deb" >&2
  exit 2
fi
deb=$1
top=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
fail() {
  echo "check-package: $*" >&2
  failed=1
}

# The files, with their permissions and owners; sizes and dates vary.
dpkg-deb -c "$deb" | awk '{ print $1, $2, $6 }' >"$work/files"
if ! diff -u "$top/tests/data/package-files.expected" "$work/files"; then
  fail "the files differ from tests/data/package-files.expected (above)"
fi

# Every library the programs link comes from a package the package depends on.
depends=$(dpkg-deb -f "$deb" Depends)
dpkg-deb -x "$deb" "$work/root"
for program in "$work"/root/usr/bin/*; do
  for library in $(objdump -p "$program" | awk '$1 == "NEEDED" { print $2 }'); do
    path=$(ldd "$program" | awk -v l="$library" '$1 == l { print $3 }')
    owner=$(dpkg -S "$path" 2>/dev/null || dpkg -S "$(readlink -f "$path")" 2>/dev/null || true)
    owner=${owner%%:*}
    if [ -z "$owner" ]; then
      fail "$(basename "$program"): no package holds $library ($path)"
    elif ! echo ", $depends," | grep -q ", $owner[ ,]"; then
      fail "$(basename "$program") links $library of $owner, which Depends lacks: $depends"
    fi
  done
done
# Every package named there is one apt knows, so that apt install finds it.
for package in $(echo "$depends" | sed 's/([^)]*)//g; s/,/ /g'); do
  apt-cache show --no-all-versions "$package" >/dev/null 2>&1 || fail "apt does not know $package"
done

# The man pages are gzipped and, where groff is at hand, read without warnings.
for page in "$work"/root/usr/share/man/man1/*.1.gz; do
  gzip -t "$page" || fail "$(basename "$page") is not gzipped"
  if command -v groff >/dev/null; then
    warnings=$(gzip -dc "$page" | groff -man -Tutf8 -ww -z 2>&1 || echo "groff failed")
    [ -z "$warnings" ] || fail "$(basename "$page"): $warnings"
  fi
done

# The installed programs run.
version=$(dpkg-deb -f "$deb" Version)
[ "$("$work/root/usr/bin/vorlex" --version)" = "vorlex $version" ] || fail "vorlex --version does not say $version"
[ "$("$work/root/usr/bin/vorlex-gui" --version)" = "vorlex-gui $version" ] ||
  fail "vorlex-gui --version does not say $version"
mkdir "$work/run"
cp "$work/root/usr/share/doc/vorlex/examples/moth.txt" "$work/run/"
if env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$work/root/usr/bin/vorlex-gui" \
  --save-charts "$work/run/charts" --size 400x300 "$work/run/moth.txt" --sim-time 20 >"$work/run/log" 2>&1 &&
  [ -s "$work/run/charts/cycle-00-Stage-size.png" ] && [ -s "$work/run/charts/cycle-00-Stage-size.svg" ]; then
  :
else
  cat "$work/run/log" >&2
  fail "vorlex-gui --save-charts did not save the example's stage chart"
fi

if [ "$failed" -ne 0 ]; then
  exit 1
fi
echo "check-package: $deb is fine ($(wc -l <"$work/files") entries; Depends: $depends)"
