#!/usr/bin/env bash
# Builds vxdemo, the sample client tool (installing what the build needs), and runs it: in a
# window when there is a display, else its offscreen tour, which writes a picture of every dialog
# and state into a folder ($VX_TOUR_DIR, else tour/ in this checkout) with an index.html.
#   scripts/demo.sh [vxdemo arguments]   (vxdemo --help explains them)
# The settings live in $VX_CONFIG_HOME when set, else in .home/ of this checkout. vxenv, the
# command-line tool over the same settings, is built beside it: build/linux/tools/vxenv/vxenv.
set -u -o pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$here/lib/common.sh"
source "$here/stages/linux.sh"

# Build progress goes to stderr so that stdout is vxdemo's own output.
{
    vx_need_packages "${VX_LINUX_PACKAGES[@]}" &&
        vx_need_packages --no-recommends "${VX_QT_PACKAGES[@]}" &&
        vx_configure "$VX_LINUX_DIR" "${VX_LINUX_OPTIONS[@]}" &&
        vx_build "$VX_LINUX_DIR" vxdemo vxenv vxutil_catalogues
} >&2 || exit 1

export VX_CONFIG_HOME="${VX_CONFIG_HOME:-$VX_ROOT/.home}"
mkdir -p "$VX_CONFIG_HOME"
vxdemo="$VX_LINUX_DIR/tools/vxdemo/vxdemo"
if [ $# -eq 0 ] && [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    tour="${VX_TOUR_DIR:-$VX_ROOT/tour}"
    echo "no display: writing the offscreen tour into $tour" >&2
    "$vxdemo" --offscreen-tour "$tour" || exit 1
    echo "pictures and their index: $tour/index.html"
    cat "$tour/index.txt"
    exit 0
fi
exec "$vxdemo" "$@"
