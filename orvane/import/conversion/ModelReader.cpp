#include "orvane/import/conversion/ModelReader.h"

#include "orvane/import/conversion/ModelFiles.h"
#include "orvane/import/conversion/SceneBuilder.h"
#include "orvane/import/mending/EmissionMending.h"
#include "orvane/import/mending/GltfMending.h"
#include "orvane/import/mending/JoiningScale.h"
#include "orvane/import/mending/ModelMending.h"
#include "orvane/import/mending/ObjMending.h"
#include "orvane/import/mending/PivotFolding.h"
#include "orvane/import/mending/RestPose.h"
#include "orvane/import/mending/SideMending.h"
#include "orvane/import/mending/SpaceConversion.h"
#include "orvane/import/sandbox/Sanitizer.h"

#include "meridane/base/Files.h"

#include <algorithm>
#include <array>
#include <assimp/Importer.hpp>
#include <filesystem>
#include <string_view>

#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

// Equal vertices are merged, so that formats without indices give the same meshes as formats with them.
constexpr unsigned int steps = aiProcess_Triangulate | aiProcess_SortByPType | aiProcess_JoinIdenticalVertices;

constexpr const char* unknownFormat = "this is in none of the model formats that can be read";

bool hasModelExtension(const std::string& path)
{
    const std::string extension = std::filesystem::path(path).extension().string(); // with the dot, if any
    return extension.size() > 1 && Assimp::Importer().IsExtensionSupported(extension);
}

// The library's reader of that format searches for the end of such a header without an end.
bool isUnendedPly(std::string_view beginning)
{
    return (beginning.starts_with("ply\n") || beginning.starts_with("ply\r"))
        && beginning.find("end_header") == std::string_view::npos;
}

/// The first bytes of a file: of a PLY file all of its header, unless that is longer than any real one.
std::string beginningOf(meridane::FileReader& file)
{
    constexpr std::size_t size = 4096;
    constexpr std::size_t most = std::size_t{1} << 20;
    std::string beginning;
    bool atEnd = false;
    do {
        // A file that can't be read is reported by the library.
        if (file.read(beginning, size, atEnd))
            break;
    } while (!atEnd && beginning.size() < most && isUnendedPly(beginning));
    return beginning;
}

// Of the reader of OBJ files.
bool isForBadIndex(const Assimp::Importer& importer)
{
    const std::string_view text = importer.GetErrorString();
    return text.starts_with("OBJ: ") && text.find("index") != std::string_view::npos;
}

// The name of a mesh for which the reader of glTF gives up; empty for any other reason.
std::string emptyMeshOf(const Assimp::Importer& importer)
{
    const std::string_view text = importer.GetErrorString();
    constexpr std::string_view start = "Mesh \"";
    constexpr std::string_view end = "\" has no faces";
    if (!text.starts_with(start) || !text.ends_with(end))
        return {};
    return std::string(text.substr(start.size(), text.size() - start.size() - end.size()));
}

// Where no reader knows the content, the message of the library only repeats the path. Where one reader only takes the
// content for its own, it misses what its files begin with.
bool isForOtherFormat(std::string_view text)
{
    constexpr std::array<std::string_view, 6> signs{
        "No suitable reader found", "magic", "Magic", "Header is invalid", "Header mismatch", "storage representation"};
    return std::any_of(
        signs.begin(), signs.end(), [&](std::string_view sign) { return text.find(sign) != std::string_view::npos; });
}

std::string failureText(const std::string& path, const Assimp::Importer& importer)
{
    std::string text = importer.GetErrorString();
    if (text.empty())
        return "the model can't be read";
    if (isForOtherFormat(text))
        return hasModelExtension(path) ? "the model is broken: it isn't in the format of its extension" : unknownFormat;
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return "the model is broken: " + text;
}

} // namespace

ModelReader::ModelReader(const ImportOptions& options)
    : m_importer(std::make_unique<Assimp::Importer>())
    , m_options(options)
{
}

ModelReader::~ModelReader() = default;

NxRef<NxGroup> ModelReader::read(const std::string& path, std::string& error)
{
    // The library has one message for every failure to open a file; the toolkit distinguishes them.
    meridane::FileReader file;
    if (const std::optional<std::string> failure = file.open(path)) {
        error = *failure;
        return {};
    }
    const std::string beginning = beginningOf(file);
    if (isUnendedPly(beginning)) {
        error = path + ": the model is broken: its header has no end";
        return {};
    }
    m_colorStorage = colorStorageOf(beginning);
    auto* const files = new ModelFiles(path); // the importer's own
    m_importer->SetIOHandler(files);
    NxRef<NxGroup> scene;
    if (const aiScene* const model = readMended(path, *files, error))
        scene = SceneBuilder(*model, path, m_options, m_warnings).build(m_note.isConverted, error);
    if (!scene)
        error = path + ": " + error;
    return scene;
}

// Some readers refuse a whole file for one bad index or one empty mesh.
const aiScene* ModelReader::readFile(const std::string& path, ModelFiles& files)
{
    const aiScene* model = nullptr;
    {
        const LeaksIgnored ignored;
        model = m_importer->ReadFile(path, 0);
    }
    if (model != nullptr)
        return model;
    std::string content;
    meridane::FileReader reader;
    bool atEnd = false;
    if (reader.open(path) || reader.read(content, reader.size(), atEnd))
        return nullptr;
    if (isForBadIndex(*m_importer)) {
        files.replaceModel(withoutUnusableFaces(content, m_warnings));
        return m_importer->ReadFile(path, 0);
    }
    // Meshes whose indices are all unusable are found one after the other.
    constexpr int mostAttempts = 16;
    for (int attempt = 0; model == nullptr && attempt < mostAttempts; ++attempt) {
        const std::string empty = emptyMeshOf(*m_importer);
        std::optional<std::string> mended = withoutUnusableParts(content, empty, m_warnings);
        if (!mended)
            break;
        content = *mended;
        files.replaceModel(std::move(*mended));
        model = m_importer->ReadFile(path, 0);
    }
    return model;
}

// The library's own check refuses a whole model for one bad part.
bool ModelReader::mend(aiScene& model, std::string& error)
{
    reportMotion(model, m_warnings);
    applyMorphs(model);
    poseSkins(model);
    mendModel(model, m_warnings);
    mendVertexColors(model, m_colorStorage, m_warnings);
    mendMaterials(model, m_warnings);
    mendEmission(model, m_warnings);
    mendSides(model);
    foldPivots(*model.mRootNode);
    m_note = convertSpace(model, m_options.space);
    // Nodes alone may be meant.
    if (hasContent(model) || (model.mNumMeshes == 0 && model.mRootNode->mNumChildren > 0))
        return true;
    error = "nothing in the model can be shown";
    for (const std::string& warning : warnings())
        error += "; " + warning;
    return false;
}

const aiScene* ModelReader::readMended(const std::string& path, ModelFiles& files, std::string& error)
{
    m_warnings = {};
    m_note = {};
    const aiScene* model = readFile(path, files);
    if (model != nullptr && model->mRootNode != nullptr) {
        // The importer's own, which it lets nobody else change; but its steps don't survive every model.
        if (!mend(const_cast<aiScene&>(*model), error)) {
            // A reader that takes every text for its own.
            if (model->mNumMeshes == 0 && !hasModelExtension(path))
                error = unknownFormat;
            return nullptr;
        }
        const float scale = joiningScale(*model);
        if (scale != 1)
            scalePositions(*model, scale);
        model = m_importer->ApplyPostProcessing(steps);
        if (model != nullptr && scale != 1)
            scalePositions(*model, 1 / scale);
    }
    if (model == nullptr || model->mRootNode == nullptr) {
        error = failureText(path, *m_importer);
        return nullptr;
    }
    return model;
}

} // namespace orvane
