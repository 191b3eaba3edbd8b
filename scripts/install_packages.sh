#!/bin/bash
# install_packages.sh run|test: installs what is missing of the packages that playing, or testing as
# well, needs (Debian 12). With nothing missing it neither asks for rights nor touches the network.
set -euo pipefail

run_packages=(
    # To build.
    g++ cmake ninja-build ccache qt6-base-dev qt6-tools-dev libqt6opengl6-dev libgl-dev pkg-config
    libgstreamer1.0-dev libgstreamer-plugins-base1.0-dev libsndfile1-dev libcdio-dev
    libgraphicsmagick++1-dev libavcodec-dev libavformat-dev libswscale-dev libseccomp-dev
    # To run: drawings in PostScript.
    ghostscript
    # To run: picture kinds, the window systems, Qt's own dialogs in Japanese, fonts.
    qt6-image-formats-plugins libqt6svg6 qt6-qpa-plugins libxcb-cursor0 qt6-wayland
    qt6-translations-l10n fonts-ipafont-gothic fonts-ipafont-mincho
    # To run: sound and video of all kinds, MIDI instruments.
    gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-bad
    gstreamer1.0-plugins-ugly gstreamer1.0-libav gstreamer1.0-alsa timgm6mb-soundfont libsndfile1
    # The scripts.
    python3
)
test_packages=(
    libgtest-dev libgmock-dev git
    clang clang-tidy clang-format libclang-rt-14-dev llvm
    xvfb xauth xdotool x11-xserver-utils openbox weston imagemagick dbus-daemon
    # To check what is installed, and the package.
    desktop-file-utils appstream shared-mime-info libglib2.0-bin man-db groff-base lintian
    # Make pictures of every kind for the tests.
    graphicsmagick netpbm ffmpeg libheif-examples libjxl-tools libtiff-tools
    # Benchmarks compare with these.
    feh mpv
    libbenchmark-dev libturbojpeg0-dev libjpeg-dev libxcb1-dev libxcb-xtest0-dev
    gstreamer1.0-plugins-base-apps
    gstreamer1.0-tools
    # A microphone for the tests.
    pulseaudio
)

case ${1:-run} in
    run) wanted=("${run_packages[@]}") ;;
    test) wanted=("${run_packages[@]}" "${test_packages[@]}") ;;
    *) echo "usage: install_packages.sh run|test" >&2; exit 2 ;;
esac

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    if [[ $status != installed ]]; then missing+=("$package"); fi
done
if [[ ${#missing[@]} -eq 0 ]]; then exit 0; fi

echo "Installing: ${missing[*]}"
as_root=()
if [[ $(id -u) -ne 0 ]]; then as_root=(sudo); fi
install=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q
    --no-install-recommends "${missing[@]}")
# The lists may be absent or old: fetch them only where the first try fails.
if ! "${install[@]}"; then
    "${as_root[@]}" apt-get update -q
    "${install[@]}"
fi
