#include "platform/wayland/GSettingsInputSources.h"

// GIO's headers name a struct member `signals`, which Qt defines as a keyword.
#undef signals
#include <gio/gio.h>

namespace {

constexpr char schemaId[] = "org.gnome.desktop.input-sources";

} // namespace

std::unique_ptr<GSettingsInputSources> GSettingsInputSources::create()
{
    GSettingsSchemaSource *schemas = g_settings_schema_source_get_default();
    if (!schemas)
        return nullptr;
    GSettingsSchema *schema = g_settings_schema_source_lookup(schemas, schemaId, TRUE);
    if (!schema)
        return nullptr;
    g_settings_schema_unref(schema);
    return std::unique_ptr<GSettingsInputSources>(
        new GSettingsInputSources(g_settings_new(schemaId)));
}

GSettingsInputSources::GSettingsInputSources(GSettings *settings) : m_settings(settings)
{
    m_handler = g_signal_connect(m_settings, "changed", G_CALLBACK(&handleChanged), this);
    // GSettings reports a key's changes only after it was read once with a handler connected.
    sources();
    mruSources();
    current();
}

GSettingsInputSources::~GSettingsInputSources()
{
    g_signal_handler_disconnect(m_settings, m_handler);
    g_object_unref(m_settings);
}

QList<InputSourcesSettings::Source> GSettingsInputSources::sources() const
{
    return readSources("sources");
}

QList<InputSourcesSettings::Source> GSettingsInputSources::mruSources() const
{
    return readSources("mru-sources");
}

quint32 GSettingsInputSources::current() const
{
    return g_settings_get_uint(m_settings, "current");
}

QList<InputSourcesSettings::Source> GSettingsInputSources::readSources(const char *key) const
{
    QList<Source> result;
    GVariantIter *iter = nullptr;
    g_settings_get(m_settings, key, "a(ss)", &iter);
    const char *type = nullptr;
    const char *id = nullptr;
    while (g_variant_iter_next(iter, "(&s&s)", &type, &id))
        result.append({QString::fromUtf8(type), QString::fromUtf8(id)});
    g_variant_iter_free(iter);
    return result;
}

void GSettingsInputSources::handleChanged(GSettings *, const char *, void *data)
{
    emit static_cast<GSettingsInputSources *>(data)->changed();
}
