#pragma once

#include <QString>
#include <QWidget>

class QGroupBox;
class QLabel;
class QVBoxLayout;

// One row of a settings form: the title in the body font over an optional description in a
// smaller font and the secondary text colour, the control at the trailing edge.
class SettingsRow final : public QWidget {
    Q_OBJECT

public:
    SettingsRow(const QString &title, const QString &description, QWidget *control,
                QWidget *parent = nullptr);

    QLabel *titleLabel() const { return m_title; }
    QLabel *descriptionLabel() const { return m_description; }
    QWidget *control() const { return m_control; }
    // Live descriptions ("1.5s", "4 keys"); an empty text hides the line.
    void setDescription(const QString &description);

private:
    QLabel *m_title;
    QLabel *m_description;
    QWidget *m_control;
};

// The content of one settings tab in the grouped style: titled sections, one under another, in a
// scroll area so that the window keeps its height limit. Controls write their settings at once;
// there is no Apply step.
class SettingsForm final : public QWidget {
    Q_OBJECT

public:
    explicit SettingsForm(QWidget *parent = nullptr);

    // A new titled section at the end of the form (an empty title makes an untitled one).
    QGroupBox *addSection(const QString &title);
    // A row in `section`; the row takes ownership of `control` (which may be null).
    SettingsRow *addRow(QGroupBox *section, const QString &title, const QString &description,
                        QWidget *control);
    // Any widget across the whole width of `section`.
    void addWidget(QGroupBox *section, QWidget *widget);
    // A line of buttons or other widgets at the trailing edge of `section`.
    void addTrailingWidgets(QGroupBox *section, const QList<QWidget *> &widgets);
    // A line of buttons or other widgets at the trailing edge, below the sections so far.
    void addTrailingWidgets(const QList<QWidget *> &widgets);

    // The smaller font and secondary colour of descriptions and captions.
    static void makeCaption(QLabel *label);

private:
    QVBoxLayout *m_sections;
};
