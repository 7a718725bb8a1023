# What Numerello needs from the distribution, and how it gets there. Sourced by ./run, ./test and the
# scripts.

BUILD_PACKAGES="g++ cmake ninja-build nlohmann-json3-dev libcli11-dev
    qt6-base-dev qt6-svg-dev python3-fonttools fonts-texgyre fonts-liberation"
TEST_PACKAGES="libgtest-dev libbenchmark-dev clang libclang-rt-dev
    xvfb openbox xdotool xsel x11-utils scrot dbus at-spi2-core python3-gi gir1.2-atspi-2.0
    poppler-utils desktop-file-utils appstream shared-mime-info man-db"
COVERAGE_PACKAGES="lcov"
PACKAGE_PACKAGES="dpkg-dev"
TRY_PACKAGES="debootstrap xvfb openbox xdotool x11-utils scrot"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        echo "Root rights are needed for: $*" >&2
        return 1
    fi
}

# install_missing PACKAGE...: installs those that are not there yet.
install_missing() {
    if ! command -v dpkg-query >/dev/null 2>&1; then
        echo "This is no Debian system; please install what matches: $*" >&2
        return 0
    fi
    missing=""
    for package in "$@"; do
        case "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" in
            "install ok installed") ;;
            *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0
    echo "Installing:$missing" >&2
    install_log=$(mktemp)
    # shellcheck disable=SC2086
    if ! { as_root apt-get update &&
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends $missing; } >"$install_log" 2>&1; then
        tail -n 20 "$install_log" >&2
        rm -f "$install_log"
        echo "The packages could not be installed." >&2
        return 1
    fi
    rm -f "$install_log"
}

# quietly LOG COMMAND...: the output goes to the log and is shown when the command fails.
quietly() {
    quiet_log=$1
    shift
    if ! "$@" >"$quiet_log" 2>&1; then
        tail -n 60 "$quiet_log" >&2
        return 1
    fi
}
