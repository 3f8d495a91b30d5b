// GNOME Shell 43 and 44: the imports object.
/* exported init */
const {Gio, GLib, Shell} = imports.gi;
const Me = imports.misc.extensionUtils.getCurrentExtension();

class LarkspanExtension {
    enable() {
        this._service = new Me.imports.focusedWindow.FocusedWindowService({Gio, GLib, Shell});
    }

    disable() {
        if (this._service)
            this._service.destroy();
        this._service = null;
    }
}

function init() {
    return new LarkspanExtension();
}
