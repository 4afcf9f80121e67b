#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Every shipped translation is complete: no unfinished or empty entry or plural form, and the
# placeholders (%1, %n) and the help's example commands of the English text kept.
import re, sys, pathlib, xml.etree.ElementTree as ET

kept = lambda text: (sorted(set(re.findall(r"%\d|%n", text))), sorted(re.findall(r"^ +vantle .*$", text, re.M)))
faults, files = [], sorted(pathlib.Path(sys.argv[1]).glob("vantle_*.ts"))
for ts in files:
    for message in ET.parse(ts).getroot().iter("message"):
        source, translation = message.findtext("source"), message.find("translation")
        forms = [f.text or "" for f in translation.iter("numerusform")] or [translation.text or ""]
        if translation.get("type") or not all(f.strip() for f in forms):
            faults.append(f"{ts.name}: {source[:60]!r} is unfinished")
        # A plural form of one may say "one" in words instead of %n.
        faults += [f"{ts.name}: {source[:60]!r} loses a placeholder in {f[:60]!r}" for f in forms
                   if kept(f) != kept(source) and not (len(forms) > 1 and "%n" in source)]
print("\n".join(faults) or f"{len(files)} translations complete")
sys.exit(1 if faults or not files else 0)
