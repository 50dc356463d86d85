// Which overlay windows the key manager keeps: one per enabled, connected display while
// listening, reused across changes, none while stopped; and what a real overlay window asks of
// its renderer.
#include "FakeCaptureBackend.h"
#include "FakeScreenList.h"

#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "overlay/KeyDisplayOverlayWindowFactory.h"
#include "overlay/KeyRowRenderer.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

struct FakeWindow final : KeyDisplayWindow {
    QRect frame;
    bool shown = false;
    bool closed = false;
    void setFrame(const QRect &f) override { frame = f; }
    void orderFront() override { shown = true; }
    void close() override { closed = true; }
};

struct FakeWindowFactory final : KeyDisplayWindowFactory {
    int created = 0;
    std::unique_ptr<KeyDisplayWindow> createWindow(quint32, const QRect &) override
    {
        ++created;
        return std::make_unique<FakeWindow>();
    }
};

struct FakeRenderer final : KeyRowRenderer {
    int &warmUps;
    explicit FakeRenderer(int &count) : warmUps(count) {}
    void setScene(std::shared_ptr<const KeyRowScene>) override {}
    void warmUp(const std::vector<std::shared_ptr<const KeyView>> &, double, bool, double) override
    {
        ++warmUps;
    }
};

const ScreenList::Screen left{1, QStringLiteral("LEFT"), {0, 0, 1920, 1080}, {0, 0, 1920, 1050}};
const ScreenList::Screen right{
    2, QStringLiteral("RIGHT"), {1920, 0, 1920, 1080}, {1920, 30, 1920, 1050}};

} // namespace

class tst_KeyDisplayWindows final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    FakeScreenList m_screens;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    FakeWindowFactory m_factory;
    FakeCaptureBackend::Control m_control;
    KeyboardLayoutTranslator m_translator{nullptr};
    std::unique_ptr<KeyManager> m_manager;

    FakeWindow *window(quint32 id) const
    {
        return static_cast<FakeWindow *>(m_manager->keyDisplayWindows().value(id));
    }
    bool listening(bool on) const
    {
        return QTest::qWaitFor([&] { return m_manager->isListening() == on; }, 5000);
    }

private slots:
    void init()
    {
        m_settings = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("s.conf")));
        m_screens.list = {left, right};
        m_screens.main = left.id;
        m_displays = std::make_unique<DisplaySettingsStore>(*m_settings, m_screens);
        m_factory.created = 0;
        m_manager = std::make_unique<KeyManager>(*m_settings,
                                                 std::make_unique<FakeCaptureBackend>(m_control),
                                                 m_translator, m_displays.get(), &m_factory);
        QVERIFY(listening(true));
    }
    void cleanup()
    {
        m_manager.reset();
        m_displays.reset();
        m_settings.reset();
        QFile::remove(m_dir.filePath(QStringLiteral("s.conf")));
    }

    // At start one window, on the enabled display's available area.
    void settingsChangesReuseOrReplaceWindows()
    {
        QCOMPARE(m_manager->keyDisplayWindows().keys(), QList<quint32>{left.id});
        FakeWindow *first = window(left.id);
        QVERIFY(first->shown && first->frame == left.availableGeometry);
        m_displays->setPosition(AppSettings::KeyPosition::topRight, left.id);
        QCOMPARE(window(left.id), first); // the same window, refitted

        m_displays->setEnabled(true, right.id);
        QCOMPARE(window(right.id)->frame, right.availableGeometry);
        m_displays->setEnabled(false, left.id);
        QCOMPARE(m_manager->keyDisplayWindows().keys(), QList<quint32>{right.id});
        m_displays->setEnabled(true, left.id);
        QCOMPARE(m_factory.created, 3); // a new window for the display enabled again
    }

    void screensComingAndGoing()
    {
        m_displays->setEnabled(true, right.id);
        m_screens.update({left});
        QCOMPARE(m_manager->keyDisplayWindows().keys(), QList<quint32>{left.id});
        m_screens.update({left, right});
        QCOMPARE(m_manager->keyDisplayWindows().size(), 2);
        // A screen that only moves keeps its window, refitted.
        FakeWindow *moved = window(right.id);
        ScreenList::Screen elsewhere = right;
        elsewhere.availableGeometry.moveTo(0, 1080);
        m_screens.update({left, elsewhere});
        QCOMPARE(window(right.id), moved);
        QCOMPARE(moved->frame, elsewhere.availableGeometry);
    }

    void noWindowsWhileStopped()
    {
        m_manager->stopListening();
        QVERIFY(listening(false));
        QVERIFY(m_manager->keyDisplayWindows().isEmpty());
        m_displays->setEnabled(true, right.id);
        m_screens.update({left, right});
        QVERIFY(m_manager->keyDisplayWindows().isEmpty());
        QCOMPARE(m_factory.created, 1);
        m_manager->startListening();
        QVERIFY(listening(true));
        QCOMPARE(m_manager->keyDisplayWindows().size(), 2);
    }

    // A window drawn through a renderer has it prepare sample caps before the first key.
    void overlayWindowWarmsItsRendererUp()
    {
        KeyDisplayOverlayWindowFactory factory(*m_displays, *m_settings, nullptr);
        factory.setKeyManager(m_manager.get());
        int warmUps = 0;
        factory.setRendererFactory(
            [&warmUps](WId) { return std::make_unique<FakeRenderer>(warmUps); });
        const auto overlay = factory.createWindow(left.id, left.geometry);
        QTRY_COMPARE(warmUps, 1);
    }
};

QTEST_MAIN(tst_KeyDisplayWindows)
#include "tst_KeyDisplayWindows.moc"
