# ./check fresh: demo and check on an empty Debian machine, as those who meet them
# first: people of two languages, one of them with a blank in the path, the
# superuser, and somebody who may not install anything. Sourced by check.
#
# Every program that a script calls must be in packages.list: what the shell does
# not find fails here, also where the script would have gone on without it.
# shellcheck shell=bash disable=SC2016,SC2154 # what shells in the root expand, and what check sets

readonly everyone=(nosudo english german superuser) # and, by name only, interrupted
machine=                                            # the directory of the machine that is being used

check_fresh() { # [PERSON...]
    local person
    for person; do
        [[ " ${everyone[*]} interrupted " == *" $person "* ]] ||
            fail "$person: nobody of that name, but ${everyone[*]} and interrupted"
    done
    (($# > 0)) || set -- "${everyone[@]}"
    if [[ -n $(git -c safe.directory='*' status --porcelain) ]]; then
        echo "what is not committed is not tried: machines get a clone of the tree"
    fi
    open_root fresh
    step "making an empty Debian root" fill_root "$(dpkg --print-architecture)" locales sudo
    step "languages and people" in_root sh -c '
        for language in en_US de_DE; do localedef -i "$language" -f UTF-8 "$language.UTF-8"; done
        for name in english german nosudo; do id "$name" || useradd --create-home --shell /bin/bash "$name"; done
        printf "%s ALL=(ALL) NOPASSWD: ALL\n" english german >/etc/sudoers.d/people'
    for person; do
        begin_machine "$person"
        "as_$person"
        end_machine
    done
}

# What is written to a machine lies apart from the empty root beneath it.
begin_machine() { # PERSON
    machine=$TMPDIR/$1
    mkdir -p "$machine"/{upper,work,root,tmp}
    chmod 1777 "$machine/tmp"
    root=$roots/fresh
    if mount -t overlay overlay -o "lowerdir=$root,upperdir=$machine/upper,workdir=$machine/work" "$machine/root" 2>/dev/null; then
        root=$machine/root
    else
        root=$machine/root
        step "copying the empty root" cp -a "$roots/fresh/." "$root"
    fi
    cat >"$root/etc/not-found.sh" <<'SH'
command_not_found_handle() {
    echo "$0 calls $1, which is in no list" | tee -a /var/tmp/not-found >&2
    return 127
}
SH
}

end_machine() {
    [[ -n $machine ]] || return 0
    ! mountpoint -q "$machine/root" || umount -l "$machine/root"
    rm -rf --one-file-system -- "$machine"
    machine=
}

# on_machine USER LANGUAGE DIRECTORY COMMAND: what this user types.
on_machine() {
    in_root --bind "$roots/archives" var/cache/apt/archives --bind "$machine/tmp" tmp \
        ${init[@]+"${init[@]}"} runuser -u "$1" -- env "HOME=$(home_of "$1")" "USER=$1" "LANG=$2" BASH_ENV=/etc/not-found.sh \
        bash -c 'cd -- "$1" && eval "$2"' bash "$3" "$4"
}
home_of() { if [[ $1 == root ]]; then echo /root; else echo "/home/$1"; fi; }

clone() { # USER DIRECTORY
    git -c safe.directory='*' clone -q "$tree" "$root$2"
    chroot "$root" chown -R "$1:$1" "$2"
}

# types USER LANGUAGE DIRECTORY COMMAND: a step of its own, with nothing missed.
types() {
    step_tail=150 step "$1, $2: $4" on_machine "$@"
    [[ ! -s $root/var/tmp/not-found ]] || fail "$(sort -u "$root/var/tmp/not-found")"
}

# All that a user has outside the tree, but for what demo says that it leaves.
traces() { # USER
    (
        cd "$root" || exit
        find ".$(home_of "$1")" -path '*/launcher' -prune -o -path '*/Quillmere Starter' -prune -o -print
        find "$machine/tmp" -mindepth 1 -maxdepth 1 ! -name 'quillmere-demo.*' ! -name .X11-unix
    ) | sort
}

unchanged() { # BEFORE USER
    diff <(echo "$1") <(traces "$2") >&2 || fail "$2: something was left behind"
}

as_nosudo() {
    local before place=/home/nosudo/launcher command
    clone nosudo "$place"
    before=$(traces nosudo)
    types nosudo en_US.UTF-8 "$place" './demo --help && ./check --help && bench/run --help && ./check clean && ! ./demo nowhere'
    for command in ./demo ./check; do
        types nosudo en_US.UTF-8 "$place" "! $command 2>/tmp/said && grep -qE '^ +apt-get install .*cmake' /tmp/said && rm /tmp/said"
    done
    unchanged "$before" nosudo
    [[ -z $(compgen -G "$machine/tmp/*") && ! -e $root$place/build ]] || fail "nosudo: something was left behind"
}

as_english() {
    local before place=/home/english/launcher
    clone english "$place"
    before=$(traces english)
    types english en_US.UTF-8 "$place" ./demo
    types english en_US.UTF-8 /home/english 'launcher/demo launcher/packaging/demo-client'
    types english en_US.UTF-8 "$place" ./check
    unchanged "$before" english
}

# Interrupted at each of these steps, both commands leave nothing that runs, and go on well
# the next time. A quarter of an hour by itself.
as_interrupted() {
    local before place=/home/english/launcher interrupt=tests/interrupt
    clone english "$place"
    before=$(traces english)
    types english en_US.UTF-8 "$place" "$interrupt ./demo reading fetching installing building 'First installation' Upgrade"
    types english en_US.UTF-8 "$place" "$interrupt ./check installing building testing testing+20 trying"
    unchanged "$before" english
}

as_german() {
    local before place='/home/german/Quillmere Starter' mode
    clone german "$place"
    before=$(traces german)
    types german de_DE.UTF-8 "$place" ./demo
    for mode in '' asan tsan; do types german de_DE.UTF-8 "$place" "./check $mode"; done
    unchanged "$before" german
    types german de_DE.UTF-8 "$place" './check clean && ! test -e build && ! compgen -G "/tmp/quillmere-*"'
}

# Process 1 waits for nobody here, as in a plain container: what has ended stays a zombie.
as_superuser() {
    # shellcheck disable=SC2016 # perl's
    local init=(perl -e 'if ($p = fork) { waitpid $p, 0; exit($? ? 1 : 0) } exec @ARGV') place=/root/launcher
    clone root "$place"
    types root C.UTF-8 "$place" ./demo
    types root C.UTF-8 "$place" ./check
}
