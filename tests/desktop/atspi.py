# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads Vantle as a screen reader does: the accessibility bus of the private X desktop of
x11-session.sh, Vantle's tree in the AT-SPI registry, the focused object after real key presses.

    with Session() as s:  # the accessibility bus and Vantle with a new profile
        s.key("alt+shift+x")
        s.expect_focus("focus starts on Pick Color", role="push button", name="Pick Color")
        s.finish()  # exits 1 listing every failed check; 77 when the bus or pyatspi is missing
"""
import os
import shutil
import subprocess
import sys
import tempfile
import time

try:
    import pyatspi
except ImportError:
    print("SKIP: python3-pyatspi is not installed", file=sys.stderr)
    sys.exit(77)

BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


def describe(acc):
    """ "role 'name'" of an accessible, as a failure message shows it."""
    try:
        return f"{acc.getRoleName()} '{acc.name}'"
    except Exception:  # gone while we looked
        return "<gone>"


class Session:
    def __init__(self, files=None):
        """files: {path under the config folder Vantle/: text}, e.g. a seeded history."""
        self.files = files or {}
        self.failures = []
        self.procs = []

    # --- life ----------------------------------------------------------------------------
    def __enter__(self):
        if not os.path.exists(BUS_LAUNCHER) or not shutil.which("xdotool"):
            print("SKIP: at-spi2-core or xdotool is missing", file=sys.stderr)
            sys.exit(77)
        self.home = tempfile.mkdtemp()
        env = dict(os.environ)
        env.pop("NO_AT_BRIDGE", None)
        env.update(HOME=self.home, XDG_CONFIG_HOME=f"{self.home}/config",
                   XDG_DATA_HOME=f"{self.home}/data", XDG_RUNTIME_DIR=f"{self.home}/run",
                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
        os.makedirs(f"{self.home}/config/Vantle")
        os.makedirs(f"{self.home}/run", mode=0o700)
        for name, text in self.files.items():
            with open(f"{self.home}/config/Vantle/{name}", "w") as seeded:
                seeded.write(text)
        self.procs.append(subprocess.Popen([BUS_LAUNCHER, "--launch-immediately"], env=env,
                                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        time.sleep(0.5)
        self.vantle = subprocess.Popen([os.environ["VANTLE_BIN"]], env=env)
        self.procs.append(self.vantle)
        if not self.wait(self.app, 20):
            self.fail("Vantle never joined the accessibility registry")
            self.finish()
        return self

    def __exit__(self, kind, value, tb):
        if kind is None:
            self.finish()
        self.stop()
        return False

    def stop(self):
        for proc in reversed(self.procs):
            proc.kill()
            proc.wait()
        self.procs = []
        shutil.rmtree(self.home, ignore_errors=True)

    def finish(self):
        """Ends the test: exit 1 with every failed check, else 0."""
        for failure in self.failures:
            print(f"FAIL: {failure}", file=sys.stderr)
        if self.failures and os.environ.get("VANTLE_SHOTS"):
            subprocess.run(["import", "-window", "root", f"{os.environ['VANTLE_SHOTS']}/failure.png"])
        self.stop()
        sys.exit(1 if self.failures else 0)

    # --- input ---------------------------------------------------------------------------
    def key(self, *keys):
        """Each key held 80 ms, as a hand holds it; then a moment for the tree to follow."""
        for k in keys:
            subprocess.run(["xdotool", "key", "--delay", "80", k], check=True)
            time.sleep(0.15)

    def pointer(self, from_right, y, *then):
        """Moves the pointer to from_right pixels left of the screen's right edge; then e.g. "click", "1"."""
        width = subprocess.run(["xdotool", "getdisplaygeometry"], capture_output=True, text=True).stdout.split()[0]
        subprocess.run(["xdotool", "mousemove", str(int(width) - from_right), str(y), *then], check=True)

    # --- reading -------------------------------------------------------------------------
    def app(self):
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            child = desktop.getChildAtIndex(i)
            try:
                if child is not None and child.get_process_id() == self.vantle.pid:
                    return child
            except Exception:
                continue
        return None

    def walk(self, root=None):
        """Every showing object under root (Vantle's windows by default), depth first."""
        root = root or self.app()
        if root is None:
            return
        stack = [root]
        while stack:
            acc = stack.pop()
            try:
                if acc is not root and acc.getRole() != pyatspi.ROLE_APPLICATION:
                    if not acc.getState().contains(pyatspi.STATE_SHOWING):
                        continue
                yield acc
                stack.extend(reversed([acc.getChildAtIndex(i) for i in range(acc.childCount)]))
            except Exception:
                continue

    @staticmethod
    def matches(acc, role=None, name=None, prefix=None):
        return ((not role or acc.getRoleName() == role) and (name is None or acc.name == name)
                and (prefix is None or (acc.name or "").startswith(prefix)))

    def find(self, role=None, name=None, prefix=None, root=None):
        for acc in self.walk(root):
            try:
                if self.matches(acc, role, name, prefix):
                    return acc
            except Exception:
                continue
        return None

    def focused(self):
        """The focused object. While a menu is open the widget it opened from still reads as
        focused (Qt keeps it as the window's focus), but the keys go to the menu's entry."""
        found = None
        for acc in self.walk():
            try:
                if acc.getState().contains(pyatspi.STATE_FOCUSED):
                    if acc.getRole() == pyatspi.ROLE_MENU_ITEM:
                        return acc
                    found = found or acc
            except Exception:
                continue
        return found

    def actions(self, acc):
        try:
            action = acc.queryAction()
            return [action.getName(i) for i in range(action.nActions)]
        except NotImplementedError:
            return []

    def dump(self, root=None):
        """The tree as indented lines, for a failure message."""

        def lines(acc, depth):
            try:
                if depth and not acc.getState().contains(pyatspi.STATE_SHOWING):
                    return []
                return ["  " * depth + describe(acc)] + [
                    line for i in range(acc.childCount) for line in lines(acc.getChildAtIndex(i), depth + 1)]
            except Exception:
                return []

        root = root or self.app()
        return "\n".join(lines(root, 0)) if root is not None else ""

    # --- checking ------------------------------------------------------------------------
    def wait(self, predicate, timeout=5.0):
        deadline = time.monotonic() + timeout
        while True:
            try:
                result = predicate()
            except Exception:
                result = None
            if result or time.monotonic() > deadline:
                return result
            time.sleep(0.1)

    def fail(self, message):
        self.failures.append(message)

    def check(self, label, ok, detail=""):
        if not ok:
            self.fail(f"{label}{': ' + detail if detail else ''}")
        return ok

    def expect_focus(self, label, name=None, role=None, timeout=3.0):
        """After a key: the focused object is the one named (a name ending in "…" is a prefix)."""
        prefix = name[:-1] if name and name.endswith("…") and len(name) > 1 else None
        if not self.wait(lambda: self.matches(self.focused(), role, None if prefix else name, prefix), timeout):
            acc = self.focused()
            self.fail(f"{label}: focus on {describe(acc) if acc else 'nothing'}, expected {role or 'any role'} '{name}'")
            return False
        return True

    def expect_tree(self, label, table, root=None):
        """table: (role, name) rows, name ending in "…" for a prefix; each must be showing."""
        for role, name in table:
            prefix = name[:-1] if name.endswith("…") and len(name) > 1 else None
            if self.wait(lambda: self.find(role, None if prefix else name, prefix, root), 2) is None:
                self.fail(f"{label}: no {role} '{name}' in\n{self.dump(root)}")
