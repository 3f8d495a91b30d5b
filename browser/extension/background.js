// Larkspan's browser extension: tells the tracker on this computer which tab is in front.
//
// It reports the focused window's active tab (address and title) to Larkspan's native messaging
// host when a tab is activated, when that tab finishes loading or changes its title, and when
// another browser window gets the focus: at most once a second, the latest state winning. A private
// (incognito) tab is reported as private, without address or title. Nothing is stored: only the
// time of the last report is kept, for the rate limit. When the host goes away (Larkspan's host
// ended, the browser was updated), the extension connects again a few seconds later.
"use strict";

const HOST = "org.larkspan.browser_bridge";
const MIN_INTERVAL_MS = 1000;
const RECONNECT_MS = 5000;
const ext = globalThis.browser ?? globalThis.chrome;

let port = null;
let lastReport = 0;
let reportTimer = null;
let reconnectTimer = null;

function connect() {
    if (port) {
        return;
    }
    try {
        port = ext.runtime.connectNative(HOST);
    } catch (error) {
        port = null;
        scheduleReconnect();
        return;
    }
    port.onDisconnect.addListener(() => {
        // Reading the error marks it handled; there is nothing else to do with it.
        void ext.runtime.lastError;
        port = null;
        scheduleReconnect();
    });
    scheduleReport();
}

function scheduleReconnect() {
    if (reconnectTimer === null) {
        reconnectTimer = setTimeout(() => {
            reconnectTimer = null;
            connect();
        }, RECONNECT_MS);
    }
}

// Coalesces a burst of events into one report, sent no sooner than a second after the last.
function scheduleReport() {
    if (reportTimer === null) {
        const wait = Math.max(0, lastReport + MIN_INTERVAL_MS - Date.now());
        reportTimer = setTimeout(sendReport, wait);
    }
}

async function sendReport() {
    reportTimer = null;
    lastReport = Date.now();
    let tabs = [];
    try {
        tabs = await ext.tabs.query({ active: true, lastFocusedWindow: true });
    } catch (error) {
        return;
    }
    const tab = tabs[0];
    if (!tab || !port) {
        return;
    }
    const message = tab.incognito
        ? { private: true }
        : { private: false, url: tab.url ?? "", title: tab.title ?? "" };
    try {
        port.postMessage(message);
    } catch (error) {
        port = null;
        scheduleReconnect();
    }
}

ext.tabs.onActivated.addListener(scheduleReport);
ext.tabs.onUpdated.addListener((tabId, change, tab) => {
    if (tab.active && (change.status === "complete" || change.title !== undefined)) {
        scheduleReport();
    }
});
ext.windows.onFocusChanged.addListener((windowId) => {
    if (windowId !== ext.windows.WINDOW_ID_NONE) {
        scheduleReport();
    }
});

connect();
