#include "platform/linux/XkbKeyboardLayout.h"

#include "platform/linux/EvdevKeyCodeTable.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

#include <iterator>

namespace {

// X11 keycodes are evdev codes shifted by 8.
constexpr xkb_keycode_t evdevToXkbOffset = 8;

// Dead keys type nothing by themselves; like a layout translated without dead-key processing, they
// are named by their accent, as printed on the key.
QString deadKeyText(xkb_keysym_t keysym)
{
    static const char16_t accents[] = {
        u'`',      // dead_grave
        u'\u00b4', // dead_acute
        u'^',      // dead_circumflex
        u'~',      // dead_tilde
        u'\u00af', // dead_macron
        u'\u02d8', // dead_breve
        u'\u02d9', // dead_abovedot
        u'\u00a8', // dead_diaeresis
        u'\u02da', // dead_abovering
        u'\u02dd', // dead_doubleacute
        u'\u02c7', // dead_caron
        u'\u00b8', // dead_cedilla
        u'\u02db', // dead_ogonek
        u'\u037a', // dead_iota
        u'\u309b', // dead_voiced_sound
        u'\u309c', // dead_semivoiced_sound
    };
    if (keysym < XKB_KEY_dead_grave || keysym >= XKB_KEY_dead_grave + std::size(accents))
        return {};
    return QString(QChar(accents[keysym - XKB_KEY_dead_grave]));
}

QString keysymText(xkb_keysym_t keysym)
{
    if (QString accent = deadKeyText(keysym); !accent.isEmpty())
        return accent;
    char buffer[8];
    const int size = xkb_keysym_to_utf8(keysym, buffer, sizeof buffer);
    if (size <= 1) // 0: no text; the count includes the terminating zero
        return {};
    return QString::fromUtf8(buffer, size - 1);
}

bool isKeypadKeysym(xkb_keysym_t keysym)
{
    return keysym >= XKB_KEY_KP_Space && keysym <= XKB_KEY_KP_Equal;
}

QString baseLevelText(xkb_keymap *keymap, xkb_keycode_t key, quint32 group)
{
    const xkb_layout_index_t groups = xkb_keymap_num_layouts_for_key(keymap, key);
    if (groups == 0)
        return {};
    // A key defined for fewer groups wraps round, as the server does by default.
    const xkb_layout_index_t layout = group % groups;
    const xkb_keysym_t *syms = nullptr;
    if (xkb_keymap_key_get_syms_by_level(keymap, key, layout, 0, &syms) < 1)
        return {};
    QString text = keysymText(syms[0]);
    if (!text.isEmpty() || !isKeypadKeysym(syms[0]))
        return text;
    // A keypad key whose base level is a navigation keysym (Num Lock off) is named by the
    // character printed on it, the one of its Num Lock level: the cap names the key pressed.
    const xkb_level_index_t levels = xkb_keymap_num_levels_for_key(keymap, key, layout);
    for (xkb_level_index_t level = 1; level < levels; ++level) {
        if (xkb_keymap_key_get_syms_by_level(keymap, key, layout, level, &syms) >= 1 &&
            isKeypadKeysym(syms[0])) {
            text = keysymText(syms[0]);
            if (!text.isEmpty())
                return text;
        }
    }
    return {};
}

} // namespace

XkbKeyboardLayout::XkbKeyboardLayout(xkb_keymap *keymap, quint32 group)
{
    for (const EvdevKeyCodeTable::Row &row : EvdevKeyCodeTable::rows()) {
        const QString text = baseLevelText(keymap, row.evdevCode + evdevToXkbOffset, group);
        if (text.isEmpty())
            continue;
        if (m_texts.size() <= size_t(row.keyCode))
            m_texts.resize(row.keyCode + 1);
        m_texts[row.keyCode] = text;
    }
}

std::optional<QString> XkbKeyboardLayout::translate(int keyCode, quint32) const
{
    if (keyCode < 0 || size_t(keyCode) >= m_texts.size() || m_texts[keyCode].isEmpty())
        return std::nullopt;
    return m_texts[keyCode];
}
