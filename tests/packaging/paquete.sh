#!/bin/sh
# The Debian package as it is made by CPack: BUILD CPACK. It must please lintian, depend on what
# nothing in the executable tells of, and leave nothing when it is removed. 77: a tool is missing.
for orden in dpkg-shlibdeps file lintian; do
  command -v $orden >/dev/null || { echo "$orden is missing"; exit 77; }
done
set -e
taller=$(mktemp -d)
trap 'rm -rf "$taller"' EXIT
"$2" --config "$1/CPackConfig.cmake" -B "$taller" >"$taller/cpack.txt" 2>&1 ||
  { cat "$taller/cpack.txt"; exit 1; }
paquete=$(echo "$taller"/velda_*.deb)

lintian --allow-root --fail-on error,warning "$paquete"
depende=$(dpkg-deb -f "$paquete" Depends)
for falta in fonts-liberation libqt6gui6 libqt6svg6; do
  echo "$depende" | grep -q "$falta" || { echo "does not depend on $falta: $depende"; exit 1; }
done

# dpkg gives files away to root, which only root can.
[ "$(id -u)" -eq 0 ] || { echo "not removed: only root can install a package"; exit 0; }
raiz=$taller/raiz
mkdir -p "$raiz/var/lib/dpkg/info" "$raiz/var/lib/dpkg/updates"
: >"$raiz/var/lib/dpkg/status"
dpkg --root="$raiz" --force-depends --log=/dev/null -i "$paquete" >/dev/null 2>&1
[ -x "$raiz/usr/bin/velda" ] || [ -x "$raiz/usr/lib/velda/velda" ]
dpkg --root="$raiz" --log=/dev/null -P velda >/dev/null
restos=$(find "$raiz" -not -path "$raiz/var*" -not -path "$raiz")
[ -z "$restos" ] || { echo "left behind: $restos"; exit 1; }
