#pragma once

#include <QObject>

#include <memory>

class FileFlow;
class OrvServices;
class SceneDocument;
class SceneTreePanel;
class TreeState;

/// Unfolds and selects in the tree what was unfolded and selected before a reload of the file.
class ReloadedTree : public QObject {
    Q_OBJECT

public:
    /// All of these live longer than the object.
    ReloadedTree(FileFlow& flow, SceneDocument& document, OrvServices& services, SceneTreePanel* tree, QObject* parent);
    ~ReloadedTree() override;

private:
    void restore();

    std::unique_ptr<TreeState> m_state; // from before the reload
};
