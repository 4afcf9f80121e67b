// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/Appcast.h"

#include "services/VersionComparison.h"

#include <QXmlStreamReader>

namespace {

const QString sparkleNamespace = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");

bool isWebAddress(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty()
        && (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

// Reads one <item> whose start tag the reader has just passed.
AppcastItem readItem(QXmlStreamReader &xml)
{
    AppcastItem item;
    QString itemVersion;
    QString itemShortVersion;
    QString enclosureVersion;
    QString enclosureShortVersion;
    while (xml.readNextStartElement()) {
        const QStringView name = xml.name();
        const bool sparkle = xml.namespaceUri() == sparkleNamespace;
        if (sparkle && name == QLatin1String("version")) {
            itemVersion = xml.readElementText().trimmed();
        } else if (sparkle && name == QLatin1String("shortVersionString")) {
            itemShortVersion = xml.readElementText().trimmed();
        } else if (sparkle && name == QLatin1String("releaseNotesLink")) {
            const QUrl link(xml.readElementText().trimmed(), QUrl::StrictMode);
            if (isWebAddress(link))
                item.releaseNotesLink = link;
        } else if (!sparkle && name == QLatin1String("title")) {
            item.title = xml.readElementText().trimmed();
        } else if (!sparkle && name == QLatin1String("description")) {
            item.releaseNotes = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        } else if (!sparkle && name == QLatin1String("enclosure")) {
            const QXmlStreamAttributes attributes = xml.attributes();
            item.downloadUrl
                = QUrl(attributes.value(QLatin1String("url")).trimmed().toString(), QUrl::StrictMode);
            bool ok = false;
            item.length = attributes.value(QLatin1String("length")).trimmed().toLongLong(&ok);
            if (!ok)
                item.length = 0;
            item.edSignature
                = attributes.value(sparkleNamespace, QLatin1String("edSignature")).trimmed().toString();
            // Older feeds put the versions on the enclosure.
            enclosureVersion
                = attributes.value(sparkleNamespace, QLatin1String("version")).trimmed().toString();
            enclosureShortVersion = attributes.value(sparkleNamespace, QLatin1String("shortVersionString"))
                                        .trimmed()
                                        .toString();
            xml.skipCurrentElement();
        } else {
            xml.skipCurrentElement();
        }
    }
    item.version = !itemVersion.isEmpty() ? itemVersion : enclosureVersion;
    item.displayVersion = !itemShortVersion.isEmpty() ? itemShortVersion
        : !enclosureShortVersion.isEmpty()            ? enclosureShortVersion
                                                      : item.version;
    return item;
}

bool isComplete(const AppcastItem &item)
{
    return !item.version.isEmpty() && isWebAddress(item.downloadUrl) && item.length > 0
        && !item.edSignature.isEmpty();
}

} // namespace

namespace Appcast {

std::optional<AppcastItem> newestUpdate(const QByteArray &feed, const QString &currentVersion)
{
    std::optional<AppcastItem> newest;
    QXmlStreamReader xml(feed);
    while (!xml.atEnd() && !xml.hasError()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("item")
            || !xml.namespaceUri().isEmpty())
            continue;
        AppcastItem item = readItem(xml);
        // An item cut short by broken XML is not trusted.
        if (xml.hasError() || !isComplete(item) || compareVersions(item.version, currentVersion) <= 0)
            continue;
        if (!newest || compareVersions(item.version, newest->version) > 0)
            newest = std::move(item);
    }
    return newest;
}

} // namespace Appcast
