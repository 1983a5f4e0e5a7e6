#include "orvane/app/lists/ShownRows.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/lists/rows/RowExpression.h"

#include "meridane/query/Query.h"
#include "meridane/scene/fields/NxMField.h"

#include <algorithm>
#include <utility>

namespace {

RowsJob::Filter numberFilter(const NxMField& list, RowExpression expression)
{
    std::vector<double> values;
    return [&list, expression = std::move(expression), values](int first, std::span<bool> passes) mutable {
        values.resize(passes.size());
        orvane::Result<> result = expression.evaluate(list, first, values);
        if (result)
            std::ranges::transform(
                values, passes.begin(), [](double value) { return value < 0 || value > 0; }); // not NaN
        return result;
    };
}

RowsJob::Filter textFilter(const ListColumns& columns, meridane::Query query)
{
    return [columns, query = std::move(query)](int first, std::span<bool> passes) {
        for (std::size_t i = 0; i < passes.size(); ++i)
            passes[i] = query.matchesText(columns.text(first + static_cast<int>(i), 0).toStdString());
        return orvane::Result<>();
    };
}

} // namespace

ShownRows::ShownRows(ListModel& model, JobBar& jobBar, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_jobBar(jobBar)
{
    connect(&model, &ListModel::listChanged, this, &ShownRows::restart);
    connect(&model, &ListModel::listAboutToBeLeft, this, &ShownRows::clear);
}

ShownRows::~ShownRows() = default;

orvane::Result<RowsJob::Filter> ShownRows::makeFilter(const QString& text) const
{
    if (text.trimmed().isEmpty() || m_model.list() == nullptr)
        return RowsJob::Filter();
    const ListColumns& columns = m_model.columns();
    const bool isNumber = columns.isNumeric() && columns.kind() != ListColumns::Kind::Choice;
    if (isNumber) {
        auto expression = RowExpression::parse(text, columns, RowExpression::Use::Filter);
        if (!expression)
            return orvane::Failure{expression.error()};
        return numberFilter(*m_model.list(), std::move(expression).value());
    }
    auto query = meridane::Query::parse(text.toStdString(), meridane::Query::Subject::Rows);
    if (const auto* const error = std::get_if<meridane::QueryError>(&query))
        return orvane::Failure{orvane::toolkitText(orvane::toQString(error->message))};
    return textFilter(columns, std::get<meridane::Query>(std::move(query)));
}

orvane::Result<> ShownRows::setRange(const QString& text)
{
    const auto range = RowRange::parse(text);
    if (!range)
        return orvane::Failure{range.error()};
    if (range.value() == m_range)
        return {};
    m_range = range.value();
    restart();
    return {};
}

orvane::Result<> ShownRows::setFilter(const QString& text)
{
    if (text == m_filterText)
        return {};
    if (const auto filter = makeFilter(text); !filter)
        return orvane::Failure{filter.error()};
    m_filterText = text;
    restart();
    return {};
}

void ShownRows::setOrder(RowsJob::Order order)
{
    m_order = order;
    restart();
}

void ShownRows::clear()
{
    m_job.reset();
    m_range = RowRange();
    m_filterText.clear();
    m_order = {};
}

void ShownRows::restart()
{
    m_job.reset();
    auto filter = makeFilter(m_filterText);
    const bool isAll = m_range.isAll() && m_order.column < 0 && (!filter || !filter.value());
    if (m_model.list() == nullptr || isAll) {
        m_model.showAll();
        Q_EMIT settled();
        return;
    }
    m_job = std::make_unique<RowsJob>(*m_model.list(), m_range, std::move(filter).value(), m_order);
    connect(m_job.get(), &FileJob::finished, this, &ShownRows::finish);
    connect(m_job.get(), &FileJob::failed, this, &ShownRows::giveUp);
    connect(m_job.get(), &FileJob::cancelled, this, [this] {
        m_order = {};
        giveUp(tr("Finding the rows was cancelled, so they are neither filtered nor sorted."));
    });
    m_jobBar.watch(m_job.get(), tr("Finding rows"));
    m_job->start();
}

// The job that emits the signal is deleted later.
void ShownRows::finish()
{
    RowsJob* const job = m_job.release();
    job->deleteLater();
    m_model.setMap(job->takeMap());
    Q_EMIT settled();
}

void ShownRows::giveUp(const QString& message)
{
    m_job.release()->deleteLater();
    m_filterText.clear();
    Q_EMIT failed(message);
    restart();
}
