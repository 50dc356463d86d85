#include "overlay/Color.h"
#include "overlay/KeyAppearance.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

// How one key cap's look is resolved from the settings and the chosen built-in style.
class tst_KeyAppearance final : public QObject {
    Q_OBJECT

    template <typename... T> static void row(const char *name, const T &...values)
    {
        (QTest::newRow(name) << ... << values);
    }

    static QVariant colour(const char *text) { return Color::fromRGBAString(text).toQColor(); }

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    const KeyPress m_key = KeyPress::make(QStringLiteral("K"), 40, KeyCategory::Kind::letter);

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
        m_settings = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf")));
    }

    void storedValuesAndStyleFallbacks_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("expected");
        const QVariant empty = QString();
        row("gaming: empty text colour", "gaming", "keyTextColor", empty, colour("#00ff00ff"));
        row("gaming: border width 0", "gaming", "keyBorderWidth", QVariant(0.0), QVariant(2.0));
        row("minimal: border width 0", "minimal", "keyBorderWidth", QVariant(0.0), QVariant(0.0));
        row("unknown style reads modern", "Modern", "keyBorderWidth", QVariant(0.0), QVariant(1.0));
        row("neon: empty glow", "neon", "keyGlowColor", empty, colour("#ff00ffff"));
        // Only text without any character counts as empty; a blank is unreadable, hence white.
        row("blank text colour", "gaming", "keyTextColor", QVariant(" "), colour("#ffffffff"));
        row("stored colour wins", "gaming", "keyTextColor", QVariant("#ff000080"),
            colour("#ff000080"));
        row("neon: empty font has no fallback", "neon", "keyFont", empty, QVariant(QString()));
    }
    void storedValuesAndStyleFallbacks()
    {
        QFETCH(QString, style);
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        QFETCH(QVariant, expected);
        m_settings->setRawValue(QStringLiteral("keyStyle"), style);
        m_settings->setRawValue(key, stored);
        const KeyAppearanceSnapshot s = resolveKeyAppearance(m_key, 2.0, *m_settings);
        const QHash<QString, QVariant> fields{{"keyTextColor", s.textColor},
                                              {"keyGlowColor", s.glowColor},
                                              {"keyBorderWidth", s.borderWidth},
                                              {"keyFont", s.fontName}};
        QCOMPARE(fields.value(key), expected);
    }

    void disabledEffectsHaveNoSize()
    {
        for (const bool shadow : {true, false}) {
            const bool glow = !shadow;
            m_settings->setValue(AppSettings::keyShadowEnabled, shadow);
            m_settings->setValue(AppSettings::keyShadowRadius, 9.0);
            m_settings->setValue(AppSettings::keyGlowEnabled, glow);
            m_settings->setValue(AppSettings::keyGlowRadius, 11.0);
            const KeyAppearanceSnapshot s = resolveKeyAppearance(m_key, 1.5, *m_settings);
            QCOMPARE(s.shadowRadius, shadow ? 9.0 : 0.0);
            QCOMPARE(s.glowRadius, glow ? 11.0 : 0.0);
            QCOMPARE(s.glowLineWidth, glow ? 2.0 : 0.0);
            QCOMPARE(s.glowOpacity, glow ? 0.6 : 0.0);
            // The colours stay whatever the switches say.
            QCOMPARE(QVariant(s.shadowColor), colour("#00000040"));
            QCOMPARE(QVariant(s.glowColor), colour("#007AFFff"));
        }
    }
};

QTEST_APPLESS_MAIN(tst_KeyAppearance)
#include "tst_KeyAppearance.moc"
