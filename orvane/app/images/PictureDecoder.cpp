#include "orvane/app/images/PictureDecoder.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/images/ImageFile.h"

#include <limits>
#include <new>

using State = orvane::PictureReply::State;

namespace {

// Enough to keep the helper busy until the next turn of the event loop.
constexpr std::size_t enoughPending = std::size_t{4} << 20;
constexpr std::size_t portionSize = std::size_t{1} << 20;

} // namespace

PictureDecoder::PictureDecoder(const HelperOptions& options)
    : m_options(options)
{
    m_options.outputLimit = std::numeric_limits<std::size_t>::max(); // each picture has a limit of its own
}

PictureDecoder::~PictureDecoder() = default;

void PictureDecoder::decode(std::unique_ptr<ImageFile> file)
{
    m_file = std::move(file);
    if (m_helper == nullptr)
        startHelper();
    sendRequest();
}

void PictureDecoder::cancel()
{
    if (m_file != nullptr)
        dropHelper();
    m_file.reset();
}

void PictureDecoder::endHelper()
{
    if (m_helper == nullptr)
        return;
    HelperProcess* const helper = m_helper.release();
    helper->disconnect(this);
    helper->setParent(this);
    connect(helper, &HelperProcess::ended, helper, &QObject::deleteLater);
    connect(helper, &HelperProcess::failed, helper, &QObject::deleteLater);
    helper->closeInput();
}

void PictureDecoder::startHelper()
{
    m_served = 0;
    m_helper = std::make_unique<HelperProcess>(m_options, QStringList{QStringLiteral("--pictures")});
    connect(m_helper.get(), &HelperProcess::inputTaken, this, &PictureDecoder::send);
    connect(m_helper.get(), &HelperProcess::outputGrew, this, &PictureDecoder::takeReply);
    connect(m_helper.get(), &HelperProcess::failed, this, &PictureDecoder::takeFailure);
    connect(m_helper.get(), &HelperProcess::ended, this,
        [this] { takeFailure(tr("the import helper ended without a picture")); });
    m_helper->start();
}

void PictureDecoder::dropHelper()
{
    if (m_helper == nullptr)
        return;
    m_helper->kill();
    m_helper->disconnect(this);
    m_helper.release()->deleteLater(); // it may be inside its own signal
}

void PictureDecoder::sendRequest()
{
    m_reply = orvane::PictureReply();
    m_helper->write(orvane::pictureRequest(m_file->size()));
    send();
}

void PictureDecoder::send()
{
    std::string bytes;
    while (m_file != nullptr && m_file->position() < m_file->size() && m_helper->pendingInput() < enoughPending) {
        if (!m_file->read(bytes, portionSize)) {
            dropHelper(); // it waits for the rest
            fail(tr("it can't be read to its end"));
            return;
        }
        m_helper->write(bytes);
    }
}

void PictureDecoder::takeReply()
{
    const std::string bytes = m_helper->takeOutput();
    const bool isExpected = m_file != nullptr && m_file->position() == m_file->size();
    State state = State::Broken;
    try {
        if (isExpected)
            state = m_reply.take(bytes);
    } catch (const std::bad_alloc&) {
        dropHelper();
        fail(tr("it doesn't fit in memory"));
        return;
    }
    if (state == State::Broken) {
        dropHelper();
        fail(tr("the import helper sent something that isn't a picture"));
    } else if (state == State::Refused) {
        ++m_served;
        fail(orvane::toQString(m_reply.reason()));
    } else if (state == State::Complete) {
        ++m_served;
        orvane::Picture picture = m_reply.takePicture();
        m_image = {picture.width, picture.height, picture.components, std::move(picture.bytes)};
        m_file.reset();
        Q_EMIT decoded();
    }
}

void PictureDecoder::takeFailure(const QString& reason)
{
    dropHelper();
    if (m_file == nullptr)
        return;
    if (m_served == 0) {
        fail(reason);
        return;
    }
    m_file->rewind();
    startHelper();
    sendRequest();
}

void PictureDecoder::fail(const QString& reason)
{
    if (m_file == nullptr)
        return;
    m_file.reset();
    Q_EMIT failed(reason);
}
