// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/PlasmaShellSurfaces.h"

#include "plasma-shell-client-protocol.h"

#include <QGuiApplication>
#include <QPoint>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <algorithm>
#include <cstring>
#include <wayland-client.h>

namespace {

constexpr uint newestVersion = 8; // the version whose requests we know

struct Binding {
    org_kde_plasma_shell *shell = nullptr;
    uint version = 0;
};

void onGlobal(void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t version)
{
    auto *binding = static_cast<Binding *>(data);
    if (binding->shell || std::strcmp(interface, org_kde_plasma_shell_interface.name) != 0)
        return;
    binding->version = std::min<uint>(version, newestVersion);
    binding->shell = static_cast<org_kde_plasma_shell *>(
        wl_registry_bind(registry, name, &org_kde_plasma_shell_interface, binding->version));
}

void onGlobalRemove(void *, wl_registry *, uint32_t) { }

const wl_registry_listener registryListener { onGlobal, onGlobalRemove };

QPlatformNativeInterface *nativeInterface()
{
    return QGuiApplication::platformName() == QLatin1String("wayland")
        ? QGuiApplication::platformNativeInterface()
        : nullptr;
}

} // namespace

std::unique_ptr<PlasmaShellSurfaces> PlasmaShellSurfaces::connect()
{
    QPlatformNativeInterface *native = nativeInterface();
    auto *display
        = static_cast<wl_display *>(native ? native->nativeResourceForIntegration("wl_display") : nullptr);
    if (!display)
        return {};
    // The registry on our queue, through a wrapper: Qt dispatches its own queue on other threads.
    wl_event_queue *queue = wl_display_create_queue(display);
    auto *wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), queue);
    wl_registry *registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    Binding binding;
    wl_registry_add_listener(registry, &registryListener, &binding);
    wl_display_roundtrip_queue(display, queue);
    wl_registry_destroy(registry);
    if (!binding.shell) {
        wl_event_queue_destroy(queue);
        return {};
    }
    return std::unique_ptr<PlasmaShellSurfaces>(
        new PlasmaShellSurfaces(display, queue, binding.shell, binding.version));
}

PlasmaShellSurfaces::PlasmaShellSurfaces(
    wl_display *display, wl_event_queue *queue, org_kde_plasma_shell *shell, uint version)
    : m_display(display)
    , m_queue(queue)
    , m_shell(shell)
    , m_version(version)
{
}

PlasmaShellSurfaces::~PlasmaShellSurfaces()
{
    for (QWindow *window : m_surfaces.keys())
        release(window);
    org_kde_plasma_shell_destroy(m_shell);
    wl_display_flush(m_display);
    wl_event_queue_destroy(m_queue);
}

org_kde_plasma_surface *PlasmaShellSurfaces::surfaceFor(QWindow &window)
{
    release(&window);
    QPlatformNativeInterface *native = nativeInterface();
    auto *surface
        = static_cast<wl_surface *>(native ? native->nativeResourceForWindow("surface", &window) : nullptr);
    if (!surface)
        return nullptr;
    org_kde_plasma_surface *plasmaSurface = org_kde_plasma_shell_get_surface(m_shell, surface);
    m_surfaces.insert(&window, plasmaSurface);
    // Qt destroys the wl_surface when the window hides; its plasma surface goes with it.
    QObject::connect(&window, &QWindow::visibleChanged, &m_context, [this, window = &window](bool isVisible) {
        if (!isVisible)
            release(window);
    });
    QObject::connect(&window, &QObject::destroyed, &m_context, [this, window = &window] { release(window); });
    return plasmaSurface;
}

void PlasmaShellSurfaces::release(QWindow *window)
{
    org_kde_plasma_surface *plasmaSurface = m_surfaces.take(window);
    if (!plasmaSurface)
        return;
    QObject::disconnect(window, nullptr, &m_context, nullptr);
    org_kde_plasma_surface_destroy(plasmaSurface);
}

void PlasmaShellSurfaces::makeOverlay(QWindow &window, const QPoint &position)
{
    org_kde_plasma_surface *surface = surfaceFor(window);
    if (!surface)
        return;
    org_kde_plasma_surface_set_role(surface, ORG_KDE_PLASMA_SURFACE_ROLE_ONSCREENDISPLAY);
    org_kde_plasma_surface_set_position(surface, position.x(), position.y());
    if (m_version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_TASKBAR_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_taskbar(surface, 1);
    if (m_version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_SWITCHER_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_switcher(surface, 1);
    wl_display_flush(m_display);
}

void PlasmaShellSurfaces::placeUnderPointer(QWindow &window)
{
    org_kde_plasma_surface *surface = surfaceFor(window);
    if (!surface)
        return;
    if (m_version >= ORG_KDE_PLASMA_SURFACE_OPEN_UNDER_CURSOR_SINCE_VERSION)
        org_kde_plasma_surface_open_under_cursor(surface);
    if (m_version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_TASKBAR_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_taskbar(surface, 1);
    if (m_version >= ORG_KDE_PLASMA_SURFACE_SET_SKIP_SWITCHER_SINCE_VERSION)
        org_kde_plasma_surface_set_skip_switcher(surface, 1);
    wl_display_flush(m_display);
}
