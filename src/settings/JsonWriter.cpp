#include "settings/JsonWriter.h"

#include <QLocale>

#include <cmath>

void JsonWriter::beforeValue()
{
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (!m_openContainers.isEmpty()) {
        if (m_openContainers.last())
            m_data += ',';
        m_openContainers.last() = true;
    }
}

void JsonWriter::beginObject()
{
    beforeValue();
    m_data += '{';
    m_openContainers.append(false);
}

void JsonWriter::endObject()
{
    if (m_openContainers.isEmpty()) {
        m_valid = false;
        return;
    }
    m_openContainers.removeLast();
    m_data += '}';
}

void JsonWriter::beginArray()
{
    beforeValue();
    m_data += '[';
    m_openContainers.append(false);
}

void JsonWriter::endArray()
{
    if (m_openContainers.isEmpty()) {
        m_valid = false;
        return;
    }
    m_openContainers.removeLast();
    m_data += ']';
}

void JsonWriter::key(const QString &name)
{
    beforeValue();
    writeString(name);
    m_data += ':';
    m_afterKey = true;
}

void JsonWriter::value(const QString &text)
{
    beforeValue();
    writeString(text);
}

void JsonWriter::value(bool flag)
{
    beforeValue();
    m_data += flag ? "true" : "false";
}

void JsonWriter::value(double number)
{
    beforeValue();
    if (!std::isfinite(number)) {
        m_valid = false;
        m_data += "null";
        return;
    }
    // The shortest text that reads back as exactly this double ("0.1", "2", "1e+300").
    m_data += QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

void JsonWriter::value(quint32 number)
{
    beforeValue();
    m_data += QByteArray::number(number);
}

void JsonWriter::writeString(const QString &text)
{
    static const char hex[] = "0123456789abcdef";
    QByteArray out;
    out.reserve(text.size() + 2);
    out += '"';
    for (const char byte : text.toUtf8()) {
        const auto c = static_cast<unsigned char>(byte);
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\b':
            out += "\\b";
            break;
        case '\f':
            out += "\\f";
            break;
        default:
            if (c < 0x20) {
                out += "\\u00";
                out += hex[c >> 4];
                out += hex[c & 0xF];
            } else {
                out += char(c);
            }
        }
    }
    out += '"';
    m_data += out;
}
