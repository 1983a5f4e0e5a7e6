#pragma once

#include "orvane/app/base/HelperProcess.h"
#include "orvane/transfer/PictureFrames.h"

#include "meridane/gl/gpu/NxImage.h"

#include <QObject>
#include <QString>

#include <memory>

class ImageFile;

/// Sends image files to the import helper, one after the other, and receives the decoded images. The tool itself never
/// parses an image file.
///
/// One process decodes many files. When it fails at a file that isn't its first, that file is sent once more to a new
/// process, because an earlier file may be the cause. Thread of the user interface only.
class PictureDecoder : public QObject {
    Q_OBJECT

public:
    explicit PictureDecoder(const HelperOptions& options);
    ~PictureDecoder() override;

    /// Decodes a file that is open. `decoded` or `failed` follows from the event loop; until then, don't call it again.
    void decode(std::unique_ptr<ImageFile> file);
    /// Stops decoding the file. No signal follows.
    void cancel();
    /// Ends the process when it has nothing left to do. The next file starts another one.
    void endHelper();

    /// The image, after `decoded`.
    [[nodiscard]] NxImage takeImage() { return std::move(m_image); }

Q_SIGNALS:
    void decoded();
    /// Why there is no image, half a sentence.
    void failed(const QString& reason);

private:
    void startHelper();
    void dropHelper();
    void sendRequest();
    void send();
    void takeReply();
    void takeFailure(const QString& reason);
    void fail(const QString& reason);

    HelperOptions m_options;
    std::unique_ptr<HelperProcess> m_helper;
    std::unique_ptr<ImageFile> m_file; // the one being decoded
    orvane::PictureReply m_reply; // for it
    NxImage m_image;
    int m_served = 0; // files that the process has decoded or refused
};
