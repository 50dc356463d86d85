#pragma once

#include "settings/AppSettings.h"

#include <QString>
#include <QtGlobal>

// The settings of one display, connected or not: whether keys show there and where.
// The custom offsets are fractions of the display (0 = left/top edge, 1 = right/bottom edge)
// locating the centre of the key row when `position` is custom.
struct DisplayConfiguration final {
    quint32 id = 0;
    QString name;
    bool isEnabled = false;
    AppSettings::KeyPosition position = AppSettings::KeyPosition::bottomCenter;
    double customOffsetX = 0.5;
    double customOffsetY = 0.85;

    friend bool operator==(const DisplayConfiguration &, const DisplayConfiguration &) = default;
};
