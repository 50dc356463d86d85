#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <optional>
#include <type_traits>
#include <utility>

// How a value of type T is kept in the settings store. Decoding is strict: a value of another
// type yields nothing, so that the reader falls back to the setting's built-in default.
// `expected()` names the kind of value for messages about stored values that do not read.
template <typename T> struct SettingCodec;

template <> struct SettingCodec<bool> {
    static std::optional<bool> decode(const QVariant &value)
    {
        if (value.typeId() == QMetaType::Bool)
            return value.toBool();
        const QString text = value.toString().trimmed().toLower();
        if (text == u"true" || text == u"1")
            return true;
        if (text == u"false" || text == u"0")
            return false;
        return std::nullopt;
    }
    static QVariant encode(bool value) { return value; }
    static QString expected() { return QStringLiteral("true or false"); }
};

template <> struct SettingCodec<double> {
    static std::optional<double> decode(const QVariant &value)
    {
        bool ok = false;
        const double result = value.typeId() == QMetaType::QString
                                  ? value.toString().trimmed().toDouble(&ok)
                                  : value.toDouble(&ok);
        if (!ok || !std::isfinite(result))
            return std::nullopt;
        return result;
    }
    static QVariant encode(double value) { return value; }
    static QString expected() { return QStringLiteral("a number"); }
};

template <> struct SettingCodec<int> {
    static std::optional<int> decode(const QVariant &value)
    {
        bool ok = false;
        const int result = value.typeId() == QMetaType::QString
                               ? value.toString().trimmed().toInt(&ok)
                               : value.toInt(&ok);
        if (!ok)
            return std::nullopt;
        return result;
    }
    static QVariant encode(int value) { return value; }
    static QString expected() { return QStringLiteral("a whole number"); }
};

template <> struct SettingCodec<QString> {
    static std::optional<QString> decode(const QVariant &value)
    {
        if (value.typeId() != QMetaType::QString)
            return std::nullopt;
        return value.toString();
    }
    static QVariant encode(const QString &value) { return value; }
    static QString expected() { return QStringLiteral("text"); }
};

template <> struct SettingCodec<QByteArray> {
    static std::optional<QByteArray> decode(const QVariant &value)
    {
        if (value.typeId() == QMetaType::QByteArray)
            return value.toByteArray();
        if (value.typeId() == QMetaType::QString)
            return value.toString().toUtf8();
        return std::nullopt;
    }
    static QVariant encode(const QByteArray &value) { return value; }
    static QString expected() { return QStringLiteral("text"); }
};

// One setting: its key in the store, its built-in default and, for numbers, the range the
// settings window offers. Every setting of the program is declared once as such a constant (see
// AppSettings.h); readers never name a default or a range themselves.
template <typename T> struct Setting {
    // Both ends included.
    struct Range {
        T minimum;
        T maximum;
    };

    const char *key;
    T defaultValue;
    std::optional<Range> range;

    Setting(const char *settingKey, T settingDefault)
        : key(settingKey), defaultValue(std::move(settingDefault))
    {}
    Setting(const char *settingKey, T settingDefault,
            Range settingRange) requires std::is_arithmetic_v<T>
        : key(settingKey), defaultValue(std::move(settingDefault)), range(settingRange)
    {}

    QString name() const { return QString::fromLatin1(key); }

    // The value itself, or the nearest end of the range.
    T clamped(T value) const requires std::is_arithmetic_v<T>
    {
        return range ? std::clamp(value, range->minimum, range->maximum) : value;
    }
};
