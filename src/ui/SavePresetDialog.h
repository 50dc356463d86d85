#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

// The sheet that names a new preset: a heading, the name field and "Cancel" and "Save". The
// name never exceeds ten characters; longer text is cut as it is typed. "Save" (also Return)
// only asks to save: whoever opened the sheet decides whether the name will do and closes it.
class SavePresetDialog final : public QDialog {
    Q_OBJECT

public:
    explicit SavePresetDialog(QWidget *parent = nullptr);

    QString name() const;
    QLineEdit *nameField() const { return m_name; }
    QPushButton *saveButton() const { return m_save; }
    QPushButton *cancelButton() const { return m_cancel; }

signals:
    void nameChanged(const QString &name);
    void saveRequested();

private:
    void limitName();

    QLineEdit *m_name;
    QPushButton *m_cancel;
    QPushButton *m_save;
};
