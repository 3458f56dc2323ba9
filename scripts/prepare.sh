# Sourced by the other scripts: changes to the project's folder, installs what building and testing
# needs, and offers them `install_packages` and `build_preset`.

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# What building and testing needs, as Debian and Ubuntu call it.
needed_packages=(g++ cmake ninja-build qtbase5-dev qtbase5-dev-tools libqt5svg5-dev qttools5-dev
                 qttools5-dev-tools qttranslations5-l10n rapidjson-dev fonts-dejavu-core groff-base
                 abigail-tools)

as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    else
        echo "-- running with sudo: $*"
        sudo "$@"
    fi
}

# Installs those of the given packages that are not there yet.
install_packages() {
    if ! command -v apt-get >/dev/null; then
        echo "-- not a Debian or Ubuntu system. These are needed, under the names they have here:"
        echo "   a C++17 compiler, CMake 3.25 or later, Ninja, Qt 5.15 (Core, Gui, Svg, Test,"
        echo "   Widgets, LinguistTools), RapidJSON, a font"
        return
    fi
    local missing=() package
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) == *"ok installed" ]] \
            || missing+=("$package")
    done
    [[ ${#missing[@]} -eq 0 ]] && return
    if [[ $EUID -ne 0 ]] && ! command -v sudo >/dev/null; then
        echo "-- these packages have to be installed first, by root: ${missing[*]}" >&2
        return 1
    fi
    echo "-- installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build_preset NAME [TARGET...]: configures it once, builds what has changed.
build_preset() {
    local preset=$1
    shift
    [[ -f build/$preset/build.ninja ]] || cmake --preset "$preset" -Wno-dev
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

install_packages "${needed_packages[@]}"
