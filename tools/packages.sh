# Sourced by the scripts: the Debian packages that each job needs, and their installation.

packages_run="dosbox fonts-liberation libqt6widgets6 libqt6svg6 xdg-utils"
packages_build="cmake g++ libexpat1-dev libxcb1-dev nasm ninja-build python3 qt6-base-dev qt6-svg-dev"
packages_test="appstream at-spi2-core dbus desktop-file-utils libgmock-dev libgtest-dev openbox python3-pyatspi
  x11-utils xdotool xvfb"
packages_ci="clang clang-format clang-tidy libbenchmark-dev libclang-rt-14-dev"
packages_real="mame"
packages_package="dpkg-dev file"
packages_bare="debootstrap git util-linux"

# Prints those of the packages named that aren't installed.
missing_packages() {
  local name installed
  # dpkg-query fails if it doesn't know one of them.
  installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
  for name in "$@"; do
    grep -qxF -- "$name installed" <<<"$installed" || printf '%s\n' "$name"
  done
}

# Installs those of the packages named that are missing. Asks the network for nothing if none is.
need_packages() {
  local missing as_root=()
  if ! command -v dpkg-query >/dev/null; then
    echo "This system isn't Debian, so nothing was installed. Needed, by Debian's names: $*" >&2
    return 0
  fi
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -eq 0 ] && return 0

  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and installing them takes root or sudo:" >&2
      echo "  apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get -q -o DPkg::Lock::Timeout=300 update ||
    echo "The package lists couldn't be refreshed; going on with those at hand." >&2
  if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y \
    -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}"; then
    echo "Installing failed, see above. The program needs: ${missing[*]}" >&2
    return 1
  fi
}
