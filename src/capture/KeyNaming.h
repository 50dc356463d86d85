#pragma once

#include <QString>

#include <functional>
#include <optional>

class KeyboardLayoutTranslator;

// Names a key-down event for its key cap. Three sources are tried in order: the current keyboard
// layout, the characters the event itself carries, then a fixed table of symbols. Every text
// passes one clean-up step that shows whitespace as visible symbols and drops control characters,
// so that the next source gets its turn. Safe to call from the capture thread.
class KeyNaming final {
public:
    explicit KeyNaming(KeyboardLayoutTranslator &translator);

    // The label of a key-down event from the three sources in order, or nothing.
    // eventCharacters: the event's own text (xkbcommon UTF-8 under the full current state), asked
    // lazily only when needed.
    std::optional<QString> name(int keyCode, quint64 flags,
                                const std::function<QString()> &eventCharacters) const;

    static std::optional<QString> sanitizeTranslatedCharacters(const QString &text);
    static std::optional<QString> getSymbolicKeyName(int keyCode);

private:
    KeyboardLayoutTranslator &m_translator;
};
