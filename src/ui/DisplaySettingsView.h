#pragma once

#include <QList>
#include <QWidget>

#include <functional>

class DisplaySettingsStore;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
struct DisplayConfiguration;

// The Displays tab: one row per connected display (in the store's order) with whether keys show
// there and where, plus "Rescan" and "Reset". Rows follow displays coming and going and changes
// made elsewhere while the tab is open. At least one display always stays enabled.
class DisplaySettingsView final : public QWidget {
    Q_OBJECT

public:
    // `openPositionCustomizer` opens the drag-to-position overlay on a display; it writes the
    // custom position itself when the user confirms.
    DisplaySettingsView(DisplaySettingsStore &store,
                        std::function<void(quint32 displayID)> openPositionCustomizer,
                        QWidget *parent = nullptr);

    static QString captionText(bool isEnabled);

    // One row's controls, for tests and accessibility.
    struct Row {
        quint32 displayID = 0;
        QWidget *widget = nullptr;
        QCheckBox *toggle = nullptr;
        QLabel *caption = nullptr;
        QComboBox *position = nullptr;
        QPushButton *edit = nullptr;
    };
    const QList<Row> &rows() const { return m_rows; }
    QLabel *emptyLabel() const { return m_empty; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void refresh();
    void rebuildRows(const QList<DisplayConfiguration> &configurations);
    Row makeRow(const DisplayConfiguration &configuration);
    void updateRow(Row &row, const DisplayConfiguration &configuration);
    void toggleChanged(quint32 displayID, bool enabled);
    void positionChosen(quint32 displayID, int index);
    // An only display that is switched off is switched on when the tab shows it.
    void enableOnlyDisplay();

    DisplaySettingsStore &m_store;
    std::function<void(quint32)> m_openPositionCustomizer;
    QGroupBox *m_section = nullptr;
    QLabel *m_empty = nullptr;
    QList<Row> m_rows;
};
