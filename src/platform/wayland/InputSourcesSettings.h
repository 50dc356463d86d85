#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <utility>

// GNOME's input sources as its settings hold them (schema org.gnome.desktop.input-sources),
// behind an interface so that tests can hand in their own.
class InputSourcesSettings : public QObject {
    Q_OBJECT

public:
    // A (type, id) pair: ("xkb", "de"), ("xkb", "us+dvorak"), ("ibus", "anthy").
    using Source = std::pair<QString, QString>;

    // The configured sources, in the order GNOME builds the keymap from.
    virtual QList<Source> sources() const = 0;
    // The most recently used first: its first entry is the active source (newer GNOME).
    virtual QList<Source> mruSources() const = 0;
    // The active source's index in sources() (older GNOME).
    virtual quint32 current() const = 0;

signals:
    void changed();
};
