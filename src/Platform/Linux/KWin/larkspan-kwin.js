// Larkspan's window reporter for KWin (Plasma 5.27 and 6). Loaded by Larkspan through
// org.kde.kwin.Scripting; calls Larkspan back on the session bus whenever another window is
// activated or the active window's caption changes. It sends nothing anywhere else.
var service = "org.larkspan.Larkspan.KWin";
var path = "/org/larkspan/Larkspan/KWin";
var iface = "org.larkspan.Larkspan.KWin";
var watched = null;

function report(window) {
    if (!window) {
        callDBus(service, path, iface, "Activated", "", "", "", 0);
        return;
    }
    callDBus(service, path, iface, "Activated", String(window.resourceClass || ""),
             String(window.desktopFileName || ""), String(window.caption || ""), window.pid > 0 ? window.pid : 0);
}

function onCaptionChanged() {
    report(watched);
}

function follow(window) {
    if (watched)
        watched.captionChanged.disconnect(onCaptionChanged);
    watched = window;
    if (watched)
        watched.captionChanged.connect(onCaptionChanged);
    report(watched);
}

// Plasma 6 names them windows, Plasma 5 clients.
(workspace.windowActivated || workspace.clientActivated).connect(follow);
follow(workspace.activeWindow || workspace.activeClient);
