#include "orvane/import/conversion/MeshConversion.h"

#include "orvane/import/conversion/TransformConversion.h"
#include "orvane/import/mending/Names.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace orvane {
namespace {

unsigned int cornersOf(int primitive)
{
    return primitive == NxMesh::POINTS ? 1 : primitive == NxMesh::LINES ? 2 : 3;
}

int primitiveOf(const aiMesh& mesh)
{
    if ((mesh.mPrimitiveTypes & aiPrimitiveType_TRIANGLE) != 0)
        return NxMesh::TRIANGLES;
    return (mesh.mPrimitiveTypes & aiPrimitiveType_LINE) != 0 ? NxMesh::LINES : NxMesh::POINTS;
}

template <typename Target, typename Source, typename Convert>
std::vector<Target> converted(const Source* values, unsigned int count, Convert convert)
{
    std::vector<Target> result(values == nullptr ? 0 : count);
    std::transform(values, values + result.size(), result.begin(), convert);
    return result;
}

std::vector<int> indicesOf(const aiMesh& mesh, unsigned int corners)
{
    std::vector<int> indices;
    indices.reserve(std::size_t{mesh.mNumFaces} * corners);
    for (const aiFace& face : std::span(mesh.mFaces, mesh.mNumFaces)) {
        const std::span<const unsigned int> all(face.mIndices, face.mNumIndices);
        const bool fits = std::all_of(all.begin(), all.end(), [&](unsigned int i) { return i < mesh.mNumVertices; });
        if (all.size() == corners && fits)
            indices.insert(indices.end(), all.begin(), all.end());
    }
    return indices;
}

// Some formats scale normals together with the mesh.
VbVec3f toDirection(const aiVector3D& vector)
{
    const float square = vector.SquareLength();
    if (!(square > 0) || !std::isfinite(square) || std::abs(square - 1) < 1e-3F)
        return toVec(vector);
    return toVec(vector / std::sqrt(square));
}

// A new array, owned by the library; null if there isn't a value for each position.
template <typename Target, typename Source, typename Convert>
Target* newArray(std::span<const Source> values, std::size_t count, Convert convert)
{
    if (values.size() != count)
        return nullptr;
    auto* array = new Target[count];
    std::transform(values.begin(), values.end(), array, convert);
    return array;
}

aiColor4D toAiColor(const VbVec4f& color)
{
    return {color[0], color[1], color[2], color[3]};
}

void setVertices(aiMesh& target, const NxMesh& mesh)
{
    const std::size_t count = mesh.positions.getValues().size();
    target.mNumVertices = static_cast<unsigned int>(count);
    target.mVertices = newArray<aiVector3D>(mesh.positions.getValues(), count, &toAiVector);
    target.mNormals = newArray<aiVector3D>(mesh.normals.getValues(), count, &toAiVector);
    target.mTextureCoords[0] = newArray<aiVector3D>(mesh.textureCoordinates.getValues(), count,
        [](const VbVec2f& place) { return aiVector3D(place[0], place[1], 0); });
    target.mNumUVComponents[0] = target.mTextureCoords[0] == nullptr ? 0 : 2;
    const std::span<const VbVec4f> colors = mesh.colors.getValues();
    if (colors.size() == 1) {
        target.mColors[0] = new aiColor4D[count];
        std::fill_n(target.mColors[0], count, toAiColor(colors.front()));
    } else if (!colors.empty()) {
        target.mColors[0] = newArray<aiColor4D>(colors, count, [](const VbVec4f& color) { return toAiColor(color); });
    }
}

void setFaces(aiMesh& target, std::span<const int> indices, unsigned int corners)
{
    // Without indices all positions follow in order.
    const std::size_t count = indices.empty() ? target.mNumVertices : indices.size();
    target.mNumFaces = static_cast<unsigned int>(count / corners);
    target.mFaces = new aiFace[target.mNumFaces];
    std::size_t next = 0;
    for (aiFace& face : std::span(target.mFaces, target.mNumFaces)) {
        face.mNumIndices = corners;
        face.mIndices = new unsigned int[corners];
        for (unsigned int& index : std::span(face.mIndices, corners)) {
            index = static_cast<unsigned int>(indices.empty() ? static_cast<int>(next) : indices[next]);
            ++next;
        }
    }
}

} // namespace

NxRef<NxMesh> toMesh(const aiMesh& mesh, const TextureMapping& mapping)
{
    NxRef<NxMesh> result = new NxMesh;
    const int primitive = primitiveOf(mesh);
    result->setName(toName(mesh.mName));
    result->primitive.setValue(primitive);
    result->positions.setValues(converted<VbVec3f>(mesh.mVertices, mesh.mNumVertices, &toVec));
    result->normals.setValues(converted<VbVec3f>(mesh.mNormals, mesh.mNumVertices, &toDirection));
    const aiVector3D* const coordinates = mesh.mTextureCoords[mapping.channel] != nullptr
        ? mesh.mTextureCoords[mapping.channel]
        : mesh.mTextureCoords[0];
    const bool isMapped = mapping.across != TextureMapping().across || mapping.upwards != TextureMapping().upwards;
    result->textureCoordinates.setValues(
        converted<VbVec2f>(coordinates, mesh.mNumVertices, [&](const aiVector3D& given) {
            const aiVector3D place(given.x, given.y, 1);
            return isMapped ? VbVec2f(mapping.across * place, mapping.upwards * place) : VbVec2f(given.x, given.y);
        }));
    result->colors.setValues(converted<VbVec4f>(mesh.mColors[0], mesh.mNumVertices,
        [](const aiColor4D& color) { return VbVec4f(color.r, color.g, color.b, color.a); }));
    result->indices.setValues(indicesOf(mesh, cornersOf(primitive)));
    return result;
}

std::unique_ptr<aiMesh> toAiMesh(const NxMesh& mesh, std::string& error)
{
    const int positions = mesh.positions.getNum();
    const std::span<const int> indices = mesh.indices.getValues();
    const auto bad = std::find_if(indices.begin(), indices.end(), [&](int i) { return i < 0 || i >= positions; });
    if (bad != indices.end()) {
        error = "the mesh \"" + std::string(mesh.getName().view()) + "\" has the index " + std::to_string(*bad)
            + ", but only " + std::to_string(positions) + " positions";
        return nullptr;
    }
    const int primitive = mesh.primitive.getValue();
    auto result = std::make_unique<aiMesh>();
    result->mName = toAiText(mesh.getName());
    result->mPrimitiveTypes = primitive == NxMesh::POINTS ? aiPrimitiveType_POINT
        : primitive == NxMesh::LINES                      ? aiPrimitiveType_LINE
                                                          : aiPrimitiveType_TRIANGLE;
    setVertices(*result, mesh);
    setFaces(*result, indices, cornersOf(primitive));
    return result->mNumFaces == 0 ? nullptr : std::move(result);
}

} // namespace orvane
