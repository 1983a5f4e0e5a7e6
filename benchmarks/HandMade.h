#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

namespace bench {

/// Makes copies of existing widgets in the simplest way: each as an instance of Qt's own class, in its parent, with its
/// text and icon, in a simple layout.
class HandMade {
public:
    using Widgets = std::vector<std::unique_ptr<QWidget>>;

    /// Records the classes and the parents of these widgets.
    explicit HandMade(const QWidgetList& originals);

    [[nodiscard]] int count() const noexcept { return static_cast<int>(m_parts.size()); }
    /// The widgets that have no parent, which hold the others.
    [[nodiscard]] Widgets make() const;

private:
    using Make = QWidget* (*)(QWidget* parent, const QString& text, const QIcon& icon);

    struct Part {
        Make make;
        int parent; // the index of the parent, -1 for none
        bool hasLayout;
        bool isInLayout;
        QString text;
        QIcon icon;
    };

    void add(const QWidget& original, int parent);
    static Make findMake(const QWidget& original);

    std::vector<Part> m_parts; // parents before their children
};

} // namespace bench
