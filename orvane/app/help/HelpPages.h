#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace orvane {

/// A page of the help.
struct HelpPage {
    QString file; ///< the file in the folder of pages, such as "view.md"
    QString title;
    QString group; ///< the heading below which the list of contents has it
    QString summary; ///< what the page is for, in one line
};

/// A page that has all words of a search.
struct HelpHit {
    const HelpPage* page; ///< owned by the pages
    qsizetype count; ///< how often the words are in it, all together
};

/// The pages of the documentation, which are inside the program, so that they can be read without a network.
class HelpPages {
public:
    /// Reads the list of contents, `help.md`, from the pages inside the program.
    HelpPages();
    /// The same from another folder, which has the pages in `docs`.
    explicit HelpPages(const QUrl& folder);

    /// All pages in the order of the list of contents.
    [[nodiscard]] const QList<HelpPage>& pages() const noexcept { return m_pages; }
    /// The page of that file, or null.
    [[nodiscard]] const HelpPage* page(const QString& file) const;
    /// The page that an address leads to, or null. A part of the page, behind `#`, doesn't count.
    [[nodiscard]] const HelpPage* pageAt(const QUrl& address) const;
    /// Where the page of that file is.
    [[nodiscard]] QUrl address(const QString& file) const;
    /// The file that lists the pages.
    [[nodiscard]] static QString contents();
    /// The pages that have all words, those with the words in their title first, then those that have them most often.
    /// Upper and lower case are the same. Without words all pages, in their order.
    [[nodiscard]] QList<HelpHit> find(const QStringList& words) const;

private:
    [[nodiscard]] QString text(const QString& file) const;

    QUrl m_folder;
    QList<HelpPage> m_pages;
};

/// The part of an address that leads to a heading: its letters and digits in lower case, with `-` for blanks.
///
/// Source: the anchors that GitHub gives to the headings of Markdown files.
[[nodiscard]] QString headingAnchor(const QString& heading);

} // namespace orvane
