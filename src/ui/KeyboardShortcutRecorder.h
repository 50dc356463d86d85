#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

class KeyboardShortcuts;
class QKeyEvent;
class QPushButton;
class QToolButton;

// The control that records the global shortcut of one name. It shows the shortcut or "Record
// Shortcut"; a click records: the next combination with at least one of Ctrl, Alt and Super (or
// a function key alone) is taken at once; Escape cancels, Backspace or Delete clears, and so does
// the small clear button beside it. A combination that another program holds is refused with a
// message and the old shortcut stays.
class KeyboardShortcutRecorder final : public QWidget {
    Q_OBJECT

public:
    KeyboardShortcutRecorder(KeyboardShortcuts &shortcuts, const QString &name,
                             QWidget *parent = nullptr);
    ~KeyboardShortcutRecorder() override;

    QString name() const { return m_name; }
    bool isRecording() const { return m_recording; }
    void startRecording();
    void stopRecording();

    // Why the last combination was not taken; empty when it was.
    QString message() const { return m_message; }
    // The text the field shows now.
    QString text() const;
    QPushButton *field() const { return m_field; }
    QToolButton *clearButton() const { return m_clear; }

signals:
    void messageChanged(const QString &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void handleKeyPress(const QKeyEvent &event);
    void take(QKeyCombination combination);
    void setMessage(const QString &message);
    void showModifiers(Qt::KeyboardModifiers modifiers);
    void updateField();

    QPointer<KeyboardShortcuts> m_shortcuts;
    QString m_name;
    QPushButton *m_field;
    QToolButton *m_clear;
    QString m_message;
    bool m_recording = false;
};
