#include "FakeHotKeyGrabber.h"

#include "settings/SettingsStore.h"
#include "shortcuts/KeyboardShortcuts.h"
#include "ui/KeyShortcutsSettingsView.h"
#include "ui/KeyboardShortcutRecorder.h"
#include "ui/SettingsForm.h"

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

class tst_KeyboardShortcutRecorder final : public QObject {
    Q_OBJECT

    const QString m_name = u"toggleVantrel"_qs;
    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    FakeHotKeyGrabber *m_grabber = nullptr;
    std::unique_ptr<KeyboardShortcuts> m_shortcuts;
    std::unique_ptr<KeyboardShortcutRecorder> m_recorder;

private slots:
    // Ctrl+Alt+K recorded; another program holds Ctrl+Alt+T.
    void init()
    {
        QFile::remove(m_dir.filePath(u"Vantrel.conf"_qs));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(u"Vantrel.conf"_qs));
        auto grabber = std::make_unique<FakeHotKeyGrabber>();
        grabber->taken.append(QKeyCombination(Qt::CTRL | Qt::ALT, Qt::Key_T));
        m_grabber = grabber.get();
        m_shortcuts = std::make_unique<KeyboardShortcuts>(*m_store, std::move(grabber));
        m_shortcuts->setShortcut(m_name, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_K));
        m_recorder = std::make_unique<KeyboardShortcutRecorder>(*m_shortcuts, m_name);
        m_recorder->show();
        QVERIFY(QTest::qWaitForWindowActive(m_recorder.get()));
    }

    void records_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("storedAfter");
        QTest::addColumn<bool>("stillRecording");
        const QString old = u"Ctrl+Alt+K"_qs;
        const Qt::KeyboardModifiers none = Qt::NoModifier;
        QTest::newRow("Escape cancels") << int(Qt::Key_Escape) << none << old << false;
        QTest::newRow("Backspace clears") << int(Qt::Key_Backspace) << none << QString() << false;
        QTest::newRow("Delete clears") << int(Qt::Key_Delete) << none << QString() << false;
        QTest::newRow("plain key refused") << int(Qt::Key_K) << none << old << true;
        QTest::newRow("Shift+K refused")
            << int(Qt::Key_K) << Qt::KeyboardModifiers(Qt::ShiftModifier) << old << true;
        QTest::newRow("modifier alone waits")
            << int(Qt::Key_Control) << Qt::KeyboardModifiers(Qt::ControlModifier) << old << true;
        QTest::newRow("F5 alone taken") << int(Qt::Key_F5) << none << u"F5"_qs << false;
        QTest::newRow("Ctrl+Shift+J taken")
            << int(Qt::Key_J) << (Qt::ControlModifier | Qt::ShiftModifier) << u"Ctrl+Shift+J"_qs
            << false;
        QTest::newRow("Super+Alt+1 taken")
            << int(Qt::Key_1) << (Qt::MetaModifier | Qt::AltModifier) << u"Meta+Alt+1"_qs << false;
        QTest::newRow("held by another program")
            << int(Qt::Key_T) << (Qt::ControlModifier | Qt::AltModifier) << old << false;
    }
    void records()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, storedAfter);
        QFETCH(bool, stillRecording);
        QTest::mouseClick(m_recorder->field(), Qt::LeftButton);
        QVERIFY(m_shortcuts->isRecorderActive());
        QTest::keyClick(m_recorder->field(), Qt::Key(key), modifiers);
        QCOMPARE(m_shortcuts->shortcut(m_name).toString(QKeySequence::PortableText), storedAfter);
        QCOMPARE(m_recorder->isRecording(), stillRecording);
        QCOMPARE(m_shortcuts->isRecorderActive(), stillRecording);
    }

    void reportsTakenCombination()
    {
        QTest::mouseClick(m_recorder->field(), Qt::LeftButton);
        QTest::keyClick(m_recorder->field(), Qt::Key_T, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(m_recorder->message(), u"Ctrl+Alt+T is already used by another program"_qs);
        QCOMPARE(m_recorder->text(), u"Ctrl+Alt+K"_qs);
    }

    // A stored shortcut that another program held at start says so in the tab, which tries the
    // grab again each time it opens.
    void tabShowsShortcutTakenAtStart()
    {
        const QString name = u"toggleMouseClicks"_qs;
        m_store->setRawValue(KeyboardShortcuts::settingsKey(name), u"Ctrl+Alt+T"_qs);
        m_shortcuts->onKeyUp(name, [] {});
        KeyShortcutsSettingsView tab(*m_shortcuts);
        const auto description = [&] {
            return qobject_cast<SettingsRow *>(tab.recorder(name)->parentWidget())
                ->descriptionLabel()
                ->text();
        };
        QCOMPARE(description(), u"Ctrl+Alt+T is already used by another program"_qs);
        m_grabber->taken.clear();
        tab.show();
        QCOMPARE(description(), QString());
        QCOMPARE(m_grabber->grabs.value(name), QKeyCombination(Qt::CTRL | Qt::ALT, Qt::Key_T));
    }

    // Without global grabs the tab names the desktop's keyboard settings and shows, selectable,
    // the command of each shortcut in place of its recorder.
    void tabShowsCommandsWithoutGrabs()
    {
        const QStringList commands{u"vantrel --toggle"_qs, u"vantrel --increase-key-size"_qs,
                                   u"vantrel --decrease-key-size"_qs,
                                   u"vantrel --position-customizer"_qs,
                                   u"vantrel --toggle-mouse-clicks"_qs};
        const QStringList names{u"toggleVantrel"_qs, u"increaseKeySize"_qs, u"decreaseKeySize"_qs,
                                u"openPositionCustomizer"_qs, u"toggleMouseClicks"_qs};
        QHash<QString, QString> byName;
        for (int i = 0; i < names.size(); ++i)
            byName.insert(names.at(i), commands.at(i));
        KeyShortcutsSettingsView tab(*m_shortcuts, byName);
        QStringList shown;
        bool noteShown = false;
        for (const QLabel *label : tab.findChildren<QLabel *>()) {
            noteShown = noteShown || label->text() ==
                                         u"This desktop lets you bind keys to "
                                         "Vantrel's commands in its keyboard settings"_qs;
            if (label->text().startsWith(u"vantrel "_qs) &&
                label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse))
                shown.append(label->text());
        }
        QVERIFY(noteShown);
        QCOMPARE(shown, commands);
        QVERIFY(!tab.recorder(m_name));
    }

    void clearButtonShowsPlaceholder()
    {
        QTest::mouseClick(m_recorder->clearButton(), Qt::LeftButton);
        QVERIFY(m_shortcuts->shortcut(m_name).isEmpty());
        QCOMPARE(m_recorder->text(), u"Record Shortcut"_qs);
    }
};

QTEST_MAIN(tst_KeyboardShortcutRecorder)
#include "tst_KeyboardShortcutRecorder.moc"
