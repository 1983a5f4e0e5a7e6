#include "orvane/extender/OrvImages.h"

#include <utility>

OrvImages& OrvImages::instance()
{
    static OrvImages images;
    return images;
}

OrvImages::Result OrvImages::load(const QString& fileName) const
{
    if (m_loader)
        return m_loader(fileName);
    return {State::Failed, {}, {}, tr("nothing loads images here")};
}

void OrvImages::setLoader(Loader loader)
{
    m_loader = std::move(loader);
    Q_EMIT changed();
}
