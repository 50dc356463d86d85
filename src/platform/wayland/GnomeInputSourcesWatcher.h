#pragma once

#include "platform/wayland/InputSourcesSettings.h"

#include <QObject>

#include <memory>
#include <optional>

// Follows GNOME's active keyboard layout through its input-source settings: GNOME Shell switches
// layouts itself and records the choice there, while Wayland reports the active group only to the
// focused client, which Vantrel never is.
class GnomeInputSourcesWatcher final : public QObject {
    Q_OBJECT

public:
    // Returns nullptr outside GNOME ($XDG_CURRENT_DESKTOP) or without GNOME's settings schema:
    // elsewhere the settings may hold a stale GNOME configuration.
    static std::unique_ptr<GnomeInputSourcesWatcher> create();
    explicit GnomeInputSourcesWatcher(std::unique_ptr<InputSourcesSettings> settings);
    ~GnomeInputSourcesWatcher() override;

    // The keymap group of the active source: the first xkb entry of `mru`, else `sources` at
    // `current`; none when that is no xkb source of `sources`.
    static std::optional<quint32> activeGroup(const QList<InputSourcesSettings::Source> &sources,
                                              const QList<InputSourcesSettings::Source> &mru,
                                              quint32 current);

signals:
    // The active layout index, once at start (queued) and after every change of the settings.
    void activeLayoutChanged(quint32 index);

private:
    void update();

    std::unique_ptr<InputSourcesSettings> m_settings;
};
