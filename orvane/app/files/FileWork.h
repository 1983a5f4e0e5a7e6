#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/files/FileJob.h"
#include "orvane/app/files/FileRequests.h"

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class InputBlock;
class JobBar;
class MessageBar;
class QDialog;

/// The state of all work on files: the file that is read, the scene that is written, the dialogs that are open and the
/// requests that wait.
///
/// At most one file is read and at most one scene is written, and the two don't disturb each other. Requests are
/// carried out, and what was read is taken over, only while no scene is written and no modal dialog is open,
/// including dialogs of extensions; until then they wait. While a scene is written, the user can't change it. A request
/// that is given up is reported.
class FileWork : public QObject {
    Q_OBJECT

public:
    using Kind = FileRequest::Kind;

    /// Why a file that was to be read isn't there.
    enum class Loss {
        Failed, ///< it can't be read
        Stopped, ///< the user cancelled it, or asked for something else
    };
    /// What is done with a file that is read. One of the two is called, unless the work is abandoned.
    struct Reader {
        std::function<void(const ReadScene& content)> take;
        /// The reason is a message.
        std::function<void(const QString& reason, Loss loss)> lost;
    };
    /// What is done after a question, a dialog or a job: `proceed` after success, `giveUp` when it failed, was refused
    /// or was cancelled. Exactly one of them is called.
    struct Next {
        std::function<void()> proceed = [] {};
        std::function<void()> giveUp = [] {};
    };

    /// The bars live longer than the object.
    FileWork(MessageBar& messages, JobBar& jobBar, QObject* parent);
    ~FileWork() override;

    /// Carries a request out as soon as it may.
    void push(FileRequest request);
    /// Opens a dialog without blocking.
    void open(QDialog* dialog);
    /// Lets requests wait until that object is deleted.
    void hold(QObject* work);

    /// Starts to read a file, to open it, to add it, to compare with it or to reload it. A file that is still read is
    /// given up.
    void read(Kind kind, std::unique_ptr<SceneJob> job, const Reader& reader);
    /// The file that is read to be opened, also while it waits to be taken over; empty if there is none.
    [[nodiscard]] QString fileBeingOpened() const;
    /// Gives up the file that is read.
    void stopReading(const QString& reason);
    /// The same if it is read to be reloaded.
    void stopReloading(const QString& reason);
    /// Starts to write a scene. None must be written already.
    void write(std::unique_ptr<FileJob> job, const QString& text, const Next& next);
    /// What the file holds that was written last.
    [[nodiscard]] const std::optional<meridane::ContentHash>& writtenContent() const noexcept
    {
        return m_writtenContent;
    }
    /// Gives up the requests that were made for a scene that isn't open any more.
    void dropOtherScenes(int openScene);
    /// Gives up the file that is read and all requests that wait, without a message.
    void abandon();

    /// Shows a message about what is given up.
    void reportGivenUp(const QStringList& names, const QString& reason);
    void showReadingError(const QString& text);
    void showWritingMessage(bool isWarning, const QString& text);

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// A scene was written, or the user cancelled that, or it failed.
    void writingEnded(const orvane::Result<>& result);
    /// Something that the user should know of a file that was read, and that needs nothing to be done.
    void noted(const QString& text);

private:
    struct Reading {
        Kind kind;
        QString fileName;
        Reader reader;
        std::unique_ptr<SceneJob> job; // null once the file is read
        ReadScene content; // of the file that was read
    };
    struct Writing {
        std::unique_ptr<FileJob> job;
        std::unique_ptr<InputBlock> block;
        Next next;
    };

    void release(const QObject* dialog);
    [[nodiscard]] bool isHeld();
    [[nodiscard]] bool mayRun(const FileRequest& request) const;
    void goOn();
    void goOnLater();
    void reportFailure(const SceneJob& job, const QString& message);
    void showWarnings(Kind kind, const SceneJob& job);
    void loseReading(const QString& reason, Loss loss);
    [[nodiscard]] Reading takeReading();
    enum class WritingEnd { Written, Failed, Cancelled };
    void endWriting(WritingEnd end, const QString& error = {});
    void retire(std::unique_ptr<FileJob> job);

    MessageBar& m_messages;
    JobBar& m_jobBar;
    std::optional<Reading> m_reading;
    std::optional<Writing> m_writing;
    QList<const QObject*> m_holders; // dialogs that are open, and other work
    FileRequests m_waiting;
    std::optional<meridane::ContentHash> m_writtenContent;
    bool m_goingOn = false; // inside `goOn`
};
