#include "capture/KeyCode.h"
#include "capture/KeyboardLayout.h"
#include "capture/KeyboardLayoutSource.h"
#include "capture/KeyboardLayoutTranslator.h"

#include <QTest>

namespace {

// A layout that names every key by one fixed text.
struct FixedLayout final : KeyboardLayout {
    explicit FixedLayout(const QString &text) : text(text) {}
    std::optional<QString> translate(int, quint32) const override { return text; }
    QString text;
};

// A source whose state the test sets directly, written "id/layout text" (an empty part is absent).
// It tells its observer only when asked to.
struct FakeSource final : KeyboardLayoutSource {
    void set(const QString &idAndText)
    {
        const QString id = idAndText.section(u'/', 0, 0), text = idAndText.section(u'/', 1);
        state = {id.isEmpty() ? std::nullopt : std::optional(id),
                 text.isEmpty() ? nullptr : std::make_shared<FixedLayout>(text)};
    }
    LayoutState fetchCurrentLayoutState() const override { return state; }
    ObserverId addChangeObserver(std::function<void()> handler) override
    {
        observer = std::move(handler);
        return 1;
    }
    void removeChangeObserver(ObserverId) override { observer = nullptr; }

    LayoutState state;
    std::function<void()> observer;
};

QString translated(KeyboardLayoutTranslator &translator, int keyCode = KeyCode::A)
{
    return translator.string(keyCode, 0).value_or(QStringLiteral("<nothing>"));
}

} // namespace

class tst_KeyboardLayoutTranslator final : public QObject {
    Q_OBJECT

private slots:
    // What the next translation uses after the source moved from one state to another, with or
    // without a change notification.
    void cacheRules_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("notified");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *from, const char *to, bool notified,
                            const char *expected) {
            QTest::newRow(name) << from << to << notified << expected;
        };
        row("same id keeps the cache", "us/first", "us/second", false, "first");
        row("new id refreshes", "us/first", "de/second", false, "second");
        row("no ids keep the cache", "/first", "/second", false, "first");
        row("id appears: refresh", "/first", "de/second", false, "second");
        row("id disappears: refresh", "us/first", "/second", false, "second");
        row("no cached layout: refresh", "us/", "us/second", false, "second");
        row("notified: forced refresh", "us/first", "us/second", true, "second");
        row("new id without layout", "us/first", "de/", false, "<nothing>");
    }
    void cacheRules()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(bool, notified);
        QFETCH(QString, expected);
        auto source = std::make_shared<FakeSource>();
        source->set(from);
        KeyboardLayoutTranslator translator(source);
        source->set(to);
        if (notified)
            source->observer();
        QCOMPARE(translated(translator), expected);
    }

    void observesWhileAliveAndCopesWithoutSource()
    {
        auto source = std::make_shared<FakeSource>();
        {
            KeyboardLayoutTranslator translator(source);
            QVERIFY(source->observer);
        }
        QVERIFY(!source->observer); // else a notification would call a destroyed translator
        KeyboardLayoutTranslator withoutSource(nullptr);
        QCOMPARE(translated(withoutSource), u"<nothing>");
    }

    void sharedInstanceTakesTheInstalledSource()
    {
        auto source = std::make_shared<FakeSource>();
        source->set(QStringLiteral("us/shared"));
        QVERIFY(KeyboardLayoutTranslator::installSharedSource(source));
        QCOMPARE(translated(KeyboardLayoutTranslator::shared()), u"shared");
        QVERIFY(!KeyboardLayoutTranslator::installSharedSource(std::make_shared<FakeSource>()));
        QCOMPARE(translated(KeyboardLayoutTranslator::shared()), u"shared");
    }
};

QTEST_GUILESS_MAIN(tst_KeyboardLayoutTranslator)
#include "tst_KeyboardLayoutTranslator.moc"
