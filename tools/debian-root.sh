# Debian 12 roots of our own, for what needs another architecture or an empty
# machine. Sourced, behind steps.sh and packages.sh.
#
# A root is made once for each kind and kept below $QUILLMERE_ROOTS, or in the
# user's cache directory; `check clean` removes them all. What can be done on no
# such machine at all ends with 77.
# shellcheck shell=bash disable=SC2016,SC2154 # what apt and dpkg expand, and what steps.sh sets

readonly release=bookworm
roots=${QUILLMERE_ROOTS:-${XDG_CACHE_HOME:-$HOME/.cache}/quillmere-roots}
root= # set by open_root
tools=$(realpath "$(dirname "${BASH_SOURCE[0]}")")

in_root() { "$tools/in-root" "$root" "$@"; }

# The machine's own mirrors of the release, as lines for a sources.list.
mirror_lines() {
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Origin: Debian' 'Identifier: Packages' 2>/dev/null |
        awk -v release="$release" '($3 == release || index($3, release "-") == 1) && $4 == "main"' | sort -u
}

# open_root KIND: sets `root` to the place of the root of this kind, and keeps
# everybody else from all roots until the script ends.
open_root() {
    local lock proxy=
    root=$roots/$1
    ((EUID == 0)) || fail "only root can make a Debian root" 77
    unshare --mount --pid --fork true 2>/dev/null || fail "namespaces are not permitted here" 77
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    [[ -z $proxy ]] || export http_proxy=$proxy
    mkdir -p -- "$roots/archives"
    exec {lock}>"$roots/lock"
    flock --nonblock "$lock" || {
        echo "waiting for another program to be done with $roots"
        flock "$lock"
    }
}

# bootstrap ARCH: makes the root unless it is there. What mirrors have sent is kept
# beside the roots, for the next one.
bootstrap() {
    local lines mirror extra=()
    [[ ! -d $root ]] || return 0
    lines=$(mirror_lines)
    if [[ -z $lines ]]; then
        apt-get -q update
        lines=$(mirror_lines)
    fi
    mirror=$(awk -v release="$release" '$3 == release { print $2; exit }' <<<"$lines")
    [[ -n $mirror ]] || fail "apt knows no mirror of Debian $release"
    [[ $lines != *https:* ]] || extra=(--include=ca-certificates)
    rm -rf -- "$root.new"
    debootstrap --variant=minbase --arch="$1" --cache-dir="$roots/archives" "${extra[@]}" "$release" "$root.new" "$mirror"
    printf '%s\n' "$lines" >"$root.new/etc/apt/sources.list"
    mv -- "$root.new" "$root"
}

# fill_root ARCH PACKAGE...: the root of open_root with these packages. To be run as
# a step. An index that a mirror cannot give (one that is being synchronised, say)
# is no failure as long as the others have all packages.
fill_root() {
    local missing=() name
    bootstrap "$1"
    for name in "${@:2}"; do
        [[ $(chroot "$root" dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) == installed ]] || missing+=("$name")
    done
    ((${#missing[@]} > 0)) || return 0
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io" # a root is made again rather than mended
    in_root --bind "$roots/archives" var/cache/apt/archives sh -c '
        apt-get -q update
        exec apt-get -qy -o Dpkg::Use-Pty=0 --no-install-recommends install "$@"' sh "${missing[@]}"
}
