#!/usr/bin/env bash
# Runs the program on a virtual screen and takes its picture.
#
#   tools/lancer_ecran.sh <drive> <picture.png> [script [arguments]]
#
# <drive> is the folder that plays the drive (it holds Orvalis/); relative to the caller. With a
# script, it is run once the window is up, before the picture; it finds DISPLAY and PID_ORVALIS
# in its environment and may type with xdotool.
#
# Environment:
#   ECRAN=1366x768        size of the screen
#   QT_SCALE_FACTOR=2     passed on to Qt
#   SOMBRE=1              dark palette
#   CONTRASTE=1           high contrast: white on black
#   POLICE=12             point size of the desktop's font (10)
#   TITRE="..."           what the title of the window that is waited for holds; the default is
#                         the title that the main window takes once the logbook is on show
#   ATTENTE=60            seconds to wait for it
#   ORVALIS=path          the program; build/orvalis by default
set -euo pipefail
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
lecteur=$(realpath "$1")
image=$(realpath "$2")
shift 2

travail=$(mktemp -d)
declare -a enfants=()
finir() {
    local pid
    for pid in "${enfants[@]}"; do
        kill "$pid" 2>/dev/null || continue
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "$travail"
}
trap finir EXIT

demarrer_ecran() {
    mkfifo "$travail/numero"
    Xvfb -displayfd 3 -screen 0 "${ECRAN:-1366x768}x24" -nolisten tcp \
        3>"$travail/numero" >"$travail/xvfb.log" 2>&1 </dev/null &
    enfants=($! "${enfants[@]}")
    local numero
    if ! read -r -t 20 numero <"$travail/numero"; then
        cat "$travail/xvfb.log" >&2
        echo "L'écran virtuel n'a pas démarré." >&2
        return 1
    fi
    export DISPLAY=:$numero
    unset WAYLAND_DISPLAY
    # A window manager gives windows their title bar and the keyboard, as on a real desktop. It
    # says itself when it is ready: a window that is shown while it starts may be lost.
    HOME=$travail openbox --sm-disable --startup "touch $travail/pret" >/dev/null 2>&1 </dev/null &
    enfants=($! "${enfants[@]}")
    local essai
    for ((essai = 0; essai < 300; ++essai)); do
        [[ ! -e $travail/pret ]] || return 0
        sleep 0.1
    done
    echo "Le gestionnaire de fenêtres n'a pas démarré." >&2
    return 1
}

# Qt reads palette and font of a KDE desktop from one plain file: the lightest way to a dark one.
ecrire_bureau() {
    local style="[General]
font=DejaVu Sans,${POLICE:-10},-1,5,50,0,0,0,0,0
menuFont=DejaVu Sans,${POLICE:-10},-1,5,50,0,0,0,0,0
fixed=DejaVu Sans Mono,${POLICE:-10},-1,5,50,0,0,0,0,0
"
    local fond=239,240,241 vue=255,255,255 texte=35,38,41 passif=112,125,138
    [[ -z ${SOMBRE-} ]] || fond=42,46,50 vue=27,30,32 texte=252,252,252 passif=161,169,177
    [[ -z ${CONTRASTE-} ]] || fond=0,0,0 vue=0,0,0 texte=255,255,255 passif=255,255,255
    local groupe
    for groupe in Window Button View Tooltip Selection Complementary; do
        local arriere=$fond avant=$texte
        [[ $groupe != View ]] || arriere=$vue
        [[ $groupe != Selection ]] || { arriere=61,174,233 && avant=252,252,252; }
        style+="[Colors:$groupe]
BackgroundNormal=$arriere
BackgroundAlternate=$arriere
ForegroundNormal=$avant
ForegroundInactive=$passif
ForegroundLink=29,153,243
ForegroundVisited=155,89,182
"
    done
    printf '%s' "$style" >"$travail/kdeglobals"
}

# Title of the window that has the keyboard; a dialog counts, a window not yet on show does not.
titre_actif() {
    local fenetre
    fenetre=$(xprop -root _NET_ACTIVE_WINDOW 2>/dev/null)
    xprop -id "${fenetre##* }" _NET_WM_NAME 2>/dev/null || true
}

attendre_fenetre() {
    local titre=${TITRE:-Cahier de Trafic de} fin=$((SECONDS + ${ATTENTE:-60}))
    until [[ $(titre_actif) == *"$titre"* ]]; do
        if ! kill -0 "$PID_ORVALIS" 2>/dev/null; then
            echo "Le programme s'est arrêté avant d'ouvrir sa fenêtre :" >&2
            cat "$travail/orvalis.log" >&2
            return 1
        fi
        if ((SECONDS >= fin)); then
            echo "La fenêtre « $titre » n'est pas apparue. Fenêtres à l'écran :" >&2
            xwininfo -root -tree | grep '"' >&2 || true
            cat "$travail/orvalis.log" >&2
            return 1
        fi
        sleep 0.2
    done
    sleep 1 # the title comes last but one: let the window paint
}

demarrer_ecran
ecrire_bureau
programme=$(realpath "${ORVALIS:-$racine/build/orvalis}")
(cd / && HOME=$lecteur XDG_CONFIG_HOME=$travail XDG_CONFIG_DIRS=$travail XDG_CACHE_HOME=$travail \
    XDG_RUNTIME_DIR=$travail XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 \
    QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=kde \
    exec "$programme") >"$travail/orvalis.log" 2>&1 </dev/null &
export PID_ORVALIS=$!
enfants=("$PID_ORVALIS" "${enfants[@]}")
attendre_fenetre
if (($#)); then "$@"; fi
import -silent -window root "$image"
