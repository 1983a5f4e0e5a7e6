#pragma once

#include <QObject>

class FindLine;
class KeptSearches;

/// The menu of the searches that the user keeps.
class FindMenu : public QObject {
    Q_OBJECT

public:
    /// Both live as long as the line, which owns the object.
    FindMenu(KeptSearches& kept, FindLine& line);

private:
    void fill();
    void keep();
    void rename(const QString& name);

    KeptSearches& m_kept;
    FindLine& m_line;
};
