# Sourced by run, test and bench: installs the Debian packages that are missing, and builds.
# Needs root or sudo only when something is missing.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

kinalyx_packages=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-svg-dev qt6-l10n-tools qt6-translations-l10n libgl-dev fonts-inter
  libavformat-dev libavcodec-dev libavfilter-dev libavutil-dev libswscale-dev libswresample-dev
  libgstreamer1.0-dev libgstreamer-plugins-base1.0-dev
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-bad gstreamer1.0-libav
  gstreamer1.0-x gstreamer1.0-pulseaudio gstreamer1.0-pipewire
  libpulse-dev libglib2.0-dev libyuv-dev libturbojpeg0-dev libfmt-dev nlohmann-json3-dev libxxhash-dev
  libopencv-core-dev libopencv-imgproc-dev
  libcups2-dev fonts-liberation libcurl4-openssl-dev libburn-dev libisofs-dev
  libavc1394-tools?
)
kinalyx_test_packages=(libgtest-dev libgmock-dev ffmpeg dbus-daemon python3-aiosmtpd python3-pyftpdlib python3-openssl openssl xorriso)
kinalyx_lint_packages=(clang-format clang-tidy)

# A name that ends in "?" is welcome but not needed: it is taken only where Debian has it.
kinalyx_install() {
  local package missing=() wanted=()
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "${package%\?}" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "These packages are missing and need root or sudo to install: ${missing[*]}" >&2; return 1; }
    sudo=(sudo)
  fi
  # A fresh machine has no package lists at all; an old list may name versions that have gone.
  "${sudo[@]}" apt-get update -qq || return 1
  for package in "${missing[@]}"; do
    case $package in
      *\?) apt-cache show "${package%\?}" >/dev/null 2>&1 && wanted+=("${package%\?}") ;;
      *) wanted+=("$package") ;;
    esac
  done
  [ ${#wanted[@]} -eq 0 ] && return 0
  echo "Installing: ${wanted[*]}"
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${wanted[@]}" >/dev/null ||
    { echo "Debian could not install: ${wanted[*]}" >&2; return 1; }
}

# kinalyx_build FOLDER "CMAKE OPTIONS" TARGET...
kinalyx_build() {
  local folder=$1 options=$2
  shift 2
  # shellcheck disable=SC2086
  cmake -G Ninja -S "$top" -B "$folder" $options >"$folder.log" 2>&1 || { cat "$folder.log" >&2; return 1; }
  cmake --build "$folder" --target "$@"
}
