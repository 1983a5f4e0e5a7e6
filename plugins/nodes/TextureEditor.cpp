#include "plugins/nodes/TextureEditor.h"

#include "plugins/nodes/TexturePicture.h"

#include "orvane/extender/ImageSample.h"
#include "orvane/extender/OrvImages.h"
#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/EffectiveField.h"

#include <QCoreApplication>

namespace nodes {

namespace {

struct TextureTexts {
    Q_DECLARE_TR_FUNCTIONS(TextureEditor)
};

/// More than the picture is ever shown with.
constexpr QSize largestPicture(512, 512);

bool hasOwnImage(const NxTexture& texture)
{
    VbVec2s size;
    int components = 0;
    return meridane::effectiveField(texture.image).getValue(size, components) != nullptr;
}

QString fileOf(const NxTexture& texture)
{
    return orvane::toQString(meridane::effectiveField(texture.filePath).getValue());
}

QString source(const NxTexture& texture)
{
    if (hasOwnImage(texture))
        return TextureTexts::tr("in the scene: %1").arg(orvane::imageDescription(texture.image));
    const QString file = fileOf(texture);
    if (file.isEmpty())
        return TextureTexts::tr("none");
    const OrvImages::Result result = OrvImages::instance().load(file);
    if (result.state != OrvImages::State::Loaded)
        return TextureTexts::tr("a file");
    return TextureTexts::tr("a file: %1").arg(result.description);
}

} // namespace

void TextureEditor::build()
{
    auto& picture = add<TexturePicture>(QString());
    picture.setObjectName(QStringLiteral("picture"));
    picture.setAccessibleName(TextureTexts::tr("The picture of the texture"));
    follow([&picture](const NxTexture& texture) { showPicture(picture, texture); });
    addText(TextureTexts::tr("Image"), source);
    connect(&OrvImages::instance(), &OrvImages::changed, this, [this] { refresh(); });
    addField(&NxTexture::filePath);
    addField(&NxTexture::image);
    addField(&NxTexture::wrapS);
    addField(&NxTexture::wrapT);
    addField(&NxTexture::role);
}

void TextureEditor::showPicture(TexturePicture& picture, const NxTexture& texture)
{
    if (hasOwnImage(texture)) {
        picture.setPicture(orvane::sampledImage(meridane::effectiveField(texture.image), largestPicture), {});
        return;
    }
    const QString file = fileOf(texture);
    if (file.isEmpty()) {
        picture.setPicture({}, TextureTexts::tr("The texture has neither an image nor a file."));
        return;
    }
    const OrvImages::Result result = OrvImages::instance().load(file);
    switch (result.state) {
    case OrvImages::State::Loaded:
        picture.setPicture(result.image, {});
        break;
    case OrvImages::State::Loading:
        picture.setPicture({}, TextureTexts::tr("Loading…"));
        break;
    case OrvImages::State::Failed:
        picture.setPicture({}, TextureTexts::tr("\"%1\" can't be shown: %2.").arg(file, result.reason));
        break;
    }
}

} // namespace nodes
