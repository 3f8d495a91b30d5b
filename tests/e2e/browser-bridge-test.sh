#!/usr/bin/env bash
# Debian's Chromium with Larkspan's extension, unpacked, in a temporary profile whose native
# messaging folder was written by `larkspan --install-browser-bridge`. Two tabs of one window and an
# xterm are switched with xdotool; the store must then hold the pages' addresses and domains,
# classified by the domain table. Then Firefox ESR with the same extension, unsigned, in a temporary
# profile. Usage: browser-bridge-test.sh path/to/larkspan path/to/extension
extension=$2
. "$(dirname "$0")/desktop-session.sh"
. "$(dirname "$0")/browser-pages.sh"

command -v chromium >/dev/null || { echo "SKIP: chromium is not installed"; exit 77; }
start_desktop
serve_pages
serve_plain_pages
"$larkspan" --install-browser-bridge >>"$e2e_root/larkspan.log" 2>&1 || fail "--install-browser-bridge failed"
test -s "$XDG_CONFIG_HOME/chromium/NativeMessagingHosts/org.larkspan.browser_bridge.json" ||
    fail "no host manifest for Chromium"

terminal=$(open_window Terminal "~: make")
launch
wait_until 10 test -S "$XDG_RUNTIME_DIR/larkspan-browser-bridge" || fail "the tracker does not listen"

background chromium --no-sandbox --user-data-dir="$XDG_CONFIG_HOME/chromium" --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync --no-default-browser-check \
    --password-store=basic --load-extension="$extension" --ignore-certificate-errors \
    --host-resolver-rules="MAP github.com 127.0.0.1:$pages_port, MAP www.youtube.com 127.0.0.1:$pages_port" \
    https://github.com/issues.html https://www.youtube.com/watch.html
# The window is found by its title, the active tab's: browsers map short-lived windows of their own.
browser_window() { xdotool search --onlyvisible --name "^larkspan/tracker: Issues $1" | head -n 1 | grep .; }
wait_until 30 browser_window "- Chromium" || fail "Chromium did not show the first page"
window=$(browser_window "- Chromium")
xdotool windowactivate --sync "$window"
showing() { xdotool getwindowname "$window" | grep -q "$1"; }

sleep 8
xdotool key --window "$window" ctrl+2
wait_until 5 showing "Rust tutorial" || fail "Chromium did not switch tabs"
# A switch within the browser is seen at the next 4-second poll; the session must outlast 5 seconds.
sleep 11
xdotool windowactivate --sync "$terminal"
sleep 3

check "the pages of Chromium, in order" \
    "https://github.com/issues.html|github.com|larkspan/tracker: Issues|1|0.92
https://www.youtube.com/watch.html|youtube.com|Rust tutorial for beginners - YouTube|4|0.58" \
    "SELECT url, url_domain, window_title, category_id, confidence FROM activities
     WHERE app_name = 'Chromium Web Browser' AND url IS NOT NULL ORDER BY start_time"
chromium_pid=$(xdotool getwindowpid "$window")
kill "$chromium_pid"

# Firefox ESR installs an unsigned extension found in the profile when signatures are not required.
command -v firefox-esr >/dev/null || { echo "PASS (Chromium; firefox-esr is not installed)"; exit 0; }
profile="$e2e_root/firefox-profile"
mkdir -p "$profile/extensions"
(cd "$extension" && python3 -c 'import sys, zipfile
with zipfile.ZipFile(sys.argv[1], "w") as z:
    [z.write(name) for name in ("manifest.json", "background.js")]' "$profile/extensions/browser-bridge@larkspan.org.xpi")
cat >"$profile/user.js" <<'PREFS'
user_pref("xpinstall.signatures.required", false);
user_pref("extensions.autoDisableScopes", 0);
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("browser.aboutwelcome.enabled", false);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("datareporting.policy.firstRunURL", "");
user_pref("browser.startup.homepage_override.mstone", "ignore");
PREFS
background firefox-esr --no-remote --profile "$profile" "http://127.0.0.1:$plain_port/issues.html"
wait_until 30 browser_window "—" || fail "Firefox did not show the page"
firefox_pages="SELECT DISTINCT url, url_domain, window_title FROM activities
    WHERE bundle_id = 'org.mozilla.firefox' AND url LIKE 'http://127.0.0.1%'"
# On a loaded machine the extension may start reporting after the first visit: a few visits, until one
# is stored with its page.
for _ in 1 2 3 4; do
    xdotool windowactivate --sync "$(browser_window "—")"
    sleep 8
    xdotool windowactivate --sync "$terminal"
    sleep 2
    [ -z "$(db "$firefox_pages")" ] || break
done
check "the page of Firefox" "http://127.0.0.1:$plain_port/issues.html|127.0.0.1|larkspan/tracker: Issues" \
    "$firefox_pages"
"$larkspan" --uninstall-browser-bridge >/dev/null || fail "--uninstall-browser-bridge failed"
[ -z "$(find "$HOME/.mozilla" "$XDG_CONFIG_HOME" -name 'org.larkspan.browser_bridge.json')" ] || fail "manifests left"
echo "PASS"
