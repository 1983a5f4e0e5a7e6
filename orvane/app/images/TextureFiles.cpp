#include "orvane/app/images/TextureFiles.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/images/ImageFile.h"

#include <chrono>
#include <utility>
#include <vector>

namespace {

// Each announcement leads to another picture, which takes time of its own.
constexpr std::chrono::milliseconds betweenAnnouncements(100);

} // namespace

TextureFiles::TextureFiles(const HelperOptions& options)
    : m_decoder(options)
{
    m_announcement.setSingleShot(true);
    m_announcement.setInterval(betweenAnnouncements);
    connect(&m_announcement, &QTimer::timeout, this, &TextureFiles::announce);
    connect(&m_decoder, &PictureDecoder::decoded, this, &TextureFiles::takeImage);
    connect(&m_decoder, &PictureDecoder::failed, this, [this](const QString& reason) {
        finish({NxImageState::Failed, {}, reason.toStdString()});
    });
}

TextureFiles::~TextureFiles() = default;

void TextureFiles::setFolder(const QString& folder)
{
    m_folders.setSceneFolder(folder);
    m_results.clear();
    askAgain();
}

void TextureFiles::setAllowedFolders(const QStringList& folders)
{
    m_folders.setAllowedFolders(folders);
    askAgain();
}

void TextureFiles::setFolders(const ImageFolders& folders)
{
    m_folders = folders;
    m_results.clear();
    askAgain();
}

void TextureFiles::clear()
{
    m_decoder.cancel();
    m_decoder.endHelper();
    m_isDecoding = false;
    m_announcement.stop();
    m_queue.clear();
    m_queued.clear();
    m_arrived.clear();
    m_results.clear();
    m_missing.clear();
    m_refused.clear();
}

NxImageState TextureFiles::load(const std::string& fileName, NxImage& image, std::string& reason)
{
    const auto result = m_results.find(fileName);
    if (result != m_results.end()) {
        image = result->second.image;
        reason = result->second.reason;
        return result->second.state;
    }
    if (!m_arrived.contains(fileName) && m_queued.insert(fileName).second) {
        m_queue.push_back(fileName);
        goOnLater();
    }
    return NxImageState::Pending;
}

void TextureFiles::dropResults()
{
    m_results.clear();
}

void TextureFiles::askAgain()
{
    m_refused.clear();
    std::set<std::string> fileNames = std::exchange(m_missing, {});
    for (const auto& [fileName, result] : std::exchange(m_arrived, {}))
        fileNames.insert(fileName);
    for (const std::string& fileName : fileNames) {
        m_results.erase(fileName);
        Q_EMIT changed(fileName);
    }
}

// One file each turn of the event loop, and none while a picture is drawn.
void TextureFiles::goOnLater()
{
    if (!m_isDecoding && !std::exchange(m_isGoingOn, true))
        QMetaObject::invokeMethod(this, &TextureFiles::goOn, Qt::QueuedConnection);
}

void TextureFiles::goOn()
{
    m_isGoingOn = false;
    if (m_isDecoding)
        return;
    if (m_queue.empty()) {
        m_decoder.endHelper();
        return;
    }
    auto file = std::make_unique<ImageFile>(orvane::toQString(m_queue.front()), m_folders);
    switch (file->state()) {
    case ImageFile::State::Open:
        m_isDecoding = true;
        m_decoder.decode(std::move(file));
        break;
    case ImageFile::State::Failed:
        finish({NxImageState::Failed, {}, file->problem().toStdString()});
        break;
    case ImageFile::State::Outside:
        finish({NxImageState::Withheld, {}, {}});
        if (!m_refused.contains(file->folder())) {
            m_refused.append(file->folder());
            Q_EMIT folderRefused(file->folder());
        }
        break;
    }
}

void TextureFiles::takeImage()
{
    NxImage image = m_decoder.takeImage();
    if (image.width > largestSide || image.height > largestSide)
        finish({NxImageState::Failed, {}, tr("it is larger than %1 pixels a side").arg(largestSide).toStdString()});
    else
        finish({NxImageState::Loaded, std::move(image), {}});
}

void TextureFiles::finish(Result result)
{
    m_isDecoding = false;
    const std::string fileName = m_queue.front();
    m_queue.pop_front();
    m_queued.erase(fileName);
    if (result.state != NxImageState::Loaded)
        m_missing.insert(fileName);
    m_arrived.insert_or_assign(fileName, std::move(result));
    goOnLater();
    if (m_queue.empty())
        announce();
    else if (!m_announcement.isActive())
        m_announcement.start();
}

void TextureFiles::announce()
{
    m_announcement.stop();
    std::vector<std::string> fileNames;
    for (auto& [fileName, result] : std::exchange(m_arrived, {})) {
        fileNames.push_back(fileName);
        m_results.insert_or_assign(fileName, std::move(result));
    }
    for (const std::string& fileName : fileNames)
        Q_EMIT changed(fileName);
}
