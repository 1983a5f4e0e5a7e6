#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxLight.h"

namespace meridane {

class LightRecord : public NodeRecord {
public:
    LightRecord(NxLight& light, NodeRecordListener& listener)
        : NodeRecord(light, NodeKind::Light, listener)
    {
    }
    [[nodiscard]] const NxLight* light() const noexcept { return static_cast<const NxLight*>(node()); }
};

} // namespace meridane
