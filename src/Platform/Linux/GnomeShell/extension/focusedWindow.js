// The focused window on the session bus, for Larkspan: its app id, WM class, title and pid, read
// with Get and announced with Changed on every focus or title change. Shared by both entry files:
// the installer appends the export line GNOME 45 and later need.
const INTERFACE = `<node>
  <interface name="org.larkspan.Larkspan.FocusedWindow">
    <method name="Get">
      <arg type="s" name="appId" direction="out"/>
      <arg type="s" name="wmClass" direction="out"/>
      <arg type="s" name="title" direction="out"/>
      <arg type="u" name="pid" direction="out"/>
    </method>
    <signal name="Changed">
      <arg type="s" name="appId"/>
      <arg type="s" name="wmClass"/>
      <arg type="s" name="title"/>
      <arg type="u" name="pid"/>
    </signal>
  </interface>
</node>`;

var BUS_NAME = 'org.larkspan.Larkspan.Shell';
var OBJECT_PATH = '/org/larkspan/Larkspan/FocusedWindow';

// `gi` holds Gio, GLib and Shell, as each entry file imports them its own way.
var FocusedWindowService = class {
    constructor(gi) {
        this._gi = gi;
        this._window = null;
        this._titleId = 0;
        this._object = gi.Gio.DBusExportedObject.wrapJSObject(INTERFACE, this);
        this._object.export(gi.Gio.DBus.session, OBJECT_PATH);
        this._nameId = gi.Gio.bus_own_name_on_connection(gi.Gio.DBus.session, BUS_NAME,
            gi.Gio.BusNameOwnerFlags.NONE, null, null);
        this._focusId = global.display.connect('notify::focus-window', () => this._follow());
        this._follow();
    }

    Get() {
        return this._describe();
    }

    _describe() {
        const window = this._window;
        if (!window)
            return ['', '', '', 0];
        // Windows without a desktop entry get a made-up "window:N" app; their WM class says more.
        const app = this._gi.Shell.WindowTracker.get_default().get_window_app(window);
        const id = app && app.get_id() ? app.get_id() : '';
        const appId = id.startsWith('window:') ? '' : id.replace(/\.desktop$/, '');
        const pid = window.get_pid();
        return [appId, window.get_wm_class() || '', window.get_title() || '', pid > 0 ? pid : 0];
    }

    _follow() {
        if (this._window && this._titleId)
            this._window.disconnect(this._titleId);
        this._window = global.display.focus_window;
        this._titleId = this._window ? this._window.connect('notify::title', () => this._announce()) : 0;
        this._announce();
    }

    _announce() {
        this._object.emit_signal('Changed', new this._gi.GLib.Variant('(sssu)', this._describe()));
    }

    destroy() {
        global.display.disconnect(this._focusId);
        if (this._window && this._titleId)
            this._window.disconnect(this._titleId);
        this._window = null;
        this._gi.Gio.bus_unown_name(this._nameId);
        this._object.unexport();
    }
};
