#pragma once

#include "orvane/app/images/ImageFolders.h"

#include "meridane/scene/check/NxFileFinding.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// Looks for the files that the open scene names, in a thread of its own, since a file system may take its time.
///
/// Like the view, it only looks in the folder of the scene and in those that the user has allowed. Other image files
/// are reported as unreadable, other files aren't looked at. Thread of the user interface only.
class FileSearch : public QObject {
    Q_OBJECT

public:
    FileSearch();
    /// Waits for the file that is being looked at.
    ~FileSearch() override;

    /// Forgets what was found. Relative names count from the folder of the scene, which is empty for a new one.
    void restart(const QString& sceneFolder, const QStringList& allowedFolders);
    /// What is known of a file; it is looked for if that is nothing.
    [[nodiscard]] NxFileFinding find(const std::string& name, bool isImage);

Q_SIGNALS:
    /// Files were found that were unknown.
    void found();

private:
    /// The name in the scene, and whether it must be an image.
    using File = std::pair<std::string, bool>;
    struct Question {
        std::string name;
        QString path;
        bool isImage = false;
    };
    struct Answer {
        File file;
        NxFileFinding finding;
    };

    void lookLater(Question question);
    void look();
    void take(int round, const std::vector<Answer>& answers);

    ImageFolders m_folders;
    std::map<File, NxFileFinding> m_known;
    std::vector<Question> m_waiting;
    int m_round = 0; // counts the restarts
    bool m_isLooking = false;
    QThreadPool m_thread;
};
