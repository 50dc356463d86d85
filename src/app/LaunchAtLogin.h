#pragma once

#include "ui/LoginItem.h"

#include <QObject>
#include <QString>

// Starting Vantrel when the user logs in: an XDG autostart entry in the user's autostart
// directory ($XDG_CONFIG_HOME/autostart/vantrel.desktop), made from the application menu's desktop
// entry with Exec naming this program's absolute path. On means the entry exists and is not
// hidden.
class LaunchAtLogin final : public QObject, public LoginItem {
    Q_OBJECT

public:
    // `executablePath` is the program to start (the running binary when empty).
    explicit LaunchAtLogin(QString executablePath = {}, QObject *parent = nullptr);

    static QString entryPath();

    bool isEnabled() const override;
    // Writes or removes the entry; emits enabledChanged when the state changes. Failures (an
    // unwritable directory) leave the state as it was.
    void setEnabled(bool enabled) override;

signals:
    void enabledChanged(bool enabled);

private:
    QString m_executablePath;
};
