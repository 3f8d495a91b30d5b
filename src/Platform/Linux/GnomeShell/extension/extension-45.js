// GNOME Shell 45 and later: ES modules.
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';
import Shell from 'gi://Shell';
import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';

import {FocusedWindowService} from './focusedWindow.js';

export default class LarkspanExtension extends Extension {
    enable() {
        this._service = new FocusedWindowService({Gio, GLib, Shell});
    }

    disable() {
        this._service?.destroy();
        this._service = null;
    }
}
