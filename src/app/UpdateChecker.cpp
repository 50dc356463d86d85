#include "app/UpdateChecker.h"

#include "BuildConfig.h"

#include <QCoreApplication>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QXmlStreamReader>

namespace {

// The number at the start of a version component ("3rc1" counts as 3).
qlonglong componentValue(const QString &component)
{
    qsizetype digits = 0;
    while (digits < component.size() && component.at(digits).isDigit())
        ++digits;
    return component.left(digits).toLongLong();
}

QString textOf(QXmlStreamReader &xml)
{
    return xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
}

// The attribute by its local name, whatever namespace prefix the feed gives it.
QString attribute(const QXmlStreamReader &xml, QLatin1String name)
{
    for (const QXmlStreamAttribute &attr : xml.attributes())
        if (attr.name() == name)
            return attr.value().toString().trimmed();
    return {};
}

std::optional<UpdateChecker::Release> readItem(QXmlStreamReader &xml)
{
    // Appcasts commonly carry the build number as the version and the version people see as the
    // short version string; only the latter compares with the application's version.
    QString shortVersion, enclosureShortVersion, version, enclosureVersion, link, enclosureUrl;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("shortVersionString")) {
            shortVersion = textOf(xml);
        } else if (xml.name() == QLatin1String("version")) {
            version = textOf(xml);
        } else if (xml.name() == QLatin1String("link")) {
            link = textOf(xml);
        } else if (xml.name() == QLatin1String("enclosure")) {
            enclosureShortVersion = attribute(xml, QLatin1String("shortVersionString"));
            enclosureVersion = attribute(xml, QLatin1String("version"));
            enclosureUrl = attribute(xml, QLatin1String("url"));
            xml.skipCurrentElement();
        } else {
            xml.skipCurrentElement();
        }
    }
    QString shown;
    for (const QString &candidate :
         {shortVersion, enclosureShortVersion, version, enclosureVersion})
        if (shown.isEmpty())
            shown = candidate;
    UpdateChecker::Release release{shown, QUrl(enclosureUrl.isEmpty() ? link : enclosureUrl)};
    if (release.version.isEmpty() || !release.downloadUrl.isValid() ||
        release.downloadUrl.isEmpty())
        return std::nullopt;
    return release;
}

QString networkErrorText(QNetworkReply &reply, int timeoutMs)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 400) {
        const QString reason =
            reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        return QCoreApplication::translate("UpdateChecker",
                                           "The update server answered with HTTP error %1%2.")
            .arg(status)
            .arg(reason.isEmpty() ? QString() : QStringLiteral(" (") + reason + u')');
    }
    switch (reply.error()) {
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
        return QCoreApplication::translate("UpdateChecker",
                                           "The update server did not answer within %1 seconds.")
            .arg(QLocale().toString(timeoutMs / 1000.0));
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return QCoreApplication::translate(
                   "UpdateChecker", "Could not reach the update server (%1). Check that you are "
                                    "online and try again.")
            .arg(reply.errorString());
    default:
        return QCoreApplication::translate("UpdateChecker", "The update check failed: %1.")
            .arg(reply.errorString());
    }
}

} // namespace

UpdateChecker::UpdateChecker(QObject *parent)
    : QObject(parent), m_network(std::make_unique<QNetworkAccessManager>())
{}

UpdateChecker::~UpdateChecker()
{
    cancel();
}

QUrl UpdateChecker::feedUrl()
{
    const QString overridden = qEnvironmentVariable("VANTREL_UPDATE_FEED_URL");
    return QUrl(overridden.isEmpty() ? QString::fromUtf8(BuildConfig::updateFeedUrl) : overridden);
}

void UpdateChecker::check(const QUrl &feed, const QString &currentVersion)
{
    cancel();
    m_currentVersion = currentVersion;
    QNetworkRequest request(feed);
    request.setTransferTimeout(m_timeoutMs);
    request.setHeader(
        QNetworkRequest::UserAgentHeader,
        QString(QStringLiteral("Vantrel/") + QString::fromUtf8(BuildConfig::version)));
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateChecker::replyFinished);
}

void UpdateChecker::cancel()
{
    if (!m_reply)
        return;
    QNetworkReply *reply = std::exchange(m_reply, nullptr);
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void UpdateChecker::replyFinished()
{
    QNetworkReply *reply = std::exchange(m_reply, nullptr);
    reply->deleteLater();
    Result result;
    if (reply->error() != QNetworkReply::NoError) {
        result.errorText = networkErrorText(*reply, m_timeoutMs);
    } else {
        bool isRss = false;
        if (const auto release = newestRelease(reply->readAll(), &isRss)) {
            result.latest = *release;
            result.outcome = compareVersions(release->version, m_currentVersion) > 0
                                 ? Result::Outcome::updateAvailable
                                 : Result::Outcome::upToDate;
        } else {
            result.errorText = isRss ? QCoreApplication::translate(
                                           "UpdateChecker", "The update feed lists no versions.")
                                     : QCoreApplication::translate(
                                           "UpdateChecker", "The update feed is not an RSS feed.");
        }
    }
    emit finished(result);
}

std::optional<UpdateChecker::Release> UpdateChecker::newestRelease(const QByteArray &feed,
                                                                   bool *isRss)
{
    if (isRss)
        *isRss = false;
    QXmlStreamReader xml(feed);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("rss"))
        return std::nullopt;
    std::optional<Release> newest;
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("channel")) {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (xml.name() != QLatin1String("item")) {
                xml.skipCurrentElement();
                continue;
            }
            if (const auto release = readItem(xml))
                if (!newest || compareVersions(release->version, newest->version) > 0)
                    newest = release;
        }
    }
    // A feed cut off or broken half-way is not trusted at all.
    if (xml.hasError())
        return std::nullopt;
    if (isRss)
        *isRss = true;
    return newest;
}

int UpdateChecker::compareVersions(const QString &a, const QString &b)
{
    // "v1.2" is 1.2: feeds write versions either way.
    const auto components = [](QString version) {
        version = version.trimmed();
        if (version.startsWith(u'v', Qt::CaseInsensitive))
            version.remove(0, 1);
        return version.split(u'.');
    };
    const QStringList left = components(a);
    const QStringList right = components(b);
    for (qsizetype i = 0; i < qMax(left.size(), right.size()); ++i) {
        const qlonglong l = i < left.size() ? componentValue(left.at(i)) : 0;
        const qlonglong r = i < right.size() ? componentValue(right.at(i)) : 0;
        if (l != r)
            return l < r ? -1 : 1;
    }
    return 0;
}
