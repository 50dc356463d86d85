#pragma once

#include <QRect>
#include <QtGlobal>

#include <memory>

// One overlay window showing the keys on one display. The key manager decides which windows
// exist and where they sit; how a window is made is the user interface's business.
class KeyDisplayWindow {
public:
    virtual ~KeyDisplayWindow() = default;

    // Fits the window to `frame` (the display's available area) and redraws.
    virtual void setFrame(const QRect &frame) = 0;
    // Shows the window above ordinary windows.
    virtual void orderFront() = 0;
    virtual void close() = 0;
};

// Makes the overlay window of one display.
class KeyDisplayWindowFactory {
public:
    virtual ~KeyDisplayWindowFactory() = default;

    // A new, not yet shown window over `screenFrame` (the display's whole area).
    virtual std::unique_ptr<KeyDisplayWindow> createWindow(quint32 displayID,
                                                           const QRect &screenFrame) = 0;
};
