#include "settings/AppSettings.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/SettingsStore.h"
#include "settings/StylePresetActions.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using KeyStyle = AppSettings::KeyStyle;
using KeyAnimationStyle = AppSettings::KeyAnimationStyle;
using Look = AppearanceSettingsSnapshot;
using Preset = CustomKeyStylePreset;
using Presets = QList<Preset>;

// Built-in styles, saved presets and what the style tiles do with them.
class tst_StylePresets final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    const QString m_path = m_dir.filePath(QStringLiteral("settings.conf"));
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
    template <typename... T> static void row(const char *name, const T &...values)
    {
        (QTest::newRow(name) << ... << values);
    }
    Look look() const { return Look::fromSettings(*m_settings); }
    Preset save(const QString &name) { return m_actions->saveCurrentLookAsPreset(name); }

private slots:
    void init()
    {
        QFile::remove(m_path);
        reopen();
    }

    void modernIsTheDefaultLookButForItsAnimation()
    {
        Look defaults = look();
        QCOMPARE(defaults.keyAnimationStyleRawValue, QStringLiteral("fadeIn"));
        defaults.keyAnimationStyleRawValue = QStringLiteral("bounce");
        QVERIFY(defaults == StylePresetActions::snapshotOf(KeyStyle::modern));
    }

    void presetNames_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        row("long, blanks around", "   My very long preset name  ", "My very lo");
        row("cut ends in a blank", "abcdefghi jkl", "abcdefghi");
        row("exactly ten", "0123456789", "0123456789");
        row("empty", "", "Preset");
        // Characters as a reader counts them: an accent or a flag is never cut in half.
        row("combining accents", QStringLiteral("e\u0301").repeated(12),
            QStringLiteral("e\u0301").repeated(10));
        row("flags", "🇩🇪🇫🇷🇮🇹🇪🇸🇵🇹🇳🇱🇧🇪🇦🇹🇨🇭🇩🇰🇸🇪", "🇩🇪🇫🇷🇮🇹🇪🇸🇵🇹🇳🇱🇧🇪🇦🇹🇨🇭🇩🇰");
    }
    void presetNames()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        QCOMPARE(save(typed).name, stored);
        reopen();
        QCOMPARE(m_presets->presets().size(), 1);
        QCOMPARE(m_presets->presets().first().name, stored);
    }

    void savedPresetsLoadExactlyAndTheLastIsSelected()
    {
        m_actions->applyBuiltInStyle(KeyStyle::gaming);
        Presets saved;
        // Any double, even beyond what the settings read, goes through the file unchanged.
        for (const double opacity : {2.0000000000000004, 5e-324, 1.7976931348623157e308}) {
            Look extreme = look();
            extreme.keyOpacity = opacity;
            saved << Preset{QUuid::createUuid(), QStringLiteral("Same"), extreme};
            m_presets->addPreset(saved.last());
        }
        for (const double opacity : {0.1, 1.0 / 3.0}) {
            m_settings->setValue(AppSettings::keyOpacity, opacity);
            saved << save(QStringLiteral("Same"));
            QCOMPARE(saved.last().snapshot, look());
        }
        QVERIFY(saved.at(3).id != saved.at(4).id);
        QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID),
                 saved.last().id.toString(QUuid::WithoutBraces).toUpper());
        reopen();
        // Doubles included, bit for bit.
        QCOMPARE(m_presets->presets(), saved);
        QVERIFY(m_actions->isCustomPresetSelected(saved.last().id));
        QVERIFY(!m_actions->isCustomPresetSelected(saved.first().id));
        m_settings->setValue(AppSettings::selectedCustomPresetID,
                             Preset::uuidText(saved.first().id).toLower());
        QVERIFY(m_actions->isCustomPresetSelected(saved.first().id));
        QVERIFY(!m_actions->isBuiltInStyleSelected(KeyStyle::gaming));
    }

    void brokenStoredListLoadsEmptyIsSaidAndKept_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("problem");
        QByteArray good = *CustomKeyStylePresetStore::encode({{QUuid::createUuid(), "Good", {}}});
        good = good.mid(1).chopped(1); // the one entry
        const auto broken = [&](const char *from, const char *to) {
            const QByteArray bad = QByteArray(good).replace(from, to);
            return bad == good ? QByteArray() : '[' + good + ',' + bad + ']';
        };
        const QString second =
            QStringLiteral("is not valid: entry 2 has a missing or unreadable field");
        row("one lacks keyGlowRadius", broken(",\"keyGlowRadius\":0", ""), second);
        row("number as text", broken("\"keySize\":0", "\"keySize\":\"0\""), second);
        row("flag as number", broken("\"keyGlowEnabled\":false", "\"keyGlowEnabled\":0"), second);
        row("id is no UUID", broken("\"id\":\"", "\"id\":\"X"), second);
        row("malformed", QByteArray("[{\"id\":"),
            QStringLiteral("is not valid JSON (unterminated object at offset 7)"));
        row("nested 100,000 deep", QByteArray(100000, '[') + QByteArray(100000, ']'),
            QStringLiteral("is not valid JSON (too deeply nested document at offset 1025)"));
        row("not an array", good, QStringLiteral("is not a JSON array"));
    }
    void brokenStoredListLoadsEmptyIsSaidAndKept()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, problem);
        QVERIFY(!data.isEmpty());
        m_settings->setValue(AppSettings::customKeyStylePresets, data);
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable("vantrel: " + m_path + ": customKeyStylePresets " +
                                        problem + "; ignoring it"));
        reopen();
        QVERIFY(m_presets->presets().isEmpty());
        QCOMPARE(m_settings->value(AppSettings::customKeyStylePresets), data);
        // The next save replaces the unreadable data.
        const Preset added = save(QStringLiteral("New"));
        reopen();
        QCOMPARE(m_presets->presets(), Presets{added});
    }

    void applyingAPresetThenAStyle()
    {
        const std::pair<QString, KeyAnimationStyle> animations[] = {
            {"wobble", KeyAnimationStyle::none},
            {"scaleIn", KeyAnimationStyle::scaleIn},
            {"FadeIn", KeyAnimationStyle::none}};
        m_actions->applyBuiltInStyle(KeyStyle::neon);
        for (const auto &[text, applied] : animations) {
            Look preset = StylePresetActions::snapshotOf(KeyStyle::classic);
            preset.keyAnimationStyleRawValue = text;
            const Preset p{QUuid::createUuid(), "P", preset};
            m_presets->addPreset(p);
            m_actions->applyCustomPreset(p);
            QCOMPARE(m_settings->value(AppSettings::keyAnimationStyle), applied);
            QCOMPARE(m_settings->value(AppSettings::keyStyle), KeyStyle::neon);
            Look now = look();
            now.keyAnimationStyleRawValue = text;
            QVERIFY(now == preset);
            QVERIFY(m_actions->isCustomPresetSelected(p.id));
            QVERIFY(!m_actions->isBuiltInStyleSelected(KeyStyle::neon));
        }
        // Choosing a style deselects the preset and never touches saved presets.
        m_settings->setValue(AppSettings::keyTextColor, QString());
        m_actions->applyBuiltInStyle(KeyStyle::gaming);
        QVERIFY(look() == StylePresetActions::snapshotOf(KeyStyle::gaming));
        QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID), QString());
        QVERIFY(m_actions->isBuiltInStyleSelected(KeyStyle::gaming));
        QCOMPARE(m_presets->presets().size(), 3);
    }

    void deletingPresets()
    {
        m_actions->applyBuiltInStyle(KeyStyle::neon);
        const Preset doomed = save(QStringLiteral("Doomed"));
        const Preset other = save(QStringLiteral("Other"));
        m_actions->applyCustomPreset(doomed);
        const Look before = look();
        QSignalSpy written(m_settings.get(), &SettingsStore::valueChanged);
        QSignalSpy changed(m_presets.get(), &CustomKeyStylePresetStore::presetsChanged);
        m_actions->deletePreset(QUuid::createUuid());
        QCOMPARE(written.count() + changed.count(), 0);
        m_actions->deletePreset(other.id);
        QCOMPARE(changed.count(), 1);
        QVERIFY(look() == before);
        QVERIFY(m_actions->isCustomPresetSelected(doomed.id));
        m_actions->deletePreset(doomed.id);
        reopen();
        QVERIFY(m_presets->presets().isEmpty());
        // The preset in use goes back to modern, not to the neon style stored last.
        QVERIFY(look() == StylePresetActions::snapshotOf(KeyStyle::modern));
        QCOMPARE(m_settings->value(AppSettings::keyStyle), KeyStyle::modern);
        QCOMPARE(m_settings->value(AppSettings::selectedCustomPresetID), QString());
    }
};

QTEST_GUILESS_MAIN(tst_StylePresets)
#include "tst_StylePresets.moc"
