#pragma once

#include "meridane/scene/check/detail/FieldRange.h"
#include "meridane/scene/components/FieldComponents.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

class NxFieldData;
class NxNode;
class NxType;

namespace meridane {

/// What a check has to do with the fields of a node class.
struct ClassPlan {
    /// What a node is for the nodes around it.
    enum class Role : std::uint8_t {
        Group,
        Switch, ///< a group that shows some of its children
        UnknownGroup, ///< of a class that isn't known, which may use anything
        Mesh,
        Material,
        Texture,
        Complexity,
        Light,
        Camera,
        Bystander, ///< neither uses what precedes it nor applies to what follows
        Unknown, ///< of a plug-in's class, which may use anything
    };

    /// A field whose numbers are checked.
    struct Numbers {
        int index = 0;
        const FieldComponents* components = nullptr;
        FieldRange range;
        bool isList = false;
        bool mayBeInfinite = false; ///< floating point numbers
        bool hasRange = false; ///< that is checked
    };

    /// A field with the path of a file.
    struct File {
        int index = 0;
    };

    Role role = Role::Unknown;
    std::vector<Numbers> numbers;
    std::vector<File> files;
};

/// The plans of all classes that were met. A plan is valid as long as this and the class.
class ClassPlans {
public:
    [[nodiscard]] const ClassPlan& of(NxNode& node);

private:
    std::unordered_map<const NxFieldData*, ClassPlan> m_plans;
    /// Those of the latest classes, since nodes of a few classes alternate.
    struct Recent {
        const NxFieldData* data = nullptr;
        const ClassPlan* plan = nullptr;
    };
    std::array<Recent, 16> m_recent;
};

} // namespace meridane
