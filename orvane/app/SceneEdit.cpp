#include "orvane/app/SceneEdit.h"

#include "meridane/base/VbName.h"
#include "meridane/scene/NxField.h"
#include "meridane/scene/NxScenePath.h"

#include <vector>

namespace orvane {

namespace {

constexpr std::size_t listedValueLength = 1000;

QString fromUtf8(const std::string& text)
{
    return QString::fromStdString(text);
}

// Follows a path that has to name a field.
std::optional<QString> findField(NxGroup* scene, const QString& path, NxField*& field)
{
    const NxScenePath::Target target = NxScenePath::find(scene, path.toStdString());
    if (!target.error.empty())
        return fromUtf8(target.error);
    if (target.field == nullptr)
        return QStringLiteral("%1: this is a node; a field is named as %1.field").arg(path);
    field = target.field;
    return std::nullopt;
}

// The beginning of a field's text, without making the whole text of a value of megabytes.
QString shortText(const NxField& field)
{
    std::string text;
    std::size_t position = 0;
    while (text.size() <= listedValueLength && field.writeText(text, position, listedValueLength)) { }
    QString value = fromUtf8(text);
    if (value.size() > static_cast<qsizetype>(listedValueLength))
        value = value.left(listedValueLength) + QChar(0x2026);
    return value;
}

void listNode(const NxGroup* scene, const std::vector<NxNode*>& path, QString& lines)
{
    NxNode* const node = path.back();
    lines += QStringLiteral("%1\t%2\n")
                 .arg(fromUtf8(NxScenePath::toText(scene, path)), QString::fromUtf8(node->getClassName()));
    for (const NxField* const field : node->getFields())
        lines += QStringLiteral("%1\t%2\t%3\n")
                     .arg(fromUtf8(NxScenePath::toText(scene, path, field)),
                         QString::fromLatin1(field->getTypeId().getName().getString()), shortText(*field));
}

} // namespace

std::optional<QString> setField(NxGroup* scene, const CommandLine::Assignment& assignment)
{
    NxField* field = nullptr;
    if (auto error = findField(scene, assignment.path, field))
        return error;
    if (field->set(VbString(assignment.text.toStdString())))
        return std::nullopt;
    return QStringLiteral("%1: '%2' is no value for a field of type %3")
        .arg(assignment.path, assignment.text, QString::fromLatin1(field->getTypeId().getName().getString()));
}

std::optional<QString> getField(NxGroup* scene, const QString& path, QString& text)
{
    NxField* field = nullptr;
    if (auto error = findField(scene, path, field))
        return error;
    VbString value;
    field->get(value);
    text = fromUtf8(std::string(value.view()));
    return std::nullopt;
}

QString listScene(NxGroup* scene)
{
    // A stack of its own: scenes may be nested deeper than the call stack would like.
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
    };
    QString lines;
    std::vector<NxNode*> path;
    std::vector<Level> levels{{scene->getChildren()}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.children.size()) {
            levels.pop_back();
            if (!path.empty())
                path.pop_back();
            continue;
        }
        NxNode* const node = level.children[level.next++];
        path.push_back(node);
        listNode(scene, path, lines);
        levels.push_back({node->getChildren()});
    }
    return lines;
}

} // namespace orvane
