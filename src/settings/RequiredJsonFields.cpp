#include "settings/RequiredJsonFields.h"

#include <QJsonValue>

#include <cmath>

void RequiredJsonFields::read(const char *key, double &out)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isDouble())
        out = v.toDouble();
    else
        m_ok = false;
}

void RequiredJsonFields::read(const char *key, bool &out)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isBool())
        out = v.toBool();
    else
        m_ok = false;
}

void RequiredJsonFields::read(const char *key, QString &out)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isString())
        out = v.toString();
    else
        m_ok = false;
}

void RequiredJsonFields::read(const char *key, quint32 &out)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    const double number = v.toDouble(-1.0);
    if (v.isDouble() && number >= 0.0 && number <= 4294967295.0 && std::trunc(number) == number)
        out = quint32(number);
    else
        m_ok = false;
}
