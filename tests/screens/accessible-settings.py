# SPDX-License-Identifier: GPL-3.0-or-later
"""The settings window as a screen reader reads it: the page tab list and each page's controls,
named, in Tab order; the shortcut recorder saying that it listens and then what it recorded;
arrows between the tabs; Escape closing the window."""
import os
import sys
import time

sys.path.insert(0, os.path.join(os.environ.get("VANTLE_TESTS_DIR", "tests"), "desktop"))
import pyatspi  # noqa: E402
from atspi import Session  # noqa: E402

GENERAL_TAB_ORDER = [  # from the selected tab on, what each Tab press reaches
    ("combo box", "Default format"),  # named by its label; the chosen entry is its text
    ("push button", "Pick color"),
    ("push button", "Clear the Pick color shortcut"),
    ("push button", "Toggle popup"),
    ("push button", "Clear the Toggle popup shortcut"),
    ("check box", "Show colored dot for last picked color"),
    ("check box", "Launch at login"),
    ("combo box", "History limit"),
    ("push button", "Clear History"),
    ("page tab", "General"),
]
PAGES = [  # (tab, what its page shows)
    ("About", [("page tab list", ""), ("page tab", "About")]),
    ("More Brindlework", [("page tab", "More Brindlework")]),
]


def description(s, name):
    acc = s.find(role="push button", name=name)
    return acc.description if acc is not None else None


with Session(settings={"onboardingShown": "true"}) as s:
    time.sleep(2)
    # The popup opens with its shortcut; its gear opens the settings.
    s.key("alt+shift+x")
    time.sleep(1.5)
    s.pointer(300, 273, "click", "1")
    window = s.wait(lambda: s.find(role="dialog", name="Vantle Settings"), 10)
    s.check("settings open", window is not None, s.dump())
    s.expect_tree("tab list", [("page tab list", ""), ("page tab", "General"), ("page tab", "About"),
                               ("page tab", "More Brindlework"), ("label", "Default format"),
                               ("label", "History limit")])
    general = s.find(role="page tab", name="General")
    s.check("General is the selected tab",
            general is not None and general.getState().contains(pyatspi.STATE_SELECTED))
    s.expect_focus("focus starts on the selected tab", role="page tab", name="General")
    for role, name in GENERAL_TAB_ORDER:
        s.key("Tab")
        s.expect_focus(f"Tab reaches {role} '{name}'", role=role, name=name)

    # The recorder: Return listens, a combination is recorded, then read after the name.
    s.key("Tab")
    s.expect_focus("back to the first control", role="combo box", name="Default format")
    chosen = s.find(role="combo box", name="Default format").queryText()
    s.check("the drop-down reads its entry", chosen.getText(0, -1) == "Hex", chosen.getText(0, -1))
    s.key("Tab")
    s.expect_focus("the pick recorder", role="push button", name="Pick color")
    s.key("space")
    s.check("the recorder says it listens", description(s, "Pick color") == "Press shortcut…",
            str(description(s, "Pick color")))
    s.key("ctrl+alt+k")
    recorded = s.wait(lambda: "K" in (description(s, "Pick color") or "") and description(s, "Pick color"), 3)
    s.check("the recorder says the combination", bool(recorded), str(description(s, "Pick color")))

    # Arrows move between the tabs and select them.
    s.key("shift+Tab", "shift+Tab")
    s.expect_focus("Shift+Tab back to the tab", role="page tab", name="General")
    for tab, table in PAGES:
        s.key("Right")
        s.expect_focus(f"Right reaches {tab}", role="page tab", name=tab)
        s.key("space")
        s.expect_tree(tab, table)
        acc = s.find(role="page tab", name=tab)
        s.check(f"{tab} is selected", acc is not None and acc.getState().contains(pyatspi.STATE_SELECTED))

    s.key("Escape")
    s.check("Escape closes the settings",
            bool(s.wait(lambda: "Vantle Settings" not in s.dump(), 3)), s.dump())
    s.finish()
