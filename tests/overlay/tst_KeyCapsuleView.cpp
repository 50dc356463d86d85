#include "overlay/KeyCapsuleView.h"
#include "overlay/KeyEffectCache.h"
#include "overlay/MouseClickIndicatorView.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

namespace {
// White cap, black text and border colour; effects sized but off.
KeyAppearanceSnapshot plainLook(const QString &text, double m)
{
    KeyAppearanceSnapshot s;
    s.text = text;
    s.sizeMultiplier = m;
    s.textColor = s.borderColor = Qt::black;
    s.backgroundColor = Qt::white;
    s.cornerRadius = 4.0;
    s.shadowColor = QColor(0, 0, 0, 64);
    s.shadowRadius = 4.0;
    s.glowColor = Qt::red;
    s.glowLineWidth = 2.0;
    s.glowOpacity = 0.6;
    return s;
}

QImage render(const KeyCapsuleView &cap, const QPointF &topLeft, QSize size, double dpr = 1.0)
{
    QImage image(size * dpr, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    cap.paint(painter, topLeft);
    return image;
}

template <typename Test> QRect areaOf(const QImage &image, Test test)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            area |= test(image.pixel(x, y)) ? QRect(x, y, 1, 1) : QRect();
    return area;
}

bool isDark(QRgb p)
{
    return qAlpha(p) > 200 && qRed(p) < 60 && qGreen(p) < 60 && qBlue(p) < 60;
}
} // namespace

class tst_KeyCapsuleView final : public QObject {
    Q_OBJECT

private slots:
    void init() { KeyEffectCache::shared().clear(); }

    void capSizes_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<double>("m");
        QTest::addColumn<QString>("font");
        QTest::addColumn<double>("width"); // 0: wider than high, by the label
        QTest::newRow("letter at 2.0") << "H" << 2.0 << QString() << 64.0;
        QTest::newRow("unknown font at 3.0") << "H" << 3.0 << "No Such Font Family" << 96.0;
        QTest::newRow("long label at 1.0") << "INSERT" << 1.0 << QString() << 0.0;
    }
    void capSizes()
    {
        QFETCH(QString, label);
        QFETCH(double, m);
        QFETCH(QString, font);
        QFETCH(double, width);
        KeyAppearanceSnapshot look = plainLook(label, m);
        look.fontName = font;
        const QSizeF size = KeyCapsuleView::sizeFor(look);
        QCOMPARE(size.height(), 32.0 * m);
        if (width > 0) {
            QCOMPARE(size.width(), width);
        } else { // grows sideways only, by 8·m of padding each side
            QVERIFY(size.width() > size.height());
            QCOMPARE(size.width(), KeyCapsuleView::textSizeFor(look).width() + 16.0 * m);
        }
        // What is drawn has that size, with a 16·m point label centred in it (a capital's ink
        // is about 0.7 of the font's size in common faces).
        const QImage image = render(KeyCapsuleView(look), QPointF(8, 8), QSize(400, 120));
        const QRect fill = areaOf(image, [](QRgb p) { return qAlpha(p) >= 250; });
        QVERIFY(std::abs(fill.width() - size.width()) <= 1.0);
        QVERIFY(std::abs(fill.height() - size.height()) <= 1.0);
        const QRect glyph = areaOf(image, isDark);
        const double capHeight = glyph.height() / (16.0 * m);
        QVERIFY2(capHeight > 0.62 && capHeight < 0.8, qPrintable(QString::number(capHeight)));
        const QPointF offset = QRectF(glyph).center() - QRectF(QPointF(8, 8), size).center();
        QVERIFY(std::abs(offset.x()) <= 2.0 * m && std::abs(offset.y()) <= 2.0 * m);
    }

    // A 3-point border at 2.0 is 6 pixels wide.
    void borderIsCentredOnTheEdge()
    {
        const double m = 2.0;
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("·"), m);
        look.borderWidth = 3.0;
        const QImage image = render(KeyCapsuleView(look), QPointF(20, 20), QSize(140, 120));
        const int y = 20 + qRound(16.0 * m), half = 3;
        // Half the stroke outside the fill's edge, half over the fill.
        for (int x = 20 - half; x < 20 + half; ++x)
            QVERIFY2(isDark(image.pixel(x, y)), qPrintable(QString::number(x)));
        QCOMPARE(qAlpha(image.pixel(20 - half - 1, y)), 0);
        QCOMPARE(image.pixel(20 + half, y), qRgba(255, 255, 255, 255));
    }

    // The label is 16 pixels times the size multiplier, not rounded to whole pixels (25.6 for
    // the minimal look's 1.6).
    void labelSizeFollowsTheMultiplierExactly()
    {
        const QString text = QStringLiteral("WAVE WAVE");
        const double ratio = KeyCapsuleView::textSizeFor(plainLook(text, 1.6)).width() /
                             KeyCapsuleView::textSizeFor(plainLook(text, 1.0)).width();
        QVERIFY2(std::abs(ratio / 1.6 - 1.0) < 0.004, qPrintable(QString::number(ratio)));
    }

    void effects_data()
    {
        QTest::addColumn<bool>("shadow");
        QTest::addColumn<bool>("glow");
        QTest::addColumn<double>("blur"); // of the glow
        QTest::addColumn<double>("dpr");
        QTest::newRow("none, glow colour set") << false << false << 8.0 << 1.0;
        QTest::newRow("shadow") << true << false << 8.0 << 1.0;
        QTest::newRow("blurred glow") << false << true << 8.0 << 1.0;
        QTest::newRow("sharp glow") << false << true << 0.0 << 1.0;
        QTest::newRow("both, 2x") << true << true << 8.0 << 2.0;
    }
    void effects()
    {
        QFETCH(bool, shadow);
        QFETCH(bool, glow);
        QFETCH(double, blur);
        QFETCH(double, dpr);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("K"), 2.0);
        look.borderWidth = 1.0;
        look.shadowEnabled = shadow;
        look.glowEnabled = glow;
        look.glowRadius = blur;
        QCOMPARE(KeyCapsuleView::sizeFor(look), QSizeF(64, 64)); // the layout never changes
        KeyCapsuleView cap(look);
        const QPointF at(60, 60);
        const QImage image = render(cap, at, QSize(200, 200), dpr);
        const qsizetype entries = KeyEffectCache::shared().count();
        QCOMPARE(render(cap, at, QSize(200, 200), dpr), image);
        QCOMPARE(KeyEffectCache::shared().count(), entries); // copied, not drawn again
        cap.setCacheKey({});
        const QImage direct = render(cap, at, QSize(200, 200), dpr); // layer by layer
        QRect ink;
        int below = 0, red = 0, worst = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QRgb p = image.pixel(x, y), d = direct.pixel(x, y);
                ink |= qAlpha(p) > 0 ? QRect(x, y, 1, 1) : QRect();
                below += y >= (124 + 2) * dpr && qAlpha(p) > 0 ? 1 : 0;
                red += qAlpha(p) > 0 && qRed(p) > qGreen(p) + 10 ? 1 : 0;
                worst = std::max({worst, std::abs(qAlpha(p) - qAlpha(d)),
                                  std::abs(qRed(p) - qRed(d)), std::abs(qGreen(p) - qGreen(d))});
            }
        QVERIFY2(worst <= 3, qPrintable(QString::number(worst)));
        // All ink lies within the visual margins, and reaches well into them.
        const QMarginsF margins = cap.visualMargins() * dpr;
        const QRect allowed =
            QRectF(at * dpr, cap.size() * dpr).marginsAdded(margins).toAlignedRect();
        QVERIFY(image.rect().contains(allowed) && allowed.contains(ink));
        QVERIFY(ink.left() <= at.x() * dpr - margins.left() * 0.5 + 1);
        QVERIFY(ink.bottom() + 1 >= 124 * dpr + margins.bottom() * 0.5 - 1);
        QCOMPARE(red > 0, glow);
        const auto alphaAt = [&](int x, int y) { return qAlpha(image.pixel(x * dpr, y * dpr)); };
        if (!glow)
            QCOMPARE(below > 0, shadow);
        if (!shadow) // left of the frame only the ring can show
            QCOMPARE(alphaAt(58, 92) > 0, glow);
        if (shadow && !glow) // the shadow falls downwards
            QVERIFY(alphaAt(92, 128) > alphaAt(92, 56));
    }

    // A see-through cap still casts the shadow of its label.
    void labelCastsTheShadow_data()
    {
        QTest::addColumn<double>("blur");
        QTest::newRow("blurred") << 4.0;
        QTest::newRow("sharp") << 0.0;
    }
    void labelCastsTheShadow()
    {
        QFETCH(double, blur);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("K"), 2.0);
        look.backgroundColor = Qt::transparent;
        look.shadowEnabled = true;
        look.shadowColor = Qt::blue;
        look.shadowRadius = blur;
        look.shadowYOffset = 3.0;
        const QImage image = render(KeyCapsuleView(look), QPointF(60, 60), QSize(200, 200));
        const QRect label = areaOf(image, isDark);
        const QRect shadow =
            areaOf(image, [](QRgb p) { return qAlpha(p) > 20 && qBlue(p) > qRed(p) + 60; });
        QVERIFY(!label.isEmpty() && !shadow.isEmpty());
        QVERIFY(shadow.bottom() > label.bottom() && shadow.bottom() < label.bottom() + 20);
    }

    void mouseGlyph_data()
    {
        QTest::addColumn<double>("m");
        QTest::addColumn<double>("zoom");
        QTest::addColumn<double>("line"); // in pixels
        QTest::newRow("2.0") << 2.0 << 1.0 << 2.7;
        QTest::newRow("0.5 keeps one point of line") << 0.5 << 4.0 << 4.0;
    }
    void mouseGlyph()
    {
        QFETCH(double, m);
        QFETCH(double, zoom);
        QFETCH(double, line);
        QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(zoom, zoom);
        MouseClickIndicatorView(MouseClickButton::right, Qt::black, m)
            .paint(painter, QPointF(10, 10) / zoom);
        painter.end();
        // Either way the body is 23 × 29 pixels at (10, 10), its outline centred on the edge.
        const QRect ink = areaOf(image, [](QRgb p) { return qAlpha(p) > 127; });
        double edge = 0, divider = 0, dividerAlpha = 0;
        for (int y = 0; y < 64; ++y)
            for (int x = 0; x < 64; ++x) {
                const int a = qAlpha(image.pixel(x, y));
                edge += y == 25 && x < 16 ? a / 255.0 : 0; // across the straight left side
                if (x == 15 && y >= 16 && y < 30) {        // down the untinted left button
                    divider += (y + 0.5) * a;
                    dividerAlpha += a;
                }
            }
        QVERIFY(std::abs(ink.width() - (23 + line)) <= 1.0);
        QVERIFY(std::abs(ink.height() - (29 + line)) <= 1.0);
        QVERIFY2(std::abs(edge - line) <= 0.3, qPrintable(QString::number(edge)));
        QVERIFY2(std::abs(divider / dividerAlpha - 22) <= 0.5, "divider 12 below the top");
        // The pressed button is tinted with the colour at 28 % opacity, the other not.
        QVERIFY(std::abs(qAlpha(image.pixel(27, 16)) - qRound(0.28 * 255)) <= 2);
        QCOMPARE(qAlpha(image.pixel(15, 16)), 0);
    }
};

QTEST_MAIN(tst_KeyCapsuleView)
#include "tst_KeyCapsuleView.moc"
