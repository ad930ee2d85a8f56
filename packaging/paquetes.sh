# The Debian packages that the program is built, run and tested with: the one list of them.
# Read by ./run and ./test; defines PAQUETES_* and instalar_faltantes.

# The compiler, the toolkit with its Spanish texts, the fonts of the windows, the test libraries.
# libqt6gui6, which qt6-base-dev brings along, holds the plugin for X11; the one for a Wayland
# desktop without XWayland is a package of its own.
PAQUETES_CONSTRUIR=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-wayland qt6-svg-dev qt6-translations-l10n libglib2.0-dev libxcb1-dev
  fonts-liberation
  libgtest-dev libgmock-dev libbenchmark-dev
)

# A desktop without a screen: X server, two window managers, message bus, screen reader's bus, mouse
# and keys from a script.
PAQUETES_ESCRITORIO=(
  xvfb openbox jwm dbus-daemon at-spi2-core
  xdotool wmctrl x11-utils x11-xkb-utils xclip imagemagick
  python3 python3-pyatspi
)

# Making the Debian package: what it depends on is found by these two.
PAQUETES_EMPAQUETAR=(dpkg-dev file)

# What single tests call. The second row checks what is installed:
# menu entry, metainfo, manual, package.
PAQUETES_PROBAR=(
  strace attr acl util-linux mount clang-format
  desktop-file-utils appstream libxml2-utils groff-base mandoc lintian
)

# Only for ./test --tidy.
PAQUETES_TIDY=(clang-tidy)

# Installs those of the named packages that are missing; asks for no rights when none is.
instalar_faltantes() {
  local paquete faltan=() como=()
  for paquete in "$@"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$paquete" 2>/dev/null) == installed ]] ||
      faltan+=("$paquete")
  done
  ((${#faltan[@]})) || return 0
  echo "Installing: ${faltan[*]}"
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "As root: apt-get install ${faltan[*]}" >&2
      return 1
    fi
    como=(sudo)
  fi
  "${como[@]}" apt-get update -qq </dev/null
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${faltan[@]}" </dev/null
}
