# Wine in a prefix of its own, without sound, menus or questions; to be sourced after commun.sh.
# shellcheck shell=bash
export WINEPREFIX=${ORVALIS_WINEPREFIX:-$ORVALIS_WINDOWS/wine} WINEDEBUG=${WINEDEBUG:--all} WINEARCH=win64
export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
unset WINEPATH

# Debian's name for it: wine64, or wine where that is the 64-bit one.
wine=$(command -v wine64 || command -v wine64-stable || command -v wine-stable || command -v wine || true)
[[ -n $wine ]] || wine=/usr/lib/wine/wine64

# Makes the prefix, once.
preparer_wine() {
    [[ -e $WINEPREFIX/system.reg ]] && return
    mkdir -p "$WINEPREFIX"
    # Asking for a screen would wait for one.
    DISPLAY='' timeout 120 "$wine" wineboot --init >/dev/null 2>&1
    attendre_wine
    [[ -e $WINEPREFIX/drive_c/windows/system32/kernel32.dll ]]
}

# Waits for the server of this prefix, and for no other.
attendre_wine() {
    local serveur
    serveur=$(command -v wineserver || command -v wineserver-stable || echo /usr/lib/wine/wineserver64)
    timeout 60 "$serveur" -w || "$serveur" -k || true
}
