# SPDX-License-Identifier: GPL-3.0-or-later
# private_session MARKER SCRIPT ARGS...: runs `bash SCRIPT ARGS...` with MARKER=1 on a private
# session bus and XDG_RUNTIME_DIR (also HOME), as `nobody` when root (sway and KWin refuse root),
# with the files `nobody` cannot read, and what `prepare_session BIN_DIR` adds, in a bin/ on PATH.
private_session() {
    local marker=$1 script arg status=0
    shift
    session_dir=$(mktemp -d "${TMPDIR:-/tmp}/vantle-session.XXXXXX")
    trap 'remove_tree "$session_dir"' EXIT
    run_as=()
    if [[ $(id -u) == 0 ]]; then
        command -v runuser >/dev/null || skip "the compositor refuses to run as root and runuser is missing"
        id nobody >/dev/null 2>&1 || skip "the compositor refuses to run as root and there is no user 'nobody'"
        run_as=(runuser -u nobody --)
        chown nobody "$session_dir"
    fi
    chmod 0700 "$session_dir"
    mkdir -p "$session_dir/bin"
    bring() { # bring FILE: prints a path the session user can read
        [[ -f "$1" && ${#run_as[@]} -gt 0 ]] && ! "${run_as[@]}" test -r "$1" \
            && cp -p "$1" "$session_dir/bin/" && echo "$session_dir/bin/${1##*/}" || echo "$1"
    }
    script=$(bring "$1")
    local args=()
    for arg in "${@:2}"; do args+=("$(bring "$arg")"); done
    [[ -n "${VANTLE_BIN:-}" ]] && VANTLE_BIN=$(bring "$VANTLE_BIN") && export VANTLE_BIN
    [[ -n "${KDE_DESKTOP_DRIVER:-}" ]] && KDE_DESKTOP_DRIVER=$(bring "$KDE_DESKTOP_DRIVER") && export KDE_DESKTOP_DRIVER
    declare -F prepare_session >/dev/null && prepare_session "$session_dir/bin"
    [[ ${#run_as[@]} -gt 0 ]] && chown -R nobody "$session_dir/bin"
    "${run_as[@]}" env "$marker=1" XDG_RUNTIME_DIR="$session_dir" HOME="$session_dir" PATH="$session_dir/bin:$PATH" \
        dbus-run-session -- bash "$script" "${args[@]}" || status=$?
    exit "$status"
}
