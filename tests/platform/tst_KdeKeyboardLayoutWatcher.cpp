#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/wayland/KdeKeyboardLayoutWatcher.h"

#include "VirtualDisplay.h"

#include <QDBusConnection>
#include <QSignalSpy>
#include <QTest>

// KWin's keyboard layout service as far as Vantrel uses it.
class FakeKdeLayouts final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.KeyboardLayouts")

public:
    uint m_layout = 2;

public slots:
    uint getLayout() const { return m_layout; }

signals:
    void layoutChanged(uint index);
};

class tst_KdeKeyboardLayoutWatcher final : public QObject {
    Q_OBJECT

private slots:
    // A watcher made before Plasma's service reads the layout when the service appears, one made
    // after reads it at once, and both follow every switch; the source's group follows.
    void followsTheService()
    {
        VirtualDisplay busOwner; // only its private session bus is used
        const QString address = busOwner.startSessionBus();
        QVERIFY2(!address.isEmpty(), "dbus-daemon did not start");
        const QDBusConnection client = QDBusConnection::connectToBus(address, "client");
        QDBusConnection kde = QDBusConnection::connectToBus(address, "kde");

        const std::unique_ptr<KdeKeyboardLayoutWatcher> early =
            KdeKeyboardLayoutWatcher::create(client);
        QVERIFY(early);
        QSignalSpy earlySpy(early.get(), &KdeKeyboardLayoutWatcher::activeLayoutChanged);
        const std::shared_ptr<XkbKeyboardLayoutSource> source =
            XkbKeyboardLayoutSource::fromNames(QStringLiteral("us,de,fr"));
        QVERIFY(source);
        connect(early.get(), &KdeKeyboardLayoutWatcher::activeLayoutChanged, this,
                [&source](quint32 index) { source->setActiveGroup(index); });

        FakeKdeLayouts layouts;
        QVERIFY(kde.registerObject(QStringLiteral("/Layouts"), &layouts,
                                   QDBusConnection::ExportAllSlots |
                                       QDBusConnection::ExportAllSignals));
        QVERIFY(kde.registerService(QStringLiteral("org.kde.keyboard")));
        QVERIFY(earlySpy.wait());
        QCOMPARE(earlySpy.takeFirst().at(0).toUInt(), 2u);
        QVERIFY(!source->setActiveGroup(2)); // already the active one

        const std::unique_ptr<KdeKeyboardLayoutWatcher> late =
            KdeKeyboardLayoutWatcher::create(client);
        QSignalSpy lateSpy(late.get(), &KdeKeyboardLayoutWatcher::activeLayoutChanged);
        QVERIFY(lateSpy.wait());
        QCOMPARE(lateSpy.takeFirst().at(0).toUInt(), 2u);

        emit layouts.layoutChanged(1);
        QVERIFY(earlySpy.wait());
        QVERIFY(!lateSpy.isEmpty() || lateSpy.wait());
        QCOMPARE(earlySpy.at(0).at(0).toUInt(), 1u);
        QCOMPARE(lateSpy.at(0).at(0).toUInt(), 1u);
        QVERIFY(!source->setActiveGroup(1));
    }
};

QTEST_GUILESS_MAIN(tst_KdeKeyboardLayoutWatcher)
#include "tst_KdeKeyboardLayoutWatcher.moc"
