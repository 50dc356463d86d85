#include "ui/SettingsView.h"

#include "ui/AboutSettingsView.h"
#include "ui/DisplaySettingsView.h"
#include "ui/GeneralSettingsView.h"
#include "ui/Symbols.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QWidget *placeholder(const QString &text)
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setEnabled(false);
    return label;
}

} // namespace

SettingsView::SettingsView(SettingsStore &store, KeyManager &keyManager,
                           DisplaySettingsStore &displayStore, LoginItem &loginItem,
                           std::function<void(quint32)> openPositionCustomizer, QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::WindowStaysOnTopHint), m_tabs(new QTabWidget)
{
    setWindowTitle(tr("Vantrel Settings"));
    setObjectName(QStringLiteral("SettingsView"));

    m_tabs->setDocumentMode(true);
    m_tabs->setIconSize(QSize(16, 16));
    addTab(new GeneralSettingsView(store, keyManager, loginItem), tr("General"),
           QStringLiteral("gear"));
    addTab(placeholder(tr("Appearance settings are not available yet.")), tr("Appearance"),
           QStringLiteral("paintbrush"));
    addTab(new DisplaySettingsView(displayStore, std::move(openPositionCustomizer)), tr("Displays"),
           QStringLiteral("display"));
    addTab(placeholder(tr("Shortcut settings are not available yet.")), tr("Shortcuts"),
           QStringLiteral("keyboard"));
    addTab(new AboutSettingsView, tr("About"), QStringLiteral("info.circle"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);

    setFixedWidth(windowWidth);
    setMaximumHeight(maximumWindowHeight);
    resize(windowWidth, maximumWindowHeight);

    auto *close = new QShortcut(QKeySequence::Close, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
}

void SettingsView::addTab(QWidget *content, const QString &title, const QString &symbolName)
{
    // The window keeps its height limit; tall tabs scroll.
    auto *scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(content);
    m_tabs->addTab(scroll, Symbols::icon(symbolName), title);
}

QWidget *SettingsView::content(Tab tab) const
{
    const auto *scroll = static_cast<QScrollArea *>(m_tabs->widget(tab));
    return scroll ? scroll->widget() : nullptr;
}

void SettingsView::setContent(Tab tab, QWidget *content)
{
    auto *scroll = static_cast<QScrollArea *>(m_tabs->widget(tab));
    delete scroll->takeWidget();
    scroll->setWidget(content);
}

void SettingsView::setAppearanceContent(QWidget *content)
{
    setContent(appearance, content);
}

void SettingsView::setShortcutsContent(QWidget *content)
{
    setContent(shortcuts, content);
}

void SettingsView::showAndRaise()
{
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    if (!m_placed) {
        // Centred on the screen the user works on; without a window manager nothing else would
        // place it, and the top-left corner is where panels and trays often sit.
        QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
        if (!screen)
            screen = QGuiApplication::primaryScreen();
        if (screen) {
            // As tall as allowed, not as tall as the first tab wants: the others are taller.
            resize(windowWidth, qMin(maximumWindowHeight, screen->availableGeometry().height()));
            QRect frame(QPoint(), size());
            frame.moveCenter(screen->availableGeometry().center());
            move(frame.topLeft());
        }
        m_placed = true;
    }
    show();
    raise();
    activateWindow();
}
