# shellcheck shell=bash
# Wine for the Windows test runs: a fresh prefix per run, set up to need no display and never to
# wait on a crash dialog, with one persistent wineserver so that each test process starts fast.

VX_WINE_PACKAGES=(wine wine64)
VX_WINE_STARTED=

vx_wine_start() {
    export WINEPREFIX="$1"
    export WINEDEBUG=-all
    # No .NET or Gecko installer prompts, no desktop menu entries.
    export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
    rm -rf "$WINEPREFIX"
    mkdir -p "$(dirname "$WINEPREFIX")"
    VX_WINE_STARTED=1
    wineboot --init >/dev/null 2>&1 </dev/null && wineserver -w || return 1
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1 </dev/null &&
        wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f \
            >/dev/null 2>&1 </dev/null || return 1
    wineserver -w
    wineserver -p </dev/null >/dev/null 2>&1
    wine cmd /c exit 0 </dev/null >/dev/null 2>&1
}

vx_wine_stop() {
    [ -n "$VX_WINE_STARTED" ] || return 0
    wineserver -k >/dev/null 2>&1
    VX_WINE_STARTED=
}
