#include "app/AppDelegate.h"

#include "BuildConfig.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>

AppDelegate::AppDelegate(QObject *parent)
    : QObject(parent), m_updaterController(std::make_unique<UpdateChecker>())
{
    connect(m_updaterController.get(), &UpdateChecker::finished, this, &AppDelegate::showResult);
}

AppDelegate::~AppDelegate()
{
    delete m_dialog.data();
}

void AppDelegate::checkForUpdates()
{
    if (m_dialog && m_updaterController->isChecking()) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    delete m_dialog.data();
    // Not modal and not waited for: the menu and the overlays keep running during the check.
    auto *dialog = new QMessageBox(QMessageBox::Information, tr("Software Update"),
                                   tr("Checking for updates…"), QMessageBox::Cancel);
    dialog->setWindowModality(Qt::NonModal); // a message box is modal unless told otherwise
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog->setInformativeText(tr("Asking %1").arg(UpdateChecker::feedUrl().host()));
    connect(dialog, &QMessageBox::rejected, m_updaterController.get(), &UpdateChecker::cancel);
    m_dialog = dialog;
    dialog->show();
    m_updaterController->check(UpdateChecker::feedUrl(), QString::fromUtf8(BuildConfig::version));
}

void AppDelegate::showResult(const UpdateChecker::Result &result)
{
    if (!m_dialog)
        return;
    QMessageBox &dialog = *m_dialog;
    disconnect(&dialog, &QMessageBox::rejected, m_updaterController.get(), &UpdateChecker::cancel);
    dialog.setStandardButtons(QMessageBox::NoButton);
    const QString current = QString::fromUtf8(BuildConfig::version);
    switch (result.outcome) {
    case UpdateChecker::Result::Outcome::upToDate:
        dialog.setIcon(QMessageBox::Information);
        dialog.setText(tr("You're up to date!"));
        dialog.setInformativeText(tr("Vantrel %1 is the newest version available.").arg(current));
        dialog.setStandardButtons(QMessageBox::Ok);
        break;
    case UpdateChecker::Result::Outcome::updateAvailable: {
        dialog.setIcon(QMessageBox::Information);
        dialog.setText(tr("A new version of Vantrel is available!"));
        dialog.setInformativeText(
            tr("Vantrel %1 is available; you have %2.").arg(result.latest.version, current));
        QPushButton *download = dialog.addButton(tr("Download"), QMessageBox::AcceptRole);
        dialog.addButton(tr("Not Now"), QMessageBox::RejectRole);
        dialog.setDefaultButton(download);
        const QUrl link = result.latest.downloadUrl;
        connect(download, &QPushButton::clicked, this, [link] { QDesktopServices::openUrl(link); });
        break;
    }
    case UpdateChecker::Result::Outcome::failed:
        dialog.setIcon(QMessageBox::Warning);
        dialog.setText(tr("Vantrel could not check for updates."));
        dialog.setInformativeText(result.errorText);
        dialog.setStandardButtons(QMessageBox::Ok);
        break;
    }
    dialog.raise();
}
