#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# install-checks.sh CHECK BUILD_DIR: checks what `cmake --install` and `make package` deliver,
# each in its own temporary prefix; exit status 77 when a tool the check needs is missing.
set -euo pipefail

check=$1
build=$(cd "$2" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

failures=0
fail() { echo "FAIL: $*" >&2; failures=$((failures + 1)); }
skip() { echo "SKIP: $*" >&2; exit 77; }
need() { # need TOOL:PACKAGE...
    local t
    for t; do command -v "${t%:*}" >/dev/null 2>&1 || skip "${t%:*} is not installed (package ${t#*:})"; done
}

install_into() {
    prefix=$work/prefix
    cmake --install "$build" --prefix "$prefix" >"$work/install.log" || { cat "$work/install.log" >&2; exit 1; }
    app_id=$(sed -n 's/^VANTLE_APP_ID:STRING=//p' "$build/CMakeCache.txt")
    desktop=$prefix/share/applications/vantle.desktop
    metainfo=$prefix/share/metainfo/$app_id.metainfo.xml
    completion=$prefix/share/bash-completion/completions/vantle
}

# The subcommands as the program itself lists them in its help.
subcommands() {
    "$prefix/bin/vantle" --help | sed -n '/^Commands:/,/^$/p' | sed -n 's/^  \([a-z][a-z-]*\)\b.*/\1/p'
}

# PNG width and height from the IHDR chunk.
png_size() { od -An -tu1 -j16 -N8 "$1" | awk '{print $1*2^24 + $2*2^16 + $3*256 + $4 "x" $5*2^24 + $6*2^16 + $7*256 + $8}'; }

desktop_value() { sed -n "/^\[Desktop Entry\]/,/^\[/s/^$1=//p" "$desktop"; }

check_layout() {
    install_into
    [[ -n $app_id ]] || fail "VANTLE_APP_ID is empty in the build's cache"
    local f
    for f in bin/vantle share/applications/vantle.desktop share/metainfo/$app_id.metainfo.xml \
        share/man/man1/vantle.1.gz share/bash-completion/completions/vantle \
        share/icons/hicolor/scalable/apps/vantle.svg share/icons/hicolor/scalable/apps/vantle-symbolic.svg \
        lib/vantle/modules/vantle-desktop.so lib/vantle/modules/vantle-network.so lib/vantle/modules/vantle-gnome.so \
        lib/vantle/modules/vantle-colour.so lib/vantle/modules/vantle-wayland.so; do
        [[ -s $prefix/$f ]] || fail "$f is not installed"
    done
    # Libraries only some sessions or moments use are their modules' (Wayland's client library,
    # littleCMS, libsodium) or a plugin's (Qt SVG): a start never maps them.
    ! readelf -d "$prefix/lib/vantle/modules/vantle-desktop.so" | grep -E 'NEEDED.*(wayland|ffi|lcms|sodium|Svg)' \
        || fail "the desktop part links a library that belongs in a module"
    # The installed program's exit statuses (each command's own refusals are CommandLineTest's):
    # it finds its desktop part (`pick --print` refuses the format there), and says calmly when
    # the part is missing.
    mkdir -p "$work/alone" && cp "$prefix/bin/vantle" "$work/alone/"
    local run expected program words answer status
    for run in "0 bin --version" "2 bin frobnicate" "2 bin pick --print --format nonsense" "1 alone pick --print"; do
        read -r expected program words <<<"$run"
        [[ $program == bin ]] && program=$prefix/bin/vantle || program=$work/alone/vantle
        status=0
        # shellcheck disable=SC2086 # the words are split on purpose
        answer=$(QT_QPA_PLATFORM=minimal timeout 20 "$program" $words 2>&1) || status=$?
        [[ $status == "$expected" ]] || fail "\"vantle $words\" ($program) exited $status, not $expected: $answer"
    done
    [[ $answer == *"desktop part of Vantle cannot be loaded"* ]] || fail "a missing desktop part said: $answer"
    local size
    for size in 16 24 32 48 64 128 256 512; do
        [[ $(png_size "$prefix/share/icons/hicolor/${size}x${size}/apps/vantle.png") == "${size}x${size}" ]] || fail "no ${size}x$size icon"
    done
    # The desktop entry starts the installed program and names an installed icon.
    local exec icon
    exec=$(desktop_value Exec) icon=$(desktop_value Icon)
    [[ -x $prefix/bin/${exec%% *} ]] || fail "the desktop entry runs \"$exec\", which is not in bin/"
    [[ -e $prefix/share/icons/hicolor/scalable/apps/$icon.svg ]] || fail "the desktop entry's icon \"$icon\" is not installed"
    grep -q '^Exec=vantle pick$' "$desktop" || fail "the desktop entry has no \"vantle pick\" action"
    # The metadata points at this desktop entry, this program and version, and lists a home
    # page only when the build was given one.
    local version line
    version=$("$prefix/bin/vantle" --version | awk '{print $2}')
    for line in "<id>$app_id</id>" '<launchable type="desktop-id">vantle.desktop</launchable>' \
        '<binary>vantle</binary>' "<release version=\"$version\""; do
        grep -qF "$line" "$metainfo" || fail "the metainfo file lacks $line"
    done
    local urls=0
    [[ -z $(sed -n 's/^VANTLE_WEBSITE_URL:STRING=//p' "$build/CMakeCache.txt") ]] || urls=1
    [[ $(grep -c '<url' "$metainfo") == "$urls" ]] || fail "metainfo lists a home page unless the build was given one"
    # The installed program runs from its prefix.
    [[ $("$prefix/bin/vantle" format --format hex 1,0,0) == "#FF0000" ]] || fail "the installed program does not format colours"
}

check_desktop_entry() {
    need desktop-file-validate:desktop-file-utils
    install_into
    # Hints are advice; errors and warnings are defects.
    ! desktop-file-validate "$desktop" 2>&1 | grep -E 'error|warning' || fail "desktop-file-validate complains"
}

check_metainfo() {
    need appstreamcli:appstream
    install_into
    appstreamcli validate --no-net --pedantic "$metainfo" || fail "appstreamcli rejects $app_id.metainfo.xml"
}

check_manual() {
    install_into
    need man:man-db # which runs groff with its warnings on
    local warnings
    warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$prefix/share/man/man1/vantle.1.gz" 2>&1 >"$work/page.txt")
    [[ -z $warnings ]] || fail "man warns: $warnings"
    # Every subcommand the help lists has its own entry under COMMANDS and an example.
    local sub commands
    commands=$(sed -n '/^COMMANDS/,/^[A-Z]/p' "$work/page.txt")
    for sub in $(subcommands); do
        grep -Eq "^       $sub( |$)" <<<"$commands" || fail "the manual page does not describe \"$sub\""
        sed -n '/^EXAMPLES/,$p' "$work/page.txt" | grep -q "vantle $sub" || fail "the manual page has no example of \"$sub\""
        "$prefix/bin/vantle" --help | grep -Eq "^ +vantle $sub( |$)" || fail "vantle --help has no example of \"$sub\""
    done
    [[ -n $(subcommands) ]] || fail "vantle --help lists no commands"
}

# complete WORDS...: the completions bash offers for the last word.
complete_words() {
    bash -c '
        source /usr/share/bash-completion/bash_completion
        source "$1"; shift
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
        COMP_LINE="$*"; COMP_POINT=${#COMP_LINE}
        _vantle vantle "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
        printf "%s\n" "${COMPREPLY[@]}" | sort' _ "$completion" "$@"
}

check_completion() {
    [[ -r /usr/share/bash-completion/bash_completion ]] || skip "bash-completion is not installed"
    install_into
    bash -n "$completion" || fail "the completion script does not parse"
    local offered sub c words expected got accepted
    offered=$(complete_words vantle '' | tr '\n' ' ')
    for sub in $(subcommands); do
        grep -qw -- "$sub" <<<"$offered" || fail "completion does not offer the command \"$sub\" (offers: $offered)"
    done
    local cases=(
        # words typed | expected completions (the commands: checked above)
        "vantle format --format hs|hsl hsb"
        "vantle format --format=hexL|hexLower"
        "vantle pick --print --format c|css"
        "vantle format --a|--all"
        "vantle pick --|--format --print"
        "vantle toggle --|"
    )
    for c in "${cases[@]}"; do
        words=${c%%|*}
        expected=$(tr ' ' '\n' <<<"${c#*|}" | sed '/^$/d' | sort | tr '\n' ' ')
        # shellcheck disable=SC2086
        got=$(complete_words $words | sed '/^$/d' | tr '\n' ' ')
        [[ $got == "$expected" ]] || fail "completing \"$words\": expected \"$expected\", got \"$got\""
    done
    # Every format name the program accepts is offered.
    accepted=$("$prefix/bin/vantle" format --help | sed -n 's/^Formats: //p' | grep -o '" ([a-zA-Z]*)' | tr -d '"() ')
    offered=$(complete_words vantle format --format '' | tr '\n' ' ')
    for sub in $accepted; do
        grep -qw -- "$sub" <<<"$offered" || fail "completion does not offer the format \"$sub\""
    done
}

check_package() {
    need cpack:cmake dpkg-deb:dpkg dpkg-shlibdeps:dpkg-dev lintian:lintian
    # Built as a maintainer builds it, naming themselves (without one the package names an
    # address that says none was configured, which Debian's checker rightly refuses).
    cpack --config "$build/CPackConfig.cmake" -B "$work/out" \
        -D "CPACK_DEBIAN_PACKAGE_MAINTAINER=Vantle Tester <vantle-tester@example.org>" >"$work/cpack.log" 2>&1 ||
        { cat "$work/cpack.log" >&2; exit 1; }
    local deb
    deb=$(ls "$work"/out/vantle_*.deb)
    [[ $(basename "$deb") == vantle_$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")-1_$(dpkg --print-architecture).deb ]] ||
        fail "unexpected package file name $(basename "$deb")"
    lintian --fail-on error,warning --tag-display-limit 0 "$deb" >"$work/lintian.log" 2>&1 ||
        fail "lintian finds errors or warnings: $(grep -E '^[EW]:' "$work/lintian.log")"
    # lintian refuses a package without Maintainer or Description; the name is in the file name.
    [[ $(dpkg-deb -f "$deb" Section) == graphics ]] || fail "the package is not in section graphics"
    local depends name needed dep declared version
    depends=$(dpkg-deb -f "$deb" Depends)
    for name in qt6-qpa-plugins libqt6svg6; do
        grep -qw "$name" <<<"$depends" || fail "Depends lacks $name: $depends"
    done
    grep -qw xdg-desktop-portal <<<"$(dpkg-deb -f "$deb" Recommends)" || fail "xdg-desktop-portal is not recommended"

    # Unpack and check the program against what the system's own tools say it needs.
    dpkg-deb -x "$deb" "$work/root"
    local program=$work/root/usr/bin/vantle
    [[ -x $program ]] || fail "the package has no usr/bin/vantle"
    mkdir -p "$work/shlibs/debian"
    printf 'Source: vantle\n\nPackage: vantle\nArchitecture: any\n' >"$work/shlibs/debian/control"
    # (a module missing from the package fails dpkg-shlibdeps)
    needed=$(cd "$work/shlibs" && dpkg-shlibdeps -O "$program" "$work"/root/usr/lib/vantle/modules/vantle-{desktop,network,gnome,colour,wayland}.so \
        2>/dev/null | sed -n 's/^shlibs:Depends=//p')
    [[ -n $needed ]] || fail "dpkg-shlibdeps found no dependencies (or a module is missing)"
    declared=$(tr ',' '\n' <<<"$depends" | sed 's/^ *//; s/ .*//')
    while read -r dep; do
        name=${dep%% *}
        grep -qxF "$name" <<<"$declared" || fail "Depends lacks $name, which the program needs (dpkg-shlibdeps: $needed)"
    done < <(tr ',' '\n' <<<"$needed" | sed 's/^ *//; /^$/d')
    version=$(dpkg-deb -f "$deb" Version)
    [[ $("$program" --version) == "vantle ${version%-*}" ]] || fail "the packaged program reports another version"
    for name in usr/share/applications/vantle.desktop usr/share/man/man1/vantle.1.gz usr/share/icons/hicolor/scalable/apps/vantle.svg; do
        [[ -s $work/root/$name ]] || fail "the package lacks /$name"
    done
    # Where the package index is available, every declared dependency must resolve on this system.
    [[ -z $(apt-cache policy qt6-qpa-plugins 2>/dev/null | sed -n 's/^ *Candidate: //p' | grep -v none) ]] ||
        apt-get install --simulate --no-install-recommends "$deb" >"$work/apt.log" 2>&1 ||
        fail "apt cannot resolve the package's dependencies: $(tail -n 5 "$work/apt.log")"
}

case $check in
    layout) check_layout ;;
    desktop-entry) check_desktop_entry ;;
    metainfo) check_metainfo ;;
    manual) check_manual ;;
    completion) check_completion ;;
    package) check_package ;;
    *) echo "unknown check $check" >&2; exit 2 ;;
esac
((failures == 0)) || { echo "$failures check(s) failed" >&2; exit 1; }
echo "ok: $check"
