#include "orvane/app/files/FileFilters.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/transfer/FileFormats.h"

#include <QCoreApplication>

namespace orvane {

namespace {

struct FileFiltersTexts {
    Q_DECLARE_TR_FUNCTIONS(FileFilters)
};

QString pattern(std::string_view extension)
{
    return QStringLiteral("*.") + toQString(extension);
}

/// "Models (*.glb *.obj)"
QString filter(const QString& name, const QStringList& patterns)
{
    return QStringLiteral("%1 (%2)").arg(name, patterns.join(u' '));
}

QStringList modelPatterns()
{
    QStringList patterns;
    for (const FileFormat& format : modelFormats)
        patterns += pattern(format.extension);
    return patterns;
}

QString exportFilter(const FileFormat& format)
{
    return filter(toQString(format.name), {pattern(format.extension)});
}

} // namespace

QStringList openFilters()
{
    const QString scenes = pattern(SceneFormat::extension);
    return {filter(FileFiltersTexts::tr("Scenes and models"), QStringList(scenes) + modelPatterns()),
        filter(FileFiltersTexts::tr("Scenes"), {scenes}), FileFiltersTexts::tr("All files (*)")};
}

QStringList importFilters()
{
    return {filter(FileFiltersTexts::tr("Models"), modelPatterns()), FileFiltersTexts::tr("All files (*)")};
}

QStringList saveFilters()
{
    return {filter(FileFiltersTexts::tr("Scenes"), {pattern(SceneFormat::extension)})};
}

QStringList exportFilters()
{
    QStringList filters;
    for (const FileFormat& format : modelFormats) {
        if (format.isWritable())
            filters += exportFilter(format);
    }
    return filters;
}

QString exportSuffix(const QString& filter)
{
    for (const FileFormat& format : modelFormats) {
        if (exportFilter(format) == filter)
            return toQString(format.extension);
    }
    return {};
}

} // namespace orvane
