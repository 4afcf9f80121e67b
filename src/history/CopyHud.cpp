// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/CopyHud.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPropertyAnimation>
#include <QScreen>
#include <QWidget>
#include <cmath>

namespace {

constexpr int capsuleHeight = 36;
constexpr int horizontalPadding = 48; // both sides together
constexpr int raiseAboveMiddle = 100; // the capsule's centre sits this far above the middle
constexpr int fadeInMs = 200;
constexpr int holdMs = 1500; // from showing to the start of the fade out
constexpr int fadeOutMs = 300;

QFont capsuleFont()
{
    QFont font = QApplication::font();
    font.setPixelSize(14);
    font.setWeight(QFont::DemiBold);
    return font;
}

// The capsule: black at 0.78 over the whole window with a soft shadow (black 0.3, 2 px down,
// 12 px blur). The capsule fills the window, so the shadow shows only inside the corners that
// the rounded ends leave free, as a darker rim below the curve.
class CapsuleWindow : public QWidget {
public:
    CapsuleWindow(const QString &message, bool isCutToShape, bool placesWindowsAsAsked)
        : QWidget(nullptr, flagsFor(placesWindowsAsAsked))
        , m_message(message)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setFont(capsuleFont());
        // A screen reader reads the capsule as a notification, by this name.
        setObjectName(QStringLiteral("copyConfirmation"));
        setAccessibleName(message);
        setFixedSize(CopyHud::capsuleSize(message));
        if (isCutToShape) {
            // Cut the window to the capsule so the ends are round rather than black corners
            // (without the shadow, which would lie outside the cut).
            QPainterPath capsule;
            capsule.addRoundedRect(rect(), height() / 2.0, height() / 2.0);
            setMask(QRegion(capsule.toFillPolygon().toPolygon()));
        }
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF bounds = rect();
        const qreal radius = bounds.height() / 2;

        // The blur as a stack of capsules growing from 6 px inside to 6 px outside the
        // shadow's outline; where all of them overlap the darkness adds up to the full 0.3,
        // and it falls off smoothly across the outline.
        constexpr int steps = 6;
        constexpr qreal blur = 12;
        const qreal stepAlpha = 1 - std::pow(1 - 0.3, 1.0 / steps);
        const QRectF shadow = bounds.translated(0, 2);
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < steps; ++i) {
            const qreal spread = -blur / 2 + blur * (i + 0.5) / steps;
            const QRectF r = shadow.adjusted(-spread, -spread, spread, spread);
            painter.setBrush(QColor::fromRgbF(0, 0, 0, stepAlpha));
            painter.drawRoundedRect(r, r.height() / 2, r.height() / 2);
        }
        // The shadow is only the rim outside the capsule: clear what the capsule covers, so its
        // 0.78 black is not darkened by the shadow below it.
        QPainterPath capsule;
        capsule.addRoundedRect(bounds, radius, radius);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.drawPath(capsule);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.fillPath(capsule, QColor::fromRgbF(0, 0, 0, 0.78));

        // The text line: its height rounded up, centred vertically on whole pixels.
        const QFontMetricsF metrics(font());
        const qreal textHeight = std::ceil(metrics.height());
        const qreal top = std::round((capsuleHeight - textHeight) * 0.5);
        painter.setPen(Qt::white);
        painter.drawText(QRectF(0, top, bounds.width(), textHeight), Qt::AlignCenter, m_message);
    }

private:
    static Qt::WindowFlags flagsFor(bool placesWindowsAsAsked)
    {
        const Qt::WindowFlags common = Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
            | Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint;
        // On X11 a tooltip window is placed exactly where asked, above everything, and no
        // window manager gives it focus or a taskbar entry. Wayland has no unparented
        // tooltips: there it is a tool window, placed by the compositor.
        if (placesWindowsAsAsked)
            return common | Qt::ToolTip;
        return common | Qt::Tool;
    }

    QString m_message;
};

} // namespace

CopyHud::CopyHud(std::function<bool()> showsTranslucentWindows, bool placesWindowsAsAsked, WindowRoles *roles,
    QObject *parent)
    : QObject(parent)
    , m_placesWindowsAsAsked(placesWindowsAsAsked)
    , m_roles(roles)
    , m_showsTranslucentWindows(std::move(showsTranslucentWindows))
{
    m_dismissal.setSingleShot(true);
    m_dismissal.setInterval(holdMs);
    m_dismissal.setTimerType(Qt::PreciseTimer); // a coarse timer may cut the 1.5 s short by 5%
    connect(&m_dismissal, &QTimer::timeout, this, &CopyHud::dismiss);
}

CopyHud::~CopyHud()
{
    delete m_current.data();
}

QWidget *CopyHud::currentWindow() const
{
    return m_current.data();
}

QSize CopyHud::capsuleSize(const QString &message)
{
    const QFontMetricsF metrics(capsuleFont());
    return QSize(int(std::ceil(metrics.horizontalAdvance(message) + horizontalPadding)), capsuleHeight);
}

QPoint CopyHud::capsulePosition(const QRect &available, const QSize &size)
{
    // Centre of the usable area, in floating point: an odd width must not shift the capsule.
    const double middleX = available.x() + available.width() / 2.0;
    const double middleY = available.y() + available.height() / 2.0;
    return QPoint(int(std::lround(middleX - size.width() / 2.0)),
        int(std::lround(middleY - raiseAboveMiddle - size.height() / 2.0)));
}

void CopyHud::showHUD(const QString &message)
{
    // The previous capsule goes at once, fading or not; its animations go with it, so a fade
    // that was under way can never finish on the new one.
    m_dismissal.stop();
    if (m_current) {
        m_current->hide();
        m_current->deleteLater();
        m_current.clear();
    }
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    if (m_roles && !m_roles->canShowOverlays())
        return;

    auto *window = new CapsuleWindow(message, !m_showsTranslucentWindows(), m_placesWindowsAsAsked);
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen) {
        window->setScreen(screen);
        window->move(capsulePosition(screen->availableGeometry(), window->size()));
    }
    // Wayland windows have no opacity of their own: there the capsule shows and goes at once.
    if (!m_roles)
        window->setWindowOpacity(0);
    window->show();
    if (m_roles && window->windowHandle())
        m_roles->makeOverlay(*window->windowHandle(), window->pos());
    // Qt keeps quiet about tooltip windows showing; a screen reader hears a notification
    // when it shows, and this one takes no focus to be read otherwise.
    if (QAccessible::isActive()) {
        QAccessibleEvent shown(window, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }

    if (!m_roles) {
        auto *fadeIn = new QPropertyAnimation(window, "windowOpacity", window);
        fadeIn->setDuration(fadeInMs);
        fadeIn->setStartValue(0.0);
        fadeIn->setEndValue(1.0);
        fadeIn->start(QAbstractAnimation::DeleteWhenStopped);
    }

    m_current = window;
    m_dismissal.start();
}

void CopyHud::dismiss()
{
    QWidget *window = m_current.data();
    if (!window)
        return;
    const auto remove = [this, window] {
        window->hide();
        if (m_current == window)
            m_current.clear();
        window->deleteLater();
    };
    // Without opacity (Wayland) the fade is only the wait before the capsule goes.
    if (m_roles) {
        QTimer::singleShot(fadeOutMs, window, remove);
        return;
    }
    auto *fadeOut = new QPropertyAnimation(window, "windowOpacity", window);
    fadeOut->setDuration(fadeOutMs);
    fadeOut->setEndValue(0.0);
    connect(fadeOut, &QPropertyAnimation::finished, window, remove);
    fadeOut->start(QAbstractAnimation::DeleteWhenStopped);
}
