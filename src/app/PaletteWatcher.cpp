#include "app/PaletteWatcher.h"

#include <QCoreApplication>
#include <QEvent>

PaletteWatcher::PaletteWatcher(QObject *parent) : QObject(parent)
{
    // Hidden top-level widgets (such as the tray's menu) are not told, so only the application
    // object is sure to hear of it.
    QCoreApplication::instance()->installEventFilter(this);
}

bool PaletteWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange &&
        watched == QCoreApplication::instance())
        emit paletteChanged();
    return false;
}
