#include "app/Constants.h"

#include "BuildConfig.h"
#include "ui/Utils.h"

#include <QStringList>
#include <QSysInfo>
#include <QUrl>

QString Constants::supportEmailBody()
{
    return QStringList{QString(), QString(),
                       QStringLiteral("Vantrel: ") + Utils::getAppVersionAndBuild(),
                       QStringLiteral("Linux: ") + QSysInfo::prettyProductName()}
        .join(QLatin1Char('\n'));
}

QString Constants::supportEmailLink()
{
    return supportEmailLink(QStringLiteral("mailto:") +
                            QString::fromUtf8(BuildConfig::supportEmail));
}

QString Constants::supportEmailLink(const QString &mailtoAddress)
{
    QUrl url(mailtoAddress, QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != QLatin1String("mailto") || url.path().isEmpty())
        return mailtoAddress;
    // A query value in its fully encoded form: the query's own encoding would leave spaces
    // and some delimiters readable, and a mail program may take a "+" literally.
    const auto encoded = [](const QString &value) {
        return QString::fromLatin1(QUrl::toPercentEncoding(value));
    };
    url.setQuery(QStringLiteral("subject=") + encoded(QStringLiteral("Customer Query - Vantrel")) +
                 QStringLiteral("&body=") + encoded(supportEmailBody()));
    if (!url.isValid())
        return mailtoAddress;
    return url.toString(QUrl::FullyEncoded);
}
