# What the scripts of tools/windows share: folders, packages, Debian's own sources; to be sourced.
# shellcheck shell=bash disable=SC2034

racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
# shellcheck source=tools/paquets.sh
source "$racine/tools/paquets.sh"

# Where sources are fetched and what is made of them is kept. Nothing of it is in the tree, and what
# is there is not made again.
export ORVALIS_WINDOWS=${ORVALIS_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/orvalis-windows}
sources=$ORVALIS_WINDOWS/sources
prefixe=$ORVALIS_WINDOWS/prefixe # what is made for Windows: bin, include, lib
mkdir -p "$sources" "$prefixe"

chaine=$racine/tools/windows/mingw-w64.cmake
coeurs=${ORVALIS_COEURS:-$(nproc)}
gcc_mingw=x86_64-w64-mingw32-gcc-posix

# apt with sources of packages, from wherever this machine has Debian's packages from, in folders of
# our own: the machine's lists stay as they are, and it needs no rights.
apt_sources() { # apt-get or apt-cache, arguments
    local outil=$1 apt=$ORVALIS_WINDOWS/apt clef=/usr/share/keyrings/debian-archive-keyring.gpg
    shift
    mkdir -p "$apt/listes/partial" "$apt/cache/archives/partial"
    # shellcheck disable=SC2016
    apt-get indextargets --format '$(ORIGIN) $(REPO_URI) $(RELEASE) $(COMPONENT) $(CREATED_BY)' |
        sed -n "s#^Debian \([^ ]*\) \([^ ]*\) main Packages\$#deb-src [signed-by=$clef] \1 \2 main#p" |
        sort -u >"$apt/sources.list"
    "$outil" -q -o Dir::Etc::SourceList="$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$apt/listes" -o Dir::Cache="$apt/cache" -o APT::Sandbox::User=root "$@"
}

# The source of a Debian package, unpacked as $sources/<name>; its archives stay beside it. The newest
# that the mirror really has: one may name an update whose files it does not keep any more.
chercher_source() {
    local nom=$1 dossier=$sources/$1 archives=$sources/$1.archives version versions
    [[ -e $dossier/.complet ]] && return
    mapfile -t versions < <(versions_source "$nom")
    if ((${#versions[@]} == 0)); then
        apt_sources apt-get update || return
        mapfile -t versions < <(versions_source "$nom")
    fi
    for version in "${versions[@]}"; do
        rm -rf "$dossier" "$archives"
        mkdir -p "$archives"
        if (cd "$archives" && apt_sources apt-get source "$nom=$version"); then
            mv "$archives/"*/ "$dossier" && touch "$dossier/.complet"
            return
        fi
    done
    echo "The source of $nom cannot be fetched." >&2
    return 1
}

versions_source() { # newest first
    apt_sources apt-cache showsrc --only-source "$1" 2>/dev/null | sed -n 's/^Version: //p' |
        sort -urV
}
