#pragma once

#include <QObject>
#include <QString>

#include <functional>

class AppActions;

// One Vantrel per session, and its remote control: the running instance owns the session bus
// name "com.vantrel.Vantrel" and offers its actions there, so that `vantrel --toggle` and the
// like (or any key binding of a desktop) reach it.
class RemoteControl final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.vantrel.Vantrel")

public:
    static constexpr char serviceName[] = "com.vantrel.Vantrel";
    static constexpr char objectPath[] = "/com/vantrel/Vantrel";

    enum class Claim { owned, takenByAnother, noBus };
    // Tries to own the name for this process.
    static Claim claimServiceName();

    enum class CallResult { done, notRunning };
    // Calls `method` (a slot name below) on the running instance; never starts one.
    static CallResult callRunningInstance(const QString &method);

    RemoteControl(AppActions &actions, std::function<void()> showSettings,
                  std::function<void()> quit, QObject *parent = nullptr);
    // Offers the calls on the session bus; false when there is no bus.
    bool exportOnSessionBus();

public slots:
    Q_SCRIPTABLE void toggleVantrel();
    Q_SCRIPTABLE void increaseKeySize();
    Q_SCRIPTABLE void decreaseKeySize();
    Q_SCRIPTABLE void openPositionCustomizer();
    Q_SCRIPTABLE void toggleMouseClicks();
    Q_SCRIPTABLE void showSettings();
    Q_SCRIPTABLE void quit();

private:
    AppActions &m_actions;
    std::function<void()> m_showSettings;
    std::function<void()> m_quit;
};
