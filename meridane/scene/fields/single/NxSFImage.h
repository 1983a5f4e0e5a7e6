#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/scene/fields/NxSField.h"

#include <vector>

/// A single image: rows of pixels, the bottom row first by convention, each pixel of one to four bytes.
///
/// One component is grey, two are grey and opacity, three red, green and blue, four those and opacity. An image is
/// empty, 0 by 0 with no components and no bytes, or all three numbers are positive.
class NxSFImage : public NxSField {
    NX_FIELD(NxSFImage)

public:
    /// An empty image. `container` may be null, for a field without a node.
    NxSFImage(NxFieldContainer* container, const meridane::FieldDeclaration& declaration)
        : NxSField(container, declaration)
    {
    }

    /// Sets size and number of components, and returns the bytes: pixel by pixel and row by row. They are valid until
    /// the field changes. Null for an empty image.
    const unsigned char* getValue(VbVec2s& size, int& components) const;
    /// Copies `size[0] * size[1] * components` bytes and notifies the observers. Changes nothing and returns false for
    /// an invalid size or number of components, and for null with an image that isn't empty.
    bool setValue(const VbVec2s& size, int components, const unsigned char* bytes);
    /// Moves the bytes; their number must match too.
    bool setValue(const VbVec2s& size, int components, std::vector<unsigned char>&& bytes);

    /// Returns the bytes without a copy, leaves an empty image and notifies the observers.
    [[nodiscard]] std::vector<unsigned char> takeBytes();

    [[nodiscard]] bool isSame(const NxField& other) const override;
    bool copyFrom(const NxField& other) override;
    [[nodiscard]] std::size_t valueBytes() const override;
    Progress readText(meridane::TextReader& reader, bool first, std::size_t budget) override;
    bool writeText(std::string& text, std::size_t& position, std::size_t budget) const override;
    [[nodiscard]] std::unique_ptr<meridane::ChangeRecord> recordOfValue() override;

private:
    struct Image {
        VbVec2s size;
        int components = 0;
        std::vector<unsigned char> bytes;

        [[nodiscard]] std::size_t pixels() const noexcept;
        [[nodiscard]] std::size_t byteCount() const noexcept;
        // Whether these are valid for an image or the empty image, apart from the number of bytes.
        [[nodiscard]] bool isValid() const noexcept;

        friend bool isSameValue(const Image& left, const Image& right)
        {
            return left.size == right.size && left.components == right.components && left.bytes == right.bytes;
        }
        friend std::size_t bytesOfValue(const Image& image) { return sizeof(image) + image.bytes.size(); }
    };

    bool assignText(meridane::TextReader& reader) override;
    /// Replaces the image. The old one is moved to the record of the change if there is one.
    void replace(Image&& image);
    static bool readHeader(Image& image, meridane::TextReader& reader);
    static bool readPixel(Image& image, meridane::TextReader& reader);

    Image m_image;
};
