# ./check deb: builds the Debian packages, the example of a client's among them, has
# them looked at, and uses them in empty Debian roots. Sourced by check.
# shellcheck shell=bash disable=SC2016,SC2154 # what shells in the root expand, and what check sets

readonly metadata=packaging/parvenor-quillmere

check_deb() {
    local deb=$TMPDIR/deb arch
    arch=$(dpkg --print-architecture)
    step "menu entries and metadata" look_at_metadata
    step "building the launcher's package" packaging/build-deb --output "$deb"
    open_root empty
    step "making an empty Debian root" fill_root "$arch"
    new_machine client
    step "building the client's package" build_client_package
    step "a user's first start of it" start_client
    new_machine launcher
    step "installing, using, upgrading, removing" tests/packaging/test-deb "$deb"/parvenor-quillmere-launcher_*.deb "$root"
}

look_at_metadata() {
    local languages
    desktop-file-validate "$metadata.desktop" docs/examples/autostart/*.desktop
    appstreamcli validate --no-net "$metadata.metainfo.xml"
    # English is the text without a language.
    languages=$(($(grep -oE '\b[a-z]{3}:[a-z]{2}_[A-Z]{2}' launcher/texts/CMakeLists.txt | wc -l) - 1))
    (($(grep -c '^Comment\[' "$metadata.desktop") == languages))
    (($(grep -c '<summary xml:lang' "$metadata.metainfo.xml") == languages))
}

new_machine() { # NAME: a copy of the empty root, to be spoilt
    root=$TMPDIR/$1
    step "copying it" cp -a "$roots/empty" "$root"
}

# As the example's page says it, with the stand-in for a client.
build_client_package() {
    mkdir "$root/root/client-package"
    cp -a docs/examples/client-package/debian "$root/root/client-package/"
    cp -a packaging/demo-client "$root/root/client-package/client"
    cp "$deb"/parvenor-quillmere-launcher_*.deb "$root/root/launcher.deb"
    in_root --bind "$roots/archives" var/cache/apt/archives sh -ec '
        apt-get -q update
        apt-get -qy install --no-install-recommends dpkg-dev /root/launcher.deb
        cd /root/client-package
        apt-get -qy build-dep . && dpkg-buildpackage --build=binary --no-sign
        apt-get -qy install /root/parvenor-quillmere-client_*.deb'
    cp "$root"/root/parvenor-quillmere-client_*.deb "$deb/"
    lintian --allow-root --fail-on error,warning "$deb"/parvenor-quillmere-client_*.deb
}

start_client() {
    in_root sh -ec '
        useradd --create-home user
        runuser -u user -- env HOME=/home/user QT_QPA_PLATFORM=offscreen \
            $(sed -n "s/^Exec=//p" /usr/share/applications/parvenor-quillmere.desktop)
        kill -0 "$(sed -n "s/^pid=//p" /home/user/.Quillmere/ui.pid)"
        diff /opt/Parvenor/Quillmere/INFO /home/user/.Quillmere/app/INFO'
}
