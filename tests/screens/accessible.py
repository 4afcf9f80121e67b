# SPDX-License-Identifier: GPL-3.0-or-later
"""Vantle as a screen reader reads it, in one session from the first start: the welcome, the
popup (rows, menus, rename, export, a colour's detail and comparison, the copy capsule, the
loupe's value) and the settings, named, in Tab order, from the keyboard alone."""
import json
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.environ.get("VANTLE_TESTS_DIR", "tests"), "desktop"))
import pyatspi  # noqa: E402
from atspi import Session  # noqa: E402


def record(uuid, hex_text, timestamp, pinned, name=None):
    red, green, blue = (int(hex_text[i:i + 2], 16) / 255 for i in (1, 3, 5))
    return {"id": uuid, "red": red, "green": green, "blue": blue, "alpha": 1, "timestamp": timestamp,
            "isPinned": pinned, "name": name}


HISTORY = [
    record("6f1c1a52-0d57-4f0e-9a7e-2b1d3c4e5f60", "#FF6B36", 700000000, True, "Sunset"),
    record("0b9e2f13-5a44-4c1d-8e2f-9a8b7c6d5e41", "#3366CC", 700000200, False),
    record("8d2a4b35-6c77-4e8f-a1b2-c3d4e5f60718", "#2E8B57", 700000100, True),
]
SUNSET = "Sunset, #FF6B36, pinned"
ROWS = [SUNSET, "#2E8B57, pinned", "#3366CC"]  # as shown: pinned first, then the recent ones

# What the open popup shows besides its Tab stops; from Pick Color on, what each Tab reaches (the list is one).
TREE = [("heading", "PINNED"), ("heading", "RECENT"), *[("list item", row) for row in ROWS], ("label", "3")]
TAB_ORDER = [("list item", ROWS[0]), ("push button", "Settings"), ("push button", "Export colors"),
             ("push button", "Quit vantle")]
ROW_MENU = ["Copy", "Unpin", "Rename…", "Delete"]  # Sunset's menu
MENU_KEYS = ["Menu", "shift+F10"]  # both open a row's menu on its first entry
# Three of Sunset's nine format lines (one class, named alike), the last one last; "…" ends a prefix.
LINES = ["Hex, #FF6B36", "RGB, rgb(255, 107, 54)", "CSS rgba, rgba(…"]
# Besides the Tab stops (Back, the lines, the compared colour, the swap): one of each kind of text; the
# badges and the graded sentences are one class each, their words ColorDetailView's tests.
DETAIL = [("label", "Sunset"), ("heading", "Contrast Ratios"), ("label", "vs Black, 7.4 to 1, AAA"),
          ("heading", "Text and Background"), ("label", "Contrast ratio 1.9 to 1"),  # with the newest other colour
          ("label", "APCA: Lc 20.7, dividers and disabled parts only"), ("push button", LINES[1])]

SCREENS = [  # (what is read, the button that Return presses there)
    ([("label", "Welcome to vantle"), ("label", "Pick any color from anywhere on your screen with one click."),
      ("push button", "Close")], "Get Started"),
    ([("label", "You're all set.")], "Start Using vantle"),
]
GENERAL_TAB_ORDER = [  # from the selected tab on, what each Tab press reaches
    ("combo box", "Default format"),  # named by its label; the chosen entry is its text
    ("push button", "Pick color"), ("push button", "Clear the Pick color shortcut"),
    ("push button", "Toggle popup"), ("push button", "Clear the Toggle popup shortcut"),
    ("check box", "Show colored dot for last picked color"), ("check box", "Launch at login"),
    ("combo box", "History limit"), ("push button", "Clear History"), ("page tab", "General"),
]
PAGES = ["About", "More Brindlework"]


def step(keys, label, role, name, timeout=3.0):
    """Presses the keys (a space between two), then expects the focus on the object named."""
    s.key(*keys.split(" "))
    s.expect_focus(label, role=role, name=name, timeout=timeout)


def shows(label, timeout=3, gone=False, **target):
    """Waits for the object (with gone=True: for its absence)."""
    s.check(label, bool(s.wait(lambda: (s.find(**target) is None) == gone, timeout)), s.dump())


def selected(tab):
    acc = s.find(role="page tab", name=tab)
    s.check(f"{tab} is the selected tab", acc is not None and acc.getState().contains(pyatspi.STATE_SELECTED))


def description(s, name):
    acc = s.find(role="push button", name=name)
    return acc.description if acc is not None else None


with Session(files={"colorHistory.json": json.dumps(HISTORY)}) as s:
    s.check("announced as a window", s.wait(lambda: s.find(role="frame", name="Welcome to vantle"), 10), s.dump())
    for table, button in SCREENS:
        s.expect_tree(button, table)
        # The button shows once it has entered, the moment it takes Return.
        s.check(f"{button} enters", s.wait(lambda: s.find(role="push button", name=button), 10), s.dump())
        s.expect_focus(f"focus on {button}", role="push button", name=button)
        actions = s.actions(s.find(role="push button", name=button))
        s.check(f"{button} has a press action", "Press" in actions, str(actions))
        s.key("Return")
    shows("the welcome window closes", 5, True, role="push button", name="Start Using vantle")

    # The pointer rests where the rows will show: the popup opening under it keeps its focus.
    s.pointer(150, 190)
    step("alt+shift+x", "focus starts on Pick Color", "push button", "Pick Color", timeout=10)
    s.expect_tree("popup", TREE)
    badge = s.find(role="label", name="3")
    s.check("the count says what it counts", badge is not None and badge.description == "colors")
    sunset = s.find(role="list item", name=SUNSET)
    s.check("a row opens and offers its menu", sunset is not None and s.actions(sunset) == ["Press", "ShowMenu"],
            str(s.actions(sunset) if sunset else None))
    for role, name in TAB_ORDER:
        step("Tab", f"Tab reaches {role} '{name}'", role, name)
    step("shift+Tab shift+Tab shift+Tab", "Shift+Tab back to the list's row", "list item", ROWS[0])
    for keys, row in [(["End"], -1), (["Home"], 0), (["Down", "Down"], -1), (["Up", "Up"], 0)]:
        step(" ".join(keys), f"{'+'.join(keys)} walks to row {row}", "list item", ROWS[row])
    s.check("one highlight: only one thing reads as focused",
            len([a for a in s.walk() if a.getState().contains(pyatspi.STATE_FOCUSED)]) == 1)

    # The row's menu, from either key; Escape goes back to the row.
    for key in MENU_KEYS:
        step(key, f"{key} opens the menu on its first entry", "menu item", ROW_MENU[0])
        menu = s.find(role="menu", name=SUNSET) or s.find(role="popup menu", name=SUNSET)
        s.check(f"{key}: the menu is named by the row", menu is not None, s.dump())
        s.expect_tree(f"{key} menu", [("menu item", item) for item in ROW_MENU])
        step("Escape", f"Escape from the {key} menu back to the row", "list item", SUNSET)

    # Rename…: a sheet with its named field; Escape back to the row.
    step("Menu Down Down Return", "Rename… focuses the name field", "text", "Color name")
    s.expect_tree("rename sheet", [("dialog", "Rename Color"), ("push button", "Cancel"), ("push button", "Save")])
    step("Escape", "Escape from the sheet back to the row", "list item", SUNSET)

    # Deleting a row leaves the focus on the row that takes its place.
    step("Down Menu Down Down Down Return", "after Delete the focus is on the next row", "list item", ROWS[2])
    s.key("Up")

    # Export: a named menu on the first entry that can run; Escape back to the button.
    step("shift+Tab", "Shift+Tab from the first row to Pick Color", "push button", "Pick Color")
    step("shift+Tab shift+Tab", "Shift+Tab around to Export", "push button", "Export colors")
    step("space", "the export menu opens on its first entry", "menu item", "Export Pinned as Text")
    s.expect_tree("export menu", [("menu item", "Export All as JSON")])
    step("Escape", "Escape from the menu back to Export", "push button", "Export colors")

    # The detail screen from the keyboard; a copy there keeps the focus on its line.
    step("shift+Tab shift+Tab Return", "the row's detail opens on its first line", "push button", LINES[0])
    s.expect_tree("detail", DETAIL)
    step(" ".join(["Tab"] * 8), "eight Tabs reach the last line", "push button", LINES[-1])
    # No label beside the compared colour (the newest other, Sunset being the oldest): named by the colour.
    step("Tab", "Tab from the last line to the compared colour", "combo box", "#3366CC")
    step("Tab", "Tab to the swap", "push button", "Swap text and background")
    s.key("space")
    shows("a swap reads the results again", role="label", name="APCA: Lc -22.1, dividers and disabled parts only")
    step("Tab", "Tab from the comparison to Back", "push button", "Back")
    s.key("Tab", "Return")
    shows("the copy capsule is heard", role="notification", name="Copied #FF6B36")
    s.expect_focus("Tab reaches the first line", role="push button", name=LINES[0])
    step("Escape", "Escape from the detail back to the row", "list item", SUNSET)
    s.key("Escape")
    shows("Escape closes the popup from the row", gone=True, role="push button", name="Pick Color")

    # A pick from the keyboard: the loupe's value is heard as the pointer moves; Escape ends it.
    step("alt+shift+x", "the popup opens once more on Pick Color", "push button", "Pick Color")
    s.key("Return")
    s.wait(lambda: s.find(role="notification", prefix="#"), 5)
    subprocess.run(["xdotool", "mousemove", "400", "500"], check=True)
    shows("the loupe's value is heard as it moves", 2, role="notification", prefix="#")
    s.key("Escape")
    shows("the loupe's value goes with the loupe", 2, True, role="notification", prefix="#")

    # The settings from the popup's Settings button.
    step("alt+shift+x", "the popup opens for the settings", "push button", "Pick Color")
    s.key("Tab", "Tab", "space")
    shows("settings open", 10, role="dialog", name="Vantle Settings")
    s.expect_tree("tab list", [("page tab list", ""), ("label", "Default format"), ("label", "History limit")])
    selected("General")
    s.expect_focus("focus starts on the selected tab", role="page tab", name="General")
    for role, name in GENERAL_TAB_ORDER:
        step("Tab", f"Tab reaches {role} '{name}'", role, name)

    # The recorder: Return listens, a combination is recorded, then read after the name.
    step("Tab", "back to the first control", "combo box", "Default format")
    chosen = s.find(role="combo box", name="Default format").queryText()
    s.check("the drop-down reads its entry", chosen.getText(0, -1) == "Hex", chosen.getText(0, -1))
    step("Tab", "the pick recorder", "push button", "Pick color")
    s.key("space")
    s.check("the recorder says it listens", description(s, "Pick color") == "Press shortcut…",
            str(description(s, "Pick color")))
    s.key("ctrl+alt+k")
    recorded = s.wait(lambda: "K" in (description(s, "Pick color") or "") and description(s, "Pick color"), 3)
    s.check("the recorder says the combination", bool(recorded), str(description(s, "Pick color")))

    # Arrows move between the tabs and select them.
    step("shift+Tab shift+Tab", "Shift+Tab back to the tab", "page tab", "General")
    for tab in PAGES:
        step("Right", f"Right reaches {tab}", "page tab", tab)
        s.key("space")
        selected(tab)

    s.key("Escape")
    shows("Escape closes the settings", gone=True, role="dialog", name="Vantle Settings")
    s.finish()
