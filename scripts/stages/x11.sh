# shellcheck shell=bash
# Stage: the widget tests once more in a real X server (Xvfb, without a window manager), over
# the native build of the linux stage.

VX_X11_PACKAGES=("${VX_LINUX_PACKAGES[@]}")
VX_X11_QT_PACKAGES=("${VX_QT_PACKAGES[@]}" xvfb xauth)

stage_x11() {
    vx_configure "$VX_LINUX_DIR" "${VX_LINUX_OPTIONS[@]}" &&
        vx_build "$VX_LINUX_DIR" || return 1
    # Xvfb picks a free display and writes its number to the descriptor it is given.
    local displayfile="$VX_LINUX_DIR/xvfb.display" server status number=""
    : >"$displayfile"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$displayfile" >/dev/null 2>&1 &
    server=$!
    for _ in $(seq 100); do
        number="$(cat "$displayfile")"
        [ -n "$number" ] && break
        sleep 0.1
    done
    if [ -z "$number" ]; then
        vx_note "Xvfb did not start"
        kill "$server" 2>/dev/null
        return 1
    fi
    DISPLAY=":$number" QT_QPA_PLATFORM=xcb vx_ctest "$VX_LINUX_DIR" 300 widgets
    status=$?
    kill "$server" 2>/dev/null
    wait "$server" 2>/dev/null
    return $status
}
