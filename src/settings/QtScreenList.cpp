#include "settings/QtScreenList.h"

#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace {

QString cleanEdidText(QString text)
{
    text = text.trimmed();
    while (text.endsWith(u'-'))
        text.chop(1);
    return text.trimmed();
}

// What people call the screen: the monitor's model when the EDID names it, else the connector
// (the only name a virtual or unidentified screen has).
QString displayName(const QScreen *screen)
{
    const QString manufacturer = cleanEdidText(screen->manufacturer());
    const QString model = cleanEdidText(screen->model());
    if (model.isEmpty())
        return screen->name();
    if (manufacturer.isEmpty() || model.startsWith(manufacturer, Qt::CaseInsensitive))
        return model;
    return manufacturer + u' ' + model;
}

} // namespace

QtScreenList::QtScreenList(QObject *parent) : ScreenList(parent)
{
    auto *app = qGuiApp;
    if (!app)
        return;
    connect(app, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        emit screensChanged();
    });
    connect(app, &QGuiApplication::screenRemoved, this, &ScreenList::screensChanged);
    connect(app, &QGuiApplication::primaryScreenChanged, this, &ScreenList::screensChanged);
    for (QScreen *screen : QGuiApplication::screens())
        watch(screen);
}

QtScreenList::~QtScreenList() = default;

void QtScreenList::watch(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, &ScreenList::screensChanged);
    connect(screen, &QScreen::availableGeometryChanged, this, &ScreenList::screensChanged);
}

QString QtScreenList::identityText(const QString &manufacturer, const QString &model,
                                   const QString &serialNumber, const QString &connector)
{
    // A separator that cannot occur in the parts keeps ("ab", "c") apart from ("a", "bc").
    return cleanEdidText(manufacturer) + u'\x1f' + cleanEdidText(model) + u'\x1f' +
           cleanEdidText(serialNumber) + u'\x1f' + connector;
}

quint32 QtScreenList::stableHash(const QString &text)
{
    quint32 hash = 2166136261u;
    for (const char byte : text.toUtf8()) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 16777619u;
    }
    return hash;
}

QList<quint32> QtScreenList::identifiers(const QStringList &identityTexts)
{
    // Hand out numbers in the order of the identities, not of the platform's list, so that a
    // collision resolves the same way whatever order the screens are reported in.
    QList<qsizetype> order(identityTexts.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) {
        return identityTexts.at(a) < identityTexts.at(b);
    });

    QList<quint32> result(identityTexts.size());
    QSet<quint32> taken;
    for (const qsizetype index : order) {
        quint32 id = stableHash(identityTexts.at(index));
        // 0 is kept free, so that no screen looks like an unset identifier.
        while (id == 0 || taken.contains(id))
            ++id;
        taken.insert(id);
        result[index] = id;
    }
    return result;
}

QList<QScreen *> QtScreenList::qScreens() const
{
    return qGuiApp ? QGuiApplication::screens() : QList<QScreen *>();
}

QList<quint32> QtScreenList::currentIdentifiers() const
{
    QStringList texts;
    for (const QScreen *screen : qScreens())
        texts.append(identityText(screen->manufacturer(), screen->model(), screen->serialNumber(),
                                  screen->name()));
    return identifiers(texts);
}

QList<ScreenList::Screen> QtScreenList::screens() const
{
    const QList<QScreen *> all = qScreens();
    const QList<quint32> ids = currentIdentifiers();

    QHash<QString, int> nameCounts;
    for (const QScreen *screen : all)
        ++nameCounts[displayName(screen)];

    QList<Screen> result;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QScreen *screen = all.at(i);
        QString name = displayName(screen);
        // Two monitors of one model are told apart by where they are plugged in.
        if (nameCounts.value(name) > 1 && name != screen->name())
            name += u" (" + screen->name() + u')';
        result.append({ids.at(i), name, screen->geometry(), screen->availableGeometry()});
    }
    return result;
}

std::optional<quint32> QtScreenList::mainScreenID() const
{
    QScreen *primary = qGuiApp ? QGuiApplication::primaryScreen() : nullptr;
    if (!primary)
        return std::nullopt;
    const QList<QScreen *> all = qScreens();
    const qsizetype index = all.indexOf(primary);
    if (index < 0)
        return std::nullopt;
    return currentIdentifiers().at(index);
}

QScreen *QtScreenList::qScreen(quint32 id) const
{
    const QList<QScreen *> all = qScreens();
    const QList<quint32> ids = currentIdentifiers();
    const qsizetype index = ids.indexOf(id);
    return index < 0 ? nullptr : all.at(index);
}
