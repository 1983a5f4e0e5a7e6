#pragma once

#include "meridane/base/values/VbString.h"

#include <utility>
#include <vector>

class NxField;
class OrvServices;
struct ReadScene;

/// The conversion of the unit and the up axis of an opened model as the first step of the history, so that it can be
/// undone.
class SpaceStep {
public:
    /// Takes the conversion out of a model that isn't open yet. Does nothing for a scene that wasn't converted.
    explicit SpaceStep(const ReadScene& read);
    /// Puts it back, once the model is open, as a step that doesn't count as a change of the user's.
    void push(OrvServices& services) const;

private:
    std::vector<std::pair<NxField*, VbString>> m_values; // what the conversion sets
};
