#include "FakeCaptureBackend.h"
#include "FakeScreenList.h"

#include "app/AppActions.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

class tst_AppActions final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    KeyboardLayoutTranslator m_translator{XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"))};
    FakeCaptureBackend::Control m_control;
    FakeScreenList m_screens;
    std::unique_ptr<KeyManager> m_manager;
    std::unique_ptr<AppActions> m_actions;
    QList<quint32> m_opened;

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_manager = std::make_unique<KeyManager>(
            *m_store, std::make_unique<FakeCaptureBackend>(m_control), m_translator);
        m_opened.clear();
        m_actions = std::make_unique<AppActions>(*m_store, *m_manager, m_screens,
                                                 [this](quint32 id) { m_opened.append(id); });
    }
    void cleanup()
    {
        m_actions.reset();
        m_manager.reset();
    }

    void keySizeSteps_data()
    {
        QTest::addColumn<bool>("increase");
        QTest::addColumn<double>("before");
        QTest::addColumn<std::optional<double>>("after"); // nothing: not written
        QTest::newRow("up from default") << true << 2.0 << std::optional(2.0 + 0.1);
        QTest::newRow("up 2.95 reaches the bound") << true << 2.95 << std::optional(3.0);
        QTest::newRow("up at the bound") << true << 3.0 << std::optional<double>();
        QTest::newRow("up above the bound") << true << 3.4 << std::optional<double>();
        QTest::newRow("up from below the range") << true << 0.5 << std::optional(0.5 + 0.1);
        QTest::newRow("down from default") << false << 2.0 << std::optional(2.0 - 0.1);
        QTest::newRow("down 1.05 reaches the bound") << false << 1.05 << std::optional(1.0);
        QTest::newRow("down at the bound") << false << 1.0 << std::optional<double>();
        QTest::newRow("down below the bound") << false << 0.7 << std::optional<double>();
        QTest::newRow("down from above the range") << false << 3.4 << std::optional(3.4 - 0.1);
    }
    void keySizeSteps()
    {
        QFETCH(bool, increase);
        QFETCH(double, before);
        QFETCH(std::optional<double>, after);
        m_store->setValue(AppSettings::keySize, before);
        int writes = 0;
        m_store->observe(AppSettings::keySize.name(), this, [&writes] { ++writes; });
        increase ? m_actions->increaseKeySize() : m_actions->decreaseKeySize();
        QCOMPARE(writes, after ? 1 : 0);
        // Unrounded: exactly the sum the arithmetic gives.
        QCOMPARE(m_store->value(AppSettings::keySize), after.value_or(before));
    }

    void toggleVantrelFlipsTheSwitchAndListening()
    {
        QTRY_VERIFY(m_manager->isListening());
        m_actions->toggleVantrel();
        QCOMPARE(m_store->value(AppSettings::isVantrelEnabled), false);
        QTRY_VERIFY(!m_manager->isListening());
        m_actions->toggleVantrel();
        QCOMPARE(m_store->value(AppSettings::isVantrelEnabled), true);
        QTRY_VERIFY(m_manager->isListening());
    }

    void toggleMouseClicksFlipsTheSetting()
    {
        m_actions->toggleMouseClicks();
        QCOMPARE(m_store->value(AppSettings::showMouseClicks), true);
        m_actions->toggleMouseClicks();
        QCOMPARE(m_store->value(AppSettings::showMouseClicks), false);
    }

    void positionCustomizerOpensOnTheMainScreen_data()
    {
        QTest::addColumn<QList<ScreenList::Screen>>("screens");
        QTest::addColumn<std::optional<quint32>>("primary");
        QTest::addColumn<QList<quint32>>("opened");
        const ScreenList::Screen left{1, QStringLiteral("LEFT"), {0, 0, 100, 100}, {}};
        const ScreenList::Screen right{2, QStringLiteral("RIGHT"), {100, 0, 100, 100}, {}};
        // The pointer rests at (150, 50), on RIGHT when RIGHT is there.
        QTest::newRow("under the pointer")
            << QList{left, right} << std::optional<quint32>(1) << QList<quint32>{2};
        QTest::newRow("primary when the pointer is elsewhere")
            << QList{left} << std::optional<quint32>(1) << QList<quint32>{1};
        QTest::newRow("no screen at all")
            << QList<ScreenList::Screen>() << std::optional<quint32>() << QList<quint32>();
    }
    void positionCustomizerOpensOnTheMainScreen()
    {
        QFETCH(QList<ScreenList::Screen>, screens);
        QFETCH(std::optional<quint32>, primary);
        QFETCH(QList<quint32>, opened);
        QCursor::setPos(150, 50);
        if (QCursor::pos() != QPoint(150, 50))
            QSKIP("this platform cannot place the pointer");
        m_screens.list = screens;
        m_screens.main = primary;
        m_actions->openPositionCustomizer();
        QCOMPARE(m_opened, opened);
    }

    void positionCustomizerWithoutOpenerDoesNothing()
    {
        m_screens.list = {{1, QStringLiteral("LEFT"), {0, 0, 100, 100}, {}}};
        m_actions->setPositionCustomizerOpener({});
        m_actions->openPositionCustomizer(); // must not crash
        QVERIFY(m_opened.isEmpty());
    }
};

QTEST_MAIN(tst_AppActions)
#include "tst_AppActions.moc"
