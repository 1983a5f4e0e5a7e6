#include "orvane/app/lists/ListSetLine.h"

#include "orvane/app/files/JobBar.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/jobs/ApplyJob.h"
#include "orvane/app/lists/rows/ListEdits.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/look/Look.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

ListSetLine::ListSetLine(ListModel& model, ListView& view, ListEdits& edits, JobBar& jobBar, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_view(view)
    , m_edits(edits)
    , m_jobBar(jobBar)
    , m_column(new QComboBox(this))
    , m_formula(new QLineEdit(this))
    , m_button(new QToolButton(this))
{
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2 * orvane::look::unit(fontMetrics()));
    auto* const label = new QLabel(this);
    orvane::followLanguage(label, [label] { label->setText(tr("&Set")); });
    label->setBuddy(m_formula);
    line->addWidget(label);
    m_column->setObjectName(QStringLiteral("listSetColumn"));
    orvane::followLanguage(this, [this] { m_column->setAccessibleName(tr("Column")); });
    line->addWidget(m_column);
    auto* const to = new QLabel(this);
    orvane::followLanguage(to, [to] { to->setText(tr("to")); });
    line->addWidget(to);
    m_formula->setObjectName(QStringLiteral("listSetFormula"));
    orvane::followLanguage(this, [this] {
        m_formula->setAccessibleName(tr("Formula for the selected rows"));
        m_formula->setPlaceholderText(tr("Formula"));
        m_formula->setToolTip(tr("A number or a formula for the selected rows, such as x * 2 or i * 0.1. It knows the "
                                 "components by their names, and the number of the row as i."));
    });
    line->addWidget(m_formula, 1);
    m_button->setObjectName(QStringLiteral("listSetApply"));
    orvane::followLanguage(this, [this] {
        m_button->setText(tr("Apply"));
        m_button->setToolTip(tr("Sets the column in the selected rows; in all that are shown if none is selected"));
    });
    line->addWidget(m_button);
    connect(m_button, &QToolButton::clicked, this, &ListSetLine::apply);
    connect(m_formula, &QLineEdit::returnPressed, this, &ListSetLine::apply);
    connect(&model, &ListModel::listAboutToBeLeft, this, [this] { m_job.reset(); });
    connect(&model, &QAbstractItemModel::modelReset, this, &ListSetLine::listColumns);
    connect(view.selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
        [this](const QModelIndex& current) { m_column->setCurrentIndex(current.column()); });
    listColumns();
}

ListSetLine::~ListSetLine() = default;

void ListSetLine::listColumns()
{
    QStringList titles;
    for (int column = 0; column < m_model.columnCount(); ++column)
        titles.append(m_model.columns().title(column));
    const bool isNumeric = m_model.columns().isNumeric();
    setEnabled(isNumeric);
    QStringList present;
    for (int item = 0; item < m_column->count(); ++item)
        present.append(m_column->itemText(item));
    if (titles == present)
        return;
    m_column->clear();
    m_column->addItems(titles);
    m_column->setVisible(titles.size() > 1);
}

void ListSetLine::begin()
{
    if (m_view.currentIndex().isValid())
        m_column->setCurrentIndex(m_view.currentIndex().column());
    m_formula->setFocus(Qt::ShortcutFocusReason);
    m_formula->selectAll();
}

void ListSetLine::apply()
{
    if (m_model.list() == nullptr || m_job != nullptr || m_formula->text().trimmed().isEmpty())
        return;
    m_target = std::max(0, m_column->currentIndex());
    auto expression = RowExpression::parse(m_formula->text(), m_model.columns(), RowExpression::Use::Column, m_target);
    if (!expression) {
        InputMessage::showFor(m_formula, expression.error());
        return;
    }
    RowRuns rows = m_view.selectionModel()->hasSelection() ? m_view.selectedListRows() : m_view.allListRows();
    if (rows.empty())
        return;
    m_revision = m_model.revision();
    m_job = std::make_unique<ApplyJob>(*m_model.list(), orvane::rowsOf(rows), std::move(expression).value());
    connect(m_job.get(), &FileJob::finished, this, &ListSetLine::finish);
    connect(m_job.get(), &FileJob::failed, this, [this](const QString& message) {
        m_job.release()->deleteLater();
        InputMessage::showFor(m_formula, tr("%1 Nothing was changed.").arg(message));
        Q_EMIT failed(message);
    });
    connect(m_job.get(), &FileJob::cancelled, this, [this] { m_job.release()->deleteLater(); });
    m_jobBar.watch(m_job.get(), tr("Computing rows"));
    m_job->start();
}

void ListSetLine::finish()
{
    ApplyJob* const job = m_job.release();
    job->deleteLater();
    orvane::Result<> result;
    if (m_model.revision() != m_revision)
        result = orvane::Failure{tr("The list changed while the rows were being computed.")};
    else
        result = m_edits.setNumbers(job->rows(), m_target, job->values());
    if (!result) {
        InputMessage::showFor(m_formula, tr("%1 Nothing was changed.").arg(result.error()));
        Q_EMIT failed(result.error());
        return;
    }
    Q_EMIT applied();
}
