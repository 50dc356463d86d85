#include "BuildConfig.h"
#include "app/Constants.h"

#include <QSysInfo>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

class tst_Constants final : public QObject {
    Q_OBJECT

private slots:
    void mailLinkEncodesSpacesAndLineFeeds()
    {
        const QString link = Constants::supportEmailLink();
        QVERIFY2(link.startsWith(QStringLiteral("mailto:") +
                                 QString::fromUtf8(BuildConfig::supportEmail) +
                                 QStringLiteral("?subject=Customer%20Query%20-%20Vantrel&body="
                                                "%0A%0AVantrel%3A%20Version%20")),
                 qPrintable(link));
        QVERIFY(!link.contains(u' ') && !link.contains(u'\n') && !link.contains(u'+'));
        // Decoded, the body comes back whole: room to write, then the diagnostic lines.
        const QUrlQuery query(QUrl(link).query(QUrl::FullyDecoded));
        const QString body = query.queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded);
        QCOMPARE(body, Constants::supportEmailBody());
        QVERIFY(body.endsWith(QStringLiteral("\nLinux: ") + QSysInfo::prettyProductName()));
    }

    void unparsableAddressIsReturnedBare_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("empty") << QString();
        QTest::newRow("no address") << QStringLiteral("mailto:");
        QTest::newRow("not a link") << QStringLiteral("mailto:a b%zz");
    }
    void unparsableAddressIsReturnedBare()
    {
        QFETCH(QString, address);
        QCOMPARE(Constants::supportEmailLink(address), address);
    }
};

QTEST_GUILESS_MAIN(tst_Constants)
#include "tst_Constants.moc"
