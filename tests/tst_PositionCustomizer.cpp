// The position customizer: where the sample cap starts, how a drag moves it and the card, and
// what each way of finishing saves.
#include "FakeScreenList.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/PositionCustomizerHeader.h"
#include "settings/PositionCustomizerView.h"
#include "settings/PositionCustomizerWindowController.h"
#include "settings/SettingsStore.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
constexpr quint32 leftID = 11;
constexpr quint32 rightID = 22;
constexpr quint32 unknownID = 33; // connected, but not yet in the store
const QRect leftArea(0, 0, 1000, 800);
const QRect rightArea(1000, 0, 800, 600);
} // namespace

class tst_PositionCustomizer final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<FakeScreenList> m_screens;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    std::unique_ptr<PositionCustomizerWindowController> m_controller;

    PositionCustomizerView *open(quint32 id)
    {
        m_controller->showPositioningOverlay(id);
        return qobject_cast<PositionCustomizerView *>(m_controller->window(id));
    }
    DisplayConfiguration stored(quint32 id) const { return *m_displays->configuration(id); }

private slots:
    void init()
    {
        m_settings =
            std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_screens = std::make_unique<FakeScreenList>();
        m_screens->list = {{leftID, QStringLiteral("Left"), leftArea, leftArea},
                           {rightID, QStringLiteral("Right"), rightArea, rightArea}};
        m_screens->main = leftID;
        m_displays = std::make_unique<DisplaySettingsStore>(*m_settings, *m_screens);
        // Connected after the store's last look at the screens: a display it does not know.
        m_screens->list.append({unknownID, QStringLiteral("New"), rightArea, rightArea});
        m_controller =
            std::make_unique<PositionCustomizerWindowController>(*m_displays, *m_settings);
    }
    void cleanup()
    {
        m_controller.reset();
        m_displays.reset();
        m_screens.reset();
        m_settings.reset();
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    }

    void initialState_data()
    {
        QTest::addColumn<quint32>("id");
        QTest::addColumn<bool>("customise");
        QTest::addColumn<QPointF>("expected");
        QTest::addColumn<bool>("headerAtTop");
        QTest::newRow("stored offsets, position Bottom Left")
            << leftID << true << QPointF(0.2, 0.1) << false;
        QTest::newRow("never customised") << leftID << false << QPointF(0.5, 0.85) << true;
        QTest::newRow("display unknown to the store")
            << unknownID << false << QPointF(0.5, 0.85) << true;
    }
    void initialState()
    {
        QFETCH(quint32, id);
        QFETCH(bool, customise);
        QFETCH(QPointF, expected);
        QFETCH(bool, headerAtTop);
        if (customise) {
            m_displays->setCustomOffset(0.2, 0.1, id);
            m_displays->setPosition(AppSettings::KeyPosition::bottomLeft, id);
        }
        PositionCustomizerView *view = open(id);
        QVERIFY(view);
        QCOMPARE(QPointF(view->offsetX(), view->offsetY()), expected);
        QCOMPARE(view->isHeaderAtTop(), headerAtTop);
        QVERIFY(!view->isDragging() && !view->isHeaderHidden());
        QCOMPARE(view->geometry(), m_screens->screen(id)->availableGeometry);
    }

    void dragIsClamped_data()
    {
        QTest::addColumn<QPointF>("location");
        QTest::addColumn<QPointF>("expected");
        QTest::newRow("past the left and top") << QPointF(-50, -50) << QPointF(0.05, 0.03);
        QTest::newRow("past the right and bottom") << QPointF(1200, 900) << QPointF(0.95, 0.97);
        QTest::newRow("inside") << QPointF(250, 400) << QPointF(0.25, 0.5);
    }
    void dragIsClamped()
    {
        QFETCH(QPointF, location);
        QFETCH(QPointF, expected);
        PositionCustomizerView *view = open(leftID);
        view->dragChanged(location);
        QVERIFY(view->isDragging());
        QCOMPARE(QPointF(view->offsetX(), view->offsetY()), expected);
        // Nothing is saved while dragging.
        QCOMPARE(stored(leftID).position, AppSettings::KeyPosition::bottomCenter);
    }

    void headerKeepsClearOfTheCap()
    {
        m_displays->setCustomOffset(0.5, 0.5, leftID);
        PositionCustomizerView *view = open(leftID);
        const QList<std::pair<double, bool>> steps = {
            {0.14, false}, {0.5, false}, {0.86, true}, {0.5, true}};
        for (const auto &[y, atTop] : steps) {
            view->dragChanged(QPointF(500, y * 800));
            QCOMPARE(view->isHeaderAtTop(), atTop);
        }
        // The card ends up at the top edge, after its move.
        QTRY_VERIFY(view->header()->y() < 100);
    }

    void finishing_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("Escape") << QStringLiteral("escape");
        QTest::newRow("Done") << QStringLiteral("done");
        QTest::newRow("click anywhere") << QStringLiteral("click");
    }
    void finishing()
    {
        QFETCH(QString, how);
        QSignalSpy closed(m_controller.get(), &PositionCustomizerWindowController::overlayClosed);
        QSignalSpy changed(m_displays.get(), &DisplaySettingsStore::displaySettingsChanged);
        PositionCustomizerView *view = open(leftID);
        // A real drag of the cap from its place to (100, 80).
        const QPoint cap = view->sampleKeyFrame().center().toPoint();
        QTest::mousePress(view, Qt::LeftButton, {}, cap);
        QTest::mouseMove(view, QPoint(300, 300));
        QTest::mouseMove(view, QPoint(100, 80));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(100, 80));
        QVERIFY(!view->isDragging());
        if (how == u"escape")
            QTest::keyClick(view, Qt::Key_Escape);
        else if (how == u"done")
            view->header()->doneButton()->click();
        else
            QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(700, 500));
        const DisplayConfiguration saved = stored(leftID);
        QCOMPARE(saved.position, AppSettings::KeyPosition::custom);
        QCOMPARE(QPointF(saved.customOffsetX, saved.customOffsetY), QPointF(0.1, 0.1));
        QCOMPARE(closed.size(), 1);
        QVERIFY(!m_controller->window(leftID));
        QVERIFY(!changed.isEmpty()); // the live overlay moves its keys
    }

    void escapeAfterClosingSavesNothing()
    {
        QPointer<PositionCustomizerView> view = open(leftID);
        view->saveAndDismiss();
        m_displays->setPosition(AppSettings::KeyPosition::topLeft, leftID);
        QTest::keyClick(view, Qt::Key_Escape);
        QCOMPARE(stored(leftID).position, AppSettings::KeyPosition::topLeft);
    }

    void hideHidesTheCardForGood()
    {
        PositionCustomizerView *view = open(leftID);
        view->header()->hideButton()->click();
        QVERIFY(view->isHeaderHidden());
        QTRY_VERIFY(!view->header()->isVisible());
        QCOMPARE(stored(leftID).position, AppSettings::KeyPosition::bottomCenter);
    }

    void sampleFollowsTheLook()
    {
        PositionCustomizerView *view = open(leftID);
        const QSizeF before = view->sampleKeyFrame().size();
        m_settings->setValue(AppSettings::keySize, 3.0);
        QCOMPARE(view->sampleKeyFrame().size(), before * 1.5);
    }

    void oneOverlayPerDisplay()
    {
        QPointer<PositionCustomizerView> first = open(leftID);
        PositionCustomizerView *second = open(leftID);
        PositionCustomizerView *other = open(rightID);
        QVERIFY(second && second != first && other);
        QTRY_VERIFY(!first);
        int visible = 0;
        for (QWidget *w : QApplication::topLevelWidgets())
            visible += qobject_cast<PositionCustomizerView *>(w) && w->isVisible() ? 1 : 0;
        QCOMPARE(visible, 2);
        QVERIFY(!open(999));
        QCOMPARE(PositionCustomizerWindowController::shared(), m_controller.get());
    }
};

QTEST_MAIN(tst_PositionCustomizer)
#include "tst_PositionCustomizer.moc"
