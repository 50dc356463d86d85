#pragma once

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

// Reads typed, required members of a JSON object, as a strict decoder does: a member that is
// missing or of another type makes the whole read fail (`ok()` false). Numbers must be numbers
// (no text), and an unsigned 32-bit member must be a whole number within its range.
class RequiredJsonFields final {
public:
    explicit RequiredJsonFields(const QJsonObject &object) : m_object(object) {}

    void read(const char *key, double &out);
    void read(const char *key, bool &out);
    void read(const char *key, QString &out);
    void read(const char *key, quint32 &out);

    bool ok() const { return m_ok; }

private:
    QJsonObject m_object;
    bool m_ok = true;
};
