#include "capture/KeyboardLayoutTranslator.h"

#include "capture/KeyCode.h"
#include "capture/KeyboardLayout.h"

#include <limits>

namespace {

std::mutex sharedSourceLock;
std::shared_ptr<KeyboardLayoutSource> sharedSource;
bool sharedCreated = false;

} // namespace

KeyboardLayoutTranslator::KeyboardLayoutTranslator(std::shared_ptr<KeyboardLayoutSource> source)
    : m_source(std::move(source))
{
    updateLayoutData();
    if (m_source)
        m_observer = m_source->addChangeObserver([this] { handleInputSourceChanged(); });
}

KeyboardLayoutTranslator::~KeyboardLayoutTranslator()
{
    if (m_source)
        m_source->removeChangeObserver(m_observer);
}

KeyboardLayoutTranslator &KeyboardLayoutTranslator::shared()
{
    static KeyboardLayoutTranslator instance([] {
        const std::lock_guard guard(sharedSourceLock);
        sharedCreated = true;
        return sharedSource;
    }());
    return instance;
}

bool KeyboardLayoutTranslator::installSharedSource(std::shared_ptr<KeyboardLayoutSource> source)
{
    const std::lock_guard guard(sharedSourceLock);
    if (sharedCreated)
        return false;
    sharedSource = std::move(source);
    return true;
}

std::optional<QString> KeyboardLayoutTranslator::string(int keyCode, quint64 flags)
{
    const quint32 modifierState = carbonModifiers(flags);
    ensureCurrentLayout(false);
    std::shared_ptr<const KeyboardLayout> layout;
    {
        const std::lock_guard guard(m_lock);
        layout = m_layoutData;
    }
    // Key codes are 16-bit values; anything else cannot name a key.
    if (!layout || keyCode < 0 || keyCode > std::numeric_limits<quint16>::max())
        return std::nullopt;
    std::optional<QString> text = layout->translate(keyCode, modifierState);
    if (!text || text->isEmpty())
        return std::nullopt;
    return text;
}

void KeyboardLayoutTranslator::ensureCurrentLayout(bool force)
{
    KeyboardLayoutSource::LayoutState state = fetchCurrentLayoutState();
    const std::lock_guard guard(m_lock);
    if (!force && state.inputSourceID == m_currentInputSourceID && m_layoutData)
        return;
    m_layoutData = std::move(state.layout);
    m_currentInputSourceID = std::move(state.inputSourceID);
}

void KeyboardLayoutTranslator::updateLayoutData()
{
    ensureCurrentLayout(true);
}

KeyboardLayoutSource::LayoutState KeyboardLayoutTranslator::fetchCurrentLayoutState() const
{
    if (!m_source)
        return {};
    return m_source->fetchCurrentLayoutState();
}

quint32 KeyboardLayoutTranslator::carbonModifiers(quint64 flags)
{
    quint32 state = 0;
    if (flags & ModifierFlag::Shift)
        state += 0x200;
    if (flags & ModifierFlag::CapsLock)
        state += 0x400;
    if (flags & ModifierFlag::Control)
        state += 0x1000;
    if (flags & ModifierFlag::Option)
        state += 0x800;
    if (flags & ModifierFlag::Command)
        state += 0x100;
    // Handed to the layout unshifted on purpose: this value selects the layout's default table.
    return state;
}

void KeyboardLayoutTranslator::handleInputSourceChanged()
{
    updateLayoutData();
}
