#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

// Writes compact JSON text with object keys in the order they are given (QJsonObject sorts
// them) and numbers in their shortest form that reads back to the same double.
//
// A number that JSON cannot hold (infinite, not a number) makes the whole result invalid, so
// that callers write nothing rather than something that will not read back.
class JsonWriter final {
public:
    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    // The key of the next value inside an object.
    void key(const QString &name);

    void value(const QString &text);
    void value(bool flag);
    void value(double number);
    void value(quint32 number);

    bool isValid() const { return m_valid && m_openContainers.isEmpty(); }
    // The UTF-8 text written so far.
    QByteArray data() const { return m_data; }

private:
    void beforeValue();
    void writeString(const QString &text);

    QByteArray m_data;
    // For each open container: whether it already holds an element.
    QList<bool> m_openContainers;
    bool m_afterKey = false;
    bool m_valid = true;
};
