#include "orvane/import/sandbox/FileAccess.h"

#include "orvane/import/sandbox/Coverage.h"
#include "orvane/import/sandbox/Sanitizer.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace orvane {
namespace {

// The kernel's interface is declared here, since the C library has no functions for it and the system's headers may be
// older than the kernel. The kernel reports its version, and refuses bits of later versions.
struct RuleSet {
    std::uint64_t fileAccess;
    std::uint64_t networkAccess; // from version 4
    std::uint64_t scopes; // from version 6
};

struct [[gnu::packed]] FolderRule {
    std::uint64_t allowedAccess;
    std::int32_t folder;
};

constexpr long createRuleSetCall = 444;
constexpr long addRuleCall = 445;
constexpr long restrictSelfCall = 446;
constexpr unsigned int askVersion = 1;
constexpr int folderRule = 1;

constexpr std::uint64_t writeFiles = 1U << 1U;
constexpr std::uint64_t readFiles = 1U << 2U;
constexpr std::uint64_t readFolders = 1U << 3U;
constexpr std::uint64_t createFiles = 1U << 8U;

constexpr std::uint64_t allBelow(unsigned int bit)
{
    return (std::uint64_t{1} << bit) - 1;
}

/// Every access that this version of the interface can restrict.
RuleSet everythingOf(long version)
{
    RuleSet rules{allBelow(13), 0, 0};
    if (version >= 2)
        rules.fileAccess = allBelow(14); // moving files between folders
    if (version >= 3)
        rules.fileAccess = allBelow(15); // truncating
    if (version >= 5)
        rules.fileAccess = allBelow(16); // commands to devices
    if (version >= 4)
        rules.networkAccess = allBelow(2); // listening and connecting
    if (version >= 6)
        rules.scopes = allBelow(2); // abstract sockets and signals
    return rules;
}

std::size_t sizeOf(long version)
{
    return sizeof(std::uint64_t) * (version >= 6 ? 3 : version >= 4 ? 2 : 1);
}

bool allow(int ruleSet, const std::string& folder, std::uint64_t access)
{
    const int descriptor = ::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const FolderRule rule{access, descriptor};
    const bool added = syscall(addRuleCall, ruleSet, folderRule, &rule, 0U) == 0;
    close(descriptor);
    return added;
}

[[maybe_unused]] std::vector<std::string> foldersOfTheSanitizer()
{
    std::vector<std::string> folders{"/proc", "/usr", "/lib"};
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error)
        folders.push_back(program.parent_path().parent_path().string());
    return folders;
}

} // namespace

bool restrictFiles(const std::vector<std::string>& readableFolders)
{
    const long version = syscall(createRuleSetCall, nullptr, std::size_t{0}, askVersion);
    if (version < 1)
        return false;
    const RuleSet rules = everythingOf(version);
    const auto ruleSet = static_cast<int>(syscall(createRuleSetCall, &rules, sizeOf(version), 0U));
    if (ruleSet < 0)
        return false;
    constexpr std::uint64_t reading = readFiles | readFolders;
    for (const std::string& folder : readableFolders)
        allow(ruleSet, folder, reading);
    if constexpr (isSanitized()) {
        for (const std::string& folder : foldersOfTheSanitizer())
            allow(ruleSet, folder, reading);
    }
    if constexpr (!coverageFolder().empty())
        allow(ruleSet, std::string(coverageFolder()), readFiles | writeFiles | createFiles);
    const bool restricted = prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && syscall(restrictSelfCall, ruleSet, 0U) == 0;
    close(ruleSet);
    return restricted;
}

std::vector<std::string> foldersOf(const std::string& path)
{
    const std::filesystem::path given(path);
    std::vector<std::string> folders{given.has_parent_path() ? given.parent_path().string() : "."};
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(given, error);
    if (!error)
        folders.push_back(real.parent_path().string());
    return folders;
}

} // namespace orvane
