#pragma once

#include "orvane/app/images/ImageFolders.h"
#include "orvane/app/images/PictureDecoder.h"

#include "meridane/gl/gpu/NxImage.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <map>
#include <set>
#include <string>

/// Loads the image files of textures for the drawing without blocking: the import helper decodes them, and the drawing
/// asks for a texture again when its image is loaded.
///
/// Files in the scene's own folder are loaded, and those in folders that the user has allowed; see `ImageFolders`.
class TextureFiles : public QObject {
    Q_OBJECT

public:
    /// The largest width or height that is loaded, in pixels: what every GPU takes.
    static constexpr int largestSide = 16384;

    explicit TextureFiles(const HelperOptions& options = {});
    ~TextureFiles() override;

    /// Relative names count from this folder; from nowhere, so that they aren't found, while it is empty. What wasn't
    /// loaded yet is asked for again.
    void setFolder(const QString& folder);
    /// The folders besides the scene's own that images are loaded from. What was withheld is asked for again.
    void setAllowedFolders(const QStringList& folders);
    /// Both of these.
    void setFolders(const ImageFolders& folders);
    [[nodiscard]] const ImageFolders& folders() const noexcept { return m_folders; }
    /// Forgets everything about the images of a scene that is left.
    void clear();

    /// The drawing's image loader: begins to load a file, or hands over what has become of it.
    [[nodiscard]] NxImageState load(const std::string& fileName, NxImage& image, std::string& reason);
    /// Forgets what has come but wasn't asked for by the picture that was just drawn. It is loaded once more when it is
    /// needed.
    void dropResults();
    /// Whether some image will still come.
    [[nodiscard]] bool isLoading() const noexcept { return !m_queue.empty() || !m_arrived.empty(); }

Q_SIGNALS:
    /// What `load` says about this file has changed.
    void changed(const std::string& fileName);
    /// Images in that folder are withheld, because it isn't allowed. Emitted once for each folder of a scene.
    void folderRefused(const QString& folder);

private:
    struct Result {
        NxImageState state = NxImageState::Failed;
        NxImage image;
        std::string reason;
    };

    void goOnLater();
    void goOn();
    void finish(Result result);
    void takeImage();
    void announce();
    void askAgain();

    ImageFolders m_folders;
    PictureDecoder m_decoder;
    std::deque<std::string> m_queue; // the first is being loaded
    std::set<std::string> m_queued; // the same
    std::map<std::string, Result> m_arrived; // what hasn't been announced yet
    std::map<std::string, Result> m_results; // what has
    QTimer m_announcement;
    std::set<std::string> m_missing; // what couldn't be loaded, or wasn't allowed
    QStringList m_refused; // folders
    bool m_isDecoding = false;
    bool m_isGoingOn = false;
};
