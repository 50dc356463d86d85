#include "overlay/KeyEffectCache.h"
#include "overlay/KeyView.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/SettingsStore.h"
#include "settings/StylePresetActions.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using KeyStyle = AppSettings::KeyStyle;

namespace {
QImage render(const KeyView &view, double now, QSize size = {160, 120})
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(painter, QPointF(size.width() / 2.0, size.height() / 2.0), now);
    return image;
}

int countPixels(const QImage &image, const QRect &area, QRgb colour, int tolerance = 24)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb p = image.pixel(x, y);
            count += std::abs(qRed(p) - qRed(colour)) <= tolerance &&
                             std::abs(qGreen(p) - qGreen(colour)) <= tolerance &&
                             std::abs(qBlue(p) - qBlue(colour)) <= tolerance && qAlpha(p) > 200
                         ? 1
                         : 0;
        }
    return count;
}

QRect frameRect(const KeyView &view, QSize imageSize = {160, 120})
{
    const QSizeF size = view.size();
    return QRectF(imageSize.width() / 2.0 - size.width() / 2.0,
                  imageSize.height() / 2.0 - size.height() / 2.0, size.width(), size.height())
        .toRect();
}
} // namespace

class tst_KeyView final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;

    KeyPress letter(const QString &name)
    {
        return KeyPress::make(name, 40, KeyCategory::Kind::letter);
    }
    void applyStyle(KeyStyle style)
    {
        CustomKeyStylePresetStore presets(*m_store);
        StylePresetActions(*m_store, presets).applyBuiltInStyle(style);
    }

private slots:
    void init()
    {
        KeyEffectCache::shared().clear();
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf")));
    }

    void builtInStylesShowTheirColours_data()
    {
        QTest::addColumn<KeyStyle>("style");
        QTest::addColumn<QRgb>("fill");
        QTest::addColumn<QRgb>("border");
        QTest::addColumn<QRgb>("text");
        QTest::addColumn<int>("tolerance"); // a glow ring lies faintly over the whole fill
        QTest::newRow("modern") << KeyStyle::modern << qRgb(255, 255, 255) << qRgb(204, 204, 204)
                                << qRgb(0, 0, 0) << 2;
        QTest::newRow("classic") << KeyStyle::classic << qRgb(245, 245, 245) << qRgb(153, 153, 153)
                                 << qRgb(51, 51, 51) << 2;
        QTest::newRow("gaming") << KeyStyle::gaming << qRgb(0, 0, 0) << qRgb(0, 255, 0)
                                << qRgb(0, 255, 0) << 40;
        QTest::newRow("neon") << KeyStyle::neon << qRgb(26, 26, 26) << qRgb(255, 0, 255)
                              << qRgb(255, 0, 255) << 40;
    }
    void builtInStylesShowTheirColours()
    {
        QFETCH(KeyStyle, style);
        QFETCH(QRgb, fill);
        QFETCH(QRgb, border);
        QFETCH(QRgb, text);
        QFETCH(int, tolerance);
        applyStyle(style);
        const KeyView view(letter(QStringLiteral("W")), m_store->value(AppSettings::keySize),
                           *m_store);
        const QImage image = render(view, 0.0);
        const QRect frame = frameRect(view);
        const int midY = frame.center().y();
        // Fill: between the border and the label.
        const QRgb fillPixel = image.pixel(frame.left() + 7, midY);
        QVERIFY(std::abs(qRed(fillPixel) - qRed(fill)) <= tolerance);
        QVERIFY(std::abs(qGreen(fillPixel) - qGreen(fill)) <= tolerance);
        QVERIFY(std::abs(qBlue(fillPixel) - qBlue(fill)) <= tolerance);
        // Border: on the frame's edge.
        QVERIFY(countPixels(image, QRect(frame.left() - 1, midY - 4, 3, 8), border, 30) > 0);
        // Text: inside the middle of the cap.
        QVERIFY(countPixels(image, frame.adjusted(16, 8, -16, -8), text, 40) > 10);
    }

    void mouseClickShowsTheGlyphNeverItsLabel()
    {
        const KeyPress click = KeyPress::make(QStringLiteral("Left click"), KeyPress::leftClickCode,
                                              KeyCategory::mouse(MouseClickButton::left));
        KeyPress renamed = click;
        renamed.keyName = QStringLiteral("WWWWWW");
        const KeyView view(click, 2.0, *m_store);
        const KeyView other(renamed, 2.0, *m_store);
        // A square cap around the glyph, whatever the label says.
        QCOMPARE(view.size(), QSizeF(64, 64));
        const QImage image = render(view, 0.0);
        QCOMPARE(render(other, 0.0), image);
        // The glyph in the text colour (black by default) sits in the middle.
        QVERIFY(countPixels(image, frameRect(view).adjusted(16, 12, -16, -12), qRgb(0, 0, 0)) > 20);
    }

    void labelChangeAnimatesOverAFifthOfASecond()
    {
        KeyPress key = letter(QStringLiteral("K"));
        KeyView view(key, 2.0, *m_store);
        const QSizeF small = view.size();
        key.keyName = QStringLiteral("Backspace");
        view.setKeyPress(key, 10.0);
        const QSizeF large = view.size();
        QVERIFY(large.width() > small.width());
        QVERIFY(view.isAnimating(10.1));
        const double midWidth = view.size(10.1).width();
        QVERIFY(midWidth > small.width() && midWidth < large.width());
        QCOMPARE(view.size(10.0), small);
        QVERIFY(!view.isAnimating(10.21));
        QCOMPARE(view.size(10.21), large);
        // The same label again does not animate.
        view.setKeyPress(key, 11.0);
        QVERIFY(!view.isAnimating(11.05));
    }

    void settingChangesShowAtOnce_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QRgb>("textColour");
        QTest::newRow("text colour") << QStringLiteral("keyTextColor")
                                     << QVariant(QStringLiteral("#ff0000ff")) << qRgb(255, 0, 0);
        QTest::newRow("style fallback")
            << QStringLiteral("keyTextColor") << QVariant(QString()) << qRgb(0, 0, 0);
    }
    void settingChangesShowAtOnce()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QRgb, textColour);
        KeyView view(letter(QStringLiteral("M")), 2.0, *m_store);
        render(view, 0.0);
        m_store->setRawValue(key, value);
        view.refresh();
        QVERIFY(!view.isAnimating(0.0));
        const QImage image = render(view, 0.0);
        QVERIFY(countPixels(image, frameRect(view).adjusted(12, 8, -12, -8), textColour, 40) > 20);
    }

    void sizeChangeShowsAtOnce()
    {
        KeyView view(letter(QStringLiteral("K")), 2.0, *m_store);
        view.setKeySize(3.0);
        QVERIFY(!view.isAnimating(0.0));
        QCOMPARE(view.size(0.0), QSizeF(96, 96));
    }
};

QTEST_MAIN(tst_KeyView)
#include "tst_KeyView.moc"
