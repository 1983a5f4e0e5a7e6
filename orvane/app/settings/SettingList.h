#pragma once

#include "orvane/app/settings/Setting.h"

#include <QStringView>

#include <vector>

namespace orvane {

/// All settings, page by page, in the order of the Settings window.
[[nodiscard]] const std::vector<Setting>& settingList();
/// The setting of that key, or null.
[[nodiscard]] const Setting* findSetting(QStringView key);

} // namespace orvane
