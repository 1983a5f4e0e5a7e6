// Runs a program as if the machine, or a sandbox around it, had no locks to offer: BareMachine PROGRAM ARGUMENTS...
// The kernel answers each attempt to make one like a kernel that knows none.

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <initializer_list>

#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    const scmp_filter_ctx rules = seccomp_init(SCMP_ACT_ALLOW);
    constexpr std::uint32_t refused = SCMP_ACT_ERRNO(ENOSYS);
    for (const int call : {SCMP_SYS(seccomp), SCMP_SYS(landlock_create_ruleset), SCMP_SYS(close_range)})
        seccomp_rule_add(rules, refused, call, 0);
    for (const scmp_datum_t option : {scmp_datum_t{PR_SET_SECCOMP}, scmp_datum_t{PR_SET_NO_NEW_PRIVS}}) {
        const scmp_arg_cmp isOption{0, SCMP_CMP_EQ, option, 0};
        seccomp_rule_add_array(rules, refused, SCMP_SYS(prctl), 1, &isOption);
    }
    if (argc < 2 || seccomp_load(rules) != 0) {
        std::puts("this machine has no filters for system calls");
        return 125;
    }
    seccomp_release(rules);
    execv(argv[1], argv + 1);
    return 126;
}
