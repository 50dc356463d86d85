#include "VirtualDisplay.h"

#include "settings/QtScreenList.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <algorithm>

namespace {

// Identifiers of the test's monitors, as every version must compute them: stored display
// settings are keyed by these numbers.
constexpr quint32 LEFT_ID = 2263011829u;
constexpr quint32 RIGHT_ID = 3064683438u;

} // namespace

// The screens as Qt reports them on a real X server.
class tst_QtScreenList final : public QObject {
    Q_OBJECT

private slots:
    void identifiersAreFixedAndDistinct()
    {
        // EDID text padding (blanks, a trailing "-") is ignored: this is the unpadded identity's.
        const QString padded = QtScreenList::identityText("DEL-", " DELL U2720Q-", "7XK1", "DP-1");
        QCOMPARE(QtScreenList::identifiers({padded}), QList<quint32>{1838786876u});
        // Alike screens get distinct identifiers.
        const QStringList identities{"x", "same", "same", "same"};
        const QList<quint32> ids = QtScreenList::identifiers(identities);
        QCOMPARE(QSet<quint32>(ids.begin(), ids.end()).size(), identities.size());
        // Reported in the opposite order, the same identifiers; the unique screen keeps its own.
        const QList<quint32> reversed = QtScreenList::identifiers({"same", "same", "same", "x"});
        QVERIFY(std::is_permutation(ids.begin(), ids.end(), reversed.begin()));
        QCOMPARE(reversed.last(), ids.first());
    }

    void twoMonitors()
    {
        QtScreenList screens;
        QCOMPARE(screens.screens().size(), 2);
        const ScreenList::Screen left = *screens.screen(LEFT_ID);
        const ScreenList::Screen right = *screens.screen(RIGHT_ID);
        QCOMPARE(left.localizedName, QStringLiteral("LEFT"));
        QCOMPARE(left.geometry, QRect(0, 0, 1920, 1080));
        QCOMPARE(right.geometry, QRect(1920, 0, 1920, 1080));
        QCOMPARE(screens.mainScreenID(), std::optional<quint32>(LEFT_ID));
        QCOMPARE(screens.qScreen(RIGHT_ID)->name(), QStringLiteral("RIGHT"));
    }
};

int main(int argc, char *argv[])
{
    return VirtualDisplay::execTests<tst_QtScreenList>(argc, argv);
}

#include "tst_QtScreenList.moc"
