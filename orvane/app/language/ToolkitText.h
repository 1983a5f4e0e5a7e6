#pragma once

#include <QString>

namespace orvane {

/// A message of the toolkit in the language in use. The toolkit has no Qt and writes English sentences; those that are
/// known here are translated, with their numbers and names as they are. Any other text stays as it is. On any thread.
[[nodiscard]] QString toolkitText(const QString& english);

} // namespace orvane
