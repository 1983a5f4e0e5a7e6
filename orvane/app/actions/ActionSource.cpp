#include "orvane/app/actions/ActionSource.h"

#include "orvane/app/base/LetterMatch.h"

#include <QKeySequence>
#include <QMainWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// An action that is found by the name of its menu comes behind those that are found by their own.
constexpr int placeLoss = 400;

/// What it is worth that an action was used often: less and less for each further time.
int useScore(int count)
{
    constexpr int once = 24;
    int score = 0;
    for (; count > 0; count /= 2)
        score += once;
    return score;
}

} // namespace

ActionSource::ActionSource(QMainWindow* window, AppSettings& settings)
    : PickerSource(window)
    , m_window(window)
    , m_uses(settings, QStringLiteral("palette/uses"))
{
}

ActionSource::~ActionSource() = default;

PickerSource::Texts ActionSource::texts() const
{
    return {tr("Command palette"), tr("Letters of a command"), tr("No command has these letters in this order.")};
}

void ActionSource::search(const QString& text)
{
    if (m_actions.isEmpty())
        m_actions = orvane::listedActions(*m_window);
    const orvane::LetterMatch letters(text);
    struct Rank {
        bool isDisabled;
        int score;
        qsizetype number;
    };
    std::vector<Rank> ranks;
    for (qsizetype i = 0; i < m_actions.size(); ++i) {
        const ListedAction& listed = m_actions.at(i);
        std::optional<int> score = letters.score(listed.text);
        if (const auto withPlace = score ? std::nullopt : letters.score(listed.place + u' ' + listed.text))
            score = *withPlace - placeLoss;
        if (score && listed.action != nullptr)
            ranks.push_back({!listed.isEnabled(), *score + useScore(m_uses.count(listed.name)), i});
    }
    std::ranges::stable_sort(ranks, [](const Rank& left, const Rank& right) {
        return left.isDisabled != right.isDisabled ? right.isDisabled : left.score > right.score;
    });
    m_items.clear();
    for (const Rank& rank : ranks) {
        m_items.append(itemOf(static_cast<quint64>(rank.number) + 1));
        m_items.back().places = letters.places(m_items.back().text);
    }
}

PickerItem ActionSource::itemOf(quint64 id) const
{
    const ListedAction& listed = m_actions.at(static_cast<qsizetype>(id) - 1);
    QString text = listed.text;
    if (listed.action->isCheckable())
        text = listed.action->isChecked() ? tr("%1 (on)").arg(text) : tr("%1 (off)").arg(text);
    QString reason;
    if (!listed.isEnabled())
        reason = listed.reason.isEmpty() ? tr("This can't be done now.") : listed.reason;
    return {id, listed.action->icon(), text, {}, listed.place,
        QKeySequence::listToString(listed.action->shortcuts(), QKeySequence::NativeText), reason};
}

void ActionSource::choose(quint64 id)
{
    const ListedAction listed = m_actions.at(static_cast<qsizetype>(id) - 1);
    end();
    if (listed.action == nullptr || !listed.action->isEnabled())
        return;
    m_uses.add(listed.name);
    listed.action->trigger();
}

void ActionSource::end()
{
    m_actions.clear();
}
