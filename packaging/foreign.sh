# shellcheck shell=bash
# Sourced after set-up.sh by what builds for another architecture.
# shellcheck source=tools/bare.sh
source "$repository/tools/bare.sh"

# in_own_debian ARCHITECTURE SCRIPT ARGUMENT...: starts the script again in a Debian of the workstation's release, which is kept in
# build/bare. Some libraries of two architectures cannot be installed side by side, libisal-dev for one, and there is none of the
# workstation's there. Returns there, with all that is needed installed.
in_own_debian() {
    local architecture=$1 suite bare
    if [ "${TARNWICK_FOREIGN:-}" != "$architecture" ]; then
        [ "$(id -u)" -eq 0 ] || exec sudo "${@:2}"
        install_missing bare
        suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
        bare=$repository/build/bare/$suite-$architecture
        logged bare make_bare "$suite" "$bare"
        run_inside "$bare" "$repository" "$repository" env TARNWICK_FOREIGN="$architecture" "${@:2}"
    fi
    # Root works there, on what is the user's.
    trap 'chown -R --reference="$repository" "$repository"/build/{package,"$TARNWICK_FOREIGN"*}' EXIT
    install_missing "$architecture"
}
