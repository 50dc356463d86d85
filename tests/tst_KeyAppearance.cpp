#include "overlay/Color.h"
#include "overlay/KeyAppearance.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QColor colour(const char *text)
{
    return Color::fromRGBAString(QString::fromLatin1(text)).toQColor();
}

} // namespace

// How one key cap's look is resolved from the settings and the chosen built-in style.
class tst_KeyAppearance final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    const KeyPress m_key = KeyPress::make(QStringLiteral("K"), 40, KeyCategory::Kind::letter);

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
        m_settings = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf")));
    }

    void defaultLook()
    {
        const KeyAppearanceSnapshot s = resolveKeyAppearance(m_key, 1.5, *m_settings);
        QCOMPARE(s.text, QStringLiteral("K"));
        QCOMPARE(s.fontName, QStringLiteral("SF Pro Display"));
        QCOMPARE(s.sizeMultiplier, 1.5);
        QCOMPARE(s.textColor, colour("#000000ff"));
        QCOMPARE(s.backgroundColor, colour("#ffffffff"));
        QCOMPARE(s.borderColor, colour("#ccccccff"));
        QCOMPARE(s.borderWidth, 1.0);
        QCOMPARE(s.cornerRadius, 12.0);
        QCOMPARE(s.shadowEnabled, true);
        QCOMPARE(s.shadowColor, colour("#00000040"));
        QCOMPARE(s.shadowRadius, 4.0);
        QCOMPARE(s.shadowYOffset, 2.0);
        QCOMPARE(s.glowEnabled, false);
        QCOMPARE(s.glowColor, colour("#007AFFff"));
        QCOMPARE(s.glowRadius, 0.0);
        QCOMPARE(s.glowLineWidth, 0.0);
        QCOMPARE(s.glowOpacity, 0.0);
    }

    void storedValuesAndStyleFallbacks_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("expected");

        const QVariant empty = QString();
        QTest::newRow("gaming: empty text colour")
            << "gaming"
            << "keyTextColor" << empty << "textColor" << QVariant(colour("#00ff00ff"));
        QTest::newRow("gaming: border width 0")
            << "gaming"
            << "keyBorderWidth" << QVariant(0.0) << "borderWidth" << QVariant(2.0);
        QTest::newRow("minimal: border width 0")
            << "minimal"
            << "keyBorderWidth" << QVariant(0.0) << "borderWidth" << QVariant(0.0);
        QTest::newRow("classic: tiny width kept")
            << "classic"
            << "keyBorderWidth" << QVariant(1e-9) << "borderWidth" << QVariant(1e-9);
        QTest::newRow("unknown style reads modern")
            << "Modern"
            << "keyBorderWidth" << QVariant(0.0) << "borderWidth" << QVariant(1.0);
        QTest::newRow("neon: empty glow")
            << "neon"
            << "keyGlowColor" << empty << "glowColor" << QVariant(colour("#ff00ffff"));
        QTest::newRow("classic: empty shadow")
            << "classic"
            << "keyShadowColor" << empty << "shadowColor" << QVariant(colour("#00000030"));
        QTest::newRow("neon: empty background")
            << "neon"
            << "keyBackgroundColor" << empty << "backgroundColor" << QVariant(colour("#1a1a1aff"));
        QTest::newRow("minimal: empty border")
            << "minimal"
            << "keyBorderColor" << empty << "borderColor" << QVariant(colour("#00000000"));
        // Only text without any character counts as empty; a blank is unreadable, hence white.
        QTest::newRow("gaming: blank text colour")
            << "gaming"
            << "keyTextColor" << QVariant(QStringLiteral(" ")) << "textColor"
            << QVariant(colour("#ffffffff"));
        // The stored look wins over the style it was derived from.
        QTest::newRow("gaming: stored text colour")
            << "gaming"
            << "keyTextColor" << QVariant(QStringLiteral("#ff000080")) << "textColor"
            << QVariant(colour("#ff000080"));
        QTest::newRow("neon: empty font has no fallback")
            << "neon"
            << "keyFont" << empty << "fontName" << QVariant(QString());
        QTest::newRow("corner radius has no fallback")
            << "neon"
            << "keyCornerRadius" << QVariant(0.0) << "cornerRadius" << QVariant(0.0);
    }
    void storedValuesAndStyleFallbacks()
    {
        QFETCH(QString, style);
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        QFETCH(QString, field);
        QFETCH(QVariant, expected);
        m_settings->setRawValue(QStringLiteral("keyStyle"), style);
        m_settings->setRawValue(key, stored);

        const KeyAppearanceSnapshot s = resolveKeyAppearance(m_key, 2.0, *m_settings);
        const QHash<QString, QVariant> fields{
            {QStringLiteral("textColor"), s.textColor},
            {QStringLiteral("backgroundColor"), s.backgroundColor},
            {QStringLiteral("borderColor"), s.borderColor},
            {QStringLiteral("shadowColor"), s.shadowColor},
            {QStringLiteral("glowColor"), s.glowColor},
            {QStringLiteral("borderWidth"), s.borderWidth},
            {QStringLiteral("cornerRadius"), s.cornerRadius},
            {QStringLiteral("fontName"), s.fontName},
        };
        QVERIFY(fields.contains(field));
        QCOMPARE(fields.value(field), expected);
    }

    void disabledEffectsHaveNoSize_data()
    {
        QTest::addColumn<bool>("shadow");
        QTest::addColumn<bool>("glow");
        QTest::newRow("both off") << false << false;
        QTest::newRow("shadow only") << true << false;
        QTest::newRow("glow only") << false << true;
        QTest::newRow("both on") << true << true;
    }
    void disabledEffectsHaveNoSize()
    {
        QFETCH(bool, shadow);
        QFETCH(bool, glow);
        m_settings->setValue(AppSettings::keyShadowEnabled, shadow);
        m_settings->setValue(AppSettings::keyShadowRadius, 9.0);
        m_settings->setValue(AppSettings::keyGlowEnabled, glow);
        m_settings->setValue(AppSettings::keyGlowRadius, 11.0);

        const KeyAppearanceSnapshot s = resolveKeyAppearance(m_key, 1.0, *m_settings);
        QCOMPARE(s.shadowEnabled, shadow);
        QCOMPARE(s.shadowRadius, shadow ? 9.0 : 0.0);
        QCOMPARE(s.shadowYOffset, 2.0);
        QCOMPARE(s.glowEnabled, glow);
        QCOMPARE(s.glowRadius, glow ? 11.0 : 0.0);
        QCOMPARE(s.glowLineWidth, glow ? 2.0 : 0.0);
        QCOMPARE(s.glowOpacity, glow ? 0.6 : 0.0);
        // The colours stay whatever the switches say.
        QCOMPARE(s.shadowColor, colour("#00000040"));
        QCOMPARE(s.glowColor, colour("#007AFFff"));
    }
};

QTEST_APPLESS_MAIN(tst_KeyAppearance)
#include "tst_KeyAppearance.moc"
