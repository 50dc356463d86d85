#include "platform/evdev/InputGroupMembership.h"

#include <QFile>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <optional>
#include <vector>

namespace {

const char groupName[] = "input";

struct Group {
    gid_t id = 0;
    QStringList members;
};

std::optional<Group> fromDatabase()
{
    const group *entry = getgrnam(groupName);
    if (!entry)
        return std::nullopt;
    Group result{entry->gr_gid, {}};
    for (char **member = entry->gr_mem; member && *member; ++member)
        result.members.append(QString::fromLocal8Bit(*member));
    return result;
}

// name:password:id:member,member
std::optional<Group> fromFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    while (!file.atEnd()) {
        const QList<QByteArray> fields = file.readLine().trimmed().split(':');
        bool ok = false;
        if (fields.size() == 4 && fields[0] == groupName) {
            const gid_t id = fields[2].toUInt(&ok);
            if (!ok)
                return std::nullopt;
            QStringList members = QString::fromLocal8Bit(fields[3]).split(u',', Qt::SkipEmptyParts);
            return Group{id, members};
        }
    }
    return std::nullopt;
}

bool inThisSession(gid_t id)
{
    if (getegid() == id)
        return true;
    std::vector<gid_t> groups(std::max(0, getgroups(0, nullptr)));
    const int count = getgroups(int(groups.size()), groups.data());
    for (int i = 0; i < count; ++i)
        if (groups[i] == id)
            return true;
    return false;
}

} // namespace

InputGroupMembership::Status InputGroupMembership::status(const QString &groupFile)
{
    const std::optional<Group> group = groupFile.isEmpty() ? fromDatabase() : fromFile(groupFile);
    if (!group)
        return Status::notMember;
    if (inThisSession(group->id))
        return Status::member;
    const passwd *user = getpwuid(getuid());
    const bool listed = user && (user->pw_gid == group->id ||
                                 group->members.contains(QString::fromLocal8Bit(user->pw_name)));
    return listed ? Status::memberFromNextLogin : Status::notMember;
}
