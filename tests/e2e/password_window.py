#!/usr/bin/env python3
# A GTK 3 window for the privacy test: a password entry above an ordinary entry, at a fixed place
# in the top-left corner, away from the key caps at the bottom of the screen. A line "password"
# or "ordinary" on standard input gives that entry the focus (for compositors where no test tool
# can click or type into a window).
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk  # noqa: E402

window = Gtk.Window(title="Vantrel password test")
window.set_default_size(400, 120)
window.move(0, 0)
window.connect("destroy", Gtk.main_quit)
box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL, spacing=10)
password = Gtk.Entry()
password.set_visibility(False)  # GTK gives it the role "password text"
password.set_size_request(380, 40)
ordinary = Gtk.Entry()
ordinary.set_size_request(380, 40)
box.pack_start(password, False, False, 0)
box.pack_start(ordinary, False, False, 0)
window.add(box)
window.show_all()


def focus_from_stdin(_source, _condition):
    line = sys.stdin.readline()
    if not line:
        return False
    entries = {"password": password, "ordinary": ordinary}
    if line.strip() in entries:
        entries[line.strip()].grab_focus()
    return True


GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, focus_from_stdin)
print("ready", flush=True)
Gtk.main()
