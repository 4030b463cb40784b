# Debian packages that ./run, ./check and the scripts of tools/ need; to be sourced.
# shellcheck shell=bash disable=SC2034

# Building and starting the program. Qt speaks French through its own translations and shows the
# program's icon through its SVG plug-in; both are loaded at run time, so no link asks for them.
PAQUETS_PROGRAMME=(g++ cmake ninja-build ccache qt6-base-dev libqt6svg6 qt6-translations-l10n
                   libxcb-cursor0 fonts-dejavu-core fonts-liberation libexpat1-dev
                   libsqlite3-dev)
# Running it without a screen, and taking its picture.
PAQUETS_ECRAN=(xvfb x11-utils imagemagick openbox)
# Tests, checks and the Debian package. What sets the clock is tried against a mock of the service
# on a bus of its own.
PAQUETS_CONTROLE=(libgtest-dev libgmock-dev lld clang-format-14 clang-tidy-14 python3
                  python3-dbusmock dbus-daemon git poppler-utils xdotool desktop-file-utils
                  appstream dpkg-dev file python3-markdown)
PAQUETS_MESURES=(libbenchmark-dev libgtest-dev python3)
PAQUETS_FUZZ=(clang-14 libclang-rt-14-dev lld)
# The pictures of the guide. The look-alike of the labels' handwriting shows on one of them.
PAQUETS_CAPTURES=(xdotool pngquant optipng poppler-utils fonts-comic-neue
                  python3-dbusmock dbus-daemon)
# Windows, from this system (tools/windows): the libraries without Qt, their tests, then Qt and the
# program, then the package and its picture.
PAQUETS_WINDOWS=(g++-mingw-w64-x86-64-posix cmake ninja-build ccache dpkg-dev make gcc libc6-dev tcl
                 googletest wine64 wine)
PAQUETS_WINDOWS_QT=(g++ qt6-base-dev qt6-base-dev-tools qt6-translations-l10n librsvg2-bin icoutils)
PAQUETS_WINDOWS_ESSAIS=(xvfb xauth x11-utils imagemagick)
PAQUETS_WINDOWS_PAQUET=(nsis zip unzip python3-markdown)
PAQUETS_WINDOWS_IMAGE=(fonts-liberation fonts-comic-neue fonts-dejavu-core fonts-open-sans)

# Prints the packages among the arguments that are not installed.
paquets_absents() {
    local paquet
    for paquet in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$paquet" 2>/dev/null | grep -qx installed ||
            printf '%s\n' "$paquet"
    done
}

# Installs the packages among the arguments that are missing, when this account may; otherwise
# prints the one line to type and returns 1.
installer_paquets() {
    local absents prefixe=()
    mapfile -t absents < <(paquets_absents "$@")
    ((${#absents[@]})) || return 0
    if ((EUID != 0)); then
        if ! sudo -n true 2>/dev/null; then
            printf '%s\n' "Il manque des paquets. Tapez cette ligne, puis recommencez :" \
                "sudo apt-get update && sudo apt-get install -y --no-install-recommends ${absents[*]}" >&2
            return 1
        fi
        prefixe=(sudo -n)
    fi
    printf 'Installation de : %s\n' "${absents[*]}"
    "${prefixe[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q </dev/null &&
        "${prefixe[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -q -y --no-install-recommends "${absents[@]}" </dev/null
}
