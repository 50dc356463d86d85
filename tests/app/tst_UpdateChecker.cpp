#include "app/UpdateChecker.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

QByteArray feed(const QByteArray &items)
{
    return "<?xml version=\"1.0\"?><rss version=\"2.0\" xmlns:u=\"urn:u\"><channel>"
           "<title>Vantrel</title>" +
           items + "</channel></rss>";
}
QByteArray item(const QByteArray &version)
{
    return "<item><enclosure url=\"https://example.org/" + version + ".deb\" version=\"" + version +
           "\"/></item>";
}

// Answers every request with one canned HTTP response, or never (a hung server).
class FeedServer final : public QTcpServer {
public:
    QByteArray response;

    FeedServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                    if (socket->readAll().contains("\r\n\r\n") && !response.isEmpty()) {
                        socket->write(response);
                        socket->disconnectFromHost();
                    }
                });
            }
        });
    }
};

QByteArray ok(const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

} // namespace

class tst_UpdateChecker final : public QObject {
    Q_OBJECT

private slots:
    void versionsCompareByNumber_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("order");
        QTest::newRow("1.10 after 1.9") << u"1.10"_qs << u"1.9"_qs << 1;
        QTest::newRow("missing part is 0") << u"1.0"_qs << u"1"_qs << 0;
        QTest::newRow("leading v") << u"v0.1.0"_qs << u"0.1.1"_qs << -1;
    }
    void versionsCompareByNumber()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, order);
        QCOMPARE(UpdateChecker::compareVersions(a, b), order);
    }

    // The running version is 1.0.0; the feed's forms vary between the rows.
    void checkAgainstServer_data()
    {
        using Outcome = UpdateChecker::Result::Outcome;
        QTest::addColumn<QByteArray>("response"); // empty: no answer; "closed": nobody listens
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("found");
        QTest::newRow("newest of several")
            << ok(feed(item("0.9") + item("1.10") + item("1.2"))) << int(Outcome::updateAvailable)
            << "1.10 https://example.org/1.10.deb";
        QTest::newRow("same, in version and link elements")
            << ok(feed("<item><version>1.0</version><link>https://e.org/get</link></item>"))
            << int(Outcome::upToDate) << "1.0 https://e.org/get";
        QTest::newRow("older, prefixed attribute")
            << ok(feed("<item><enclosure url=\"https://e.org/x\" u:version=\"0.9.9\"/></item>"))
            << int(Outcome::upToDate) << "0.9.9 https://e.org/x";
        // The common appcast form: the build number in the version field, the version people
        // see in a short version string, as an element or an enclosure attribute.
        QTest::newRow("short version element over build number")
            << ok(feed("<item><u:version>1207</u:version>"
                       "<u:shortVersionString>1.0</u:shortVersionString>"
                       "<enclosure url=\"https://e.org/x\"/></item>"))
            << int(Outcome::upToDate) << "1.0 https://e.org/x";
        QTest::newRow("short version attribute over build number")
            << ok(feed("<item><enclosure url=\"https://e.org/y\" u:version=\"1300\" "
                       "u:shortVersionString=\"1.1\"/></item>"))
            << int(Outcome::updateAvailable) << "1.1 https://e.org/y";
        QTest::newRow("not RSS") << ok("<html><body>Hello</body></html>") << int(Outcome::failed)
                                 << "not an RSS feed";
        QTest::newRow("cut off") << ok(feed(item("2.0")).left(90)) << int(Outcome::failed)
                                 << "not an RSS feed";
        QTest::newRow("no usable item") << ok(feed("<item><version>9</version></item>"))
                                        << int(Outcome::failed) << "lists no versions";
        QTest::newRow("404") << QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n")
                             << int(Outcome::failed) << "HTTP error 404 (Not Found)";
        QTest::newRow("no answer")
            << QByteArray() << int(Outcome::failed) << "did not answer within 0.5 seconds";
        QTest::newRow("offline") << QByteArray("closed") << int(Outcome::failed)
                                 << "Could not reach the update server";
    }
    void checkAgainstServer()
    {
        QFETCH(QByteArray, response);
        QFETCH(int, outcome);
        QFETCH(QString, found);
        FeedServer server;
        server.response = response;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QUrl url(QStringLiteral("http://127.0.0.1:%1/appcast.xml").arg(server.serverPort()));
        if (response == "closed")
            server.close();
        UpdateChecker checker;
        checker.setTimeout(500);
        QSignalSpy finished(&checker, &UpdateChecker::finished);
        checker.check(url, QStringLiteral("1.0.0"));
        QVERIFY(finished.wait(5000));
        const auto result = finished.first().first().value<UpdateChecker::Result>();
        QCOMPARE(int(result.outcome), outcome);
        const QString text = result.errorText.isEmpty() ? result.latest.version + u' ' +
                                                              result.latest.downloadUrl.toString()
                                                        : result.errorText;
        QVERIFY2(text.contains(found), qPrintable(text));
    }

    void environmentOverridesTheFeedAddress()
    {
        qputenv("VANTREL_UPDATE_FEED_URL", "http://127.0.0.1:1/feed.xml");
        QCOMPARE(UpdateChecker::feedUrl(), QUrl(QStringLiteral("http://127.0.0.1:1/feed.xml")));
    }
};

QTEST_GUILESS_MAIN(tst_UpdateChecker)
#include "tst_UpdateChecker.moc"
