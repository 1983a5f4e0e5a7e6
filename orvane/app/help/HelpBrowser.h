#pragma once

#include <QTextBrowser>
#include <QTimer>

/// Shows a page of the help.
///
/// Links between pages and to headings are followed inside; addresses of the network are opened by the desktop.
/// Pictures are as wide as the window at most. Of pictures that come in a light and a dark form, the one that suits the
/// palette is shown.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Marks these words in the page, and in those that are shown later.
    void setWords(const QStringList& words);
    /// Goes to the next or previous marked word, round the end of the page. False if there is none.
    bool goToWord(bool forwards);

    [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

Q_SIGNALS:
    /// A link to something that the help doesn't have was clicked.
    void linkFailed(const QString& message);

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void follow(const QUrl& link);
    void layOut();
    void markWords();
    void showAgain();

    QStringList m_words;
    QUrl m_page; // the page whose pictures are loaded
    bool m_hasPictures = false;
    QTimer m_resized; // runs until the size has stayed the same for a moment
};
