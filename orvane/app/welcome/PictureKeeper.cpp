#include "orvane/app/welcome/PictureKeeper.h"

#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/view/SceneView.h"

#include <chrono>
#include <utility>

PictureKeeper::PictureKeeper(SceneDocument& document, SceneView* view, Thumbnails thumbnails, QObject* parent)
    : QObject(parent)
    , m_document(document)
    , m_view(view)
    , m_thumbnails(std::move(thumbnails))
{
    connect(&document, &SceneDocument::saved, this, &PictureKeeper::keep);
    connect(view, &SceneView::sceneAboutToChange, this, &PictureKeeper::keep);
}

PictureKeeper::~PictureKeeper()
{
    constexpr std::chrono::seconds patience(1);
    m_jobs.wait(patience);
}

void PictureKeeper::keep()
{
    if (!m_document.isOpen() || m_document.fileName().isEmpty() || m_document.isModified()
        || m_view->picture().isNull())
        return;
    m_jobs.run([thumbnails = m_thumbnails, fileName = m_document.fileName(), picture = m_view->picture()] {
        // The start page does without the picture.
        static_cast<void>(thumbnails.write(fileName, picture));
        return BackgroundJobs::Take();
    });
}
