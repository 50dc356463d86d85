#pragma once

#include <QObject>

// Tells when the application palette changes, as it does when the desktop switches between light
// and dark themes. Qt 6.4 has no colour scheme signal and its palette signal is deprecated: the
// change reaches the application object as QEvent::ApplicationPaletteChange, which this watches.
class PaletteWatcher final : public QObject {
    Q_OBJECT

public:
    explicit PaletteWatcher(QObject *parent = nullptr);

signals:
    void paletteChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
