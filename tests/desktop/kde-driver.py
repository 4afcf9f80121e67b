#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# A person at the KDE desktop of kde-session.sh (verbs: tests/platform/desktop-checks.sh): input
# through $KDE_DESKTOP_DRIVER, screen and windows through KWin's D-Bus API and scripts.
import os, re, subprocess, sys, tempfile
import dbus, dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
WINDOW = "w => [w.x, w.y, w.width, w.height, w.skipTaskbar, w.resourceClass, w.caption].join(' ')"
WATCHER = "org.kde.StatusNotifierWatcher"
# Evdev codes of the keys the checks press, on KWin's default US layout (X key codes less 8).
KEYS = {"alt": 56, "shift": 42, "ctrl": 29, "escape": 1, "return": 28,
        **{key: start + row.index(key)
           for row, start in {"qwertyuiop": 16, "asdfghjkl": 30, "zxcvbnm": 44}.items() for key in row}}


def call(name, path, iface, method, *args, **kw):
    return bus.get_object(name, path).get_dbus_method(method, iface)(*args, **kw)


def kwin(path, iface, method, *args, **kw):
    return call("org.kde.KWin", path, iface, method, *args, **kw)


def windows(which):  # a KWin script calls back with one line per window
    loop, lines = GLib.MainLoop(), []

    class Probe(dbus.service.Object):
        @dbus.service.method("org.vantle.DesktopDriver", in_signature="s")
        def windows(self, text):
            lines.append(text)
            loop.quit()

    Probe(bus, "/")
    with tempfile.NamedTemporaryFile("w", suffix=".js") as script:
        script.write("callDBus('%s', '/', 'org.vantle.DesktopDriver', 'windows', %s.filter(w => w)"
                     ".map(%s).join('\\n'));" % (bus.get_unique_name(), which, WINDOW))
        script.flush()
        scripting, plugin = ("/Scripting", "org.kde.kwin.Scripting"), "vantle_windows_%d" % os.getpid()
        kwin(*scripting, "loadScript", script.name, plugin, signature="ss")
        kwin(*scripting, "start")
        GLib.timeout_add(10000, loop.quit)
        loop.run()
        kwin(*scripting, "unloadScript", plugin)
    if lines and lines[0]:
        print(lines[0])
    return bool(lines)


def screenshot(file):  # KWin writes the pixels to a pipe: 32-bit BGRA rows
    read, write = os.pipe()
    shot = kwin("/org/kde/KWin/ScreenShot2", "org.kde.KWin.ScreenShot2", "CaptureActiveScreen",
                {"native-resolution": True}, dbus.types.UnixFd(write))
    os.close(write)
    with os.fdopen(read, "rb") as pixels:
        size = "%dx%d" % (shot["stride"] // 4, shot["height"])
        crop = "%dx%d+0+0" % (shot["width"], shot["height"])
        subprocess.run(["convert", "-size", size, "-depth", "8", "bgra:-", "-crop", crop, file],
                       stdin=pixels, check=True)


def picker_shown():  # KWin's picker is up from the portal's call to org.kde.kwin.ColorPicker until its answer
    waiting = None
    for line in open(os.environ["XDG_RUNTIME_DIR"] + "/logs/pickers.log"):
        fields = dict(re.findall(r"(\w+)=([^\s;]*)", line))
        if line.startswith("method call") and line.rstrip().endswith("member=pick"):
            waiting = (fields["sender"], fields["serial"])
        elif (fields.get("destination"), fields.get("reply_serial")) == waiting:  # its return or error
            waiting = None
    return waiting is not None


def shortcut_bound(combo):  # kglobalaccel spells Alt+Shift+C as the Qt key code 0x0A000043
    *mods, key = combo.lower().split("+")
    code = ord(key.upper()) + sum({"shift": 0x02000000, "ctrl": 0x04000000, "alt": 0x08000000}[m] for m in mods)
    accel = "org.kde.kglobalaccel"
    return any(re.search(r"\b%d\b" % code, repr(call(accel, path, accel + ".Component", "allShortcutInfos")))
               for path in call(accel, "/kglobalaccel", "org.kde.KGlobalAccel", "allComponents"))


class TrayWatcher(dbus.service.Object):  # as far as a Qt tray icon needs it: a host is present
    items = []

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender):  # by bus name, or by path on the caller's
        self.items.append(sender + "@" + service if service.startswith("/") else service)

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s")
    def Introspect(self):  # Qt reads a property only once the interface declares it
        return ('<node><interface name="%s"><property name="IsStatusNotifierHostRegistered" type="b" access="read"/>'
                '<property name="ProtocolVersion" type="i" access="read"/><property name='
                '"RegisteredStatusNotifierItems" type="as" access="read"/></interface></node>') % WATCHER

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return self.GetAll(interface)[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _):
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": 0,
                "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s")}


VERBS = {
    "focused": lambda: windows("[workspace.activeClient]"),
    "windows": lambda: windows("workspace.clientList()"),
    "screenshot": screenshot,
    "tray-icons": lambda: True,  # no Plasma panel in this session: no icon is drawn
    "picker-shown": picker_shown,
    "shortcut-bound": shortcut_bound,
    # The paste target fills the screen: its colour is the desktop's.
    "background": lambda color: call("org.vantle.PasteTarget", "/", "org.vantle.PasteTarget", "SetColor", color),
    # The Plasma shell's tray watcher, which this session does not run.
    "tray-watcher": lambda: TrayWatcher(dbus.service.BusName(WATCHER, bus), "/StatusNotifierWatcher")
    and GLib.MainLoop().run(),
}
if sys.argv[1] == "paste-target":
    os.execv(os.path.join(os.path.dirname(os.path.abspath(__file__)), "paste-target.py"), sys.argv[1:])
if sys.argv[1] == "key":
    sys.argv[2:] = [str(KEYS[key.lower()]) for key in sys.argv[2].split("+")]
if sys.argv[1] not in VERBS:  # key, move, click
    os.execv(os.environ["KDE_DESKTOP_DRIVER"], sys.argv)
sys.exit(0 if VERBS[sys.argv[1]](*sys.argv[2:]) is not False else 1)
