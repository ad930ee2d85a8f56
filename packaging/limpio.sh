#!/usr/bin/env bash
# Proves on a clean Debian 12 that ./run is enough to build and start the program, that the package
# installs with nothing but what it depends on, runs for an ordinary user, and leaves without a
# trace. As root; takes some minutes and about 4 GB under TMPDIR. Leaves two pictures and the
# package in out/limpio/. The mirror is the one that this machine's apt is set to.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source packaging/paquetes.sh
export LC_ALL=C

readonly SUITE=bookworm
readonly SALIDA=$PWD/out/limpio
readonly PLAZO=60  # seconds until something expected counts as missing

decir() { echo "=== $*"; }
fallar() { echo "limpio.sh: $*" >&2; exit 1; }

# --- a clean system

espejo() {
  apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "CODENAME: $SUITE" \
    'COMPONENT: main' 'ORIGIN: Debian' | head -n 1
}

# The machine's own Debian sources and the way it reaches them, for the system in $1.
configurar_apt() {
  apt-get indextargets --format 'deb $(SITE) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
    'ORIGIN: Debian' | grep " $SUITE" | sort -u >"$1/etc/apt/sources.list"
  apt-config dump | grep '^Acquire::' | grep -v '^Acquire::IndexTargets' \
    >"$1/etc/apt/apt.conf.d/00anfitrion" || true
  echo 'Dpkg::Use-Pty "0";' >>"$1/etc/apt/apt.conf.d/00anfitrion"
  echo force-unsafe-io >"$1/etc/dpkg/dpkg.cfg.d/00rapido"
  cp -L /etc/resolv.conf /etc/hosts "$1/etc/"
  if [[ -d /etc/ssl/certs ]]; then
    mkdir -p "$1/etc/ssl"
    cp -rL /etc/ssl/certs "$1/etc/ssl/"
  fi
}

crear_sistema() {
  local origen
  origen=$(espejo)
  [[ -n $origen ]] || fallar "apt knows no mirror of $SUITE; run apt-get update"
  debootstrap --variant=minbase "$SUITE" "$1" "$origen" >"$1.txt" 2>&1 ||
    { tail -n 20 "$1.txt" >&2; fallar "debootstrap failed; is it possible on this machine?"; }
  configurar_apt "$1"
}

# The kernel's folders in the system $1. The mounts are private to this process.
montar() {
  local carpeta
  for carpeta in proc sys dev; do mount --rbind "/$carpeta" "$1/$carpeta"; done
}

# Runs a command in the system $1, with nothing of this machine's environment.
dentro() {
  local sistema=$1
  shift
  chroot "$sistema" env -i HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@" </dev/null
}

# --- what is proved

construir() {
  local sistema=$1
  git clone -q --no-hardlinks . "$sistema/velda"
  dentro "$sistema" /velda/run
  cp "$sistema/velda/out/captura.png" "$SALIDA/construido.png"
  dentro "$sistema" sh -c 'cd /velda && ./packaging/empaquetar.sh'
  cp "$sistema"/velda/out/velda_*.deb "$SALIDA/"
}

instalar() {
  local sistema=$1
  rm -f "$sistema"/root/*.deb
  cp "$SALIDA"/velda_*.deb "$sistema/root/"
  dentro "$sistema" apt-get update -qq
  find "$sistema" -xdev -name '*velda*' -not -path "$sistema/root/*" >"$sistema.antes"
  [[ ! -s $sistema.antes ]] || fallar "the clean system knows the program already"
  dentro "$sistema" sh -c 'apt-get install -y -qq --no-install-recommends /root/velda_*.deb'
  dentro "$sistema" useradd --create-home persona
}

# Starts the installed program as an ordinary user on a screen of this machine's, and closes it.
arrancar() {
  local sistema=$1 pantalla programa ventana
  exec 3< <(exec Xvfb -displayfd 1 -ac -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null)
  procesos+=($!)
  read -r -t "$PLAZO" pantalla <&3 || fallar "no virtual screen"
  export DISPLAY=:$pantalla
  openbox >/dev/null 2>&1 &
  procesos+=($!)
  timeout "$PLAZO" sh -c 'until wmctrl -m >/dev/null 2>&1; do sleep 0.1; done' ||
    fallar "no window manager"
  chroot --userspec=persona:persona "$sistema" env -i HOME=/home/persona DISPLAY="$DISPLAY" \
    PATH=/usr/bin:/bin velda >"$sistema.dicho" 2>&1 </dev/null &
  programa=$!
  procesos+=("$programa")
  timeout "$PLAZO" xdotool search --sync --onlyvisible --name '^Archivo: ' >/dev/null ||
    { cat "$sistema.dicho" >&2; fallar "the installed program shows no window"; }
  ventana=$(xdotool search --onlyvisible --name '^Velda\.\.\.$' | head -n 1)
  xprop -id "$ventana" WM_CLASS
  import -silent -window root "$SALIDA/instalado.png"
  wmctrl -i -c "$ventana"
  wait "$programa" || fallar "the installed program ended with $?"
}

comprobar_ajustes() {
  local sistema=$1
  ls -l "$sistema/home/persona/.config/velda/Velda.INI" || fallar "no settings in ~/.config/velda"
  dentro "$sistema" dpkg --verify velda
  [[ ! -e $sistema/usr/lib/velda/Velda.INI ]] || fallar "settings in the system's folder"
}

quitar() {
  local sistema=$1 restos
  dentro "$sistema" apt-get purge -y -qq velda
  restos=$(find "$sistema" -xdev \( -name '*velda*' -o -name 'Velda*' \) \
    -not -path "$sistema/root/*" -not -path "$sistema/home/*" -not -path "$sistema/var/log/*")
  [[ -z $restos ]] || fallar "left behind: $restos"
}

# --- the order of things

probar() {
  local taller=$1
  procesos=()
  trap 'kill "${procesos[@]}" 2>/dev/null || true' EXIT
  decir "A clean Debian ($SUITE)"
  crear_sistema "$taller/construye"
  cp -a "$taller/construye" "$taller/instala"
  montar "$taller/construye"
  montar "$taller/instala"
  decir "./run in it"
  construir "$taller/construye"
  decir "The package in another"
  instalar "$taller/instala"
  decir "The installed program"
  arrancar "$taller/instala"
  comprobar_ajustes "$taller/instala"
  decir "Removing it"
  quitar "$taller/instala"
  decir "All of it worked. Pictures and package: $SALIDA"
}

if [[ ${1:-} == --dentro ]]; then
  probar "$2"
  exit
fi
((EUID == 0)) || fallar "needs root"
instalar_faltantes debootstrap git "${PAQUETES_ESCRITORIO[@]}"
mkdir -p "$SALIDA"
rm -f "$SALIDA"/*
taller=$(mktemp -d)
trap 'rm -rf --one-file-system "$taller"' EXIT
# In a mount namespace of its own: when it ends, no mount of it is left under the folder removed.
unshare --mount --propagation private "$PWD/packaging/limpio.sh" --dentro "$taller"
