#pragma once

#include "app/UpdateChecker.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QMessageBox;

// Owns the update checks. A check runs only when the user asks for one; a single dialog says
// that the check runs, then what it found: up to date, a newer version to download, or why the
// check failed.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(QObject *parent = nullptr);
    ~AppDelegate() override;

    // Starts a check (or brings forward the dialog of one under way).
    void checkForUpdates();

    UpdateChecker &updaterController() const { return *m_updaterController; }

private:
    void showResult(const UpdateChecker::Result &result);

    std::unique_ptr<UpdateChecker> m_updaterController;
    QPointer<QMessageBox> m_dialog;
};
