#!/usr/bin/python3
"""Drives Larkspan the way a person with a screen reader does: through the accessibility tree (AT-SPI)
and the tray icon's D-Bus interface, never through screen coordinates.

    a11y.py press ROLE NAME          do the element's action (Press, Toggle, ...)
    a11y.py text ROLE NAME           print the element's text (its name, or its text contents)
    a11y.py has ROLE NAME [STATE]    succeed once the element shows (and has STATE: selected, checked...)
    a11y.py gone ROLE NAME           succeed once no such element shows
    a11y.py tray activate            what a left click on the icon does
    a11y.py tray menu LABEL          choose LABEL in the icon's menu
    a11y.py tray tooltip             print the icon's tooltip (title and text)

NAME is matched exactly, or as a regular expression when it starts with "~". Every command waits up to
A11Y_TIMEOUT seconds (default 10) for what it looks for; it fails with a short message otherwise.
"""
import os
import re
import sys
import time

APP = os.environ.get("A11Y_APP", "Larkspan")
TIMEOUT = float(os.environ.get("A11Y_TIMEOUT", "10"))


def fail(message):
    print("a11y: " + message, file=sys.stderr)
    sys.exit(1)


def poll(find, what):
    deadline = time.monotonic() + TIMEOUT
    while True:
        try:
            found = find()
        except Exception:  # the tree changes under us while windows open and close
            found = None
        if found:
            return found
        if time.monotonic() > deadline:
            fail("timed out waiting for " + what)
        time.sleep(0.2)


# --- the accessibility tree -------------------------------------------------------------------------

def application():
    import pyatspi
    return next((app for app in pyatspi.Registry.getDesktop(0) if app is not None and app.name == APP), None)


def showing(node):
    import pyatspi
    states = node.getState()
    return states.contains(pyatspi.STATE_SHOWING) and states.contains(pyatspi.STATE_VISIBLE)


def walk(node):
    """Depth first over the elements that show; a hidden element hides its subtree."""
    if node is None or (node.getRoleName() != "application" and not showing(node)):
        return
    yield node
    for child in node:
        yield from walk(child)


def name_matches(node, name):
    if name.startswith("~"):
        return re.search(name[1:], node.name or "") is not None
    return node.name == name


def find(role, name):
    def look():
        for node in walk(application()):
            if node.getRoleName() == role and name_matches(node, name):
                return node
        return None
    return look


def action_names(node):
    try:
        action = node.queryAction()
    except NotImplementedError:
        return []
    return [action.getName(i) for i in range(action.nActions)]


def press(role, name):
    node = poll(find(role, name), f"{role} '{name}'")
    names = [n for n in action_names(node) if n != "SetFocus"]
    if not names:
        fail(f"{role} '{name}' offers no action")
    node.queryAction().doAction(action_names(node).index(names[0]))


def text_of(node):
    try:
        text = node.queryText()
        contents = text.getText(0, text.characterCount)
        if contents:
            return contents
    except NotImplementedError:
        pass
    return node.name


def has_state(node, state):
    import pyatspi
    return node.getState().contains(getattr(pyatspi, "STATE_" + state.upper()))


# --- the tray icon, as a panel uses it ---------------------------------------------------------------

def tray_item():
    import dbus
    bus = dbus.SessionBus()
    path = os.environ["LARKSPAN_TRAY_ITEMS"]

    def registered():
        with open(path) as items:
            names = [line.strip() for line in items if line.strip()]
        return names[-1] if names else None
    return bus, poll(registered, "the tray icon to register")


def tray(command, label=None):
    import dbus
    bus, service = tray_item()
    item = bus.get_object(service, "/StatusNotifierItem")
    if command == "activate":
        item.Activate(dbus.Int32(0), dbus.Int32(0), dbus_interface="org.kde.StatusNotifierItem")
        return
    if command == "tooltip":
        tip = item.Get("org.kde.StatusNotifierItem", "ToolTip", dbus_interface=dbus.PROPERTIES_IFACE)
        print(tip[2], tip[3])
        return
    menu_path = item.Get("org.kde.StatusNotifierItem", "Menu", dbus_interface=dbus.PROPERTIES_IFACE)
    menu = dbus.Interface(bus.get_object(service, menu_path), "com.canonical.dbusmenu")
    menu.AboutToShow(dbus.Int32(0))

    def entry():
        _, layout = menu.GetLayout(dbus.Int32(0), dbus.Int32(-1), dbus.Array([], signature="s"))
        for child in layout[2]:
            if str(child[1].get("label", "")).replace("_", "") == label and child[1].get("enabled", True):
                return int(child[0])
        return None
    item_id = poll(entry, f"menu entry '{label}'")
    menu.Event(dbus.Int32(item_id), "clicked", dbus.Int32(0, variant_level=1), dbus.UInt32(0))


def main(argv):
    if len(argv) < 2:
        fail(__doc__)
    command, args = argv[1], argv[2:]
    if command == "press" and len(args) == 2:
        press(*args)
    elif command == "text" and len(args) == 2:
        print(text_of(poll(find(*args), f"{args[0]} '{args[1]}'")))
    elif command == "has" and len(args) in (2, 3):
        look = find(args[0], args[1])
        poll(lambda: (n := look()) and (len(args) == 2 or has_state(n, args[2])), " ".join(args))
    elif command == "gone" and len(args) == 2:
        look = find(*args)
        poll(lambda: look() is None, f"{args[0]} '{args[1]}' to go")
    elif command == "tray" and (args in (["activate"], ["tooltip"]) or len(args) == 2 and args[0] == "menu"):
        tray(*args)
    else:
        fail(__doc__)


if __name__ == "__main__":
    main(sys.argv)
