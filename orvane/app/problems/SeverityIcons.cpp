#include "orvane/app/problems/SeverityIcons.h"

#include "orvane/app/look/Symbols.h"

namespace orvane {

QIcon severityIcon(NxSeverity severity)
{
    switch (severity) {
    case NxSeverity::Information:
        return look::symbol(QStringLiteral("information"), look::Tint::Information);
    case NxSeverity::Warning:
        return look::symbol(QStringLiteral("warning"), look::Tint::Warning);
    case NxSeverity::Error:
        break;
    }
    return look::symbol(QStringLiteral("error"), look::Tint::Error);
}

} // namespace orvane
