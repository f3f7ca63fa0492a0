# shellcheck shell=bash
# The packages that a device's source offers: DIR/repository with its list, Packages. Those in its folder workstation have
# no files: they stand for packages of the workstation, whose programs the device has anyway.

# The umask of the checkout must not affect the package.
build_package() {
    local name=${1##*/} staging=$2/staging
    cp -R --no-preserve=mode,ownership "$1" "$staging"
    dpkg-deb --root-owner-group -Znone --build "$staging" "$2/$name.deb" >/dev/null
    rm -rf "$staging"
}

# The names of all packages that those of the repository depend on, alternatives included.
needed_names() {
    local package
    for package in *.deb; do
        dpkg-deb --field "$package" Pre-Depends Depends
    done | sed -E 's/^[A-Za-z-]+://; s/\([^)]*\)|:[a-z]+| //g; s/[,|]/\n/g'
}

offered_names() {
    local package
    for package in *.deb; do
        dpkg-deb --field "$package" Package
    done
}

# Status, name, version, architecture, sharing and other names of each package of the workstation.
workstation_packages() {
    dpkg-query --show \
        --showformat '${db:Status-Status}|${Package}|${Version}|${Architecture}|${Multi-Arch}|${Provides}\n'
}

# Those of them that are needed but not offered.
packages_to_stand_for() {
    {
        needed_names | sed 's/^/needed|/'
        offered_names | sed 's/^/offered|/'
        workstation_packages
    } | perl -F'\|' -lane '
        BEGIN { $native = shift }
        $needed{$F[1]} = 1 if $F[0] eq "needed";
        $offered{$F[1]} = 1 if $F[0] eq "offered";
        next if $F[0] ne "installed" || $offered{$F[1]} || $F[3] ne $native && $F[3] ne "all";
        print if grep { $needed{$_} } $F[1], ($F[5] // "") =~ s/\([^)]*\)|,//gr =~ /\S+/g' "$(dpkg --print-architecture)"
}

# describe_stand_in NAME VERSION ARCHITECTURE SHARING OTHER_NAMES
describe_stand_in() {
    printf 'Package: %s\nVersion: %s\nArchitecture: %s\n' "$1" "$2" "$3"
    [[ -z $4 ]] || printf 'Multi-Arch: %s\n' "$4"
    [[ -z $5 ]] || printf 'Provides: %s\n' "$5"
    echo "Maintainer: Sample Repository <packages@example.org>"
    echo "Description: stands for the workstation's own"
}

# Made afresh each time: the workstation may have changed, and a stand-in must not hide a package that is offered now.
stand_for_workstation() {
    local tree=workstation/tree name version architecture sharing others
    rm -rf workstation
    packages_to_stand_for | while IFS='|' read -r _ name version architecture sharing others; do
        mkdir -p "$tree/DEBIAN"
        describe_stand_in "$name" "$version" "$architecture" "$sharing" "$others" >"$tree/DEBIAN/control"
        dpkg-deb --root-owner-group -Znone --build "$tree" "workstation/$name.deb" >/dev/null
    done
    rm -rf "$tree"
}

# Prints a package's entry in the list.
describe_package() {
    local digest
    digest=$(sha256sum <"$1")
    dpkg-deb --field "$1"
    printf 'Filename: ./%s\nSize: %s\nSHA256: %s\n\n' "$1" "$(stat --format %s "$1")" "${digest%% *}"
}

# Replaced at once, as a run may be reading it.
list_packages() {
    local package
    for package in *.deb workstation/*.deb; do
        describe_package "$package"
    done >Packages.new
    mv Packages.new Packages
}

renew_repository() (
    shopt -s nullglob
    cd "$1"
    stand_for_workstation
    list_packages
)

build_repository() {
    local package
    # shellcheck disable=SC2154  # set by device
    for package in "$here"/content/packages/*; do
        build_package "$package" "$1"
    done
    renew_repository "$1"
}

# The version goes without its epoch. Fails if the file is not a complete package.
package_file_name() {
    dpkg-deb --contents "$1" >/dev/null &&
        dpkg-deb --show --showformat '${Package}_${Version}_${Architecture}.deb' "$1" | sed 's/_[0-9]*:/_/'
}

# offer_packages REPOSITORY FILE...: all of them, or none if one is not a package.
offer_packages() {
    local repository=$1 file name names=()
    shift
    for file in "$@"; do
        [[ -r $file && -f $file ]] || fail "$file cannot be read"
        name=$(package_file_name "$file" 2>/dev/null) || fail "$file is no package"
        names+=("$name")
    done
    for name in "${names[@]}"; do
        install -m 644 -- "$1" "$repository/$name"
        shift
    done
    renew_repository "$repository"
}
