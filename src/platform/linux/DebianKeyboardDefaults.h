#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The system's keyboard as Debian and its derivatives configure it: /etc/default/keyboard, a
// shell fragment of XKBMODEL, XKBLAYOUT, XKBVARIANT and XKBOPTIONS assignments. The layout of
// last resort where the desktop gives Vantrel no keymap.
class DebianKeyboardDefaults final {
public:
    // None when the file cannot be read.
    static std::optional<DebianKeyboardDefaults>
    read(const QString &path = QStringLiteral("/etc/default/keyboard"));
    static DebianKeyboardDefaults parse(const QByteArray &text);

    QString model() const { return m_model; }
    QString layout() const { return m_layout; }
    QString variant() const { return m_variant; }
    QString options() const { return m_options; }

private:
    QString m_model;
    QString m_layout;
    QString m_variant;
    QString m_options;
};
