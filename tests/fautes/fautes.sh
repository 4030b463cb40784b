#!/usr/bin/env bash
# The full run of the fault tool, then the same kills from outside: strace kills the program at
# each system call in turn that a store, a correction or a deletion makes on its files.
#
#   tests/fautes/fautes.sh [folder of the build, "build" by default]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
outil=$(realpath "${1:-build}")/tests/orvalis_fautes
export LC_ALL=C.UTF-8 QT_LOGGING_RULES='*=false'
"$outil" 2>/dev/null

appels=openat,pread64,pwrite64,fdatasync,ftruncate,rename,memfd_create,mmap,munmap,newfstatat
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
essais=0 degats=0
for operation in suivant terminer correction suppression; do
    mkdir "$travail/$operation"
    strace -e trace="$appels",access -o "$travail/trace" \
        "$outil" --une "$operation" "$travail/$operation" >/dev/null 2>&1
    # Name and occurrence, counted from the start of the program, of the calls between the marks.
    while read -r nom rang; do
        lecteur=$travail/$((essais += 1))
        mkdir "$lecteur"
        # In a shell of its own, for strace dies like what it runs, and the shell says so.
        (strace -e trace="$nom" -e inject="$nom:signal=KILL:when=$rang" -o /dev/null \
            "$outil" --une "$operation" "$lecteur" >/dev/null || true) 2>/dev/null
        if ! degat=$("$outil" --juger "$operation" "$lecteur" 2>/dev/null); then
            echo "$operation, killed by strace at $nom $rang: $degat"
            degats=$((degats + 1))
        fi
    done < <(awk '{ nom = $1; sub(/\(.*/, "", nom) }
                  /fautes-debut/ { dedans = 1; next }
                  /fautes-fin/ { exit }
                  { n[nom]++; if (dedans) print nom, n[nom] }' "$travail/trace")
done
echo "$essais kills by strace, $degats damaged"
((degats == 0))
