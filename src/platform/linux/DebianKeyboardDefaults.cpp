#include "platform/linux/DebianKeyboardDefaults.h"

#include <QFile>

namespace {

// A shell word: unquoted, '…' and "…" parts joined, up to unquoted blank space (after which only
// a comment may follow). Expansions are kept as written; the file has none in practice.
QString shellWord(QByteArrayView text)
{
    QByteArray word;
    char quote = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quote == '\'') {
            if (c == '\'')
                quote = 0;
            else
                word += c;
        } else if (c == '\\' && i + 1 < text.size() &&
                   (!quote || QByteArrayView("\"\\$`").contains(text[i + 1]))) {
            word += text[++i];
        } else if (quote == '"') {
            if (c == '"')
                quote = 0;
            else
                word += c;
        } else if (c == '\'' || c == '"') {
            quote = c;
        } else if (c == ' ' || c == '\t' || c == '#' || c == ';') {
            break;
        } else {
            word += c;
        }
    }
    return QString::fromUtf8(word);
}

} // namespace

std::optional<DebianKeyboardDefaults> DebianKeyboardDefaults::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return parse(file.readAll());
}

DebianKeyboardDefaults DebianKeyboardDefaults::parse(const QByteArray &text)
{
    DebianKeyboardDefaults defaults;
    for (QByteArrayView line : text.split('\n')) {
        line = line.trimmed();
        if (line.startsWith("export "))
            line = line.sliced(7).trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('#') || equals <= 0)
            continue;
        const QByteArrayView name = line.first(equals);
        const QString value = shellWord(line.sliced(equals + 1));
        if (name == "XKBMODEL")
            defaults.m_model = value;
        else if (name == "XKBLAYOUT")
            defaults.m_layout = value;
        else if (name == "XKBVARIANT")
            defaults.m_variant = value;
        else if (name == "XKBOPTIONS")
            defaults.m_options = value;
    }
    return defaults;
}
