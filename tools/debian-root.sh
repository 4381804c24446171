# Debian 12 roots of our own, for what needs another architecture or an empty
# machine. Sourced by check-i386 beside it, packaging/build-deb and tests/packaging/test-deb.
#
# A root is made once for each architecture and kept as quillmere-ARCH below
# $QUILLMERE_ROOTS, or below the user's cache directory; remove it to get a
# fresh one. Commands run there in namespaces of their own: their mounts and
# processes end with them, and none of them sees the machine's processes.
# shellcheck shell=bash

readonly release=bookworm
roots=${QUILLMERE_ROOTS:-${XDG_CACHE_HOME:-$HOME/.cache}}
root=    # set by make_root
reason=  # why make_root failed, as one line

# packages GROUP...: the packages of these groups of the file packages.list.
packages() {
    awk -v wanted=" $* " 'index(wanted, " " $1 " ") { print $2 }' "$(dirname "${BASH_SOURCE[0]}")/packages.list"
}

# The machine's own mirrors of the release, as lines for a sources.list. Empty
# where apt has no package lists.
mirror_lines() {
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Origin: Debian' 'Identifier: Packages' 2>/dev/null |
        awk -v release="$release" '($3 == release || index($3, release "-") == 1) && $4 == "main"' | sort -u
}

# Fails with `reason` set where no root can be made at all.
may_make_root() {
    reason=
    if ((EUID != 0)); then
        reason="only root can make a Debian root"
    elif ! command -v debootstrap >/dev/null; then
        reason="debootstrap is not installed"
    elif ! unshare --mount --pid --fork true 2>/dev/null; then
        reason="namespaces are not permitted here"
    fi
    [[ -z $reason ]]
}

bootstrap() { # ARCH
    local lines mirror extra=()
    lines=$(mirror_lines)
    mirror=$(awk -v release="$release" '$3 == release { print $2; exit }' <<<"$lines")
    if [[ -z $mirror ]]; then
        reason="apt knows no mirror of Debian $release (try apt-get update)"
        return 1
    fi
    [[ $lines != *https:* ]] || extra=(--include=ca-certificates)
    rm -rf -- "$root.new"
    if ! debootstrap --variant=minbase --arch="$1" "${extra[@]}" "$release" "$root.new" "$mirror" >"$root.log" 2>&1; then
        reason="debootstrap failed, see $root.log: $(tail -n 1 "$root.log")"
        return 1
    fi
    printf '%s\n' "$lines" >"$root.new/etc/apt/sources.list"
    mv -- "$root.new" "$root"
}

# install_packages PACKAGE...: what is not in the root yet. Returns 1 with
# `reason` when the mirror does not serve, and 2 when it has no such package.
# An index that a mirror cannot give (one that is being synchronised, say) is
# no failure as long as the others have all packages.
install_packages() {
    local missing=() name stale=
    for name; do
        [[ $(chroot "$root" dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) == installed ]] || missing+=("$name")
    done
    ((${#missing[@]} > 0)) || return 0
    reason="no packages from the mirror, see $root.log"
    in_root apt-get update >"$root.log" 2>&1 || stale=yes
    if ! in_root apt-get install --simulate --no-install-recommends "${missing[@]}" >>"$root.log" 2>&1; then
        [[ -z $stale ]] || return 1
        reason="cannot be installed: ${missing[*]}, see $root.log"
        return 2
    fi
    in_root apt-get install -y --no-install-recommends "${missing[@]}" >>"$root.log" 2>&1 || return 1
    in_root apt-get clean
    reason=
}

# make_root ARCH PACKAGE...: the cached root of ARCH with these packages, its
# path in `root`. Statuses as of install_packages. The root is the caller's
# alone until its script ends.
make_root() {
    local arch=$1 lock proxy=
    shift
    root=$roots/quillmere-$arch
    may_make_root || return 1
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    [[ -z $proxy ]] || export http_proxy=$proxy
    mkdir -p -- "$roots"
    exec {lock}>"$root.lock"
    flock "$lock"
    [[ -d $root ]] || bootstrap "$arch" || return 1
    install_packages "$@"
}

# in_root [--bind | --read-only DIR PLACE]... COMMAND...: runs the command in
# the root, as its superuser and with an environment of its own. DIR is seen
# there as PLACE, which must exist in the root; /tmp is empty unless it is one.
in_root() {
    local binds=()
    while [[ $1 == --bind || $1 == --read-only ]]; do
        binds+=("$1" "$2" "$3")
        shift 3
    done
    # shellcheck disable=SC2016 # expanded by the inner shell
    unshare --mount --pid --fork --kill-child bash -c '
        set -e
        root=$1 count=$2
        shift 2
        mount --bind "$root" "$root" # a mount point, so that nested namespaces can be made
        mount -t proc proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mount -t tmpfs tmpfs "$root/dev/shm"
        mount -t tmpfs -o mode=1777 tmpfs "$root/tmp"
        cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
        for ((; count > 0; count -= 3)); do
            mount --bind "$2" "$root/$3"
            [[ $1 == --bind ]] || mount -o remount,bind,ro "$root/$3"
            shift 3
        done
        bits=64
        [[ $(chroot "$root" dpkg --print-architecture) != i386 ]] || bits=32
        exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
            ${http_proxy:+http_proxy="$http_proxy"} setarch "linux$bits" chroot "$root" "$@"
    ' in_root "$root" "${#binds[@]}" "${binds[@]}" "$@"
}
