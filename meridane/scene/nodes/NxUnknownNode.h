#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <string>

/// Stands for a node whose class isn't known here, such as one of a plug-in that isn't loaded. It keeps the name of the
/// class, the text of every field (as unknown fields) and the children, so that writing the scene loses nothing.
class NxUnknownNode : public NxGroup {
    NX_NODE(NxUnknownNode)

public:
    /// The name of the class that the file gave.
    [[nodiscard]] const char* getClassName() const override { return m_className.c_str(); }
    /// Takes the name of the class: letters, digits and `_`, the first no digit, and not `use` or `ignored`.
    void setClassName(std::string name);

protected:
    ~NxUnknownNode() override = default;

private:
    std::string m_className = "UnknownNode";
};
