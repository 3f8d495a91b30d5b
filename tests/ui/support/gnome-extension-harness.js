// Larkspan's GNOME Shell extension service outside the Shell, for tests: gjs with a fake display
// whose focused window the test drives through standard input, one command per line:
// "focus TITLE" focuses a new window, "title TITLE" renames it, "none" focuses nothing.
// Usage: gjs gnome-extension-harness.js EXTENSION_DIR (on the bus of DBUS_SESSION_BUS_ADDRESS).
imports.searchPath.unshift(ARGV[0]);
const {Gio, GLib, GObject} = imports.gi;

const FakeWindow = GObject.registerClass({
    Properties: {title: GObject.ParamSpec.string('title', '', '', GObject.ParamFlags.READWRITE, '')},
}, class FakeWindow extends GObject.Object {
    get_title() {
        return this.title;
    }

    get_wm_class() {
        return 'Nautilus';
    }

    get_pid() {
        return 77;
    }
});
const FakeDisplay = GObject.registerClass({
    Properties: {
        'focus-window': GObject.ParamSpec.object('focus-window', '', '', GObject.ParamFlags.READWRITE,
            GObject.Object),
    },
}, class FakeDisplay extends GObject.Object {});

globalThis.global = {display: new FakeDisplay()};
const Shell = {
    WindowTracker: {get_default: () => ({get_window_app: () => ({get_id: () => 'org.gnome.Nautilus.desktop'})})},
};
new imports.focusedWindow.FocusedWindowService({Gio, GLib, Shell});

const loop = new GLib.MainLoop(null, false);
const input = new Gio.DataInputStream({base_stream: new Gio.UnixInputStream({fd: 0})});
function readCommand() {
    input.read_line_async(GLib.PRIORITY_DEFAULT, null, (stream, result) => {
        const [bytes] = stream.read_line_finish_utf8(result);
        if (bytes === null) {
            loop.quit();
            return;
        }
        const [command, ...rest] = bytes.split(' ');
        if (command === 'focus')
            global.display.focus_window = new FakeWindow({title: rest.join(' ')});
        else if (command === 'title')
            global.display.focus_window.title = rest.join(' ');
        else if (command === 'none')
            global.display.focus_window = null;
        readCommand();
    });
}
readCommand();
loop.run();
