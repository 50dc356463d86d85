#include "overlay/KeyDisplayView.h"
#include "overlay/KeyEffectCache.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/SettingsStore.h"
#include "settings/StylePresetActions.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using KeyPosition = AppSettings::KeyPosition;
using KeyAnimationStyle = AppSettings::KeyAnimationStyle;
using KeyStyle = AppSettings::KeyStyle;

namespace {
const QSize windowSize(1280, 720);

QList<KeyPress> makeKeys(const QStringList &names)
{
    QList<KeyPress> keys;
    for (const QString &name : names) {
        keys.append(KeyPress::make(name, 40, KeyCategory::Kind::letter));
        keys.last().timestamp = 1000.0 + keys.size();
    }
    return keys;
}

DisplayConfiguration configurationAt(KeyPosition position, QPointF fraction = {0.5, 0.85})
{
    DisplayConfiguration configuration;
    configuration.position = position;
    configuration.customOffsetX = fraction.x();
    configuration.customOffsetY = fraction.y();
    return configuration;
}

QImage render(const KeyDisplayView &view)
{
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(painter);
    return image;
}

// The bounding box of the pixels at least `alpha` opaque.
QRect inkOf(const QImage &image, int alpha)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ink |= qAlpha(image.pixel(x, y)) >= alpha ? QRect(x, y, 1, 1) : QRect();
    return ink;
}

// Nearly opaque pixels of `area` close to `colour`.
int countPixels(const QImage &image, const QRect &area, QRgb colour, int tolerance)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb p = image.pixel(x, y);
            count += qAlpha(p) > 200 && std::max({std::abs(qRed(p) - qRed(colour)),
                                                  std::abs(qGreen(p) - qGreen(colour)),
                                                  std::abs(qBlue(p) - qBlue(colour))}) <= tolerance;
        }
    return count;
}
} // namespace

class tst_KeyDisplayView final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    double m_time = 0.0;

    // A view on a hand-driven clock.
    std::unique_ptr<KeyDisplayView> makeView(KeyAnimationStyle style,
                                             const QList<KeyPress> &keys = {},
                                             KeyPosition position = KeyPosition::bottomCenter)
    {
        m_store->setValue(AppSettings::keyAnimationStyle, style);
        auto view = std::make_unique<KeyDisplayView>(*m_store);
        view->setClock([this] { return m_time; });
        view->setSize(windowSize);
        view->setConfiguration(configurationAt(position));
        view->setKeys(keys);
        return view;
    }
    void advance(KeyDisplayView &view, double time)
    {
        m_time = time;
        view.updateFrame();
    }
    // No border, shadow or translucency: the fill's edge is the cap's edge.
    void flatLook()
    {
        m_store->setValue(AppSettings::keyBorderWidth, 0.0);
        m_store->setValue(AppSettings::keyBorderColor, QStringLiteral("#00000000"));
        m_store->setValue(AppSettings::keyShadowEnabled, false);
        m_store->setValue(AppSettings::keyOpacity, 1.0);
    }

private slots:
    void init()
    {
        KeyEffectCache::shared().clear();
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf")));
        m_time = 0.0;
    }

    void rowPosition_data()
    {
        QTest::addColumn<KeyPosition>("position");
        QTest::addColumn<QPointF>("fraction"); // of a custom position
        QTest::addColumn<QRectF>("frame");     // of a one-key row
        QTest::newRow("top left") << KeyPosition::topLeft << QPointF() << QRectF(40, 20, 64, 64);
        QTest::newRow("top right")
            << KeyPosition::topRight << QPointF() << QRectF(1176, 20, 64, 64);
        QTest::newRow("custom (0, 0): centred on the corner")
            << KeyPosition::custom << QPointF(0, 0) << QRectF(-32, -32, 64, 64);
        QTest::newRow("custom past the edge, not clamped")
            << KeyPosition::custom << QPointF(1.1, 0.25) << QRectF(1376, 148, 64, 64);
    }
    void rowPosition()
    {
        QFETCH(KeyPosition, position);
        QFETCH(QPointF, fraction);
        QFETCH(QRectF, frame);
        flatLook();
        auto view = makeView(KeyAnimationStyle::fadeIn, makeKeys({QStringLiteral("A")}));
        advance(*view, 1.0);
        view->setConfiguration(configurationAt(position, fraction));
        QVERIFY(!view->isAnimating()); // a new place shows at once
        QCOMPARE(view->keyFrames(), QList<QRectF>{frame});
        // Read back from the pixels (more than half covered), as far as it is on screen.
        QCOMPARE(inkOf(render(*view), 128), frame.toRect() & QRect(QPoint(), windowSize));
        // The window needs only a band across the display holding the row.
        const QRect area = view->drawingArea();
        QVERIFY(area.width() == windowSize.width() && area.height() < windowSize.height() / 3);
        QCOMPARE(area | (view->contentRegion().boundingRect() & QRect(QPoint(), windowSize)), area);
    }

    void aNewCapRepaintsOnlyWhatMovesWithinTheDrawingArea()
    {
        QList<KeyPress> keys = makeKeys({QStringLiteral("A"), QStringLiteral("B")});
        auto view = makeView(KeyAnimationStyle::bounce, keys, KeyPosition::bottomLeft);
        advance(*view, 2.0);
        const QRect first = view->keyFrames().first().toAlignedRect();
        QSignalSpy updates(view.get(), &KeyDisplayView::updateRequested);
        keys += makeKeys({QStringLiteral("C")});
        keys.last().timestamp = 1003.0; // the newest: last in the row
        view->setKeys(keys);
        for (double time = 2.0; time < 2.8; time += 1.0 / 60.0) {
            advance(*view, time);
            const QRect area = view->drawingArea();
            QCOMPARE(area | (view->contentRegion().boundingRect() & QRect(QPoint(), windowSize)),
                     area);
        }
        QVERIFY(updates.count() > 20);
        for (const QList<QVariant> &update : updates)
            QVERIFY(!update.first().value<QRegion>().intersects(first));
    }

    void aCapGoneBeforeTheViewHasASizeLeavesTheBandAlone()
    {
        // A window made while keys show gets its display's size only after its first keys.
        m_store->setValue(AppSettings::keyAnimationStyle, KeyAnimationStyle::slideIn);
        KeyDisplayView view(*m_store);
        view.setClock([this] { return m_time; });
        view.setKeys(makeKeys({QStringLiteral("A")}));
        view.setKeys(makeKeys({QStringLiteral("B")}));
        view.setSize(windowSize);
        view.setConfiguration(configurationAt(KeyPosition::bottomCenter));
        QVERIFY(view.drawingArea().height() < windowSize.height() / 3);
    }

    void rowOrderAndSpacing_data()
    {
        QTest::addColumn<double>("spacing");
        QTest::addColumn<int>("gap"); // half the setting
        QTest::newRow("0: caps touch") << 0.0 << 0;
        QTest::newRow("20 (default)") << 20.0 << 10;
    }
    void rowOrderAndSpacing()
    {
        QFETCH(double, spacing);
        QFETCH(int, gap);
        flatLook();
        m_store->setValue(AppSettings::keySpacing, spacing);
        // An older wide key and a newer modifier: the modifier still leads.
        QList<KeyPress> keys = makeKeys({QStringLiteral("Escape")});
        keys.append(KeyPress::make(QStringLiteral("⇧"), KeyPress::modifierSymbolCode,
                                   KeyCategory::Kind::modifier));
        auto view = makeView(KeyAnimationStyle::none, keys, KeyPosition::topLeft);
        const QList<QRectF> frames = view->keyFrames();
        QCOMPARE(frames.size(), 2);
        QVERIFY(frames[0].width() == 64 && frames[1].width() > 64 && frames[1].left() == 104 + gap);
        // Across the middle of the row, transparent only in the gap.
        const QImage image = render(*view);
        int clear = 0;
        for (int x = 40; x < 104 + gap + 8; ++x)
            clear += qAlpha(image.pixel(x, 52)) < 128 ? 1 : 0;
        QCOMPARE(clear, gap);
    }

    void emptyListDrawsNothing()
    {
        auto view = makeView(KeyAnimationStyle::fadeIn);
        QSignalSpy updates(view.get(), &KeyDisplayView::updateRequested);
        view->setKeys({});
        QVERIFY(view->contentRegion().isEmpty() && updates.isEmpty());
        QVERIFY(inkOf(render(*view), 1).isNull());
    }

    void aStillRowAsksForNothing_data()
    {
        QTest::addColumn<KeyAnimationStyle>("style");
        QTest::newRow("fadeIn") << KeyAnimationStyle::fadeIn;
        QTest::newRow("bounce") << KeyAnimationStyle::bounce;
        QTest::newRow("slideIn") << KeyAnimationStyle::slideIn;
    }
    void aStillRowAsksForNothing()
    {
        // On the real clock and timer, as in the program.
        QFETCH(KeyAnimationStyle, style);
        m_store->setValue(AppSettings::keyAnimationStyle, style);
        KeyDisplayView view(*m_store);
        view.setSize(windowSize);
        QSignalSpy updates(&view, &KeyDisplayView::updateRequested);
        const QList<KeyPress> keys = makeKeys({QStringLiteral("A"), QStringLiteral("B")});
        view.setKeys(keys);
        QVERIFY(view.isAnimating());
        view.setKeys(keys.mid(1)); // A leaves, drawn left of B until its removal has played
        QVERIFY(view.contentRegion().boundingRect().left() < view.keyFrames().first().left() - 40);
        QTRY_VERIFY_WITH_TIMEOUT(!view.isAnimating(), 3000);
        QVERIFY(view.contentRegion().boundingRect().left() > view.keyFrames().first().left() - 20);
        QVERIFY(updates.count() > 3); // it did animate, frame by frame
        updates.clear();
        QTest::qWait(250);
        QCOMPARE(updates.count(), 0);
        for (const QTimer *timer : view.findChildren<QTimer *>())
            QVERIFY(!timer->isActive());
    }

    void transitions_data()
    {
        QTest::addColumn<KeyAnimationStyle>("style");
        QTest::addColumn<double>("time");
        QTest::addColumn<double>("scale"); // of the drawing against the drawing at rest
        QTest::newRow("fadeIn, middle") << KeyAnimationStyle::fadeIn << 0.15 << 0.9;
        QTest::newRow("scaleIn, start") << KeyAnimationStyle::scaleIn << 0.0 << 0.1;
        QTest::newRow("slideIn, early") << KeyAnimationStyle::slideIn << 0.1 << 1.0;
        // The spring's first peak (≈ 0.23 s) overshoots by about 16 %.
        QTest::newRow("bounce, overshoot") << KeyAnimationStyle::bounce << 0.2309 << 1.0815;
    }
    void transitions()
    {
        QFETCH(KeyAnimationStyle, style);
        QFETCH(double, time);
        QFETCH(double, scale);
        flatLook();
        auto view = makeView(style, makeKeys({QStringLiteral("A")}), KeyPosition::bottomRight);
        advance(*view, time);
        const QImage image = render(*view);
        const QRect moving = inkOf(image, 1);
        advance(*view, 5.0);
        const QRect rest = inkOf(render(*view), 1);
        const double ratio = double(moving.width()) / rest.width();
        QVERIFY2(std::abs(ratio - scale) < 0.03, qPrintable(QString::number(ratio)));
        // Sliding in from the leading edge, otherwise in place; fading in but for scaleIn.
        QVERIFY(style == KeyAnimationStyle::slideIn
                    ? moving.center().x() < rest.center().x() - 100
                    : std::abs(moving.center().x() - rest.center().x()) <= 1);
        QCOMPARE(qAlpha(image.pixel(moving.center())) < 250,
                 style != KeyAnimationStyle::scaleIn && time < 0.2);
    }

    void labelChangeAnimatesSettingsShowAtOnce()
    {
        QList<KeyPress> keys = makeKeys({QStringLiteral("K")});
        auto view = makeView(KeyAnimationStyle::none, keys);
        keys.first().keyName = QStringLiteral("Backspace"); // the same key, a new label
        view->setKeys(keys);
        advance(*view, 0.1);
        const double midWidth = view->keyFrames().first().width();
        advance(*view, 1.0);
        QVERIFY(!view->isAnimating());
        QVERIFY(midWidth > 64 && midWidth < view->keyFrames().first().width());
        QSignalSpy updates(view.get(), &KeyDisplayView::updateRequested);
        m_store->setValue(AppSettings::keySize, 3.0);
        QVERIFY(!view->isAnimating());
        QCOMPARE(view->keyFrames().first().height(), 96.0);
        // A colour, and back to the style's, shows in the very next frame.
        for (const auto &[value, colour] : {std::pair{QStringLiteral("#ff0000ff"), qRgb(255, 0, 0)},
                                            {QString(), qRgb(0, 0, 0)}}) {
            m_store->setValue(AppSettings::keyTextColor, value);
            QVERIFY(!view->isAnimating());
            const QRect frame = view->keyFrames().first().toRect();
            QVERIFY(countPixels(render(*view), frame.adjusted(16, 16, -16, -16), colour, 40) > 20);
        }
        QCOMPARE(updates.count(), 3);                      // one repaint each
        m_store->setValue(AppSettings::showAllKeys, true); // nothing to do with the row
        QCOMPARE(updates.count(), 3);
    }

    void builtInStylesShowTheirColours_data()
    {
        QTest::addColumn<KeyStyle>("style");
        QTest::addColumn<QRgb>("fill");
        QTest::addColumn<QRgb>("border");
        QTest::addColumn<QRgb>("text");
        QTest::newRow("modern") << KeyStyle::modern << qRgb(255, 255, 255) << qRgb(204, 204, 204)
                                << qRgb(0, 0, 0);
        QTest::newRow("neon") << KeyStyle::neon << qRgb(26, 26, 26) << qRgb(255, 0, 255)
                              << qRgb(255, 0, 255);
    }
    void builtInStylesShowTheirColours()
    {
        QFETCH(KeyStyle, style);
        QFETCH(QRgb, fill);
        QFETCH(QRgb, border);
        QFETCH(QRgb, text);
        CustomKeyStylePresetStore presets(*m_store);
        StylePresetActions(*m_store, presets).applyBuiltInStyle(style);
        m_store->setValue(AppSettings::keyOpacity, 1.0);
        auto view = makeView(KeyAnimationStyle::none, makeKeys({QStringLiteral("W")}));
        const QImage image = render(*view);
        const QRect frame = view->keyFrames().first().toRect();
        const int y = frame.center().y();
        // Fill between the border and the label (neon's glow lies faintly over it), border on the
        // frame's edge, text in the middle.
        QCOMPARE(countPixels(image, QRect(frame.left() + 7, y, 1, 1), fill, 40), 1);
        QVERIFY(countPixels(image, QRect(frame.left() - 1, y - 4, 3, 8), border, 30) > 0);
        QVERIFY(countPixels(image, frame.adjusted(16, 8, -16, -8), text, 40) > 10);
    }

    void mouseClickShowsTheGlyphNeverItsLabel()
    {
        const auto click = [](const QString &label) {
            return QList{KeyPress::make(label, KeyPress::leftClickCode,
                                        KeyCategory::mouse(MouseClickButton::left))};
        };
        auto view = makeView(KeyAnimationStyle::none, click(QStringLiteral("Left click")));
        const QRect frame = view->keyFrames().first().toRect();
        QCOMPARE(frame.size(), QSize(64, 64)); // a square cap, whatever the label says
        const QImage image = render(*view);
        QCOMPARE(render(*makeView(KeyAnimationStyle::none, click(QStringLiteral("WWWW")))), image);
        // The glyph in the text colour (black by default) sits in the middle.
        QVERIFY(countPixels(image, frame.adjusted(16, 12, -16, -12), qRgb(0, 0, 0), 24) > 20);
    }
};

QTEST_MAIN(tst_KeyDisplayView)
#include "tst_KeyDisplayView.moc"
