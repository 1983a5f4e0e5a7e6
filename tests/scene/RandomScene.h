#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <string>

/// A scene with nodes of all classes and of unknown ones, awkward names, shared nodes, random values in random fields;
/// the same one for the same seed.
NxRef<NxGroup> makeRandomScene(unsigned int seed);

/// Tells how two scenes differ, in classes, names, fields, flags, children, or in which nodes are shared; empty if they
/// are the same.
std::string findDifference(const NxGroup& left, const NxGroup& right);
