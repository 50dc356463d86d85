#pragma once

#include <QObject>

// Tells whether a compositing manager runs. Without one, translucent windows show black where
// they are transparent, so overlay windows cut their shape to the caps they draw.
class CompositorWatcher : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~CompositorWatcher() override = default;

    virtual bool isCompositing() const = 0;

signals:
    void compositingChanged(bool compositing);
};
