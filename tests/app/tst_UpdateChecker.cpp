#include "app/UpdateChecker.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

QByteArray feed(const QByteArrayList &items)
{
    return "<?xml version=\"1.0\"?>\n<rss version=\"2.0\"><channel><title>Vantrel</title>" +
           items.join() + "</channel></rss>";
}
QByteArray enclosureItem(const QByteArray &version)
{
    return "<item><title>Vantrel</title><enclosure url=\"https://example.org/vantrel-" + version +
           ".deb\" version=\"" + version + "\" type=\"application/octet-stream\"/></item>";
}

// Serves one canned HTTP answer per connection, or none at all (a hung server).
class FeedServer final : public QTcpServer {
public:
    int status = 200;
    QByteArray body;
    bool answers = true;

    FeedServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                    if (!socket->readAll().contains("\r\n\r\n") || !answers)
                        return;
                    socket->write("HTTP/1.1 " + QByteArray::number(status) +
                                  (status == 200 ? " OK" : " Not Found") +
                                  "\r\nContent-Type: application/rss+xml\r\nContent-Length: " +
                                  QByteArray::number(body.size()) +
                                  "\r\nConnection: close\r\n\r\n" + body);
                    socket->disconnectFromHost();
                });
            }
        });
    }
    QUrl url() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/appcast.xml").arg(serverPort()));
    }
};

using Outcome = UpdateChecker::Result::Outcome;

} // namespace

Q_DECLARE_METATYPE(Outcome)

class tst_UpdateChecker final : public QObject {
    Q_OBJECT

private slots:
    void versionsCompareByNumber_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("order");
        QTest::newRow("tenth after ninth") << "1.10"
                                           << "1.9" << 1;
        QTest::newRow("missing component is zero") << "1.0"
                                                   << "1" << 0;
        QTest::newRow("patch") << "0.1.0"
                               << "0.1.1" << -1;
        QTest::newRow("leading v") << "v2.0"
                                   << "1.9.9" << 1;
        QTest::newRow("suffix ignored") << "2.0rc1"
                                        << "2.0" << 0;
    }
    void versionsCompareByNumber()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, order);
        QCOMPARE(UpdateChecker::compareVersions(a, b), order);
    }

    void feedItemsNameVersionAndLink_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("link");
        QTest::newRow("newest of several")
            << feed({enclosureItem("0.9"), enclosureItem("1.10"), enclosureItem("1.2")}) << "1.10"
            << "https://example.org/vantrel-1.10.deb";
        QTest::newRow("version and link elements")
            << feed({"<item><version>3.1</version><link>https://example.org/get</link></item>"})
            << "3.1"
            << "https://example.org/get";
        QTest::newRow("prefixed attribute")
            << QByteArray(
                   "<rss xmlns:u=\"urn:u\"><channel><item><enclosure url=\"https://e.org/x\" "
                   "u:version=\"4\"/></item></channel></rss>")
            << "4"
            << "https://e.org/x";
        QTest::newRow("item without link skipped")
            << feed({"<item><version>9</version></item>", enclosureItem("1.0")}) << "1.0"
            << "https://example.org/vantrel-1.0.deb";
    }
    void feedItemsNameVersionAndLink()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, version);
        QFETCH(QString, link);
        const auto release = UpdateChecker::newestRelease(text);
        QVERIFY(release);
        QCOMPARE(release->version, version);
        QCOMPARE(release->downloadUrl.toString(), link);
    }

    void checkAgainstServer_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("answers");
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QString>("error");
        QTest::newRow("newer") << 200 << feed({enclosureItem("1.2.0")}) << true
                               << Outcome::updateAvailable << QString();
        QTest::newRow("same") << 200 << feed({enclosureItem("1.0")}) << true << Outcome::upToDate
                              << QString();
        QTest::newRow("older") << 200 << feed({enclosureItem("0.9.9")}) << true << Outcome::upToDate
                               << QString();
        QTest::newRow("malformed") << 200 << QByteArray("<html><body>Hello</body></html>") << true
                                   << Outcome::failed << QStringLiteral("not an RSS feed");
        QTest::newRow("cut off") << 200 << feed({enclosureItem("2.0")}).left(80) << true
                                 << Outcome::failed << QStringLiteral("not an RSS feed");
        QTest::newRow("no versions")
            << 200 << feed({}) << true << Outcome::failed << QStringLiteral("lists no versions");
        QTest::newRow("404") << 404 << QByteArray("gone") << true << Outcome::failed
                             << QStringLiteral("HTTP error 404");
        QTest::newRow("no answer") << 200 << QByteArray() << false << Outcome::failed
                                   << QStringLiteral("did not answer within 0.5 seconds");
    }
    void checkAgainstServer()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, answers);
        QFETCH(Outcome, outcome);
        QFETCH(QString, error);
        FeedServer server;
        server.status = status;
        server.body = body;
        server.answers = answers;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        UpdateChecker checker;
        checker.setTimeout(500);
        QSignalSpy finished(&checker, &UpdateChecker::finished);
        checker.check(server.url(), QStringLiteral("1.0.0"));
        QVERIFY(finished.wait(5000));
        const auto result = finished.first().first().value<UpdateChecker::Result>();
        QCOMPARE(result.outcome, outcome);
        QVERIFY2(result.errorText.contains(error), qPrintable(result.errorText));
    }

    void unreachableServerSaysSoInWords()
    {
        QTcpServer closed; // a port that nobody listens on any more
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const quint16 port = closed.serverPort();
        closed.close();
        UpdateChecker checker;
        QSignalSpy finished(&checker, &UpdateChecker::finished);
        checker.check(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port)), QStringLiteral("1"));
        QVERIFY(finished.wait(5000));
        QVERIFY(finished.first().first().value<UpdateChecker::Result>().errorText.contains(
            QStringLiteral("Could not reach the update server")));
    }

    void environmentOverridesTheFeedAddress()
    {
        qputenv("VANTREL_UPDATE_FEED_URL", "http://127.0.0.1:1/feed.xml");
        QCOMPARE(UpdateChecker::feedUrl(), QUrl(QStringLiteral("http://127.0.0.1:1/feed.xml")));
        qunsetenv("VANTREL_UPDATE_FEED_URL");
    }
};

QTEST_GUILESS_MAIN(tst_UpdateChecker)
#include "tst_UpdateChecker.moc"
