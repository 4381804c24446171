# ./check i386: builds the launcher on 32-bit x86 with warnings as errors and runs
# all its tests there, in a Debian root of its own and from the tree as it lies
# here, which is read-only there. Sourced by check.
# shellcheck shell=bash disable=SC2154 # what check sets

check_i386() { # [COMMAND...]: to be run in the root instead, with the tree as /mnt
    local inside=(in_root --read-only "$tree" mnt --bind "$TMPDIR" tmp)
    open_root i386
    # shellcheck disable=SC2046 # one word for each package
    step "making a 32-bit Debian root" fill_root i386 $(packages build run test)
    chmod 1777 "$TMPDIR"
    if (($# > 0)); then
        "${inside[@]}" "$@"
        return
    fi
    step "configuring (i386)" "${inside[@]}" \
        cmake -S /mnt -B /tmp/build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUILLMERE_WERROR=ON
    step "building (i386)" "${inside[@]}" ninja -C /tmp/build
    step_tail=200 step "testing (i386)" no_skip "${inside[@]}" ctest --test-dir /tmp/build -j2 --output-on-failure
    step "staging (i386)" "${inside[@]}" cmake --install /tmp/build --prefix /tmp/root
    step "files above 4 GiB" "${inside[@]}" \
        /usr/bin/python3 -B -m pytest -q /mnt/tests/process -m large --stage=/tmp/root
}
