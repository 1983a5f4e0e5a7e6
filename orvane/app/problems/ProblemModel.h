#pragma once

#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/file/NxScenePathNamer.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

/// The problems of a scene as rows: what is wrong, where, and the identifier.
///
/// Texts are made when they are shown, and rows are filtered in slices, so that there may be millions.
class ProblemModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { SentenceColumn, PlaceColumn, IdentifierColumn, ColumnCount };

    explicit ProblemModel(QObject* parent = nullptr);

    /// Shows the problems of a check of that scene, which both must outlive the model's use of them; null for none.
    void setCheck(const NxSceneCheck* check, const NxGroup* scene);
    /// Follows the changes of the lists of the check. Call it before the event loop goes on.
    void update(const std::vector<std::uint32_t>& lists);

    /// Shows the rows that contain all words of the text, in any case of letters.
    void setFilter(const QString& text);
    /// Shows problems of that severity or hides them.
    void setShown(NxSeverity severity, bool isShown);
    /// Whether rows may be hidden by the filter or by their severity.
    [[nodiscard]] bool hidesRows() const;

    /// The problem of a row; null if there is no such row.
    [[nodiscard]] const NxSceneProblem* problem(int row) const;
    /// All problems of a kind, whether they are shown or not.
    [[nodiscard]] std::vector<NxSceneProblem> allOfKind(NxProblemKind kind) const;
    /// The line of a row as it is copied, with the whole path.
    [[nodiscard]] QString line(const NxSceneProblem& problem) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// A problem of a list of the check.
    struct Row {
        std::uint32_t list = 0;
        std::uint32_t index = 0;
    };

    [[nodiscard]] bool accepts(const NxSceneProblem& problem) const;
    [[nodiscard]] QString pathOf(const NxSceneProblem& problem) const;
    [[nodiscard]] QString toolTip(const NxSceneProblem& problem) const;
    void appendRows(std::uint32_t list, std::vector<Row>& rows);
    void insertAtEnd(const std::vector<Row>& rows);
    void replaceRows(std::uint32_t list);
    void refill();
    [[nodiscard]] bool isRefilling() const;

    const NxSceneCheck* m_check = nullptr;
    const NxGroup* m_scene = nullptr;
    std::vector<Row> m_rows;
    std::vector<char> m_isListed; // by the number of the list: whether it has rows
    QStringList m_words;
    std::array<bool, 3> m_isShown{true, true, true}; // by severity
    std::size_t m_next = 0; // the list from which on rows are still missing
    QBasicTimer m_refill;
    mutable NxScenePathNamer m_namer;
    mutable QBasicTimer m_naming; // asks again for paths that take longer
};
