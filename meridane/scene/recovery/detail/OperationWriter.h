#pragma once

#include "meridane/scene/recovery/detail/DirtyRows.h"
#include "meridane/scene/recovery/detail/RecoveryFormat.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

class NxFieldData;
class NxMField;
class NxNode;
class NxSFImage;
class VbString;

namespace meridane {

/// Appends operations on the scene of a recovery file to bytes. Nodes are named by their numbers in the file, fields by
/// their index in their class.
class OperationWriter {
public:
    /// The field that a content belongs to.
    struct Place {
        std::uint64_t node = 0;
        int field = 0;
    };

    /// The node gets the next number.
    void node(NxNode& node);
    /// To be called before the first operation on a field of a node of that class, as `node` does.
    void describeClass(NxNode& node) { static_cast<void>(classOf(node)); }
    void name(std::uint64_t node, std::string_view name);
    void ignored(const Place& place, bool isIgnored);
    void value(const Place& place, std::uint8_t parts, std::string_view text);
    /// The bytes from `position` on, at most `count`; moves the position. Returns whether there are more.
    bool image(const Place& place, const NxSFImage& image, std::size_t& position, std::size_t count);
    /// Rows of a list of plain numbers.
    void plainRows(const Place& place, const NxMField& list, const DirtyRows::Part& part);
    /// Rows of another list, of which `texts` are the texts.
    void textRows(const Place& place, std::span<const VbString> texts, const DirtyRows::Part& part);
    /// The nodes `inserted` replace `removed` children from `start` on.
    void children(std::uint64_t node, std::size_t start, std::size_t removed, std::span<const std::uint64_t> inserted);
    /// `name` and `isIgnored` are only for the first part.
    void unknownField(
        std::uint64_t node, std::uint8_t parts, bool isIgnored, std::string_view name, std::string_view text);

    [[nodiscard]] bool isEmpty() const noexcept { return m_bytes.empty(); }
    /// Appends all operations to `bytes` and removes them here.
    void moveTo(std::string& bytes);

private:
    std::uint64_t classOf(NxNode& node);
    void begin(RecoveryFormat::Operation operation);
    void begin(RecoveryFormat::Operation operation, const Place& place);
    void describeFields(const NxFieldData& data);

    std::string m_bytes;
    std::unordered_map<const NxFieldData*, std::uint64_t> m_classes;
    std::map<std::string, std::uint64_t, std::less<>> m_unknownClasses;
};

} // namespace meridane
