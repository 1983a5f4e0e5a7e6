#include "orvane/app/files/JobBar.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/files/FileJob.h"
#include "orvane/app/language/FollowLanguage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int progressSteps = 1000;

} // namespace

JobBar::JobBar(QWidget* parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_cancel(new QToolButton(this))
{
    setObjectName(QStringLiteral("jobBar"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_label->setTextFormat(Qt::PlainText);
    layout->addWidget(m_label);
    m_progress->setFixedWidth(160);
    m_progress->setMaximumHeight(fontMetrics().height() + 4);
    layout->addWidget(m_progress);
    m_cancel->setObjectName(QStringLiteral("cancelJob"));
    orvane::followLanguage(this, [this] { m_cancel->setText(tr("Cancel")); });
    layout->addWidget(m_cancel);
    connect(m_cancel, &QToolButton::clicked, this, &JobBar::cancel);
    m_timer.setSingleShot(true);
    m_timer.setInterval(patience);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        show();
        showLast();
    });
    hide();
}

void JobBar::watch(FileJob* job, const QString& text)
{
    m_jobs.push_back({job, text, 0});
    connect(job, &FileJob::progressed, this, [this, job](double share) { setShare(job, share); });
    const auto end = [this, job] { stop(job); };
    connect(job, &FileJob::finished, this, end);
    connect(job, &FileJob::cancelled, this, end);
    connect(job, &FileJob::failed, this, end);
    connect(job, &QObject::destroyed, this, end);
    showLast();
    if (isHidden() && !m_timer.isActive())
        m_timer.start();
}

void JobBar::cancel()
{
    if (!m_jobs.empty())
        m_jobs.back().job->cancel();
}

void JobBar::setShare(const FileJob* job, double share)
{
    for (Watched& watched : m_jobs) {
        if (watched.job == job)
            watched.share = share;
    }
    showLast();
}

void JobBar::stop(const FileJob* job)
{
    std::erase_if(m_jobs, [job](const Watched& watched) { return watched.job == job; });
    if (m_jobs.empty()) {
        m_timer.stop();
        hide();
    } else {
        showLast();
    }
}

void JobBar::showLast()
{
    if (isHidden() || m_jobs.empty())
        return;
    const Watched& shown = m_jobs.back();
    // It has its place in the status bar, which must not widen the window.
    constexpr qsizetype mostCharacters = 40;
    m_label->setText(orvane::shortLine(shown.text, mostCharacters));
    m_progress->setRange(0, shown.share < 0 ? 0 : progressSteps);
    m_progress->setValue(static_cast<int>(shown.share * progressSteps));
}
