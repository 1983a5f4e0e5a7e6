#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/ChangeRecord.h"

#include <map>
#include <memory>
#include <span>
#include <vector>

class NxGroup;
class NxNode;

namespace meridane {

/// Copies of the places that some records are about, to compare them with a later state of the scene.
class PlaceSnapshots {
public:
    void add(const ChangeRecord& record);
    void add(std::span<const std::unique_ptr<ChangeRecord>> records);
    /// Whether all places are as they were when they were added, bit for bit.
    [[nodiscard]] bool areSameAsNow() const;

private:
    std::map<NxField*, std::unique_ptr<ChangeRecord>> m_values;
    std::map<const NxField*, bool> m_ignored;
    std::map<const NxFieldContainer*, VbString> m_names;
    std::map<const NxGroup*, std::vector<NxNode*>> m_children;
};

} // namespace meridane
