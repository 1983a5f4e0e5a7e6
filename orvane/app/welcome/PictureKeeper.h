#pragma once

#include "orvane/app/welcome/BackgroundJobs.h"
#include "orvane/app/welcome/Thumbnails.h"

#include <QObject>

class SceneDocument;
class SceneView;

/// Keeps a picture of the scene as the user saw it last, for the start page and file managers: when it is saved, and
/// when it is left without changes. The view has drawn the picture already; the rest is done in another thread.
class PictureKeeper : public QObject {
    Q_OBJECT

public:
    /// Document and view live longer.
    PictureKeeper(SceneDocument& document, SceneView* view, Thumbnails thumbnails, QObject* parent);
    /// Gives what is being written a moment.
    ~PictureKeeper() override;

    /// Keeps a picture of what is seen now, unless it isn't that of a file.
    void keep();

private:
    SceneDocument& m_document;
    SceneView* m_view;
    Thumbnails m_thumbnails;
    BackgroundJobs m_jobs{1};
};
