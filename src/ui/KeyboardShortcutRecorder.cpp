#include "ui/KeyboardShortcutRecorder.h"

#include "shortcuts/KeyboardShortcuts.h"
#include "ui/Symbols.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr Qt::KeyboardModifiers recordedModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

} // namespace

KeyboardShortcutRecorder::KeyboardShortcutRecorder(KeyboardShortcuts &shortcuts,
                                                   const QString &name, QWidget *parent)
    : QWidget(parent), m_shortcuts(&shortcuts), m_name(name), m_field(new QPushButton),
      m_clear(new QToolButton)
{
    m_field->setCheckable(true);
    m_field->setMinimumWidth(150);
    m_field->setFocusPolicy(Qt::StrongFocus);
    m_field->installEventFilter(this);
    connect(m_field, &QPushButton::clicked, this, [this] {
        if (m_recording)
            stopRecording();
        else
            startRecording();
    });

    m_clear->setAutoRaise(true);
    m_clear->setToolTip(tr("Clear Shortcut"));
    m_clear->setAccessibleName(tr("Clear Shortcut"));
    m_clear->setFocusPolicy(Qt::TabFocus);
    // Keeps its room when hidden, so that the field does not move.
    QSizePolicy policy = m_clear->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_clear->setSizePolicy(policy);
    connect(m_clear, &QToolButton::clicked, this, [this] {
        stopRecording();
        setMessage({});
        if (m_shortcuts)
            m_shortcuts->reset(m_name);
    });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_field);
    layout->addWidget(m_clear);

    // A refusal may no longer hold once any shortcut changed, or another program let go.
    const auto reconsider = [this] {
        setMessage({});
        updateField();
    };
    connect(&shortcuts, &KeyboardShortcuts::shortcutByNameDidChange, this, reconsider);
    connect(&shortcuts, &KeyboardShortcuts::takenStatusDidChange, this, reconsider);
    changeEvent(nullptr);
    updateField();
}

KeyboardShortcutRecorder::~KeyboardShortcutRecorder()
{
    if (m_shortcuts)
        m_shortcuts->setRecorderActive(this, false);
}

QString KeyboardShortcutRecorder::text() const
{
    return m_field->text();
}

void KeyboardShortcutRecorder::startRecording()
{
    if (m_recording || !m_shortcuts)
        return;
    m_recording = true;
    setMessage({});
    m_shortcuts->setRecorderActive(this, true);
    m_field->setFocus(Qt::OtherFocusReason);
    // An active grab outranks the key grabs of other programs, so that a combination they hold
    // reaches the recorder and can be reported as taken.
    m_field->grabKeyboard();
    updateField();
}

void KeyboardShortcutRecorder::stopRecording()
{
    if (!m_recording)
        return;
    m_recording = false;
    m_field->releaseKeyboard();
    if (m_shortcuts)
        m_shortcuts->setRecorderActive(this, false);
    updateField();
}

bool KeyboardShortcutRecorder::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || !m_recording)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Every key goes to the recorder, none to the window's own shortcuts.
        event->accept();
        return true;
    case QEvent::KeyPress:
        handleKeyPress(static_cast<const QKeyEvent &>(*event));
        return true;
    case QEvent::KeyRelease:
        showModifiers(static_cast<const QKeyEvent *>(event)->modifiers());
        return true;
    case QEvent::FocusOut:
        stopRecording();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void KeyboardShortcutRecorder::changeEvent(QEvent *event)
{
    if (!event || event->type() == QEvent::PaletteChange) {
        const QIcon icon = Symbols::icon(QStringLiteral("xmark.circle.fill"),
                                         palette().color(QPalette::PlaceholderText));
        m_clear->setIcon(icon);
        m_clear->setText(icon.isNull() ? QStringLiteral("\u00d7") : QString());
    }
    if (event)
        QWidget::changeEvent(event);
}

void KeyboardShortcutRecorder::handleKeyPress(const QKeyEvent &event)
{
    const int key = event.key();
    const Qt::KeyboardModifiers modifiers = event.modifiers() & recordedModifiers;
    if (KeyboardShortcuts::isModifierKey(key)) {
        showModifiers(modifiers);
        return;
    }
    if (modifiers == Qt::NoModifier && key == Qt::Key_Escape) {
        stopRecording();
        return;
    }
    if (modifiers == Qt::NoModifier && (key == Qt::Key_Backspace || key == Qt::Key_Delete)) {
        stopRecording();
        if (m_shortcuts)
            m_shortcuts->reset(m_name);
        return;
    }
    if (key == 0 || key == Qt::Key_unknown)
        return;
    const QKeyCombination combination(modifiers, Qt::Key(key));
    if (!KeyboardShortcuts::isAllowed(combination)) {
        setMessage(tr("Use at least one of Ctrl, Alt and Super, or a function key"));
        return;
    }
    take(combination);
}

void KeyboardShortcutRecorder::take(QKeyCombination combination)
{
    stopRecording();
    if (!m_shortcuts)
        return;
    const QKeySequence sequence(combination);
    const QString text = sequence.toString(QKeySequence::NativeText);
    switch (m_shortcuts->setShortcut(m_name, sequence)) {
    case KeyboardShortcuts::SetResult::set:
        setMessage({});
        break;
    case KeyboardShortcuts::SetResult::takenByAnotherProgram:
        setMessage(tr("%1 is already used by another program").arg(text));
        break;
    case KeyboardShortcuts::SetResult::takenByAnotherShortcut:
        setMessage(tr("%1 is already used by another shortcut").arg(text));
        break;
    case KeyboardShortcuts::SetResult::unavailable:
        setMessage(tr("%1 cannot be used on this keyboard").arg(text));
        break;
    }
}

void KeyboardShortcutRecorder::setMessage(const QString &message)
{
    if (message == m_message)
        return;
    m_message = message;
    m_field->setToolTip(message);
    emit messageChanged(message);
}

void KeyboardShortcutRecorder::showModifiers(Qt::KeyboardModifiers modifiers)
{
    if (!m_recording)
        return;
    const QString held = QKeySequence(QKeyCombination(modifiers & recordedModifiers, Qt::Key(0)))
                             .toString(QKeySequence::NativeText);
    m_field->setText(modifiers & recordedModifiers ? held + QStringLiteral("\u2026")
                                                   : tr("Press Shortcut"));
}

void KeyboardShortcutRecorder::updateField()
{
    const QKeySequence shortcut = m_shortcuts ? m_shortcuts->shortcut(m_name) : QKeySequence();
    m_field->setChecked(m_recording);
    m_clear->setVisible(!m_recording && !shortcut.isEmpty());
    if (m_recording)
        m_field->setText(tr("Press Shortcut"));
    else if (shortcut.isEmpty())
        m_field->setText(tr("Record Shortcut"));
    else
        m_field->setText(shortcut.toString(QKeySequence::NativeText));
    if (!m_recording && m_shortcuts && m_shortcuts->isTakenByAnotherProgram(m_name))
        setMessage(tr("%1 is already used by another program")
                       .arg(shortcut.toString(QKeySequence::NativeText)));
}
