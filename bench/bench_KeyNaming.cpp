// Names keys through the whole three-source path (layout, event characters, symbol table) with a
// real xkeyboard-config layout, and prints the cost per key.
#include "capture/KeyCode.h"
#include "capture/KeyNaming.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"

#include <QElapsedTimer>

#include <cstdio>
#include <iterator>

int main()
{
    std::shared_ptr<XkbKeyboardLayoutSource> source =
        XkbKeyboardLayoutSource::fromNames(QStringLiteral("de"));
    if (!source)
        return 1;
    KeyboardLayoutTranslator translator(source);
    const KeyNaming naming(translator);

    // Letters, digits and space are named by the layout; Return by the sanitizer; F-keys, arrows
    // and Escape fall through the event's characters to the symbol table.
    using namespace KeyCode;
    const int keys[] = {A,     S,      D,  F,  Q,   Y,         Z,       Digit1, Digit5,    Digit0,
                        Space, Return, F1, F5, F12, LeftArrow, UpArrow, Escape, Semicolon, Minus};
    const std::function<QString()> eventCharacters = [] { return QString(); };
    const quint64 flags[] = {0, ModifierFlag::Shift, ModifierFlag::Command};

    constexpr int rounds = 200000;
    size_t labelled = 0;
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round)
        for (int key : keys)
            labelled += naming.name(key, flags[round % 3], eventCharacters).has_value();
    const qint64 elapsed = timer.nsecsElapsed();
    const double perKey = double(elapsed) / (double(rounds) * std::size(keys));
    std::printf("bench_KeyNaming: %.0f ns per key (%zu keys named, target <= 2000 ns)\n", perKey,
                labelled);
    return 0;
}
