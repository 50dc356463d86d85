#pragma once

#include <QUrl>
#include <QWidget>

class QToolButton;

// The About tab: the application's icon and name, its version and rights line, and links to the
// product's website and video channel.
class AboutSettingsView final : public QWidget {
    Q_OBJECT

public:
    explicit AboutSettingsView(QWidget *parent = nullptr);

    static constexpr int iconSize = 160;

private:
    QToolButton *makeLink(const QString &text, const QString &symbolName, const QString &help,
                          const QUrl &url);
};
