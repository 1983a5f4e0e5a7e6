#pragma once

#include "orvane/app/actions/PickerSource.h"
#include "orvane/app/actions/PlaceSearch.h"
#include "orvane/app/actions/UseCounts.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

class AppSettings;
class OrvServices;
class RecentFiles;
class SceneDocument;

/// The nodes, fields, cameras and bookmarks of the open scene, and the files that were opened last: the user goes to
/// one by some letters of it.
class GoToSource : public PickerSource {
    Q_OBJECT

public:
    /// All live longer.
    GoToSource(OrvServices& services, SceneDocument& document, const RecentFiles& recent, AppSettings& settings,
        QObject* parent, meridane::WorkBudget::Clock clock = &std::chrono::steady_clock::now);
    ~GoToSource() override;

    /// Lets the user go to bookmarks of the view, too, whose names the function returns.
    void setBookmarks(std::function<QStringList()> names) { m_bookmarks = std::move(names); }

    [[nodiscard]] Texts texts() const override;
    void search(const QString& text) override;
    bool work() override;
    [[nodiscard]] bool hasNews() const override { return m_hasNews; }
    [[nodiscard]] QList<PickerItem> items() override;
    void choose(quint64 id) override;
    void end() override;

Q_SIGNALS:
    /// The user goes to a node, or to a field of it if that isn't null.
    void wentTo(const std::vector<NxNode*>& path, NxField* field);
    /// The user looks through a camera.
    void lookedThrough(const std::vector<NxNode*>& camera);
    /// The user looks from where a bookmark was set.
    void bookmarkChosen(std::size_t number);
    /// The user opens a file.
    void opened(const QString& fileName);

private:
    enum class Kind { Place, Camera, File, Bookmark };
    struct Choice {
        Kind kind = Kind::Place;
        int score = 0;
        PlaceSearch::Hit hit;
        QString fileName; ///< or the name of a bookmark
        quint64 id = 0;
        std::size_t number = 0; ///< of a bookmark
    };

    void addFiles();
    void addBookmarks();
    void addUsed();
    void addHits();
    [[nodiscard]] PickerItem itemOf(const Choice& choice) const;
    [[nodiscard]] PickerItem placeItem(const Choice& choice) const;
    [[nodiscard]] QString useName(const PlaceSearch::Hit& hit) const;
    [[nodiscard]] QString usePrefix() const;
    void startSearch();
    void listUsed();
    void findUsed(const QString& name);
    void forget();

    OrvServices& m_services;
    SceneDocument& m_document;
    const RecentFiles& m_recent;
    UseCounts m_uses;
    PlaceSearch m_search;
    std::function<QStringList()> m_bookmarks;
    QString m_text;
    QStringList m_unfound; ///< names of places that the user has gone to, not yet looked up
    bool m_isSearching = false;
    std::vector<PlaceSearch::Hit> m_used; ///< the latest first
    bool m_isUsedKnown = false;
    bool m_isOpen = false;
    bool m_hasNews = true;
    std::vector<Choice> m_choices; ///< of the latest `items`
};
