#pragma once

#include "orvane/app/base/HelperProcess.h"
#include "orvane/transfer/PictureFrames.h"

#include "meridane/gl/gpu/NxImage.h"

#include <QObject>
#include <QString>

#include <memory>

class ImageFile;

/// Lets the import helper decode image files, one after the other: the tool itself never looks into one.
///
/// One process serves many files. When it dies over one that isn't its first, that file is tried once more with a new
/// process, because what was before it may be the reason. Thread of the user interface only.
class PictureDecoder : public QObject {
    Q_OBJECT

public:
    explicit PictureDecoder(const HelperOptions& options);
    ~PictureDecoder() override;

    /// Begins with a file that is open. One of `decoded` and `failed` follows from the event loop; then the next file
    /// may come.
    void decode(std::unique_ptr<ImageFile> file);
    /// Gives the file up that is being decoded; nothing follows.
    void cancel();
    /// Lets the process end, because no file follows for now.
    void rest();

    /// The image, after `decoded`.
    [[nodiscard]] NxImage takeImage() { return std::move(m_image); }

Q_SIGNALS:
    void decoded();
    /// Why there is no image, half a sentence.
    void failed(const QString& reason);

private:
    void startHelper();
    void dropHelper();
    void begin();
    void send();
    void takeReply();
    void takeFailure(const QString& reason);
    void fail(const QString& reason);

    HelperOptions m_options;
    std::unique_ptr<HelperProcess> m_helper;
    std::unique_ptr<ImageFile> m_file; // that is being decoded
    orvane::PictureReply m_reply; // for it
    NxImage m_image;
    int m_served = 0; // files that the process has decoded or refused
};
