#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# paste-target FILE: a maximised window in the colour the checks pick (SetColor on the bus) that
# appends the clipboard's text to FILE at each Ctrl+(Shift+)V. (foot dies on KWin's virtual output.)
import sys
import dbus, dbus.service, gi
from dbus.mainloop.glib import DBusGMainLoop

gi.require_version("Gtk", "3.0")
gi.require_version("Gdk", "3.0")
from gi.repository import GLib, Gdk, Gtk

GLib.set_prgname("paste-target")  # the app id the desktops name the window by
DBusGMainLoop(set_as_default=True)
style, window = Gtk.CssProvider(), Gtk.Window(title="paste-target")
Gtk.StyleContext.add_provider_for_screen(Gdk.Screen.get_default(), style, Gtk.STYLE_PROVIDER_PRIORITY_USER)


class PasteTarget(dbus.service.Object):
    @dbus.service.method("org.vantle.PasteTarget", in_signature="s")
    def SetColor(self, color):
        style.load_from_data(b"window { background: %s; }" % color.encode())


def paste(_, event):
    if event.state & Gdk.ModifierType.CONTROL_MASK and Gdk.keyval_to_lower(event.keyval) == Gdk.KEY_v:
        with open(sys.argv[1], "a") as pasted:
            pasted.write((Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD).wait_for_text() or "") + "\n")


PasteTarget(dbus.service.BusName("org.vantle.PasteTarget", dbus.SessionBus()), "/")
PasteTarget.SetColor(None, "#808080")
window.connect("key-press-event", paste)
window.maximize()
window.show_all()
Gtk.main()
