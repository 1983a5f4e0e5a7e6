#include "orvane/app/images/EditorImages.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/extender/ImageSample.h"

#include <memory>

namespace {

constexpr int keptImages = 8;

} // namespace

EditorImages::EditorImages(const TextureFiles& view, QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_results(keptImages)
{
    connect(&m_files, &TextureFiles::changed, this, [this](const std::string& fileName) {
        m_results.remove(orvane::toQString(fileName));
        Q_EMIT OrvImages::instance().changed();
    });
    OrvImages::instance().setLoader([this](const QString& fileName) { return load(fileName); });
}

EditorImages::~EditorImages()
{
    OrvImages::instance().setLoader({});
}

OrvImages::Result EditorImages::load(const QString& fileName)
{
    if (m_folders != m_view.folders()) {
        m_folders = m_view.folders();
        m_files.clear();
        m_files.setFolders(m_folders);
        m_results.clear();
    }
    if (const OrvImages::Result* const known = m_results.object(fileName))
        return *known;
    NxImage image;
    std::string reason;
    OrvImages::Result result;
    switch (m_files.load(fileName.toStdString(), image, reason)) {
    case NxImageState::Pending:
        result.state = OrvImages::State::Loading;
        return result;
    case NxImageState::Loaded: {
        const orvane::ImageBytes bytes{image.bytes.data(), image.width, image.height, image.components};
        result.state = OrvImages::State::Loaded;
        result.image = orvane::sampledImage(bytes, QSize(OrvImages::largestSide, OrvImages::largestSide));
        result.description = orvane::imageDescription(bytes);
        break;
    }
    case NxImageState::Withheld:
        result.reason = tr("images of its folder aren't allowed");
        break;
    case NxImageState::Failed:
        result.reason = orvane::toQString(reason);
        break;
    }
    m_files.dropResults();
    m_results.insert(fileName, new OrvImages::Result(result));
    return result;
}
