#include "overlay/KeyDisplayView.h"
#include "overlay/KeyEffectCache.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using KeyPosition = AppSettings::KeyPosition;
using KeyAnimationStyle = AppSettings::KeyAnimationStyle;

namespace {
const QSize windowSize(1280, 720);

QList<KeyPress> makeKeys(const QStringList &names)
{
    QList<KeyPress> keys;
    double stamp = 1000.0;
    for (const QString &name : names) {
        KeyPress key = KeyPress::make(name, 40, KeyCategory::Kind::letter);
        key.timestamp = stamp++;
        keys.append(key);
    }
    return keys;
}

DisplayConfiguration configurationAt(KeyPosition position, double fx = 0.5, double fy = 0.85)
{
    DisplayConfiguration configuration;
    configuration.id = 7;
    configuration.isEnabled = true;
    configuration.position = position;
    configuration.customOffsetX = fx;
    configuration.customOffsetY = fy;
    return configuration;
}

QRectF united(const QList<QRectF> &frames)
{
    QRectF all;
    for (const QRectF &frame : frames)
        all |= frame;
    return all;
}

QImage render(const KeyDisplayView &view)
{
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(painter);
    return image;
}
} // namespace

class tst_KeyDisplayView final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    double m_time = 0.0;

    // A view on a hand-driven clock, keys appearing at once unless a style is given.
    std::unique_ptr<KeyDisplayView> makeView(KeyAnimationStyle style = KeyAnimationStyle::none)
    {
        m_store->setValue(AppSettings::keyAnimationStyle, style);
        auto view = std::make_unique<KeyDisplayView>(*m_store);
        view->setClock([this] { return m_time; });
        view->setSize(windowSize);
        return view;
    }

private slots:
    void init()
    {
        KeyEffectCache::shared().clear();
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf")));
        m_time = 0.0;
    }

    void anchoredPositions_data()
    {
        QTest::addColumn<KeyPosition>("position");
        QTest::addColumn<QString>("horizontal"); // edge the row keeps to
        QTest::addColumn<bool>("top");
        QTest::newRow("top left") << KeyPosition::topLeft << "left" << true;
        QTest::newRow("top center") << KeyPosition::topCenter << "center" << true;
        QTest::newRow("top right") << KeyPosition::topRight << "right" << true;
        QTest::newRow("bottom left") << KeyPosition::bottomLeft << "left" << false;
        QTest::newRow("bottom center") << KeyPosition::bottomCenter << "center" << false;
        QTest::newRow("bottom right") << KeyPosition::bottomRight << "right" << false;
    }
    void anchoredPositions()
    {
        QFETCH(KeyPosition, position);
        QFETCH(QString, horizontal);
        QFETCH(bool, top);
        auto view = makeView();
        view->setConfiguration(configurationAt(position));
        view->setKeys(makeKeys({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
        const QRectF row = united(view->keyFrames());
        QCOMPARE(view->keyFrames().size(), 3);
        if (horizontal == u"left")
            QCOMPARE(row.left(), 40.0);
        else if (horizontal == u"right")
            QCOMPARE(row.right(), windowSize.width() - 40.0);
        else
            QCOMPARE(row.center().x(), windowSize.width() / 2.0);
        if (top)
            QCOMPARE(row.top(), 20.0);
        else
            QCOMPARE(row.bottom(), windowSize.height() - 20.0);
    }

    void topRightRowReadBackFromPixels()
    {
        // No border or shadow, so the fill's edge is the cap's edge.
        m_store->setValue(AppSettings::keyBorderWidth, 0.0);
        m_store->setValue(AppSettings::keyBorderColor, QStringLiteral("#00000000"));
        m_store->setValue(AppSettings::keyShadowEnabled, false);
        m_store->setValue(AppSettings::keyOpacity, 1.0);
        auto view = makeView();
        view->setConfiguration(configurationAt(KeyPosition::topRight));
        view->setKeys(makeKeys({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
        const QImage image = render(*view);
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) >= 128) // more than half covered
                    ink |= QRect(x, y, 1, 1);
        QCOMPARE(windowSize.width() - (ink.right() + 1), 40);
        QCOMPARE(ink.top(), 20);
        QCOMPARE(ink.height(), 64);
    }

    void customPositionCentresTheRow_data()
    {
        QTest::addColumn<double>("fx");
        QTest::addColumn<double>("fy");
        QTest::newRow("corner, half off screen") << 0.0 << 0.0;
        QTest::newRow("stored default") << 0.5 << 0.85;
        QTest::newRow("past the edge, not clamped") << 1.1 << 0.25;
    }
    void customPositionCentresTheRow()
    {
        QFETCH(double, fx);
        QFETCH(double, fy);
        auto view = makeView();
        view->setConfiguration(configurationAt(KeyPosition::custom, fx, fy));
        view->setKeys(makeKeys({QStringLiteral("A"), QStringLiteral("B")}));
        const QRectF row = united(view->keyFrames());
        QCOMPARE(row.center(), QPointF(fx * windowSize.width(), fy * windowSize.height()));
    }

    void displayWithoutConfigurationUsesTheDefaultPosition()
    {
        auto view = makeView();
        view->setConfiguration(std::nullopt);
        QCOMPARE(view->position(), AppSettings::shared().keyPosition);
        view->setKeys(makeKeys({QStringLiteral("A")}));
        // The built-in default is bottom centre.
        const QRectF row = united(view->keyFrames());
        QCOMPARE(row.center().x(), windowSize.width() / 2.0);
        QCOMPARE(row.bottom(), windowSize.height() - 20.0);
    }

    void spacingIsHalfTheSetting_data()
    {
        QTest::addColumn<double>("spacing");
        QTest::addColumn<double>("gap");
        QTest::newRow("0: caps touch") << 0.0 << 0.0;
        QTest::newRow("12 (minimal)") << 12.0 << 6.0;
        QTest::newRow("20 (default)") << 20.0 << 10.0;
    }
    void spacingIsHalfTheSetting()
    {
        QFETCH(double, spacing);
        QFETCH(double, gap);
        m_store->setValue(AppSettings::keySpacing, spacing);
        auto view = makeView();
        view->setKeys(makeKeys({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
        const QList<QRectF> frames = view->keyFrames();
        QCOMPARE(frames.size(), 3);
        for (int i = 1; i < frames.size(); ++i)
            QCOMPARE(frames[i].left() - frames[i - 1].right(), gap);
    }

    void modifiersLeadInDisplayOrder()
    {
        // The oldest key is a wide one; the two newer modifiers still come first.
        auto view = makeView();
        QList<KeyPress> keys = makeKeys({QStringLiteral("Escape")});
        for (const QString &symbol : {QStringLiteral("⇧"), QStringLiteral("⌘")}) {
            KeyPress modifier =
                KeyPress::make(symbol, KeyPress::modifierSymbolCode, KeyCategory::Kind::modifier);
            modifier.timestamp = 2000.0;
            keys.append(modifier);
        }
        view->setKeys(keys);
        const QList<QRectF> frames = view->keyFrames();
        QCOMPARE(frames.size(), 3);
        QCOMPARE(frames[0].width(), 64.0);
        QCOMPARE(frames[1].width(), 64.0);
        QVERIFY(frames[2].width() > 64.0);
    }

    void emptyListDrawsNothing()
    {
        auto view = makeView(KeyAnimationStyle::fadeIn);
        QSignalSpy updates(view.get(), &KeyDisplayView::updateRequested);
        view->setKeys({});
        QVERIFY(view->contentRegion().isEmpty());
        QCOMPARE(updates.count(), 0);
        const QImage image = render(*view);
        QImage clear(image.size(), image.format());
        clear.fill(Qt::transparent);
        QCOMPARE(image, clear);
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
        view.setKeys(keys.mid(1)); // A leaves, B moves
        QTRY_VERIFY_WITH_TIMEOUT(!view.isAnimating(), 3000);
        QVERIFY(updates.count() > 3); // it did animate, frame by frame
        updates.clear();
        QTest::qWait(250);
        QCOMPARE(updates.count(), 0);
        for (const QTimer *timer : view.findChildren<QTimer *>())
            QVERIFY(!timer->isActive());
        QCOMPARE(view.keyFrames().size(), 1);
    }

    void removedKeyIsDrawnUntilItsRemovalEnds()
    {
        auto view = makeView(KeyAnimationStyle::fadeIn);
        const QList<KeyPress> keys = makeKeys({QStringLiteral("A"), QStringLiteral("B")});
        view->setKeys(keys);
        m_time = 1.0;
        view->updateFrame();
        QVERIFY(!view->isAnimating());
        const QRect bothKeys = view->contentRegion().boundingRect();
        view->setKeys(keys.mid(0, 1)); // B leaves
        m_time = 1.15;
        view->updateFrame();
        QCOMPARE(view->keyFrames().size(), 1);
        // B still shows (shrinking as it fades) beyond A's place.
        const double aRight = view->keyFrames().first().right();
        QVERIFY(view->contentRegion().boundingRect().right() > aRight + 40);
        QVERIFY(view->contentRegion().boundingRect().right() <= bothKeys.right());
        m_time = 1.31;
        view->updateFrame();
        QVERIFY(!view->isAnimating());
        QVERIFY(view->contentRegion().boundingRect().right() < bothKeys.right() - 30);
    }

    void transitionsScaleAndFade_data()
    {
        QTest::addColumn<KeyAnimationStyle>("style");
        QTest::addColumn<double>("time");
        QTest::addColumn<double>("relativeWidth"); // of the drawn area against the area at rest
        QTest::addColumn<bool>("faded");
        QTest::newRow("fadeIn, start") << KeyAnimationStyle::fadeIn << 0.0 << 0.8 << true;
        QTest::newRow("fadeIn, middle") << KeyAnimationStyle::fadeIn << 0.15 << 0.9 << true;
        QTest::newRow("scaleIn, start") << KeyAnimationStyle::scaleIn << 0.0 << 0.1 << false;
        QTest::newRow("bounce, start") << KeyAnimationStyle::bounce << 0.0 << 0.5 << true;
        // The spring's first peak (≈ 0.23 s) overshoots by about 16 %.
        QTest::newRow("bounce, overshoot")
            << KeyAnimationStyle::bounce << 0.2309 << 1.0 + 0.5 * 0.163 << false;
        QTest::newRow("none") << KeyAnimationStyle::none << 0.0 << 1.0 << false;
    }
    void transitionsScaleAndFade()
    {
        QFETCH(KeyAnimationStyle, style);
        QFETCH(double, time);
        QFETCH(double, relativeWidth);
        QFETCH(bool, faded);
        m_store->setValue(AppSettings::keyOpacity, 1.0);
        auto view = makeView(style);
        view->setKeys(makeKeys({QStringLiteral("A")}));
        m_time = time;
        view->updateFrame();
        const double width = view->contentRegion().boundingRect().width();
        const QImage image = render(*view);
        m_time = 5.0;
        view->updateFrame();
        const double restWidth = view->contentRegion().boundingRect().width();
        QVERIFY2(std::abs(width / restWidth - relativeWidth) < 0.03,
                 qPrintable(QString::number(width / restWidth)));
        // The fill's centre pixel: fully opaque unless the key is fading in.
        const QPoint centre = view->contentRegion().boundingRect().center();
        if (relativeWidth >= 0.5)
            QCOMPARE(qAlpha(image.pixel(centre)) < 250, faded && time < 0.2);
    }

    void slideEntersFromTheLeadingEdge()
    {
        auto view = makeView(KeyAnimationStyle::slideIn);
        view->setConfiguration(configurationAt(KeyPosition::bottomRight));
        view->setKeys(makeKeys({QStringLiteral("A")}));
        const double restX = view->keyFrames().first().center().x();
        m_time = 0.1;
        view->updateFrame();
        const double movingX = view->contentRegion().boundingRect().center().x();
        QVERIFY(movingX < restX - 100);
    }

    void settingChangesApplyAtOnce()
    {
        auto view = makeView(KeyAnimationStyle::fadeIn);
        view->setKeys(makeKeys({QStringLiteral("A"), QStringLiteral("B")}));
        m_time = 1.0;
        view->updateFrame();
        QSignalSpy updates(view.get(), &KeyDisplayView::updateRequested);
        QSignalSpy regions(view.get(), &KeyDisplayView::contentRegionChanged);
        m_store->setValue(AppSettings::keySize, 3.0);
        QCOMPARE(updates.count(), 1);
        QCOMPARE(regions.count(), 1);
        QVERIFY(!view->isAnimating());
        QCOMPARE(view->keyFrames().first().size(), QSizeF(96, 96));
        // Only the row is repainted, old area and new.
        const QRect row = view->contentRegion().boundingRect();
        QVERIFY(updates.first().first().value<QRegion>().boundingRect().height() <=
                row.height() + 1);
        m_store->setValue(AppSettings::keyTextColor, QStringLiteral("#ff0000ff"));
        QCOMPARE(updates.count(), 2);
        QVERIFY(!view->isAnimating());
        // A setting unrelated to the row changes nothing.
        m_store->setValue(AppSettings::showAllKeys, true);
        QCOMPARE(updates.count(), 2);
    }

    void positionChangeMovesTheRowAtOnce()
    {
        auto view = makeView(KeyAnimationStyle::fadeIn);
        view->setKeys(makeKeys({QStringLiteral("A")}));
        m_time = 1.0;
        view->updateFrame();
        view->setConfiguration(configurationAt(KeyPosition::topLeft));
        QVERIFY(!view->isAnimating());
        QCOMPARE(view->keyFrames().first().topLeft(), QPointF(40, 20));
    }
};

QTEST_MAIN(tst_KeyDisplayView)
#include "tst_KeyDisplayView.moc"
