#include "capture/KeyCategory.h"
#include "capture/KeyCode.h"
#include "capture/KeyPress.h"

#include <QTest>
#include <QThread>

class tst_KeyModel final : public QObject {
    Q_OBJECT

private slots:
    void classification_data()
    {
        QTest::addColumn<qint64>("keyCode");
        QTest::addColumn<int>("kind");
        using K = KeyCategory::Kind;
        const auto row = [](const char *name, qint64 code, K kind) {
            QTest::newRow(name) << code << int(kind);
        };
        row("A", KeyCode::A, K::letter);
        row("digit 1 is a letter, never a number", KeyCode::Digit1, K::letter);
        row("digit 0", KeyCode::Digit0, K::letter);
        row("P, last before Return", 35, K::letter);
        row("Return between the letter ranges", 36, K::special);
        row("L, first after Return", 37, K::letter);
        row("Period, last letter", 47, K::letter);
        row("Tab", 48, K::special);
        row("Space", 49, K::other);
        row("grave accent", 50, K::other);
        row("Delete", 51, K::special);
        row("52 is unassigned", 52, K::other);
        row("Escape", 53, K::special);
        row("Command key code", KeyCode::Command, K::other);
        row("Function key code", 63, K::other);
        row("keypad 1", KeyCode::Keypad1, K::other);
        row("F5", 96, K::function);
        row("F1", 122, K::function);
        row("F12", 111, K::function);
        row("F13", 105, K::other);
        row("F20", KeyCode::F20, K::other);
        row("Help", 114, K::other);
        row("Home", 115, K::special);
        row("Page Up", 116, K::special);
        row("Forward Delete", 117, K::special);
        row("End", 119, K::special);
        row("Page Down", 121, K::special);
        row("Left", 123, K::arrow);
        row("Up", 126, K::arrow);
        row("127", 127, K::other);
        row("negative", -1, K::other);
        row("huge", 1LL << 40, K::other);
    }
    void classification()
    {
        QFETCH(qint64, keyCode);
        QFETCH(int, kind);
        QCOMPARE(int(getKeyCategory(keyCode).kind()), kind);
        QVERIFY(!getKeyCategory(keyCode).isMouse());
    }

    void categoryEquality()
    {
        QCOMPARE(KeyCategory::mouse(MouseClickButton::left),
                 KeyCategory::mouse(MouseClickButton::left));
        QVERIFY(KeyCategory::mouse(MouseClickButton::left) !=
                KeyCategory::mouse(MouseClickButton::right));
        QVERIFY(KeyCategory(KeyCategory::Kind::letter) != KeyCategory(KeyCategory::Kind::number));
        QVERIFY(KeyCategory(KeyCategory::Kind::mouse) != KeyCategory(KeyCategory::Kind::letter));
    }

    void keyPressEquality()
    {
        const KeyPress first = KeyPress::make(QStringLiteral("K"), KeyCode::K,
                                              KeyCategory::Kind::letter);
        QThread::usleep(10);
        const KeyPress second = KeyPress::make(QStringLiteral("K"), KeyCode::K,
                                               KeyCategory::Kind::letter);
        QVERIFY(first.id != second.id);
        QVERIFY(first.timestamp < second.timestamp);
        QVERIFY(!(first == second));
        QVERIFY(first == first);

        // Equality looks at every field: same id but another field differs.
        const auto differsIn = [&](auto change) {
            KeyPress copy = first;
            change(copy);
            return !(copy == first);
        };
        QVERIFY(differsIn([](KeyPress &k) { k.keyName = QStringLiteral("L"); }));
        QVERIFY(differsIn([](KeyPress &k) { k.keyCode = 1; }));
        QVERIFY(differsIn([](KeyPress &k) { k.category = KeyCategory::Kind::other; }));
        QVERIFY(differsIn([](KeyPress &k) { k.timestamp += 1; }));
        QVERIFY(differsIn([](KeyPress &k) { k.id = QUuid::createUuid(); }));
    }

    void timestampIsNow()
    {
        const double now = double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
        const KeyPress press = KeyPress::make(QStringLiteral("⌘"), KeyPress::modifierSymbolCode,
                                              KeyCategory::Kind::modifier);
        QVERIFY(qAbs(press.timestamp - now) < 1.0);
    }
};

QTEST_GUILESS_MAIN(tst_KeyModel)
#include "tst_KeyModel.moc"
