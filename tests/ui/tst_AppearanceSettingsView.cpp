#include "settings/AppSettings.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/SettingsStore.h"
#include "settings/StylePresetActions.h"
#include "ui/AppearanceSettingsView.h"
#include "ui/ColorPickerButton.h"
#include "ui/KeyStylePreview.h"
#include "ui/SavePresetDialog.h"
#include "ui/SettingsForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <memory>

using KeyStyle = AppSettings::KeyStyle;
using Look = AppearanceSettingsSnapshot;

// The Appearance tab over a private settings file: tiles, the save sheet and the live controls.
class tst_AppearanceSettingsView final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    std::unique_ptr<CustomKeyStylePresetStore> m_presets;
    std::unique_ptr<AppearanceSettingsView> m_view;

    // The tiles now in the grid (tiles of removed presets linger hidden until deleted).
    QList<KeyStylePreview *> tiles() const
    {
        QList<KeyStylePreview *> shown;
        for (KeyStylePreview *tile : m_view->findChildren<KeyStylePreview *>())
            if (!tile->isHidden())
                shown.append(tile);
        return shown;
    }
    KeyStylePreview *tile(const QString &label) const
    {
        for (KeyStylePreview *t : tiles())
            if (t->label() == label)
                return t;
        return nullptr;
    }
    QStringList selectedTiles() const
    {
        QStringList labels;
        for (KeyStylePreview *t : tiles())
            if (t->isSelected())
                labels.append(t->label());
        return labels;
    }
    SettingsRow *row(const QString &title) const
    {
        for (SettingsRow *r : m_view->findChildren<SettingsRow *>())
            if (r->titleLabel()->text() == title)
                return r;
        return nullptr;
    }
    void savePreset(const QString &name)
    {
        m_view->presentSavePrompt();
        QTest::keyClicks(m_view->savePrompt()->nameField(), name);
        m_view->savePrompt()->saveButton()->click();
    }
    Look look() const { return m_view->currentAppearanceSnapshot(); }

private slots:
    void init()
    {
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_presets = std::make_unique<CustomKeyStylePresetStore>(*m_store);
        m_view = std::make_unique<AppearanceSettingsView>(*m_store, *m_presets);
    }
    void cleanup()
    {
        m_view.reset();
        m_presets.reset();
        m_store.reset();
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    }

    void gridHoldsStylesThenPresetsThenAddTile()
    {
        savePreset(QStringLiteral("Mine"));
        QStringList labels;
        for (KeyStylePreview *t : tiles())
            labels.append(t->label());
        QCOMPARE(labels, (QStringList{"Modern", "Classic", "Minimal", "Gaming", "Neon", "Mine"}));
    }

    void nameFieldKeepsTenCharacters_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        const QString accents = QStringLiteral("e\u0301").repeated(6); // 12 code units
        QTest::newRow("twelve") << u"abcdefghijkl"_qs << u"abcdefghij"_qs;
        QTest::newRow("ten") << u"abcdefghij"_qs << u"abcdefghij"_qs;
        QTest::newRow("accents count once") << accents << accents;
    }
    void nameFieldKeepsTenCharacters()
    {
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        m_view->presentSavePrompt();
        m_view->savePrompt()->nameField()->insert(typed);
        QCOMPARE(m_view->savePrompt()->nameField()->text(), kept);
    }

    void saveSheet_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("closedBy"); // Save, Return or Cancel
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("stillOpen");
        QTest::newRow("only spaces") << u"   "_qs << "Save" << QStringList{} << true;
        QTest::newRow("only spaces, Return") << u"   "_qs << "Return" << QStringList{} << true;
        QTest::newRow("Save") << u" Mine "_qs << "Save" << QStringList{"Mine"} << false;
        QTest::newRow("Return saves once")
            << u"Mine"_qs << "Return" << QStringList{"Mine"} << false;
        QTest::newRow("Cancel saves nothing") << u"Mine"_qs << "Cancel" << QStringList{} << false;
    }
    void saveSheet()
    {
        QFETCH(QString, typed);
        QFETCH(QString, closedBy);
        QFETCH(QStringList, names);
        QFETCH(bool, stillOpen);
        m_view->presentSavePrompt();
        SavePresetDialog *sheet = m_view->savePrompt();
        QTest::keyClicks(sheet->nameField(), typed);
        if (closedBy == u"Return")
            QTest::keyClick(sheet->nameField(), Qt::Key_Return);
        else
            (closedBy == u"Save" ? sheet->saveButton() : sheet->cancelButton())->click();
        QStringList saved;
        for (const CustomKeyStylePreset &p : m_presets->presets())
            saved.append(p.name);
        QCOMPARE(saved, names);
        QCOMPARE(m_view->isPresentingSavePrompt() && sheet->isVisible(), stillOpen);
    }

    // Which tiles are marked after a sequence of choices.
    void selection_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QStringList>("selected");
        QTest::newRow("fresh") << QStringList{} << QStringList{"Modern"};
        QTest::newRow("saved preset") << QStringList{"save"} << QStringList{"Mine"};
        QTest::newRow("built-in after preset")
            << QStringList{"save", "Neon"} << QStringList{"Neon"};
        QTest::newRow("preset again") << QStringList{"save", "Neon", "Mine"} << QStringList{"Mine"};
    }
    void selection()
    {
        QFETCH(QStringList, clicks);
        QFETCH(QStringList, selected);
        for (const QString &click : clicks) {
            if (click == u"save")
                savePreset(QStringLiteral("Mine"));
            else
                tile(click)->click();
        }
        QCOMPARE(selectedTiles(), selected);
    }

    // Deleting another preset leaves the look alone; deleting the one in use applies Modern.
    void deletingPresets()
    {
        savePreset(QStringLiteral("Other"));
        m_view->applyStylePreset(KeyStyle::gaming);
        savePreset(QStringLiteral("Mine"));
        m_store->setValue(AppSettings::keySize, 4.5);
        const Look before = look();
        tile(QStringLiteral("Other"))->removeButton()->click();
        QCOMPARE(look(), before);
        QCOMPARE(selectedTiles(), QStringList{"Mine"});
        tile(QStringLiteral("Mine"))->removeButton()->click();
        QCOMPARE(selectedTiles(), QStringList{"Modern"});
        QCOMPARE(look(), StylePresetActions::snapshotOf(KeyStyle::modern));
        QCOMPARE(tiles().size(), 5);
    }

    void turningAnEffectOffHidesItsRowsAndKeepsValues_data()
    {
        QTest::addColumn<QString>("toggle");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("shadow") << "keyShadowEnabled"
                                << QStringList{"Shadow Radius", "Shadow Color"};
        QTest::newRow("glow") << "keyGlowEnabled" << QStringList{"Glow Radius", "Glow Color"};
    }
    void turningAnEffectOffHidesItsRowsAndKeepsValues()
    {
        m_view->applyStylePreset(KeyStyle::neon); // both effects on
        const Look before = look();
        QFETCH(QStringList, rows);
        QFETCH(QString, toggle);
        for (const QString &title : rows)
            QVERIFY(!row(title)->isHidden());
        m_view->findChild<QCheckBox *>(toggle)->click();
        for (const QString &title : rows)
            QVERIFY(row(title)->isHidden());
        Look expected = before;
        expected.keyShadowEnabled = m_store->value(AppSettings::keyShadowEnabled);
        expected.keyGlowEnabled = m_store->value(AppSettings::keyGlowEnabled);
        QCOMPARE(look(), expected);
    }

    void builtInTileWritesItsValues_data()
    {
        QTest::addColumn<KeyStyle>("style");
        for (const KeyStyle style : AppSettings::allCases<KeyStyle>())
            QTest::newRow(qPrintable(AppSettings::rawValue(style))) << style;
    }
    void builtInTileWritesItsValues()
    {
        QFETCH(KeyStyle, style);
        // Start from a look unlike every style, so each value is really written.
        m_view->applyAppearanceSnapshot({9.5, 33, 0.2, "scaleIn", "Nothing", "#12345678",
                                         "#23456789", "#3456789A", 4.5, 21, false, 13, "#456789AB",
                                         false, "#56789ABC", 17});
        tiles()[int(style)]->click();
        QCOMPARE(look(), StylePresetActions::snapshotOf(style));
        QCOMPARE(m_store->value(AppSettings::keyStyle), style);
    }

    // Slider positions are whole numbers; each slider maps them onto its setting's range.
    void sliderWritesItsScale_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("position");
        QTest::addColumn<double>("stored");
        QTest::newRow("size, hundredths") << "keySize" << 1000 << 10.0;
        QTest::newRow("size below range") << "keySize" << 50 << 1.0;
        QTest::newRow("spacing") << "keySpacing" << 125 << 12.5;
        QTest::newRow("opacity, tenths") << "keyOpacity" << 3 << 0.3;
        QTest::newRow("border, halves") << "keyBorderWidth" << 3 << 1.5;
        QTest::newRow("corner") << "keyCornerRadius" << 25 << 25.0;
        QTest::newRow("glow above range") << "keyGlowRadius" << 99 << 20.0;
    }
    void sliderWritesItsScale()
    {
        QFETCH(QString, key);
        QFETCH(int, position);
        QFETCH(double, stored);
        m_view->findChild<QSlider *>(key)->setValue(position);
        QCOMPARE(m_store->rawValue(key)->toDouble(), stored);
    }

    void controlsFollowChangesMadeElsewhere()
    {
        m_store->setValue(AppSettings::keySize, 3.0);
        m_store->setValue(AppSettings::keyShadowEnabled, false);
        m_store->setValue(AppSettings::keyTextColor, QStringLiteral("#FF000080"));
        QCOMPARE(m_view->findChild<QSlider *>("keySize")->value(), 300);
        QVERIFY(!m_view->findChild<QCheckBox *>("keyShadowEnabled")->isChecked());
        QCOMPARE(m_view->findChild<ColorPickerButton *>("keyTextColor")->color(),
                 QColor(255, 0, 0, 128));
        // Showing a value between two slider steps writes nothing back.
        m_store->setValue(AppSettings::keyOpacity, 0.15);
        QCOMPARE(m_store->value(AppSettings::keyOpacity), 0.15);
    }

    void fontNotInstalledShowsNoSelectionAndIsKept()
    {
        m_store->setValue(AppSettings::keyFont, QStringLiteral("No Such Family 42"));
        QCOMPARE(m_view->findChild<QComboBox *>("keyFont")->currentIndex(), -1);
        QCOMPARE(m_store->value(AppSettings::keyFont), QStringLiteral("No Such Family 42"));
    }

    void colorPicker_data()
    {
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<QString>("stored");
        QTest::newRow("each change written at once") << false << "#FF000080";
        QTest::newRow("cancel restores") << true << "#000000FF";
    }
    void colorPicker()
    {
        QFETCH(bool, cancel);
        QFETCH(QString, stored);
        auto *picker = m_view->findChild<ColorPickerButton *>("keyTextColor");
        picker->openDialog();
        picker->dialog()->setCurrentColor(QColor(255, 0, 0, 128));
        QCOMPARE(m_store->value(AppSettings::keyTextColor), QStringLiteral("#FF000080"));
        if (cancel)
            picker->dialog()->reject();
        QCOMPARE(m_store->value(AppSettings::keyTextColor), stored);
    }

    void resetKeepsPresets()
    {
        savePreset(QStringLiteral("Mine"));
        m_store->setValue(AppSettings::keyTextColor, QStringLiteral("#FF0000FF"));
        m_view->findChild<QPushButton *>("resetAppearance")->click();
        QCOMPARE(m_presets->presets().size(), 1);
        QCOMPARE(m_view->stateColor(AppearanceSettingsView::ColorSetting::text), QColor(Qt::black));
        QCOMPARE(selectedTiles(), QStringList{"Modern"});
    }
};

QTEST_MAIN(tst_AppearanceSettingsView)
#include "tst_AppearanceSettingsView.moc"
