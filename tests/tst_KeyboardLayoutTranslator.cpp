#include "capture/KeyCode.h"
#include "capture/KeyboardLayout.h"
#include "capture/KeyboardLayoutSource.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"

#include <QTest>

#include <atomic>
#include <map>
#include <mutex>
#include <thread>

namespace {

// A layout that names every key by one fixed text and remembers the modifier state it was given.
class FixedLayout final : public KeyboardLayout {
public:
    explicit FixedLayout(QString text) : m_text(std::move(text)) {}
    std::optional<QString> translate(int, quint32 modifierState) const override
    {
        lastModifierState = modifierState;
        return m_text;
    }
    mutable std::atomic<quint32> lastModifierState{0};

private:
    QString m_text;
};

// A source whose state the test sets directly, counting fetches.
class FakeSource final : public KeyboardLayoutSource {
public:
    void set(std::optional<QString> id, std::shared_ptr<const KeyboardLayout> layout)
    {
        const std::lock_guard guard(m_lock);
        m_state = {std::move(id), std::move(layout)};
    }
    void notify()
    {
        for (const auto &[id, handler] : m_observers)
            handler();
    }
    LayoutState fetchCurrentLayoutState() const override
    {
        const std::lock_guard guard(m_lock);
        return m_state;
    }
    ObserverId addChangeObserver(std::function<void()> handler) override
    {
        m_observers.emplace(++m_next, std::move(handler));
        return m_next;
    }
    void removeChangeObserver(ObserverId id) override { m_observers.erase(id); }
    size_t observerCount() const { return m_observers.size(); }

private:
    mutable std::mutex m_lock;
    LayoutState m_state;
    std::map<ObserverId, std::function<void()>> m_observers;
    ObserverId m_next = 0;
};

std::shared_ptr<const KeyboardLayout> layout(const char *text)
{
    return std::make_shared<FixedLayout>(QString::fromUtf8(text));
}

QString translated(KeyboardLayoutTranslator &translator, int keyCode = KeyCode::A)
{
    return translator.string(keyCode, 0).value_or(QStringLiteral("<nothing>"));
}

} // namespace

class tst_KeyboardLayoutTranslator final : public QObject {
    Q_OBJECT

private slots:
    // What the next translation uses after the source moved from one state to another without
    // telling anyone.
    void cacheRules_data()
    {
        QTest::addColumn<QString>("firstId");
        QTest::addColumn<bool>("firstHasLayout");
        QTest::addColumn<QString>("secondId");
        QTest::addColumn<bool>("secondHasLayout");
        QTest::addColumn<QString>("expected");
        const QString none; // a null string stands for an absent identifier
        QTest::newRow("same id keeps the cache") << "us" << true << "us" << true << "first";
        QTest::newRow("new id refreshes") << "us" << true << "de" << true << "second";
        QTest::newRow("both ids absent keep the cache") << none << true << none << true << "first";
        QTest::newRow("id appears: refresh") << none << true << "de" << true << "second";
        QTest::newRow("id disappears: refresh") << "us" << true << none << true << "second";
        QTest::newRow("no cached layout refreshes on same id")
            << "us" << false << "us" << true << "second";
        QTest::newRow("new id without layout yields nothing")
            << "us" << true << "de" << false << "<nothing>";
    }
    void cacheRules()
    {
        QFETCH(QString, firstId);
        QFETCH(bool, firstHasLayout);
        QFETCH(QString, secondId);
        QFETCH(bool, secondHasLayout);
        QFETCH(QString, expected);
        const auto id = [](const QString &text) {
            return text.isNull() ? std::nullopt : std::optional<QString>(text);
        };
        auto source = std::make_shared<FakeSource>();
        source->set(id(firstId), firstHasLayout ? layout("first") : nullptr);
        KeyboardLayoutTranslator translator(source);
        source->set(id(secondId), secondHasLayout ? layout("second") : nullptr);
        QCOMPARE(translated(translator), expected);
    }

    void notificationForcesRefresh()
    {
        auto source = std::make_shared<FakeSource>();
        source->set(QStringLiteral("us"), layout("first"));
        KeyboardLayoutTranslator translator(source);
        QCOMPARE(source->observerCount(), size_t(1));
        // Same identifier, new data: only the change notification can bring it in.
        source->set(QStringLiteral("us"), layout("second"));
        QCOMPARE(translated(translator), u"first");
        source->notify();
        QCOMPARE(translated(translator), u"second");
    }

    void stopsObservingWhenDestroyed()
    {
        auto source = std::make_shared<FakeSource>();
        {
            KeyboardLayoutTranslator translator(source);
        }
        QCOMPARE(source->observerCount(), size_t(0));
        source->notify(); // would call into a destroyed translator
    }

    void absentLayoutOrSourceYieldsNothing()
    {
        auto source = std::make_shared<FakeSource>();
        KeyboardLayoutTranslator withoutLayout(source);
        QCOMPARE(withoutLayout.string(KeyCode::A, 0), std::nullopt);
        KeyboardLayoutTranslator withoutSource(nullptr);
        QCOMPARE(withoutSource.string(KeyCode::A, 0), std::nullopt);
    }

    void emptyTextAndBadCodesYieldNothing()
    {
        auto source = std::make_shared<FakeSource>();
        source->set(QStringLiteral("us"), layout(""));
        KeyboardLayoutTranslator translator(source);
        QCOMPARE(translator.string(KeyCode::A, 0), std::nullopt);
        source->set(QStringLiteral("de"), layout("x"));
        QCOMPARE(translator.string(-1, 0), std::nullopt);
        QCOMPARE(translator.string(0x10000, 0), std::nullopt);
        QCOMPARE(translator.string(0xffff, 0), std::optional<QString>(QStringLiteral("x")));
    }

    void modifierState_data()
    {
        QTest::addColumn<quint64>("flags");
        QTest::addColumn<quint32>("state");
        QTest::newRow("none") << quint64(0) << quint32(0);
        QTest::newRow("shift") << quint64(ModifierFlag::Shift) << quint32(0x200);
        QTest::newRow("caps lock") << quint64(ModifierFlag::CapsLock) << quint32(0x400);
        QTest::newRow("control") << quint64(ModifierFlag::Control) << quint32(0x1000);
        QTest::newRow("option") << quint64(ModifierFlag::Option) << quint32(0x800);
        QTest::newRow("command") << quint64(ModifierFlag::Command) << quint32(0x100);
        QTest::newRow("all five") << quint64(ModifierFlag::Shift | ModifierFlag::CapsLock |
                                             ModifierFlag::Control | ModifierFlag::Option |
                                             ModifierFlag::Command)
                                  << quint32(0x1f00);
        QTest::newRow("other bits ignored") << quint64(0xffff | (1ULL << 40)) << quint32(0);
    }
    void modifierState()
    {
        QFETCH(quint64, flags);
        QFETCH(quint32, state);
        auto source = std::make_shared<FakeSource>();
        auto fixed = std::make_shared<FixedLayout>(QStringLiteral("x"));
        source->set(QStringLiteral("us"), fixed);
        KeyboardLayoutTranslator translator(source);
        QVERIFY(translator.string(KeyCode::A, flags));
        QCOMPARE(quint32(fixed->lastModifierState), state);
    }

    void sharedInstanceTakesTheInstalledSource()
    {
        auto source = std::make_shared<FakeSource>();
        source->set(QStringLiteral("us"), layout("shared"));
        QVERIFY(KeyboardLayoutTranslator::installSharedSource(source));
        QCOMPARE(translated(KeyboardLayoutTranslator::shared()), u"shared");
        QCOMPARE(&KeyboardLayoutTranslator::shared(), &KeyboardLayoutTranslator::shared());
        QVERIFY(!KeyboardLayoutTranslator::installSharedSource(std::make_shared<FakeSource>()));
        QCOMPARE(translated(KeyboardLayoutTranslator::shared()), u"shared");
    }

    // Translating on one thread while another switches the active group: no crash, and every
    // label comes whole from one of the two layouts.
    void concurrentGroupSwitching()
    {
        std::shared_ptr<XkbKeyboardLayoutSource> source =
            XkbKeyboardLayoutSource::fromNames(QStringLiteral("us,de"));
        QVERIFY(source);
        KeyboardLayoutTranslator translator(source);
        std::atomic<bool> done{false};
        std::thread switcher([&] {
            for (quint32 i = 0; !done; ++i)
                source->setActiveGroup(i % 2);
        });
        int us = 0;
        int de = 0;
        int other = 0;
        // Runs until both layouts were seen at least once (the switcher may start late on a busy
        // machine), within a bound that keeps a broken switch from hanging the test.
        for (int i = 0; i < 20000 || ((us == 0 || de == 0) && i < 20000000); ++i) {
            const QString y =
                translator.string(KeyCode::Y, ModifierFlag::Shift).value_or(QString());
            if (y == u"y")
                ++us;
            else if (y == u"z")
                ++de;
            else
                ++other;
        }
        done = true;
        switcher.join();
        QCOMPARE(other, 0);
        QVERIFY(us > 0);
        QVERIFY(de > 0);
    }
};

QTEST_GUILESS_MAIN(tst_KeyboardLayoutTranslator)
#include "tst_KeyboardLayoutTranslator.moc"
