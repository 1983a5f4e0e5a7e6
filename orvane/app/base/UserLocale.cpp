#include "orvane/app/base/UserLocale.h"

namespace orvane {

void useProgramLocale()
{
    QLocale::setDefault(QLocale::c());
}

QLocale userLocale()
{
    return QLocale::system();
}

} // namespace orvane
