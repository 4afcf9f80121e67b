// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11DisplayProfiles.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdlib>
#include <utility>

Q_LOGGING_CATEGORY(lcColourProfiles, "vantle.colourprofiles", QtWarningMsg)

namespace {

// Monitors beyond this many keep their pixels as they are.
constexpr size_t profileSlots = 16;
// The largest profile read: calibration tools write LUT profiles of a few hundred KiB.
constexpr uint32_t profileLongsLimit = 16u << 20;

QByteArray profileAtomName(size_t index)
{
    return index == 0 ? QByteArrayLiteral("_ICC_PROFILE")
                      : "_ICC_PROFILE_" + QByteArray::number(qulonglong(index));
}

} // namespace

X11DisplayProfiles::X11DisplayProfiles(xcb_connection_t *connection, xcb_window_t root, QSize screenSize)
    : m_connection(connection)
    , m_root(root)
    , m_screenSize(screenSize)
{
    // Qt already listens to the root window's property changes on this connection.
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11DisplayProfiles::ensureRead()
{
    if (std::exchange(m_isRead, true))
        return;
    // Monitors as RandR lists them came with its version 1.5; older servers have one screen.
    const xcb_query_extension_reply_t *randr = xcb_get_extension_data(m_connection, &xcb_randr_id);
    std::optional<xcb_randr_query_version_cookie_t> version;
    if (randr && randr->present)
        version = xcb_randr_query_version(m_connection, 1, 5);
    std::vector<xcb_intern_atom_cookie_t> cookies;
    for (size_t i = 0; i < profileSlots; ++i) {
        const QByteArray name = profileAtomName(i);
        cookies.push_back(xcb_intern_atom(m_connection, 0, uint16_t(name.size()), name.constData()));
    }
    for (const auto cookie : cookies) {
        xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(m_connection, cookie, nullptr);
        m_atoms.push_back(reply ? reply->atom : XCB_NONE);
        std::free(reply);
    }
    if (version) {
        xcb_randr_query_version_reply_t *reply
            = xcb_randr_query_version_reply(m_connection, *version, nullptr);
        m_hasMonitors = reply && (reply->major_version > 1 || reply->minor_version >= 5);
        std::free(reply);
    }
    m_conversions.resize(profileSlots);
    refreshMonitors();
    readMonitors();
    // All profiles asked for at once: one round trip at start, not one per monitor.
    std::vector<xcb_get_property_cookie_t> properties;
    for (size_t i = 0; i < profileSlots; ++i)
        properties.push_back(requestProfile(i));
    for (size_t i = 0; i < profileSlots; ++i)
        load(i, xcb_get_property_reply(m_connection, properties[i], nullptr));
}

X11DisplayProfiles::~X11DisplayProfiles()
{
    if (QCoreApplication::instance())
        QCoreApplication::instance()->removeNativeEventFilter(this);
    if (m_monitorsCookie)
        std::free(xcb_randr_get_monitors_reply(m_connection, *m_monitorsCookie, nullptr));
}

void X11DisplayProfiles::refreshMonitors()
{
    ensureRead();
    if (m_hasMonitors && !m_monitorsCookie)
        m_monitorsCookie = xcb_randr_get_monitors(m_connection, m_root, 1);
}

void X11DisplayProfiles::readMonitors()
{
    if (!m_monitorsCookie)
        return;
    xcb_randr_get_monitors_reply_t *reply
        = xcb_randr_get_monitors_reply(m_connection, *std::exchange(m_monitorsCookie, std::nullopt), nullptr);
    if (!reply)
        return; // a server without RandR 1.5: the whole screen is the first monitor
    m_monitors.clear();
    for (auto it = xcb_randr_get_monitors_monitors_iterator(reply); it.rem; xcb_randr_monitor_info_next(&it))
        m_monitors << Monitor { QRect(it.data->x, it.data->y, it.data->width, it.data->height),
            it.data->name };
    std::free(reply);
}

QString X11DisplayProfiles::monitorName(size_t index) const
{
    QString name = QStringLiteral("monitor %1").arg(index + 1);
    if (index >= size_t(m_monitors.size()))
        return name;
    xcb_get_atom_name_reply_t *reply = xcb_get_atom_name_reply(
        m_connection, xcb_get_atom_name(m_connection, m_monitors[qsizetype(index)].name), nullptr);
    if (reply) {
        name += QStringLiteral(" (%1)").arg(
            QString::fromUtf8(xcb_get_atom_name_name(reply), xcb_get_atom_name_name_length(reply)));
        std::free(reply);
    }
    return name;
}

xcb_get_property_cookie_t X11DisplayProfiles::requestProfile(size_t index)
{
    return xcb_get_property(
        m_connection, 0, m_root, m_atoms[index], XCB_GET_PROPERTY_TYPE_ANY, 0, profileLongsLimit);
}

void X11DisplayProfiles::load(size_t index, xcb_get_property_reply_t *reply)
{
    m_conversions[index].reset();
    const QString property = QString::fromLatin1(profileAtomName(index));
    const bool isSet = reply && reply->type != XCB_NONE;
    QString failure;
    if (!isSet) {
        failure = QStringLiteral("no profile (%1 is not set)").arg(property);
    } else if (reply->type != XCB_ATOM_CARDINAL || reply->format != 8 || reply->bytes_after != 0) {
        failure = QStringLiteral("%1 is not a profile's bytes").arg(property);
    } else {
        // littleCMS copies what it keeps.
        auto built = DisplayColorConversion::loadedFromIccProfile(QByteArray::fromRawData(
            static_cast<const char *>(xcb_get_property_value(reply)), xcb_get_property_value_length(reply)));
        m_conversions[index] = std::move(built.conversion);
        failure = built.failure;
    }
    std::free(reply);
    // Slots past the monitors speak only when something is there.
    if (!isSet && index >= size_t(std::max<qsizetype>(1, m_monitors.size())))
        return;
    if (failure.isEmpty())
        qCInfo(lcColourProfiles, "%s: picks are converted from %s to sRGB", qPrintable(monitorName(index)),
            qPrintable(property));
    else if (!isSet) // the usual case: said only when asked for (QT_LOGGING_RULES)
        qCInfo(lcColourProfiles, "%s: %s; its pixels are picked as they are", qPrintable(monitorName(index)),
            qPrintable(failure));
    else // a profile the desktop meant to apply and cannot be: say so
        qCWarning(lcColourProfiles, "%s: %s; its pixels are picked as they are",
            qPrintable(monitorName(index)), qPrintable(failure));
}

SamplerGeometry::Rgb X11DisplayProfiles::srgbAt(const QPoint &device, const SamplerGeometry::Rgb &pixel)
{
    ensureRead();
    readMonitors();
    size_t index = 0;
    if (!m_monitors.isEmpty()) {
        const auto at = std::find_if(m_monitors.cbegin(), m_monitors.cend(),
            [&](const Monitor &m) { return m.area.contains(device); });
        if (at == m_monitors.cend())
            return pixel;
        index = size_t(at - m_monitors.cbegin());
    } else if (!QRect(QPoint(), m_screenSize).contains(device)) {
        return pixel;
    }
    if (index >= m_conversions.size() || !m_conversions[index])
        return pixel;
    return m_conversions[index]->toSrgb(pixel);
}

bool X11DisplayProfiles::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & ~0x80) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto *property = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (!m_isRead || property->window != m_root || property->atom == XCB_NONE)
        return false;
    const auto slot = std::find(m_atoms.cbegin(), m_atoms.cend(), property->atom);
    if (slot != m_atoms.cend()) {
        const size_t index = size_t(slot - m_atoms.cbegin());
        load(index, xcb_get_property_reply(m_connection, requestProfile(index), nullptr));
    }
    return false; // Qt may want it too
}
