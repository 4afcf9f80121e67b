// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/PickedColor.h"

#include <QByteArray>
#include <QList>
#include <optional>

// The colour history as it is stored: a JSON array of records. The writer is Vantle's own, for
// the exact bytes the stored layout promises; the reader is QJsonDocument's.

// The stored form: compact JSON, keys spelled as the fields, upper-case UUID, "name" left out
// when absent, "/" written as "\/". Fails (nullopt) only for components or a timestamp that
// JSON cannot express (NaN, infinity).
std::optional<QByteArray> encodeColorHistory(const QList<PickedColor> &colors);

// Reads a JSON array of records in any key order, ignoring unknown keys. Any bad element
// (missing key, wrong type, invalid UUID, a number that is not finite) rejects the whole array.
std::optional<QList<PickedColor>> decodeColorHistory(const QByteArray &json);

// Appends a JSON string literal with the standard escapes and "\/" for a slash.
void appendJsonString(QByteArray &out, const QString &text);
