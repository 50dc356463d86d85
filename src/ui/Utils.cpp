#include "ui/Utils.h"

#include "BuildConfig.h"

QString Utils::formatVersionAndBuild(const QString &version, const QString &buildNumber)
{
    return QStringLiteral("Version ") + version + QStringLiteral(" (Build ") + buildNumber +
           QStringLiteral(")");
}

QString Utils::getAppVersionAndBuild()
{
    return formatVersionAndBuild(QString::fromUtf8(BuildConfig::version),
                                 QString::fromUtf8(BuildConfig::buildNumber));
}
