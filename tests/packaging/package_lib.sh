# shellcheck shell=bash
# Shared by the tests of the package: a place to work in.

set -euo pipefail

repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=tests/facts.sh
source "$repository/tests/facts.sh"
workspace=$(mktemp -d)
trap 'rm -rf "$workspace"' EXIT
# Whose documents and programs are looked at.
# shellcheck disable=SC2034
build=${TARNWICK_BUILD:-$repository/build/release}
# shellcheck disable=SC2034
id=com.fenlow.tarnwick2
