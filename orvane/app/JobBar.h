#pragma once

#include <QTimer>
#include <QWidget>

class FileJob;
class QLabel;
class QProgressBar;
class QToolButton;

/// Shows how far a running job is, with a button that cancels it. It comes up only when the job takes a while.
class JobBar : public QWidget {
    Q_OBJECT

public:
    /// How long a job may take before the bar comes up, in milliseconds.
    static constexpr int patience = 200;

    explicit JobBar(QWidget* parent = nullptr);

    /// Watches a job that is about to start, until it ends or dies.
    void watch(FileJob* job, const QString& text);
    /// Cancels the watched job, if there is one.
    void cancel();

private:
    void showProgress(double share);
    void stop();

    FileJob* m_job = nullptr;
    QLabel* m_label;
    QProgressBar* m_progress;
    QToolButton* m_cancel;
    QTimer m_timer;
    double m_share = 0; // of the work that is done
};
