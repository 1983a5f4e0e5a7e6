#include "meridane/base/NxPreferences.h"

#include "meridane/base/detail/SettingsText.h"
#include "meridane/base/errors/NxReadError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>

namespace {

constexpr std::size_t maxFileSize = 1024 * 1024;

struct Store {
    std::mutex mutex;
    meridane::Settings ofProcess;
    meridane::Settings ofFile;
};

Store& store()
{
    // Never destroyed, because static objects may read a preference until the process ends.
    static Store& instance = *new Store;
    return instance;
}

std::optional<std::string> find(const char* name)
{
    if (const char* const value = std::getenv(name); value != nullptr)
        return value;
    const std::lock_guard lock(store().mutex);
    for (const meridane::Settings* settings : {&store().ofProcess, &store().ofFile}) {
        if (const auto entry = settings->find(std::string_view(name)); entry != settings->end())
            return entry->second;
    }
    return std::nullopt;
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::any_of(words.begin(), words.end(), [&](std::string_view word) {
        return std::equal(
            text.begin(), text.end(), word.begin(), word.end(), [&](char a, char b) { return lower(a) == b; });
    });
}

std::string messageOf(int error)
{
    return "cannot read the settings file: " + std::system_category().message(error);
}

/// The content of a settings file; empty if it doesn't exist. Sets a message if it can't be read.
std::optional<std::string> readSettings(const char* path, std::string& message)
{
    const auto close = [](std::FILE* open) { return std::fclose(open); };
    const std::unique_ptr<std::FILE, decltype(close)> file(std::fopen(path, "rb"));
    if (file == nullptr) {
        if (errno == ENOENT)
            return std::string();
        message = messageOf(errno);
        return std::nullopt;
    }
    std::string text;
    std::array<char, 4096> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file.get())) {
        text.append(block.data(), count);
        if (text.size() > maxFileSize) {
            message = "the settings file is larger than 1 MiB";
            return std::nullopt;
        }
    }
    if (std::ferror(file.get()) != 0) {
        message = messageOf(errno);
        return std::nullopt;
    }
    return text;
}

} // namespace

int NxPreferences::getBool(const char* name, int defaultValue)
{
    const std::optional<std::string> value = find(name);
    if (value && isOneOf(*value, {"1", "true", "yes", "on"}))
        return 1;
    if (value && isOneOf(*value, {"0", "false", "no", "off"}))
        return 0;
    return defaultValue;
}

VbString NxPreferences::getString(const char* name, const VbString& defaultValue)
{
    const std::optional<std::string> value = find(name);
    return value ? VbString(std::string_view(*value)) : defaultValue;
}

void NxPreferences::set(const char* name, const VbString& value)
{
    const std::lock_guard lock(store().mutex);
    store().ofProcess[name] = value.view();
}

void NxPreferences::unset(const char* name)
{
    const std::lock_guard lock(store().mutex);
    store().ofProcess.erase(name);
}

int NxPreferences::setFile(const char* path)
{
    meridane::SettingsText content;
    if (path != nullptr && *path != '\0') {
        std::string message;
        const std::optional<std::string> text = readSettings(path, message);
        if (!text) {
            NxReadError::post(path, 0, 0, VbString(message));
            return 0;
        }
        content = meridane::parseSettings(*text);
    }
    {
        const std::lock_guard lock(store().mutex);
        store().ofFile = std::move(content.settings);
    }
    // Without the lock: a handler may read a preference.
    for (const meridane::SettingsProblem& problem : content.problems)
        NxReadError::post(path, problem.line, problem.column, VbString(problem.expected));
    return content.problems.empty() ? 1 : 0;
}
