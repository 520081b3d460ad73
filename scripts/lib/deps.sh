# Package installation shared by the scripts: installs only what is missing,
# so that a machine that has everything pays one dpkg query.
TEXTZONE_PACKAGES=(cmake ninja-build g++ libgtest-dev libgmock-dev libbenchmark-dev
                   qt6-base-dev fonts-dejavu-core pkgconf poppler-utils)

textzone_install_deps() {
  local missing=()
  local pkg
  for pkg in "${TEXTZONE_PACKAGES[@]}" "$@"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q 'install ok installed'; then
      missing+=("$pkg")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
