// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/PaletteExport.h"

#include "model/ColorHistoryCodec.h"

QByteArray exportText(const QList<PickedColor> &colors, ColorFormat format)
{
    QString text;
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const PickedColor &color = colors[i];
        if (i > 0)
            text += QLatin1Char('\n');
        if (color.hasName())
            text += *color.name + QLatin1String(": ");
        text += color.formatted(format);
    }
    return text.toUtf8();
}

namespace {

void appendMember(QByteArray &out, const char *key, const QString &value, bool last)
{
    out.append("    \"").append(key).append("\" : ");
    appendJsonString(out, value);
    out.append(last ? "\n" : ",\n");
}

} // namespace

QByteArray exportJSON(const QList<PickedColor> &colors)
{
    QByteArray out("[\n");
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const PickedColor &c = colors[i];
        // A name holding half of a surrogate pair has no UTF-8 form: the file would carry a
        // replacement character instead of the user's text, so the encoding fails as a whole.
        if (c.hasName() && !c.name->isValidUtf16())
            return QByteArrayLiteral("[]");
        out.append("  {\n");
        // Keys in sorted order: hex, hsl, name, rgb.
        appendMember(out, "hex", hexText(c.red, c.green, c.blue), false);
        appendMember(out, "hsl", hslText(c.red, c.green, c.blue), false);
        if (c.hasName())
            appendMember(out, "name", *c.name, false);
        appendMember(out, "rgb", rgbText(c.red, c.green, c.blue), true);
        out.append(i + 1 < colors.size() ? "  },\n" : "  }\n");
    }
    // An empty list keeps both brackets on lines of their own, as the platform's pretty
    // printer writes it.
    if (colors.isEmpty())
        out.append("\n");
    out.append("]");
    return out;
}

QString proposedExportName(bool pinnedOnly, bool asJSON)
{
    return QLatin1String(pinnedOnly ? "pinned-colors" : "colors") + QLatin1String(asJSON ? ".json" : ".txt");
}
