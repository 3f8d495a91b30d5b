#!/usr/bin/env bash
# Larkspan installed into a temporary DESTDIR under /usr, as the package lays it out: the tree holds
# exactly the executable, a clean desktop entry and AppStream file, the icon at every size and the
# documents. The installed executable answers its command line, starts on a private desktop whose
# folders have spaces and non-ASCII names, records, adds its login entry at the first launch (a clean
# entry naming the installed path) and never again once it was turned off.
# Usage: installed-test.sh path/to/build-folder
build=$1
. "$(dirname "$0")/desktop-session.sh"

stage="$e2e_root/stage dir ü"
# Every rule is in the default component; naming it keeps the build's install_manifest.txt, which
# `make uninstall` reads, for real installs.
DESTDIR="$stage" cmake --install "$build" --prefix /usr --component Unspecified >"$e2e_root/install.log" 2>&1 || fail "cmake --install: $(cat "$e2e_root/install.log")"
share="$stage/usr/share"
larkspan="$stage/usr/bin/larkspan"

id=org.larkspan.Larkspan
sizes="16 22 24 32 48 64 128 256 512"
expected="usr/bin/larkspan
usr/libexec/larkspan/larkspan-browser-host
usr/share/larkspan/browser-extension/background.js
usr/share/larkspan/browser-extension/manifest.json
usr/share/applications/$id.desktop
usr/share/doc/larkspan/README.md
usr/share/doc/larkspan/changelog.gz
usr/share/doc/larkspan/copyright
$(for s in $sizes; do echo "usr/share/icons/hicolor/${s}x${s}/apps/$id.png"; done)
usr/share/icons/hicolor/scalable/apps/$id.svg
usr/share/man/man1/larkspan.1.gz
usr/share/metainfo/$id.metainfo.xml"
actual=$(cd "$stage" && find . -type f -printf '%P\n' | LC_ALL=C sort)
[ "$actual" = "$(LC_ALL=C sort <<<"$expected")" ] || fail "installed files differ: $(diff <(echo "$actual") <(LC_ALL=C sort <<<"$expected"))"

# A PNG's width and height are the big-endian words at bytes 16 and 20.
for s in $sizes; do
    png="$share/icons/hicolor/${s}x${s}/apps/$id.png"
    read -r w h < <(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4, $7*256+$8}')
    [ "$w x $h" = "$s x $s" ] || fail "icon ${s}x${s} is $w x $h"
done

clean() {  # clean TOOL ARGS...: the tool succeeds and prints nothing
    local out
    out=$("$@" 2>&1) || fail "$1 failed: $out"
    [ -z "$out" ] || fail "$1 is not clean: $out"
}
clean desktop-file-validate "$share/applications/$id.desktop"
appstreamcli validate --no-net --no-color "$share/metainfo/$id.metainfo.xml" >"$e2e_root/appstream.log" 2>&1 ||
    fail "appstreamcli: $(cat "$e2e_root/appstream.log")"
grep -q 'Validation was successful' "$e2e_root/appstream.log" || fail "appstreamcli: $(cat "$e2e_root/appstream.log")"

# The command line needs no display; the version is the one AppStream names.
version=$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$share/metainfo/$id.metainfo.xml")
[ "$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$larkspan" --version)" = "Larkspan $version" ] || fail "--version does not say $version"
env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$larkspan" --help | grep -q -- '--autostart <on|off>' || fail "--help does not list --autostart"

start_desktop
# With a display, an unknown option is refused once Qt has taken its own ones out.
status=0
"$larkspan" -name larkspan --no-such-option 2>"$e2e_root/refused.log" || status=$?
[ "$status" -eq 2 ] && grep -q "no-such-option" "$e2e_root/refused.log" || fail "an unknown option was not refused (status $status)"
export XDG_CONFIG_HOME="$e2e_root/config dir ü" HOME="$e2e_root/home dir ü"
mkdir -p "$XDG_CONFIG_HOME" "$HOME"
entry="$XDG_CONFIG_HOME/autostart/$id.desktop"
terminal=$(open_window kitty "~: make install")

launch_over "$terminal"
wait_until 10 test -f "$entry" || fail "the first launch added no login entry"
clean desktop-file-validate "$entry"
grep -qxF "TryExec=$larkspan" "$entry" || fail "the login entry does not name the installed executable: $(cat "$entry")"
wait_until 10 tray_icon_window "$tracker" || fail "no tray icon"
startup_class=$(sed -n 's/^StartupWMClass=//p' "$share/applications/$id.desktop")
xprop -id "$(tray_icon_window "$tracker")" WM_CLASS | grep -q "\"$startup_class\"$" ||
    fail "WM_CLASS is not $startup_class: $(xprop -id "$(tray_icon_window "$tracker")" WM_CLASS)"
stop_tracker kill -TERM "$tracker"

# Turned off from the command line, it stays off at the next launch.
"$larkspan" --autostart off >/dev/null || fail "--autostart off failed"
[ ! -e "$entry" ] || fail "--autostart off left the entry"
before=$(rows)
launch
xdotool windowactivate --sync "$terminal"
wait_until 10 has_rows_above "$before" || fail "no activity after the restart"
[ ! -e "$entry" ] || fail "the login entry came back after it was turned off"
stop_tracker kill -TERM "$tracker"
echo PASS
