# What the scripts share: where the tree is, what they say, and the packages.
set -eu
top=$(cd "$(dirname "$0")/.." && pwd)

say() { printf '%s\n' "$*" >&2; }

have_packages() {
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || return 1
  done
}

# install PACKAGE... : installs what is missing, by apt, once and quietly.
install_packages() {
  have_packages "$@" && return 0
  if ! command -v apt-get >/dev/null; then
    say "These packages (by their Debian names) are needed: $*"
    return 1
  fi
  root=
  [ "$(id -u)" = 0 ] || root=sudo
  say "Installing with apt: $*"
  $root apt-get -qq update >/dev/null
  DEBIAN_FRONTEND=noninteractive $root apt-get -qq install -y --no-install-recommends "$@" >/dev/null
}
