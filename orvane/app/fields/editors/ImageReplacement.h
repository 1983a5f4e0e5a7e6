#pragma once

#include "orvane/app/base/HelperProcess.h"
#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/app/images/PictureDecoder.h"

#include <QObject>
#include <QPersistentModelIndex>

#include <memory>

class FieldWriter;
class QMimeData;
class QTemporaryFile;

/// Replaces the images of fields by files and by images from the clipboard, each as one step of the history.
///
/// Files, and what other programs have put on the clipboard, are decoded by the import helper. Until then the fields
/// keep their images; a later request takes the place of an earlier one. Thread of the user interface only.
class ImageReplacement : public QObject {
    Q_OBJECT

public:
    /// The writer lives longer.
    explicit ImageReplacement(FieldWriter& writer, const HelperOptions& options = {});
    ~ImageReplacement() override;

    /// Replaces the images of the fields of a row, see `FieldRoles::FieldSetRole`, by that of a file.
    void load(const QModelIndex& index, const QString& fileName);
    /// Whether there is an image, or one file, to paste.
    [[nodiscard]] static bool isPastable(const QMimeData& data);
    void paste(const QModelIndex& index, const QMimeData& data);
    /// Empties the images.
    void clear(const QModelIndex& index);
    [[nodiscard]] bool isLoading() const noexcept { return m_isLoading; }

Q_SIGNALS:
    /// Why an image wasn't replaced, for the user.
    void failed(const QString& message);

private:
    void takeImage();
    void decode(const QModelIndex& index, const QString& fileName, const QString& source);
    void fail(const QString& reason);
    void endHelperLater();
    void write(const FieldSet& fields, NxImage&& image);

    FieldWriter& m_writer;
    PictureDecoder m_decoder;
    QPersistentModelIndex m_index;
    FieldSet m_fields; // those of the index when it began
    QString m_source; // what is loaded, for messages
    std::unique_ptr<QTemporaryFile> m_pasted;
    bool m_isLoading = false;
};
