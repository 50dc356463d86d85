#pragma once

#include "platform/wayland/InputSourcesSettings.h"

#include <memory>

typedef struct _GSettings GSettings;

// The input sources from GSettings (GIO). Change notifications come through GLib's default main
// context, which Qt's event loop runs on Linux.
class GSettingsInputSources final : public InputSourcesSettings {
    Q_OBJECT

public:
    // Returns nullptr when the schema is not installed (GSettings would abort on a missing one).
    static std::unique_ptr<GSettingsInputSources> create();
    ~GSettingsInputSources() override;

    QList<Source> sources() const override;
    QList<Source> mruSources() const override;
    quint32 current() const override;

private:
    explicit GSettingsInputSources(GSettings *settings);
    QList<Source> readSources(const char *key) const;
    static void handleChanged(GSettings *settings, const char *key, void *data);

    GSettings *m_settings;
    unsigned long m_handler = 0;
};
