#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QTemporaryDir>
#include <QTest>

using KeyPosition = AppSettings::KeyPosition;
using KeyStyle = AppSettings::KeyStyle;
using KeyAnimationStyle = AppSettings::KeyAnimationStyle;

class tst_AppSettings final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;

private slots:
    void init() { m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf"))); }
    void cleanup()
    {
        m_store.reset();
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
    }

    void freshStoreYieldsTheDefaults()
    {
        const SettingsStore &s = *m_store;
        QCOMPARE(s.value(AppSettings::isVantrelEnabled), true);
        QCOMPARE(s.value(AppSettings::keyPosition), KeyPosition::bottomCenter);
        QCOMPARE(s.value(AppSettings::keyDisplayDuration), 1.5);
        QCOMPARE(s.value(AppSettings::keyMaxDisplayCount), 4);
        QCOMPARE(s.value(AppSettings::menuBarIcon), QStringLiteral("MenuBarIcon"));
        QCOMPARE(s.value(AppSettings::showAllKeys), false);
        QCOMPARE(s.value(AppSettings::showModifierKeys), true);
        QCOMPARE(s.value(AppSettings::showFunctionKeys), true);
        QCOMPARE(s.value(AppSettings::showSpecialKeys), true);
        QCOMPARE(s.value(AppSettings::showMouseClicks), false);
        QCOMPARE(s.value(AppSettings::keyStyle), KeyStyle::modern);
        QCOMPARE(s.value(AppSettings::keySize), 2.0);
        QCOMPARE(s.value(AppSettings::keySpacing), 20.0);
        QCOMPARE(s.value(AppSettings::keyCornerRadius), 12.0);
        QCOMPARE(s.value(AppSettings::keyOpacity), 0.9);
        // Deliberately not the "modern" style's bounce.
        QCOMPARE(s.value(AppSettings::keyAnimationStyle), KeyAnimationStyle::fadeIn);
        QCOMPARE(s.value(AppSettings::keyFont), QStringLiteral("SF Pro Display"));
        QCOMPARE(s.value(AppSettings::keyTextColor), QStringLiteral("#000000ff"));
        QCOMPARE(s.value(AppSettings::keyBackgroundColor), QStringLiteral("#ffffffff"));
        QCOMPARE(s.value(AppSettings::keyBorderColor), QStringLiteral("#ccccccff"));
        QCOMPARE(s.value(AppSettings::keyBorderWidth), 1.0);
        QCOMPARE(s.value(AppSettings::keyShadowEnabled), true);
        QCOMPARE(s.value(AppSettings::keyShadowRadius), 4.0);
        QCOMPARE(s.value(AppSettings::keyShadowColor), QStringLiteral("#00000040"));
        QCOMPARE(s.value(AppSettings::keyGlowEnabled), false);
        QCOMPARE(s.value(AppSettings::keyGlowColor), QStringLiteral("#007AFFff"));
        QCOMPARE(s.value(AppSettings::keyGlowRadius), 8.0);
        QCOMPARE(s.value(AppSettings::selectedCustomPresetID), QString());
        QVERIFY(!s.contains(QStringLiteral("customKeyStylePresets")));

        const auto &d = AppSettings::shared();
        QCOMPARE(d.keyAnimationStyle, KeyAnimationStyle::fadeIn);
        QCOMPARE(d.keyGlowColor, QStringLiteral("#007AFFff"));
        QCOMPARE(d.menuBarIconOptions.size(), 10);
        QCOMPARE(d.menuBarIconOptions.first(), QStringLiteral("MenuBarIcon"));
        QCOMPARE(d.menuBarIconOptions.last(), QStringLiteral("character.cursor.ibeam"));
        QCOMPARE(d.customMenuBarIconNames, QSet<QString>{QStringLiteral("MenuBarIcon")});
        QCOMPARE(&AppSettings::shared(), &d);
    }

    void rawValuesRoundTrip_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("known");
        for (const char *t : {"Top Left", "Top Center", "Top Right", "Bottom Left",
                              "Bottom Center", "Bottom Right", "Custom"})
            QTest::newRow(t) << QString::fromLatin1(t) << true;
        QTest::newRow("lower case") << QStringLiteral("top left") << false;
        QTest::newRow("case name") << QStringLiteral("topLeft") << false;
        QTest::newRow("Middle") << QStringLiteral("Middle") << false;
    }
    void rawValuesRoundTrip()
    {
        QFETCH(QString, text);
        QFETCH(bool, known);
        const auto position = AppSettings::fromRawValue<KeyPosition>(text);
        QCOMPARE(position.has_value(), known);
        if (known)
            QCOMPARE(AppSettings::rawValue(*position), text);
    }

    void enumerationTexts()
    {
        QStringList styles, animations;
        for (KeyStyle s : AppSettings::allCases<KeyStyle>())
            styles << AppSettings::rawValue(s);
        for (KeyAnimationStyle a : AppSettings::allCases<KeyAnimationStyle>())
            animations << AppSettings::rawValue(a);
        QCOMPARE(styles.join(u','), QStringLiteral("modern,classic,minimal,gaming,neon"));
        QCOMPARE(animations.join(u','), QStringLiteral("none,fadeIn,scaleIn,slideIn,bounce"));
        QVERIFY(!AppSettings::fromRawValue<KeyStyle>(QStringLiteral("Modern")));
        QVERIFY(!AppSettings::fromRawValue<KeyAnimationStyle>(QStringLiteral("wobble")));
    }

    void unknownEnumerationTextReadsAsDefault()
    {
        m_store->setRawValue(QStringLiteral("keyStyle"), QStringLiteral("Modern"));
        m_store->setRawValue(QStringLiteral("keyAnimationStyle"), QStringLiteral("bounce"));
        m_store->setRawValue(QStringLiteral("keyPosition"), QStringLiteral("Middle"));
        QCOMPARE(m_store->value(AppSettings::keyStyle), KeyStyle::modern);
        QCOMPARE(m_store->value(AppSettings::keyAnimationStyle), KeyAnimationStyle::bounce);
        QCOMPARE(m_store->value(AppSettings::keyPosition), KeyPosition::bottomCenter);
    }

    void presetPositions()
    {
        const auto presets = AppSettings::presets();
        QCOMPARE(presets.size(), 6);
        QVERIFY(!presets.contains(KeyPosition::custom));
        QCOMPARE(presets.first(), KeyPosition::topLeft);
        QCOMPARE(presets.last(), KeyPosition::bottomRight);
        QCOMPARE(AppSettings::symbolName(KeyPosition::custom), QStringLiteral("hand.draw"));
    }

    void resetsDeleteExactlyTheirKeys_data()
    {
        QTest::addColumn<int>("group");
        QTest::newRow("general") << 0;
        QTest::newRow("keyboard") << 1;
        QTest::newRow("appearance") << 2;
    }
    void resetsDeleteExactlyTheirKeys()
    {
        QFETCH(int, group);
        const QStringList groups[] = {AppSettings::generalSettingsKeys(),
                                      AppSettings::keyboardSettingsKeys(),
                                      AppSettings::appearanceSettingsKeys()};
        QStringList all = {QStringLiteral("menuBarIcon"), QStringLiteral("showMouseClicks"),
                           QStringLiteral("customKeyStylePresets"),
                           QStringLiteral("displayConfigurations")};
        for (const QStringList &keys : groups)
            all += keys;
        for (const QString &key : all)
            m_store->setRawValue(key, QStringLiteral("x"));

        if (group == 0)
            AppSettings::resetGeneralSettings(*m_store);
        else if (group == 1)
            AppSettings::resetKeyboardSettings(*m_store);
        else
            AppSettings::resetAppearanceSettings(*m_store);

        for (const QString &key : all)
            QCOMPARE(m_store->contains(key), !groups[group].contains(key));
    }

    void resetGroups()
    {
        QCOMPARE(AppSettings::generalSettingsKeys().size(), 4);
        QCOMPARE(AppSettings::keyboardSettingsKeys().size(), 4);
        QVERIFY(!AppSettings::keyboardSettingsKeys().contains(QStringLiteral("showMouseClicks")));
        QCOMPARE(AppSettings::appearanceSettingsKeys().size(), 18);
        QVERIFY(AppSettings::appearanceSettingsKeys().contains(QStringLiteral("selectedCustomPresetID")));
    }
};

QTEST_GUILESS_MAIN(tst_AppSettings)
#include "tst_AppSettings.moc"
