#!/usr/bin/env bash
# Builds vxenv (installing what the build needs) and runs it over the settings home:
# $VX_CONFIG_HOME when set, else .home/ in this checkout.
#   scripts/demo.sh [vxenv arguments]   (default: status)
set -u -o pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$here/lib/common.sh"
source "$here/stages/linux.sh"

# Build progress goes to stderr so that stdout is vxenv's own output.
{
    vx_need_packages "${VX_LINUX_PACKAGES[@]}" &&
        vx_configure "$VX_LINUX_DIR" "${VX_LINUX_OPTIONS[@]}" &&
        vx_build "$VX_LINUX_DIR" vxenv
} >&2 || exit 1

export VX_CONFIG_HOME="${VX_CONFIG_HOME:-$VX_ROOT/.home}"
mkdir -p "$VX_CONFIG_HOME"
[ $# -gt 0 ] || set -- status
exec "$VX_LINUX_DIR/tools/vxenv/vxenv" "$@"
