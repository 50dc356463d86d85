#include "platform/wayland/GnomeInputSourcesWatcher.h"

#include "platform/wayland/GSettingsInputSources.h"

#include <algorithm>

namespace {

// GNOME Shell puts at most three sources in one keymap (a fourth group is kept for the layout of
// the interface language) and loads the next keymap for the sources past them.
constexpr quint32 sourcesPerKeymap = 3;

bool isXkb(const InputSourcesSettings::Source &source)
{
    return source.first == u"xkb";
}

} // namespace

std::unique_ptr<GnomeInputSourcesWatcher> GnomeInputSourcesWatcher::create()
{
    const QList<QByteArray> desktops = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    if (!desktops.contains("GNOME"))
        return nullptr;
    std::unique_ptr<InputSourcesSettings> settings = GSettingsInputSources::create();
    if (!settings)
        return nullptr;
    return std::make_unique<GnomeInputSourcesWatcher>(std::move(settings));
}

GnomeInputSourcesWatcher::GnomeInputSourcesWatcher(std::unique_ptr<InputSourcesSettings> settings)
    : m_settings(std::move(settings))
{
    connect(m_settings.get(), &InputSourcesSettings::changed, this,
            &GnomeInputSourcesWatcher::update);
    // Queued, so that the owner can connect first, as with the other desktops' watchers.
    QMetaObject::invokeMethod(this, &GnomeInputSourcesWatcher::update, Qt::QueuedConnection);
}

GnomeInputSourcesWatcher::~GnomeInputSourcesWatcher() = default;

std::optional<quint32>
GnomeInputSourcesWatcher::activeGroup(const QList<InputSourcesSettings::Source> &sources,
                                      const QList<InputSourcesSettings::Source> &mru,
                                      quint32 current)
{
    qsizetype index = -1;
    // An input method (ibus) at the top of the list keeps the last layout in use.
    const auto recent = std::find_if(mru.begin(), mru.end(), isXkb);
    if (recent != mru.end())
        index = sources.indexOf(*recent);
    if (index < 0 && current < quint32(sources.size()) && isXkb(sources.at(current)))
        index = current;
    if (index < 0)
        return std::nullopt;
    // Input methods have no group of their own: only the layouts before it count.
    const auto layouts = std::count_if(sources.begin(), sources.begin() + index, isXkb);
    return quint32(layouts) % sourcesPerKeymap;
}

void GnomeInputSourcesWatcher::update()
{
    if (const std::optional<quint32> group =
            activeGroup(m_settings->sources(), m_settings->mruSources(), m_settings->current()))
        emit activeLayoutChanged(*group);
}
