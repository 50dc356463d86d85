#include "ui/Utils.h"

#include "BuildConfig.h"

#include <QCoreApplication>

QString Utils::formatVersionAndBuild(const QString &version, const QString &buildNumber)
{
    return QCoreApplication::translate("Utils", "Version %1 (Build %2)").arg(version, buildNumber);
}

QString Utils::getAppVersionAndBuild()
{
    return formatVersionAndBuild(QString::fromUtf8(BuildConfig::version),
                                 QString::fromUtf8(BuildConfig::buildNumber));
}
