#!/usr/bin/env python3
# A GTK 3 window for the privacy test: a password entry above an ordinary entry, at a fixed place
# in the top-left corner, away from the key caps at the bottom of the screen.
import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402

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
print("ready", flush=True)
Gtk.main()
