#pragma once

#include <functional>

class QObject;

namespace orvane {

/// Calls `setTexts` now, and after each change of the language as long as `owner` exists. For texts that are set once:
/// titles, labels, tool tips, actions. Texts that are asked for when they are shown need only a repaint, which happens
/// by itself. On the thread of the application.
///
///     followLanguage(this, [this] { m_open->setText(tr("&Open…")); });
void followLanguage(QObject* owner, std::function<void()> setTexts);

} // namespace orvane
