#!/usr/bin/env bash
# The package contains what is to be installed, and nothing else; only the launcher runs with other rights than its caller's.
# shellcheck source=tests/packaging/package_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/package_lib.sh"
require_programs dpkg-deb lintian

package=${TARNWICK_PACKAGE:-$(ls "$repository"/build/package/tarnwick_*.deb)}
dpkg-deb --extract "$package" "$workspace/extracted"

# Mode, owner and path of everything but folders.
files() {
    dpkg-deb --contents "$package" | awk '!/^d/ { print $1, $2, substr($6, 2) }' | LC_ALL=C sort -k 3
}

ordinary() {
    printf -- '-rw-r--r-- root/root /usr/share/%s\n' "$@"
}

same "every file is in its place" "$(
    {
        echo "-rwsr-xr-x root/root /usr/bin/RootTarnwick2"
        echo "-rwxr-xr-x root/root /usr/bin/tarnwick"
        echo "-rwxr-xr-x root/root /usr/libexec/tarnwick/RootTarnwick2"
        echo "-rwxr-xr-x root/root /usr/libexec/tarnwick/bin/zip"
        echo "-rwxr-xr-x root/root /usr/libexec/tarnwick/tarnwick"
        ordinary "applications/$id.desktop" "dbus-1/services/$id.service" "metainfo/$id.metainfo.xml" \
            doc/tarnwick/{changelog.gz,copyright} lintian/overrides/tarnwick man/man1/{RootTarnwick2,tarnwick,tarnwick-zip}.1.gz \
            bash-completion/completions/{RootTarnwick2,tarnwick} fish/vendor_completions.d/{RootTarnwick2,tarnwick}.fish \
            zsh/vendor-completions/_{RootTarnwick2,tarnwick} \
            icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/"$id.png" \
            "icons/hicolor/scalable/apps/$id.svg" \
            icons/hicolor/symbolic/apps/"$id"-{save,save-all,restore,options}-symbolic.svg
    } | LC_ALL=C sort -k 3
)" "$(files)"
same "all folders are root's and nobody else's to write" "drwxr-xr-x root/root" \
    "$(dpkg-deb --contents "$package" | awk '/^d/ { print $1, $2 }' | sort -u)"
same "no script runs when it is installed" "control md5sums postrm" "$(dpkg-deb --ctrl-tarfile "$package" |
    tar --list | sed 's,^\./,,' | grep . | sort | xargs)"
check "the launcher starts the program where it is installed" \
    grep -qa /usr/libexec/tarnwick/RootTarnwick2 "$workspace/extracted/usr/bin/RootTarnwick2"
same "the bus starts the launcher" "Exec=/usr/bin/RootTarnwick2 --service" \
    "$(grep ^Exec "$workspace/extracted/usr/share/dbus-1/services/$id.service")"

# Newer versions miss a home page in the description, and there is none.
same "lintian has nothing to say" "" "$({ lintian --allow-root --display-info "$package" 2>&1 || true; } |
    grep -v ': appstream-metadata-validation-failed ' || true)"
