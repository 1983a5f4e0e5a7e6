#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <functional>

/// The image files of textures, for editors and docks that show them. The application loads them, in the background and
/// under the same rules as for the view: never from a folder that the user hasn't allowed.
///
/// There is one object, `instance()`. Thread of the user interface only.
class OrvImages : public QObject {
    Q_OBJECT

public:
    /// What has become of a file.
    enum class State {
        Loaded, ///< the image is there
        Loading, ///< `changed` follows
        Failed, ///< `reason` tells why
    };
    /// What `load` gives.
    struct Result {
        State state = State::Failed; ///< the image is there only if it is `Loaded`
        /// The image, upright, and no larger than `largestSide` a side.
        QImage image;
        /// Of the whole image, such as "640 × 480, RGB".
        QString description;
        QString reason; ///< the second half of a sentence
    };
    /// Begins to load a file, or gives what has become of it.
    using Loader = std::function<Result(const QString& fileName)>;

    /// Larger images are made smaller.
    static constexpr int largestSide = 512;

    /// The one object, which lives until the program ends.
    [[nodiscard]] static OrvImages& instance();

    /// Begins to load a file, or gives what has become of it. The name is that in the scene, relative to the scene's
    /// folder. Without an application that loads images, it fails.
    [[nodiscard]] Result load(const QString& fileName) const;

    /// For the application: sets what loads files; nothing ends it.
    void setLoader(Loader loader);

Q_SIGNALS:
    /// What `load` gives for some files has changed.
    void changed();

private:
    OrvImages() = default;

    Loader m_loader;
};
