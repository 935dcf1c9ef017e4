#!/usr/bin/env bash
# The Debian packages of this build: each holds its files (package-contents.txt), the core package depends on
# no Qt package and its plovix loads no Qt library, the core package alone lists its modulons, and lintian (when
# installed) finds no errors.
source "$(dirname "$0")/common.sh"
here=$(cd "$(dirname "$0")" && pwd)
if ! cpack --config "$PLOVIX_BUILD/CPackConfig.cmake" -B "$scratch" >"$scratch/cpack.log" 2>&1; then
  cat "$scratch/cpack.log" >&2
  fail "cpack"
fi
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
deb() { ls "$scratch/$1"_*.deb; }

while IFS=$'\t' read -r package path; do
  [[ -z $package || $package == \#* ]] && continue
  # A build without Qt makes no Qt package.
  [[ $package == plovix-qt && $PLOVIX_QT_PACKAGE == 0 ]] && continue
  [ -f "$scratch/$package.list" ] || dpkg-deb -c "$(deb "$package")" | awk '{print $6}' >"$scratch/$package.list"
  wanted=${path#!}
  wanted=${wanted//<ma>/$multiarch}
  if grep -qxF "$wanted" "$scratch/$package.list"; then
    [ "$path" = "$wanted" ] || [[ $path != !* ]] || fail "$package holds $wanted"
  else
    [[ $path == !* ]] || fail "$package lacks $wanted"
  fi
done <"$here/package-contents.txt"

core_depends=$(dpkg-deb -f "$(deb plovix)" Depends)
grep -qi qt <<<"$core_depends" && fail "the core package depends on Qt: $core_depends"
grep -q libedit2 <<<"$core_depends" || fail "the core package lacks the console's line editor: $core_depends"
if [ "$PLOVIX_QT_PACKAGE" = 1 ]; then
  qt_depends=$(dpkg-deb -f "$(deb plovix-qt)" Depends)
  grep -q "libqt6widgets6" <<<"$qt_depends" && grep -q "plovix (= " <<<"$qt_depends" ||
    fail "plovix-qt's dependencies: $qt_depends"
fi

dpkg-deb -x "$(deb plovix)" "$scratch/core"
ldd "$scratch/core/usr/bin/plovix" "$scratch/core/usr/lib/$multiarch/libvamlet.so.0" >"$scratch/ldd.txt"
grep -q "libplovixhost.so.0 => $scratch/core/" "$scratch/ldd.txt" || fail "plovix finds its own libraries"
grep -qi "libQt" "$scratch/ldd.txt" && fail "plovix or libvamlet.so loads Qt: $(grep -i libQt "$scratch/ldd.txt")"
"$scratch/core/usr/bin/plovix" --list-modulons | grep "^lpm_counter	" >/dev/null || fail "the core package lists its modulons"

if command -v lintian >/dev/null; then
  # Exit status 1 means tags at error level, anything higher that lintian itself failed.
  status=0
  lintian --no-cfg "$scratch"/*.deb >"$scratch/lintian.txt" 2>&1 || status=$?
  cat "$scratch/lintian.txt"
  [ "$status" -le 1 ] || fail "lintian did not run"
  ! grep -q "^E:" "$scratch/lintian.txt" || fail "lintian reports errors"
fi
echo "packages: $(cd "$scratch" && ls ./*.deb | tr '\n' ' ')"
