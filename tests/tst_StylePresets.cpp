#include "settings/AppSettings.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/KeyStylePreset.h"
#include "settings/SettingsStore.h"
#include "settings/StylePresetActions.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <bit>
#include <memory>

using KeyStyle = AppSettings::KeyStyle;
using KeyAnimationStyle = AppSettings::KeyAnimationStyle;

Q_DECLARE_METATYPE(KeyStyle)

namespace {

// The look a built-in style leaves in the settings.
AppearanceSettingsSnapshot snapshotOf(const KeyStylePreset &p)
{
    return {p.keySize,         p.keySpacing,
            p.keyOpacity,      AppSettings::rawValue(p.keyAnimationStyle),
            p.fontName,        p.textColor,
            p.backgroundColor, p.borderColor,
            p.borderWidth,     p.cornerRadius,
            p.shadowEnabled,   p.shadowRadius,
            p.shadowColor,     p.glowEnabled,
            p.glowColor,       p.glowRadius};
}

} // namespace

// Built-in styles, saved presets and what the style tiles do with them.
class tst_StylePresets final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_path;
    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<CustomKeyStylePresetStore> m_presets;
    std::unique_ptr<StylePresetActions> m_actions;

    // A restart: everything is read again from the file.
    void reopen()
    {
        m_actions.reset();
        m_presets.reset();
        m_settings = std::make_unique<SettingsStore>(m_path);
        m_presets = std::make_unique<CustomKeyStylePresetStore>(*m_settings);
        m_actions = std::make_unique<StylePresetActions>(*m_settings, *m_presets);
    }
    QByteArray storedPresets() const
    {
        return SettingsStore(m_path).value(AppSettings::customKeyStylePresets);
    }

private slots:
    void init()
    {
        m_path = m_dir.filePath(QStringLiteral("settings.conf"));
        QFile::remove(m_path);
        reopen();
    }

    void builtInStyleSpotChecks()
    {
        const KeyStylePreset minimal = AppSettings::getStylePreset(KeyStyle::minimal);
        QCOMPARE(minimal.borderColor, QStringLiteral("#00000000"));
        QCOMPARE(minimal.borderWidth, 0.0);
        QCOMPARE(minimal.keySize, 1.6);
        QCOMPARE(minimal.keyAnimationStyle, KeyAnimationStyle::none);
        const KeyStylePreset gaming = AppSettings::getStylePreset(KeyStyle::gaming);
        QCOMPARE(gaming.fontName, QStringLiteral("Menlo"));
        QCOMPARE(gaming.shadowColor, QStringLiteral("#00ff0060"));
        QCOMPARE(gaming.glowRadius, 10.0);
        const KeyStylePreset neon = AppSettings::getStylePreset(KeyStyle::neon);
        QCOMPARE(neon.cornerRadius, 15.0);
        QCOMPARE(neon.keyAnimationStyle, KeyAnimationStyle::slideIn);
        QCOMPARE(neon.backgroundColor, QStringLiteral("#1a1a1aff"));
        const KeyStylePreset classic = AppSettings::getStylePreset(KeyStyle::classic);
        QCOMPARE(classic.glowColor, QStringLiteral("#33333300"));
        QCOMPARE(classic.textColor, QStringLiteral("#333333ff"));
        QCOMPARE(classic.keySpacing, 18.0);
    }

    void modernIsTheDefaultLookButForItsAnimation()
    {
        AppearanceSettingsSnapshot defaults = AppearanceSettingsSnapshot::fromSettings(*m_settings);
        const AppearanceSettingsSnapshot modern =
            snapshotOf(AppSettings::getStylePreset(KeyStyle::modern));
        QCOMPARE(defaults.keyAnimationStyleRawValue, QStringLiteral("fadeIn"));
        QCOMPARE(modern.keyAnimationStyleRawValue, QStringLiteral("bounce"));
        defaults.keyAnimationStyleRawValue = modern.keyAnimationStyleRawValue;
        QVERIFY(defaults == modern);
    }

    void presetNames_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("long, blanks around")
            << QStringLiteral("   My very long preset name  ") << QStringLiteral("My very lo");
        QTest::newRow("cut ends in a blank")
            << QStringLiteral("abcdefghi jkl") << QStringLiteral("abcdefghi");
        QTest::newRow("exactly ten")
            << QStringLiteral("0123456789") << QStringLiteral("0123456789");
        QTest::newRow("short") << QStringLiteral("\tNeon 2\n") << QStringLiteral("Neon 2");
        QTest::newRow("empty") << QString() << QStringLiteral("Preset");
        QTest::newRow("all blank") << QStringLiteral(" \t\n\r ") << QStringLiteral("Preset");
        // Characters as a reader counts them: an accent or a flag is never cut in half.
        QTest::newRow("combining accents") << QString(QStringLiteral("e\u0301")).repeated(12)
                                           << QString(QStringLiteral("e\u0301")).repeated(10);
        QTest::newRow("flags") << QStringLiteral("🇩🇪🇫🇷🇮🇹🇪🇸🇵🇹🇳🇱🇧🇪🇦🇹🇨🇭🇩🇰🇸🇪")
                               << QStringLiteral("🇩🇪🇫🇷🇮🇹🇪🇸🇵🇹🇳🇱🇧🇪🇦🇹🇨🇭🇩🇰");
    }
    void presetNames()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QCOMPARE(m_actions->saveCurrentLookAsPreset(typed).name, stored);
        reopen();
        QCOMPARE(m_presets->presets().size(), 1);
        QCOMPARE(m_presets->presets().first().name, stored);
    }

    void savingKeepsTheCurrentLookAndSelectsIt()
    {
        m_actions->applyBuiltInStyle(KeyStyle::gaming);
        m_settings->setValue(AppSettings::keyTextColor, QStringLiteral("#FF0000FF"));
        QSignalSpy changed(m_presets.get(), &CustomKeyStylePresetStore::presetsChanged);

        const CustomKeyStylePreset first =
            m_actions->saveCurrentLookAsPreset(QStringLiteral("Red"));
        const CustomKeyStylePreset second =
            m_actions->saveCurrentLookAsPreset(QStringLiteral("Red"));

        QCOMPARE(changed.count(), 2);
        QVERIFY(first.id != second.id);
        QCOMPARE(first.name, second.name);
        QCOMPARE(first.snapshot.keyTextColor, QStringLiteral("#FF0000FF"));
        QCOMPARE(first.snapshot.keyFont, QStringLiteral("Menlo"));
        QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID),
                 second.id.toString(QUuid::WithoutBraces).toUpper());

        reopen();
        QCOMPARE(m_presets->presets(), (QList<CustomKeyStylePreset>{first, second}));
        QVERIFY(m_actions->isCustomPresetSelected(second.id));
        QVERIFY(!m_actions->isCustomPresetSelected(first.id));
    }

    void storedFormIsCompactAndOrdered()
    {
        const CustomKeyStylePreset preset{
            QUuid(QStringLiteral("{0f8fad5b-d9cb-469f-a165-70867728950e}")),
            QStringLiteral("A \"b\""), AppearanceSettingsSnapshot::fromSettings(*m_settings)};
        m_presets->addPreset(preset);
        QCOMPARE(
            storedPresets(),
            QByteArray(
                "[{\"id\":\"0F8FAD5B-D9CB-469F-A165-70867728950E\",\"name\":\"A \\\"b\\\"\","
                "\"snapshot\":{\"keySize\":2,\"keySpacing\":20,\"keyOpacity\":0.9,"
                "\"keyAnimationStyleRawValue\":\"fadeIn\",\"keyFont\":\"SF Pro Display\","
                "\"keyTextColor\":\"#000000ff\",\"keyBackgroundColor\":\"#ffffffff\","
                "\"keyBorderColor\":\"#ccccccff\",\"keyBorderWidth\":1,\"keyCornerRadius\":12,"
                "\"keyShadowEnabled\":true,\"keyShadowRadius\":4,\"keyShadowColor\":\"#00000040\","
                "\"keyGlowEnabled\":false,\"keyGlowColor\":\"#007AFFff\",\"keyGlowRadius\":8}}]"));
    }

    void doublesRoundTripExactly_data()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("0.1") << 0.1;
        QTest::newRow("1/3") << 1.0 / 3.0;
        QTest::newRow("next after 2") << 2.0000000000000004;
        QTest::newRow("0.9") << 0.9;
        QTest::newRow("tiny") << 5e-324;
        QTest::newRow("huge") << 1.7976931348623157e308;
        QTest::newRow("negative") << -123.456789012345678;
        QTest::newRow("2^53 + 2") << 9007199254740994.0;
    }
    void doublesRoundTripExactly()
    {
        QFETCH(double, value);
        m_settings->setValue(AppSettings::keyOpacity, value);
        m_actions->saveCurrentLookAsPreset(QStringLiteral("x"));
        reopen();
        QCOMPARE(m_presets->presets().size(), 1);
        // Bit for bit, not within a tolerance.
        QCOMPARE(std::bit_cast<quint64>(m_presets->presets().first().snapshot.keyOpacity),
                 std::bit_cast<quint64>(value));
    }

    void brokenStoredListLoadsEmptyAndIsKept_data()
    {
        QTest::addColumn<QByteArray>("data");
        const CustomKeyStylePreset good{QUuid::createUuid(), QStringLiteral("Good"),
                                        AppearanceSettingsSnapshot{}};
        const QByteArray goodJson =
            CustomKeyStylePresetStore::encode({good}).value().mid(1).chopped(1);
        QByteArray noGlowRadius = goodJson;
        noGlowRadius.replace(",\"keyGlowRadius\":0", "");
        QVERIFY(noGlowRadius != goodJson);

        QTest::newRow("one lacks keyGlowRadius") << '[' + goodJson + ',' + noGlowRadius + ']';
        QTest::newRow("malformed") << QByteArray("[{\"id\":");
        QTest::newRow("not an array") << goodJson;
        QTest::newRow("number as text")
            << '[' + QByteArray(goodJson).replace("\"keySize\":0", "\"keySize\":\"0\"") + ']';
        QTest::newRow("flag as number")
            << '[' +
                   QByteArray(goodJson).replace("\"keyGlowEnabled\":false",
                                                "\"keyGlowEnabled\":0") +
                   ']';
        QTest::newRow("id is no UUID")
            << '[' + QByteArray(goodJson).replace("\"id\":\"", "\"id\":\"X") + ']';
        QTest::newRow("id in braces") << '[' +
                                             QByteArray(goodJson)
                                                 .replace("\"id\":\"", "\"id\":\"{")
                                                 .replace("\",\"name\"", "}\",\"name\"") +
                                             ']';
        QTest::newRow("no snapshot")
            << QByteArray("[{\"id\":\"0F8FAD5B-D9CB-469F-A165-70867728950E\",\"name\":\"n\"}]");
    }
    void brokenStoredListLoadsEmptyAndIsKept()
    {
        QFETCH(QByteArray, data);
        m_settings->setValue(AppSettings::customKeyStylePresets, data);
        reopen();
        QVERIFY(m_presets->presets().isEmpty());
        QCOMPARE(storedPresets(), data);

        // The next save replaces the unreadable data.
        const CustomKeyStylePreset added =
            m_actions->saveCurrentLookAsPreset(QStringLiteral("New"));
        reopen();
        QCOMPARE(m_presets->presets(), QList<CustomKeyStylePreset>{added});
    }

    void removingAnUnknownIdWritesNothing()
    {
        const CustomKeyStylePreset kept =
            m_actions->saveCurrentLookAsPreset(QStringLiteral("Kept"));
        QSignalSpy written(m_settings.get(), &SettingsStore::valueChanged);
        QSignalSpy changed(m_presets.get(), &CustomKeyStylePresetStore::presetsChanged);
        m_presets->removePreset(QUuid::createUuid());
        m_actions->deletePreset(QUuid::createUuid());
        QCOMPARE(written.count(), 0);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(m_presets->presets(), QList<CustomKeyStylePreset>{kept});

        m_presets->removePreset(kept.id);
        QCOMPARE(written.count(), 1);
        QCOMPARE(changed.count(), 1);
        reopen();
        QVERIFY(m_presets->presets().isEmpty());
    }

    void applyingAPreset_data()
    {
        QTest::addColumn<QString>("animation");
        QTest::addColumn<KeyAnimationStyle>("applied");
        QTest::newRow("known") << QStringLiteral("scaleIn") << KeyAnimationStyle::scaleIn;
        QTest::newRow("unknown word") << QStringLiteral("wobble") << KeyAnimationStyle::none;
        QTest::newRow("wrong case") << QStringLiteral("FadeIn") << KeyAnimationStyle::none;
        QTest::newRow("empty") << QString() << KeyAnimationStyle::none;
    }
    void applyingAPreset()
    {
        QFETCH(QString, animation);
        QFETCH(KeyAnimationStyle, applied);
        m_actions->applyBuiltInStyle(KeyStyle::neon);
        AppearanceSettingsSnapshot look =
            snapshotOf(AppSettings::getStylePreset(KeyStyle::classic));
        look.keyAnimationStyleRawValue = animation;
        look.keyTextColor = QStringLiteral("#12345678");
        const CustomKeyStylePreset preset{QUuid::createUuid(), QStringLiteral("P"), look};
        m_presets->addPreset(preset);

        m_actions->applyCustomPreset(preset);

        QCOMPARE(m_settings->value(AppSettings::keyAnimationStyle), applied);
        QCOMPARE(m_settings->value(AppSettings::keyStyle), KeyStyle::neon);
        QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID),
                 CustomKeyStylePreset::uuidText(preset.id));
        AppearanceSettingsSnapshot now = AppearanceSettingsSnapshot::fromSettings(*m_settings);
        QCOMPARE(now.keyTextColor, QStringLiteral("#12345678"));
        now.keyAnimationStyleRawValue = look.keyAnimationStyleRawValue;
        QVERIFY(now == look);
        QVERIFY(m_actions->isCustomPresetSelected(preset.id));
        QVERIFY(!m_actions->isBuiltInStyleSelected(KeyStyle::neon));
    }

    void applyingABuiltInStyle_data()
    {
        QTest::addColumn<KeyStyle>("style");
        for (const KeyStyle style : AppSettings::allCases<KeyStyle>())
            QTest::newRow(qPrintable(AppSettings::rawValue(style))) << style;
    }
    void applyingABuiltInStyle()
    {
        QFETCH(KeyStyle, style);
        const CustomKeyStylePreset preset = m_actions->saveCurrentLookAsPreset(QStringLiteral("P"));
        m_settings->setValue(AppSettings::keyTextColor, QString());

        m_actions->applyBuiltInStyle(style);

        QCOMPARE(m_settings->value(AppSettings::keyStyle), style);
        QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID), QString());
        QVERIFY(AppearanceSettingsSnapshot::fromSettings(*m_settings) ==
                snapshotOf(AppSettings::getStylePreset(style)));
        QVERIFY(m_actions->isBuiltInStyleSelected(style));
        QVERIFY(!m_actions->isCustomPresetSelected(preset.id));
        // Saved presets are never touched by choosing a style.
        QCOMPARE(m_presets->presets(), QList<CustomKeyStylePreset>{preset});
    }

    void deletingThePresetInUse_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::newRow("selected one") << true;
        QTest::newRow("another one") << false;
    }
    void deletingThePresetInUse()
    {
        QFETCH(bool, selected);
        m_actions->applyBuiltInStyle(KeyStyle::neon);
        const CustomKeyStylePreset doomed =
            m_actions->saveCurrentLookAsPreset(QStringLiteral("Doomed"));
        const CustomKeyStylePreset other =
            m_actions->saveCurrentLookAsPreset(QStringLiteral("Other"));
        if (selected)
            m_actions->applyCustomPreset(doomed);
        const AppearanceSettingsSnapshot before =
            AppearanceSettingsSnapshot::fromSettings(*m_settings);

        m_actions->deletePreset(doomed.id);

        QCOMPARE(m_presets->presets(), QList<CustomKeyStylePreset>{other});
        const AppearanceSettingsSnapshot after =
            AppearanceSettingsSnapshot::fromSettings(*m_settings);
        if (selected) {
            // Back to modern, not to the neon style stored last.
            QVERIFY(after == snapshotOf(AppSettings::getStylePreset(KeyStyle::modern)));
            QCOMPARE(m_settings->value(AppSettings::keyStyle), KeyStyle::modern);
            QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID), QString());
        } else {
            QVERIFY(after == before);
            QCOMPARE(m_settings->value(AppSettings::keyStyle), KeyStyle::neon);
            QVERIFY(m_actions->isCustomPresetSelected(other.id));
        }
    }

    void markedTile_data()
    {
        QTest::addColumn<QString>("selectedID"); // "<preset>" stands for the saved preset's id
        QTest::addColumn<QString>("keyStyle");
        QTest::addColumn<bool>("gamingMarked");
        QTest::addColumn<bool>("presetMarked");
        QTest::newRow("no preset, gaming") << QString() << "gaming" << true << false;
        QTest::newRow("no preset, neon") << QString() << "neon" << false << false;
        QTest::newRow("preset id") << "<preset>"
                                   << "gaming" << false << true;
        QTest::newRow("preset id, lower case") << "<preset-lower>"
                                               << "gaming" << false << true;
        QTest::newRow("id of a deleted preset") << "0F8FAD5B-D9CB-469F-A165-70867728950E"
                                                << "gaming" << false << false;
        QTest::newRow("not an id") << "garbage"
                                   << "gaming" << true << false;
        QTest::newRow("id in braces") << "{0F8FAD5B-D9CB-469F-A165-70867728950E}"
                                      << "gaming" << true << false;
    }
    void markedTile()
    {
        QFETCH(QString, selectedID);
        QFETCH(QString, keyStyle);
        QFETCH(bool, gamingMarked);
        QFETCH(bool, presetMarked);
        const CustomKeyStylePreset preset = m_actions->saveCurrentLookAsPreset(QStringLiteral("P"));
        const QString presetID = CustomKeyStylePreset::uuidText(preset.id);
        selectedID.replace(QStringLiteral("<preset-lower>"), presetID.toLower());
        selectedID.replace(QStringLiteral("<preset>"), presetID);
        m_settings->setValue(AppSettings::selectedCustomPresetID, selectedID);
        m_settings->setRawValue(QStringLiteral("keyStyle"), keyStyle);

        QCOMPARE(m_actions->isBuiltInStyleSelected(KeyStyle::gaming), gamingMarked);
        QCOMPARE(m_actions->isCustomPresetSelected(preset.id), presetMarked);
        QVERIFY(!m_actions->isBuiltInStyleSelected(KeyStyle::classic));
    }
};

QTEST_GUILESS_MAIN(tst_StylePresets)
#include "tst_StylePresets.moc"
