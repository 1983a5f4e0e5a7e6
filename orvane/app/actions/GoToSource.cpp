#include "orvane/app/actions/GoToSource.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/tree/NodeIcons.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxCamera.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStyle>

#include <algorithm>
#include <functional>

namespace {

// Without letters: what was used last, then bookmarks, then files, then the scene from its beginning.
constexpr int usedScore = 10'000;
constexpr int bookmarksScore = 7'000;
constexpr int filesScore = 5'000;
/// To look through a camera is less likely than to go to it.
constexpr int cameraLoss = 4;
constexpr qsizetype mostUsed = 12;
constexpr int usedGain = 60;

/// Another number for each thing that can be chosen. Zero is none.
quint64 idOf(const void* thing, std::size_t place, quint64 kind)
{
    return (std::hash<const void*>()(thing) * 31 + place) * 4 + kind + 1;
}

} // namespace

GoToSource::GoToSource(OrvServices& services, SceneDocument& document, const RecentFiles& recent, AppSettings& settings,
    QObject* parent, meridane::WorkBudget::Clock clock)
    : PickerSource(parent)
    , m_services(services)
    , m_document(document)
    , m_recent(recent)
    , m_uses(settings, QStringLiteral("goTo/uses"))
    , m_search(clock)
{
    connect(&document, &SceneDocument::sceneAboutToChange, this, [this] {
        forget();
        Q_EMIT gone();
    });
    connect(&services, &OrvServices::documentEdited, this, [this] {
        forget();
        if (m_isOpen)
            Q_EMIT changed();
    });
}

GoToSource::~GoToSource() = default;

PickerSource::Texts GoToSource::texts() const
{
    return {tr("Go to"), tr("Letters of a node, camera, bookmark or file; parent/node, node.field"),
        m_document.isOpen() ? tr("Nothing in the scene has these letters in this order, and no recent file.")
                            : tr("No scene is open, and no recent file has these letters in this order.")};
}

void GoToSource::forget()
{
    m_search.start(nullptr, {});
    m_isSearching = false;
    m_unfound.clear();
    m_used.clear();
    m_isUsedKnown = false;
    m_choices.clear();
}

void GoToSource::end()
{
    m_isOpen = false;
    forget();
}

void GoToSource::search(const QString& text)
{
    m_isOpen = true;
    m_hasNews = true;
    m_text = text.trimmed();
    if (!m_isUsedKnown)
        listUsed();
    m_isSearching = false;
    m_search.start(nullptr, m_text); // not yet
}

void GoToSource::startSearch()
{
    m_isSearching = true;
    QHash<const void*, int> preferred;
    for (const PlaceSearch::Hit& used : m_used)
        preferred.insert(used.field != nullptr ? static_cast<const void*>(used.field) : used.path.back(), used.score);
    if (const NxFieldContainer* const selected = m_services.getSelectedNode(); selected != nullptr)
        preferred.insert(selected, preferred.value(selected) + usedGain / 2);
    m_search.start(m_document.scene(), m_text, preferred);
}

bool GoToSource::work()
{
    // In a wide scene it takes milliseconds to follow one path.
    if (!m_unfound.isEmpty()) {
        findUsed(m_unfound.takeFirst());
        return true;
    }
    if (!m_isSearching)
        startSearch();
    m_hasNews = m_search.work() || m_hasNews;
    return !m_search.isDone();
}

QString GoToSource::usePrefix() const
{
    return m_document.fileName() + u'|';
}

QString GoToSource::useName(const PlaceSearch::Hit& hit) const
{
    const NxGroup* const scene = m_document.scene();
    return usePrefix()
        + orvane::toQString(hit.field != nullptr ? NxScenePath::toText(scene, hit.path, hit.field)
                                                 : NxScenePath::toText(scene, hit.path));
}

/// The places that the user has gone to before in this scene.
void GoToSource::listUsed()
{
    m_isUsedKnown = true;
    m_used.clear();
    m_unfound.clear();
    if (!m_document.isOpen() || m_document.fileName().isEmpty())
        return;
    for (const QString& name : m_uses.names()) {
        if (name.startsWith(usePrefix()) && m_unfound.size() < mostUsed)
            m_unfound.append(name);
    }
}

/// Follows the path of such a place, which may not be there any more.
void GoToSource::findUsed(const QString& name)
{
    NxScenePath::Target target = NxScenePath::find(m_document.scene(), name.mid(usePrefix().size()).toStdString());
    if (!target.error.empty() || target.nodes.empty())
        return;
    const int gain = usedGain + std::min(m_uses.count(name), usedGain);
    m_used.push_back({gain, m_used.size(), std::move(target.nodes), target.field});
    m_hasNews = true;
}

void GoToSource::addUsed()
{
    for (std::size_t i = 0; i < m_used.size(); ++i)
        m_choices.push_back({Kind::Place, usedScore - static_cast<int>(i), m_used[i], {}, 0});
}

void GoToSource::addFiles()
{
    const orvane::LetterMatch letters(m_text);
    int place = 0;
    for (const QString& fileName : m_recent.fileNames()) {
        ++place;
        if (fileName == m_document.fileName())
            continue;
        if (const auto score = letters.score(QFileInfo(fileName).fileName()))
            m_choices.push_back({Kind::File, letters.isEmpty() ? filesScore - place : *score, {}, fileName, 0});
    }
}

void GoToSource::addBookmarks()
{
    const orvane::LetterMatch letters(m_text);
    const QStringList names = m_bookmarks ? m_bookmarks() : QStringList();
    for (int number = 0; number < names.size(); ++number) {
        if (const auto score = letters.score(names[number]))
            m_choices.push_back({Kind::Bookmark, letters.isEmpty() ? bookmarksScore - number : *score, {},
                names[number], 0, static_cast<std::size_t>(number)});
    }
}

void GoToSource::addHits()
{
    for (const PlaceSearch::Hit& hit : m_search.hits()) {
        const NxNode* const node = hit.path.back();
        const bool isListed = m_text.isEmpty() && std::ranges::any_of(m_used, [&](const PlaceSearch::Hit& used) {
            return used.path == hit.path && used.field == hit.field;
        });
        if (!isListed)
            m_choices.push_back({Kind::Place, hit.score, hit, {}, 0});
        if (hit.field == nullptr && dynamic_cast<const NxCamera*>(node) != nullptr)
            m_choices.push_back({Kind::Camera, hit.score - cameraLoss, hit, {}, 0});
    }
}

QList<PickerItem> GoToSource::items()
{
    m_hasNews = false;
    m_choices.clear();
    if (m_text.isEmpty())
        addUsed();
    addFiles();
    addBookmarks();
    addHits();
    std::ranges::stable_sort(
        m_choices, [](const Choice& left, const Choice& right) { return left.score > right.score; });
    QList<PickerItem> items;
    for (Choice& choice : m_choices) {
        const void* const thing = choice.hit.field != nullptr ? static_cast<const void*>(choice.hit.field)
            : !choice.hit.path.empty()                        ? choice.hit.path.back()
                                                              : nullptr;
        // Those of places are 1 and 2 more than a multiple of four, those of files multiples.
        if (choice.kind == Kind::Bookmark)
            choice.id = quint64{choice.number} * 4 + 3;
        else
            choice.id = thing != nullptr
                ? idOf(thing, std::hash<const void*>()(choice.hit.path.front()) + choice.hit.order,
                    static_cast<quint64>(choice.kind))
                : qHash(choice.fileName) * 4 + 4;
        items.append(itemOf(choice));
    }
    return items;
}

PickerItem GoToSource::itemOf(const Choice& choice) const
{
    if (choice.kind == Kind::Bookmark)
        return {choice.id, orvane::nodeIcon(NxCamera::getClassTypeId()), choice.fileName,
            orvane::LetterMatch(m_text).places(choice.fileName), tr("Bookmark of the view"), {}, {}};
    if (choice.kind != Kind::File)
        return placeItem(choice);
    const QFileInfo info(choice.fileName);
    const QString text = orvane::oneLine(info.fileName());
    return {choice.id, QApplication::style()->standardIcon(QStyle::SP_FileIcon), text,
        orvane::LetterMatch(m_text).places(text),
        tr("Open from %1").arg(orvane::oneLine(QDir::toNativeSeparators(info.path()))), {}, {}};
}

PickerItem GoToSource::placeItem(const Choice& choice) const
{
    const NxNode& node = *choice.hit.path.back();
    PickerItem item;
    item.id = choice.id;
    item.icon = orvane::nodeIcon(node.getTypeId());
    item.text = orvane::shortLine(PlaceSearch::nameOf(node));
    item.places = m_search.nodeLetters().places(item.text);
    if (choice.hit.field != nullptr) {
        const qsizetype before = item.text.size() + 1;
        const QString field = orvane::toQString(choice.hit.path.back()->getFieldName(choice.hit.field));
        if (item.places.isEmpty() || !m_text.contains(u'.'))
            item.places.clear();
        for (const int place : m_search.fieldLetters().places(field))
            item.places.append(place + static_cast<int>(before));
        item.text += u'.' + field;
    }
    const std::vector<NxNode*>& path = choice.hit.path;
    constexpr std::size_t mostParents = 12;
    const std::size_t first = path.size() > mostParents ? path.size() - mostParents : 0;
    QString parents = first == 0 ? QStringLiteral("/") : QStringLiteral("/…/");
    for (std::size_t i = first; i + 1 < path.size(); ++i)
        parents += orvane::shortLine(PlaceSearch::nameOf(*path[i])) + u'/';
    item.detail = choice.kind == Kind::Camera ? tr("Look through this camera, in %1").arg(parents)
                                              : tr("%1 in %2").arg(QString::fromUtf8(node.getClassName()), parents);
    return item;
}

void GoToSource::choose(quint64 id)
{
    const auto found = std::ranges::find(m_choices, id, &Choice::id);
    if (found == m_choices.end())
        return;
    const Choice choice = *found;
    if (choice.kind == Kind::Place && !m_document.fileName().isEmpty())
        m_uses.add(useName(choice.hit));
    end();
    if (choice.kind == Kind::File)
        Q_EMIT opened(choice.fileName);
    else if (choice.kind == Kind::Bookmark)
        Q_EMIT bookmarkChosen(choice.number);
    else if (choice.kind == Kind::Camera)
        Q_EMIT lookedThrough(choice.hit.path);
    else
        Q_EMIT wentTo(choice.hit.path, choice.hit.field);
}
