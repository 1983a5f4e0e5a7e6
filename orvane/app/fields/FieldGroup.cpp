#include "orvane/app/fields/FieldGroup.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct FieldGroupTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldGroup)
};

QString className(const NxType& type)
{
    return QString::fromLatin1(type.getName().getString());
}

/// How many classes there are between the type and the root of all.
int depthOf(NxType type)
{
    int depth = 0;
    for (; !type.isBad(); type = type.getParent())
        ++depth;
    return depth;
}

} // namespace

QString FieldGroup::title() const
{
    switch (kind) {
    case Kind::Favorites:
        return FieldGroupTexts::tr("Favorites");
    case Kind::Unknown:
        return FieldGroupTexts::tr("Unknown fields");
    case Kind::Class:
        break;
    }
    return key;
}

int FieldGroup::changedCount() const
{
    return static_cast<int>(std::ranges::count_if(rows, [](const FieldRow* row) { return row->isChanged(); }));
}

namespace orvane {

std::vector<std::unique_ptr<FieldRow>> fieldRows(const std::shared_ptr<const FieldSet::Nodes>& nodes)
{
    std::vector<std::unique_ptr<FieldRow>> rows;
    NxFieldContainer* const first = nodes->front().get();
    const NxFieldData& data = *first->getFieldData();
    for (int index = 0; index < data.getNumFields(); ++index) {
        NxField& field = *data.getField(first, index);
        FieldSet set = nodes->size() == 1 ? FieldSet(field) : FieldSet(field, nodes);
        if (!set.isEmpty())
            rows.push_back(std::make_unique<FieldRow>(
                std::move(set), toQString(data.getFieldName(index)), data.getDeclaringType(index)));
    }
    if (nodes->size() == 1) {
        for (const NxFieldContainer::UnknownField& field : first->getUnknownFields())
            rows.push_back(std::make_unique<FieldRow>(field));
    }
    return rows;
}

QString favoriteKey(const FieldRow& row)
{
    return className(row.declaringType()) + u'.' + row.name();
}

std::vector<std::unique_ptr<FieldGroup>> fieldGroups(
    const std::vector<std::unique_ptr<FieldRow>>& rows, const QSet<QString>& favorites)
{
    std::vector<std::unique_ptr<FieldGroup>> groups;
    const auto group = [&groups](FieldGroup::Kind kind, const QString& key) -> FieldGroup& {
        const auto found = std::ranges::find_if(
            groups, [&](const auto& candidate) { return candidate->kind == kind && candidate->key == key; });
        if (found != groups.end())
            return **found;
        groups.push_back(std::make_unique<FieldGroup>(FieldGroup{kind, key, {}, {}}));
        return *groups.back();
    };
    FieldGroup* latest = nullptr; // neighbours are mostly of one class
    NxType latestType;
    for (const auto& row : rows) {
        if (row->fields().isEmpty()) {
            group(FieldGroup::Kind::Unknown, QStringLiteral("?")).rows.push_back(row.get());
        } else if (!favorites.isEmpty() && favorites.contains(favoriteKey(*row))) {
            group(FieldGroup::Kind::Favorites, QStringLiteral("*")).rows.push_back(row.get());
        } else {
            if (latest == nullptr || row->declaringType() != latestType) {
                latestType = row->declaringType();
                latest = &group(FieldGroup::Kind::Class, className(latestType));
            }
            latest->rows.push_back(row.get());
        }
    }
    const auto rank = [](const std::unique_ptr<FieldGroup>& candidate) {
        switch (candidate->kind) {
        case FieldGroup::Kind::Favorites:
            return 0;
        case FieldGroup::Kind::Class:
            return 10'000 - depthOf(candidate->rows.front()->declaringType());
        case FieldGroup::Kind::Unknown:
            break;
        }
        return 20'000;
    };
    std::ranges::stable_sort(groups, [&rank](const auto& left, const auto& right) { return rank(left) < rank(right); });
    for (const auto& made : groups)
        made->shown = made->rows;
    return groups;
}

} // namespace orvane
