#pragma once

#include "meridane/base/values/VbString.h"

#include <utility>
#include <vector>

class NxField;
class NxGroup;
class OrvServices;

/// The conversion of the unit and the up axis of an opened model as the first step of the history, so that it can be
/// undone.
class SpaceStep {
public:
    /// Takes the conversion out of a model that isn't open yet: the first node of the scene converts it. Does nothing
    /// for null, which means a scene that wasn't converted.
    explicit SpaceStep(NxGroup* scene);
    /// Puts it back, once the model is open, as a step that doesn't count as a change of the user's.
    void push(OrvServices& services) const;

private:
    std::vector<std::pair<NxField*, VbString>> m_values; // what the conversion sets
};
