#include "capture/KeyNaming.h"

#include "capture/KeyCode.h"
#include "capture/KeyboardLayoutTranslator.h"

#include <QTextBoundaryFinder>

namespace {

// Command and Control are shown as their own caps, so they never reach the translation.
constexpr quint64 commandAndControl = ModifierFlag::Command | ModifierFlag::Control;

bool isSingleCharacter(const QString &text)
{
    if (text.size() == 1)
        return true;
    if (text.size() == 2 && text.at(0).isHighSurrogate() && text.at(1).isLowSurrogate())
        return true;
    // A user-perceived character: a base with combining marks, a flag, CR LF, ...
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return finder.toNextBoundary() == text.size();
}

bool isControlCharacter(char32_t scalar)
{
    const QChar::Category category = QChar::category(scalar);
    return category == QChar::Other_Control || category == QChar::Other_Format;
}

bool isLetter(char32_t scalar)
{
    switch (QChar::category(scalar)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
        return true;
    default:
        return false;
    }
}

} // namespace

KeyNaming::KeyNaming(KeyboardLayoutTranslator &translator) : m_translator(translator) {}

std::optional<QString> KeyNaming::name(int keyCode, quint64 flags,
                                       const std::function<QString()> &eventCharacters) const
{
    if (const std::optional<QString> text =
            m_translator.string(keyCode, flags & ~commandAndControl))
        if (std::optional<QString> label = sanitizeTranslatedCharacters(*text))
            return label;
    if (eventCharacters) {
        const QString text = eventCharacters();
        if (!text.isEmpty())
            if (std::optional<QString> label = sanitizeTranslatedCharacters(text))
                return label;
    }
    return getSymbolicKeyName(keyCode);
}

std::optional<QString> KeyNaming::sanitizeTranslatedCharacters(const QString &text)
{
    if (text.isEmpty())
        return std::nullopt;
    if (text == u" ")
        return QStringLiteral("␣");
    if (text == u"\t")
        return QStringLiteral("⇥");
    if (text == u"\r" || text == u"\n")
        return QStringLiteral("↩");
    if (!isSingleCharacter(text))
        return text;
    const char32_t scalar = text.at(0).isHighSurrogate() && text.size() > 1
                                ? QChar::surrogateToUcs4(text.at(0), text.at(1))
                                : text.at(0).unicode();
    if (isControlCharacter(scalar))
        return std::nullopt;
    // A letter shows as its capital, spelled in full where it takes several ("ß" is "SS").
    return isLetter(scalar) ? text.toUpper() : text;
}

std::optional<QString> KeyNaming::getSymbolicKeyName(int keyCode)
{
    switch (keyCode) {
    case KeyCode::Return:
        return QStringLiteral("↩");
    case KeyCode::Backslash:
        return QStringLiteral("\\");
    case KeyCode::Tab:
        return QStringLiteral("⇥");
    case KeyCode::Delete:
        return QStringLiteral("⌫");
    case KeyCode::Escape:
        return QStringLiteral("⎋");
    case KeyCode::F5:
        return QStringLiteral("F5");
    case KeyCode::F6:
        return QStringLiteral("F6");
    case KeyCode::F7:
        return QStringLiteral("F7");
    case KeyCode::F3:
        return QStringLiteral("F3");
    case KeyCode::F8:
        return QStringLiteral("F8");
    case KeyCode::F9:
        return QStringLiteral("F9");
    case KeyCode::F11:
        return QStringLiteral("F11");
    case KeyCode::F10:
        return QStringLiteral("F10");
    case KeyCode::F12:
        return QStringLiteral("F12");
    case KeyCode::Home:
        return QStringLiteral("↖");
    case KeyCode::PageUp:
        return QStringLiteral("⇞");
    case KeyCode::ForwardDelete:
        return QStringLiteral("⌦");
    case KeyCode::F4:
        return QStringLiteral("F4");
    case KeyCode::End:
        return QStringLiteral("↘");
    case KeyCode::F2:
        return QStringLiteral("F2");
    case KeyCode::PageDown:
        return QStringLiteral("⇟");
    case KeyCode::F1:
        return QStringLiteral("F1");
    case KeyCode::LeftArrow:
        return QStringLiteral("←");
    case KeyCode::RightArrow:
        return QStringLiteral("→");
    case KeyCode::DownArrow:
        return QStringLiteral("↓");
    case KeyCode::UpArrow:
        return QStringLiteral("↑");
    default:
        return std::nullopt;
    }
}
