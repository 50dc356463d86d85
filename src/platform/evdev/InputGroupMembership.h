#pragma once

#include <QString>

// Whether the user belongs to the `input` group, which may read the input devices: in the group
// database, and in this session (a group joined after logging in applies from the next login).
class InputGroupMembership final {
public:
    enum class Status {
        notMember,
        memberFromNextLogin, // in the database, not yet in this session
        member,
    };

    InputGroupMembership() = delete;

    // `groupFile` empty: the system's group database; otherwise a file in the format of
    // /etc/group.
    static Status status(const QString &groupFile = {});
};
