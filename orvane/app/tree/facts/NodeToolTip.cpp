#include "orvane/app/tree/facts/NodeToolTip.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/language/ToolkitText.h"

#include "meridane/gl/places/NodeFigures.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

constexpr qsizetype mostCharacters = 200;
constexpr qsizetype mostFields = 8;

struct Tips {
    Q_DECLARE_TR_FUNCTIONS(NodeToolTip)
};

QString number(float value)
{
    constexpr int digits = 5;
    return QString::number(static_cast<double>(value), 'g', digits);
}

QString ignoredText(NxNode& node)
{
    QStringList names;
    for (const NxField* const field : node.getFields()) {
        if (field->isIgnored())
            names.append(QString::fromUtf8(node.getFieldName(field).getString()));
    }
    if (names.isEmpty())
        return {};
    if (names.size() > mostFields)
        names = names.mid(0, mostFields) << QStringLiteral("…");
    return Tips::tr("Ignored fields: %1").arg(names.join(QStringLiteral(", ")));
}

} // namespace

QString orvane::nodeToolTip(NxNode& node)
{
    QString head = QString::fromUtf8(node.getClassName());
    if (!node.getName().isEmpty())
        head += QStringLiteral(" \"%1\"").arg(shortLine(toQString(node.getName()), mostCharacters));
    if (const std::size_t count = node.getChildren().size(); count > 0)
        head += count == 1 ? Tips::tr(", 1 child node") : Tips::tr(", %1 child nodes").arg(count);
    QStringList lines{head};
    if (const QString description = nodeDescription(node.getFieldData()->getDescription()); !description.isEmpty())
        lines.append(description);
    if (const QString ignored = ignoredText(node); !ignored.isEmpty())
        lines.append(ignored);
    return lines.join(u'\n');
}

QString orvane::figuresText(const meridane::NodeFigures& figures)
{
    if (figures.meshes() == 0)
        return {};
    QString counts = figures.meshes() == 1 ? Tips::tr("1 mesh") : Tips::tr("%1 meshes").arg(figures.meshes());
    counts += QStringLiteral(", ")
        + (figures.triangles() == 1 ? Tips::tr("1 triangle") : Tips::tr("%1 triangles").arg(figures.triangles()));
    if (!figures.isComplete())
        counts = Tips::tr("At least %1").arg(counts);
    QStringList lines{counts};
    if (const NxBounds& bounds = figures.bounds(); !bounds.isEmpty()) {
        const VbVec3f size = bounds.size();
        const VbVec3f middle = bounds.center();
        lines.append(Tips::tr("Bounds in the scene: %1 × %2 × %3 around %4, %5, %6")
                         .arg(number(size[0]), number(size[1]), number(size[2]), number(middle[0]), number(middle[1]),
                             number(middle[2])));
    }
    return lines.join(u'\n');
}
