// SPDX-License-Identifier: BSD-3-Clause
//
// refusecall setuid|setresuid ID COMMAND [ARG...]: becomes the user with this id and runs the command in a world in
// which the kernel answers that system call with "Operation not permitted". Needs root.

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

int main(int argc, char **argv)
{
    if (argc < 4)
        return 2;
    const bool refuseSetuid = std::strcmp(argv[1], "setuid") == 0;
    const auto id = static_cast<uid_t>(std::strtoul(argv[2], nullptr, 10));
    const auto number = static_cast<unsigned int>(refuseSetuid ? SYS_setuid : SYS_setresuid);

    sock_filter code[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {sizeof(code) / sizeof(code[0]), code};
    // Without "no new privileges", which would disarm the set-user-id bit of the command.
    if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0 || setgid(id) != 0
        || (refuseSetuid ? setresuid(id, id, id) : setuid(id)) != 0) {
        std::perror("refusecall");
        return 2;
    }
    execv(argv[3], argv + 3);
    std::perror(argv[3]);
    return 2;
}
