#!/usr/bin/python3
"""A StatusNotifierItem host for the test desktop: it owns org.kde.StatusNotifierWatcher, so Qt exports the
tray icon over D-Bus, and writes each registered item's bus name to the file given as argument. A panel
does the same and then calls the item's Activate or its menu's Event when a person (or a screen reader)
uses the icon."""
import os
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
# Qt reads IsStatusNotifierHostRegistered through an introspected proxy, so the properties must be in
# the introspection data, which dbus-python does not generate.
INTROSPECTION = """<node>
  <interface name="org.kde.StatusNotifierWatcher">
    <method name="RegisterStatusNotifierItem"><arg name="service" type="s" direction="in"/></method>
    <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
    <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    <property name="ProtocolVersion" type="i" access="read"/>
  </interface>
  <interface name="org.freedesktop.DBus.Properties">
    <method name="Get"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/></method>
    <method name="GetAll"><arg type="s" direction="in"/><arg type="a{sv}" direction="out"/></method>
  </interface>
  <interface name="org.freedesktop.DBus.Introspectable">
    <method name="Introspect"><arg type="s" direction="out"/></method>
  </interface>
</node>"""


class Watcher(dbus.service.Object):
    def __init__(self, bus, items_file):
        super().__init__(bus, "/StatusNotifierWatcher")
        self.items = []
        self.items_file = items_file

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        # Qt passes its own unique name or a well-known one; the path is always /StatusNotifierItem.
        name = sender if service.startswith("/") else service
        self.items.append(name)
        with open(self.items_file, "a") as out:
            out.write(name + "\n")
        self.StatusNotifierItemRegistered(name)

    @dbus.service.signal(WATCHER, signature="s")
    def StatusNotifierItemRegistered(self, service):
        pass

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, in_signature="", out_signature="s")
    def Introspect(self):
        return INTROSPECTION

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, prop):
        return self.GetAll(interface)[prop]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return {
            "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s"),
            "IsStatusNotifierHostRegistered": dbus.Boolean(True),
            "ProtocolVersion": dbus.Int32(0),
        }


def main():
    DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    watcher = Watcher(bus, sys.argv[1])
    # The host's own name, as panels register one; then the watcher's, which Qt looks for.
    dbus.service.BusName("org.kde.StatusNotifierHost-%d" % os.getpid(), bus)
    name = dbus.service.BusName(WATCHER, bus)
    GLib.MainLoop().run()
    del watcher, name


if __name__ == "__main__":
    main()
