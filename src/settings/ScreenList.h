#pragma once

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>
#include <QtGlobal>

#include <optional>

// The connected screens as the display settings see them: a stable number per screen (the
// display identifier), a name for people, and where the screen lies on the desktop.
class ScreenList : public QObject {
    Q_OBJECT

public:
    struct Screen {
        quint32 id = 0;
        QString localizedName;
        QRect geometry;
        // The part not taken by panels and docks.
        QRect availableGeometry;

        friend bool operator==(const Screen &, const Screen &) = default;
    };

    using QObject::QObject;
    ~ScreenList() override = default;

    // The connected screens, in the platform's order.
    virtual QList<Screen> screens() const = 0;
    // The main (primary) screen's identifier, if there is a main screen.
    virtual std::optional<quint32> mainScreenID() const = 0;

    // The first connected screen with this identifier.
    std::optional<Screen> screen(quint32 id) const
    {
        for (const Screen &s : screens())
            if (s.id == id)
                return s;
        return std::nullopt;
    }

signals:
    // Screens were added or removed, the main screen changed, or a screen moved or resized.
    void screensChanged();
};
