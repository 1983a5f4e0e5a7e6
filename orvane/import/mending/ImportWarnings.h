#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// What a user should know of a model that was read: what was left out or mended. Each kind gives one warning, which
/// names the parts that it is about.
class ImportWarnings {
public:
    /// A warning names that many parts, and counts the others.
    static constexpr std::size_t mostNames = 40;

    /// Adds a part to the warning of that text, which is the start of a sentence such as "left out lights without a
    /// node". A part is listed once, however often it is added. Parts without a name are counted only.
    void add(std::string_view text, std::string_view part);
    /// Adds a warning that names no part.
    void add(std::string_view text);

    /// The warnings in the order in which their kinds were added first.
    [[nodiscard]] std::vector<std::string> texts() const;

private:
    struct Kind {
        std::string text;
        std::vector<std::string> names;
        std::size_t unnamed = 0;
        std::size_t more = 0; // that aren't in `names`
    };

    Kind& kindOf(std::string_view text);

    std::vector<Kind> m_kinds;
};

} // namespace orvane
