# The Debian packages of packages.list. Sourced, behind steps.sh, by what needs them.
# shellcheck shell=bash disable=SC2154 # what steps.sh sets

packages_list=$(dirname "${BASH_SOURCE[0]}")/packages.list

# packages GROUP...: the packages of these groups.
packages() {
    awk -v wanted=" $* " 'index(wanted, " " $1 " ") { print $2 }' "$packages_list" | sort -u
}

# missing_packages GROUP...: those that the machine lacks.
missing_packages() {
    comm -23 <(packages "$@" | sort) <(dpkg-query -Wf '${Package} ${db:Status-Status}\n' | awk '$2 == "installed" { print $1 }' | sort -u)
}

# need_packages GROUP...: installs what is missing, as root or with sudo. Does
# nothing, and needs no rights, when nothing is. Ends the script with the line to
# hand to root when there is no way to become root.
need_packages() {
    local missing sudo=()
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} > 0)) || return 0
    if ((EUID != 0)); then
        echo "${#missing[@]} Debian packages are missing; sudo is used to install them"
        if ! sudo -n true 2>/dev/null && ! { [[ -t 0 ]] && sudo -v 2>/dev/null; }; then
            echo "$program: no right to install packages here. Have root run this, then start again:" >&2
            echo "    apt-get install --no-install-recommends ${missing[*]}" >&2
            exit 1
        fi
        sudo=(sudo -n)
    fi
    # What an earlier interrupt left half done is finished first.
    step "reading the lists of packages" package_manager 'dpkg --configure -a && apt-get -q update'
    LC_ALL=C apt-get install --assume-no --no-install-recommends -o Debug::NoLocking=1 "${missing[@]}" 2>/dev/null |
        grep -E '^(Need to get|After this)' || true
    step "fetching packages" package_manager "$install --download-only \"\$@\"" "${missing[@]}"
    step "installing packages" package_manager "$install \"\$@\"" "${missing[@]}"
}

readonly install='apt-get -yq -o Dpkg::Use-Pty=0 -o Dpkg::Options::=--force-confdef --no-install-recommends install'

# package_manager SCRIPT ARGUMENT...: runs the script as root. What a package manager
# forgets among temporary files when it is interrupted goes with their directory, which
# its unprivileged helpers can use as well.
package_manager() {
    # shellcheck disable=SC2016 # expanded by the inner shell
    "${sudo[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive sh -c '
        TMPDIR=$(mktemp -d -p /tmp) && chmod 1777 "$TMPDIR" || exit
        export TMPDIR
        trap "rm -rf \"$TMPDIR\"" EXIT
        trap "exit 143" TERM INT
        script=$1
        shift
        eval "$script"' sh "$@"
}
