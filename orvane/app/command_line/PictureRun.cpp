#include "orvane/app/command_line/PictureRun.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/scene/ScenePaths.h"
#include "orvane/app/view/CameraFollower.h"
#include "orvane/app/view/navigation/ViewBookmarks.h"
#include "orvane/app/view/picture/PictureFile.h"
#include "orvane/app/view/picture/ScenePicture.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxCamera.h"

#include <QCoreApplication>

#include <algorithm>

using orvane::Failure;
using orvane::Result;

namespace {

constexpr QSize usualSize(1920, 1080);

struct PictureRunText {
    Q_DECLARE_TR_FUNCTIONS(PictureRun)
};

QColor backgroundOf(const CommandLine& commandLine)
{
    if (!commandLine.background.isEmpty())
        return QColor(commandLine.background);
    return orvane::canBeTransparent(commandLine.pictureFile) ? Qt::transparent : Qt::white;
}

Result<NxViewpoint> viewpointOfCamera(NxGroup* scene, const QString& path)
{
    const NxScenePath::Target target = NxScenePath::find(scene, path.toStdString());
    if (!target.error.empty())
        return Failure{orvane::toQString(target.error)};
    const auto* const camera = dynamic_cast<const NxCamera*>(target.node());
    if (camera == nullptr || target.field != nullptr)
        return Failure{PictureRunText::tr("%1: this is no camera. --find 't:Camera' lists the cameras.").arg(path)};
    return CameraFollower::viewpointOf(target.nodes);
}

Result<NxViewpoint> viewpointOfBookmark(AppSettings& settings, const CommandLine& commandLine)
{
    const std::vector<ViewBookmark> bookmarks
        = ViewBookmarks(settings).find(orvane::absoluteFileName(commandLine.file));
    const auto bookmark = std::find_if(bookmarks.begin(), bookmarks.end(),
        [&commandLine](const ViewBookmark& other) { return other.name == commandLine.camera; });
    if (bookmark != bookmarks.end())
        return bookmark->viewpoint;
    QStringList names;
    for (const ViewBookmark& other : bookmarks)
        names.append(other.name);
    if (names.isEmpty())
        return Failure{PictureRunText::tr("--camera %1: %2 has no bookmarks. The path of a camera begins with a slash.")
                           .arg(commandLine.camera, commandLine.file)};
    return Failure{
        PictureRunText::tr("--camera %1: %2 has no bookmark of that name, but %3. The path of a camera begins "
                           "with a slash.")
            .arg(commandLine.camera, commandLine.file, names.join(QStringLiteral(", ")))};
}

} // namespace

Result<> orvane::checkPicture(const CommandLine& commandLine)
{
    if (commandLine.pictureFile.isEmpty())
        return {};
    if (auto name = checkPictureName(commandLine.pictureFile); !name)
        return name;
    constexpr int opaque = 255;
    if (backgroundOf(commandLine).alpha() < opaque && !canBeTransparent(commandLine.pictureFile))
        return Failure{PictureRunText::tr("%1: a picture of this format can't be transparent. Give another color with "
                                          "--background, or write a .png.")
                           .arg(commandLine.pictureFile)};
    return {};
}

Result<> orvane::writePicture(NxGroup* scene, const CommandLine& commandLine)
{
    AppSettings settings(commandLine.settingsMode(), commandLine.settingsFileName());
    const QSize size = commandLine.size.isValid() ? commandLine.size : usualSize;
    ScenePicture picture(
        scene, orvane::folderOf(commandLine.file), settings.value(ImageFolderQuestion::key()).toStringList());
    QObject::connect(&picture.drawing().textures(), &TextureFiles::folderRefused, &printRefusedFolder);
    const QString& camera = commandLine.camera;
    const auto viewpoint = camera.isEmpty() ? picture.framed(size)
        : camera.startsWith(u'/')           ? viewpointOfCamera(scene, camera)
                                            : viewpointOfBookmark(settings, commandLine);
    if (!viewpoint)
        return Failure{viewpoint.error()};
    const auto drawn = picture.draw(viewpoint.value(), size, backgroundOf(commandLine));
    return drawn ? orvane::writePicture(drawn.value(), commandLine.pictureFile) : Failure{drawn.error()};
}

void orvane::printRefusedFolder(const QString& folder)
{
    printError(PictureRunText::tr("%1: The scene refers to images in this folder, outside its own. They aren't loaded; "
                                  "open the scene in a window to allow it.")
                   .arg(folder));
}
