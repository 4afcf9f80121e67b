// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusVariant>
#include <QObject>

// Whether the desktop is in its dark appearance, and when that changes.
//
// Where the Settings portal answers, its org.freedesktop.appearance color-scheme decides
// (1 prefers dark, 2 prefers light) and its SettingChanged signal reports changes; otherwise
// (and for "no preference") the application palette's window colour decides, followed through
// palette change events. No polling.
class AppearanceMonitor : public QObject {
    Q_OBJECT
public:
    explicit AppearanceMonitor(QObject *parent = nullptr);

    bool isDark() const;

Q_SIGNALS:
    void appearanceChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onSettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);
    void setPortalScheme(uint scheme);

    uint m_portalScheme = 0; // 0 none, 1 dark, 2 light
};
