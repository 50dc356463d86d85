#include "ui/DisplaySettingsView.h"

#include "settings/AppSettings.h"
#include "settings/DisplayConfiguration.h"
#include "settings/DisplaySettingsStore.h"
#include "ui/SettingsForm.h"
#include "ui/Symbols.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using KeyPosition = AppSettings::KeyPosition;

qsizetype enabledCount(const QList<DisplayConfiguration> &configurations)
{
    return std::count_if(configurations.cbegin(), configurations.cend(),
                         [](const DisplayConfiguration &c) { return c.isEnabled; });
}

// Switching it off is refused: it is the only display, or the last one enabled.
bool isLocked(const DisplayConfiguration &configuration,
              const QList<DisplayConfiguration> &configurations)
{
    return configurations.size() == 1 ||
           (enabledCount(configurations) == 1 && configuration.isEnabled);
}

// The menu's title of a position; the stored value stays the English raw value.
QString positionTitle(KeyPosition position)
{
    switch (position) {
    case KeyPosition::topLeft:
        return DisplaySettingsView::tr("Top Left");
    case KeyPosition::topCenter:
        return DisplaySettingsView::tr("Top Center");
    case KeyPosition::topRight:
        return DisplaySettingsView::tr("Top Right");
    case KeyPosition::bottomLeft:
        return DisplaySettingsView::tr("Bottom Left");
    case KeyPosition::bottomCenter:
        return DisplaySettingsView::tr("Bottom Center");
    case KeyPosition::bottomRight:
        return DisplaySettingsView::tr("Bottom Right");
    case KeyPosition::custom:
        return DisplaySettingsView::tr("Custom");
    }
    return {};
}

} // namespace

DisplaySettingsView::DisplaySettingsView(DisplaySettingsStore &store,
                                         std::function<void(quint32)> openPositionCustomizer,
                                         QWidget *parent)
    : QWidget(parent), m_store(store), m_openPositionCustomizer(std::move(openPositionCustomizer))
{
    auto *form = new SettingsForm;
    m_section = form->addSection(tr("Connected Displays"));
    m_empty = new QLabel(tr("No displays detected"));
    SettingsForm::makeCaption(m_empty);
    m_empty->setFont(font()); // the secondary colour at the body size
    form->addWidget(m_section, m_empty);

    auto *rescan = new QPushButton(tr("Rescan"));
    rescan->setObjectName(QStringLiteral("rescanDisplays"));
    rescan->setToolTip(tr("Refresh the list of connected displays"));
    connect(rescan, &QPushButton::clicked, this, [this] { m_store.syncWithConnectedScreens(); });
    auto *reset = new QPushButton(tr("Reset"));
    reset->setObjectName(QStringLiteral("resetDisplays"));
    reset->setToolTip(tr("Reset display settings to defaults"));
    connect(reset, &QPushButton::clicked, this, [this] { m_store.resetToDefaults(); });
    form->addTrailingWidgets({rescan, reset});

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);

    connect(&m_store, &DisplaySettingsStore::displaySettingsChanged, this,
            &DisplaySettingsView::refresh);
    refresh();
}

QString DisplaySettingsView::captionText(bool isEnabled)
{
    // The second text's word order is deliberate.
    return isEnabled ? tr("Keystrokes will be shown on this display")
                     : tr("Keystrokes will be not shown on this display");
}

void DisplaySettingsView::refresh()
{
    const QList<DisplayConfiguration> configurations = m_store.configurations();
    bool sameDisplays = configurations.size() == m_rows.size();
    for (qsizetype i = 0; sameDisplays && i < configurations.size(); ++i)
        sameDisplays = configurations.at(i).id == m_rows.at(i).displayID;
    if (!sameDisplays)
        rebuildRows(configurations);
    for (qsizetype i = 0; i < configurations.size(); ++i)
        updateRow(m_rows[i], configurations.at(i));
    m_empty->setVisible(configurations.isEmpty());

    if (isVisible())
        // Not from inside the store's own announcement.
        QMetaObject::invokeMethod(this, &DisplaySettingsView::enableOnlyDisplay,
                                  Qt::QueuedConnection);
}

void DisplaySettingsView::rebuildRows(const QList<DisplayConfiguration> &configurations)
{
    // Later, since a row's own control may be what caused this change.
    for (const Row &row : std::as_const(m_rows)) {
        row.widget->hide();
        row.widget->deleteLater();
    }
    m_rows.clear();
    for (const DisplayConfiguration &configuration : configurations) {
        m_rows.append(makeRow(configuration));
        static_cast<QVBoxLayout *>(m_section->layout())->addWidget(m_rows.constLast().widget);
    }
}

DisplaySettingsView::Row DisplaySettingsView::makeRow(const DisplayConfiguration &configuration)
{
    Row row;
    row.displayID = configuration.id;
    row.widget = new QWidget;
    row.toggle = new QCheckBox;
    row.caption = new QLabel;
    SettingsForm::makeCaption(row.caption);
    // Under the check box's text, not under its box.
    const int indicator = style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                          style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    row.caption->setContentsMargins(indicator, 0, 0, 0);

    row.position = new QComboBox;
    row.position->setAccessibleName(tr("Position"));
    for (const KeyPosition position : AppSettings::allCases<KeyPosition>())
        row.position->addItem(Symbols::icon(AppSettings::symbolName(position)),
                              positionTitle(position), static_cast<int>(position));
    // The open menu shows every title whole, whatever the style's margins.
    row.position->view()->setMinimumWidth(row.position->view()->sizeHintForColumn(0) + 24);
    row.edit = new QPushButton(tr("Edit"));
    row.edit->setToolTip(tr("Edit custom position"));

    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(row.toggle);
    texts->addWidget(row.caption);
    auto *layout = new QHBoxLayout(row.widget);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->addLayout(texts, 1);
    layout->addWidget(row.position, 0, Qt::AlignVCenter);
    layout->addWidget(row.edit, 0, Qt::AlignVCenter);

    const quint32 id = configuration.id;
    connect(row.toggle, &QCheckBox::toggled, this,
            [this, id](bool enabled) { toggleChanged(id, enabled); });
    connect(row.position, &QComboBox::currentIndexChanged, this,
            [this, id](int index) { positionChosen(id, index); });
    connect(row.edit, &QPushButton::clicked, this, [this, id] {
        if (m_openPositionCustomizer)
            m_openPositionCustomizer(id);
    });
    return row;
}

void DisplaySettingsView::updateRow(Row &row, const DisplayConfiguration &configuration)
{
    const QList<DisplayConfiguration> &configurations = m_store.configurations();
    {
        const QSignalBlocker blocker(row.toggle);
        row.toggle->setText(configuration.name);
        row.toggle->setChecked(configuration.isEnabled);
    }
    row.toggle->setEnabled(!isLocked(configuration, configurations));
    row.caption->setText(captionText(configuration.isEnabled));
    {
        const QSignalBlocker blocker(row.position);
        row.position->setCurrentIndex(
            row.position->findData(static_cast<int>(configuration.position)));
    }
    row.position->setEnabled(configuration.isEnabled);
    row.edit->setVisible(configuration.position == KeyPosition::custom);
}

void DisplaySettingsView::toggleChanged(quint32 displayID, bool enabled)
{
    const QList<DisplayConfiguration> configurations = m_store.configurations();
    const auto it =
        std::find_if(configurations.cbegin(), configurations.cend(),
                     [displayID](const DisplayConfiguration &c) { return c.id == displayID; });
    if (it == configurations.cend())
        return;
    m_store.setEnabled(isLocked(*it, configurations) ? true : enabled, displayID);
    // A refused change announces nothing; put the row back as stored.
    refresh();
}

void DisplaySettingsView::positionChosen(quint32 displayID, int index)
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [displayID](const Row &r) { return r.displayID == displayID; });
    if (row == m_rows.end() || index < 0)
        return;
    const auto position = static_cast<KeyPosition>(row->position->itemData(index).toInt());
    if (position != KeyPosition::custom) {
        m_store.setPosition(position, displayID);
        return;
    }
    // The customizer writes the custom position when the user confirms; until then the menu
    // shows the stored one.
    if (const auto stored = m_store.configuration(displayID))
        updateRow(*row, *stored);
    if (m_openPositionCustomizer)
        m_openPositionCustomizer(displayID);
}

void DisplaySettingsView::enableOnlyDisplay()
{
    const QList<DisplayConfiguration> &configurations = m_store.configurations();
    if (configurations.size() == 1 && !configurations.constFirst().isEnabled)
        m_store.setEnabled(true, configurations.constFirst().id);
}

void DisplaySettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    enableOnlyDisplay();
}
