// SPDX-License-Identifier: BSD-3-Clause
#ifndef ORDINARYUSER_H
#define ORDINARYUSER_H

#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

enum class Verdict
{
    True,
    False,
    NoSuchUser, //!< this process may not become another user
};

/*! What check() returns in a copy of this process that belongs to an ordinary user, whom, unlike root, modes of files
 *  keep out. Nothing that the check changes is changed here. */
template<typename Check>
Verdict asOrdinaryUser(Check check)
{
    constexpr uid_t Nobody = 65534;
    constexpr int True = 0;
    constexpr int False = 1;
    constexpr int NoSuchUser = 2;
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && ::setuid(Nobody) != 0)
            ::_exit(NoSuchUser);
        ::_exit(check() ? True : False);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return Verdict::False;
    if (WEXITSTATUS(status) == NoSuchUser)
        return Verdict::NoSuchUser;
    return WEXITSTATUS(status) == True ? Verdict::True : Verdict::False;
}

#endif
