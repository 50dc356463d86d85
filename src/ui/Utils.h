#pragma once

#include <QString>

// Version texts of the running program, as the build gave them.
namespace Utils {

// "Version " + version + " (Build " + build number + ")" in the user's language, with nothing
// filled in for a missing part (no fallback text).
QString getAppVersionAndBuild();
// The same from given parts; the running program's come from the build configuration.
QString formatVersionAndBuild(const QString &version, const QString &buildNumber);

} // namespace Utils
