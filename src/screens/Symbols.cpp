// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Symbols.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>

namespace {

QString resourcePath(const QString &name)
{
    return QStringLiteral(":/symbols/") + name + QStringLiteral(".svg");
}

// Symbols that point along the reading direction (back, forward) turn round in a right-to-left
// interface; the others (a pin, a gear) keep their drawing.
bool pointsAlongReading(const QString &name)
{
    return name.startsWith(u"chevron.left") || name.startsWith(u"chevron.right")
        || name.startsWith(u"arrow.left") || name.startsWith(u"arrow.right");
}

} // namespace

namespace Symbols {

bool exists(const QString &name)
{
    return QFile::exists(resourcePath(name));
}

void paint(QPainter &painter, const QRectF &rect, const QString &name, const QColor &color)
{
    const QPixmap tinted = pixmap(name, qCeil(qMax(rect.width(), rect.height())), color,
        painter.device() ? painter.device()->devicePixelRatioF() : 1.0);
    if (tinted.isNull())
        return;
    const qreal side = qMin(rect.width(), rect.height());
    const QRectF target(rect.center().x() - side / 2, rect.center().y() - side / 2, side, side);
    if (painter.layoutDirection() == Qt::RightToLeft && pointsAlongReading(name)) {
        painter.drawImage(target, tinted.toImage().mirrored(true, false));
        return;
    }
    painter.drawPixmap(target, tinted, QRectF(tinted.rect()));
}

QPixmap pixmap(const QString &name, int size, const QColor &color, qreal devicePixelRatio)
{
    if (size <= 0)
        return {};
    // Drawn by Qt's SVG image plugin, loaded with the first symbol a screen shows: a start that
    // shows only the tray icon maps no SVG code.
    QImageReader reader(resourcePath(name));
    const int device = qCeil(size * devicePixelRatio);
    reader.setScaledSize(QSize(device, device));
    QImage image = reader.read();
    if (image.isNull())
        return {};
    // Keep the shape, take the colour.
    image = std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    p.setCompositionMode(QPainter::CompositionMode_SourceIn);
    p.fillRect(image.rect(), color);
    p.end();
    QPixmap result = QPixmap::fromImage(std::move(image));
    result.setDevicePixelRatio(devicePixelRatio);
    return result;
}

QIcon icon(const QString &name, int size, const QColor &color)
{
    QIcon result;
    result.addPixmap(pixmap(name, size, color, 1.0));
    result.addPixmap(pixmap(name, size, color, 2.0));
    return result;
}

} // namespace Symbols

SymbolLabel::SymbolLabel(const QString &symbol, int size, ColorRole color, QWidget *parent)
    : QWidget(parent)
    , m_symbol(symbol)
    , m_color(color)
{
    setFixedSize(size, size);
}

void SymbolLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Symbols::paint(painter, rect(), m_symbol, m_color(palette()));
}
