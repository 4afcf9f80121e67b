// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/WaylandDataControlClipboard.h"

#include "ext-data-control-v1-client-protocol.h"
#include "wlr-data-control-unstable-v1-client-protocol.h"

#include <QSocketNotifier>
#include <wayland-client.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

// The two protocols are the same on the wire, request for request and event for event; only the
// interface names differ. One implementation drives either through its table of interfaces and
// the shared opcodes below, checked here against both generated headers.
namespace Opcode {
constexpr uint32_t managerCreateSource = ZWLR_DATA_CONTROL_MANAGER_V1_CREATE_DATA_SOURCE;
constexpr uint32_t managerGetDevice = ZWLR_DATA_CONTROL_MANAGER_V1_GET_DATA_DEVICE;
constexpr uint32_t managerDestroy = ZWLR_DATA_CONTROL_MANAGER_V1_DESTROY;
constexpr uint32_t deviceSetSelection = ZWLR_DATA_CONTROL_DEVICE_V1_SET_SELECTION;
constexpr uint32_t deviceDestroy = ZWLR_DATA_CONTROL_DEVICE_V1_DESTROY;
constexpr uint32_t sourceOffer = ZWLR_DATA_CONTROL_SOURCE_V1_OFFER;
constexpr uint32_t sourceDestroy = ZWLR_DATA_CONTROL_SOURCE_V1_DESTROY;
constexpr uint32_t offerDestroy = ZWLR_DATA_CONTROL_OFFER_V1_DESTROY;
// Events, in declaration order.
constexpr uint32_t deviceDataOffer = 0;
constexpr uint32_t deviceSelection = 1;
constexpr uint32_t deviceFinished = 2;
constexpr uint32_t devicePrimarySelection = 3;
constexpr uint32_t sourceSend = 0;
constexpr uint32_t sourceCancelled = 1;

static_assert(managerCreateSource == EXT_DATA_CONTROL_MANAGER_V1_CREATE_DATA_SOURCE);
static_assert(managerGetDevice == EXT_DATA_CONTROL_MANAGER_V1_GET_DATA_DEVICE);
static_assert(managerDestroy == EXT_DATA_CONTROL_MANAGER_V1_DESTROY);
static_assert(deviceSetSelection == EXT_DATA_CONTROL_DEVICE_V1_SET_SELECTION);
static_assert(deviceDestroy == EXT_DATA_CONTROL_DEVICE_V1_DESTROY);
static_assert(sourceOffer == EXT_DATA_CONTROL_SOURCE_V1_OFFER);
static_assert(sourceDestroy == EXT_DATA_CONTROL_SOURCE_V1_DESTROY);
static_assert(offerDestroy == EXT_DATA_CONTROL_OFFER_V1_DESTROY);
} // namespace Opcode

struct DataControlInterfaces {
    const wl_interface *manager;
    const wl_interface *device;
    const wl_interface *source;
    const wl_interface *offer;
};

namespace {

const DataControlInterfaces extInterfaces { &ext_data_control_manager_v1_interface,
    &ext_data_control_device_v1_interface, &ext_data_control_source_v1_interface,
    &ext_data_control_offer_v1_interface };
const DataControlInterfaces wlrInterfaces { &zwlr_data_control_manager_v1_interface,
    &zwlr_data_control_device_v1_interface, &zwlr_data_control_source_v1_interface,
    &zwlr_data_control_offer_v1_interface };

uint32_t versionOf(wl_proxy *proxy)
{
    return wl_proxy_get_version(proxy);
}

void destroyProxy(wl_proxy *proxy, uint32_t opcode)
{
    wl_proxy_marshal_flags(proxy, opcode, nullptr, versionOf(proxy), WL_MARSHAL_FLAG_DESTROY);
}

} // namespace

// One reader's copy of the text, written without blocking: a slow reader gets the rest when its
// pipe drains, and one that closes early only ends its own transfer.
class WaylandDataControlClipboard::Transfer {
public:
    Transfer(int fd, QByteArray bytes)
        : fd(fd)
        , bytes(std::move(bytes))
    {
    }
    ~Transfer() { ::close(fd); }

    // True when finished, written out or abandoned by the reader.
    bool writeSome()
    {
        while (offset < bytes.size()) {
            const ssize_t written = ::write(fd, bytes.constData() + offset, size_t(bytes.size() - offset));
            if (written > 0) {
                offset += written;
            } else if (written < 0 && errno == EINTR) {
                continue;
            } else if (written < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
                return false;
            } else {
                return true; // EPIPE and friends: the reader is gone
            }
        }
        return true;
    }

    const int fd;
    const QByteArray bytes;
    qsizetype offset = 0;
    std::unique_ptr<QSocketNotifier> notifier;
};

// libwayland-client calls plain C functions; these hand each event to its clipboard.
struct WaylandEvents {
    static void global(void *data, wl_registry *, uint32_t name, const char *interface, uint32_t version)
    {
        static_cast<WaylandDataControlClipboard *>(data)->onGlobal(name, interface, version);
    }
    static void globalRemove(void *, wl_registry *, uint32_t) { }

    static int source(
        const void *clipboard, void *proxy, uint32_t opcode, const wl_message *, wl_argument *args)
    {
        auto *self = const_cast<WaylandDataControlClipboard *>(
            static_cast<const WaylandDataControlClipboard *>(clipboard));
        if (opcode == Opcode::sourceSend)
            self->onSend(static_cast<wl_proxy *>(proxy), args[0].s, args[1].h);
        else if (opcode == Opcode::sourceCancelled)
            self->onSourceCancelled(static_cast<wl_proxy *>(proxy));
        return 0;
    }

    static int device(const void *clipboard, void *, uint32_t opcode, const wl_message *, wl_argument *args)
    {
        auto *self = const_cast<WaylandDataControlClipboard *>(
            static_cast<const WaylandDataControlClipboard *>(clipboard));
        self->onDeviceEvent(
            opcode, opcode == Opcode::deviceFinished ? nullptr : reinterpret_cast<wl_proxy *>(args[0].o));
        return 0;
    }

    // Offers of other clients' data: we never read them, only destroy them (see onDeviceEvent).
    static int offer(const void *, void *, uint32_t, const wl_message *, wl_argument *) { return 0; }

    static constexpr wl_registry_listener registryListener { &global, &globalRemove };
};

const QStringList &WaylandDataControlClipboard::textMimeTypes()
{
    static const QStringList types { QStringLiteral("text/plain;charset=utf-8"), QStringLiteral("text/plain"),
        QStringLiteral("UTF8_STRING"), QStringLiteral("TEXT"), QStringLiteral("STRING") };
    return types;
}

std::unique_ptr<WaylandDataControlClipboard> WaylandDataControlClipboard::connect(const char *displayName)
{
    wl_display *display = wl_display_connect(displayName);
    if (!display)
        return nullptr;
    std::unique_ptr<WaylandDataControlClipboard> clipboard(new WaylandDataControlClipboard(display));
    if (!clipboard->bindGlobals())
        return nullptr;
    return clipboard;
}

WaylandDataControlClipboard::WaylandDataControlClipboard(wl_display *display)
    : m_display(display)
{
    // A reader closing its end mid-transfer must cost an EPIPE, not the program.
    struct sigaction current { };
    if (sigaction(SIGPIPE, nullptr, &current) == 0 && current.sa_handler == SIG_DFL)
        std::signal(SIGPIPE, SIG_IGN);
}

WaylandDataControlClipboard::~WaylandDataControlClipboard()
{
    m_transfers.clear();
    m_readNotifier.reset();
    if (m_source)
        destroyProxy(m_source, Opcode::sourceDestroy);
    if (m_device)
        destroyProxy(m_device, Opcode::deviceDestroy);
    if (m_manager)
        destroyProxy(m_manager, Opcode::managerDestroy);
    if (m_seat)
        wl_proxy_destroy(m_seat);
    if (m_registry)
        wl_registry_destroy(m_registry);
    wl_display_flush(m_display);
    wl_display_disconnect(m_display);
}

QString WaylandDataControlClipboard::protocolName() const
{
    return m_interfaces ? QString::fromLatin1(m_interfaces->manager->name) : QString();
}

void WaylandDataControlClipboard::onGlobal(uint32_t name, const char *interface, uint32_t)
{
    if (!m_seat && std::strcmp(interface, wl_seat_interface.name) == 0) {
        // Version 1 is enough: the seat is only the key to its data device.
        m_seat = static_cast<wl_proxy *>(wl_registry_bind(m_registry, name, &wl_seat_interface, 1));
        return;
    }
    for (const DataControlInterfaces *candidate : { &extInterfaces, &wlrInterfaces }) {
        if (std::strcmp(interface, candidate->manager->name) != 0)
            continue;
        // The standard protocol wins over the wlroots one when a compositor offers both.
        if (m_manager && m_interfaces == &extInterfaces)
            return;
        if (m_manager)
            destroyProxy(m_manager, Opcode::managerDestroy);
        m_manager = static_cast<wl_proxy *>(wl_registry_bind(m_registry, name, candidate->manager, 1));
        m_interfaces = candidate;
        return;
    }
}

bool WaylandDataControlClipboard::bindGlobals()
{
    m_registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(m_registry, &WaylandEvents::registryListener, this);
    if (wl_display_roundtrip(m_display) < 0 || !m_seat || !m_manager)
        return false;

    m_device = wl_proxy_marshal_flags(
        m_manager, Opcode::managerGetDevice, m_interfaces->device, versionOf(m_manager), 0, nullptr, m_seat);
    wl_proxy_add_dispatcher(m_device, &WaylandEvents::device, this, nullptr);
    // The device announces the current selection right away; take those offers off the queue.
    if (wl_display_roundtrip(m_display) < 0 || !m_device)
        return false;

    m_readNotifier = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display), QSocketNotifier::Read);
    QObject::connect(m_readNotifier.get(), &QSocketNotifier::activated, this, [this] { dispatchIncoming(); });
    return true;
}

bool WaylandDataControlClipboard::isUsable() const
{
    return m_device && wl_display_get_error(m_display) == 0;
}

bool WaylandDataControlClipboard::flush()
{
    while (wl_display_flush(m_display) < 0) {
        if (errno != EAGAIN)
            return false;
        // The compositor is behind on reading; our requests are tiny, so this passes at once.
        wl_display_dispatch_pending(m_display);
    }
    return true;
}

void WaylandDataControlClipboard::dispatchIncoming()
{
    // The standard dance for a connection read by our own event loop: prepare, read what the
    // notifier says is there (never blocks), dispatch.
    while (wl_display_prepare_read(m_display) != 0)
        wl_display_dispatch_pending(m_display);
    flush();
    if (wl_display_read_events(m_display) < 0 || wl_display_dispatch_pending(m_display) < 0) {
        // The compositor went away: stop listening; setText reports the failure from now on.
        m_readNotifier->setEnabled(false);
        return;
    }
    flush();
}

bool WaylandDataControlClipboard::setText(const QString &text)
{
    if (!isUsable())
        return false;
    // The old source goes only after the new one holds the selection, so that a clipboard
    // manager never sees an empty clipboard in between.
    wl_proxy *previous = std::exchange(m_source, nullptr);
    m_text = text.toUtf8();
    m_source = wl_proxy_marshal_flags(
        m_manager, Opcode::managerCreateSource, m_interfaces->source, versionOf(m_manager), 0, nullptr);
    wl_proxy_add_dispatcher(m_source, &WaylandEvents::source, this, nullptr);
    for (const QString &type : textMimeTypes()) {
        const QByteArray name = type.toLatin1();
        wl_proxy_marshal_flags(
            m_source, Opcode::sourceOffer, nullptr, versionOf(m_source), 0, name.constData());
    }
    wl_proxy_marshal_flags(m_device, Opcode::deviceSetSelection, nullptr, versionOf(m_device), 0, m_source);
    if (previous)
        destroyProxy(previous, Opcode::sourceDestroy);
    // Wait for the compositor to have handled the request, so that a reader asking right after
    // this returns already gets our text. A local round trip; events arriving meanwhile (a reader
    // asking for the text) are served from here.
    return wl_display_roundtrip(m_display) >= 0 && isUsable();
}

void WaylandDataControlClipboard::dropSource()
{
    if (!m_source)
        return;
    destroyProxy(m_source, Opcode::sourceDestroy);
    m_source = nullptr;
    m_text.clear();
}

void WaylandDataControlClipboard::onSend(wl_proxy *source, const char *mimeType, int fd)
{
    if (source != m_source || !textMimeTypes().contains(QLatin1String(mimeType))) {
        ::close(fd);
        return;
    }
    const int flags = fcntl(fd, F_GETFL);
    fcntl(fd, F_SETFL, flags | O_NONBLOCK);
    auto transfer = std::make_unique<Transfer>(fd, m_text);
    if (transfer->writeSome())
        return; // written in one go: the usual case for a colour
    transfer->notifier = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Write);
    Transfer *raw = transfer.get();
    QObject::connect(raw->notifier.get(), &QSocketNotifier::activated, this, [this, raw] {
        if (raw->writeSome())
            finishTransfer(raw);
    });
    m_transfers.push_back(std::move(transfer));
}

void WaylandDataControlClipboard::finishTransfer(Transfer *transfer)
{
    // Deleted later: we are inside the notifier's own signal.
    transfer->notifier->setEnabled(false);
    QMetaObject::invokeMethod(
        this,
        [this, transfer] {
            std::erase_if(m_transfers, [transfer](const auto &t) { return t.get() == transfer; });
        },
        Qt::QueuedConnection);
}

void WaylandDataControlClipboard::onSourceCancelled(wl_proxy *source)
{
    // Another client owns the selection now: our text is no longer on offer. (Sources we
    // replaced ourselves are destroyed already and hear nothing.)
    if (source == m_source)
        dropSource();
}

void WaylandDataControlClipboard::onDeviceEvent(uint32_t opcode, wl_proxy *offer)
{
    switch (opcode) {
    case Opcode::deviceDataOffer:
        wl_proxy_add_dispatcher(offer, &WaylandEvents::offer, this, nullptr);
        break;
    case Opcode::deviceSelection:
    case Opcode::devicePrimarySelection:
        // We only write the clipboard; the offer of whoever set it is of no use to us.
        if (offer)
            destroyProxy(offer, Opcode::offerDestroy);
        break;
    case Opcode::deviceFinished:
        // The seat went away; nothing can be copied through this device any more.
        destroyProxy(m_device, Opcode::deviceDestroy);
        m_device = nullptr;
        break;
    default:
        break;
    }
}
