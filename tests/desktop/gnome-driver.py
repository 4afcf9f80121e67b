#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# A person at the GNOME desktop, for tests/desktop/gnome-session.sh: keys and the pointer through
# mutter's RemoteDesktop API (absolute motion through a linked ScreenCast stream), the screen and
# the focus through the shell (--unsafe-mode). `serve SOCKET` holds the one input session the
# seat's virtual devices belong to; every other verb is a client of it (verbs: see the script).
import json, os, socket, subprocess, sys, time

KEYSYMS = {"alt": 0xFFE9, "shift": 0xFFE1, "ctrl": 0xFFE3, "control": 0xFFE3, "super": 0xFFEB,
           "escape": 0xFF1B, "return": 0xFF0D, "tab": 0xFF09, "space": 0x20, "backspace": 0xFF08}


def keysym(name):
    return KEYSYMS.get(name.lower(), ord(name.lower()) if len(name) == 1 else None)


def serve(path):
    import dbus
    from dbus.mainloop.glib import DBusGMainLoop
    from gi.repository import GLib

    DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    obj = lambda name, path, iface: dbus.Interface(bus.get_object(name, path), iface)
    mutter = "org.gnome.Mutter.RemoteDesktop"
    remote = obj(mutter, obj(mutter, "/org/gnome/Mutter/RemoteDesktop", mutter).CreateSession(),
                 mutter + ".Session")
    remote_id = dbus.Interface(remote, "org.freedesktop.DBus.Properties").Get(mutter + ".Session", "SessionId")
    cast = "org.gnome.Mutter.ScreenCast"
    cast_session = obj(cast, obj(cast, "/org/gnome/Mutter/ScreenCast", cast).CreateSession(
        {"remote-desktop-session-id": remote_id}), cast + ".Session")
    stream = cast_session.RecordMonitor("Meta-0", dbus.Dictionary({}, signature="sv"))
    shell = obj("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell")
    shot = obj("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot", "org.gnome.Shell.Screenshot")

    def evaluate(code):
        ok, result = shell.Eval(code)
        if not ok:
            raise RuntimeError(result)
        return str(result)

    def key(combo):
        syms = [keysym(part) for part in combo.split("+")]
        if None in syms:
            raise ValueError("unknown key in " + combo)
        for sym in syms:
            remote.NotifyKeyboardKeysym(dbus.UInt32(sym), True)
            time.sleep(0.03)
        for sym in reversed(syms):
            remote.NotifyKeyboardKeysym(dbus.UInt32(sym), False)
        return ""

    def click():
        remote.NotifyPointerButton(272, True)
        time.sleep(0.03)
        remote.NotifyPointerButton(272, False)
        return ""

    focused = ("(w => w ? (w.get_wm_class() || '') + ' ' + (w.get_title() || '') : '')"
               "(global.display.focus_window)")
    windows = ("global.get_window_actors().map(a => a.meta_window).filter(w => w.showing_on_its_workspace())"
               ".map(w => { const r = w.get_frame_rect(); return [r.x, r.y, r.width, r.height,"
               " w.get_wm_class() || '', w.get_title() || ''].join(' '); }).join('\\n')")
    # The icons the AppIndicator extension shows on the top bar: "X Y W H" of each.
    tray = ("Object.keys(Main.panel.statusArea).filter(k => k.startsWith('appindicator'))"
            ".map(k => { const a = Main.panel.statusArea[k]; const [x, y] = a.get_transformed_position();"
            " return [x, y, a.width, a.height].map(Math.round).join(' '); }).join('\\n')")
    picker = "Main.uiGroup.get_children().some(a => a.constructor.name === 'PickPixel' && a.visible)"
    # Whether the shell has taken a key combination (ours, through gsd-media-keys): X key codes
    # of the US layout's letters, X modifier masks.
    rows = {"qwertyuiop": 24, "asdfghjkl": 38, "zxcvbnm": 52}
    masks = {"shift": 1, "ctrl": 4, "alt": 8, "super": 64}

    def bound(combo):
        *mods, key = combo.lower().split("+")
        code = next(start + row.index(key) for row, start in rows.items() if key in row)
        return "global.display.get_keybinding_action(%d, %d)" % (code, sum(masks[m] for m in mods))

    verbs = {
        "key": key,
        "move": lambda x, y: remote.NotifyPointerMotionAbsolute(stream, float(x), float(y)) or "",
        "click": click,
        "screenshot": lambda f: "" if shot.Screenshot(False, False, os.path.abspath(f))[0] else 1 / 0,
        "focused": lambda: json.loads(evaluate(focused)),
        "tray-icons": lambda: json.loads(evaluate(tray)),
        "windows": lambda: json.loads(evaluate(windows)),
        "picker-shown": lambda: "" if evaluate(picker) == "true" else 1 / 0,
        "shortcut-bound": lambda combo: "" if evaluate(bound(combo)) != "0" else 1 / 0,
        "background": lambda color: subprocess.run(
            ["gsettings", "set", "org.gnome.desktop.background", "primary-color", color], check=True) and "",
        "eval": evaluate,
    }

    def answer(conn, _condition):
        client, _ = conn.accept()
        with client:
            args = json.loads(client.makefile().readline())
            try:
                reply = {"ok": True, "out": verbs[args[0]](*args[1:])}
            except Exception as error:  # the client reports it and fails
                reply = {"ok": False, "out": "%s: %s" % (type(error).__name__, error)}
            client.sendall((json.dumps(reply) + "\n").encode())
        return True

    def listen(_node=None):
        server = socket.socket(socket.AF_UNIX)
        server.bind(path + ".new")
        server.listen(4)
        os.rename(path + ".new", path)
        GLib.io_add_watch(server.fileno(), GLib.IO_IN, lambda *_: answer(server, _))
        listen.server = server

    # Absolute motion needs the stream running: listen once pipewire has it.
    bus.add_signal_receiver(listen, "PipeWireStreamAdded", cast + ".Stream", path=stream)
    remote.Start()
    GLib.MainLoop().run()


def main():
    if sys.argv[1] == "serve":
        return serve(sys.argv[2])
    with socket.socket(socket.AF_UNIX) as client:
        client.connect(os.environ["GNOME_DRIVER_SOCKET"])
        client.sendall((json.dumps(sys.argv[1:]) + "\n").encode())
        reply = json.loads(client.makefile().readline())
    if reply["out"]:
        print(reply["out"])
    return 0 if reply["ok"] else 1


sys.exit(main())
