// The position customizer: where the sample cap starts, how a drag moves it and the card, and
// what each way of finishing saves.
#include "FakeScreenList.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "ui/PositionCustomizerHeader.h"
#include "ui/PositionCustomizerView.h"
#include "ui/PositionCustomizerWindowController.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using Position = AppSettings::KeyPosition;

namespace {
constexpr quint32 leftID = 11, rightID = 22, unknownID = 33; // unknown: not yet in the store
const QRect leftArea(0, 0, 1000, 800), rightArea(1000, 0, 800, 600);
} // namespace

class tst_PositionCustomizer final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    FakeScreenList m_screens;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    std::unique_ptr<PositionCustomizerWindowController> m_controller;

    PositionCustomizerView *open(quint32 id)
    {
        m_controller->showPositioningOverlay(id);
        auto *view = qobject_cast<PositionCustomizerView *>(m_controller->window(id));
        // Without a compositor it shows once the desktop has been captured.
        return !view || QTest::qWaitFor([view] { return view->isVisible(); }) ? view : nullptr;
    }
    DisplayConfiguration stored(quint32 id) const { return *m_displays->configuration(id); }

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_settings =
            std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_screens.list = {{leftID, QStringLiteral("Left"), leftArea, leftArea},
                          {rightID, QStringLiteral("Right"), rightArea, rightArea}};
        m_screens.main = leftID;
        m_displays = std::make_unique<DisplaySettingsStore>(*m_settings, m_screens);
        m_screens.list.append({unknownID, QStringLiteral("New"), rightArea, rightArea});
        m_controller =
            std::make_unique<PositionCustomizerWindowController>(*m_displays, *m_settings);
    }
    void cleanup()
    {
        m_controller.reset();
        m_displays.reset();
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
        QTest::newRow("unknown display") << unknownID << false << QPointF(0.5, 0.85) << true;
    }
    void initialState()
    {
        QFETCH(quint32, id);
        QFETCH(bool, customise);
        QFETCH(QPointF, expected);
        QFETCH(bool, headerAtTop);
        if (customise) {
            m_displays->setCustomOffset(0.2, 0.1, id);
            m_displays->setPosition(Position::bottomLeft, id);
        }
        PositionCustomizerView *view = open(id);
        QCOMPARE(QPointF(view->offsetX(), view->offsetY()), expected);
        QCOMPARE(view->isHeaderAtTop(), headerAtTop);
        QCOMPARE(view->geometry(), m_screens.screen(id)->availableGeometry);
    }

    void dragIsClamped_data()
    {
        QTest::addColumn<QPointF>("location");
        QTest::addColumn<QPointF>("expected");
        QTest::newRow("past left and top") << QPointF(-50, -50) << QPointF(0.05, 0.03);
        QTest::newRow("past right and bottom") << QPointF(1200, 900) << QPointF(0.95, 0.97);
    }
    void dragIsClamped()
    {
        QFETCH(QPointF, location);
        QFETCH(QPointF, expected);
        PositionCustomizerView *view = open(leftID);
        view->dragChanged(location);
        QCOMPARE(QPointF(view->offsetX(), view->offsetY()), expected);
        QCOMPARE(stored(leftID).position, Position::bottomCenter); // nothing saved while dragging
    }

    void headerKeepsClearOfTheCap()
    {
        m_displays->setCustomOffset(0.5, 0.5, leftID);
        PositionCustomizerView *view = open(leftID);
        for (const auto &[y, atTop] : {std::pair{0.14, false}, {0.5, false}, {0.86, true}}) {
            view->dragChanged(QPointF(500, y * 800));
            QCOMPARE(view->isHeaderAtTop(), atTop);
        }
        QTRY_VERIFY(view->header()->y() < 100); // after its move
    }

    void finishing_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("Escape") << 0;
        QTest::newRow("Done") << 1;
        QTest::newRow("click anywhere") << 2;
    }
    void finishing()
    {
        QFETCH(int, how);
        QSignalSpy closed(m_controller.get(), &PositionCustomizerWindowController::overlayClosed);
        QSignalSpy changed(m_displays.get(), &DisplaySettingsStore::displaySettingsChanged);
        PositionCustomizerView *view = open(leftID);
        QTest::mousePress(view, Qt::LeftButton, {}, view->sampleKeyFrame().center().toPoint());
        QTest::mouseMove(view, QPoint(300, 300));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(100, 80));
        if (how == 0)
            QTest::keyClick(view, Qt::Key_Escape);
        else if (how == 1)
            view->header()->doneButton()->click();
        else
            QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(700, 500));
        const DisplayConfiguration saved = stored(leftID);
        QCOMPARE(saved.position, Position::custom);
        QCOMPARE(QPointF(saved.customOffsetX, saved.customOffsetY), QPointF(0.1, 0.1));
        QCOMPARE(closed.size(), 1);
        QVERIFY(!m_controller->window(leftID));
        QVERIFY(!changed.isEmpty()); // the live overlay moves its keys
    }

    void escapeAfterClosingSavesNothing()
    {
        QPointer<PositionCustomizerView> view = open(leftID);
        view->saveAndDismiss();
        m_displays->setPosition(Position::topLeft, leftID);
        QTest::keyClick(view, Qt::Key_Escape);
        QCOMPARE(stored(leftID).position, Position::topLeft);
    }

    void hideAndLook()
    {
        PositionCustomizerView *view = open(leftID);
        view->header()->hideButton()->click();
        QTRY_VERIFY(!view->header()->isVisible());
        const QSizeF before = view->sampleKeyFrame().size();
        m_settings->setValue(AppSettings::keySize, 3.0);
        QCOMPARE(view->sampleKeyFrame().size(), before * 1.5);
    }

    void oneOverlayPerDisplay()
    {
        QPointer<PositionCustomizerView> first = open(leftID);
        QVERIFY(open(leftID) != first && open(rightID));
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
