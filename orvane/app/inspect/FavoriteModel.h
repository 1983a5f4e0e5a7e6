#pragma once

#include <QAbstractListModel>
#include <QIcon>

#include <vector>

class FavoriteNodes;
class NxNode;

/// The favorite nodes of the open scene as rows, in the order in which they were marked.
class FavoriteModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// The favorites live longer.
    FavoriteModel(const FavoriteNodes& favorites, QObject* parent);

    /// The nodes that lead to a favorite; empty if it isn't in the scene any more.
    [[nodiscard]] std::vector<NxNode*> path(const QModelIndex& index) const;
    /// Looks at the favorites again, and at whether they are in the scene.
    void update();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    struct Row {
        const NxNode* node; // only compared
        QString name;
        QString className;
        QIcon icon;

        [[nodiscard]] bool operator==(const Row& other) const
        {
            return node == other.node && name == other.name && className == other.className;
        }
    };

    const FavoriteNodes& m_favorites;
    std::vector<Row> m_rows;
};
