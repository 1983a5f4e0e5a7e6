#include "import/conversion/ReadModels.h"

#include "orvane/transfer/FileFormats.h"
#include "orvane/transfer/FramedFiles.h"

#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxTexture.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Whether a scene that was exported and opened again still has something.
using Check = std::function<bool(const NxGroup&)>;

struct Feature {
    const char* name;
    const char* scene;
    Check remains;
};

template <typename Node, typename Condition>
bool hasAny(const NxGroup& scene, const Condition& condition)
{
    const std::vector<Node*> nodes = ReadModels::all<Node>(scene);
    return std::any_of(nodes.begin(), nodes.end(), [&](const Node* node) { return condition(*node); });
}

constexpr const char* plate = R"(#mrd 1.0
    Transform "arm" {
        translation = 1 2 3
        Material "red" { diffuseColor = 1 0 0
        transparency = 0.5 }
        Texture { filePath = "image.png" }
        Mesh "plate" {
            positions = [0 0 0, 1 0 0, 0 1 0]
            normals = [0 0 1, 0 0 1, 0 0 1]
            textureCoordinates = [0 0, 1 0, 0 1]
            indices = [0, 1, 2]
        }
    })";

// A closed surface: on others the sides don't come over.
constexpr const char* steel = R"(#mrd 1.0
    Transform "arm" {
        Material "steel" {
            metalness = 0.75
            roughness = 0.25
            doubleSided = false
            alphaCutoff = 0.25
        }
        Texture { filePath = "image.png" }
        Texture { filePath = "bumps.png"
            role = NORMAL }
        Texture { filePath = "surface.png"
            role = METAL_ROUGHNESS }
        Mesh "wedge" {
            positions = [0 0 0, 1 0 0, 0 1 0, 0 0 1]
            textureCoordinates = [0 0, 1 0, 0 1, 1 1]
            indices = [0, 2, 1, 0, 1, 3, 0, 3, 2, 1, 2, 3]
        }
    })";

constexpr const char* painted = R"(#mrd 1.0
    Transform "arm" {
        Material "red" {
            diffuseColor = 1 0 0
            transparency = 0.5
        }
        Mesh "plate" {
            positions = [0 0 0, 1 0 0, 0 1 0]
            indices = [0, 1, 2]
        }
    })";

constexpr const char* colored = R"(#mrd 1.0
    Transform "arm" {
        Mesh "plate" {
            positions = [0 0 0, 1 0 0, 0 1 0]
            colors = [1 0 0 1, 0 1 0 1, 0 0 1 1]
            indices = [0, 1, 2]
        }
    })";

constexpr const char* lines = R"(#mrd 1.0
    Transform "arm" { Mesh "edge" { primitive = LINES
        positions = [0 0 0, 1 0 0]
        indices = [0, 1] } })";
constexpr const char* points = R"(#mrd 1.0
    Transform "arm" { Mesh "cloud" { primitive = POINTS
        positions = [0 0 0, 1 0 0, 0 1 0]
        indices = [0, 1, 2] } })";
constexpr const char* lit = R"(#mrd 1.0
    PointLight "lamp" { location = 1 2 3 }
    PerspectiveCamera "eye" { position = 4 5 6 }
    Transform "arm" { Mesh "plate" { positions = [0 0 0, 1 0 0, 0 1 0]
        indices = [0, 1, 2] } })";

std::vector<Feature> features()
{
    const auto hasMesh = [](int primitive) {
        return [primitive](const NxGroup& scene) {
            return hasAny<NxMesh>(scene, [&](const NxMesh& mesh) {
                return mesh.primitive.getValue() == primitive && mesh.positions.getNum() > 1;
            });
        };
    };
    const auto hasTexture = [](NxTexture::Role role, const char* file) {
        return [=](const NxGroup& scene) {
            return hasAny<NxTexture>(scene, [&](const NxTexture& texture) {
                return texture.role.getValue() == role && texture.filePath.getValue() == VbString(file);
            });
        };
    };
    return {{"triangles", plate, hasMesh(NxMesh::TRIANGLES)}, {"lines", lines, hasMesh(NxMesh::LINES)},
        {"points", points, hasMesh(NxMesh::POINTS)},
        {"names of nodes", plate,
            [](const NxGroup& scene) {
                return hasAny<NxNode>(scene, [](const NxNode& node) { return node.getName() == VbString("arm"); });
            }},
        {"transforms", plate,
            [](const NxGroup& scene) {
                return hasAny<NxTransform>(
                    scene, [](const NxTransform& node) { return node.translation.getValue() == VbVec3f(1, 2, 3); });
            }},
        {"normals", plate,
            [](const NxGroup& scene) {
                return hasAny<NxMesh>(scene, [](const NxMesh& mesh) { return mesh.normals.getNum() == 3; });
            }},
        {"texture coordinates", plate,
            [](const NxGroup& scene) {
                return hasAny<NxMesh>(scene, [](const NxMesh& mesh) { return mesh.textureCoordinates.getNum() == 3; });
            }},
        {"vertex colours", colored,
            [](const NxGroup& scene) {
                return hasAny<NxMesh>(scene, [](const NxMesh& mesh) {
                    return mesh.colors.getNum() == 3 && mesh.colors[0][0] == 1 && mesh.colors[1][0] == 0;
                });
            }},
        {"material colours", painted,
            [](const NxGroup& scene) {
                return hasAny<NxMaterial>(scene,
                    [](const NxMaterial& material) { return material.diffuseColor.getValue() == VbColor(1, 0, 0); });
            }},
        {"opacity", painted,
            [](const NxGroup& scene) {
                return hasAny<NxMaterial>(scene, [](const NxMaterial& material) {
                    return std::abs(material.transparency.getValue() - 0.5F) < 0.01F;
                });
            }},
        {"textures", plate,
            [](const NxGroup& scene) {
                return hasAny<NxTexture>(scene,
                    [](const NxTexture& texture) { return texture.filePath.getValue() == VbString("image.png"); });
            }},
        {"metalness and roughness", steel,
            [](const NxGroup& scene) {
                return hasAny<NxMaterial>(scene, [](const NxMaterial& material) {
                    return material.metalness.getValue() == 0.75F && material.roughness.getValue() == 0.25F;
                });
            }},
        {"normal maps", steel, hasTexture(NxTexture::NORMAL, "bumps.png")},
        {"textures of metalness and roughness", steel, hasTexture(NxTexture::METAL_ROUGHNESS, "surface.png")},
        {"sides that are seen", steel,
            [](const NxGroup& scene) {
                return hasAny<NxMaterial>(
                    scene, [](const NxMaterial& material) { return material.doubleSided.getValue() == 0; });
            }},
        {"alpha cut-off", steel,
            [](const NxGroup& scene) {
                return hasAny<NxMaterial>(
                    scene, [](const NxMaterial& material) { return material.alphaCutoff.getValue() == 0.25F; });
            }},
        {"lights", lit,
            [](const NxGroup& scene) { return hasAny<NxLight>(scene, [](const NxLight&) { return true; }); }},
        {"cameras", lit, [](const NxGroup& scene) {
             return hasAny<NxPerspectiveCamera>(scene, [](const NxPerspectiveCamera&) { return true; });
         }}};
}

} // namespace

/// The table in `docs/models.md`, made from what is exported and opened again. The test prints the table that it found.
class TestFormatTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTableIsWhatComesOver()
    {
        QByteArray head = "| |";
        QByteArray rule = "|---|";
        std::vector<std::string> extensions;
        for (const orvane::FileFormat& format : orvane::modelFormats) {
            if (!format.isWritable())
                continue;
            extensions.emplace_back(format.extension);
            head += " `." + QByteArray::fromStdString(extensions.back()) + "` |";
            rule += "---|";
        }
        QByteArray table = head + '\n' + rule + '\n';
        for (const Feature& feature : features()) {
            table += QByteArray("| ") + feature.name + " |";
            for (const std::string& extension : extensions) {
                const NxRef<NxGroup> scene = exportedAndOpened(feature.scene, extension);
                table += scene && feature.remains(*scene) ? " yes |" : " no |";
            }
            table += '\n';
        }
        const QByteArray page = readFile(QStringLiteral(ORVANE_SOURCES "/docs/models.md"));
        // Too long for the message of a failure.
        if (!page.contains(table))
            qInfo("%s", table.constData());
        QVERIFY(page.contains(table));
    }

private:
    /// Each pair of a scene and a format is tried once.
    NxRef<NxGroup> exportedAndOpened(const std::string& scene, const std::string& extension)
    {
        const auto [place, isNew] = m_opened.try_emplace({scene, extension});
        if (isNew)
            place->second = exportAndOpen(scene, extension);
        return place->second;
    }

    static NxRef<NxGroup> exportAndOpen(const std::string& scene, const std::string& extension)
    {
        const HelperRun run = runHelper({QStringLiteral("--write"), QString::fromStdString(extension),
                                            QStringLiteral("--name"), QStringLiteral("model")},
            scene);
        const auto files = orvane::unpackFramedFiles(run.output);
        if (run.status != 0 || !files)
            return {};
        ReadModels models;
        for (const char* image : {"image.png", "bumps.png", "surface.png"})
            models.write(image, "image");
        for (const orvane::NamedFile& file : *files)
            models.write(file.name.c_str(), QByteArray::fromStdString(file.bytes));
        return models.read(files->front().name.c_str(), QByteArray::fromStdString(files->front().bytes));
    }

    std::map<std::pair<std::string, std::string>, NxRef<NxGroup>> m_opened;
};

QTEST_GUILESS_MAIN(TestFormatTable)
#include "tst_FormatTable.moc"
