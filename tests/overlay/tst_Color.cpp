#include "overlay/Color.h"

#include <QTest>

// Colour text as stored settings hold it, including the lenient and lossy corners.
class tst_Color final : public QObject {
    Q_OBJECT

    template <typename... T> static void row(const char *name, const T &...values)
    {
        (QTest::newRow(name) << ... << values);
    }

private slots:
    void parsing_data()
    {
        // Expected channels as 0xRRGGBBAA; each component must equal its step / 255 exactly.
        QTest::addColumn<QString>("text");
        QTest::addColumn<uint>("rgba");
        row("bare", "ff0000ff", 0xFF0000FFu);
        row("hash", "#ff0000ff", 0xFF0000FFu);
        row("mixed case", "#007AFFff", 0x007AFFFFu);
        // Anything but exactly eight characters after one "#" is white.
        row("six digits", "#ff0000", 0xFFFFFFFFu);
        row("empty", "", 0xFFFFFFFFu);
        row("two hashes", "##ff0000ff", 0xFFFFFFFFu);
        // The scan takes what it can read and stops at the first non-digit.
        row("nothing readable", "zz0000ff", 0xFFFFFFFFu);
        row("partial number", "ff00zzzz", 0xFF00u);
        row("leading blank skipped", " 0ff00ff", 0x00FF00FFu);
        row("0x prefix", "0x00ff00", 0xFF00u);
    }
    void parsing()
    {
        QFETCH(QString, text);
        QFETCH(uint, rgba);
        const Color c = Color::fromRGBAString(text);
        QCOMPARE(c.componentCount(), 4);
        QCOMPARE(c.red(), (rgba >> 24) / 255.0);
        QCOMPARE(c.green(), (rgba >> 16 & 0xFF) / 255.0);
        QCOMPARE(c.blue(), (rgba >> 8 & 0xFF) / 255.0);
        QCOMPARE(c.opacity(), (rgba & 0xFF) / 255.0);
    }

    void writing()
    {
        QCOMPARE(Color::rgb(1.0, 0.5, 0.0).toRGBAString(), "#FF7F00FF"); // truncated, not rounded
        QCOMPARE(Color::rgb(0.999, 0.0, 0.0, 0.0).toRGBAString(), "#FE000000");
        QCOMPARE(Color::grey(0.2, 0.5).toRGBAString(), "#FFFFFFFF");
        QCOMPARE(Color().toRGBAString(), "#FFFFFFFF");
        // No clamping: extended-range channels write as wider numbers.
        QCOMPARE(Color::rgb(2.0, 0.0, 0.0).toRGBAString(), "#1FE0000FF");
    }

    void qColorConversion()
    {
        for (const QString text : {"#FF0000FF", "#00FF0060", "#00000000", "#007AFFFF"}) {
            const QColor q = Color::fromRGBAString(text).toQColor();
            QCOMPARE(q, QColor::fromRgba(text.mid(1).toUInt(nullptr, 16) >> 8 |
                                         text.mid(7).toUInt(nullptr, 16) << 24));
            QCOMPARE(Color::fromQColor(q).toRGBAString(), text);
        }
        QVERIFY(!Color().toQColor().isValid());
        QCOMPARE(Color::fromQColor(QColor()).componentCount(), 0);
        QCOMPARE(Color::fromQColor(Color::rgb(1.5, 0, 0).toQColor()).red(), 1.5);
    }
};

QTEST_APPLESS_MAIN(tst_Color)
#include "tst_Color.moc"
