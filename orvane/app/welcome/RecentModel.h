#pragma once

#include "orvane/app/welcome/BackgroundJobs.h"
#include "orvane/app/welcome/FileLookup.h"
#include "orvane/app/welcome/Thumbnails.h"

#include <QAbstractListModel>
#include <QImage>
#include <QStringList>

#include <vector>

/// The recent files with their pictures and what is known of them, pinned ones first.
///
/// Nothing is asked of the file system before `look`, and then in other threads.
class RecentModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        FileNameRole = Qt::UserRole, ///< whole
        FolderRole, ///< as a text for the user
        StateTextRole, ///< when it was changed, or what is wrong with it
        StateRole, ///< an int, of `FileState::Kind`
        PinnedRole,
        SearchRole, ///< the text that a search looks in
    };

    explicit RecentModel(Thumbnails thumbnails, FileLookup::Look look = &FileLookup::look,
        std::chrono::milliseconds patience = std::chrono::seconds(2), QObject* parent = nullptr);
    ~RecentModel() override;

    /// What is known of files that stay is kept.
    void setFiles(const QStringList& pinned, const QStringList& others);
    /// Finds out about the file in that row, and reads its picture, unless that was done before.
    void look(int row);
    /// Lets all files be looked at again, and their pictures be read again.
    void forget();
    /// The files of which it is known that they are missing.
    [[nodiscard]] QStringList missing() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

Q_SIGNALS:
    /// More or fewer files are known to be missing.
    void missingChanged();

private:
    struct Entry {
        QString fileName;
        bool isPinned = false;
        bool isLookedAt = false;
        FileState state;
        QImage picture;
    };

    [[nodiscard]] int rowOf(const QString& fileName) const;
    void takeState(const QString& fileName, const FileState& state);
    void takePicture(const QString& fileName, const QImage& picture);
    [[nodiscard]] static QString stateText(const FileState& state);
    [[nodiscard]] static QString describe(const Entry& entry);

    Thumbnails m_thumbnails;
    FileLookup m_lookup;
    BackgroundJobs m_pictures;
    std::vector<Entry> m_entries;
};
