// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <optional>

// Whether the desktop is in its dark appearance or asks for higher contrast, and when that
// changes.
//
// Where the Settings portal answers, its org.freedesktop.appearance color-scheme decides
// (1 prefers dark, 2 prefers light) and its SettingChanged signal reports changes; otherwise
// (and for "no preference") the application palette's window colour decides, followed through
// palette change events. Higher contrast is asked for by the portal's org.freedesktop.appearance
// contrast (1), by GNOME's accessibility setting org.gnome.desktop.a11y.interface high-contrast
// (which the GTK and GNOME portals pass on), or, without a portal, by a GTK_THEME of HighContrast.
// No polling.
class AppearanceMonitor : public QObject {
    Q_OBJECT
public:
    explicit AppearanceMonitor(QObject *parent = nullptr);

    bool isDark() const;
    bool prefersHighContrast() const;
    // The desktop's explicit wish, dark (true) or light (false); none where the portal has no
    // preference or does not answer.
    std::optional<bool> requestedDark() const;

Q_SIGNALS:
    void appearanceChanged();
    void contrastChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followPortal();
    void onSettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);
    void read(const QString &nameSpace, const QString &key);
    void apply(const QString &nameSpace, const QString &key, const QVariant &value);
    void setPortalScheme(uint scheme);

    uint m_portalScheme = 0; // 0 none, 1 dark, 2 light
    bool m_portalContrast = false; // org.freedesktop.appearance contrast is 1
    bool m_gnomeHighContrast = false;
    bool m_themeHighContrast = false; // GTK_THEME names a high-contrast theme
};
