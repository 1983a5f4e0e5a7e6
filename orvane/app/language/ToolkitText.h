#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace orvane {

/// A message of the toolkit in the language in use. The toolkit has no Qt and writes English sentences; those that are
/// known here are translated, with their numbers and names as they are. Any other text stays as it is. On any thread.
[[nodiscard]] QString toolkitText(const QString& english);

/// What a class of nodes or a field is for, in UTF-8 as the class declares it, in the language in use; as it is for
/// those of plug-ins.
[[nodiscard]] QString nodeDescription(std::string_view english);
/// All of these sentences that can be translated.
[[nodiscard]] std::span<const char* const> nodeDescriptions() noexcept;

} // namespace orvane
