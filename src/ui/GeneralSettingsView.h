#pragma once

#include "settings/Setting.h"

#include <QWidget>

#include <utility>
#include <vector>

class PermissionStatusView;
class KeyManager;
class LoginItem;
class QCheckBox;
class QComboBox;
class QSlider;
class QSpinBox;
class SettingsForm;
class SettingsRow;
class SettingsStore;

// The General tab: the master switch, launch at login, the tray icon, keyboard access, how long
// and how many keys show, which kinds of keys show, mouse clicks, and the resets. Every control
// writes its setting at once and follows changes made elsewhere while it is open.
//
// Controls are named after the settings they edit (QObject::objectName), so that tests and
// accessibility tools can find them.
class GeneralSettingsView final : public QWidget {
    Q_OBJECT

public:
    GeneralSettingsView(SettingsStore &store, KeyManager &keyManager, LoginItem &loginItem,
                        QWidget *parent = nullptr);

    // The slider works in half seconds over the setting's range: its integer value is twice the
    // duration.
    static constexpr double durationStep = 0.5;

    // The texts in the user's language, numbers in the locale's form ("1,5s" in German).
    static QString durationText(double seconds);
    static QString maxKeysText(int count);

    QSlider *durationSlider() const { return m_duration; }
    QSpinBox *maxKeysStepper() const { return m_maxKeys; }
    PermissionStatusView *permissionStatus() const { return m_access; }

    // Asks "Reset All Settings?" and resets when the user confirms.
    void confirmResetAllSettings();
    // Every setting back to its default, the launch at login entry removed; the displays, saved
    // presets and recorded shortcuts stay.
    void resetAllSettings();
    // The information about keyboard access, as a modal dialog of this window.
    void showInputMonitoringInfo();

protected:
    void showEvent(QShowEvent *event) override;

private:
    // "1.5s" for a number already in the locale's form.
    static QString secondsText(const QString &number);
    void buildAppSettings(SettingsForm &form);
    void buildDisplay(SettingsForm &form);
    void buildKeyTypes(SettingsForm &form);
    void buildMouseClicks(SettingsForm &form);
    void buildReset(SettingsForm &form);
    QCheckBox *addToggle(const Setting<bool> &setting, const QString &title);
    // Shows the stored values; the controls' own signals are blocked meanwhile.
    void refresh();
    void refreshAccess();
    // Shows whether the login entry is on, as it is now.
    void refreshLoginItem();

    SettingsStore &m_store;
    KeyManager &m_keyManager;
    LoginItem &m_loginItem;

    QCheckBox *m_launchAtLoginToggle = nullptr;
    QComboBox *m_menuBarIcon = nullptr;
    PermissionStatusView *m_access = nullptr;
    SettingsRow *m_durationRow = nullptr;
    QSlider *m_duration = nullptr;
    SettingsRow *m_maxKeysRow = nullptr;
    QSpinBox *m_maxKeys = nullptr;
    // The toggles bound to Boolean settings.
    std::vector<std::pair<QCheckBox *, const Setting<bool> *>> m_toggles;
};
