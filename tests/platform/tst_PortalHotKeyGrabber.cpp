#include "platform/linux/PortalHotKeyGrabber.h"

#include "FakeShortcutsPortal.h"
#include "VirtualDisplay.h"

#include <QSignalSpy>
#include <QTest>

class tst_PortalHotKeyGrabber final : public QObject {
    Q_OBJECT

private slots:
    // Ctrl+Alt+K's trigger is checked in the binding below.
    void triggers()
    {
        QCOMPARE(PortalHotKeyGrabber::trigger(Qt::META | Qt::SHIFT | Qt::Key_F5),
                 QStringLiteral("SHIFT+LOGO+F5"));
    }

    // The five names are bound in one request with their triggers, the portal's key down and up
    // become presses and releases, a changed combination is bound again, and without a portal
    // there is no grabber.
    void bindsThroughThePortal()
    {
        VirtualDisplay busOwner; // only its private session bus is used
        const QString address = busOwner.startSessionBus();
        QVERIFY2(!address.isEmpty(), "dbus-daemon did not start");
        const QDBusConnection client = QDBusConnection::connectToBus(address, "client");
        QVERIFY(!PortalHotKeyGrabber::create(client));

        FakeShortcutsPortal portal;
        QVERIFY(portal.serve(address));
        const std::unique_ptr<PortalHotKeyGrabber> grabber = PortalHotKeyGrabber::create(client);
        QVERIFY(grabber);

        const QStringList names{"toggleVantrel", "increaseKeySize", "decreaseKeySize",
                                "openPositionCustomizer", "toggleMouseClicks"};
        QHash<QString, QString> expected;
        for (int i = 0; i < names.size(); ++i) {
            const QKeyCombination combination(Qt::CTRL | Qt::ALT, Qt::Key(Qt::Key_1 + i));
            QCOMPARE(grabber->grab(names.at(i), combination), HotKeyGrabber::GrabResult::grabbed);
            expected.insert(names.at(i), QStringLiteral("CTRL+ALT+%1").arg(i + 1));
        }
        QTRY_COMPARE(portal.binds().size(), 1);
        QCOMPARE(portal.binds().constFirst(), expected);

        QSignalSpy pressed(grabber.get(), &HotKeyGrabber::pressed);
        QSignalSpy released(grabber.get(), &HotKeyGrabber::released);
        portal.emitShortcut(QStringLiteral("Activated"), names.at(1));
        portal.emitShortcut(QStringLiteral("Deactivated"), names.at(1));
        QTRY_COMPARE(released.size(), 1);
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(pressed.constFirst().constFirst().toString(), names.at(1));
        QCOMPARE(released.constFirst().constFirst().toString(), names.at(1));

        QCOMPARE(grabber->grab(names.at(0), Qt::CTRL | Qt::ALT | Qt::Key_K),
                 HotKeyGrabber::GrabResult::grabbed);
        grabber->release(names.at(4));
        QTRY_COMPARE(portal.binds().size(), 2);
        expected.insert(names.at(0), QStringLiteral("CTRL+ALT+k"));
        expected.remove(names.at(4));
        QCOMPARE(portal.binds().last(), expected);
        // Key downs of the new session still arrive.
        portal.emitShortcut(QStringLiteral("Activated"), names.at(0));
        QTRY_COMPARE(pressed.size(), 2);

        // A session the desktop closes is made again with the same grabs.
        portal.closeSession();
        QTRY_COMPARE(portal.binds().size(), 3);
        QCOMPARE(portal.binds().last(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_PortalHotKeyGrabber)
#include "tst_PortalHotKeyGrabber.moc"
