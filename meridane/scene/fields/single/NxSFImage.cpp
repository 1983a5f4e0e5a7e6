#include "meridane/scene/fields/single/NxSFImage.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/MemoryGuard.h"
#include "meridane/scene/fields/detail/FieldRecords.h"
#include "meridane/scene/text/TextReader.h"

#include <algorithm>
#include <utility>

NX_FIELD_SOURCE(NxSFImage, NxSField, "SFImage")

std::size_t NxSFImage::Image::pixels() const noexcept
{
    return static_cast<std::size_t>(size[0]) * static_cast<std::size_t>(size[1]);
}

std::size_t NxSFImage::Image::byteCount() const noexcept
{
    return pixels() * static_cast<std::size_t>(components);
}

bool NxSFImage::Image::isValid() const noexcept
{
    const bool empty = size[0] == 0 && size[1] == 0 && components == 0;
    return empty || (size[0] > 0 && size[1] > 0 && components >= 1 && components <= 4);
}

const unsigned char* NxSFImage::getValue(VbVec2s& size, int& components) const
{
    size = m_image.size;
    components = m_image.components;
    return m_image.bytes.empty() ? nullptr : m_image.bytes.data();
}

bool NxSFImage::setValue(const VbVec2s& size, int components, const unsigned char* bytes)
{
    const Image image{size, components, {}};
    if (!image.isValid() || (bytes == nullptr && image.byteCount() > 0))
        return false;
    return meridane::withinMemory(image.byteCount(),
        [&] { return setValue(size, components, std::vector<unsigned char>(bytes, bytes + image.byteCount())); });
}

bool NxSFImage::setValue(const VbVec2s& size, int components, std::vector<unsigned char>&& bytes)
{
    const Image image{size, components, {}};
    if (!image.isValid() || bytes.size() != image.byteCount())
        return false;
    replace({size, components, std::move(bytes)});
    touch();
    return true;
}

std::vector<unsigned char> NxSFImage::takeBytes()
{
    recordValue();
    Image image = std::exchange(m_image, {});
    touch();
    return std::move(image.bytes);
}

bool NxSFImage::isSame(const NxField& other) const
{
    if (!isOfSameClass(other))
        return false;
    const Image& image = static_cast<const NxSFImage&>(other).m_image;
    return m_image.size == image.size && m_image.components == image.components && m_image.bytes == image.bytes;
}

bool NxSFImage::copyFrom(const NxField& other)
{
    if (!isOfSameClass(other))
        return false;
    const Image& image = static_cast<const NxSFImage&>(other).m_image;
    return setValue(image.size, image.components, image.bytes.data());
}

std::size_t NxSFImage::valueBytes() const
{
    return sizeof(m_image) + m_image.bytes.size();
}

bool NxSFImage::readHeader(Image& image, meridane::TextReader& reader)
{
    image = {};
    const bool numbers
        = reader.readNumber(image.size[0]) && reader.readNumber(image.size[1]) && reader.readNumber(image.components);
    if (!numbers)
        return false;
    if (!image.isValid())
        return reader.fail("width, height and 1 to 4 components, or 0 0 0");
    // Each pixel needs a blank and a digit, so no memory is allocated for a size that the text can't fill.
    if (image.pixels() > reader.rest().size() / 2)
        return reader.fail("a number for each of " + std::to_string(image.pixels()) + " pixels");
    image.bytes.reserve(image.byteCount());
    return true;
}

// Appends one pixel: a number with a component in each byte, the first component in the highest byte.
bool NxSFImage::readPixel(Image& image, meridane::TextReader& reader)
{
    reader.skipBlanks();
    const std::size_t start = reader.position();
    unsigned int pixel = 0;
    if (!reader.readNumber(pixel))
        return false;
    for (int component = 3; component >= 0; --component) {
        const auto byte = static_cast<unsigned char>(pixel >> (8 * component));
        if (component < image.components)
            image.bytes.push_back(byte);
        else if (byte != 0)
            return reader.failAt(start, "a pixel of " + std::to_string(image.components) + " bytes");
    }
    return true;
}

NxField::Progress NxSFImage::readText(meridane::TextReader& reader, bool first, std::size_t budget)
{
    if (first)
        m_image = {};
    std::size_t start = reader.position();
    bool isRead = m_image.components > 0 || readHeader(m_image, reader);
    for (; isRead && !reader.isInterrupted() && m_image.bytes.size() < m_image.byteCount(); --budget) {
        if (budget == 0 || reader.isSpent())
            return Progress::More;
        start = reader.position();
        isRead = readPixel(m_image, reader);
        if (isRead)
            reader.forget();
    }
    if (!reader.isInterrupted())
        return isRead ? Progress::Done : Progress::Failed;
    reader.goBack(start);
    return Progress::More;
}

bool NxSFImage::writeText(std::string& text, std::size_t& position, std::size_t budget) const
{
    if (position == 0) {
        text += std::to_string(m_image.size[0]) + ' ' + std::to_string(m_image.size[1]) + ' '
            + std::to_string(m_image.components);
    }
    constexpr char digits[] = "0123456789abcdef";
    const auto width = static_cast<std::size_t>(m_image.components);
    const std::size_t pixels = m_image.pixels();
    const std::size_t end = pixels - position > budget ? position + budget : pixels;
    for (; position < end; ++position) {
        text += " 0x";
        for (std::size_t i = 0; i < width; ++i) {
            const unsigned char byte = m_image.bytes[position * width + i];
            text += digits[byte >> 4U];
            text += digits[byte & 15U];
        }
    }
    return position < pixels;
}

bool NxSFImage::assignText(meridane::TextReader& reader)
{
    Image image;
    if (!readHeader(image, reader))
        return false;
    while (image.bytes.size() < image.byteCount()) {
        if (!readPixel(image, reader))
            return false;
    }
    if (!reader.expectEnd())
        return false;
    replace(std::move(image));
    return true;
}

std::unique_ptr<meridane::ChangeRecord> NxSFImage::recordOfValue()
{
    return std::make_unique<meridane::ValueRecord<Image>>(*this, m_image, m_image);
}

void NxSFImage::replace(Image&& image)
{
    if (meridane::ChangeRecorder* const changes = recorder()) {
        changes->add(std::make_unique<meridane::ValueRecord<Image>>(*this, m_image, std::move(m_image)));
        noteRecorded();
    }
    m_image = std::move(image);
}
