// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ColorFormat.h"
#include "model/PickedColor.h"

#include <QByteArray>
#include <QList>
#include <QString>

// The two palette file layouts, shared by the export menu and `vantle export`. Pure functions
// of their arguments; the content is UTF-8.

// One line per colour, "Name: text" for a named colour, lines joined by a line feed, no final
// line feed.
QByteArray exportText(const QList<PickedColor> &colors, ColorFormat format);

// A pretty-printed JSON array of {"hex", "hsl", "name" (only when named), "rgb"} objects with
// sorted keys, whatever the preferred format; "[]" when a name cannot be encoded.
QByteArray exportJSON(const QList<PickedColor> &colors);

// The file name the save dialog proposes: pinned-colors or colors, with .json or .txt.
QString proposedExportName(bool pinnedOnly, bool asJSON);
