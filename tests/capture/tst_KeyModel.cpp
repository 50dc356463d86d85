#include "capture/KeyCategory.h"
#include "capture/KeyCode.h"
#include "capture/KeyPress.h"

#include <QTest>
#include <QThread>

class tst_KeyModel final : public QObject {
    Q_OBJECT

private slots:
    // Rows named by key code. Letters (digits included) are 0-35 and 37-47, around Return at 36;
    // 50 (`) is not one.
    void classification_data()
    {
        QTest::addColumn<qint64>("keyCode");
        QTest::addColumn<int>("kind");
        using K = KeyCategory::Kind;
        const auto rows = [](K kind, std::initializer_list<qint64> codes) {
            for (qint64 code : codes)
                QTest::newRow(QByteArray::number(code)) << code << int(kind);
        };
        rows(K::letter, {KeyCode::A, KeyCode::Digit1, KeyCode::Digit0, 35, 37, 47});
        rows(K::special, {36, 48, 51, 53, 115, 116, 117, 119, 121});
        rows(K::function, {96, 122, 111});
        rows(K::arrow, {123, 126});
        rows(K::other, {49, 50, 52, KeyCode::Command, 63, KeyCode::Keypad1, 105, KeyCode::F20, 114,
                        127, -1, 1LL << 40});
    }
    void classification()
    {
        QFETCH(qint64, keyCode);
        QFETCH(int, kind);
        QCOMPARE(int(getKeyCategory(keyCode).kind()), kind);
    }

    void equality()
    {
        using B = MouseClickButton;
        QCOMPARE(KeyCategory::mouse(B::left), KeyCategory::mouse(B::left));
        QVERIFY(KeyCategory::mouse(B::left) != KeyCategory::mouse(B::right));

        const KeyPress first =
            KeyPress::make(QStringLiteral("K"), KeyCode::K, KeyCategory::Kind::letter);
        QThread::usleep(10);
        const KeyPress second =
            KeyPress::make(QStringLiteral("K"), KeyCode::K, KeyCategory::Kind::letter);
        QVERIFY(first.id != second.id && first.timestamp < second.timestamp);
        QVERIFY(qAbs(first.timestamp - QDateTime::currentMSecsSinceEpoch() / 1000.0) < 1.0);
        QVERIFY(first == first && !(first == second));
        // Equality looks at every field.
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
};

QTEST_GUILESS_MAIN(tst_KeyModel)
#include "tst_KeyModel.moc"
