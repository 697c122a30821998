# What the scripts share. First what each needs of the system, as Debian 12 packages.

packages_build="g++ cmake ninja-build qt6-base-dev qt6-svg-dev libhwy-dev libcli11-dev nlohmann-json3-dev"
# Metric twins of the fonts that the forms ask for.
packages_program="fonts-liberation fonts-dejavu-core"
packages_test="doxygen libgtest-dev python3 locales xvfb xauth poppler-utils"
packages_bench="libbenchmark-dev"
packages_screenshot="xvfb xauth xdotool imagemagick"
packages_package="lintian desktop-file-utils appstream shared-mime-info dpkg-dev file xvfb xauth xdotool"
packages_ci="clang libclang-rt-14-dev clang-format clang-tidy g++-aarch64-linux-gnu qemu-user googletest"

# Installs those of the given packages that are missing. Asks apt-get nothing if none is.
need() {
    local missing="" package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' ||
            missing="$missing $package"
    done
    [ -z "$missing" ] && return
    echo "Installing:$missing"
    local root=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Install these as root first:$missing" >&2; exit 1; }
        root=sudo
    fi
    $root apt-get -qq update
    # shellcheck disable=SC2086
    $root env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends $missing
}

# The preset that tests and package are built by; CI takes one that turns warnings into errors.
preset=${PARABOLT_PRESET:-release}

# A compiler cache helps where there is one.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

# Configures a preset and builds a target of it: build_preset PRESET TARGET [OPTION...]
build_preset() {
    local by=$1 target=$2
    shift 2
    cmake --preset "$by" "$@" >/dev/null
    cmake --build --preset "$by" --target "$target"
}

# Waits for the window of this title and gives it the keyboard; sets `window`.
focus() {
    window=""
    for _ in $(seq 100); do
        window=$(xdotool search --onlyvisible --name "$1" || true)
        [ -n "$window" ] && break
        sleep 0.1
    done
    [ -n "$window" ] || { echo "The window '$1' did not come." >&2; exit 1; }
    xdotool windowfocus --sync "$window"
    sleep 0.3
}
