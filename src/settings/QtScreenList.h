#pragma once

#include "settings/ScreenList.h"

#include <QList>
#include <QString>
#include <QStringList>

class QScreen;

// The connected screens as Qt sees them (QGuiApplication's screens; the primary one is the main
// screen). Needs a QGuiApplication.
//
// A screen's identifier is a fixed 32-bit hash (FNV-1a, the same in every run) of its identity:
// manufacturer, model and serial number from the monitor's EDID, and the connector name. Should
// two screens hash alike, the later one in the order of their identities takes the next free
// number, so each connected screen has its own identifier and the same set of screens always
// gets the same identifiers.
class QtScreenList final : public ScreenList {
    Q_OBJECT

public:
    explicit QtScreenList(QObject *parent = nullptr);
    ~QtScreenList() override;

    QList<Screen> screens() const override;
    std::optional<quint32> mainScreenID() const override;

    // The QScreen of a connected screen, for placing windows on it.
    QScreen *qScreen(quint32 id) const;

    // The identity text of a screen from its parts; EDID texts are cleaned of the padding and
    // the "-" that some Qt versions append.
    static QString identityText(const QString &manufacturer, const QString &model,
                                const QString &serialNumber, const QString &connector);
    // The identifiers of screens with these identity texts, in the same order.
    static QList<quint32> identifiers(const QStringList &identityTexts);
    // FNV-1a over the UTF-8 text.
    static quint32 stableHash(const QString &text);

private:
    void watch(QScreen *screen);
    // The connected QScreens and their identifiers, index by index.
    QList<QScreen *> qScreens() const;
    QList<quint32> currentIdentifiers() const;
};
