#pragma once

#include "meridane/base/types/NxTypedObject.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/detail/SensorList.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class NxField;
class NxFieldData;
class NxNodeSensor;
class VbName;

namespace meridane {
class ChangeRecorder;
class NameRecord;
} // namespace meridane

/// The owner of fields: a node of the scene, with a name and a count of references.
///
/// A new container has no reference; the last `unref` deletes it. Thread of the user interface only.
class NxFieldContainer : public NxTypedObject {
public:
    /// The run-time type of all containers, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();
    [[nodiscard]] NxType getTypeId() const override { return getClassTypeId(); }

    /// Adds a reference. Const, since references are no part of the node's state.
    void ref() const noexcept { ++m_references; }
    /// Releases a reference; the last one deletes the container.
    void unref() const;
    /// The number of references; 0 for a new container.
    [[nodiscard]] int getRefCount() const noexcept { return m_references; }

    /// The node's own name, which need not be unique; empty for none.
    [[nodiscard]] const VbString& getName() const noexcept { return m_name; }
    /// Renames the node and notifies its node sensors.
    void setName(const VbString& name);

    /// Describes the fields of the container's class. Never null; the class owns it.
    [[nodiscard]] virtual NxFieldData* getFieldData() = 0;

    /// The field of that name, or null.
    [[nodiscard]] NxField* getField(const VbName& name);
    /// The name of a field of this container; the empty name for a foreign field.
    [[nodiscard]] VbName getFieldName(const NxField* field) const;
    /// All fields in the order of declaration.
    [[nodiscard]] std::vector<NxField*> getFields();

    /// An unknown field: read from a file and written back unchanged.
    struct UnknownField {
        std::string name; ///< the name of the field, as in the file
        std::string text; ///< the text of the value, as in the file
        bool ignored = false; ///< whether the file marks the field as ignored
    };
    /// Adds an unknown field behind the others. Nobody is notified.
    void addUnknownField(UnknownField field);
    /// The unknown fields in the order of the file; valid until one is added.
    [[nodiscard]] const std::vector<UnknownField>& getUnknownFields() const noexcept;

    /// A number that changes whenever a node is renamed or a list of children changes, in any scene. Caches that depend
    /// on names and structure compare it.
    [[nodiscard]] static std::uint64_t getStructureRevision() noexcept { return s_structureRevision; }

    /// Notifies the node sensors that the name, a field or the list of children changed.
    void touch();

protected:
    NxFieldContainer();
    ~NxFieldContainer() override;

    /// Notes that a name or a list of children changed.
    static void noteStructureChange() noexcept { ++s_structureRevision; }

private:
    friend class NxField;
    friend class NxNodeSensor;
    friend class meridane::ChangeRecorder;
    friend class meridane::NameRecord;

    /// Data that few nodes have; allocated with the first sensor or unknown field.
    struct Rare {
        meridane::SensorList<NxNodeSensor> sensors;
        std::vector<UnknownField> unknownFields;
    };
    Rare& rare();
    [[nodiscard]] bool isWatched() const noexcept { return m_rare != nullptr && !m_rare->sensors.isEmpty(); }

    static std::uint64_t s_structureRevision;

    mutable int m_references = 0;
    std::uint32_t m_recorderNumber : 31 = 0; // belongs to the recorder of changes
    std::uint32_t m_isNameRecorded : 1 = 0; // the recorder has the name from before the present step
    VbString m_name;
    std::unique_ptr<Rare> m_rare;
};
