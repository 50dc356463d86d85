#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

// Asks the update feed whether a newer Vantrel exists. Only ever started by the user; the answer
// comes back asynchronously, and a server that does not answer within the time limit ends the
// check with an error, so nothing waits on the network.
//
// The feed is RSS: <rss><channel><item>... Each item names a version and a download link:
//   version: the text of <shortVersionString>, else the `shortVersionString` attribute of
//            <enclosure>, else the text of <version>, else the `version` attribute of
//            <enclosure> (elements and attributes by local name, whatever their prefix);
//   link:    the `url` attribute of <enclosure>, else the text of <link>.
// Items missing either are skipped; the highest version wins.
class UpdateChecker final : public QObject {
    Q_OBJECT

public:
    struct Release {
        QString version;
        QUrl downloadUrl;
    };

    struct Result {
        enum class Outcome { upToDate, updateAvailable, failed };
        Outcome outcome = Outcome::failed;
        Release latest;    // the newest release the feed lists (when it could be read)
        QString errorText; // for people, when the check failed
    };

    explicit UpdateChecker(QObject *parent = nullptr);
    ~UpdateChecker() override;

    // The build's feed address, or VANTREL_UPDATE_FEED_URL from the environment.
    static QUrl feedUrl();

    // How long the server gets to answer (10 s by default).
    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }
    bool isChecking() const { return m_reply != nullptr; }

    // Starts a check of `feed` against `currentVersion`; a check under way is cancelled.
    void check(const QUrl &feed, const QString &currentVersion);
    void cancel();

    // The newest release in an RSS feed; nothing when the text is no RSS or lists no release.
    // `isRss` tells those two apart.
    static std::optional<Release> newestRelease(const QByteArray &feed, bool *isRss = nullptr);
    // Numeric comparison by dot-separated components ("1.10" > "1.9", "1.0" == "1"): <0, 0, >0.
    static int compareVersions(const QString &a, const QString &b);

signals:
    void finished(const UpdateChecker::Result &result);

private:
    void replyFinished();

    std::unique_ptr<QNetworkAccessManager> m_network;
    QNetworkReply *m_reply = nullptr; // owned until finished or cancelled
    QString m_currentVersion;
    int m_timeoutMs = 10000;
};
