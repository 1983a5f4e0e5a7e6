#include "orvane/app/fields/FieldColumns.h"

#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableSettings.h"
#include "orvane/app/fields/MarkDelegate.h"
#include "orvane/app/language/FollowLanguage.h"

#include <QAction>
#include <QEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int usualNameLetters = 22;
constexpr int usualTypeLetters = 16;

} // namespace

FieldColumns::FieldColumns(QTreeView* view, const FieldTableModel& model, FieldTableSettings& settings)
    : QObject(view)
    , m_view(view)
    , m_model(model)
    , m_settings(settings)
    , m_showType(new QAction(this))
{
    orvane::followLanguage(this, [this] { m_showType->setText(tr("Show &Types")); });
    const int chosenType = settings.columnWidth(FieldTableModel::TypeColumn);
    const int usualType = usualTypeLetters * view->fontMetrics().averageCharWidth();
    view->setColumnWidth(FieldTableModel::TypeColumn, chosenType > 0 ? chosenType : usualType);
    view->setColumnHidden(FieldTableModel::TypeColumn, !settings.isTypeShown());
    m_showType->setObjectName(QStringLiteral("field.showType"));
    orvane::followLanguage(
        this, [this] { m_showType->setStatusTip(tr("Shows the column with the types of the fields")); });
    m_showType->setCheckable(true);
    m_showType->setChecked(settings.isTypeShown());
    connect(m_showType, &QAction::toggled, this, [this](bool shown) {
        m_settings.setTypeShown(shown);
        m_view->setColumnHidden(FieldTableModel::TypeColumn, !shown);
        fitNames();
    });

    QHeaderView* const header = view->header();
    const int marks = MarkDelegate::columnWidth(*view);
    header->setStretchLastSection(false);
    header->setMinimumSectionSize(marks);
    header->setSectionResizeMode(FieldTableModel::ValueColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(FieldTableModel::MarkColumn, QHeaderView::Fixed);
    header->resizeSection(FieldTableModel::MarkColumn, marks);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &FieldColumns::chooseColumns);
    fitNames();
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int size) {
        if (!m_isFitting && column <= FieldTableModel::TypeColumn && size > 0)
            m_settings.setColumnWidth(column, size);
    });
    connect(&model, &QAbstractItemModel::modelReset, this, &FieldColumns::measureNames);
    view->installEventFilter(this);
}

bool FieldColumns::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_view && event->type() == QEvent::FontChange) {
        m_widths.clear();
        m_longest = 0;
        measureNames();
    } else if (object == m_view && event->type() == QEvent::Resize) {
        fitNames();
    }
    return false;
}

void FieldColumns::measureNames()
{
    const int before = m_longest;
    for (int group = 0; group < m_model.rowCount(); ++group) {
        const QModelIndex parent = m_model.index(group, FieldTableModel::NameColumn);
        for (const FieldRow* const row : m_model.group(parent)->shown)
            m_longest = std::max(m_longest, widthOf(row->name()));
    }
    if (m_longest > before)
        fitNames();
}

int FieldColumns::widthOf(const QString& name)
{
    const auto known = m_widths.constFind(name);
    if (known != m_widths.constEnd())
        return *known;
    QFont bold = m_view->font(); // as it is when the value has changed
    bold.setBold(true);
    return *m_widths.insert(name, QFontMetrics(bold).horizontalAdvance(name));
}

void FieldColumns::fitNames()
{
    int width = m_settings.columnWidth(FieldTableModel::NameColumn);
    if (width <= 0) {
        const int margin = m_view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_view) + 1;
        const int needed = m_longest + 2 * m_view->indentation() + 2 * margin;
        const int usual = usualNameLetters * m_view->fontMetrics().averageCharWidth();
        const int types = m_settings.isTypeShown() ? m_view->columnWidth(FieldTableModel::TypeColumn) : 0;
        const int both = m_view->width() - types - m_view->columnWidth(FieldTableModel::MarkColumn);
        width = std::min(std::max(usual, needed), std::max(usual / 2, both / 2));
    }
    const QScopedValueRollback guard(m_isFitting, true);
    m_view->setColumnWidth(FieldTableModel::NameColumn, width);
}

void FieldColumns::chooseColumns(const QPoint& place)
{
    QMenu menu(m_view);
    menu.addAction(m_showType);
    menu.exec(m_view->header()->mapToGlobal(place));
}
