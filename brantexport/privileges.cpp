#include "brantexport/privileges.h"

#include <grp.h>
#include <pwd.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

// Returns whether the process has exactly this user and group.
bool Is(uid_t user, gid_t group) {
    gid_t groups[2] = {};
    const int count = getgroups(2, groups);  // -1 if there are more
    return getuid() == user && geteuid() == user && getgid() == group && getegid() == group &&
           (count == 0 || (count == 1 && groups[0] == group));
}

}  // namespace

const char* DropRoot(const char* user_name) {
    if (getuid() == 0 || geteuid() == 0) {
        const passwd* const user = getpwnam(user_name);
        if (user == nullptr) return "no such user";
        const uid_t uid = user->pw_uid;
        const gid_t gid = user->pw_gid;
        // The user is set last, because only root may change the groups.
        if (setgroups(1, &gid) != 0 || setgid(gid) != 0 || setuid(uid) != 0) return std::strerror(errno);
        if (!Is(uid, gid) || setgid(0) == 0) return "groups remain";
    }
    // A call succeeds if the saved user ID is still root or the process still has the privilege to change it.
    return setuid(0) == 0 ? "root remains" : nullptr;
}

void CloseOtherDescriptors(int kept) {
    // The limit may be a million, or -1 for no limit. A descriptor gets the lowest free number and the
    // process opens only a few, so none is above kMost.
    constexpr long kMost = 1024;
    const long limit = sysconf(_SC_OPEN_MAX);
    const long end = limit < 0 ? kMost : std::min(limit, kMost);
    for (int fd = STDERR_FILENO + 1; fd < end; ++fd) {
        if (fd != kept) close(fd);
    }
}
