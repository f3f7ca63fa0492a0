# shellcheck shell=bash
# Sourced by ./run, ./test and packaging/build-package: installs what is missing and builds. Needs only Debian and bash.
# The caller has set `repository` to the top of the checkout.

# What a purpose needs besides its own. Not every library of the workstation can stand beside that of another architecture.
basis_of() {
    case $1 in
        arm64 | armhf) echo foreign ;;
        *) echo run ;;
    esac
}

packages_for() {
    local purpose=$1 basis package needed_for
    basis=$(basis_of "$1")
    while read -r package needed_for _; do
        case $package in '' | '#'*) continue ;; esac
        case ,$needed_for, in *,"$basis",* | *,"$purpose",*) echo "${package/%:foreign/:$purpose}" ;; esac
    done <"$repository/packages.txt"
}

missing_packages() {
    local package
    for package in $(packages_for "$1"); do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            echo "$package"
    done
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Packages are missing, and there is neither root nor sudo to install them." >&2
        return 1
    fi
}

package_lists_are_there() {
    apt-cache show "$1" >/dev/null 2>&1
}

# Runs a step with its output in a log, which is shown only if the step fails.
logged() {
    local log=$repository/build/$1.log
    shift
    mkdir -p "$repository/build"
    "$@" >"$log" 2>&1 || {
        cat "$log" >&2
        exit 1
    }
}

add_architectures() {
    local package
    for package in "$@"; do
        case $package in *:*) as_root dpkg --add-architecture "${package#*:}" || return ;; esac
    done
}

# Takes nothing away that is there for something else.
install_packages() {
    local package
    add_architectures "$@" || return
    for package in "$@"; do
        package_lists_are_there "$package" && continue
        as_root apt-get update -qq || return
        break
    done
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-remove --no-install-recommends "$@"
}

install_missing() {
    local missing
    missing=$(missing_packages "$1" | tr '\n' ' ')
    [ -n "$missing" ] || return 0
    echo "Installing: $missing" >&2
    # Word splitting is intended.
    # shellcheck disable=SC2086
    logged set-up install_packages $missing
}

# All targets, unless some are named.
configure_and_build() {
    local preset=$1
    shift
    [ "$repository/build/$preset/build.ninja" -nt "$repository/CMakePresets.json" ] || cmake -S "$repository" --preset "$preset" || return
    cmake --build "$repository/build/$preset" --target "${@:-all}"
}

# Configures a preset if it is new or has changed, and builds it.
build() {
    logged "$1" configure_and_build "$@"
}

# Skips a check, with status 77, unless the tool is of the version that the check is written for.
require_llvm() {
    local wanted=14
    "$1" --version | grep -q " version $wanted\." && return
    echo "skipped: $1 $wanted is needed, this is $("$1" --version | grep -o 'version [0-9.]*' | head -n 1)"
    exit 77
}
