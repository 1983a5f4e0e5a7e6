#pragma once

#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <span>

/// \file
/// The base of node classes, and the macros with which a class is declared and registered.

/// A node of the scene graph. A node may be used in several places of the graph.
class NxNode : public NxFieldContainer {
public:
    /// The run-time type of all nodes, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

    /// The node's children in order; none for a node that is no group. Valid until the list changes.
    [[nodiscard]] virtual std::span<NxNode* const> getChildren() const { return {}; }
    /// The name of the node's class as files and users know it, such as "Material". For a node of an unknown class the
    /// name that the file gave.
    [[nodiscard]] virtual const char* getClassName() const;

protected:
    NxNode() = default;
    ~NxNode() override = default;
};

namespace meridane {

/// What a node class says of itself.
struct ClassTexts {
    const char* name; ///< the name of the class in files, such as "Material"; a literal
    const char* description = ""; ///< what the class is: one sentence with a full stop, or empty; a literal
};

/// A new node without a reference, for the registry of classes.
template <typename Node>
NxTypedObject* createNode()
{
    return new Node;
}

/// A new node without a reference, for the description of its fields.
template <typename Node>
NxFieldContainer* createFieldContainer()
{
    return new Node;
}

} // namespace meridane

/// The first line in the declaration of a node class: `NX_NODE(NxMaterial)`.
#define NX_NODE(Class)                                                                                                 \
public:                                                                                                                \
    [[nodiscard]] static NxType getClassTypeId();                                                                      \
    [[nodiscard]] NxType getTypeId() const override;                                                                   \
    [[nodiscard]] NxFieldData* getFieldData() override;                                                                \
                                                                                                                       \
private:

/// A line in the source file of a node class, such as
/// `NX_NODE_SOURCE(NxSwitch, NxGroup, "Switch", "A group that shows one of its children.")`: the class, its parent, its
/// name and a description, one sentence with a full stop, which may be left out. The class is registered when the
/// library that holds it is loaded. For scene files, the name of the class and those of its fields consist of letters,
/// digits and `_`, the first no digit, and the class isn't called `use` or `ignored`.
#define NX_NODE_SOURCE(Class, Parent, ...)                                                                             \
    NxType Class::getClassTypeId()                                                                                     \
    {                                                                                                                  \
        static const NxType type = NxType::registerClass(                                                              \
            meridane::ClassTexts{__VA_ARGS__}.name, Parent::getClassTypeId(), &meridane::createNode<Class>);           \
        return type;                                                                                                   \
    }                                                                                                                  \
    NxType Class::getTypeId() const                                                                                    \
    {                                                                                                                  \
        return getClassTypeId();                                                                                       \
    }                                                                                                                  \
    NxFieldData* Class::getFieldData()                                                                                 \
    {                                                                                                                  \
        static NxFieldData data(                                                                                       \
            &meridane::createFieldContainer<Class>, meridane::ClassTexts{__VA_ARGS__}.description);                    \
        return &data;                                                                                                  \
    }                                                                                                                  \
    namespace {                                                                                                        \
    [[maybe_unused]] const NxType registered##Class = Class::getClassTypeId();                                         \
    }
