#include "orvane/import/conversion/GltfAdditions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace orvane {
namespace {

constexpr std::string_view lightsExtension = "\"KHR_lights_punctual\"";

std::string number(float value)
{
    char text[32];
    // The text form has no infinite numbers.
    const auto result = std::to_chars(std::begin(text), std::end(text), std::isfinite(value) ? value : 0.0F);
    return {text, result.ptr};
}

std::string quoted(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            result.append(1, '\\').append(1, c);
        else if (code < 0x20)
            result.append("\\u00").append(1, digits[code >> 4]).append(1, digits[code & 15]);
        else
            result.append(1, c);
    }
    return result + '"';
}

std::string cameraText(const aiCamera& camera)
{
    const std::string distances
        = R"(,"znear":)" + number(camera.mClipPlaneNear) + R"(,"zfar":)" + number(camera.mClipPlaneFar) + "}}";
    // The pictures of our cameras are square.
    if (camera.mOrthographicWidth > 0)
        return R"({"type":"orthographic","orthographic":{"xmag":)" + number(camera.mOrthographicWidth) + R"(,"ymag":)"
            + number(camera.mOrthographicWidth) + distances;
    return R"({"type":"perspective","perspective":{"yfov":)" + number(camera.mHorizontalFOV) + distances;
}

std::string lightText(const aiLight& light)
{
    const aiColor3D& color = light.mColorDiffuse;
    const float strength = std::max({color.r, color.g, color.b, 0.0F});
    const float share = strength > 0 ? 1 / strength : 0;
    std::string text = R"({"color":[)" + number(color.r * share) + "," + number(color.g * share) + ","
        + number(color.b * share) + R"(],"intensity":)" + number(strength);
    if (light.mType == aiLightSource_SPOT) {
        // The format wants the inner angle smaller than the outer one.
        const float inner = std::min(light.mAngleInnerCone, std::nextafter(light.mAngleOuterCone, 0.0F));
        return text + R"(,"type":"spot","spot":{"innerConeAngle":)" + number(inner) + R"(,"outerConeAngle":)"
            + number(light.mAngleOuterCone) + "}}";
    }
    return text + (light.mType == aiLightSource_POINT ? R"(,"type":"point"})" : R"(,"type":"directional"})");
}

void appendElement(std::string& list, const std::string& element)
{
    list += (list.empty() ? "" : ",") + element;
}

std::uint32_t wordAt(const std::string& bytes, std::size_t place)
{
    std::uint32_t word = 0;
    std::memcpy(&word, bytes.data() + place, sizeof word);
    return word;
}

void setWord(std::string& bytes, std::size_t place, std::size_t word)
{
    const auto value = static_cast<std::uint32_t>(word);
    std::memcpy(bytes.data() + place, &value, sizeof value);
}

} // namespace

GltfAdditions::GltfAdditions(aiScene& model)
{
    for (unsigned int index = 0; index < model.mNumCameras; ++index) {
        mark(model, model.mCameras[index]->mName, "camera", index, R"("camera":)" + std::to_string(index));
        appendElement(m_cameras, cameraText(*model.mCameras[index]));
    }
    for (unsigned int index = 0; index < model.mNumLights; ++index) {
        mark(model, model.mLights[index]->mName, "light", index,
            R"("extensions":{)" + std::string(lightsExtension) + R"(:{"light":)" + std::to_string(index) + "}}");
        appendElement(m_lights, lightText(*model.mLights[index]));
    }
}

void GltfAdditions::mark(
    aiScene& model, const aiString& name, const char* kind, std::size_t index, const std::string& members)
{
    aiNode* node = model.mRootNode->FindNode(name);
    if (node == nullptr)
        return;
    const std::string mark = std::string("orvane:") + kind + ':' + std::to_string(index);
    m_nodes.push_back({quoted(mark), quoted({name.data, name.length}) + ',' + members});
    node->mName.Set(mark);
}

void GltfAdditions::complete(std::string& file) const
{
    constexpr std::size_t head = 12; // of the file: a magic word, the version and the length of all
    constexpr std::size_t textStart = head + 8; // behind the length and the kind of the first part
    if (!file.starts_with("glTF")) {
        completeText(file);
        return;
    }
    const std::size_t oldLength = wordAt(file, head);
    std::string text = file.substr(textStart, oldLength);
    completeText(text);
    text.append((4 - text.size() % 4) % 4, ' ');
    file.replace(textStart, oldLength, text);
    setWord(file, head, text.size());
    setWord(file, 8, file.size());
}

void GltfAdditions::completeText(std::string& text) const
{
    for (const Addition& node : m_nodes) {
        const std::size_t place = text.find(node.mark);
        if (place != std::string::npos)
            text.replace(place, node.mark.size(), node.text);
    }
    std::string members;
    if (!m_cameras.empty())
        members += R"("cameras":[)" + m_cameras + "],";
    if (!m_lights.empty()) {
        members += R"("extensions":{)" + std::string(lightsExtension) + R"(:{"lights":[)" + m_lights + "]}},";
        const std::string used = R"("extensionsUsed")";
        const std::size_t place = text.find(used);
        if (place == std::string::npos)
            members += used + ":[" + std::string(lightsExtension) + "],";
        else
            text.insert(text.find('[', place) + 1, std::string(lightsExtension) + ',');
    }
    text.insert(text.find('{') + 1, members);
}

} // namespace orvane
