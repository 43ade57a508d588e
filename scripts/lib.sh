# Shared by run, test and the scripts: the top folder, progress, clear failures, packages.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '== %s\n' "$*"; }

fail() {
  printf '== %s\n' "$*" >&2
  exit 1
}

# Installs the Debian packages that are not there yet.
install_packages() {
  local missing=() package
  while read -r package; do
    case $package in '' | '#'*) continue ;; esac
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done < "$top/scripts/packages"
  if [ ${#missing[@]} -eq 0 ]; then
    say "All packages are installed."
    return
  fi
  command -v apt-get >/dev/null || fail "These packages are missing and there is no apt-get to install them: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "These packages are missing; install them as root: ${missing[*]}"
    as_root=(sudo)
  fi
  say "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq || fail "apt-get update failed; is the package mirror within reach?"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
    || fail "Installing the packages failed; the lines above say why."
}

# Seconds since the script began, for the closing line.
took() { printf '%d min %02d s' $((SECONDS / 60)) $((SECONDS % 60)); }
