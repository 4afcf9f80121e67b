// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Clipboard.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <memory>
#include <vector>

class QSocketNotifier;
struct DataControlInterfaces;
struct wl_display;
struct wl_interface;
struct wl_proxy;
struct wl_registry;

// The Wayland clipboard through the data-control protocol (ext_data_control_manager_v1, or the
// older zwlr_data_control_manager_v1 of wlroots compositors and KWin). Unlike wl_data_device it
// needs no keyboard focus and no input serial, so a copy made after a global shortcut, with no
// window of ours on screen, really reaches the clipboard.
//
// It runs on a Wayland connection of its own (not Qt's), dispatched from the main event loop.
// The copied text is served in every text MIME type until another client takes the selection;
// a reader that goes away mid-transfer costs nothing but that transfer.
class WaylandDataControlClipboard final : public QObject, public Clipboard {
    Q_OBJECT
public:
    // Connects to the compositor named by WAYLAND_DISPLAY (or `displayName`). Null when there is
    // no compositor, or it offers no data-control manager or no seat.
    static std::unique_ptr<WaylandDataControlClipboard> connect(const char *displayName = nullptr);
    ~WaylandDataControlClipboard() override;

    // Returns once the compositor has taken our source as the selection; false when the
    // connection or the seat's device is gone.
    bool setText(const QString &text) override;

    // The MIME types a text copy offers, the order in which readers usually ask.
    static const QStringList &textMimeTypes();

    // Which protocol the compositor gave us: "ext_data_control_manager_v1" or the wlroots one.
    QString protocolName() const;

private:
    class Transfer;

    explicit WaylandDataControlClipboard(wl_display *display);
    bool bindGlobals();
    void dispatchIncoming();
    bool flush();
    bool isUsable() const;
    void dropSource();
    void onSend(wl_proxy *source, const char *mimeType, int fd);
    void onSourceCancelled(wl_proxy *source);
    void onDeviceEvent(uint32_t opcode, wl_proxy *offer);
    void finishTransfer(Transfer *transfer);

    void onGlobal(uint32_t name, const char *interface, uint32_t version);
    friend struct WaylandEvents; // the C callbacks of libwayland-client

    wl_display *m_display = nullptr;
    wl_registry *m_registry = nullptr;
    wl_proxy *m_seat = nullptr;
    wl_proxy *m_manager = nullptr;
    wl_proxy *m_device = nullptr;
    wl_proxy *m_source = nullptr; // the source now on the selection, until cancelled
    const DataControlInterfaces *m_interfaces = nullptr;
    QByteArray m_text; // UTF-8, what m_source serves
    std::unique_ptr<QSocketNotifier> m_readNotifier;
    std::vector<std::unique_ptr<Transfer>> m_transfers;
};
