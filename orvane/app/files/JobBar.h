#pragma once

#include <QTimer>
#include <QWidget>

#include <vector>

class FileJob;
class QLabel;
class QProgressBar;
class QToolButton;

/// Shows the progress of the running job that was started last, with a button that cancels it. It appears only when a
/// job takes longer than a moment.
class JobBar : public QWidget {
    Q_OBJECT

public:
    /// How long a job may take before the bar comes up, in milliseconds.
    static constexpr int patience = 200;

    explicit JobBar(QWidget* parent = nullptr);

    /// Watches a job that is about to start, until it ends or dies.
    void watch(FileJob* job, const QString& text);
    [[nodiscard]] bool isIdle() const noexcept { return m_jobs.empty(); }
    /// Cancels the job that is shown, if there is one.
    void cancel();

private:
    struct Watched {
        FileJob* job;
        QString text;
        double share; // of the work that is done, below 0 while it isn't known
    };

    void setShare(const FileJob* job, double share);
    void stop(const FileJob* job);
    void showLast();

    std::vector<Watched> m_jobs;
    QLabel* m_label;
    QProgressBar* m_progress;
    QToolButton* m_cancel;
    QTimer m_timer;
};
