#include "platform/linux/XkbKeyboardLayoutSource.h"

#include "platform/linux/XkbKeyboardLayout.h"

#include <QByteArray>

#include <xkbcommon/xkbcommon.h>

#include <atomic>
#include <cstdio>

namespace {

// Numbers every keymap this process sees, so identifiers never repeat across sources.
std::atomic<quint64> keymapSerial{0};

} // namespace

XkbKeyboardLayoutSource::XkbKeyboardLayoutSource(xkb_keymap *keymap, quint32 group)
    : m_keymap(xkb_keymap_ref(keymap)), m_group(group)
{
    const std::lock_guard guard(m_stateLock);
    rebuildLocked();
}

XkbKeyboardLayoutSource::~XkbKeyboardLayoutSource()
{
    xkb_keymap_unref(m_keymap);
}

std::unique_ptr<XkbKeyboardLayoutSource> XkbKeyboardLayoutSource::fromNames(const QString &layouts,
                                                                            const QString &variants,
                                                                            const QString &options,
                                                                            const QString &model)
{
    xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES);
    if (!context) {
        std::fputs("Vantrel: cannot read the keyboard layouts of xkeyboard-config\n", stderr);
        return nullptr;
    }
    // Failures are reported once below, in words, instead of xkbcommon's include-path trace.
    xkb_context_set_log_level(context, XKB_LOG_LEVEL_CRITICAL);
    const QByteArray layoutBytes = layouts.toUtf8();
    const QByteArray variantBytes = variants.toUtf8();
    const QByteArray optionBytes = options.toUtf8();
    const QByteArray modelBytes = model.isEmpty() ? QByteArrayLiteral("pc105") : model.toUtf8();
    const xkb_rule_names names{"evdev", modelBytes.constData(), layoutBytes.constData(),
                               variantBytes.isEmpty() ? nullptr : variantBytes.constData(),
                               optionBytes.isEmpty() ? nullptr : optionBytes.constData()};
    xkb_keymap *keymap =
        layouts.trimmed().isEmpty()
            ? nullptr
            : xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
    xkb_context_unref(context);
    if (!keymap) {
        QByteArray message = "Vantrel: xkeyboard-config has no keyboard layout \"" + layoutBytes;
        if (!variantBytes.isEmpty())
            message += "\" with variant \"" + variantBytes;
        if (!optionBytes.isEmpty())
            message += "\" and options \"" + optionBytes;
        message += "\"\n";
        std::fputs(message.constData(), stderr);
        return nullptr;
    }
    auto source = std::make_unique<XkbKeyboardLayoutSource>(keymap);
    xkb_keymap_unref(keymap);
    return source;
}

void XkbKeyboardLayoutSource::setKeymap(xkb_keymap *keymap)
{
    if (!keymap)
        return;
    {
        const std::lock_guard guard(m_stateLock);
        xkb_keymap_ref(keymap);
        xkb_keymap_unref(m_keymap);
        m_keymap = keymap;
        rebuildLocked();
    }
    notifyChange();
}

bool XkbKeyboardLayoutSource::setActiveGroup(quint32 group)
{
    {
        const std::lock_guard guard(m_stateLock);
        if (group == m_group)
            return false;
        m_group = group;
        rebuildLocked();
    }
    notifyChange();
    return true;
}

std::shared_ptr<xkb_keymap> XkbKeyboardLayoutSource::keymap() const
{
    const std::lock_guard guard(m_stateLock);
    return {xkb_keymap_ref(m_keymap), xkb_keymap_unref};
}

KeyboardLayoutSource::LayoutState XkbKeyboardLayoutSource::fetchCurrentLayoutState() const
{
    const std::lock_guard guard(m_stateLock);
    return m_state;
}

KeyboardLayoutSource::ObserverId
XkbKeyboardLayoutSource::addChangeObserver(std::function<void()> handler)
{
    const std::lock_guard guard(m_observerLock);
    const ObserverId id = m_nextObserver++;
    m_observers.emplace(id, std::move(handler));
    return id;
}

void XkbKeyboardLayoutSource::removeChangeObserver(ObserverId id)
{
    const std::lock_guard guard(m_observerLock);
    m_observers.erase(id);
}

void XkbKeyboardLayoutSource::rebuildLocked()
{
    const xkb_layout_index_t groups = xkb_keymap_num_layouts(m_keymap);
    const quint32 group = groups > 0 ? m_group % groups : 0;
    m_state.inputSourceID =
        QStringLiteral("xkb:%1:%2").arg(keymapSerial.fetch_add(1) + 1).arg(group);
    m_state.layout = std::make_shared<const XkbKeyboardLayout>(m_keymap, group);
}

void XkbKeyboardLayoutSource::notifyChange()
{
    // Held while calling, so that removing an observer waits until its call has finished.
    const std::lock_guard guard(m_observerLock);
    for (const auto &[id, handler] : m_observers)
        handler();
}
