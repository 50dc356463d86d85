#include "overlay/Color.h"

#include <QTest>

Q_DECLARE_METATYPE(Color)

// Parsing and writing of colour text, including the lenient and lossy corners that stored
// settings depend on.
class tst_Color final : public QObject {
    Q_OBJECT

private slots:
    void parsing_data()
    {
        // Expected channels as 0...255 steps; each component must equal step / 255 exactly.
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("red");
        QTest::addColumn<int>("green");
        QTest::addColumn<int>("blue");
        QTest::addColumn<int>("alpha");

        QTest::newRow("bare lower") << QStringLiteral("ff0000ff") << 255 << 0 << 0 << 255;
        QTest::newRow("hash lower") << QStringLiteral("#ff0000ff") << 255 << 0 << 0 << 255;
        QTest::newRow("hash upper") << QStringLiteral("#FF0000FF") << 255 << 0 << 0 << 255;
        QTest::newRow("mixed case default glow")
            << QStringLiteral("#007AFFff") << 0 << 0x7A << 0xFF << 0xFF;
        QTest::newRow("same glow lower")
            << QStringLiteral("#007affff") << 0 << 0x7A << 0xFF << 0xFF;
        QTest::newRow("alpha last") << QStringLiteral("#00000040") << 0 << 0 << 0 << 0x40;
        QTest::newRow("leading zero digit")
            << QStringLiteral("0ff00ff0") << 0x0F << 0xF0 << 0x0F << 0xF0;

        // Anything but exactly eight characters after one "#" is white.
        QTest::newRow("six digits") << QStringLiteral("#ff0000") << 255 << 255 << 255 << 255;
        QTest::newRow("nine digits") << QStringLiteral("#ff0000ff0") << 255 << 255 << 255 << 255;
        QTest::newRow("empty") << QString() << 255 << 255 << 255 << 255;
        QTest::newRow("lone hash") << QStringLiteral("#") << 255 << 255 << 255 << 255;
        QTest::newRow("two hashes") << QStringLiteral("##ff0000ff") << 255 << 255 << 255 << 255;
        QTest::newRow("hash inside") << QStringLiteral("ff00#0ff") << 0 << 0 << 255 << 0;

        // The scan takes what it can read and stops at the first non-digit.
        QTest::newRow("nothing readable") << QStringLiteral("zz0000ff") << 255 << 255 << 255 << 255;
        QTest::newRow("partial number") << QStringLiteral("ff00zzzz") << 0 << 0 << 255 << 0;
        QTest::newRow("one digit") << QStringLiteral("7zzzzzzz") << 0 << 0 << 0 << 7;
        QTest::newRow("leading blank skipped")
            << QStringLiteral(" 0ff00ff") << 0 << 0xFF << 0 << 0xFF;
        QTest::newRow("leading newline skipped")
            << QStringLiteral("\nff00ff0") << 0x0F << 0xF0 << 0x0F << 0xF0;
        QTest::newRow("0x prefix") << QStringLiteral("0x00ff00") << 0 << 0 << 0xFF << 0;
        QTest::newRow("0X prefix") << QStringLiteral("#0Xffffff") << 0 << 0xFF << 0xFF << 0xFF;
        QTest::newRow("0x without digits")
            << QStringLiteral("0xzzzzzz") << 255 << 255 << 255 << 255;
        QTest::newRow("all blank") << QStringLiteral("        ") << 255 << 255 << 255 << 255;
        QTest::newRow("sign is no digit") << QStringLiteral("-0000001") << 255 << 255 << 255 << 255;
    }
    void parsing()
    {
        QFETCH(QString, text);
        QFETCH(int, red);
        QFETCH(int, green);
        QFETCH(int, blue);
        QFETCH(int, alpha);

        const Color c = Color::fromRGBAString(text);
        QCOMPARE(c.componentCount(), 4);
        QCOMPARE(c.red(), red / 255.0);
        QCOMPARE(c.green(), green / 255.0);
        QCOMPARE(c.blue(), blue / 255.0);
        QCOMPARE(c.opacity(), alpha / 255.0);
    }

    void writing_data()
    {
        QTest::addColumn<Color>("color");
        QTest::addColumn<QString>("text");

        QTest::newRow("orange truncates half")
            << Color::rgb(1.0, 0.5, 0.0) << QStringLiteral("#FF7F00FF");
        QTest::newRow("upper case")
            << Color::rgb(0.0, 122 / 255.0, 1.0, 1.0) << QStringLiteral("#007AFFFF");
        QTest::newRow("just below a step")
            << Color::rgb(0.999, 0.0, 0.0, 0.0) << QStringLiteral("#FE000000");
        QTest::newRow("grey writes white") << Color::grey(0.2, 0.5) << QStringLiteral("#FFFFFFFF");
        QTest::newRow("no components") << Color() << QStringLiteral("#FFFFFFFF");
        // No clamping: extended-range channels write as wider numbers.
        QTest::newRow("above range")
            << Color::rgb(2.0, 0.0, 0.0, 1.0) << QStringLiteral("#1FE0000FF");
        QTest::newRow("below range")
            << Color::rgb(-0.5, 0.0, 0.0, 1.0) << QStringLiteral("#FFFFFF810000FF");
    }
    void writing()
    {
        QFETCH(Color, color);
        QFETCH(QString, text);
        QCOMPARE(color.toRGBAString(), text);
    }

    void writeThenReadCanLoseOneStep()
    {
        const Color read = Color::fromRGBAString(Color::rgb(1.0, 0.5, 0.25, 0.75).toRGBAString());
        QCOMPARE(read.toRGBAString(), QStringLiteral("#FF7F3FBF"));
        QCOMPARE(read.green(), 127 / 255.0);
    }

    void qColorConversion_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("opaque red") << QStringLiteral("#ff0000ff");
        QTest::newRow("translucent") << QStringLiteral("#00ff0060");
        QTest::newRow("transparent") << QStringLiteral("#00000000");
        QTest::newRow("glow") << QStringLiteral("#007AFFff");
    }
    void qColorConversion()
    {
        QFETCH(QString, text);
        const QColor q = Color::fromRGBAString(text).toQColor();
        QVERIFY(q.isValid());
        // 8-bit channels survive the trip through QColor unchanged.
        QCOMPARE(q.name(QColor::HexArgb).mid(3) + q.name(QColor::HexArgb).mid(1, 2),
                 text.mid(1).toLower());
        QCOMPARE(Color::fromQColor(q).toRGBAString(), text.toUpper());
    }

    void invalidQColorHasNoComponents()
    {
        QCOMPARE(Color::fromQColor(QColor()).componentCount(), 0);
        QCOMPARE(Color::fromQColor(QColor()).toRGBAString(), QStringLiteral("#FFFFFFFF"));
        QVERIFY(!Color().toQColor().isValid());
    }

    void extendedChannelsSurviveQColor()
    {
        const QColor q = Color::rgb(1.5, 0.0, 0.0, 1.0).toQColor();
        QVERIFY(q.isValid());
        QCOMPARE(q.spec(), QColor::ExtendedRgb);
        QCOMPARE(Color::fromQColor(q).red(), 1.5);
    }
};

QTEST_APPLESS_MAIN(tst_Color)
#include "tst_Color.moc"
