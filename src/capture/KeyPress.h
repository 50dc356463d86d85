#pragma once

#include "capture/KeyCategory.h"

#include <QString>
#include <QUuid>

// One key or click on show. Every record gets a fresh id and the time of its creation; records
// are equal only when all five fields are.
struct KeyPress final {
    // Key codes of records that are not keys.
    static constexpr qint64 modifierSymbolCode = -1;
    static constexpr qint64 leftClickCode = -2;
    static constexpr qint64 rightClickCode = -3;

    QUuid id;
    QString keyName;
    qint64 keyCode = 0;
    KeyCategory category;
    double timestamp = 0.0; // seconds since the Unix epoch

    // A new record with a fresh id, stamped now.
    static KeyPress make(const QString &keyName, qint64 keyCode, KeyCategory category);
    // Seconds since the Unix epoch, with sub-millisecond precision.
    static double now();

    friend bool operator==(const KeyPress &a, const KeyPress &b)
    {
        return a.id == b.id && a.keyName == b.keyName && a.keyCode == b.keyCode &&
               a.category == b.category && a.timestamp == b.timestamp;
    }
};
