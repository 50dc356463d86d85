#include "ui/Symbols.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <memory>

namespace {

QString resourcePath(const QString &name)
{
    return QStringLiteral(":/symbols/") + name + QStringLiteral(".svg");
}

// Draws the symbol afresh at every requested size, so it stays sharp at any scale.
class TintedSymbolEngine final : public QIconEngine {
public:
    TintedSymbolEngine(QString name, QColor color) : m_name(std::move(name)), m_color(color) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(rect, Symbols::pixmap(m_name, rect.size(), colorFor(mode), ratio));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        return Symbols::pixmap(m_name, size, colorFor(mode));
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        return Symbols::pixmap(m_name, size, colorFor(mode), scale);
    }

    QIconEngine *clone() const override { return new TintedSymbolEngine(m_name, m_color); }
    QString key() const override { return QStringLiteral("VantrelSymbol"); }

private:
    QColor colorFor(QIcon::Mode mode) const
    {
        if (mode != QIcon::Disabled)
            return m_color;
        QColor faded = m_color;
        faded.setAlphaF(m_color.alphaF() * 0.4f);
        return faded;
    }

    QString m_name;
    QColor m_color;
};

} // namespace

bool Symbols::exists(const QString &name)
{
    return !name.isEmpty() && QFile::exists(resourcePath(name));
}

QPixmap Symbols::pixmap(const QString &name, QSize size, const QColor &color,
                        qreal devicePixelRatio)
{
    if (!exists(name) || size.isEmpty())
        return {};
    QSvgRenderer renderer(resourcePath(name));
    if (!renderer.isValid())
        return {};
    QPixmap result(size * devicePixelRatio);
    result.setDevicePixelRatio(devicePixelRatio);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    // Keep the symbol's proportions, centred in the requested box.
    const QSizeF drawn = QSizeF(renderer.defaultSize()).scaled(QSizeF(size), Qt::KeepAspectRatio);
    const QRectF box((size.width() - drawn.width()) / 2.0, (size.height() - drawn.height()) / 2.0,
                     drawn.width(), drawn.height());
    renderer.render(&painter, box);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(0, 0), QSizeF(size)), color);
    return result;
}

QIcon Symbols::icon(const QString &name, const QColor &color)
{
    if (!exists(name))
        return {};
    return QIcon(new TintedSymbolEngine(name, color));
}

QIcon Symbols::icon(const QString &name)
{
    return icon(name, QGuiApplication::palette().color(QPalette::WindowText));
}

QIcon Symbols::maskIcon(const QString &name)
{
    if (!exists(name))
        return {};
    QIcon result(resourcePath(name));
    result.setIsMask(true);
    return result;
}

QIcon Symbols::applicationIcon()
{
    return QIcon(QStringLiteral(":/icons/vantrel.svg"));
}
