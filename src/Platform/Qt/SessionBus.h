// Waits for the session bus to answer before anything of ours talks to it. Qt's D-Bus connects
// synchronously, and a bus that accepts connections but never answers (a frozen dbus-daemon) holds
// the calling thread for libdbus's 25-second timeout; the tray icon, the notifications and Qt's
// own tray check would each hold the main thread, and with it tracking, that long.
//
// So the bus is first asked, without blocking, to start authentication on a socket of our own; the
// work waiting for the bus runs once it has answered, or at once when there is no bus to wait for
// (none set, or an address form other than a socket path). A bus that does not answer within two
// seconds is asked again after a pause, until it does.
//
// Threads: main thread only.
#pragma once

#include <QObject>

#include <functional>

namespace larkspan {

namespace SessionBus {

// Runs `work` once the session bus has answered (now, if it has already), unless `context` has
// been destroyed by then. The first call starts asking.
void whenAnswered(QObject* context, std::function<void()> work);

}  // namespace SessionBus

}  // namespace larkspan
