#pragma once

#include "meridane/scene/edit/NodeRows.h"

#include <QSet>
#include <QString>

class QAction;
class QMimeData;

/// Which actions of `NodeActions` would change something in the selected nodes as they are, so that a menu of the nodes
/// has no others. The keys of the others still say why nothing can be done.
class ApplicableEdits {
public:
    /// `scene` is the open one, `selected` are nodes of it, and `clipboard` is what is on the clipboard, or null. The
    /// nodes are counted if there may be one in several places.
    ApplicableEdits(NxGroup& scene, const meridane::NodeSet& selected, const QMimeData* clipboard);

    /// True for actions of others too.
    [[nodiscard]] bool has(const QAction& action) const;

private:
    void leaveOut(const char* name, bool isLeftOut);

    QSet<QString> m_leftOut; // names of actions
};
