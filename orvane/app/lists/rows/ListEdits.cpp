#include "orvane/app/lists/rows/ListEdits.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/lists/rows/ListCommand.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/lists/rows/ListRows.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>
#include <numeric>

namespace {

/// The order of the rows that makes them ascend.
std::vector<std::size_t> orderOfAscendingRows(std::span<const int> rows)
{
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (!std::ranges::is_sorted(rows))
        std::ranges::sort(order, {}, [rows](std::size_t place) { return rows[place]; });
    return order;
}

} // namespace

ListEdits::ListEdits(OrvServices& services, ListModel& model)
    : m_services(services)
    , m_model(model)
{
}

QString ListEdits::listName() const
{
    const NxMField* const list = m_model.list();
    if (list == nullptr)
        return {};
    const NxFieldContainer& node = *list->getContainer();
    const auto* const sceneNode = dynamic_cast<const NxNode*>(&node);
    const QString name = !node.getName().isEmpty() ? orvane::toQString(node.getName())
        : sceneNode != nullptr                     ? QString::fromLatin1(sceneNode->getClassName())
                                                   : orvane::toQString(node.getTypeId().getName());
    return orvane::shortLine(name, 60) + u'.' + orvane::toQString(node.getFieldName(list));
}

orvane::Result<> ListEdits::push(const QString& label, const Write& write)
{
    NxMField* const list = m_model.list();
    if (list == nullptr)
        return orvane::Failure{tr("The list isn't there any more.")};
    bool hasWritten = false;
    m_services.pushStep(new ListCommand(
                            *list, [&](NxMField& written) { hasWritten = write(written); }, m_services.isUndoExact()),
        label);
    if (!hasWritten)
        return orvane::Failure{tr("There isn't enough memory for this. The list is as it was.")};
    return {};
}

orvane::Result<> ListEdits::checkNumbers(std::span<const int> rows, std::span<const double> values) const
{
    const auto* const components = m_model.columns().components();
    if (components == nullptr)
        return orvane::Failure{tr("The rows of this list aren't numbers.")};
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (const auto refusal = components->refusal(values[i])) {
            const QString reason = orvane::toolkitText(orvane::toQString(*refusal));
            return orvane::Failure{rows.size() == 1 ? reason : tr("Row %1: %2").arg(rows[i]).arg(reason)};
        }
    }
    return {};
}

orvane::Result<> ListEdits::setNumbers(std::span<const int> rows, int column, std::span<const double> values)
{
    if (orvane::Result<> result = checkNumbers(rows, values); !result)
        return result;
    if (rows.empty())
        return {};
    if (rows.back() >= m_model.list()->getNum())
        return orvane::Failure{tr("There is no row %1 any more.").arg(rows.back())};
    const QString what = rows.size() == 1
        ? QStringLiteral("%1[%2]").arg(listName()).arg(rows.front())
        : tr("%1 rows of %2").arg(orvane::countText(static_cast<int>(rows.size())), listName());
    const bool isSingle = m_model.columns().count() == 1;
    const QString label
        = isSingle ? tr("Set %1").arg(what) : tr("Set %1 of %2").arg(m_model.columns().title(column), what);
    return push(label, [&](NxMField& list) { return orvane::writeColumn(list, rows, column, values); });
}

orvane::Result<> ListEdits::setText(std::span<const int> rows, const QString& text)
{
    if (rows.empty() || m_model.list() == nullptr)
        return {};
    if (rows.back() >= m_model.list()->getNum())
        return orvane::Failure{tr("There is no row %1 any more.").arg(rows.back())};
    if (const QString refusal = m_model.columns().textRefusal(text); !refusal.isEmpty())
        return orvane::Failure{refusal};
    const QString label = rows.size() == 1
        ? tr("Set %1[%2]").arg(listName()).arg(rows.front())
        : tr("Set %1 rows of %2").arg(orvane::countText(static_cast<int>(rows.size())), listName());
    const QStringList texts(static_cast<qsizetype>(rows.size()), text);
    const bool isText = m_model.columns().kind() == ListColumns::Kind::Text;
    orvane::Result<> result = push(label, [&](NxMField& list) { return orvane::writeTexts(list, rows, texts); });
    if (!result && !isText)
        return orvane::Failure{tr("\"%1\" isn't the text of a value of this list.").arg(orvane::shortLine(text, 60))};
    return result;
}

orvane::Result<> ListEdits::checkLength(long long rows) const
{
    if (rows > NxMField::getMaximumNum())
        return orvane::Failure{tr("A list has at most %1 rows.").arg(orvane::countText(NxMField::getMaximumNum()))};
    return {};
}

orvane::Result<> ListEdits::insertRows(int before, int count)
{
    if (m_model.list() == nullptr || count <= 0)
        return {};
    const int present = m_model.list()->getNum();
    if (orvane::Result<> result = checkLength(static_cast<long long>(present) + count); !result)
        return result;
    const QString label = count == 1 ? tr("Insert a row into %1").arg(listName())
                                     : tr("Insert %1 rows into %2").arg(orvane::countText(count), listName());
    return push(label, [&](NxMField& list) {
        list.insertSpace(before, count);
        return list.getNum() == present + count;
    });
}

orvane::Result<> ListEdits::duplicateRows(const RowRuns& rows)
{
    if (rows.empty())
        return {};
    const int count = orvane::rowCount(rows);
    if (orvane::Result<> result = checkLength(static_cast<long long>(m_model.list()->getNum()) + count); !result)
        return result;
    const QString label = count == 1 ? tr("Duplicate a row of %1").arg(listName())
                                     : tr("Duplicate %1 rows of %2").arg(orvane::countText(count), listName());
    return push(label, [&](NxMField& list) { return orvane::insertCopies(list, rows, rows.back().end()); });
}

orvane::Result<> ListEdits::removeRows(const RowRuns& rows)
{
    if (rows.empty())
        return {};
    const int count = orvane::rowCount(rows);
    const QString label = count == 1 ? tr("Delete a row of %1").arg(listName())
                                     : tr("Delete %1 rows of %2").arg(orvane::countText(count), listName());
    return push(label, [&](NxMField& list) { return orvane::removeRows(list, rows); });
}

orvane::Result<> ListEdits::moveRows(const RowRuns& rows, int before)
{
    if (!orvane::wouldMove(rows, before))
        return {};
    const int count = orvane::rowCount(rows);
    const QString label = count == 1 ? tr("Move a row of %1").arg(listName())
                                     : tr("Move %1 rows of %2").arg(orvane::countText(count), listName());
    return push(label, [&](NxMField& list) { return orvane::moveRows(list, rows, before); });
}

orvane::Result<> ListEdits::resize(int count)
{
    if (m_model.list() == nullptr || count < 0 || count == m_model.list()->getNum())
        return {};
    return push(tr("Resize %1 to %2 rows").arg(listName(), orvane::countText(count)), [count](NxMField& list) {
        if (count < list.getNum())
            list.deleteValues(count, -1);
        else
            list.insertSpace(list.getNum(), count - list.getNum());
        return list.getNum() == count;
    });
}

orvane::Result<> ListEdits::setCells(const PastedRows& cells, std::span<const int> rows, int column, Cause cause)
{
    NxMField* const target = m_model.list();
    if (target == nullptr || cells.rows == 0)
        return {};
    const int present = target->getNum();
    const int appended = cells.rows - static_cast<int>(rows.size());
    if (orvane::Result<> result = checkLength(static_cast<long long>(present) + appended); !result)
        return result;
    std::vector<int> places(rows.begin(), rows.end());
    places.resize(static_cast<std::size_t>(cells.rows));
    std::iota(places.begin() + static_cast<std::ptrdiff_t>(rows.size()), places.end(), present);
    const std::vector<std::size_t> order = orderOfAscendingRows(places);
    std::ranges::sort(places);
    const QString label = cause == Cause::Fill ? tr("Fill %1 rows of %2").arg(orvane::countText(cells.rows), listName())
        : cells.rows == 1                      ? tr("Paste a row into %1").arg(listName())
                          : tr("Paste %1 rows into %2").arg(orvane::countText(cells.rows), listName());
    const auto write = [&](NxMField& list) {
        if (!m_model.columns().isNumeric()) {
            QStringList texts;
            for (const std::size_t place : order)
                texts.append(cells.texts[static_cast<qsizetype>(place)]);
            return orvane::writeTexts(list, places, texts);
        }
        std::vector<std::vector<double>> columns;
        for (const std::vector<double>& numbers : cells.numbers) {
            std::vector<double>& values = columns.emplace_back(order.size());
            std::ranges::transform(order, values.begin(), [&](std::size_t place) { return numbers[place]; });
        }
        return orvane::writeColumns(list, places, column, columns);
    };
    return push(label, [&](NxMField& list) {
        list.insertSpace(present, appended);
        if (list.getNum() == present + appended && write(list))
            return true;
        list.deleteValues(present, -1);
        return false;
    });
}
