#include "orvane/app/compare/DifferencePanel.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/compare/CopyJob.h"
#include "orvane/app/compare/DifferenceModel.h"
#include "orvane/app/compare/DifferenceText.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/input/FilterLine.h"
#include "orvane/app/language/FollowLanguage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <utility>
#include <vector>

namespace {

/// Such as "2 added, 1 removed".
QString countText(const NxSceneDifferences& differences)
{
    constexpr auto kinds = static_cast<std::size_t>(NxSceneDifference::Kind::Ignored) + 1;
    std::array<int, kinds> counts{};
    for (const NxSceneDifference& difference : differences.list())
        ++counts.at(static_cast<std::size_t>(difference.kind));
    QStringList texts;
    for (std::size_t kind = 0; kind < kinds; ++kind) {
        if (counts.at(kind) > 0)
            texts += QStringLiteral("%1 %2")
                         .arg(orvane::countText(counts.at(kind)))
                         .arg(orvane::kindText(static_cast<NxSceneDifference::Kind>(kind)));
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

DifferencePanel::DifferencePanel(JobBar& jobBar, QWidget* parent)
    : QWidget(parent)
    , m_jobBar(jobBar)
    , m_model(new DifferenceModel(this))
    , m_view(new RowTable(this))
    , m_heading(new QLabel(this))
    , m_filter(new FilterLine(meridane::Query::Subject::Rows, this))
    , m_again(new QToolButton(this))
    , m_text(new QLabel(this))
    , m_pages(new QStackedLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* top = new QWidget(this);
    buildTopLine(top);
    layout->addWidget(top);
    buildView();
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setForegroundRole(QPalette::PlaceholderText);
    m_text->setObjectName(QStringLiteral("comparisonText"));
    m_pages->addWidget(m_text);
    m_pages->addWidget(m_view);
    layout->addLayout(m_pages, 1);
    orvane::followLanguage(this, [this] {
        m_model->forgetTexts();
        if (m_shownText)
            m_text->setText(m_shownText());
        updateHeading();
    });
    connect(m_filter, &FilterLine::queryChanged, m_model, &DifferenceModel::setFilter);
    connect(m_filter, &FilterLine::left, m_view, [this] { m_view->setFocus(); });
    connect(m_model, &DifferenceModel::filtered, this, &DifferencePanel::updateHeading);
    connect(m_again, &QToolButton::clicked, this, &DifferencePanel::againRequested);
    clear();
}

DifferencePanel::~DifferencePanel() = default;

void DifferencePanel::buildTopLine(QWidget* page)
{
    auto* line = new QHBoxLayout(page);
    line->setContentsMargins(8, 4, 8, 4);
    m_heading->setObjectName(QStringLiteral("comparisonHeading"));
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->addWidget(m_heading, 3);
    m_filter->setObjectName(QStringLiteral("comparisonFilter"));
    orvane::followLanguage(this, [this] {
        m_filter->setToolTip(tr("Shows the rows that contain these words. not, or, brackets, \"texts with blanks\" and "
                                "/regular expressions/ may be used."));
    });
    m_filter->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    m_filter->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    line->addWidget(m_filter, 1);
    m_again->setObjectName(QStringLiteral("compareAgain"));
    orvane::followLanguage(this, [this] {
        m_again->setText(tr("Compare Again"));
        m_again->setToolTip(tr("Compares the scene as it is now"));
    });
    line->addWidget(m_again);
}

void DifferencePanel::buildView()
{
    m_view->setObjectName(QStringLiteral("differenceTable"));
    orvane::followLanguage(this, [this] { m_view->setAccessibleName(tr("Differences")); });
    m_view->setModel(m_model);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setColumns({{24, 0.36}, {16, 0.2}, {14, 0.22}, {}});
    m_view->addCopyActions(QStringLiteral("comparison"));
    connect(m_view, &RowTable::copyRequested, this, &DifferencePanel::copy);
    connect(m_view, &RowTable::rowChosen, this, &DifferencePanel::choose);
}

void DifferencePanel::clear()
{
    m_name.clear();
    m_copying.reset();
    m_model->setDifferences({});
    showText([] { return tr("File > Compare With compares the open scene with a file."); });
    m_heading->clear();
    m_again->setEnabled(false);
}

void DifferencePanel::showWorking(const QString& name)
{
    clear();
    showText([name] { return tr("Comparing with %1…").arg(orvane::shortLine(name)); });
}

void DifferencePanel::showDifferences(NxSceneDifferences differences, const QString& name)
{
    clear();
    m_name = name;
    m_model->setDifferences(std::move(differences));
    if (m_model->rowCount() == 0)
        showText([name] { return tr("No differences: the scene and %1 are equal.").arg(orvane::shortLine(name)); });
    else
        m_pages->setCurrentWidget(m_view);
    m_filter->setEnabled(m_model->rowCount() > 0);
    m_again->setEnabled(true);
    updateHeading();
}

void DifferencePanel::showText(std::function<QString()> text)
{
    m_filter->reset();
    m_filter->setEnabled(false);
    m_shownText = std::move(text);
    m_text->setText(m_shownText());
    m_pages->setCurrentWidget(m_text);
}

void DifferencePanel::updateHeading()
{
    if (m_name.isEmpty())
        return;
    const std::size_t count = m_model->differences().list().size();
    const QString name = orvane::shortLine(m_name);
    const QString all = count == 0 ? tr("No differences from %1").arg(name)
        : count == 1               ? tr("1 difference from %1").arg(name)
                                   : tr("%1 differences from %2").arg(orvane::countText(count), name);
    QString text = m_filter->text().isEmpty() ? all : tr("%1 of %2").arg(orvane::countText(m_model->rowCount()), all);
    if (count > 0)
        text += QStringLiteral(": ") + countText(m_model->differences());
    m_heading->setText(text);
    m_heading->setToolTip(orvane::plainToolTip(text));
}

void DifferencePanel::choose(int row)
{
    m_model->watchRow(row);
    Q_EMIT chosen(m_model->difference(row));
}

void DifferencePanel::copy(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    // The differences themselves, since a filter may take rows away meanwhile.
    std::vector<NxSceneDifference> copied;
    copied.reserve(rows.size());
    for (const int row : rows)
        copied.push_back(m_model->difference(row));
    const auto count = static_cast<int>(copied.size());
    m_copying = std::make_unique<CopyJob>(count, [this, copied = std::move(copied)](int number) {
        return orvane::differenceLine(m_model->differences(), copied[static_cast<std::size_t>(number)]);
    });
    m_jobBar.watch(m_copying.get(), tr("Copying %1 differences").arg(orvane::countText(count)));
    m_copying->start();
}
