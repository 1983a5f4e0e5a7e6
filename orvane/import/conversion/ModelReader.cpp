#include "orvane/import/conversion/ModelReader.h"

#include "orvane/import/conversion/ModelFiles.h"
#include "orvane/import/conversion/SceneBuilder.h"
#include "orvane/import/mending/ModelMending.h"
#include "orvane/import/mending/ObjMending.h"
#include "orvane/import/mending/PivotFolding.h"

#include "meridane/base/Files.h"

#include <algorithm>
#include <assimp/Importer.hpp>
#include <filesystem>
#include <string_view>

#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace orvane {
namespace {

// Equal vertices are merged, so that formats without indices give the same meshes as formats with them.
constexpr unsigned int steps = aiProcess_Triangulate | aiProcess_SortByPType | aiProcess_JoinIdenticalVertices;

bool hasModelExtension(const std::string& path)
{
    const std::string extension = std::filesystem::path(path).extension().string(); // with the dot, if any
    return extension.size() > 1 && Assimp::Importer().IsExtensionSupported(extension);
}

std::string beginningOf(meridane::FileReader& file)
{
    constexpr std::size_t size = 4096;
    std::string beginning;
    bool atEnd = false;
    // A file that can't be read is reported by the library.
    static_cast<void>(file.read(beginning, size, atEnd));
    return beginning;
}

// Of the reader of OBJ files.
bool isForBadIndex(const Assimp::Importer& importer)
{
    const std::string_view text = importer.GetErrorString();
    return text.starts_with("OBJ: ") && text.find("index") != std::string_view::npos;
}

std::string failureText(const std::string& path, const Assimp::Importer& importer)
{
    std::string text = importer.GetErrorString();
    if (text.empty())
        return "the model can't be read";
    // The message of the library only repeats the path.
    if (text.starts_with("No suitable reader found"))
        return hasModelExtension(path) ? "the model is broken: it isn't in the format of its extension"
                                       : "this is in none of the model formats that can be read";
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
    m_colorStorage = colorStorageOf(beginningOf(file));
    auto* const files = new ModelFiles(path); // the importer's own
    m_importer->SetIOHandler(files);
    NxRef<NxGroup> scene;
    if (const aiScene* const model = readMended(path, *files, error))
        scene = SceneBuilder(*model, path, m_options, m_warnings).build(error);
    if (!scene)
        error = path + ": " + error;
    return scene;
}

// The library's own check refuses a whole model for one bad part.
const aiScene* ModelReader::readMended(const std::string& path, ModelFiles& files, std::string& error)
{
    m_warnings = {};
    const aiScene* model = m_importer->ReadFile(path, 0);
    if (model == nullptr && isForBadIndex(*m_importer)) {
        std::string text;
        meridane::FileReader reader;
        bool atEnd = false;
        if (!reader.open(path) && !reader.read(text, reader.size(), atEnd)) {
            files.replaceModel(withoutUnusableFaces(text, m_warnings));
            model = m_importer->ReadFile(path, 0);
        }
    }
    if (model != nullptr && model->mRootNode != nullptr) {
        // The importer's own, which it lets nobody else change; but its steps don't survive every model.
        auto& mended = const_cast<aiScene&>(*model);
        mendModel(mended, m_warnings);
        mendVertexColors(mended, m_colorStorage, m_warnings);
        mendMaterials(mended, m_warnings);
        foldPivots(*mended.mRootNode);
        if (model->mNumMeshes > 0 && !hasContent(*model)) {
            error = "nothing in the model can be shown";
            for (const std::string& warning : warnings())
                error += "; " + warning;
            return nullptr;
        }
        model = m_importer->ApplyPostProcessing(steps);
    }
    if (model == nullptr || model->mRootNode == nullptr) {
        error = failureText(path, *m_importer);
        return nullptr;
    }
    return model;
}

} // namespace orvane
