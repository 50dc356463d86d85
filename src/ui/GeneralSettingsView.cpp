#include "ui/GeneralSettingsView.h"

#include "capture/KeyManager.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"
#include "ui/InputMonitoringSheet.h"
#include "ui/LoginItem.h"
#include "ui/PermissionStatusView.h"
#include "ui/SettingsForm.h"
#include "ui/Symbols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

QLabel *captionLabel(const QString &text)
{
    auto *label = new QLabel(text);
    SettingsForm::makeCaption(label);
    return label;
}

// The bound settings whose changes elsewhere the tab shows.
QStringList observedKeys()
{
    return {AppSettings::isVantrelEnabled.name(),   AppSettings::keyDisplayDuration.name(),
            AppSettings::keyMaxDisplayCount.name(), AppSettings::menuBarIcon.name(),
            AppSettings::showAllKeys.name(),        AppSettings::showModifierKeys.name(),
            AppSettings::showFunctionKeys.name(),   AppSettings::showSpecialKeys.name(),
            AppSettings::showMouseClicks.name()};
}

} // namespace

GeneralSettingsView::GeneralSettingsView(SettingsStore &store, KeyManager &keyManager,
                                         LoginItem &loginItem, QWidget *parent)
    : QWidget(parent), m_store(store), m_keyManager(keyManager), m_loginItem(loginItem)
{
    auto *form = new SettingsForm;
    buildAppSettings(*form);
    buildDisplay(*form);
    buildKeyTypes(*form);
    buildMouseClicks(*form);
    buildReset(*form);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);

    connect(&m_store, &SettingsStore::valueChanged, this, [this](const QString &key) {
        if (observedKeys().contains(key))
            refresh();
    });
    connect(&m_keyManager, &KeyManager::hasInputMonitoringPermissionChanged, this,
            &GeneralSettingsView::refreshAccess);
    refresh();
    refreshAccess();
}

QString GeneralSettingsView::durationText(double seconds)
{
    return secondsText(QLocale().toString(seconds, 'f', 1));
}

QString GeneralSettingsView::secondsText(const QString &number)
{
    //: A duration in seconds, the number already in the locale's form: "1.5s", "1,5s"
    return tr("%1s").arg(number);
}

QString GeneralSettingsView::maxKeysText(int count)
{
    return tr("%Ln keys", nullptr, count);
}

QCheckBox *GeneralSettingsView::addToggle(const Setting<bool> &setting, const QString &title)
{
    auto *toggle = new QCheckBox;
    toggle->setObjectName(setting.name());
    toggle->setAccessibleName(title);
    m_toggles.emplace_back(toggle, &setting);
    connect(toggle, &QCheckBox::toggled, this,
            [this, &setting](bool checked) { m_store.setValue(setting, checked); });
    return toggle;
}

void GeneralSettingsView::buildAppSettings(SettingsForm &form)
{
    QGroupBox *section = form.addSection(tr("App Settings"));
    form.addRow(section, tr("Enable Vantrel"), tr("Show pressed keys on screen"),
                addToggle(AppSettings::isVantrelEnabled, tr("Enable Vantrel")));

    m_launchAtLoginToggle = new QCheckBox;
    m_launchAtLoginToggle->setObjectName(QStringLiteral("launchAtLogin"));
    m_launchAtLoginToggle->setAccessibleName(tr("Launch at Login"));
    refreshLoginItem();
    connect(m_launchAtLoginToggle, &QCheckBox::toggled, this, [this](bool checked) {
        m_loginItem.setEnabled(checked);
        // A refused write leaves the entry as it was; show what is true.
        refreshLoginItem();
    });
    form.addRow(section, tr("Launch at Login"), tr("Start Vantrel automatically when you log in"),
                m_launchAtLoginToggle);

    // Icons only, as the tray shows them; the application's own symbol is a template image,
    // which takes the text colour like the others.
    m_menuBarIcon = new QComboBox;
    m_menuBarIcon->setObjectName(AppSettings::menuBarIcon.name());
    m_menuBarIcon->setAccessibleName(tr("Menu Bar Icon"));
    m_menuBarIcon->setIconSize(QSize(18, 18));
    for (const QString &name : AppSettings::shared().menuBarIconOptions) {
        m_menuBarIcon->addItem(Symbols::icon(name), QString(), name);
        const int index = m_menuBarIcon->count() - 1;
        m_menuBarIcon->setItemData(index, name, Qt::ToolTipRole);
        m_menuBarIcon->setItemData(index, name, Qt::AccessibleTextRole);
    }
    const auto storeIcon = [this](int index) {
        if (index >= 0)
            m_store.setValue(AppSettings::menuBarIcon, m_menuBarIcon->itemData(index).toString());
    };
    connect(m_menuBarIcon, &QComboBox::currentIndexChanged, this, storeIcon);
    // Also when the user picks the item already shown: the default, shown for an unknown name.
    connect(m_menuBarIcon, &QComboBox::activated, this, storeIcon);
    form.addRow(section, tr("Menu Bar Icon"), tr("Choose the icon for the menu bar"),
                m_menuBarIcon);

    auto *info = new QToolButton;
    info->setObjectName(QStringLiteral("inputMonitoringInfo"));
    info->setAutoRaise(true);
    info->setIcon(Symbols::icon(QStringLiteral("info.circle")));
    info->setIconSize(QSize(12, 12));
    info->setAccessibleName(tr("Input Monitoring Access Information"));
    info->setToolTip(tr("Input Monitoring Access Information"));
    info->setCursor(Qt::PointingHandCursor);
    connect(info, &QToolButton::clicked, this, &GeneralSettingsView::showInputMonitoringInfo);
    m_access = new PermissionStatusView;
    auto *status = new QWidget;
    auto *statusLayout = new QHBoxLayout(status);
    statusLayout->setContentsMargins(0, 0, 0, 0);
    statusLayout->setSpacing(6);
    statusLayout->addWidget(info);
    statusLayout->addWidget(m_access);
    form.addRow(section, tr("Input Monitoring Access"), tr("Required to display your key presses"),
                status);
}

void GeneralSettingsView::buildDisplay(SettingsForm &form)
{
    QGroupBox *section = form.addSection(tr("Display"));

    m_duration = new QSlider(Qt::Horizontal);
    m_duration->setObjectName(AppSettings::keyDisplayDuration.name());
    m_duration->setAccessibleName(tr("Display Duration"));
    const auto durations = AppSettings::keyDisplayDuration.range.value();
    m_duration->setRange(int(std::lround(durations.minimum / durationStep)),
                         int(std::lround(durations.maximum / durationStep)));
    m_duration->setSingleStep(1);
    m_duration->setPageStep(2);
    m_duration->setMinimumWidth(150);
    connect(m_duration, &QSlider::valueChanged, this, [this](int value) {
        m_store.setValue(AppSettings::keyDisplayDuration, value * durationStep);
    });
    auto *slider = new QWidget;
    auto *sliderLayout = new QHBoxLayout(slider);
    sliderLayout->setContentsMargins(0, 0, 0, 0);
    sliderLayout->setSpacing(6);
    sliderLayout->addWidget(captionLabel(secondsText(QLocale().toString(durations.minimum))));
    sliderLayout->addWidget(m_duration);
    sliderLayout->addWidget(captionLabel(secondsText(QLocale().toString(durations.maximum))));
    m_durationRow = form.addRow(section, tr("Display Duration"), QString(), slider);

    m_maxKeys = new QSpinBox;
    m_maxKeys->setObjectName(AppSettings::keyMaxDisplayCount.name());
    m_maxKeys->setAccessibleName(tr("Max Keys Displayed"));
    const auto counts = AppSettings::keyMaxDisplayCount.range.value();
    m_maxKeys->setRange(counts.minimum, counts.maximum);
    m_maxKeys->setSingleStep(1);
    // Typing "15" would otherwise store 1 first, and the overlay would drop to one key meanwhile:
    // a typed count is stored when entered (Return or leaving the field), a step at once.
    m_maxKeys->setKeyboardTracking(false);
    connect(m_maxKeys, &QSpinBox::valueChanged, this,
            [this](int value) { m_store.setValue(AppSettings::keyMaxDisplayCount, value); });
    m_maxKeysRow = form.addRow(section, tr("Max Keys Displayed"), QString(), m_maxKeys);

    auto *reset = new QPushButton(tr("Reset"));
    reset->setObjectName(QStringLiteral("resetGeneralSettings"));
    reset->setToolTip(tr("Reset to default display settings"));
    // Also resets the master switch and the former global position, by design.
    connect(reset, &QPushButton::clicked, this,
            [this] { AppSettings::resetGeneralSettings(m_store); });
    form.addTrailingWidgets(section, {reset});
}

void GeneralSettingsView::buildKeyTypes(SettingsForm &form)
{
    QGroupBox *section = form.addSection(tr("Key Types"));
    form.addRow(section, tr("Show All Keys"), tr("Display every key press"),
                addToggle(AppSettings::showAllKeys, tr("Show All Keys")));
    form.addRow(section, tr("Show Modifier Keys"), QString(),
                addToggle(AppSettings::showModifierKeys, tr("Show Modifier Keys")));
    form.addRow(section, tr("Show Function Keys"), tr("F1, F2, F3, etc."),
                addToggle(AppSettings::showFunctionKeys, tr("Show Function Keys")));
    form.addRow(section, tr("Show Special Keys"), tr("Enter, Tab, Delete, and Escape"),
                addToggle(AppSettings::showSpecialKeys, tr("Show Special Keys")));

    auto *reset = new QPushButton(tr("Reset"));
    reset->setObjectName(QStringLiteral("resetKeyboardSettings"));
    reset->setToolTip(tr("Reset to default key type settings"));
    connect(reset, &QPushButton::clicked, this,
            [this] { AppSettings::resetKeyboardSettings(m_store); });
    form.addTrailingWidgets(section, {reset});
}

void GeneralSettingsView::buildMouseClicks(SettingsForm &form)
{
    QGroupBox *section = form.addSection(tr("Mouse Clicks"));
    form.addRow(section, tr("Show Mouse Clicks"), tr("Display left and right clicks"),
                addToggle(AppSettings::showMouseClicks, tr("Show Mouse Clicks")));
}

void GeneralSettingsView::buildReset(SettingsForm &form)
{
    QGroupBox *section = form.addSection(tr("Reset"));
    auto *resetAll = new QPushButton(tr("Reset All Settings"));
    resetAll->setObjectName(QStringLiteral("resetAllSettings"));
    connect(resetAll, &QPushButton::clicked, this, &GeneralSettingsView::confirmResetAllSettings);
    form.addRow(section, tr("Reset all settings to their default values"),
                tr("This action cannot be undone"), resetAll);
}

void GeneralSettingsView::confirmResetAllSettings()
{
    QMessageBox alert(QMessageBox::Warning, QStringLiteral("Vantrel"), tr("Reset All Settings?"),
                      QMessageBox::NoButton, window());
    // Room for the question on two lines rather than five.
    alert.setStyleSheet(QStringLiteral(
        "QLabel#qt_msgbox_label, QLabel#qt_msgbox_informativelabel { min-width: 300px; }"));
    alert.setInformativeText(
        tr("Are you sure you want to reset all settings to their default values?"));
    QPushButton *reset = alert.addButton(tr("Reset"), QMessageBox::DestructiveRole);
    QPushButton *cancel = alert.addButton(tr("Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(cancel);
    alert.setEscapeButton(cancel);
    alert.exec();
    if (alert.clickedButton() == reset)
        resetAllSettings();
}

void GeneralSettingsView::resetAllSettings()
{
    // This order; displays, presets and shortcuts are left alone.
    AppSettings::resetGeneralSettings(m_store);
    AppSettings::resetKeyboardSettings(m_store);
    m_store.remove(AppSettings::showMouseClicks.name());
    AppSettings::resetAppearanceSettings(m_store);
    m_store.remove(AppSettings::menuBarIcon.name());
    m_loginItem.setEnabled(false);
    refreshLoginItem();
}

void GeneralSettingsView::showInputMonitoringInfo()
{
    InputMonitoringSheet sheet(m_keyManager.inputMonitoringAccessSteps(),
                               m_keyManager.canAskForInputMonitoringAccess(), window());
    connect(&sheet, &InputMonitoringSheet::checkAgainRequested, &m_keyManager,
            &KeyManager::checkInputMonitoringPermission);
    connect(&sheet, &InputMonitoringSheet::allowRequested, &m_keyManager,
            &KeyManager::askForInputMonitoringAccess);
    // What the last check or request found shows in the sheet, a refusal included.
    sheet.setProblem(m_keyManager.inputMonitoringProblem());
    connect(&m_keyManager, &KeyManager::inputMonitoringProblemChanged, &sheet,
            &InputMonitoringSheet::setProblem);
    // Protections come and go (the accessibility bus may start later): the list follows.
    Secrecy &secrecy = m_keyManager.secrecy();
    sheet.setProtections(secrecy.protections());
    connect(&secrecy, &Secrecy::protectionsChanged, &sheet,
            [&sheet, &secrecy] { sheet.setProtections(secrecy.protections()); });
    sheet.exec();
}

void GeneralSettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The login entry is a file that the user may have changed while the window was closed.
    refreshLoginItem();
}

void GeneralSettingsView::refreshLoginItem()
{
    const QSignalBlocker blocker(m_launchAtLoginToggle);
    m_launchAtLoginToggle->setChecked(m_loginItem.isEnabled());
}

void GeneralSettingsView::refresh()
{
    for (const auto &[toggle, setting] : m_toggles) {
        const QSignalBlocker blocker(toggle);
        toggle->setChecked(m_store.value(*setting));
    }

    const double duration = m_store.value(AppSettings::keyDisplayDuration);
    {
        const QSignalBlocker blocker(m_duration);
        m_duration->setValue(static_cast<int>(std::lround(duration / durationStep)));
    }
    m_durationRow->setDescription(durationText(duration));

    const int maxKeys = m_store.value(AppSettings::keyMaxDisplayCount);
    {
        const QSignalBlocker blocker(m_maxKeys);
        m_maxKeys->setValue(maxKeys);
    }
    m_maxKeysRow->setDescription(maxKeysText(maxKeys));

    const QSignalBlocker blocker(m_menuBarIcon);
    // An unknown name shows the default icon, as the tray does.
    int index = m_menuBarIcon->findData(m_store.value(AppSettings::menuBarIcon));
    if (index < 0)
        index = m_menuBarIcon->findData(AppSettings::menuBarIcon.defaultValue);
    m_menuBarIcon->setCurrentIndex(index);
}

void GeneralSettingsView::refreshAccess()
{
    const bool granted = m_keyManager.hasInputMonitoringPermission();
    m_access->setGranted(granted);
    m_access->setToolTip(granted ? QString() : m_keyManager.inputMonitoringProblem());
}
