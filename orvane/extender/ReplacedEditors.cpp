#include "orvane/extender/ReplacedEditors.h"

#include "orvane/extender/OrvExtension.h"

#include <QVariant>

namespace orvane {

namespace {

// A property, since a member would change the layout that plug-ins were compiled with.
constexpr const char* propertyName = "orvane_replaces";

} // namespace

void setReplacedEditors(OrvExtension& extension, const QStringList& names)
{
    extension.setProperty(propertyName, names);
}

QStringList replacedEditors(const OrvExtension& extension)
{
    return extension.property(propertyName).toStringList();
}

} // namespace orvane
