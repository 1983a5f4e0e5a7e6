#include "orvane/app/JobBar.h"

#include "orvane/app/FileJob.h"

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
    layout->addWidget(m_label);
    m_progress->setFixedWidth(160);
    m_progress->setMaximumHeight(fontMetrics().height() + 4);
    layout->addWidget(m_progress);
    m_cancel->setObjectName(QStringLiteral("cancelJob"));
    m_cancel->setText(tr("Cancel"));
    layout->addWidget(m_cancel);
    connect(m_cancel, &QToolButton::clicked, this, &JobBar::cancel);
    m_timer.setSingleShot(true);
    m_timer.setInterval(patience);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        show();
        showProgress(m_share);
    });
    hide();
}

void JobBar::watch(FileJob* job, const QString& text)
{
    stop();
    m_job = job;
    m_label->setText(text);
    showProgress(0);
    connect(job, &FileJob::progressed, this, &JobBar::showProgress);
    for (const auto end : {&FileJob::finished, &FileJob::cancelled})
        connect(job, end, this, &JobBar::stop);
    connect(job, &FileJob::failed, this, &JobBar::stop);
    connect(job, &QObject::destroyed, this, &JobBar::stop);
    m_timer.start();
}

void JobBar::cancel()
{
    if (m_job != nullptr)
        m_job->cancel();
}

void JobBar::showProgress(double share)
{
    m_share = share;
    if (isHidden())
        return;
    m_progress->setRange(0, share < 0 ? 0 : progressSteps);
    m_progress->setValue(static_cast<int>(share * progressSteps));
}

void JobBar::stop()
{
    if (m_job != nullptr)
        disconnect(m_job, nullptr, this, nullptr);
    m_job = nullptr;
    m_timer.stop();
    hide();
}
