#include "overlay/KeyCapsuleView.h"
#include "overlay/KeyEffectCache.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

namespace {
// A plain look: white cap, black text, nothing else.
KeyAppearanceSnapshot plainLook(const QString &text, double m)
{
    KeyAppearanceSnapshot s;
    s.text = text;
    s.sizeMultiplier = m;
    s.textColor = Qt::black;
    s.backgroundColor = Qt::white;
    s.borderColor = Qt::black;
    s.cornerRadius = 4.0;
    s.shadowColor = QColor(0, 0, 0, 64);
    s.glowColor = Qt::red;
    return s;
}

QImage render(const KeyCapsuleView &cap, const QPointF &topLeft, QSize size,
              KeyEffectCache *cache = nullptr)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    cap.paint(painter, QRectF(topLeft, cap.size()), cache);
    return image;
}

QRect inkedArea(const QImage &image, int minimumAlpha = 1)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) >= minimumAlpha)
                area |= QRect(x, y, 1, 1);
    return area;
}

bool isDark(QRgb pixel)
{
    return qAlpha(pixel) > 200 && qRed(pixel) < 60 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
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
        QTest::addColumn<QSizeF>("size"); // width 0: wider than high, by the label
        QTest::newRow("letter at 2.0") << QStringLiteral("K") << 2.0 << QSizeF(64, 64);
        QTest::newRow("letter at 1.0") << QStringLiteral("K") << 1.0 << QSizeF(32, 32);
        QTest::newRow("symbol at 3.0") << QStringLiteral("⌘") << 3.0 << QSizeF(96, 96);
        QTest::newRow("two characters") << QStringLiteral("F5") << 2.0 << QSizeF(0, 64);
        QTest::newRow("spelled-out name") << QStringLiteral("Backspace") << 2.0 << QSizeF(0, 64);
        QTest::newRow("empty label") << QString() << 2.0 << QSizeF(64, 64);
    }
    void capSizes()
    {
        QFETCH(QString, label);
        QFETCH(double, m);
        QFETCH(QSizeF, size);
        const KeyAppearanceSnapshot look = plainLook(label, m);
        const QSizeF actual = KeyCapsuleView::sizeFor(look);
        QCOMPARE(actual.height(), size.height());
        if (size.width() > 0) {
            QCOMPARE(actual.width(), size.width());
        } else {
            // Grows sideways only, by 16·m of padding around the label.
            QVERIFY(actual.width() > actual.height());
            QCOMPARE(actual.width(), KeyCapsuleView::textSizeFor(look).width() + 16.0 * m);
        }
        // What is drawn is that size: the fill's extent, read back from the pixels.
        const QImage image = render(KeyCapsuleView(look), QPointF(8, 8), QSize(400, 120));
        const QRect fill = inkedArea(image, 250);
        QVERIFY(std::abs(fill.width() - actual.width()) <= 1.0);
        QVERIFY(std::abs(fill.height() - actual.height()) <= 1.0);
    }

    void labelUsesASixteenPointFontTimesTheSize_data()
    {
        QTest::addColumn<double>("m");
        QTest::newRow("1.0") << 1.0;
        QTest::newRow("2.0") << 2.0;
        QTest::newRow("3.0") << 3.0;
    }
    void labelUsesASixteenPointFontTimesTheSize()
    {
        QFETCH(double, m);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("H"), m);
        look.fontName = QStringLiteral("No Such Font Family"); // falls back, still sized
        const QImage image = render(KeyCapsuleView(look), QPointF(4, 4), QSize(120, 120));
        // The ink of a capital is about 0.7 of the font's size in common faces; it sits in
        // the middle of the cap.
        QRect glyph;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (isDark(image.pixel(x, y)))
                    glyph |= QRect(x, y, 1, 1);
        const double capHeight = glyph.height() / (16.0 * m);
        QVERIFY2(capHeight > 0.62 && capHeight < 0.8, qPrintable(QString::number(capHeight)));
        const QPointF capCentre(4 + 16.0 * m, 4 + 16.0 * m);
        QVERIFY(std::abs(QRectF(glyph).center().x() - capCentre.x()) <= 2.0 * m);
        QVERIFY(std::abs(QRectF(glyph).center().y() - capCentre.y()) <= 2.0 * m);
    }

    void borderIsCentredOnTheEdge_data()
    {
        QTest::addColumn<double>("borderWidth");
        QTest::addColumn<double>("m");
        QTest::addColumn<int>("pixels");
        QTest::newRow("2.0 at 2.0") << 2.0 << 2.0 << 4;
        QTest::newRow("1.0 at 2.0") << 1.0 << 2.0 << 2;
        QTest::newRow("2.0 at 1.0") << 2.0 << 1.0 << 2;
        QTest::newRow("3.0 at 2.0") << 3.0 << 2.0 << 6;
    }
    void borderIsCentredOnTheEdge()
    {
        QFETCH(double, borderWidth);
        QFETCH(double, m);
        QFETCH(int, pixels);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("·"), m);
        look.borderWidth = borderWidth;
        const int left = 20;
        const QImage image = render(KeyCapsuleView(look), QPointF(left, 20), QSize(140, 120));
        const int y = 20 + qRound(16.0 * m);
        // Half the stroke outside the frame's edge, half over the fill.
        for (int x = left - pixels / 2; x < left + pixels / 2; ++x)
            QVERIFY2(isDark(image.pixel(x, y)), qPrintable(QString::number(x)));
        QCOMPARE(qAlpha(image.pixel(left - pixels / 2 - 1, y)), 0);
        QCOMPARE(image.pixel(left + pixels / 2, y), qRgba(255, 255, 255, 255));
    }

    void shadowFallsBelowTheCapOnlyWhenEnabled_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::newRow("on") << true;
        QTest::newRow("off") << false;
    }
    void shadowFallsBelowTheCapOnlyWhenEnabled()
    {
        QFETCH(bool, enabled);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("K"), 2.0);
        look.borderWidth = 1.0;
        look.shadowEnabled = enabled;
        look.shadowRadius = 4.0;
        const QSizeF sizeWithoutShadow =
            KeyCapsuleView::sizeFor(plainLook(QStringLiteral("K"), 2.0));
        QCOMPARE(KeyCapsuleView::sizeFor(look), sizeWithoutShadow); // the layout does not change

        const QImage image = render(KeyCapsuleView(look), QPointF(40, 40), QSize(150, 160));
        const int bottom = 40 + 64;
        int shadowPixels = 0;
        for (int y = bottom + 2; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                shadowPixels += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
        QCOMPARE(shadowPixels > 0, enabled);
        if (enabled) {
            // Darker just below the cap than above it: it falls downwards.
            QVERIFY(qAlpha(image.pixel(72, bottom + 4)) > qAlpha(image.pixel(72, 40 - 4)));
        }
    }

    void glowRingOnlyWhenEnabled_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<double>("blur");
        QTest::newRow("off, colour and sizes set") << false << 8.0;
        QTest::newRow("on, blurred") << true << 8.0;
        QTest::newRow("on, sharp") << true << 0.0;
    }
    void glowRingOnlyWhenEnabled()
    {
        QFETCH(bool, enabled);
        QFETCH(double, blur);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("K"), 2.0);
        look.glowEnabled = enabled;
        look.glowColor = Qt::red;
        look.glowRadius = blur;
        look.glowLineWidth = 2.0;
        look.glowOpacity = 0.6;
        const QImage image = render(KeyCapsuleView(look), QPointF(40, 40), QSize(150, 150));
        int reddish = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QRgb p = image.pixel(x, y);
                reddish += qAlpha(p) > 0 && qRed(p) > qGreen(p) + 10 ? 1 : 0;
            }
        QCOMPARE(reddish > 0, enabled);
        // Outside the frame only the ring can show.
        QCOMPARE(qAlpha(image.pixel(40 - 2, 72)) > 0, enabled);
    }

    void drawingStaysWithinTheVisualMargins_data()
    {
        QTest::addColumn<bool>("shadow");
        QTest::addColumn<bool>("glow");
        QTest::addColumn<double>("border");
        QTest::newRow("plain") << false << false << 0.0;
        QTest::newRow("border") << false << false << 3.0;
        QTest::newRow("shadow") << true << false << 1.0;
        QTest::newRow("glow") << false << true << 2.0;
        QTest::newRow("everything") << true << true << 2.0;
    }
    void drawingStaysWithinTheVisualMargins()
    {
        QFETCH(bool, shadow);
        QFETCH(bool, glow);
        QFETCH(double, border);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("F12"), 2.5);
        look.borderWidth = border;
        look.shadowEnabled = shadow;
        look.shadowRadius = 6.0;
        look.glowEnabled = glow;
        look.glowRadius = 10.0;
        look.glowLineWidth = 2.0;
        look.glowOpacity = 0.6;
        const QPointF topLeft(100, 100);
        const KeyCapsuleView cap(look);
        const QImage image = render(cap, topLeft, QSize(400, 320));
        const QRectF allowed = QRectF(topLeft, cap.size()).marginsAdded(cap.visualMargins());
        const QRect ink = inkedArea(image);
        QVERIFY2(allowed.toAlignedRect().contains(ink), qPrintable(QStringLiteral("ink %1,%2 %3x%4")
                                                                       .arg(ink.x())
                                                                       .arg(ink.y())
                                                                       .arg(ink.width())
                                                                       .arg(ink.height())));
        // And the margins are not wildly generous either: the ink reaches well into them.
        const QMarginsF margins = cap.visualMargins();
        QVERIFY(ink.left() <= topLeft.x() - margins.left() * 0.5 + 1);
        QVERIFY(ink.bottom() + 1 >= topLeft.y() + cap.size().height() + margins.bottom() * 0.5 - 1);
    }

    void cachedCapLooksLikeOneDrawnDirectly_data()
    {
        QTest::addColumn<double>("dpr");
        QTest::newRow("1x") << 1.0;
        QTest::newRow("2x") << 2.0;
    }
    void cachedCapLooksLikeOneDrawnDirectly()
    {
        QFETCH(double, dpr);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("K"), 2.0);
        look.borderWidth = 1.0;
        look.shadowEnabled = true;
        look.shadowRadius = 4.0;
        look.glowEnabled = true;
        look.glowRadius = 8.0;
        look.glowLineWidth = 2.0;
        look.glowOpacity = 0.6;
        auto draw = [&](bool cached) {
            QImage image(QSize(160, 160) * dpr, QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(dpr);
            image.fill(Qt::transparent);
            KeyCapsuleView cap(look);
            if (!cached)
                cap.setCacheKey({});
            QPainter painter(&image);
            cap.paint(painter, QPointF(40, 40));
            return image;
        };
        KeyEffectCache &cache = KeyEffectCache::shared();
        const QImage direct = draw(false);
        const QImage first = draw(true);
        const qsizetype entries = cache.count();
        const QImage second = draw(true);
        QCOMPARE(cache.count(), entries); // reused, not rendered again
        QCOMPARE(second, first);
        int worst = 0;
        for (int y = 0; y < direct.height(); ++y)
            for (int x = 0; x < direct.width(); ++x) {
                const QRgb a = direct.pixel(x, y), b = first.pixel(x, y);
                worst = std::max({worst, std::abs(qAlpha(a) - qAlpha(b)),
                                  std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b))});
            }
        QVERIFY2(worst <= 3, qPrintable(QString::number(worst)));
    }

    void cacheStaysWithinItsBudget()
    {
        KeyEffectCache cache(512 * 1024);
        KeyAppearanceSnapshot look = plainLook(QStringLiteral("K"), 3.0);
        look.shadowEnabled = true;
        look.shadowRadius = 6.0;
        QImage image(300, 300, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (int i = 0; i < 60; ++i) {
            look.shadowColor = QColor(i, 0, 0, 100); // every look a new entry
            KeyCapsuleView(look).paint(painter, QRectF(QPointF(50, 50), QSizeF(96, 96)), &cache);
            QVERIFY(cache.bytes() <= cache.byteBudget());
        }
        QVERIFY(cache.count() > 1);
        cache.clear();
        QCOMPARE(cache.count(), 0);
        QCOMPARE(cache.bytes(), 0);
    }

    void blurSpreadsLikeAGaussian()
    {
        // A single line blurred: most of its weight within one deviation, symmetric, and the
        // total ink kept.
        QImage alpha(101, 1, QImage::Format_Alpha8);
        alpha.fill(0);
        alpha.bits()[50] = 255;
        QImage wide(101, 41, QImage::Format_Alpha8);
        wide.fill(0);
        for (int y = 0; y < 41; ++y)
            wide.scanLine(y)[50] = 255;
        KeyEffectCache::blurAlpha(wide, 6.0);
        const uchar *row = wide.constScanLine(20);
        int total = 0;
        for (int x = 0; x < 101; ++x)
            total += row[x];
        QVERIFY(std::abs(total - 255) <= 20);
        QVERIFY(std::abs(row[44] - row[56]) <= 1);
        QVERIFY(row[50] > row[56] && row[56] > row[62] && row[62] > row[70]);
        QCOMPARE(row[0], uchar(0));
    }
};

QTEST_MAIN(tst_KeyCapsuleView)
#include "tst_KeyCapsuleView.moc"
