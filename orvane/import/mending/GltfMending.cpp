#include "orvane/import/mending/GltfMending.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using Json = nlohmann::json;

constexpr std::size_t headSize = 12; // of a binary file: a magic word, the version and the length of all
constexpr std::size_t chunkHeadSize = 8; // the length and the kind
constexpr std::uint32_t textKind = 0x4e4f534a;

std::uint32_t wordAt(std::string_view bytes, std::size_t place)
{
    std::uint32_t word = 0;
    std::memcpy(&word, bytes.data() + place, sizeof word);
    return word;
}

std::string wordOf(std::size_t number)
{
    const auto word = static_cast<std::uint32_t>(number);
    std::string bytes(sizeof word, '\0');
    std::memcpy(bytes.data(), &word, sizeof word);
    return bytes;
}

/// The text of a file, and what follows it in a binary one.
struct GltfParts {
    std::string_view text;
    std::string_view rest;
    bool isBinary = false;
};

std::optional<GltfParts> partsOf(std::string_view file)
{
    if (!file.starts_with("glTF"))
        return GltfParts{file, {}, false};
    if (file.size() < headSize + chunkHeadSize || wordAt(file, headSize + 4) != textKind)
        return std::nullopt;
    const std::size_t start = headSize + chunkHeadSize;
    const std::size_t size = wordAt(file, headSize);
    if (size > file.size() - start)
        return std::nullopt;
    return GltfParts{file.substr(start, size), file.substr(start + size), true};
}

std::string joined(const GltfParts& parts, std::string text)
{
    if (!parts.isBinary)
        return text;
    text.append((4 - text.size() % 4) % 4, ' ');
    const std::size_t size = headSize + chunkHeadSize + text.size() + parts.rest.size();
    return "glTF" + wordOf(2) + wordOf(size) + wordOf(text.size()) + wordOf(textKind) + text + std::string(parts.rest);
}

/// Removes the references of a file that lead nowhere.
class References {
public:
    References(Json& file, std::string_view emptyMesh, ImportWarnings& warnings)
        : m_file(file)
        , m_emptyMesh(emptyMesh)
        , m_warnings(warnings)
    {
    }

    /// Returns whether anything was removed.
    bool mend()
    {
        for (Json& mesh : list("meshes"))
            mendMesh(mesh);
        for (Json& node : list("nodes"))
            mendNode(node);
        for (Json& scene : list("scenes"))
            mendList(scene, "nodes", "left out nodes that don't exist in the scenes");
        if (list("scenes").empty() && !list("nodes").empty())
            addScene();
        return m_isChanged;
    }

private:
    // A list that is missing, or is none, counts as empty.
    Json& list(const char* name)
    {
        m_none = Json::array();
        return m_file.contains(name) && m_file[name].is_array() ? m_file[name] : m_none;
    }

    [[nodiscard]] bool exists(const char* name, const Json& index)
    {
        return index.is_number_unsigned() && index.get<std::size_t>() < list(name).size();
    }

    static std::string nameOf(const Json& part)
    {
        const auto name = part.find("name");
        return name != part.end() && name->is_string() ? name->get<std::string>() : std::string();
    }

    void report(const char* text, const Json& part)
    {
        m_isChanged = true;
        m_warnings.add(text, nameOf(part));
    }

    [[nodiscard]] bool hasValues(const Json& index)
    {
        if (!exists("accessors", index))
            return false;
        const Json& accessor = m_file["accessors"][index.get<std::size_t>()];
        return accessor.is_object() && accessor.contains("count") && accessor["count"].is_number_unsigned()
            && accessor["count"] > 0;
    }

    [[nodiscard]] bool isDrawable(const Json& primitive)
    {
        if (!primitive.is_object() || !primitive.contains("attributes") || !primitive["attributes"].is_object())
            return false;
        const Json& attributes = primitive["attributes"];
        return attributes.contains("POSITION") && hasValues(attributes["POSITION"])
            && (!primitive.contains("indices") || hasValues(primitive["indices"]));
    }

    void mendMesh(Json& mesh)
    {
        if (!mesh.is_object())
            return;
        Json kept = Json::array();
        if (mesh.contains("primitives") && mesh["primitives"].is_array()) {
            for (Json& primitive : mesh["primitives"]) {
                if (!isDrawable(primitive))
                    continue;
                if (primitive.contains("material") && !exists("materials", primitive["material"])) {
                    primitive.erase("material");
                    report("left out materials that don't exist in the meshes", mesh);
                }
                kept.push_back(std::move(primitive));
            }
        }
        mesh["primitives"] = std::move(kept);
    }

    [[nodiscard]] bool isUsableMesh(const Json& index)
    {
        if (!exists("meshes", index))
            return false;
        const Json& mesh = m_file["meshes"][index.get<std::size_t>()];
        return mesh.is_object() && !mesh["primitives"].empty() && (m_emptyMesh.empty() || nameOf(mesh) != m_emptyMesh);
    }

    void mendNode(Json& node)
    {
        if (!node.is_object())
            return;
        if (node.contains("mesh") && !isUsableMesh(node["mesh"])) {
            node.erase("mesh");
            report("left out meshes without anything to draw in the nodes", node);
        }
        for (const auto& [member, name] : {std::pair("camera", "cameras"), std::pair("skin", "skins")}) {
            if (node.contains(member) && !exists(name, node[member])) {
                node.erase(member);
                report("left out cameras and skins that don't exist in the nodes", node);
            }
        }
        mendList(node, "children", "left out nodes that don't exist in the nodes");
    }

    // A library of nodes needn't have a scene, but the reader wants one.
    void addScene()
    {
        std::vector<bool> isChild(list("nodes").size());
        for (const Json& node : list("nodes")) {
            if (!node.is_object() || !node.contains("children") || !node["children"].is_array())
                continue;
            for (const Json& index : node["children"])
                isChild[index.get<std::size_t>()] = true; // all exist by now
        }
        Json roots = Json::array();
        for (std::size_t index = 0; index < isChild.size(); ++index) {
            if (!isChild[index])
                roots.push_back(index);
        }
        m_file["scenes"] = Json::array({Json::object({{"nodes", roots}})});
        m_file["scene"] = 0;
        m_isChanged = true;
    }

    void mendList(Json& part, const char* member, const char* warning)
    {
        if (!part.is_object() || !part.contains(member) || !part[member].is_array())
            return;
        Json kept = Json::array();
        for (const Json& index : part[member]) {
            if (exists("nodes", index))
                kept.push_back(index);
        }
        if (kept.size() < part[member].size())
            report(warning, part);
        part[member] = std::move(kept);
    }

    Json& m_file;
    Json m_none;
    std::string_view m_emptyMesh;
    ImportWarnings& m_warnings;
    bool m_isChanged = false;
};

} // namespace

std::optional<std::string> withoutUnusableParts(
    std::string_view file, std::string_view emptyMesh, ImportWarnings& warnings)
{
    const std::optional<GltfParts> parts = partsOf(file);
    if (!parts)
        return std::nullopt;
    Json json = Json::parse(parts->text, nullptr, false);
    if (!json.is_object() || !json.contains("asset") || !References(json, emptyMesh, warnings).mend())
        return std::nullopt;
    return joined(*parts, json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

} // namespace orvane
