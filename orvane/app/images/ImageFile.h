#pragma once

#include <QString>

#include <cstddef>
#include <string>

class ImageFolders;

/// An image file that a scene names, opened for reading only if it is a regular file in a folder that the scene may
/// read images from. Nothing else is opened: no device, no pipe, no file that the kernel makes up.
class ImageFile {
public:
    enum class State {
        Open,
        Outside, ///< it is in a folder that isn't allowed, see `folder`
        Failed, ///< see `problem`
    };

    /// Whether the kernel makes the contents of a file up when it is read.
    [[nodiscard]] static bool isMadeUp(int descriptor);

    /// Opens the file.
    ImageFile(const QString& fileName, const ImageFolders& folders);
    ImageFile(const ImageFile&) = delete;
    ImageFile& operator=(const ImageFile&) = delete;
    ~ImageFile();

    [[nodiscard]] State state() const noexcept { return m_state; }
    /// The folder that the user would have to allow.
    [[nodiscard]] const QString& folder() const noexcept { return m_folder; }
    /// Why the file can't be read, half a sentence.
    [[nodiscard]] const QString& problem() const noexcept { return m_problem; }

    /// The size of the file in bytes when it was opened; at least 1.
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    /// How many of these bytes were read.
    [[nodiscard]] std::size_t position() const noexcept { return m_position; }
    /// Reads the next bytes, at most `count`. False when there are none: the file is shorter than it was, or broken.
    [[nodiscard]] bool read(std::string& bytes, std::size_t count);
    /// Goes back to the first byte.
    void rewind();

private:
    void open(const QString& path, const ImageFolders& folders);
    void refuse(const QString& path);
    void fail(const QString& problem);
    [[nodiscard]] bool isUsable(int descriptor);

    State m_state = State::Failed;
    QString m_folder;
    QString m_problem;
    int m_descriptor = -1;
    std::size_t m_size = 0;
    std::size_t m_position = 0;
};
