#include "meridane/scene/fields/ChangeRecord.h"

namespace meridane {

ChangeRecord::~ChangeRecord() = default;

} // namespace meridane
