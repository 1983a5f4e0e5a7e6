#include "orvane/app/view/picture/PictureExport.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/NodeName.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/view/CameraFollower.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"
#include "orvane/app/view/picture/PictureDialog.h"
#include "orvane/app/view/picture/PictureFile.h"
#include "orvane/app/view/picture/ScenePicture.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QProgressDialog>
#include <QStatusBar>

#include <chrono>

PictureExport::PictureExport(SceneView* view, const Parts& parts)
    : QObject(view)
    , m_view(view)
    , m_parts(parts)
    , m_action(new QAction(this))
{
    orvane::followLanguage(this, [this] {
        m_action->setText(tr("Export Picture…"));
        m_action->setStatusTip(
            tr("Writes a picture of the scene of any size, with a transparent background if wanted"));
    });
    m_action->setObjectName(QStringLiteral("view.exportPicture"));
    m_action->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    connect(m_action, &QAction::triggered, this, &PictureExport::ask);
    connect(&parts.session.document(), &SceneDocument::sceneChanged, this, &PictureExport::update);
    orvane::followLanguage(this, [this] { update(); });
}

void PictureExport::update()
{
    orvane::setReason(*m_action, m_parts.session.document().isOpen() ? QString() : tr("No scene is open."));
}

void PictureExport::ask()
{
    QStringList places{tr("The view as it is"), tr("All of the scene")};
    std::vector<std::optional<NxViewpoint>> viewpoints{m_view->viewpoint(), std::nullopt};
    for (const std::vector<NxNode*>& camera : m_parts.cameras.cameras()) {
        places.append(tr("Camera %1").arg(orvane::nodeName(*camera.back())));
        viewpoints.emplace_back(CameraFollower::viewpointOf(camera));
    }
    for (const ViewBookmark& bookmark : m_parts.bookmarks.list()) {
        places.append(tr("Bookmark %1").arg(bookmark.name));
        viewpoints.emplace_back(bookmark.viewpoint);
    }
    const QSize size = (QSizeF(m_view->size()) * m_view->devicePixelRatioF()).toSize();
    auto* const dialog = new PictureDialog(size, places, m_view->window());
    connect(dialog, &QDialog::accepted, this, [this, dialog, viewpoints] {
        chooseFile({dialog->size(), viewpoints[static_cast<std::size_t>(dialog->place())], dialog->background(),
            dialog->hasGrid()});
    });
    dialog->open();
}

void PictureExport::chooseFile(const Choice& choice)
{
    auto* const dialog = new QFileDialog(m_view->window(), tr("Export Picture"));
    dialog->setObjectName(QStringLiteral("pictureFileDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("png"));
    QStringList filters{tr("PNG images (*.png)")};
    constexpr int opaque = 255;
    if (choice.background.alpha() == opaque)
        filters << tr("JPEG images (*.jpg *.jpeg)") << tr("BMP images (*.bmp)") << tr("PPM images (*.ppm)");
    dialog->setNameFilters(filters);
    const QFileInfo file(m_parts.session.document().fileName());
    if (!file.fileName().isEmpty())
        dialog->setDirectory(file.absolutePath());
    dialog->selectFile((file.fileName().isEmpty() ? tr("Untitled") : file.completeBaseName()) + QStringLiteral(".png"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.section(QStringLiteral("*."), 1, 1).section(u' ', 0, 0).remove(u')'));
    });
    connect(
        dialog, &QFileDialog::fileSelected, this, [this, choice](const QString& fileName) { write(choice, fileName); });
    dialog->open();
}

void PictureExport::write(const Choice& choice, const QString& fileName)
{
    const SceneDocument& document = m_parts.session.document();
    if (!document.isOpen())
        return;
    ScenePicture picture(document.scene(), document.pathFolder(),
        m_parts.session.settings().value(ImageFolderQuestion::key()).toStringList());
    picture.drawing().setVisibility(m_view->drawing().visibility());
    NxDrawingStyle style = m_view->style();
    style.grid = choice.hasGrid;
    style.axes = choice.hasGrid;
    picture.setStyle(style);

    constexpr int steps = 1000;
    constexpr std::chrono::milliseconds patience(400);
    QProgressDialog progress(tr("Drawing the picture…"), tr("Cancel"), 0, steps, m_view->window());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(static_cast<int>(patience.count()));
    const auto show = [&progress](double share) {
        progress.setValue(static_cast<int>(share * steps)); // which handles events
        return !progress.wasCanceled();
    };
    const auto report = [this](const QString& failure) {
        if (!failure.isEmpty()) // it was given up otherwise
            m_parts.messages.showMessage(MessageBar::Severity::Error, failure);
    };
    const auto viewpoint
        = choice.viewpoint ? orvane::Result<NxViewpoint>(*choice.viewpoint) : picture.framed(choice.size);
    if (!viewpoint) {
        report(viewpoint.error());
        return;
    }
    const auto drawn = picture.draw(viewpoint.value(), choice.size, choice.background, show);
    progress.setLabelText(tr("Writing the picture…"));
    const auto written = drawn ? orvane::writePicture(drawn.value(), fileName) : orvane::Failure{drawn.error()};
    if (!written) {
        report(written.error());
        return;
    }
    constexpr std::chrono::milliseconds shown(10000);
    m_parts.bar->showMessage(tr("Wrote %1, %2 by %3 pixels")
                                 .arg(QFileInfo(fileName).fileName())
                                 .arg(choice.size.width())
                                 .arg(choice.size.height()),
        static_cast<int>(shown.count()));
}
