#include "FakeCaptureBackend.h"
#include "FakeScreenList.h"

#include "app/AppActions.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QCursor>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

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
        QTest::addColumn<double>("after");
        QTest::addColumn<bool>("written");
        QTest::newRow("up") << true << 2.0 << 2.0 + 0.1 << true;
        QTest::newRow("up 2.95 stops at 3.0") << true << 2.95 << 3.0 << true;
        QTest::newRow("up at 3.0") << true << 3.0 << 3.0 << false;
        QTest::newRow("up above 3.0") << true << 3.4 << 3.4 << false;
        QTest::newRow("up from a stored -3, read as 1.0") << true << -3.0 << 1.0 + 0.1 << true;
        QTest::newRow("down") << false << 2.0 << 2.0 - 0.1 << true;
        QTest::newRow("down 1.05 stops at 1.0") << false << 1.05 << 1.0 << true;
        QTest::newRow("down at 1.0") << false << 1.0 << 1.0 << false;
        QTest::newRow("down from above 3.0") << false << 3.4 << 3.4 - 0.1 << true;
    }
    void keySizeSteps()
    {
        QFETCH(bool, increase);
        QFETCH(double, before);
        QFETCH(double, after);
        QFETCH(bool, written);
        m_store->setValue(AppSettings::keySize, before);
        int writes = 0;
        m_store->observe(AppSettings::keySize.name(), this, [&writes] { ++writes; });
        increase ? m_actions->increaseKeySize() : m_actions->decreaseKeySize();
        QCOMPARE(writes, written ? 1 : 0);
        QCOMPARE(m_store->value(AppSettings::keySize), after); // unrounded
    }

    void togglesInvertTheirSettingAndListeningFollows()
    {
        QTRY_VERIFY(m_manager->isListening());
        m_actions->toggleVantrel();
        QCOMPARE(m_store->value(AppSettings::isVantrelEnabled), false);
        QTRY_VERIFY(!m_manager->isListening());
        m_actions->toggleVantrel();
        QTRY_VERIFY(m_manager->isListening());
        m_actions->toggleMouseClicks();
        QCOMPARE(m_store->value(AppSettings::showMouseClicks), true);
    }

    void positionCustomizerOpensOnTheMainScreen_data()
    {
        QTest::addColumn<QList<ScreenList::Screen>>("screens");
        QTest::addColumn<QList<quint32>>("opened");
        const ScreenList::Screen left{1, QStringLiteral("LEFT"), {0, 0, 100, 100}, {}};
        const ScreenList::Screen right{2, QStringLiteral("RIGHT"), {100, 0, 100, 100}, {}};
        // The pointer rests on RIGHT when RIGHT is there; LEFT is the primary.
        QTest::newRow("under the pointer") << QList{left, right} << QList<quint32>{2};
        QTest::newRow("else the primary") << QList{left} << QList<quint32>{1};
        QTest::newRow("no screen") << QList<ScreenList::Screen>() << QList<quint32>();
    }
    void positionCustomizerOpensOnTheMainScreen()
    {
        QFETCH(QList<ScreenList::Screen>, screens);
        QFETCH(QList<quint32>, opened);
        QCursor::setPos(150, 50);
        if (QCursor::pos() != QPoint(150, 50))
            QSKIP("this platform cannot place the pointer");
        m_screens.list = screens;
        m_screens.main = screens.isEmpty() ? std::nullopt : std::optional<quint32>(1);
        m_actions->openPositionCustomizer();
        QCOMPARE(m_opened, opened);
    }
};

QTEST_MAIN(tst_AppActions)
#include "tst_AppActions.moc"
