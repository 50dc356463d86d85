#include "BuildConfig.h"
#include "app/Constants.h"
#include "ui/Utils.h"

#include <QSysInfo>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

class tst_Constants final : public QObject {
    Q_OBJECT

private slots:
    void versionAndBuild_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("build");
        QTest::addColumn<QString>("text");
        QTest::newRow("both") << QStringLiteral("2.1") << QStringLiteral("45")
                              << QStringLiteral("Version 2.1 (Build 45)");
        QTest::newRow("no build") << QStringLiteral("2.1") << QString()
                                  << QStringLiteral("Version 2.1 (Build )");
    }
    void versionAndBuild()
    {
        QFETCH(QString, version);
        QFETCH(QString, build);
        QFETCH(QString, text);
        QCOMPARE(Utils::formatVersionAndBuild(version, build), text);
    }

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
