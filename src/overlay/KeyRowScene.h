#pragma once

#include "overlay/KeyMotion.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QSize>

#include <memory>
#include <vector>

class KeyView;

// A key row as a renderer needs it to work out frames ahead: copies of the caps and of their
// motions, the clock their times are on, and how the window shows them. Never changed once
// handed over.
struct KeyRowScene final {
    struct Cap {
        std::shared_ptr<const KeyView> view;
        KeyMotion motion;
    };

    std::vector<Cap> caps; // bottom to top
    QElapsedTimer clock;   // the motions' times are seconds on it
    double frameInterval = 1.0 / 60.0;
    double rowOpacity = 1.0;
    // The window cannot blend (no compositor): caps are drawn whole and the window is cut to them.
    bool opaque = false;
    // The window: its top-left corner in the row's coordinates, its size in device-independent
    // pixels and its device pixel ratio.
    QPoint origin;
    QSize windowSize;
    double devicePixelRatio = 1.0;
    // Draw at once (keys were added, or the look or place changed); otherwise a renderer whose
    // frames already run may leave the change to its next frame.
    bool urgent = true;
    // Changes with every change of look: images of caps of older looks are of no further use.
    quint64 lookGeneration = 0;

    double time() const { return static_cast<double>(clock.nsecsElapsed()) / 1e9; }
};
