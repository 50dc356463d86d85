#pragma once

#include "settings/AppSettings.h"

#include <QJsonValue>
#include <QString>
#include <QtGlobal>

#include <optional>

class JsonWriter;

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

    // JSON: {"id", "name", "isEnabled", "position" (raw text), "customOffsetX", "customOffsetY"}.
    void write(JsonWriter &writer) const;
    // Every key is required; a position text that names no position fails the read.
    static std::optional<DisplayConfiguration> fromJson(const QJsonValue &json);

    friend bool operator==(const DisplayConfiguration &, const DisplayConfiguration &) = default;
};
